// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/buildPrompt.h"

#include "platform/Characters.h"
#include <QStringList>

namespace Varlo {

using namespace Qt::StringLiterals;

// Values enter through one arg() call a text: a second call would expand a "%1" that the first one brought in.

static QString outputRules(bool includeTags)
{
    const QString reply = includeTags
        ? uR"(Reply with the proposed filename on the FIRST line, then a SECOND line: TAGS: followed by the tags (see TAGS below). No quotes, no other explanation, no extension, no markdown.)"_s
        : uR"(Reply with ONLY the proposed filename. No quotes, no explanation, no extension, no markdown.)"_s;
    const QString never = includeTags
        ? uR"(Never reply with anything other than the filename (optionally followed by its TAGS line) or NO_CONTENT.)"_s
        : uR"(Never reply with anything other than a filename or NO_CONTENT.)"_s;
    return uR"(You are renaming a file based on its content.

OUTPUT RULES (strict):
- %1
- Keep the filename under 80 characters.
- Use spaces, dashes, and underscores naturally. No slashes, colons, or other illegal characters.
- If the file is truly blank or unreadable (an empty document, an image with nothing visible), reply with exactly: NO_CONTENT
- NO_CONTENT is a last resort. If ANYTHING is visible or readable — text, a user interface, objects, a scene — you must produce a filename. A screenshot, a photo, a form, a diagram: all of these are nameable content.
- %2
)"_s.arg(reply, never);
}

static QString ownLanguageRules()
{
    return uR"(LANGUAGE (CRITICAL):
- Write the filename in the SAME language the document itself is written in: a Dutch document gets a Dutch filename, a Spanish one a Spanish filename, an English one an English filename. Decide from the document's content.
- If the language is mixed or unclear, use the document's dominant language; for images with no readable text, use English.
- Proper nouns (company names, people's names, brand names, product names) stay as written in the source document.
- Dates always use YYYY-MM-DD format.)"_s;
}

static QString fixedLanguageRules(const QString &languageName, const QString &exampleWords)
{
    return uR"(LANGUAGE (CRITICAL):
- Write the filename in %1. ALL descriptive words must be in %1, regardless of what language the document itself is in.
- Examples of %1 words to use: %2.
- Proper nouns (company names, people's names, brand names, product names) stay as written in the source document. Only the descriptive/generic words are translated.
- Dates always use YYYY-MM-DD format.)"_s.arg(languageName, exampleWords);
}

static QString languageRules(FilenameLanguage language)
{
    switch (language) {
    case FilenameLanguage::Auto:
        return ownLanguageRules();
    case FilenameLanguage::Dutch:
        return fixedLanguageRules(
            u"Dutch (Nederlands)"_s, uR"("Factuur", "Bon", "Foto", "Contract", "Rapport", "Offerte", "Overzicht")"_s);
    case FilenameLanguage::Spanish:
        return fixedLanguageRules(u"Spanish (Español)"_s,
            uR"("Factura", "Recibo", "Foto", "Contrato", "Informe", "Presupuesto", "Extracto")"_s);
    case FilenameLanguage::English:
        return fixedLanguageRules(
            u"English"_s, uR"("Invoice", "Receipt", "Photo", "Contract", "Report", "Quote", "Statement")"_s);
    }
    Q_UNREACHABLE();
}

static QString properNounRules()
{
    return uR"(
PROPER NOUNS (strict):
- Copy every proper noun (personal names, place names, company/brand names, product names) character-for-character EXACTLY as it appears in the source document.
- Never normalize, reorder, autocorrect, or "fix" the spelling of a name, even if it looks like a typo or an unfamiliar word.
- If a name looks unusual or foreign, that is expected — preserve it verbatim. Before writing a name, verify letter by letter that it matches the source.
)"_s;
}

static QString builtInConventions()
{
    return uR"(NAMING CONVENTIONS:
- For invoices/receipts/bills, prefer: "YYYY-MM-DD - Vendor - Description - Amount"
  Example: "2026-05-02 - Leaseweb Canada - Hosting - 5.40 EUR"
- For contracts/legal docs: "YYYY-MM-DD - Type - Party A x Party B"
- For reports/articles: short descriptive title with date if present
- For screenshots and UI images: the app or site and what the screen shows
  Example: "Tarvix settings - Processing"
- For photos with no obvious subject: brief description of what's shown)"_s;
}

