// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Session.h"
#include "workflow/RenamerViewModel.h"
#include <functional>
#include <memory>
#include <optional>

namespace Varlo {

/// A batch that has come through its suggestions.
struct NamedBatch {
    std::unique_ptr<RenamerViewModel> batch;
    bool hasRefusedArguments = false; ///< some were complained of and are not in the batch
};

/// An empty batch that asks as the options say. From here on SIGINT ends the process where it stands, with 130. Null,
/// after a complaint, where the options cannot be met.
[[nodiscard]] std::unique_ptr<RenamerViewModel> makeBatch(const NamingOptions &naming, Session &session);

/// From here on the signal ends the process where it stands, with 130: for as long as nothing can be half done.
void exitOn(int signal);

/// What `suggest` and `rename` begin with: admits the files and takes them through suggestions, with the
/// progress shown. `whenDone` is told of each file as it completes, and of the arguments that could not be admitted.
/// Nothing, after a complaint, where the options cannot be met.
[[nodiscard]] std::optional<NamedBatch> suggestNames(const NamingOptions &naming, const FileArguments &arguments,
    Session &session, const std::function<void(const FileItem &)> &whenDone);

/// The file's base name and extension as they would stand on disk with the suggestion.
[[nodiscard]] QString suggestedFileName(const FileItem &item);
/// One file for scripts: "path", "status", "name", "extension", "tags", and "message" where it failed.
[[nodiscard]] QJsonObject toJson(const FileItem &item);
[[nodiscard]] bool hasFailed(const FileItem &item);
[[nodiscard]] bool lacksKey(const FileItem &item);
/// What to do about files that lack the key.
void adviseOnKey(Terminal &terminal);

} // namespace Varlo
