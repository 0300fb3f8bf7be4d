// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findTotalAmount.h"

#include <algorithm>
#include <QRegularExpression>

namespace Varlo {

using namespace Qt::StringLiterals;

static QString isoCode(QStringView mark, const QString &text)
{
    static const QHash<QString, QString> codes { { u"€"_s, u"EUR"_s }, { u"EUR"_s, u"EUR"_s }, { u"EURO"_s, u"EUR"_s },
        { u"EUROS"_s, u"EUR"_s }, { u"£"_s, u"GBP"_s }, { u"US$"_s, u"USD"_s }, { u"FR."_s, u"CHF"_s },
        { u"SFR."_s, u"CHF"_s }, { u"¥"_s, u"JPY"_s }, { u"MX$"_s, u"MXN"_s }, { u"CA$"_s, u"CAD"_s },
        { u"C$"_s, u"CAD"_s }, { u"A$"_s, u"AUD"_s }, { u"AU$"_s, u"AUD"_s }, { u"R$"_s, u"BRL"_s },
        { u"M.N."_s, u"MXN"_s }, { u"₹"_s, u"INR"_s } };
    const QString upper = mark.trimmed().toString().toUpper();
    if (upper == "$"_L1 || upper == "PESOS"_L1) {
        // Many countries write "$"; the text says elsewhere which of them it comes from.
        static const QRegularExpression mexican(uR"(\b(?:MXN|RFC|CFDI|CDMX|M\.N\.|pesos|México)\b)"_s);
        static const QRegularExpression named(uR"(\b(CAD|AUD|NZD|SGD|HKD|COP|ARS|CLP)\b)"_s);
        if (mexican.match(text).hasMatch())
            return u"MXN"_s;
        const QRegularExpressionMatch other = named.match(text);
        return other.hasMatch() ? other.captured(1) : u"USD"_s;
    }
    return codes.value(upper, upper);
}

/// "1.234,56", "1,234.56", "1 234,56", "1'234.50", "1.250,-" in hundredths.
static std::optional<qint64> hundredths(const QString &figures)
{
    QString digits;
    qsizetype decimals = 0;
    const qsizetype lastMark = std::max(figures.lastIndexOf(u'.'), figures.lastIndexOf(u','));
    const qsizetype behindMark = lastMark < 0 ? 0 : figures.size() - lastMark - 1;
    const bool hasDecimals = lastMark >= 0 && (behindMark == 1 || behindMark == 2);
    for (const QChar character : figures) {
        if (character.isDigit())
            digits.append(character);
    }
    if (hasDecimals)
        decimals = behindMark;
    if (digits.isEmpty() || digits.size() > 15)
        return {};
    qint64 amount = digits.toLongLong();
    for (qsizetype missing = decimals; missing < 2; ++missing)
        amount *= 10;
    return amount;
}

namespace {

struct CurrencyMarks {
    QString mark; ///< empty when none stands beside the figures
    bool isNegative = false;
    bool isGlued = false; ///< letters that are no currency touch the figures
};

QRegularExpression expression(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption);
}

const QString &codes()
{
    static const QString known = u"EUR|USD|GBP|CHF|MXN|CAD|AUD|NZD|SEK|NOK|DKK|PLN|COP|ARS|CLP|JPY"_s;
    return known;
}

CurrencyMarks marksAround(const QString &text, qsizetype start, qsizetype end, bool hasDecimals)
{
    static const QRegularExpression before
        = expression(u"((?:US|MX|CA|AU|[CAR])?\\$|€|£|¥|₹|\\b(?:"_s + codes() + u")|\\bS?[Ff]r\\.)? ?([-−])? ?$"_s);
    static const QRegularExpression behind
        = expression(u"^(?:,-{1,2}|,–|\\.-)? ?(€|£|\\$|(?:"_s + codes() + u"|[Ee]uros?|pesos)\\b|M\\.N\\.)( ?\\d)?"_s);
    constexpr qsizetype widestMark = 8;
    const qsizetype from = std::max<qsizetype>(0, start - widestMark);
    const QRegularExpressionMatch left = before.match(QStringView(text).sliced(from, start - from));
    const QRegularExpressionMatch right
        = behind.match(QStringView(text).sliced(end, std::min(widestMark, text.size() - end)));
    CurrencyMarks marks { left.captured(1), left.capturedLength(2) > 0, false };
    // Of "2 $49.00" the sign belongs to what follows.
    const bool belongsToNext = right.capturedLength(2) > 0 && (!hasDecimals || right.captured(1) == "$"_L1);
    const bool isCode = right.capturedLength(1) == 3;
    if (right.hasMatch() && !belongsToNext && (marks.mark.isEmpty() || (marks.mark == "$"_L1 && isCode)))
        marks.mark = right.captured(1);
    const bool touchesLeft = marks.mark != left.captured(1) || left.capturedLength(1) == 0;
    marks.isGlued = (touchesLeft && start > 0 && text[start - 1].isLetter())
        || (!right.hasMatch() && end < text.size() && text[end].isLetter());
    return marks;
}

} // namespace

