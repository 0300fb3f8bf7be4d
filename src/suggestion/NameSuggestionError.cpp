// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/NameSuggestionError.h"

#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

Message description(const NameSuggestionError &error)
{
    const auto words = [](const char *text) { return Message("NameSuggestionError", text); };
    return std::visit(
        Overloaded {
            [](const ApiError &refusal) { return Message(refusal.message); },
            [](const TransportError &failure) { return failure.description; },
            //: Shown in a file's row when the user has not stored a key for the model yet
            [&](MissingAPIKey) { return words(QT_TRANSLATE_NOOP("NameSuggestionError", "No API key set.")); },
            //: Shown in a file's row when the desktop's password store has to be unlocked first
            [&](LockedAPIKey) {
                return words(QT_TRANSLATE_NOOP(
                    "NameSuggestionError", "The keyring that holds your API key is locked. Unlock it and try again."));
            },
            [&](UnusableAPIKey) {
                return words(QT_TRANSLATE_NOOP(
                    "NameSuggestionError", "The API key holds characters that cannot be sent. Save it again."));
            },
            //: Shown in a file's row when the model's reply holds no usable file name
            [&](InvalidResponse) {
                return words(QT_TRANSLATE_NOOP("NameSuggestionError", "Unexpected response from the model."));
            },
            //: Shown when the model says that there is nothing to name the file from
            [&](NoReadableContent) {
                return words(QT_TRANSLATE_NOOP("NameSuggestionError", "The file has no readable content."));
            },
        },
        error);
}

bool isForWantOfKey(const NameSuggestionError &error)
{
    return std::visit(Overloaded {
                          [](const ApiError &refusal) { return refusal.isKeyRefused; },
                          [](const TransportError &) { return false; },
                          [](MissingAPIKey) { return true; },
                          [](LockedAPIKey) { return true; },
                          [](UnusableAPIKey) { return true; },
                          [](InvalidResponse) { return false; },
                          [](NoReadableContent) { return false; },
                      },
        error);
}

} // namespace Varlo
