// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/findLabels.h"
#include <optional>
#include <vector>

namespace Varlo {

/// How much an occurrence of a type's word says.
enum class TypeStrength {
    Word, ///< "invoice"
    Ambiguous, ///< "report": often something else
    Hint, ///< "invoice number": tells the type but is not its name
};

struct TypeMark {
    DocumentType type;
    TypeStrength strength = TypeStrength::Word;
    FilenameLanguage language = FilenameLanguage::English;
    QString phrase; ///< as the vocabulary has it
    int start = 0, end = 0; ///< words
};

[[nodiscard]] std::vector<TypeMark> findTypes(const Words &words, FilenameLanguage language);

/// The type that the document most likely is: a word in its heading says more than one in a sentence, and a letter is
/// known by its salutation and closing. The mark is the best of that type; a letter has none.
struct ChosenType {
    DocumentType type;
    std::optional<TypeMark> mark;
};
[[nodiscard]] std::optional<ChosenType> documentType(
    const Words &words, const std::vector<TypeMark> &types, const std::vector<LabelMark> &labels);

} // namespace Varlo
