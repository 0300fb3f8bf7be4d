// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/QtSystemLocale.h"

#include <QLocale>
#include <QStringList>

namespace Varlo {

QString QtSystemLocale::languageCode() const
{
    const QStringList languages = QLocale::system().uiLanguages();
    if (languages.isEmpty())
        return {};
    const QLocale preferred(languages.first());
    return preferred.language() == QLocale::C ? QString() : QLocale::languageToCode(preferred.language());
}

} // namespace Varlo
