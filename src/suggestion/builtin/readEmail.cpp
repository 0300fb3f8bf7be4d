// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/readEmail.h"

#include <algorithm>
#include <QRegularExpression>
#include <QStringDecoder>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

/// A header field as it stands in the flattened text; its value ends where the next field begins.
struct Field {
    QString name; ///< lower case
    qsizetype start = 0, valueStart = 0;
};

const QRegularExpression &fieldName()
{
    static const QRegularExpression names(
        uR"((?:^| )(From|To|Cc|Bcc|Subject|Date|Sender|Reply-To|Return-Path|Received|Message-ID|MIME-Version|Content-[A-Za-z-]+|In-Reply-To|References|Delivered-To|DKIM-Signature|Authentication-Results|ARC-[A-Za-z-]+|List-[A-Za-z-]+|User-Agent|Importance|Priority|Thread-[A-Za-z]+|Organization|Received-SPF|Precedence|Auto-Submitted|Feedback-ID|Errors-To|X-[A-Za-z0-9-]+): ?)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return names;
}

QString decoded(const QByteArray &bytes, const QByteArray &charset)
{
    QStringDecoder decoder(charset.constData());
    if (!decoder.isValid())
        decoder = QStringDecoder(QStringDecoder::Latin1);
    return decoder.decode(bytes);
}

QByteArray fromQuotedPrintable(const QByteArray &text, bool isHeader)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype index = 0; index < text.size(); ++index) {
        const char character = text[index];
        if (character == '=' && index + 2 < text.size()) {
            bool isHex = false;
            const int value = text.mid(index + 1, 2).toInt(&isHex, 16);
            if (isHex) {
                bytes.append(static_cast<char>(value));
                index += 2;
                continue;
            }
            // A soft line break, whose line feed the flattening made a space.
            if (text[index + 1] == ' ') {
                ++index;
                continue;
            }
        }
        bytes.append(isHeader && character == '_' ? ' ' : character);
    }
    return bytes;
}

/// Encoded words in a header field (RFC 2047); between two of them white space does not count.
QString decodedHeader(const QString &value)
{
    static const QRegularExpression encodedWord(
        uR"(=\?([A-Za-z0-9_-]+)(?:\*[^?]*)?\?([BbQq])\?([^?]*)\?=( (?==\?))?)"_s);
    QString result;
    qsizetype position = 0;
    QRegularExpressionMatchIterator matches = encodedWord.globalMatch(value);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(value).sliced(position, match.capturedStart() - position);
        const QByteArray content = match.captured(3).toLatin1();
        const bool isBase64 = match.captured(2).toUpper() == "B"_L1;
        result += decoded(isBase64 ? QByteArray::fromBase64(content) : fromQuotedPrintable(content, true),
            match.captured(1).toLatin1());
        position = match.capturedEnd();
    }
    result += QStringView(value).sliced(position);
    return result.simplified();
}

QString displayName(const QString &address)
{
    static const QRegularExpression angle(uR"( ?<[^>]*>.*$)"_s);
    static const QRegularExpression comment(uR"(^\S+@\S+ \(([^)]*)\))"_s);
    const QRegularExpressionMatch commented = comment.match(address);
    if (commented.hasMatch())
        return commented.captured(1);
    QString name = QString(address).remove(angle).remove(u'"').trimmed();
    if (name.isEmpty())
        name = QString(address).remove(u'<').section(u'>', 0, 0);
    return name.trimmed();
}

QString withoutReplyMarks(const QString &subject)
{
    static const QRegularExpression marks(
        uR"(^(?:(?:re|fw|fwd|antw|aw|rv|tr|doorst)(?:\[\d+\])? ?: ?)+)"_s, QRegularExpression::CaseInsensitiveOption);
    return QString(subject).remove(marks).trimmed();
}

} // namespace

bool looksLikeEmail(const QString &text)
{
    constexpr qsizetype enoughOfHeader = 3000;
    const QRegularExpressionMatch first = fieldName().match(text);
    if (!first.hasMatch() || first.capturedStart() != 0)
        return false;
    static const QRegularExpression essential(
        uR"((?:^| )(Message-ID|MIME-Version|Received|Return-Path|Subject|Content-Type|Date): )"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression address(
        uR"((?:^| )From: [^:]{0,120}@)"_s, QRegularExpression::CaseInsensitiveOption);
    const QString header = text.left(enoughOfHeader);
    return address.match(header).hasMatch() && essential.match(header).hasMatch();
}

Source readEmail(const QString &text)
{
    Source source;
    source.isEmail = true;
    std::vector<Field> fields;
    QRegularExpressionMatchIterator matches = fieldName().globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        fields.push_back({ match.captured(1).toLower(), match.capturedStart(), match.capturedEnd() });
    }
    qsizetype bodyStart = text.size();
    QString charset = u"utf-8"_s;
    for (size_t index = 0; index < fields.size(); ++index) {
        const qsizetype end = index + 1 < fields.size() ? fields[index + 1].start : text.size();
        const QString value = text.sliced(fields[index].valueStart, end - fields[index].valueStart).trimmed();
        const bool isLast = index + 1 == fields.size();
        if (fields[index].name == "subject"_L1 && !source.subject && !isLast)
            source.subject = withoutReplyMarks(decodedHeader(value));
        else if (fields[index].name == "from"_L1 && !source.sender)
            source.sender = displayName(decodedHeader(value));
        else if (fields[index].name == "date"_L1 && !source.date)
            source.date = value.left(40);
        else if (fields[index].name == "subject"_L1 && !source.subject)
            source.subject = withoutReplyMarks(decodedHeader(value.left(200)));
        if (isLast)
            bodyStart = fields[index].valueStart;
    }
    static const QRegularExpression charsetName(uR"re(charset="?([A-Za-z0-9_-]+))re"_s);
    const QRegularExpressionMatch named = charsetName.match(text);
    if (named.hasMatch())
        charset = named.captured(1);
    const QString body = text.sliced(bodyStart);
    const bool isQuoted = text.contains("quoted-printable"_L1, Qt::CaseInsensitive);
    source.text = isQuoted ? decoded(fromQuotedPrintable(body.toUtf8(), false), charset.toLatin1()) : body;
    static const QRegularExpression tags(uR"(<[^<>]{0,300}>)"_s);
    source.text.replace(tags, u" | "_s);
    source.text = source.text.simplified();
    return source;
}

} // namespace Varlo
