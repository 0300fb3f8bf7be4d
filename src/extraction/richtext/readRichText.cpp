// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/readRichText.h"

#include "extraction/richtext/RichTextInterpreter.h"
#include "extraction/richtext/RichTextScanner.h"
#include "platform/Result.h"

namespace Varlo {

Extraction readRichText(const FileDescriptor &file)
{
    RichTextScanner scanner(file);
    if (!scanner.startsWith("{\\rtf"))
        return NoTextFound {};
    RichTextInterpreter interpreter;
    while (!interpreter.hasEnded()) {
        const RichTextToken token = scanner.next();
        if (std::holds_alternative<EndOfFile>(token))
            break;
        interpreter.take(token);
    }
    if (scanner.hasFailed())
        return NoTextFound {};
    return interpreter.finish();
}

} // namespace Varlo
