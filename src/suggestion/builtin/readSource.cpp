// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/readSource.h"

#include "suggestion/builtin/readEmail.h"
#include "suggestion/builtin/Vocabulary.h"
#include <algorithm>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

QRegularExpression expression(const QString &pattern)
{
    return QRegularExpression(
        pattern, QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

QString withEntities(const QString &text)
{
    // The named references that European texts use; HTML has two thousand more.
    static const QHash<QString, QString> named { { u"amp"_s, u"&"_s }, { u"lt"_s, u"<"_s }, { u"gt"_s, u">"_s },
        { u"quot"_s, u"\""_s }, { u"apos"_s, u"'"_s }, { u"nbsp"_s, u" "_s }, { u"euro"_s, u"€"_s },
        { u"pound"_s, u"£"_s }, { u"middot"_s, u" · "_s }, { u"ndash"_s, u"–"_s }, { u"mdash"_s, u"—"_s },
        { u"lsquo"_s, u"‘"_s }, { u"rsquo"_s, u"’"_s }, { u"ldquo"_s, u"“"_s }, { u"rdquo"_s, u"”"_s },
        { u"hellip"_s, u"…"_s }, { u"copy"_s, u"©"_s }, { u"reg"_s, u"®"_s }, { u"bull"_s, u" • "_s },
        { u"aacute"_s, u"á"_s }, { u"eacute"_s, u"é"_s }, { u"iacute"_s, u"í"_s }, { u"oacute"_s, u"ó"_s },
        { u"uacute"_s, u"ú"_s }, { u"ntilde"_s, u"ñ"_s }, { u"agrave"_s, u"à"_s }, { u"egrave"_s, u"è"_s },
        { u"euml"_s, u"ë"_s }, { u"iuml"_s, u"ï"_s }, { u"ouml"_s, u"ö"_s }, { u"uuml"_s, u"ü"_s },
        { u"auml"_s, u"ä"_s }, { u"ecirc"_s, u"ê"_s }, { u"ccedil"_s, u"ç"_s }, { u"Aacute"_s, u"Á"_s },
        { u"Eacute"_s, u"É"_s }, { u"Iacute"_s, u"Í"_s }, { u"Oacute"_s, u"Ó"_s }, { u"Uacute"_s, u"Ú"_s },
        { u"Ntilde"_s, u"Ñ"_s }, { u"iexcl"_s, u"¡"_s }, { u"iquest"_s, u"¿"_s }, { u"ordm"_s, u"º"_s },
        { u"ordf"_s, u"ª"_s }, { u"deg"_s, u"°"_s }, { u"times"_s, u"×"_s } };
    static const QRegularExpression reference(uR"(&(?:#(\d{1,7})|#[xX]([0-9A-Fa-f]{1,6})|([A-Za-z]{2,8}));)"_s);
    QString result;
    qsizetype position = 0;
    QRegularExpressionMatchIterator matches = reference.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(text).sliced(position, match.capturedStart() - position);
        position = match.capturedEnd();
        if (match.capturedLength(3) > 0) {
            result += named.value(match.captured(3), match.captured());
            continue;
        }
        const bool isHex = match.capturedLength(2) > 0;
        const uint codePoint = isHex ? match.captured(2).toUInt(nullptr, 16) : match.captured(1).toUInt();
        const bool isScalar = codePoint >= 0x20 && codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
        if (isScalar)
            result += QString::fromUcs4(reinterpret_cast<const char32_t *>(&codePoint), 1);
    }
    result += QStringView(text).sliced(position);
    return result;
}

/// "issueDate", "issue_date" and "cbc:IssueDate" as "Issue date".
QString asLabel(const QString &key)
{
    QString label;
    const QString name = key.section(u':', -1);
    for (qsizetype index = 0; index < name.size(); ++index) {
        const QChar character = name[index];
        const bool beginsWord = index > 0 && character.isUpper() && name[index - 1].isLower();
        if (beginsWord)
            label += u' ';
        label += character == u'_' || character == u'-' ? QChar(u' ') : character.toLower();
    }
    if (!label.isEmpty())
        label[0] = label[0].toUpper();
    return label;
}

QString contentOfElement(const QString &text, const QString &element)
{
    const QRegularExpression whole = expression(uR"(<%1(?: [^<>]*)?>(.{1,400}?)</%1 ?>)"_s.arg(element));
    static const QRegularExpression tag(uR"(<[^<>]*>)"_s);
    return withEntities(whole.match(text).captured(1).remove(tag)).simplified();
}

/// The title of a page often ends in the site's name: "Apple pie | Cooking".
QString withoutSiteName(const QString &title)
{
    static const QRegularExpression site(uR"( (?:\||»|·|—) [^|»·—]+$| - [^-]{3,40}$)"_s);
    return QString(title).remove(site).trimmed();
}

Source readHtml(const QString &text)
{
    Source source;
    const QString title = contentOfElement(text, u"title"_s);
    const QString heading = contentOfElement(text, u"h1"_s);
    if (!heading.isEmpty())
        source.title = heading;
    else if (!title.isEmpty())
        source.title = withoutSiteName(title);

    static const QRegularExpression unseen
        = expression(uR"(<!--.*?-->|<(script|style|nav|template|title)\b[^<>]*>.*?</\1 ?>|<(?:script|style)\b.*$)"_s);
    static const QRegularExpression inlineTag
        = expression(uR"(</?(?:a|b|i|em|strong|span|time|abbr|small|u|font|mark|sup|sub|code)(?: [^<>]*)?>)"_s);
    static const QRegularExpression tag(uR"(<[^<>]*>)"_s);
    source.text = QString(text).replace(unseen, u" | "_s).remove(inlineTag).replace(tag, u" | "_s);
    source.text = withEntities(source.text).simplified();
    return source;
}

Source readXml(const QString &text)
{
    Source source;
    const QString title = contentOfElement(text, u"(?:\\w+:)?title"_s);
    if (!title.isEmpty())
        source.title = title;
    static const QRegularExpression unseen
        = expression(uR"(<!--.*?-->|<\?.*?\?>|<!DOCTYPE[^>]*>|<!\[CDATA\[|\]\]>|<style\b.*?</style>)"_s);
    static const QRegularExpression currency = expression(uR"re(<[^<>]*currency\w*="([A-Z]{3})"[^<>]*>)re"_s);
    static const QRegularExpression element(uR"(<(/?)([A-Za-z][\w:.-]*)[^<>]*>)"_s);
    const QString code = currency.match(text).captured(1);
    const QString content = QString(text).remove(unseen);
    qsizetype position = 0;
    QRegularExpressionMatchIterator matches = element.globalMatch(content);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        source.text += QStringView(content).sliced(position, match.capturedStart() - position);
        const bool isEnd = match.capturedLength(1) > 0;
        source.text += isEnd ? u" | "_s : u" | "_s + asLabel(match.captured(2)) + u": "_s;
        position = match.capturedEnd();
    }
    source.text += QStringView(content).sliced(position);
    if (!code.isEmpty())
        source.text += u" | Currency: "_s + code;
    source.text = withEntities(source.text).simplified();
    return source;
}

