// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/FolderEvents.h"
#include <chrono>
#include <filesystem>
#include <memory>
#include <QCoroTask>
#include <QObject>
#include <QTimer>
#include <vector>

namespace Varlo {

/// Reports the files that appear in one folder once the folder has been quiet for a while, so that a file still being
/// written comes once and whole. Lives on the main thread, which it never keeps waiting for a listing.
class FolderWatcher final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isPaused READ isPaused WRITE setPaused NOTIFY isPausedChanged)
    Q_PROPERTY(bool isWatching READ isWatching NOTIFY isWatchingChanged)
public:
    static constexpr std::chrono::milliseconds usualScanDelay { 800 };

    /// `scanDelay` is how long the folder has to be quiet.
    explicit FolderWatcher(std::chrono::milliseconds scanDelay = usualScanDelay, QObject *parent = nullptr);
    ~FolderWatcher() override;

    /// Watches this folder in place of the one before. With `includeExisting` the files already there count as new. On
    /// failure nothing is watched; the errors are those of FolderEvents::open().
    [[nodiscard]] Result<void, SystemError> start(const std::filesystem::path &folder, bool includeExisting);
    /// Forgets everything, the pause too. What was about to be reported is not.
    void stop();

    [[nodiscard]] bool isWatching() const { return m_watch != nullptr; }
    /// While paused nothing is reported; what came meanwhile is when the pause ends.
    [[nodiscard]] bool isPaused() const { return m_isPaused; }
    void setPaused(bool isPaused);

signals:
    void isPausedChanged();
    void isWatchingChanged();
    /// Sorted by file name in the order of bytes, never empty. A path is reported once, also when the file is deleted
    /// and made again. The folder's own path has its links resolved, and so has a file's.
    void newFilesFound(const std::vector<std::filesystem::path> &files);
    /// The folder was deleted, moved or unmounted, and the watch stopped.
    void folderLost();

private:
    struct Watch;
    struct Listing;

    [[nodiscard]] static std::shared_ptr<Listing> listUnknownFiles(const std::shared_ptr<const Watch> &watch);
    void takePendingEvents();
    /// False where there was nothing to take.
    bool takeEvents();
    void scheduleScan();
    void scan();
    QCoro::Task<void> list();
    void take(Listing &listing);
    void adoptBaseline(const Listing &listing);
    void report(Listing &listing);
    void giveUp();
    void setPausedState(bool isPaused);

    std::chrono::milliseconds m_scanDelay;
    QTimer m_scanTimer; ///< runs from the last event until the scan
    bool m_isPaused = false;
    std::shared_ptr<Watch> m_watch; ///< null while stopped; what waits for a listing tells by it that it is outdated
    FolderEvents *m_events = nullptr;
};

} // namespace Varlo
