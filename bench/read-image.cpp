// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/readImage.h"

#include "platform/linux/openRegularFile.h"
#include "platform/pathExtension.h"
#include <cstdio>
#ifdef VARLO_WITH_VIPS
#include "extraction/vips/VipsPictureDecoder.h"
#endif

using namespace Varlo;

// Reads the one picture it is given as the model gets it, and writes the JPEG to standard output: what reading itself
// costs. The pictures that libvips reads are for a program of their own, since loading it is much of the cost.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: read-image FILE\n", stderr);
        return 2;
    }
#ifdef VARLO_WITH_VIPS
    VipsPictureDecoder vips;
    PictureDecoder *const furtherDecoder = &vips;
#else
    PictureDecoder *const furtherDecoder = nullptr;
#endif
    const auto file = openRegularFile(argv[1]);
    if (!file)
        return 1;
    const auto answer = readImage(*file, lowerCaseExtension(std::string_view(argv[1])), furtherDecoder);
    const auto *const extraction = std::get_if<Extraction>(&answer);
    const auto *const content = extraction ? std::get_if<FileContent>(extraction) : nullptr;
    if (!content)
        return 1;
    const auto &image = std::get<ImageContent>(*content);
    std::fputs(qPrintable(image.metadata.value_or(QString())), stderr);
    return std::fwrite(image.data.constData(), 1, size_t(image.data.size()), stdout) == size_t(image.data.size()) ? 0
                                                                                                                  : 1;
}
