// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Vocabulary.h"

#include "suggestion/builtin/Words.h"
#include <algorithm>
#include <QSet>

namespace Varlo {

using namespace Qt::StringLiterals;

Shape shapeOf(DocumentType type)
{
    switch (type) {
    case DocumentType::Invoice:
    case DocumentType::CreditNote:
    case DocumentType::Receipt:
    case DocumentType::Quote:
    case DocumentType::Statement:
    case DocumentType::Payslip:
    case DocumentType::TaxAssessment:
        return Shape::Payment;
    case DocumentType::RentalAgreement:
    case DocumentType::EmploymentContract:
    case DocumentType::NonDisclosureAgreement:
    case DocumentType::PurchaseAgreement:
    case DocumentType::ServiceAgreement:
    case DocumentType::LoanAgreement:
    case DocumentType::PowerOfAttorney:
    case DocumentType::InsurancePolicy:
    case DocumentType::Deed:
    case DocumentType::Contract:
        return Shape::Agreement;
    case DocumentType::Letter:
    case DocumentType::Email:
        return Shape::Correspondence;
    case DocumentType::Report:
    case DocumentType::Minutes:
    case DocumentType::Agenda:
    case DocumentType::Article:
    case DocumentType::Recipe:
    case DocumentType::Certificate:
    case DocumentType::CurriculumVitae:
    case DocumentType::Warranty:
    case DocumentType::Booking:
    case DocumentType::Ticket:
    case DocumentType::Manual:
        return Shape::Titled;
    }
    Q_UNREACHABLE();
}

const QList<const Vocabulary *> &vocabularies()
{
    static const QList<const Vocabulary *> all { &englishVocabulary(), &dutchVocabulary(), &spanishVocabulary() };
    return all;
}

const Vocabulary &vocabulary(FilenameLanguage language)
{
    for (const Vocabulary *candidate : vocabularies()) {
        if (candidate->language == language)
            return *candidate;
    }
    return englishVocabulary();
}

QString nameOf(DocumentType type, FilenameLanguage language)
{
    for (const TypeWords &words : vocabulary(language).types) {
        if (words.type == type)
            return words.name;
    }
    return {};
}

static void insertWords(QSet<QString> &set, const QString &words)
{
    const QStringList pieces = words.split(u'|', Qt::SkipEmptyParts);
    for (const QString &word : pieces)
        set.insert(folded(word));
}

static QSet<QString> wordsOfAll(QString Vocabulary::*list)
{
    QSet<QString> set;
    for (const Vocabulary *each : vocabularies())
        insertWords(set, each->*list);
    return set;
}

bool isLegalForm(const QString &word)
{
    static const QSet<QString> forms = [] {
        QSet<QString> set;
        insertWords(set,
            u"bv|nv|vof|cv|ua|ba|zn|zonen|bvba|srl|sprl|ltd|limited|plc|llp|lp|inc|incorporated|llc|corp|corporation"
            u"|gmbh|ag|kg|ohg|ug|ev|sl|sa|slu|sau|sll|slp|sc|scp|sas|sarl|sapi|spa|ab|as|aps|oy|pty|pbc|cic"_s);
        return set;
    }();
    return forms.contains(word);
}

bool isFormOfAddress(const QString &word)
{
    static const QSet<QString> forms = [] {
        QSet<QString> set;
        insertWords(set,
            u"mr|mrs|ms|miss|mx|dr|dra|prof|sir|dhr|heer|mevr|mevrouw|mw|fam|familie|ir|drs|ing|d|da|don|dona|dna|sr"
            u"|sra|srta|sres|señor|señora|cllr"_s);
        return set;
    }();
    return forms.contains(word);
}

bool isConnector(const QString &word)
{
    static const QSet<QString> words = wordsOfAll(&Vocabulary::connectors);
    return words.contains(word);
}

bool isSentenceOpener(const QString &word)
{
    static const QSet<QString> words = wordsOfAll(&Vocabulary::sentenceOpeners);
    return words.contains(word);
}

bool isOrganisation(const QString &word)
{
    static const QSet<QString> words = wordsOfAll(&Vocabulary::organisations);
    return words.contains(word);
}

bool isWeekday(const QString &word)
{
    static const QSet<QString> days = wordsOfAll(&Vocabulary::weekdays);
    const QStringList ends = word.split(u'-', Qt::SkipEmptyParts);
    return !ends.isEmpty()
        && std::all_of(ends.begin(), ends.end(), [](const QString &day) { return days.contains(day); });
}

bool beginsDepartment(const QString &word)
{
    static const QSet<QString> words = wordsOfAll(&Vocabulary::departments);
    return words.contains(word);
}

bool isAddressWord(const QString &word)
{
    static const QSet<QString> words = wordsOfAll(&Vocabulary::addressWords);
    return words.contains(word);
}

bool isSince(const QString &word)
{
    static const QSet<QString> words { u"since"_s, u"sinds"_s, u"desde"_s, u"established"_s, u"est"_s, u"anno"_s };
    return words.contains(word);
}

bool joinsParties(const QString &word, FilenameLanguage language)
{
    // "en" is "and" in Dutch and "in" in Spanish.
    return vocabulary(language).joiningWords.split(u'|').contains(word);
}

bool beginsStreet(const QString &word)
{
    static const QSet<QString> words = [] {
        QSet<QString> set;
        insertWords(set, vocabulary(FilenameLanguage::Spanish).streets);
        return set;
    }();
    return words.contains(word);
}

bool endsStreet(const QString &word)
{
    static const QSet<QString> english = [] {
        QSet<QString> set;
        insertWords(set, vocabulary(FilenameLanguage::English).streets);
        return set;
    }();
    static const QStringList dutchEndings = vocabulary(FilenameLanguage::Dutch).streets.split(u'|');
    return english.contains(word)
        || std::any_of(
            dutchEndings.begin(), dutchEndings.end(), [&word](const QString &ending) { return word.endsWith(ending); });
}

} // namespace Varlo
