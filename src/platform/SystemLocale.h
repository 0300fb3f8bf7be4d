// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Varlo {

/// The language that the desktop is set to.
struct SystemLocale {
    virtual ~SystemLocale() = default;
    /// ISO 639 code of the preferred language ("nl" for Dutch as spoken in Belgium); "" where none is set.
    [[nodiscard]] virtual QString languageCode() const = 0;
};

} // namespace Varlo
