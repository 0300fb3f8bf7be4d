// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeTGA.h"

#include "extraction/pictures/BufferedFile.h"
#include <algorithm>
#include <array>
#include <QtEndian>
#include <vector>

namespace Varlo {

namespace {
struct TGAHeader {
    int identifierSize = 0;
    bool hasMap = false;
    int imageType = 0; ///< 1 colour-mapped, 2 true-colour, 3 grey; 8 more where run-length encoded
    int mapStart = 0; ///< the index that the map's first entry has
    int mapLength = 0;
    int mapEntryBits = 0;
    int width = 0;
    int height = 0;
    int pixelBits = 0;
    int alphaBits = 0;
    bool isRightToLeft = false;
    bool isTopDown = false;
    bool isInterleaved = false;

    [[nodiscard]] bool isMapped() const { return (imageType & 7) == 1; }
    [[nodiscard]] bool isGrey() const { return (imageType & 7) == 3; }
    [[nodiscard]] bool isEncoded() const { return (imageType & 8) != 0; }
};

class TGADecoder {
public:
    explicit TGADecoder(const FileDescriptor &file)
        : m_file(file)
    {
    }
    [[nodiscard]] bool readHeader();
    [[nodiscard]] PictureHeader header();
    void decode(PictureRows &rows);

private:
    [[nodiscard]] bool readMap();
    [[nodiscard]] bool hasMeaningfulAlpha();
    void rewind();
    [[nodiscard]] bool readRow();
    [[nodiscard]] bool readEncodedRow();
    uchar *convert(const uchar *pixel, uchar *target) const;

