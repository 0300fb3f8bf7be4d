// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/encodeJPEG.h"

#include <csetjmp>
#include <cstdio> // jpeglib.h needs it and does not include it
#include <cstdlib>
#include <jpeglib.h>

namespace Varlo {

static constexpr int quality = 80;

namespace {
// As in decodeJPEG.cpp, an error leaves the step in hand by longjmp(), so what is owned is a member.
class JPEGEncoder {
public:
    JPEGEncoder()
    {
        m_info.err = jpeg_std_error(&m_errors);
        m_info.client_data = this;
        m_errors.error_exit
            = [](j_common_ptr info) { std::longjmp(static_cast<JPEGEncoder *>(info->client_data)->m_failed, 1); };
        m_errors.emit_message = [](j_common_ptr, int) {};
    }
    ~JPEGEncoder()
    {
        jpeg_destroy_compress(&m_info);
        std::free(m_bytes);
    }
    JPEGEncoder(const JPEGEncoder &) = delete;
    JPEGEncoder &operator=(const JPEGEncoder &) = delete;

    [[nodiscard]] bool encode(const QImage &image);
    [[nodiscard]] QByteArray bytes() const
    {
        return { reinterpret_cast<const char *>(m_bytes), static_cast<qsizetype>(m_size) };
    }

private:
    jpeg_compress_struct m_info {};
    jpeg_error_mgr m_errors {};
    std::jmp_buf m_failed {};
    uchar *m_bytes = nullptr;
    unsigned long m_size = 0;
};
} // namespace

bool JPEGEncoder::encode(const QImage &image)
{
    if (setjmp(m_failed) != 0)
        return false;
    jpeg_create_compress(&m_info);
    jpeg_mem_dest(&m_info, &m_bytes, &m_size);
    m_info.image_width = static_cast<JDIMENSION>(image.width());
    m_info.image_height = static_cast<JDIMENSION>(image.height());
    m_info.input_components = 3;
    m_info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&m_info);
    jpeg_set_quality(&m_info, quality, TRUE);
    jpeg_start_compress(&m_info, TRUE);
    while (m_info.next_scanline < m_info.image_height) {
        JSAMPROW row = const_cast<uchar *>(image.constScanLine(static_cast<int>(m_info.next_scanline)));
        jpeg_write_scanlines(&m_info, &row, 1);
    }
    jpeg_finish_compress(&m_info);
    return true;
}

QByteArray encodeJPEG(const QImage &image)
{
    JPEGEncoder encoder;
    return encoder.encode(image) ? encoder.bytes() : QByteArray();
}

} // namespace Varlo
