// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/FallbackSecretStore.h"
#include "platform/linux/FileSecretStore.h"
#include "platform/linux/SecretServiceStore.h"
#include "platform/linux/StateFolders.h"

namespace Varlo {

/// Both places where a user's secrets may be, and the store that chooses between them.
struct UserSecretStores {
    explicit UserSecretStores(const StateFolders &folders)
        : file(folders.data / "secrets" / "keys.json")
        , either(keyring, file)
    {
    }

    SecretServiceStore keyring;
    FileSecretStore file;
    FallbackSecretStore either;
};

} // namespace Varlo
