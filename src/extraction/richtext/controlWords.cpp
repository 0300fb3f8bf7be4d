// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/controlWords.h"

#include <algorithm>
#include <array>

namespace Varlo {

namespace {
struct KnownWord {
    std::string_view name;
    ControlWordMeaning meaning;
};
} // namespace

static constexpr MeansDestination skipped { Destination::Skipped };
static constexpr MeansDestination container { Destination::Container };
static constexpr MeansDestination apart { Destination::Text, true };

// From RTF 1.9.1, in ascending order, without what writers always mark as to be skipped by who does not know it (\*) or
// put into a group that is skipped already. Running heads are left out, as they say the same on every page. Of a thing
// that is written twice, for old readers and for new ones, only the new form is read: \shprslt and \nonesttables repeat
// text, and \upr holds it once without and once, below \ud, with Unicode.
static constexpr std::array knownWords {
    KnownWord { "aftncn", skipped },
    KnownWord { "aftnsep", skipped },
    KnownWord { "aftnsepc", skipped },
    KnownWord { "ansicpg", MeansDocumentCodePage {} },
    KnownWord { "bin", Setting::BinaryData },
    KnownWord { "bullet", MeansCharacter { u'\u2022' } },
    KnownWord { "cell", MeansCharacter { u'\t' } },
    KnownWord { "colortbl", skipped },
    KnownWord { "column", MeansCharacter { u'\n' } },
    KnownWord { "cpg", Setting::FontCodePage },
    KnownWord { "deff", Setting::DefaultFont },
    KnownWord { "deleted", Setting::Deleted },
    KnownWord { "do", container },
    KnownWord { "dptxbxtext", apart },
    KnownWord { "emdash", MeansCharacter { u'\u2014' } },
    KnownWord { "emspace", MeansCharacter { u'\u2003' } },
    KnownWord { "endash", MeansCharacter { u'\u2013' } },
    KnownWord { "enspace", MeansCharacter { u'\u2002' } },
    KnownWord { "f", Setting::Font },
    KnownWord { "fcharset", Setting::FontCharset },
    KnownWord { "fldinst", skipped },
    KnownWord { "fonttbl", MeansDestination { Destination::FontTable } },
    KnownWord { "footer", skipped },
    KnownWord { "footerf", skipped },
    KnownWord { "footerl", skipped },
    KnownWord { "footerr", skipped },
    KnownWord { "footnote", apart },
    KnownWord { "ftncn", skipped },
    KnownWord { "ftnsep", skipped },
    KnownWord { "ftnsepc", skipped },
    KnownWord { "header", skipped },
    KnownWord { "headerf", skipped },
    KnownWord { "headerl", skipped },
    KnownWord { "headerr", skipped },
    KnownWord { "info", skipped },
    KnownWord { "ldblquote", MeansCharacter { u'\u201C' } },
    KnownWord { "line", MeansCharacter { u'\n' } },
    KnownWord { "listoverridetable", skipped },
    KnownWord { "listtable", skipped },
    KnownWord { "lquote", MeansCharacter { u'\u2018' } },
    KnownWord { "ltrmark", MeansCharacter { u'\u200E' } },
    KnownWord { "mac", MeansDocumentCodePage { 10000 } },
    KnownWord { "nestcell", MeansCharacter { u'\t' } },
    KnownWord { "nestrow", MeansCharacter { u'\n' } },
    KnownWord { "nonesttables", skipped },
    KnownWord { "objclass", skipped },
    KnownWord { "objdata", skipped },
    KnownWord { "page", MeansCharacter { u'\n' } },
    KnownWord { "par", MeansCharacter { u'\n' } },
    KnownWord { "pc", MeansDocumentCodePage { 437 } },
    KnownWord { "pca", MeansDocumentCodePage { 850 } },
    KnownWord { "pict", skipped },
    KnownWord { "plain", Setting::PlainCharacters },
    KnownWord { "qmspace", MeansCharacter { u'\u2005' } },
    KnownWord { "rdblquote", MeansCharacter { u'\u201D' } },
    KnownWord { "row", MeansCharacter { u'\n' } },
    KnownWord { "rquote", MeansCharacter { u'\u2019' } },
    KnownWord { "rtlmark", MeansCharacter { u'\u200F' } },
    KnownWord { "sect", MeansCharacter { u'\n' } },
    KnownWord { "shpinst", container },
    KnownWord { "shprslt", skipped },
    KnownWord { "shptxt", apart },
    KnownWord { "softcol", MeansCharacter { u'\n' } },
    KnownWord { "softline", MeansCharacter { u'\n' } },
    KnownWord { "softpage", MeansCharacter { u'\n' } },
    KnownWord { "stylesheet", skipped },
    KnownWord { "tab", MeansCharacter { u'\t' } },
    KnownWord { "tc", skipped },
    KnownWord { "tcn", skipped },
    KnownWord { "u", Setting::UnicodeCharacter },
    KnownWord { "uc", Setting::UnicodeFallbackLength },
    KnownWord { "ud", MeansDestination { Destination::Text } },
    KnownWord { "upr", container },
    KnownWord { "v", Setting::Hidden },
    KnownWord { "xe", skipped },
    KnownWord { "zwbo", MeansCharacter { u'\u200B' } },
    KnownWord { "zwj", MeansCharacter { u'\u200D' } },
    KnownWord { "zwnbo", MeansCharacter { u'\u2060' } },
    KnownWord { "zwnj", MeansCharacter { u'\u200C' } },
};
static_assert(std::ranges::is_sorted(knownWords, {}, &KnownWord::name));

std::optional<ControlWordMeaning> meaningOf(std::string_view controlWord)
{
    const auto *const found = std::ranges::lower_bound(knownWords, controlWord, {}, &KnownWord::name);
    if (found == knownWords.end() || found->name != controlWord)
        return std::nullopt;
    return found->meaning;
}

} // namespace Varlo
