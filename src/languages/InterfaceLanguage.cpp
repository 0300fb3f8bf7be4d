// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "languages/InterfaceLanguage.h"

#include <QCoreApplication>
#include <QLocale>

namespace Varlo {

using namespace Qt::StringLiterals;

static bool isSpoken(const QString &code) { return code == "en"_L1 || code == "nl"_L1 || code == "es"_L1; }

InterfaceLanguage::InterfaceLanguage(const Preferences &preferences, const SystemLocale &systemLocale, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_systemLocale(systemLocale)
{
    apply();
    QCoreApplication::installTranslator(&m_texts); // stays installed when it loads other texts
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (name == Preference::uiLanguage.name)
            apply();
    });
}

void InterfaceLanguage::apply()
{
    const QString chosen = m_preferences.string(Preference::uiLanguage);
    const QString system = m_systemLocale.languageCode();
    const bool isChosen = isSpoken(chosen);
    m_code = isChosen ? chosen : isSpoken(system) ? system : u"en"_s;
    // Somebody who chose the system's own language keeps its region: dates in Belgium are not those of the Netherlands.
    QLocale::setDefault(isChosen && chosen != system ? QLocale(chosen) : QLocale::system());
    // English has texts too, for its plural forms.
    static_cast<void>(m_texts.load(u":/varlo/texts/varlo_"_s + m_code + u".qm"_s));
    emit changed();
}

} // namespace Varlo