std::vector<FoundAmount> findAmounts(const Words &words)
{
    // A space groups figures only beside a currency: "1 185,00" may be a quantity and a price.
    static const QRegularExpression figuresPattern = expression(
        uR"((?<![\d.,/:])(?<![\d\p{L}]-)(?:(?<=€|£|\$|€ |£ |\$ |EUR )\d{1,3}(?: \d{3})+(?:[.,]\d\d)?(?!\d))"_s
        + uR"(|\d{1,3}(?: \d{3})+(?:,\d\d)?(?= ?(?:€|EUR)))"_s
        + uR"(|\d{1,3}(?:[.,'’]\d{3})+(?:[.,]\d\d)?|\d+(?:[.,]\d{1,2})?)(?! ?%)(?![.,/:-]?\d))"_s);
    static const QRegularExpression unit = expression(
        uR"(^ ?(?:kg|g|gr|km|m|m2|m3|m²|m³|cm|mm|l|ml|cl|kWh|kwh|kW|kVA|h|hrs|uur|horas|hours|GB|MB|ºC|°C|x|pm|am)\b)"_s);
    const QString &text = words.text();
    std::vector<FoundAmount> amounts;
    QRegularExpressionMatchIterator matches = figuresPattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString figures = match.captured();
        const bool hasDecimals = figures.size() > 3 && figures[figures.size() - 3].isPunct();
        const CurrencyMarks marks = marksAround(text, match.capturedStart(), match.capturedEnd(), hasDecimals);
        const bool isBare = marks.mark.isEmpty();
        if (marks.isGlued || (isBare && !hasDecimals))
            continue;
        if (isBare
            && unit.match(QStringView(text).sliced(
                              match.capturedEnd(), std::min<qsizetype>(8, text.size() - match.capturedEnd())))
                   .hasMatch())
            continue;
        if (const auto amount = hundredths(figures)) {
            amounts.push_back({ marks.isNegative ? -*amount : *amount, isBare ? QString() : isoCode(marks.mark, text),
                words.wordAt(match.capturedStart()), words.wordAt(match.capturedEnd() - 1) + 1 });
        }
    }
    return amounts;
}