/// The word that stands for a field in the line that shows the name's structure.
static QString promptToken(TemplateField field)
{
    switch (field) {
    case TemplateField::Date:
        return u"YYYY-MM-DD"_s;
    case TemplateField::Vendor:
        return u"Vendor"_s;
    case TemplateField::Amount:
        return u"Amount"_s;
    case TemplateField::Title:
        return u"Title"_s;
    case TemplateField::DocumentType:
        return u"Type"_s;
    case TemplateField::Parties:
        return u"Party A x Party B"_s;
    }
    Q_UNREACHABLE();
}

/// What the model is to put in the field's place.
static QString promptMeaning(TemplateField field)
{
    switch (field) {
    case TemplateField::Date:
        return u"the document's date in YYYY-MM-DD format"_s;
    case TemplateField::Vendor:
        return u"the company/vendor (or store) name, exactly as written in the document"_s;
    case TemplateField::Amount:
        return u"the total amount including currency (e.g. 174.24 EUR)"_s;
    case TemplateField::Title:
        return u"a short descriptive title for the document"_s;
    case TemplateField::DocumentType:
        return u"the kind of document (contract, agreement, offer, …)"_s;
    case TemplateField::Parties:
        return u"the parties involved, joined with \" x \""_s;
    }
    Q_UNREACHABLE();
}

/// The prompt is English throughout, so this is not the translated title that the user sees in lists; and a name of ""
/// stays, where a list would say "Untitled".
static QString templateDisplayName(const NameTemplate &nameTemplate)
{
    if (nameTemplate.name)
        return *nameTemplate.name;
    return builtInTemplateName(nameTemplate.id).value_or(u"Custom"_s);
}

static QString templateConventions(const NameTemplate &nameTemplate, FilenameLanguage language)
{
    QStringList tokens;
    QStringList meanings;
    for (const TemplateField field : nameTemplate.fields) {
        tokens.append(promptToken(field));
        meanings.append("  "_L1 + promptToken(field) + " = "_L1 + promptMeaning(field));
    }
    return uR"(NAMING CONVENTIONS (the user chose the "%1" template — follow it strictly):
- Compose the filename EXACTLY as: %2
  Example: "%3"
- Field meanings:
%4
- If a field genuinely does not appear in the document, leave it out (never invent a value); keep the remaining fields in order.)"_s
        .arg(templateDisplayName(nameTemplate), tokens.join(" - "_L1), nameTemplate.exampleName(language),
            meanings.join(u'\n'));
}

/// An empty line stands in for a name too long to be worth its tokens.
static QString existingNameRule(const QString &existingName)
{
    constexpr qsizetype longestName = 80;
    if (countCharacters(existingName, longestName + 1) > longestName)
        return {};
    return "- Do not repeat the existing name \""_L1 + existingName + "\" verbatim unless it's already well-formed."_L1;
}

static QString tagRules()
{
    return uR"(
TAGS (the second line only):
- 2–4 short, lowercase keyword tags describing the file: topic, document type, vendor or person, year — whatever helps find it later.
- Comma-separated single words or very short phrases. Example: TAGS: invoice, squarespace, hosting, 2025
- Draw tags from the file's real content; never invent them. If you genuinely can't tell, omit the TAGS line.)"_s;
}

QString buildPrompt(const QString &existingName, FilenameLanguage language, const std::optional<QString> &contentText,
    const std::optional<NameTemplate> &nameTemplate, const std::optional<QString> &metadata, bool includeTags)
{
    QStringList sections { outputRules(includeTags), languageRules(language), properNounRules() };
    sections.append(nameTemplate ? templateConventions(*nameTemplate, language) : builtInConventions());
    sections.append(existingNameRule(existingName));
    if (includeTags)
        sections.append(tagRules());
    if (metadata && !metadata->isEmpty())
        sections.append(u'\n' + *metadata);
    if (contentText)
        sections.append("\n---\nFile contents:\n"_L1 + *contentText);
    return sections.join(u'\n');
}

} // namespace Varlo
