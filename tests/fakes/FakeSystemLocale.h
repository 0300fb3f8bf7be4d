// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemLocale.h"

namespace Varlo {

struct FakeSystemLocale final : SystemLocale {
    explicit FakeSystemLocale(QString languageCode = {})
        : code(std::move(languageCode))
    {
    }

    QString code;
    [[nodiscard]] QString languageCode() const override { return code; }
};

} // namespace Varlo
