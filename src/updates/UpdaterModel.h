// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updates/UpdateChecker.h"
#include <functional>
#include <memory>

namespace Varlo {

/// The check for updates as a window offers it: one at a time, and its answer in words. It never installs anything.
class UpdaterModel final : public QObject {
    Q_OBJECT
    /// False in a build without a feed, which packages update, and while a check is under way.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY changed)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY changed)
    /// A check is under way, or its answer is to be read still.
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// There is a page that tells of a newer version.
    Q_PROPERTY(bool hasPage READ hasPage NOTIFY changed)
public:
    using OpenPage = std::function<void(const QUrl &page)>;
    /// The checker is null where there is no feed.
    UpdaterModel(std::unique_ptr<UpdateChecker> checker, QVersionNumber ownVersion, OpenPage openPage,
        QObject *parent = nullptr);

    [[nodiscard]] bool canCheckForUpdates() const { return m_checker && !m_isChecking; }
    [[nodiscard]] bool isChecking() const { return m_isChecking; }
    [[nodiscard]] bool isShown() const { return m_isShown; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString detail() const;
    [[nodiscard]] bool hasPage() const;

    Q_INVOKABLE void checkForUpdates();
    Q_INVOKABLE void openPage();
    /// The answer has been read, or is not waited for any more.
    Q_INVOKABLE void dismiss();
    /// Announces every text again, in the interface's new language.
    void retranslate() { emit changed(); }

signals:
    void changed();

private:
    QCoro::Task<void> check();
    [[nodiscard]] bool isNewer() const;

    std::unique_ptr<UpdateChecker> m_checker;
    QVersionNumber m_ownVersion;
    OpenPage m_openPage;
    bool m_isChecking = false;
    bool m_isShown = false;
    Result<Release, Message> m_answer;
};

} // namespace Varlo
