// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemLocale.h"
#include "settings/Preferences.h"
#include <QTranslator>

namespace Varlo {

/// The language that the whole process speaks, and its way of writing dates and sizes: those of the preference, or
/// else the system's. Follows the preference for as long as it lives. There is one in a process, on the main thread.
class InterfaceLanguage final : public QObject {
    Q_OBJECT
public:
    /// Both outlive the object.
    InterfaceLanguage(const Preferences &preferences, const SystemLocale &systemLocale, QObject *parent = nullptr);

    /// "en", "nl" or "es".
    [[nodiscard]] QString code() const { return m_code; }

signals:
    /// Whatever is shown has to be worded again.
    void changed();

private:
    void apply();

    const Preferences &m_preferences;
    const SystemLocale &m_systemLocale;
    QString m_code;
    QTranslator m_texts; // leaves the application when it goes
};

} // namespace Varlo
