// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/FilenameLanguage.h"
#include <QHash>
#include <QList>
#include <QStringList>

namespace Varlo {

/// What a word says about the value beside it.
enum class Label {
    DocumentDate, ///< the date asked for: of issue, of the meeting
    PlainDate, ///< just "Date"
    LesserDate, ///< used where no better one is found: of payment, of entry into force
    OtherDate, ///< never the document's: due, birth, delivery, period
    Total, ///< what is to be paid, tax included
    FinalBalance, ///< what stands on an account in the end
    NetPay, ///< what an employee gets
    OtherAmount, ///< never the total: before tax, the tax, cash given
    Seller, ///< who issued the document
    Buyer, ///< who gets it
    Attention, ///< a person of the buyer: the company stands before it
    PayingDepartment, ///< of the buyer: the company stands before it
    PartyOne, ///< the first party of a contract by its role
    PartyTwo,
    Parties, ///< both parties follow: "between"
    ActingFor, ///< a party follows behind the one who signs for it
    Subject,
    Author,
    Salutation,
    Closing,
    Field, ///< any other label: where a name or a title ends
};

/// What a document is. The order means nothing.
enum class DocumentType {
    Invoice,
    CreditNote,
    Receipt,
    Quote,
    Statement,
    Payslip,
    TaxAssessment,
    RentalAgreement,
    EmploymentContract,
    NonDisclosureAgreement,
    PurchaseAgreement,
    ServiceAgreement,
    LoanAgreement,
    PowerOfAttorney,
    InsurancePolicy,
    Deed,
    Contract,
    Letter,
    Email,
    Report,
    Minutes,
    Agenda,
    Article,
    Recipe,
    Certificate,
    CurriculumVitae,
    Warranty,
    Booking,
    Ticket,
    Manual,
};

/// How the name of a document is put together.
enum class Shape {
    Payment, ///< date, vendor, type, amount
    Agreement, ///< date, type, parties
    Correspondence, ///< date, sender, subject
    Titled, ///< date, title
};
[[nodiscard]] Shape shapeOf(DocumentType type);

/// Words of one meaning, separated by "|" and in lower case. The first is the one shown.
/// A label that ends in ":" counts only with its colon. A type may be marked: "~" for a word that often means
/// something else too, "^" for a hint that counts the same wherever it stands.
struct LabelWords {
    Label label;
    QString phrases;
};
struct TypeWords {
    DocumentType type;
    QString name; ///< as it is written in a file name
    QString phrases;
};

/// All that is known of one language.
struct Vocabulary {
    FilenameLanguage language;
    QString photo; ///< what a picture is called
    QString functionWords; ///< frequent words that only this one of our languages has
    QStringList months; ///< twelve, each with its abbreviations
    QString connectors; ///< small words inside a name
    QString sentenceOpeners; ///< words that rarely stand inside a title with a capital letter
    QString streets; ///< words or endings that an address begins or ends with
    QString organisations; ///< nouns that a name of an organisation begins or ends with
    QString joiningWords; ///< between the two parties of a contract
    QString weekdays; ///< with their abbreviations
    QString departments; ///< words that begin a department's name, opening hours or a slogan behind an organisation's
    QString addressWords; ///< what follows is where a party lives or is registered, not who it is
    QList<LabelWords> labels;
    QList<TypeWords> types;
};

[[nodiscard]] const Vocabulary &englishVocabulary();
[[nodiscard]] const Vocabulary &dutchVocabulary();
[[nodiscard]] const Vocabulary &spanishVocabulary();
[[nodiscard]] const QList<const Vocabulary *> &vocabularies();
/// Auto has none of its own and gets English.
[[nodiscard]] const Vocabulary &vocabulary(FilenameLanguage language);
/// The word for a type in a file name.
[[nodiscard]] QString nameOf(DocumentType type, FilenameLanguage language);

/// Ends of company names ("bv", "ltd"), folded.
[[nodiscard]] bool isLegalForm(const QString &foldedWord);
/// Forms of address before a person's name ("mrs", "dhr"), folded.
[[nodiscard]] bool isFormOfAddress(const QString &foldedWord);
[[nodiscard]] bool isConnector(const QString &foldedWord);
[[nodiscard]] bool isSentenceOpener(const QString &foldedWord);
[[nodiscard]] bool isOrganisation(const QString &foldedWord);
/// "monday", "mon", "mon-sat"
[[nodiscard]] bool isWeekday(const QString &foldedWord);
[[nodiscard]] bool beginsDepartment(const QString &foldedWord);
[[nodiscard]] bool isAddressWord(const QString &foldedWord);
/// "since", behind which the year of an establishment stands
[[nodiscard]] bool isSince(const QString &foldedWord);
[[nodiscard]] bool joinsParties(const QString &foldedWord, FilenameLanguage language);
/// A word that begins an address ("calle") or ends a street's name ("dorpsstraat", "street").
[[nodiscard]] bool beginsStreet(const QString &foldedWord);
[[nodiscard]] bool endsStreet(const QString &foldedWord);

} // namespace Varlo
