// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/readRichText.h"

#include <sys/mman.h>

using namespace Varlo;

// However a file is damaged, the outcome is a text of the promised length or none.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const FileDescriptor file(::memfd_create("document", MFD_CLOEXEC));
    if (::write(file.get(), data, size) != static_cast<ssize_t>(size))
        qFatal("the input could not be laid down");
    const Extraction extraction = readRichText(file);
    if (std::holds_alternative<NoTextFound>(extraction))
        return 0;
    const QString text = std::get<TextContent>(std::get<FileContent>(extraction)).text;
    const QString ended = text + u'x'; // the cut may leave one space at the end
    if (text.size() < 20 || ended.simplified() != ended || !text.isValidUtf16())
        qFatal("the text is not normalized");
    return 0;
}
