// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include <chrono>
#include <QByteArray>

namespace Varlo {

/// What the loadable module offers. Every call blocks its thread, and may be made on any. `searchLimit` is for each
/// step in which nobody is asked, `promptLimit` for unlocking and storing.
struct SecretServiceModule {
    using Reply = Result<QByteArray, SecretStore::Failure>;

    Reply (*load)(const QByteArray &account, std::chrono::milliseconds searchLimit);
    /// The value of the reply is empty.
    Reply (*save)(const QByteArray &account, const QByteArray &secret, std::chrono::milliseconds searchLimit,
        std::chrono::milliseconds promptLimit);
    Reply (*remove)(
        const QByteArray &account, std::chrono::milliseconds searchLimit, std::chrono::milliseconds promptLimit);
};

/// The module's one exported function. The name changes with the calls, so that another version's module is refused.
using SecretServiceEntry = const SecretServiceModule *(*)();
inline constexpr char secretServiceEntryName[] = "varloSecretService1";

} // namespace Varlo
