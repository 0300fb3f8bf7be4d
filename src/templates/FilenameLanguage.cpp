// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "templates/FilenameLanguage.h"

#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

QString rawValue(FilenameLanguage language)
{
    switch (language) {
    case FilenameLanguage::Auto:
        return u"auto"_s;
    case FilenameLanguage::Dutch:
        return u"nl"_s;
    case FilenameLanguage::Spanish:
        return u"es"_s;
    case FilenameLanguage::English:
        return u"en"_s;
    }
    Q_UNREACHABLE();
}

std::optional<FilenameLanguage> filenameLanguage(const QString &raw)
{
    for (const FilenameLanguage language : allFilenameLanguages) {
        if (rawValue(language) == raw)
            return language;
    }
    return {};
}

QString id(const FilenameLanguageOption &option)
{
    return std::visit(Overloaded { [](FilenameLanguage language) { return rawValue(language); },
                          [](FollowSystem) { return u"system"_s; } },
        option);
}

std::optional<FilenameLanguageOption> filenameLanguageOption(const QString &wanted)
{
    for (const FilenameLanguageOption &option : filenameLanguageOptions) {
        if (id(option) == wanted)
            return option;
    }
    return {};
}

static QString languageLabel(FilenameLanguage language)
{
    switch (language) {
    case FilenameLanguage::Auto:
        return QCoreApplication::translate("FilenameLanguage", "Auto");
    case FilenameLanguage::Dutch:
        return u"Nederlands"_s;
    case FilenameLanguage::Spanish:
        return u"Español"_s;
    case FilenameLanguage::English:
        return u"English"_s;
    }
    Q_UNREACHABLE();
}

QString label(const FilenameLanguageOption &option)
{
    return std::visit(Overloaded { [](FilenameLanguage language) { return languageLabel(language); },
                          [](FollowSystem) { return QCoreApplication::translate("FilenameLanguage", "System"); } },
        option);
}

FilenameLanguage systemFilenameLanguage(const SystemLocale &locale)
{
    const QString code = locale.languageCode();
    if (code == "nl"_L1)
        return FilenameLanguage::Dutch;
    if (code == "es"_L1)
        return FilenameLanguage::Spanish;
    return FilenameLanguage::English;
}

FilenameLanguage resolvedLanguage(const FilenameLanguageOption &option, const SystemLocale &locale)
{
    return std::visit(Overloaded { [](FilenameLanguage language) { return language; },
                          [&locale](FollowSystem) { return systemFilenameLanguage(locale); } },
        option);
}

} // namespace Varlo
