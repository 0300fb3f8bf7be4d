// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodePNG.h"

#include "extraction/pictures/BufferedFile.h"
#include <csetjmp>
#include <memory>
#include <new>
#include <png.h>

namespace Varlo {

// An interlaced picture has to stand in memory whole.
static constexpr size_t interlacedLimit = size_t { 800 } * 1024 * 1024;

namespace {
// libpng leaves the step in hand by longjmp() when it finds an error, so what is owned is a member.
class PNGDecoder {
public:
    explicit PNGDecoder(const FileDescriptor &file);
    ~PNGDecoder() { png_destroy_read_struct(&m_png, &m_info, nullptr); }
    PNGDecoder(const PNGDecoder &) = delete;
    PNGDecoder &operator=(const PNGDecoder &) = delete;

    [[nodiscard]] bool readHeader();
    [[nodiscard]] PictureHeader header() const;
    void decode(PictureRows &rows);

private:
    void setGamma();
    [[nodiscard]] bool isInterlaced() const { return png_get_interlace_type(m_png, m_info) != PNG_INTERLACE_NONE; }

    BufferedFile m_file;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
    std::unique_ptr<uchar[]> m_samples; ///< one row, or all where it is interlaced
};
} // namespace

static void leave(png_structp png, png_const_charp) { png_longjmp(png, 1); }
static void ignore(png_structp, png_const_charp) { }

PNGDecoder::PNGDecoder(const FileDescriptor &file)
    : m_file(file)
    , m_png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignore))
{
    if (m_png)
        m_info = png_create_info_struct(m_png);
}

bool PNGDecoder::readHeader()
{
    if (!m_info || setjmp(png_jmpbuf(m_png)) != 0)
        return false;
    png_set_read_fn(m_png, &m_file, [](png_structp png, png_bytep bytes, size_t count) {
        if (!static_cast<BufferedFile *>(png_get_io_ptr(png))->read(bytes, static_cast<qsizetype>(count)))
            png_error(png, "truncated");
    });
    png_read_info(m_png, m_info);
    if (isTooLarge(png_get_image_width(m_png, m_info), png_get_image_height(m_png, m_info)))
        return false;
    png_set_expand(m_png);
    png_set_scale_16(m_png);
    png_set_gray_to_rgb(m_png);
    setGamma();
    png_set_interlace_handling(m_png);
    png_read_update_info(m_png, m_info);
    return true;
}

/// A picture that tells neither profile nor sRGB may still tell the exponent it was saved with.
void PNGDecoder::setGamma()
{
    double gamma = 0;
    if (png_get_valid(m_png, m_info, PNG_INFO_iCCP | PNG_INFO_sRGB) == 0 && png_get_gAMA(m_png, m_info, &gamma) != 0)
        png_set_gamma(m_png, PNG_DEFAULT_sRGB, gamma);
}

PictureHeader PNGDecoder::header() const
{
    PictureHeader header { { static_cast<int>(png_get_image_width(m_png, m_info)),
        static_cast<int>(png_get_image_height(m_png, m_info)) } };
    if ((png_get_color_type(m_png, m_info) & PNG_COLOR_MASK_ALPHA) != 0)
        header.layout = PixelLayout::RGBA;
    png_charp name = nullptr;
    png_bytep profile = nullptr;
    png_uint_32 size = 0;
    int compression = 0;
    if (png_get_iCCP(m_png, m_info, &name, &compression, &profile, &size) != 0)
        header.colourProfile = QByteArray(reinterpret_cast<const char *>(profile), size);
    if (const float aspect = png_get_pixel_aspect_ratio(m_png, m_info); aspect > 0)
        header.pixelAspect = aspect;
    return header;
}

void PNGDecoder::decode(PictureRows &rows)
{
    const size_t rowSize = png_get_rowbytes(m_png, m_info);
    const auto height = png_get_image_height(m_png, m_info);
    const bool whole = isInterlaced();
    if (whole && rowSize > interlacedLimit / height)
        return;
    m_samples.reset(new (std::nothrow) uchar[whole ? rowSize * height : rowSize]());
    if (!m_samples)
        return;
    // Read again after a jump: it must not live in a register.
    volatile bool isDamaged = false;
    if (setjmp(png_jmpbuf(m_png)) != 0) {
        if (!whole)
            return; // the rows so far stand
        isDamaged = true;
    }
    const int passes = whole ? 7 : 1;
    for (int pass = 0; pass < passes && !isDamaged; ++pass) {
        for (png_uint_32 y = 0; y < height; ++y) {
            if (whole) {
                png_read_row(m_png, nullptr, m_samples.get() + y * rowSize);
            } else {
                png_read_row(m_png, m_samples.get(), nullptr);
                rows.addRow(m_samples.get());
            }
        }
    }
    if (whole) {
        for (png_uint_32 y = 0; y < height; ++y)
            rows.addRow(m_samples.get() + y * rowSize);
    }
}

bool decodePNG(const FileDescriptor &file, PictureRows &rows)
{
    PNGDecoder decoder(file);
    if (!decoder.readHeader() || !rows.begin(decoder.header()))
        return false;
    decoder.decode(rows);
    return true;
}

} // namespace Varlo
