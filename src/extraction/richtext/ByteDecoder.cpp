// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/ByteDecoder.h"

#include "extraction/richtext/codePages.h"
#include <algorithm>
#include <array>
#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

namespace Varlo {

static bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

static void appendPictograms(QByteArrayView bytes, QString &text)
{
    for (const char byte : bytes)
        text += static_cast<signed char>(byte) >= 0 ? QChar::fromLatin1(byte) : QChar(pictogramCharacter);
}

/// ICU's own way out writes U+001A for some code pages.
static void writeReplacement(const void *, UConverterToUnicodeArgs *arguments, const char *, int32_t,
    UConverterCallbackReason reason, UErrorCode *error)
{
    if (reason > UCNV_IRREGULAR) // the converter is reset or closed
        return;
    *error = U_ZERO_ERROR;
    constexpr UChar replacement = 0xFFFD;
    ucnv_cbToUWriteUChars(arguments, &replacement, 1, 0, error);
}

void ByteDecoder::CloseConverter::operator()(UConverter *converter) const { ucnv_close(converter); }

void ByteDecoder::append(QByteArrayView bytes, int codePage, QString &text)
{
    if (codePage != m_codePage)
        endRun(text);
    if (codePage == pictogramCodePage)
        return appendPictograms(bytes, text);
    // Within a run even ASCII may be the second half of a character.
    if (!m_current && isAscii(bytes)) {
        text += QLatin1StringView(bytes.data(), bytes.size());
        return;
    }
    m_codePage = codePage;
    m_current = converterFor(codePage);
    convert(bytes, false, text);
}

void ByteDecoder::endRun(QString &text)
{
    if (!m_current)
        return;
    convert({}, true, text);
    m_current = nullptr;
}

UConverter *ByteDecoder::converterFor(int codePage)
{
    const char *const name = converterName(codePage);
    if (!name)
        return codePage == westernCodePage ? nullptr : converterFor(westernCodePage);
    Converter &converter = m_converters[codePage];
    if (!converter) {
        UErrorCode error = U_ZERO_ERROR;
        converter.reset(ucnv_open(name, &error));
        ucnv_setToUCallBack(converter.get(), writeReplacement, nullptr, nullptr, nullptr, &error);
    }
    return converter.get();
}

void ByteDecoder::convert(QByteArrayView bytes, bool isEndOfRun, QString &text)
{
    if (!m_current) // ICU is installed without its data
        return;
    std::array<char16_t, 1024> units {};
    const char *source = bytes.data();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    while (error == U_BUFFER_OVERFLOW_ERROR) {
        error = U_ZERO_ERROR;
        char16_t *target = units.data();
        ucnv_toUnicode(m_current, &target, units.data() + units.size(), &source, bytes.data() + bytes.size(), nullptr,
            isEndOfRun ? 1 : 0, &error);
        text.append(reinterpret_cast<const QChar *>(units.data()), target - units.data());
    }
}

} // namespace Varlo
