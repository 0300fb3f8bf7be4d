// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/ClaudeNameSuggester.h"
#include "suggestion/makeModelClient.h"

using namespace Varlo;

extern "C" Q_DECL_EXPORT NameSuggestionService *varloModelClient1(
    const Endpoint &endpoint, const QString &model, const KeyLoader &loadKey)
{
    return new ClaudeNameSuggester(endpoint, model, loadKey); // whoever asked for it owns it
}