    BufferedFile m_file;
    TGAHeader m_header;
    qint64 m_pixelsStart = 0;
    int m_pixelBytes = 0;
    int m_mapEntryBytes = 0;
    bool m_usesAlpha = false;
    std::vector<uchar> m_map;
    std::vector<uchar> m_row; ///< as in the file, but for the run lengths
    // A run may go on in the next row.
    int m_runLeft = 0;
    bool m_isRunOfOne = false;
    std::array<uchar, 4> m_runPixel {};
};
} // namespace

static int toBytes(int bits) { return (bits + 7) / 8; }

static TGAHeader parse(const std::array<uchar, 18> &bytes)
{
    const auto word = [&](int offset) { return qFromLittleEndian<quint16>(&bytes[offset]); };
    return { .identifierSize = bytes[0],
        .hasMap = bytes[1] == 1,
        .imageType = bytes[2],
        .mapStart = word(3),
        .mapLength = word(5),
        .mapEntryBits = bytes[7],
        .width = word(12),
        .height = word(14),
        .pixelBits = bytes[16],
        .alphaBits = bytes[17] & 0x0F,
        .isRightToLeft = (bytes[17] & 0x10) != 0,
        .isTopDown = (bytes[17] & 0x20) != 0,
        .isInterleaved = (bytes[17] & 0xC0) != 0 };
}

static bool isColourDepth(int bits) { return bits == 15 || bits == 16 || bits == 24 || bits == 32; }

/// Nothing at the front of the file says that it is a TGA, so everything has to make sense.
static bool isPlausible(const TGAHeader &header, int mapType)
{
    if (mapType > 1 || header.isInterleaved || isTooLarge(header.width, header.height))
        return false;
    if (header.hasMap && !isColourDepth(header.mapEntryBits))
        return false;
    switch (header.imageType) {
    case 1:
    case 9:
        return header.hasMap && header.mapLength > 0 && (header.pixelBits == 8 || header.pixelBits == 16);
    case 2:
    case 10:
        return isColourDepth(header.pixelBits);
    case 3:
    case 11:
        return header.pixelBits == 8 || header.pixelBits == 16;
    default:
        return false;
    }
}

bool TGADecoder::readHeader()
{
    std::array<uchar, 18> bytes {};
    if (!m_file.read(bytes.data(), bytes.size()))
        return false;
    m_header = parse(bytes);
    if (!isPlausible(m_header, bytes[1]) || !readMap())
        return false;
    m_pixelBytes = toBytes(m_header.pixelBits);
    m_row.resize(size_t(m_header.width) * m_pixelBytes);
    m_usesAlpha = hasMeaningfulAlpha();
    rewind();
    return true;
}

bool TGADecoder::readMap()
{
    m_file.seek(m_file.position() + m_header.identifierSize);
    m_mapEntryBytes = toBytes(m_header.mapEntryBits);
    m_map.resize(m_header.hasMap ? size_t(m_header.mapLength) * m_mapEntryBytes : 0);
    if (!m_file.read(m_map.data(), qsizetype(m_map.size())))
        return false;
    m_pixelsStart = m_file.position();
    return true;
}

void TGADecoder::rewind()
{
    m_file.seek(m_pixelsStart);
    m_runLeft = 0;
}

/// What the extension area (Truevision TGA 2.0, section C.8) says of the alpha bits; absent where there is none.
static std::optional<bool> declaresAlpha(BufferedFile &file)
{
    static constexpr QByteArrayView signature("TRUEVISION-XFILE.", 18);
    std::array<uchar, 26> footer {};
    file.seek(std::max<qint64>(0, file.size() - qint64(footer.size())));
    if (!file.read(footer.data(), footer.size()) || QByteArrayView(footer).sliced(8) != signature)
        return std::nullopt;
    const auto offset = qFromLittleEndian<quint32>(footer.data());
    uchar attributesType = 0;
    file.seek(qint64 { offset } + 494);
    if (offset == 0 || !file.read(&attributesType, 1))
        return std::nullopt;
    return attributesType == 3 || attributesType == 4;
}

/// Many programs announce alpha and leave it at zero: such a picture is meant to be seen.
bool TGADecoder::hasMeaningfulAlpha()
{
    const int depth = m_header.isMapped() ? m_header.mapEntryBits : m_header.pixelBits;
    if (m_header.alphaBits == 0 || depth == 15 || depth == 24 || (m_header.isGrey() && depth == 8))
        return false;
    if (const auto declared = declaresAlpha(m_file))
        return *declared;
    rewind();
    m_usesAlpha = true; // so that it is looked at
    std::array<uchar, 4> pixel {};
    for (int y = 0; y < m_header.height && readRow(); ++y) {
        for (size_t x = 0; x < m_row.size(); x += m_pixelBytes) {
            convert(&m_row[x], pixel.data());
            if (pixel[3] != 0)
                return true;
        }
    }
    return false;
}

PictureHeader TGADecoder::header()
{
    PictureHeader header { { m_header.width, m_header.height } };
    header.layout = m_usesAlpha ? PixelLayout::RGBA : PixelLayout::RGB;
    header.isBottomUp = !m_header.isTopDown;
    header.isRightToLeft = m_header.isRightToLeft;
    return header;
}

bool TGADecoder::readRow()
{
    return m_header.isEncoded() ? readEncodedRow() : m_file.read(m_row.data(), qsizetype(m_row.size()));
}

bool TGADecoder::readEncodedRow()
{
    for (auto target = m_row.begin(); target != m_row.end(); --m_runLeft) {
        if (m_runLeft == 0) {
            uchar packet = 0;
            if (!m_file.read(&packet, 1))
                return false;
            m_runLeft = (packet & 0x7F) + 1;
            m_isRunOfOne = (packet & 0x80) != 0;
            if (m_isRunOfOne && !m_file.read(m_runPixel.data(), m_pixelBytes))
                return false;
        }
        if (!m_isRunOfOne && !m_file.read(m_runPixel.data(), m_pixelBytes))
            return false;
        target = std::copy_n(m_runPixel.begin(), m_pixelBytes, target);
    }
    return true;
}

static uchar fromFiveBits(int value) { return uchar((value * 255 + 15) / 31); }

/// Red, green, blue and, where it is wanted, alpha of a colour as the file has it.
static uchar *convertColour(const uchar *colour, int bytes, bool withAlpha, uchar *target)
{
    uchar alpha = 255;
    if (bytes == 2) {
        const int bits = qFromLittleEndian<quint16>(colour);
        *target++ = fromFiveBits((bits >> 10) & 31);
        *target++ = fromFiveBits((bits >> 5) & 31);
        *target++ = fromFiveBits(bits & 31);
        alpha = (bits & 0x8000) != 0 ? 255 : 0;
    } else {
        target = std::reverse_copy(colour, colour + 3, target);
        if (bytes == 4)
            alpha = colour[3];
    }
    if (withAlpha)
        *target++ = alpha;
    return target;
}

uchar *TGADecoder::convert(const uchar *pixel, uchar *target) const
{
    if (m_header.isGrey()) {
        target = std::fill_n(target, 3, pixel[0]);
        if (m_usesAlpha)
            *target++ = pixel[1];
        return target;
    }
    if (!m_header.isMapped())
        return convertColour(pixel, m_pixelBytes, m_usesAlpha, target);
    static constexpr std::array<uchar, 4> missing { 0, 0, 0, 255 };
    const int index = (m_pixelBytes == 2 ? qFromLittleEndian<quint16>(pixel) : pixel[0]) - m_header.mapStart;
    const bool isInMap = index >= 0 && index < m_header.mapLength;
    return convertColour(isInMap ? &m_map[size_t(index) * m_mapEntryBytes] : missing.data(),
        isInMap ? m_mapEntryBytes : 4, m_usesAlpha, target);
}

void TGADecoder::decode(PictureRows &rows)
{
    std::vector<uchar> samples(size_t(m_header.width) * (m_usesAlpha ? 4 : 3));
    for (int y = 0; y < m_header.height && readRow(); ++y) {
        uchar *target = samples.data();
        for (size_t x = 0; x < m_row.size(); x += m_pixelBytes)
            target = convert(&m_row[x], target);
        rows.addRow(samples.data());
    }
}

bool decodeTGA(const FileDescriptor &file, PictureRows &rows)
{
    TGADecoder decoder(file);
    if (!decoder.readHeader() || !rows.begin(decoder.header()))
        return false;
    decoder.decode(rows);
    return true;
}

} // namespace Varlo