static QString usualCurrency(const Words &words, const std::vector<FoundAmount> &amounts)
{
    for (const FoundAmount &amount : amounts) {
        if (!amount.currency.isEmpty())
            return amount.currency;
    }
    static const QRegularExpression named(uR"(\b(EUR|USD|GBP|CHF|MXN|CAD|AUD)\b|(€|£))"_s);
    const QRegularExpressionMatch match = named.match(words.text());
    if (match.hasMatch())
        return isoCode(match.capturedView(0), words.text());
    // Taxes and tax numbers that only countries with the euro, or only Mexico, know.
    static const QRegularExpression mexican(uR"(\b(?:RFC|CFDI)\b)"_s);
    static const QRegularExpression euro(
        uR"(\b(?:btw|kvk|nif|cif|bsn|irpf|loonheffing\w*)\b)"_s, QRegularExpression::CaseInsensitiveOption);
    if (mexican.match(words.text()).hasMatch())
        return u"MXN"_s;
    // The account's country (ISO 13616); of these all have the euro.
    static const QRegularExpression euroAccount(
        uR"(\b(?:AT|BE|DE|ES|FI|FR|GR|IE|IT|LU|NL|PT)\d\d ?(?:[A-Z]{4}|\d{4}) ?\d{4})"_s);
    const bool isEuro = euro.match(words.text()).hasMatch() || euroAccount.match(words.text()).hasMatch();
    return isEuro ? u"EUR"_s : QString();
}

static Label wantedLabel(std::optional<DocumentType> type)
{
    if (type == DocumentType::Statement)
        return Label::FinalBalance;
    return type == DocumentType::Payslip ? Label::NetPay : Label::Total;
}

static bool isAmountLabel(Label label)
{
    return label == Label::Total || label == Label::OtherAmount || label == Label::FinalBalance
        || label == Label::NetPay;
}

/// "Total 100.00 21.00 121.00": behind the word stand the net amount, the tax and their sum.
static const FoundAmount &sumOfRow(const std::vector<FoundAmount> &amounts, size_t index)
{
    if (index + 2 >= amounts.size())
        return amounts[index];
    const FoundAmount &sum = amounts[index + 2];
    const bool isRow = sum.start - amounts[index].end <= 3;
    const bool addsUp = amounts[index].hundredths + amounts[index + 1].hundredths == sum.hundredths;
    return isRow && addsUp && amounts[index + 1].hundredths > 0 ? sum : amounts[index];
}

std::optional<QString> totalAmount(const Words &words, const std::vector<FoundAmount> &amounts,
    const std::vector<LabelMark> &labels, std::optional<DocumentType> type)
{
    std::vector<Place> labelPlaces;
    std::vector<Label> labelKinds;
    for (const LabelMark &mark : labels) {
        if (isAmountLabel(mark.label)) {
            labelPlaces.emplace_back(mark.start, mark.end);
            labelKinds.push_back(mark.label);
        }
    }
    std::vector<Place> places;
    for (const FoundAmount &amount : amounts)
        places.emplace_back(amount.start, amount.end);
    const std::vector<int> owners = labelsOfValues(labelPlaces, places);

    const FoundAmount *best = nullptr;
    const auto takeLargest = [&best](const FoundAmount &amount) {
        if (amount.hundredths > 0 && (!best || amount.hundredths > best->hundredths))
            best = &amount;
    };
    const auto takeLabelled = [&](Label wanted) {
        for (size_t index = 0; index < amounts.size(); ++index) {
            if (owners[index] >= 0 && labelKinds[static_cast<size_t>(owners[index])] == wanted)
                takeLargest(sumOfRow(amounts, index));
        }
    };
    takeLabelled(wantedLabel(type));
    if (!best)
        takeLabelled(Label::Total);
    if (!best && type && shapeOf(*type) == Shape::Payment) {
        for (size_t index = 0; index < amounts.size(); ++index) {
            if (owners[index] < 0 && !amounts[index].currency.isEmpty())
                takeLargest(amounts[index]);
        }
    }
    if (!best)
        return {};
    const QString currency = best->currency.isEmpty() ? usualCurrency(words, amounts) : best->currency;
    const QString figures = u"%1.%2"_s.arg(best->hundredths / 100).arg(best->hundredths % 100, 2, 10, QLatin1Char('0'));
    return currency.isEmpty() ? figures : figures + u' ' + currency;
}

} // namespace Varlo
