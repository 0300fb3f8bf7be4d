// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/BuiltInNamer.h"

#include "platform/Characters.h"
#include "suggestion/builtin/findParties.h"
#include "suggestion/builtin/findTitle.h"
#include "suggestion/builtin/findVendor.h"
#include "suggestion/builtin/mixedCaseForm.h"
#include "suggestion/builtin/Reading.h"
#include "suggestion/sanitizeFilename.h"
#include <algorithm>
#include <QRegularExpression>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 80; // characters

/// One piece of the name. Dates and amounts are wrong when they are cut.
struct Piece {
    QString text;
    bool mayBeShortened = false;
    QString plainer; ///< says the same in fewer words; used before anything is cut
};

/// All that a name can be made of, each in the words of the name's language.
struct Facts {
    std::optional<QString> date, vendor, amount, title, type, plainType, parties, sender, subject;
    Shape shape = Shape::Titled;
};

/// "NON-DISCLOSURE AGREEMENT" as the vocabulary's "non-disclosure agreement", with capitals as the language has them.
QString asTypeName(const QString &phrase, FilenameLanguage language)
{
    QString name = phrase;
    bool beginsWord = true;
    for (QChar &character : name) {
        if (beginsWord && character.isLetter())
            character = character.toUpper();
        beginsWord = language == FilenameLanguage::English && (character == u' ' || character == u'-');
    }
    return name.replace(" Of "_L1, " of "_L1).replace(" And "_L1, " and "_L1);
}

QString typeName(const ChosenType &chosen, FilenameLanguage language)
{
    // Contracts are of many kinds: in its own language each keeps the name it gives itself.
    const bool keepsOwnWord = shapeOf(chosen.type) == Shape::Agreement && chosen.mark
        && chosen.mark->language == language && chosen.mark->strength != TypeStrength::Hint
        && chosen.mark->phrase.size() > 3;
    return keepsOwnWord ? asTypeName(chosen.mark->phrase, language) : nameOf(chosen.type, language);
}

std::optional<QString> dateOf(const Reading &reading)
{
    if (reading.source.isTable || reading.source.isSubtitles)
        return {};
    if (reading.source.date) {
        const QString header = *reading.source.date;
        const auto dates = findDates(Words(header), FilenameLanguage::English);
        if (!dates.empty())
            return dates.front().date.toString(Qt::ISODate);
    }
    const auto date = documentDate(reading.words, reading.dates, reading.labels);
    return date ? std::optional(date->toString(Qt::ISODate)) : std::nullopt;
}

std::optional<QString> nameText(const Reading &reading, const std::optional<FoundName> &name)
{
    return name ? std::optional(mixedCaseForm(reading.words, *name)) : std::nullopt;
}

Facts factsOf(const Reading &reading, FilenameLanguage language)
{
    Facts facts;
    const std::optional<DocumentType> type
        = reading.type && !reading.source.isTable ? std::optional(reading.type->type) : std::nullopt;
    facts.shape = type ? shapeOf(*type) : Shape::Titled;
    facts.date = dateOf(reading);
    facts.vendor = reading.source.sender ? reading.source.sender : nameText(reading, findVendor(reading));
    facts.amount = totalAmount(reading.words, reading.amounts, reading.labels, type);
    facts.title = findTitle(reading);
    if (type) {
        facts.type = typeName(*reading.type, language);
        facts.plainType = nameOf(*type, language);
    }
    facts.parties = findParties(reading);
    facts.sender = reading.source.sender ? reading.source.sender : nameText(reading, findSender(reading));
    facts.subject = findSubject(reading);
    return facts;
}

void append(std::vector<Piece> &pieces, const std::optional<QString> &text, bool mayBeShortened)
{
    if (text && !text->isEmpty())
        pieces.push_back({ *text, mayBeShortened, {} });
}

/// "Lease of business premises" is "Lease" where there is no room for more.
void appendType(std::vector<Piece> &pieces, const Facts &facts)
{
    if (facts.type)
        pieces.push_back({ *facts.type, true, facts.plainType.value_or(QString()) });
}

