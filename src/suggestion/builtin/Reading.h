// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/findDates.h"
#include "suggestion/builtin/findDocumentType.h"
#include "suggestion/builtin/findTotalAmount.h"
#include "suggestion/builtin/readSource.h"

namespace Varlo {

/// One document with all that the single finders rest on, found once. Neither copied nor moved: the words point into
/// the source's text.
struct Reading {
    explicit Reading(Source content);
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;

    Source source;
    Words words;
    FilenameLanguage language; ///< the document's, never Auto
    std::vector<LabelMark> labels;
    std::vector<TypeMark> types;
    std::vector<FoundDate> dates;
    std::vector<FoundAmount> amounts;
    std::optional<ChosenType> type;

    [[nodiscard]] const LabelMark *labelAt(int word) const; ///< that begins at this word
    [[nodiscard]] const TypeMark *typeAt(int word) const;
    [[nodiscard]] bool isDateAt(int word) const; ///< begins or goes on there
    [[nodiscard]] bool isAmountAt(int word) const;
    /// An address of a mail or of a page, an account number: never part of a name or title.
    [[nodiscard]] bool isIdentifierAt(int word) const;

private:
    std::vector<int> m_labelAt, m_typeAt; // an index for each word, or -1
    std::vector<bool> m_isDate, m_isAmount;
};

} // namespace Varlo