Source readJson(const QString &text)
{
    Source source;
    static const QRegularExpression key(uR"re("([\w .$:-]{1,60})" ?: ?)re"_s);
    qsizetype position = 0;
    QRegularExpressionMatchIterator matches = key.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        source.text += QStringView(text).sliced(position, match.capturedStart() - position);
        source.text += u" | "_s + asLabel(match.captured(1)) + u": "_s;
        position = match.capturedEnd();
    }
    source.text += QStringView(text).sliced(position);
    static const QRegularExpression punctuation(uR"([{}\[\]"])"_s);
    source.text.replace(u"\\\""_s, u"'"_s).replace(punctuation, u" "_s);
    source.text.replace(u" ,"_s, u" | "_s);
    source.text = source.text.simplified();
    static const QRegularExpression titleKey(
        uR"re("(?:title|headline|subject|titel|titulo|título)" ?: ?"([^"]{1,200})")re"_s);
    const QRegularExpressionMatch title = titleKey.match(text);
    if (title.hasMatch())
        source.title = title.captured(1);
    return source;
}

QString unmarked(const QString &text)
{
    static const QRegularExpression image(uR"(!\[[^\]]*\]\([^)]*\))"_s);
    static const QRegularExpression link(uR"(\[([^\]]*)\]\([^)]*\))"_s);
    static const QRegularExpression heading(uR"((?:^| )#{1,6} )"_s);
    static const QRegularExpression rule(uR"( (?:-{3,}|={3,}|\*{3,}|:?-{2,}:?)(?= |$))"_s);
    static const QRegularExpression bullet(uR"( [*+-] (?:\[[ xX]\] )?)"_s);
    static const QRegularExpression emphasis(uR"(\*{1,3}|_{2,3}|`+|(?<= )_(?=\S)|(?<=\S)_(?= |$))"_s);
    return QString(text)
        .remove(image)
        .replace(link, u"\\1"_s)
        .replace(heading, u" | "_s)
        .replace(rule, u" | "_s)
        .replace(bullet, u" | "_s)
        .remove(emphasis)
        .simplified();
}

Source readMarkdown(const QString &text)
{
    Source source;
    QString body = text;
    static const QRegularExpression frontMatter(uR"(^--- (.*?) --- )"_s);
    const QRegularExpressionMatch matter = frontMatter.match(text);
    if (matter.hasMatch()) {
        static const QRegularExpression titleKey
            = expression(uR"(\b(?:title|titel|t[ií]tulo): ?(.{1,200}?)(?= [\w-]+:(?: |$)|$))"_s);
        const QString title = titleKey.match(matter.captured(1)).captured(1).remove(u'"').trimmed();
        if (!title.isEmpty())
            source.title = title;
        body = text.sliced(matter.capturedEnd());
    }
    source.text = ((matter.hasMatch() ? matter.captured(1) + u" | "_s : QString()) + unmarked(body)).simplified();
    return source;
}

/// The character that parts the columns, when the text begins like a table.
std::optional<QChar> columnSeparator(const QString &text)
{
    for (const QChar separator : { u';', u'\t', u',' }) {
        static const QRegularExpression decimalMark(uR"((?<=\d),(?=\d))"_s);
        const QString beginning = text.left(400).remove(decimalMark);
        const qsizetype count = beginning.count(separator);
        // In prose a comma is followed by a space; in a table it is not.
        const qsizetype spaced = beginning.count(QString(separator) + u' ');
        const qsizetype first = beginning.indexOf(separator);
        if (count >= 4 && spaced * 4 < count && first > 0 && first < 40)
            return separator;
    }
    return {};
}

Source readTable(const QString &text, QChar separator)
{
    Source source;
    source.isTable = true;
    QStringList columns;
    static const QRegularExpression valueBehind(uR"( "?[^ ]*\d[^ ]*$)"_s);
    const QStringList cells = text.left(1000).split(separator);
    for (const QString &cell : cells) {
        QString name = QString(cell).remove(u'"').trimmed();
        // The line feed behind the last column's name has become a space; a figure behind it begins the first row.
        const qsizetype figure = name.indexOf(QRegularExpression(u"\\d"_s));
        if (figure >= 0) {
            const qsizetype border = name.lastIndexOf(u' ', figure);
            if (border > 0)
                columns.append(name.left(border).trimmed());
            break;
        }
        columns.append(name);
        constexpr qsizetype mostColumns = 8;
        if (columns.size() == mostColumns)
            break;
    }
    columns.removeAll(QString());
    if (!columns.isEmpty())
        source.title = columns.join(u", "_s);
    source.text = QString(text).replace(separator, u" | "_s).simplified();
    return source;
}

Source readSubtitles(const QString &text)
{
    Source source;
    static const QRegularExpression cue(
        uR"((?:^WEBVTT[^0-9]*|(?:\b\d+ )?\d{1,2}:\d\d(?::\d\d)?[.,]\d{3} --> \d{1,2}:\d\d(?::\d\d)?[.,]\d{3}))"_s);
    static const QRegularExpression tag(uR"(<[^<>]*>)"_s);
    source.isSubtitles = true;
    source.text = QString(text).remove(cue).remove(tag).simplified();
    return source;
}

/// What a spaced heading looks like without its spaces, for every type's word: "factuur" to "FACTUUR", "taxinvoice" to
/// "TAX INVOICE".
const QHash<QString, QString> &headingsBySqueezedForm()
{
    static const QHash<QString, QString> headings = [] {
        QHash<QString, QString> filled;
        for (const Vocabulary *each : vocabularies()) {
            for (const TypeWords &type : each->types) {
                const QStringList phrases = QString(type.phrases).remove(u'~').remove(u'^').split(u'|');
                for (const QString &phrase : phrases)
                    filled.insert(QString(phrase).remove(u' '), phrase.toUpper());
            }
        }
        return filled;
    }();
    return headings;
}

/// "F A C T U U R": printers space a heading's letters. Only words for types are put together, since initials and
/// answers to choose from look the same.
QString withoutLetterSpacing(const QString &text)
{
    static const QRegularExpression spaced = expression(uR"((?<!\S)\p{L}(?: \p{L}){3,}(?!\S))"_s);
    QString result = text;
    QRegularExpressionMatchIterator matches = spaced.globalMatch(text);
    qsizetype removed = 0;
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString heading = headingsBySqueezedForm().value(match.captured().remove(u' ').toLower());
        if (heading.isEmpty())
            continue;
        result.replace(match.capturedStart() - removed, match.capturedLength(), heading);
        removed += match.capturedLength() - heading.size();
    }
    return result;
}

} // namespace