std::vector<Piece> conventionalPieces(const Facts &facts)
{
    std::vector<Piece> pieces;
    append(pieces, facts.date, false);
    switch (facts.shape) {
    case Shape::Payment:
        append(pieces, facts.vendor, true);
        append(pieces, facts.type, false);
        append(pieces, facts.amount, false);
        break;
    case Shape::Agreement:
        appendType(pieces, facts);
        append(pieces, facts.parties ? facts.parties : facts.vendor, true);
        break;
    case Shape::Correspondence:
        append(pieces, facts.sender, true);
        append(pieces, facts.subject ? facts.subject : facts.type, true);
        break;
    case Shape::Titled:
        append(pieces, facts.title ? facts.title : facts.type, true);
        break;
    }
    return pieces;
}

/// A payment has no title of its own: what it is and from whom says what it is about.
std::optional<QString> titleForTemplate(const Facts &facts)
{
    if (facts.shape != Shape::Payment || !facts.type)
        return facts.title;
    return facts.vendor ? *facts.type + u' ' + *facts.vendor : *facts.type;
}

std::vector<Piece> templatePieces(const Facts &facts, const QList<TemplateField> &fields)
{
    std::vector<Piece> pieces;
    for (const TemplateField field : fields) {
        switch (field) {
        case TemplateField::Date:
            append(pieces, facts.date, false);
            break;
        case TemplateField::Vendor:
            append(pieces, facts.shape == Shape::Correspondence ? facts.sender : facts.vendor, true);
            break;
        case TemplateField::Amount:
            append(pieces, facts.amount, false);
            break;
        case TemplateField::Title:
            append(pieces, titleForTemplate(facts), true);
            break;
        case TemplateField::DocumentType:
            appendType(pieces, facts);
            break;
        case TemplateField::Parties:
            append(pieces, facts.parties, true);
            break;
        }
    }
    return pieces;
}

QString joined(const std::vector<Piece> &pieces)
{
    QStringList texts;
    for (const Piece &piece : pieces)
        texts.append(piece.text);
    return texts.join(" - "_L1);
}

QString cutAtWord(const QString &text, qsizetype length)
{
    const QString kept = firstCharacters(text, length).toString();
    if (kept.size() == text.size())
        return text;
    const bool isWholeWord = text[kept.size()].isSpace();
    const qsizetype border = kept.lastIndexOf(u' ');
    QString cut = isWholeWord || border <= 0 ? kept : kept.left(border);
    // Nothing ends in a comma, in "de" or in "of your".
    const auto lastWord = [&cut] { return folded(cut.section(u' ', -1)); };
    while (!cut.isEmpty() && (cut.back().isPunct() || isConnector(lastWord()) || isSentenceOpener(lastWord())))
        cut = cut.back().isPunct() ? cut.chopped(1) : cut.left(std::max<qsizetype>(0, cut.lastIndexOf(u' ')));
    return cut;
}

QString withoutLegalForms(const QString &names)
{
    QStringList shorter = names.split(" x "_L1);
    for (QString &name : shorter)
        name = withoutLegalForm(name);
    return shorter.join(" x "_L1);
}

/// Cuts the longest of the pieces that may be, until the name fits.
QString fittingName(std::vector<Piece> pieces)
{
    for (Piece &piece : pieces)
        piece.text = sanitizeFilename(piece.text);
    std::erase_if(pieces, [](const Piece &piece) { return piece.text.isEmpty(); });
    constexpr qsizetype countedAtMost = 1000;
    qsizetype length = countCharacters(joined(pieces), countedAtMost);
    for (Piece &piece : pieces) {
        const bool isBeginning = !piece.plainer.isEmpty() && piece.text.startsWith(piece.plainer);
        if (length > longestName && isBeginning)
            piece.text = piece.plainer;
        length = countCharacters(joined(pieces), countedAtMost);
    }
    while (length > longestName) {
        Piece *longest = nullptr;
        for (Piece &piece : pieces) {
            if (piece.mayBeShortened && (!longest || piece.text.size() > longest->text.size()))
                longest = &piece;
        }
        if (!longest || longest->text.isEmpty())
            break;
        const qsizetype own = countCharacters(longest->text, countedAtMost);
        // "Ltd" is the first thing that a person would leave out.
        const QString shorter = withoutLegalForms(longest->text);
        if (shorter.size() < longest->text.size())
            longest->text = shorter;
        else if (!longest->plainer.isEmpty() && longest->plainer.size() < longest->text.size())
            longest->text = longest->plainer;
        else
            longest->text = cutAtWord(longest->text, std::max<qsizetype>(0, own - (length - longestName)));
        std::erase_if(pieces, [](const Piece &piece) { return piece.text.isEmpty(); });
        length = countCharacters(joined(pieces), countedAtMost);
    }
    return sanitizeFilename(joined(pieces));
}

