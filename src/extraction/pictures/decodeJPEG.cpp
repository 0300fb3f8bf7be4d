// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeJPEG.h"

#include "extraction/pictures/BufferedFile.h"
#include <algorithm>
#include <csetjmp>
#include <cstdio> // jpeglib.h needs it and does not include it
#include <cstdlib>
#include <jerror.h>
#include <jpeglib.h>
#include <vector>

namespace Varlo {

// A picture saved for real has ten scans or so; each costs a walk over all of it.
static constexpr int scanLimit = 64;

namespace {
/// libjpeg reports an error by calling back and must not be returned to: the step in hand is left by longjmp(). So no
/// step may own anything on its stack; all that is owned is a member.
class JPEGDecoder {
public:
    JPEGDecoder(const FileDescriptor &file, int longestSide);
    ~JPEGDecoder() { jpeg_destroy_decompress(&m_info); }
    JPEGDecoder(const JPEGDecoder &) = delete;
    JPEGDecoder &operator=(const JPEGDecoder &) = delete;

    /// Comes first; nothing else may follow where it is false.
    [[nodiscard]] bool readHeader();
    [[nodiscard]] PictureHeader header();
    void decode(PictureRows &rows);

private:
    static JPEGDecoder &decoder(j_common_ptr info) { return *static_cast<JPEGDecoder *>(info->client_data); }
    void readFromFile();
    void readScans();
    void fillBuffer();
    void skip(long count);

    jpeg_decompress_struct m_info {};
    jpeg_error_mgr m_errors {};
    jpeg_source_mgr m_source {};
    std::jmp_buf m_failed {};
    BufferedFile m_file;
    int m_longestSide;
    std::vector<uchar> m_row;
    JOCTET *m_profile = nullptr;
    unsigned m_profileSize = 0;
    bool m_invertsInks = false;
};
} // namespace

JPEGDecoder::JPEGDecoder(const FileDescriptor &file, int longestSide)
    : m_file(file)
    , m_longestSide(longestSide)
{
    m_info.err = jpeg_std_error(&m_errors);
    m_info.client_data = this;
    m_errors.error_exit = [](j_common_ptr info) { std::longjmp(decoder(info).m_failed, 1); };
    m_errors.emit_message = [](j_common_ptr, int) {}; // warnings; it would write them to standard error
}

void JPEGDecoder::readFromFile()
{
    const auto nothing = [](j_decompress_ptr) {};
    m_info.src = &m_source;
    m_source.init_source = nothing;
    m_source.term_source = nothing;
    m_source.resync_to_restart = jpeg_resync_to_restart;
    m_source.fill_input_buffer = [](j_decompress_ptr info) -> boolean {
        decoder(reinterpret_cast<j_common_ptr>(info)).fillBuffer();
        return TRUE;
    };
    m_source.skip_input_data
        = [](j_decompress_ptr info, long count) { decoder(reinterpret_cast<j_common_ptr>(info)).skip(count); };
}

void JPEGDecoder::fillBuffer()
{
    // A truncated file ends as if it were complete, so that what there is gets decoded.
    static constexpr JOCTET end[] { 0xFF, JPEG_EOI };
    const auto bytes = m_file.next();
    m_source.next_input_byte = bytes.empty() ? end : bytes.data();
    m_source.bytes_in_buffer = bytes.empty() ? sizeof end : bytes.size();
}

void JPEGDecoder::skip(long count)
{
    if (count <= 0)
        return;
    const auto inBuffer = std::min(static_cast<size_t>(count), m_source.bytes_in_buffer);
    m_source.next_input_byte += inBuffer;
    m_source.bytes_in_buffer -= inBuffer;
    m_file.seek(m_file.position() + count - static_cast<qint64>(inBuffer));
}

bool JPEGDecoder::readHeader()
{
    if (setjmp(m_failed) != 0)
        return false;
    jpeg_create_decompress(&m_info);
    readFromFile();
    jpeg_save_markers(&m_info, JPEG_APP0 + 2, 0xFFFF); // where ICC profiles are
    if (jpeg_read_header(&m_info, TRUE) != JPEG_HEADER_OK || isTooLarge(m_info.image_width, m_info.image_height))
        return false;
    const bool hasInks = m_info.jpeg_color_space == JCS_CMYK || m_info.jpeg_color_space == JCS_YCCK;
    m_info.out_color_space = hasInks ? JCS_CMYK : JCS_RGB;
    m_invertsInks = hasInks && !m_info.saw_Adobe_marker;
    const auto longerSide = std::max(m_info.image_width, m_info.image_height);
    m_info.scale_denom = 8;
    m_info.scale_num = 1;
    while (m_info.scale_num < 8 && longerSide * m_info.scale_num / 8 < static_cast<unsigned>(m_longestSide))
        m_info.scale_num *= 2; // in between, the transforms are not vectorised
    jpeg_calc_output_dimensions(&m_info);
    if (!jpeg_read_icc_profile(&m_info, &m_profile, &m_profileSize))
        m_profileSize = 0;
    return true;
}

PictureHeader JPEGDecoder::header()
{
    PictureHeader header { { static_cast<int>(m_info.output_width), static_cast<int>(m_info.output_height) } };
    if (m_info.out_color_space == JCS_CMYK)
        header.layout = PixelLayout::InvertedCMYK;
    if (m_profileSize > 0)
        header.colourProfile = QByteArray(reinterpret_cast<const char *>(m_profile), m_profileSize);
    std::free(std::exchange(m_profile, nullptr));
    if (m_info.saw_JFIF_marker && m_info.X_density > 0 && m_info.Y_density > 0)
        header.pixelAspect = double(m_info.Y_density) / m_info.X_density; // dots a length, so the other way round
    return header;
}

/// Takes in all scans of a file that refines its picture step by step, before any row comes out.
void JPEGDecoder::readScans()
{
    int status = JPEG_SUSPENDED;
    do
        status = jpeg_consume_input(&m_info);
    while (status != JPEG_REACHED_EOI && (status != JPEG_SCAN_COMPLETED || m_info.input_scan_number < scanLimit));
    jpeg_start_output(&m_info, m_info.input_scan_number);
}

void JPEGDecoder::decode(PictureRows &rows)
{
    m_row.resize(size_t(m_info.output_width) * m_info.out_color_components);
    if (setjmp(m_failed) != 0)
        return; // the rows so far stand
    m_info.buffered_image = jpeg_has_multiple_scans(&m_info);
    jpeg_start_decompress(&m_info);
    if (m_info.buffered_image)
        readScans();
    while (m_info.output_scanline < m_info.output_height) {
        JSAMPROW row = m_row.data();
        jpeg_read_scanlines(&m_info, &row, 1);
        if (m_invertsInks)
            std::transform(m_row.begin(), m_row.end(), m_row.begin(), [](uchar ink) { return uchar(255 - ink); });
        rows.addRow(m_row.data());
    }
}

bool decodeJPEG(const FileDescriptor &file, int longestSide, PictureRows &rows)
{
    JPEGDecoder decoder(file, longestSide);
    if (!decoder.readHeader() || !rows.begin(decoder.header()))
        return false;
    decoder.decode(rows);
    return true;
}

} // namespace Varlo
