// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/codePages.h"

#include <algorithm>
#include <array>

namespace Varlo {

namespace {
struct Charset {
    int number;
    int codePage;
};
struct CodePage {
    int number;
    const char *converter;
};
} // namespace

// As RTF 1.9.1 lists them under \fcharset, but for 1 (the document's own) and those for which ICU has no converter:
// Johab (130), Macintosh Hebrew (83) and Arabic (84).
static constexpr std::array charsets {
    Charset { 0, westernCodePage },
    Charset { 2, pictogramCodePage },
    Charset { 77, 10000 },
    Charset { 78, 10001 },
    Charset { 79, 10003 },
    Charset { 80, 10008 },
    Charset { 81, 10002 },
    Charset { 85, 10006 },
    Charset { 86, 10081 },
    Charset { 87, 10021 },
    Charset { 88, 10029 },
    Charset { 89, 10007 },
    Charset { 128, 932 },
    Charset { 129, 949 },
    Charset { 134, 936 },
    Charset { 136, 950 },
    Charset { 161, 1253 },
    Charset { 162, 1254 },
    Charset { 163, 1258 },
    Charset { 177, 1255 },
    Charset { 178, 1256 },
    Charset { 186, 1257 },
    Charset { 204, 1251 },
    Charset { 222, 874 },
    Charset { 238, 1250 },
    Charset { 254, 437 },
    Charset { 255, 850 },
};

// The Macintosh's East Asian sets differ from those of Windows in rare characters only.
static constexpr std::array codePages {
    CodePage { 437, "ibm-437" },
    CodePage { 708, "iso-8859-6" },
    CodePage { 720, "ibm-720" },
    CodePage { 737, "ibm-737" },
    CodePage { 775, "ibm-775" },
    CodePage { 850, "ibm-850" },
    CodePage { 852, "ibm-852" },
    CodePage { 855, "ibm-855" },
    CodePage { 857, "ibm-857" },
    CodePage { 860, "ibm-860" },
    CodePage { 862, "ibm-862" },
    CodePage { 863, "ibm-863" },
    CodePage { 864, "ibm-864" },
    CodePage { 865, "ibm-865" },
    CodePage { 866, "ibm-866" },
    CodePage { 874, "windows-874" },
    CodePage { 932, "windows-31j" },
    CodePage { 936, "windows-936" },
    CodePage { 949, "windows-949" },
    CodePage { 950, "windows-950" },
    CodePage { 1250, "windows-1250" },
    CodePage { 1251, "windows-1251" },
    CodePage { 1252, "windows-1252" },
    CodePage { 1253, "windows-1253" },
    CodePage { 1254, "windows-1254" },
    CodePage { 1255, "windows-1255" },
    CodePage { 1256, "windows-1256" },
    CodePage { 1257, "windows-1257" },
    CodePage { 1258, "windows-1258" },
    CodePage { 10000, "macintosh" },
    CodePage { 10001, "windows-31j" },
    CodePage { 10002, "windows-950" },
    CodePage { 10003, "windows-949" },
    CodePage { 10006, "x-mac-greek" },
    CodePage { 10007, "x-mac-cyrillic" },
    CodePage { 10008, "windows-936" },
    CodePage { 10021, "windows-874" },
    CodePage { 10029, "x-mac-centraleurroman" },
    CodePage { 10081, "x-mac-turkish" },
    CodePage { 54936, "gb18030" },
    CodePage { 65001, "UTF-8" },
};

std::optional<int> codePageOfCharset(int charset)
{
    const auto *const found = std::find_if(
        charsets.begin(), charsets.end(), [charset](const Charset &known) { return known.number == charset; });
    return found == charsets.end() ? std::nullopt : std::optional(found->codePage);
}

const char *converterName(int codePage)
{
    const auto *const found = std::find_if(
        codePages.begin(), codePages.end(), [codePage](const CodePage &known) { return known.number == codePage; });
    return found == codePages.end() ? nullptr : found->converter;
}

} // namespace Varlo