Source readSource(const QString &text)
{
    static const QRegularExpression html
        = expression(uR"(^(?:<!doctype html|<html|<head|<body|<\?xml[^>]*>\s*<!doctype html))"_s);
    static const QRegularExpression xml(uR"(^(?:<\?xml|<svg|<[A-Za-z][\w:.-]*(?: [^<>]*)?>))"_s);
    static const QRegularExpression markdown(uR"((?:^#{1,6} |^--- \w+:| #{2,6} \S|\*\*\S))"_s);
    static const QRegularExpression subtitles(uR"(^(?:WEBVTT|1 \d\d:\d\d:\d\d[.,]\d{3} -->))"_s);
    if (html.match(text).hasMatch())
        return readHtml(text);
    if (xml.match(text).hasMatch())
        return readXml(text);
    if (subtitles.match(text).hasMatch())
        return readSubtitles(text);
    const bool isJson = (text.startsWith(u'{') || text.startsWith(u'[')) && text.contains("\":"_L1.trimmed());
    if (isJson)
        return readJson(text);
    if (looksLikeEmail(text))
        return readEmail(text);
    if (markdown.match(text).hasMatch())
        return readMarkdown(text);
    if (const auto separator = columnSeparator(text))
        return readTable(text, *separator);
    Source source;
    source.text = withoutLetterSpacing(text);
    return source;
}

} // namespace Varlo