void appendTag(QStringList &tags, const QString &text)
{
    constexpr qsizetype longestTag = 30;
    const QString tag = QString(text).remove(u',').simplified().toLower();
    if (!tag.isEmpty() && tag.size() <= longestTag && !tags.contains(tag))
        tags.append(tag);
}

QStringList tagsOf(const Facts &facts)
{
    QStringList tags;
    appendTag(tags, facts.type.value_or(QString()));
    if (facts.shape == Shape::Agreement && facts.parties) {
        const QStringList parties = facts.parties->split(" x "_L1);
        for (const QString &party : parties)
            appendTag(tags, withoutLegalForm(party));
    } else if (facts.shape == Shape::Correspondence && facts.sender) {
        appendTag(tags, withoutLegalForm(*facts.sender));
    } else if (facts.vendor) {
        appendTag(tags, withoutLegalForm(*facts.vendor));
    } else if (facts.title) {
        appendTag(tags, *facts.title);
    }
    if (facts.date)
        appendTag(tags, facts.date->left(4));
    constexpr qsizetype mostTags = 4;
    return tags.first(std::min(tags.size(), mostTags));
}

std::optional<QString> metadataValue(const QString &metadata, const QString &key)
{
    const QStringList lines = metadata.split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(key))
            return line.sliced(key.size()).trimmed();
    }
    return {};
}

Facts factsOfPicture(const QString &metadata, FilenameLanguage language)
{
    Facts facts;
    auto date = metadataValue(metadata, u"- Date taken: "_s);
    if (!date)
        date = metadataValue(metadata, u"- File date (approximate): "_s);
    // Cameras without a set clock write 0000-00-00.
    if (date && QDate::fromString(*date, Qt::ISODate).isValid())
        facts.date = date;
    facts.vendor = metadataValue(metadata, u"- Camera: "_s);
    facts.type = vocabulary(language).photo;
    facts.title = facts.type;
    return facts;
}

std::optional<NameSuggestion> nameOfPicture(const ImageContent &picture, const SuggestionRequest &request)
{
    if (!picture.metadata)
        return {};
    const Facts facts = factsOfPicture(*picture.metadata, request.language);
    if (!facts.date && !facts.vendor)
        return {};
    std::vector<Piece> pieces;
    if (request.nameTemplate)
        pieces = templatePieces(facts, request.nameTemplate->fields);
    if (pieces.empty()) {
        append(pieces, facts.date, false);
        append(pieces, facts.type, false);
        append(pieces, facts.vendor, true);
    }
    return NameSuggestion { fittingName(pieces), request.includeTags ? tagsOf(facts) : QStringList() };
}

std::optional<NameSuggestion> nameOfText(const TextContent &content, const SuggestionRequest &request)
{
    const Reading reading(readSource(content.text));
    const bool followsDocument = request.language == FilenameLanguage::Auto;
    const Facts facts = factsOf(reading, followsDocument ? reading.language : request.language);
    std::vector<Piece> pieces;
    if (request.nameTemplate)
        pieces = templatePieces(facts, request.nameTemplate->fields);
    // None of the template's fields is in the document, or it has none: a plain name is better than no name.
    if (pieces.empty())
        pieces = conventionalPieces(facts);
    const QString name = fittingName(pieces);
    if (name.isEmpty())
        return {};
    return NameSuggestion { name, request.includeTags ? tagsOf(facts) : QStringList() };
}

} // namespace

std::optional<NameSuggestion> nameFromContent(const SuggestionRequest &request)
{
    return std::visit(Overloaded { [&request](const TextContent &content) { return nameOfText(content, request); },
                          [&request](const ImageContent &picture) { return nameOfPicture(picture, request); } },
        request.content);
}

// Apart from the coroutine: GCC 12 takes the variant built inside its frame for uninitialised when it optimises.
static Result<NameSuggestion, NameSuggestionError> suggestionOrError(const SuggestionRequest &request)
{
    if (const auto suggestion = nameFromContent(request))
        return *suggestion;
    const NameSuggestionError error = NoReadableContent {};
    return tl::unexpected(error);
}

QCoro::Task<Result<NameSuggestion, NameSuggestionError>> BuiltInNamer::suggestName(SuggestionRequest request)
{
    co_return suggestionOrError(request);
}

} // namespace Varlo
