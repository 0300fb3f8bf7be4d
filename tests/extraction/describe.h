// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "platform/Result.h"

namespace Varlo {

/// An outcome in words that a failed comparison can show.
inline QString describe(const Extraction &extraction)
{
    using namespace Qt::StringLiterals;
    return std::visit(
        Overloaded { [](const FileContent &content) {
                        const auto *const text = std::get_if<TextContent>(&content);
                        return text ? u"text: "_s + text->text : u"image"_s;
                    },
            [](const Unreadable &unreadable) { return u"unreadable: "_s + unreadable.message; },
            [](NoTextFound) { return u"no text found"_s; }, [](NotSupportedYet) { return u"not supported yet"_s; } },
        extraction);
}

} // namespace Varlo
