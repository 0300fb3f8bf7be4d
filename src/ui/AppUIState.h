// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantList>

namespace Varlo {

/// What is open over the main window, and what the desktop asks of every window.
class AppUIState : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showingSettings MEMBER m_showingSettings NOTIFY shownChanged)
    Q_PROPERTY(bool showingHistory MEMBER m_showingHistory NOTIFY shownChanged)
    /// The sheet for the API key.
    Q_PROPERTY(bool showingProvider MEMBER m_showingProvider NOTIFY shownChanged)
    Q_PROPERTY(bool showingFormats MEMBER m_showingFormats NOTIFY shownChanged)
    /// The desktop shows the menus of all windows in one place.
    Q_PROPERTY(bool hasGlobalMenu MEMBER m_hasGlobalMenu NOTIFY shownChanged)
    Q_PROPERTY(double textScale READ textScale CONSTANT)
    Q_PROPERTY(bool isAnimated READ isAnimated NOTIFY motionChanged)
    Q_PROPERTY(QString localeName READ localeName NOTIFY languageChanged)
    Q_PROPERTY(int supportedCount READ supportedCount CONSTANT)
    /// Each with title, extensions and isComingSoon.
    Q_PROPERTY(QVariantList formatSections READ formatSections NOTIFY languageChanged)
    /// The filename languages on offer, each with id and name.
    Q_PROPERTY(QVariantList languageOptions READ languageOptions NOTIFY languageChanged)
    /// The words for every status, of which the longest decides how wide a column is.
    Q_PROPERTY(QStringList statusLabels READ statusLabels NOTIFY languageChanged)
    /// What a chooser of files offers.
    Q_PROPERTY(QStringList nameFilters READ nameFilters NOTIFY languageChanged)
public:
    explicit AppUIState(QObject *parent = nullptr);

    /// The desktop's text size beside the one the window was drawn for (13 pixels): 1 to 1.6.
    [[nodiscard]] double textScale() const;
    /// Whether things may move: the desktop wants it, and VARLO_NO_ANIMATIONS is not set.
    [[nodiscard]] bool isAnimated() const;
    void setMotionWanted(bool isWanted);
    [[nodiscard]] QString localeName() const;
    [[nodiscard]] int supportedCount() const;
    [[nodiscard]] QVariantList formatSections() const;
    [[nodiscard]] QVariantList languageOptions() const;
    [[nodiscard]] QStringList statusLabels() const;
    [[nodiscard]] QStringList nameFilters() const;

signals:
    void shownChanged();
    void languageChanged();
    void motionChanged();
    /// Alt was pressed and released.
    void menuRequested();
    /// Typing is to be undone, or else the latest rename.
    void undoRequested();

private:
    bool m_showingSettings = false;
    bool m_showingHistory = false;
    bool m_showingProvider = false;
    bool m_showingFormats = false;
    bool m_hasGlobalMenu = false;
    bool m_isMotionWanted = true;
};

} // namespace Varlo
