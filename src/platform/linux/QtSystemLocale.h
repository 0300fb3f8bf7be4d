// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemLocale.h"

namespace Varlo {

/// The language of LANGUAGE, LC_ALL, LC_MESSAGES or LANG, the first of them that is set, as Qt reads them.
struct QtSystemLocale final : SystemLocale {
    [[nodiscard]] QString languageCode() const override;
};

} // namespace Varlo
