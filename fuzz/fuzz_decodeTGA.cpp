// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeTGA.h"

#include <sys/mman.h>

using namespace Varlo;

namespace {
struct CountedRows final : PictureRows {
    bool begin(const PictureHeader &newHeader) override
    {
        header = newHeader;
        // Large pictures are slow to no purpose.
        return header.size.width() <= 4096 && header.size.height() <= 4096;
    }
    void addRow(const uchar *samples) override
    {
        const size_t size = size_t(header.size.width()) * size_t(samplesPerPixel(header.layout));
        for (size_t i = 0; i < size; ++i)
            sum += samples[i];
        if (++rows > header.size.height())
            qFatal("more rows than the header said");
    }
    PictureHeader header;
    int rows = 0;
    unsigned sum = 0;
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const FileDescriptor file(::memfd_create("picture", MFD_CLOEXEC));
    if (::write(file.get(), data, size) != static_cast<ssize_t>(size))
        qFatal("no memory file");
    CountedRows rows;
    if (!decodeTGA(file, rows) && rows.rows > 0)
        qFatal("rows of a picture that was refused");
    return 0;
}
