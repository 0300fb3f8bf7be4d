// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/Notifier.h"
#include "workflow/FileItem.h"
#include <memory>

namespace Varlo {

/// "3 names ready" on the desktop, in one notification that grows until the user has looked; choosing it opens the
/// window with the files.
class ReadyNotice {
public:
    explicit ReadyNotice(std::unique_ptr<Notifier> notifier);

    /// A file that has come through its suggestion.
    void add(const FileItem &item);
    /// Tells of what was added since; nothing where nothing was.
    void show();

private:
    void open();
    void forget();
    [[nodiscard]] Notification notification() const;

    std::unique_ptr<Notifier> m_notifier;
    std::vector<SuggestedFile> m_files; ///< not looked at yet
    QStringList m_newestNames;
    int m_failedCount = 0;
    QString m_failure; ///< why the first of them failed
    bool m_hasNews = false;
};

} // namespace Varlo
