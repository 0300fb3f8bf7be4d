// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/makeModelClient.h"

#include "platform/linux/loadModule.h"

namespace Varlo {

using namespace Qt::StringLiterals;

std::unique_ptr<NameSuggestionService> makeModelClient(
    const Endpoint &endpoint, const QString &model, const KeyLoader &loadKey)
{
    const auto entry = reinterpret_cast<ModelClientEntry>(loadModule("varlo-model-client"_L1, modelClientEntryName));
    return std::unique_ptr<NameSuggestionService>(entry ? entry(endpoint, model, loadKey) : nullptr);
}

} // namespace Varlo
