// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeEXR.h"

#include "extraction/pictures/BufferedFile.h"
#include <array>
#include <cmath>
#include <limits>
#include <OpenEXR/Iex.h>
#include <OpenEXR/ImfChromaticitiesAttribute.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfRgbaFile.h>
#include <OpenEXR/ImfStandardAttributes.h>
#include <vector>

namespace Varlo {

namespace {
class EXRStream final : public Imf::IStream {
public:
    explicit EXRStream(const FileDescriptor &file)
        : Imf::IStream("picture")
        , m_file(file)
    {
    }
    bool read(char bytes[], int count) override
    {
        if (!m_file.read(reinterpret_cast<uchar *>(bytes), count))
            throw Iex::InputExc("truncated"); // as the interface asks; decodeEXR() catches it
        return m_file.position() < m_file.size();
    }
    uint64_t tellg() override { return static_cast<uint64_t>(m_file.position()); }
    void seekg(uint64_t position) override
    {
        m_file.seek(static_cast<qint64>(std::min<uint64_t>(position, std::numeric_limits<qint64>::max() / 2)));
    }

private:
    BufferedFile m_file;
};

using SampleTable = std::array<uchar, 65536>;
} // namespace

/// For each value of a half, as bits, the sRGB sample (IEC 61966-2-1).
static const SampleTable &sampleTable()
{
    static const SampleTable table = [] {
        SampleTable samples {};
        for (unsigned bits = 0; bits < samples.size(); ++bits) {
            Imath::half light;
            light.setBits(static_cast<uint16_t>(bits));
            const double value = light.isNan() ? 0 : std::clamp(static_cast<double>(light), 0.0, 1.0);
            const double encoded = value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
            samples[bits] = static_cast<uchar>(std::lround(255 * encoded));
        }
        return samples;
    }();
    return table;
}

/// From the file's primaries to those of sRGB; absent where the file names none.
static std::optional<Imath::M44f> toSRGB(const Imf::Header &header)
{
    if (!Imf::hasChromaticities(header))
        return std::nullopt;
    return Imf::RGBtoXYZ(Imf::chromaticities(header), 1) * Imf::XYZtoRGB(Imf::Chromaticities(), 1);
}

static void decodeRows(Imf::RgbaInputFile &file, PictureRows &rows)
{
    const Imath::Box2i window = file.dataWindow();
    const int width = window.max.x - window.min.x + 1;
    std::vector<Imf::Rgba> lights(static_cast<size_t>(width));
    std::vector<uchar> samples(lights.size() * 3);
    const SampleTable &table = sampleTable();
    const auto matrix = toSRGB(file.header());
    file.setFrameBuffer(lights.data() - window.min.x, 1, 0); // each row over the one before
    for (int y = window.min.y; y <= window.max.y; ++y) {
        file.readPixels(y);
        uchar *target = samples.data();
        for (const Imf::Rgba &light : lights) {
            Imath::V3f colour(light.r, light.g, light.b);
            if (matrix)
                colour *= *matrix;
            const float white = 1 - light.a; // colours are multiplied by alpha already
            for (const float value : { colour.x, colour.y, colour.z })
                *target++ = table[Imath::half(value + white).bits()];
        }
        rows.addRow(samples.data());
    }
}

bool decodeEXR(const FileDescriptor &file, PictureRows &rows)
{
    bool hasBegun = false;
    try {
        EXRStream stream(file);
        Imf::RgbaInputFile picture(stream, 0); // no threads
        const Imath::Box2i window = picture.dataWindow();
        const qint64 width = qint64 { window.max.x } - window.min.x + 1;
        const qint64 height = qint64 { window.max.y } - window.min.y + 1;
        if (isTooLarge(width, height))
            return false;
        PictureHeader header { { static_cast<int>(width), static_cast<int>(height) } };
        header.pixelAspect = picture.pixelAspectRatio();
        hasBegun = rows.begin(header);
        if (hasBegun)
            decodeRows(picture, rows);
    } catch (const std::exception &) {
        return hasBegun; // damaged: the rows so far stand
    }
    return hasBegun;
}

} // namespace Varlo
