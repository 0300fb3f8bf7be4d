// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include "settings/Endpoint.h"
#include "suggestion/NameSuggestionService.h"
#include <functional>
#include <memory>

namespace Varlo {

using KeyLoader = std::function<QCoro::Task<Result<QString, SecretStore::Failure>>()>;

inline constexpr char usualModel[] = "claude-haiku-4-5";

/// A service that asks the model at the endpoint; `model` "" stands for the usual one. `loadKey` is called afresh for
/// each request. The client and Qt's network library are loaded here. Null where they are not installed.
[[nodiscard]] std::unique_ptr<NameSuggestionService> makeModelClient(
    const Endpoint &endpoint, const QString &model, const KeyLoader &loadKey);

/// What the module exports. The name changes with the signature, so that another version's module is refused.
using ModelClientEntry = NameSuggestionService *(*)(const Endpoint &, const QString &, const KeyLoader &);
inline constexpr char modelClientEntryName[] = "varloModelClient1";

} // namespace Varlo
