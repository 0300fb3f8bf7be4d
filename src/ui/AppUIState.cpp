// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/AppUIState.h"

#include "extraction/supportedExtensions.h"
#include "templates/FilenameLanguage.h"
#include "workflow/FileItem.h"
#include <algorithm>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStyleHints>
#include <QVariantMap>

namespace Varlo {

using namespace Qt::StringLiterals;

AppUIState::AppUIState(QObject *parent)
    : QObject(parent)
{
}

double AppUIState::textScale() const
{
    // Not QFontInfo, which would load a font of a size that no text has.
    const QFont font = QGuiApplication::font();
    constexpr double pointsPerInch = 72;
    const double pixels = font.pixelSize() > 0
        ? font.pixelSize()
        : font.pointSizeF() * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / pointsPerInch;
    return std::clamp(pixels / 13.0, 1.0, 1.6);
}

bool AppUIState::isAnimated() const { return m_isMotionWanted && !qEnvironmentVariableIsSet("VARLO_NO_ANIMATIONS"); }

void AppUIState::setMotionWanted(bool isWanted)
{
    m_isMotionWanted = isWanted;
    emit motionChanged();
}

QString AppUIState::localeName() const { return QLocale().name(); }

int AppUIState::supportedCount() const { return statedExtensionCount; }

QVariantList AppUIState::formatSections() const
{
    QVariantList sections;
    for (const FormatSection &section : Varlo::formatSections()) {
        QStringList extensions;
        for (const std::string_view extension : section.extensions)
            extensions.append(QString::fromLatin1(extension.data(), static_cast<qsizetype>(extension.size())));
        sections.append(QVariantMap { { u"title"_s, section.title }, { u"extensions"_s, extensions },
            { u"isComingSoon"_s, section.isComingSoon } });
    }
    return sections;
}

QVariantList AppUIState::languageOptions() const
{
    QVariantList options;
    for (const FilenameLanguageOption &option : filenameLanguageOptions)
        options.append(QVariantMap { { u"id"_s, id(option) }, { u"name"_s, label(option) } });
    return options;
}

QStringList AppUIState::statusLabels() const
{
    return { label(FileItem::Pending {}), label(FileItem::Processing {}), label(FileItem::Suggested {}),
        label(FileItem::Renamed {}), label(FileItem::AlreadyRenamed {}), label(FileItem::NoTextFound {}),
        label(FileItem::NotSupportedYet {}), label(FileItem::Failed {}) };
}

QStringList AppUIState::nameFilters() const
{
    QString patterns;
    for (const std::string_view extension : supportedExtensions()) {
        const QString text = QString::fromLatin1(extension.data(), static_cast<qsizetype>(extension.size()));
        patterns += u"*."_s + text + u" *."_s + text.toUpper() + u' ';
    }
    return { tr("Files Varlo can name") + u" ("_s + patterns.trimmed() + u')', tr("All files") + u" (*)"_s };
}

} // namespace Varlo
