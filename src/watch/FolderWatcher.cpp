// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "watch/FolderWatcher.h"

#include "watch/listSupportedFiles.h"
#include <algorithm>
#include <QCoroFuture>
#include <QPointer>
#include <QtConcurrentRun>
#include <string_view>
#include <unordered_set>

namespace Varlo {

/// From one start to the next stop. A listing's thread reads `folder` and `knownFiles`; they change only while none is
/// under way.
struct FolderWatcher::Watch {
    std::filesystem::path folder;
    std::unordered_set<std::string> knownFiles; ///< paths, as bytes
    bool isListing = false;
    bool isScanDue = false; ///< the time for a scan came during a listing
    /// False until it is known which files were there at the start. `arrivedSinceStart` are the names that were not,
    /// though the first listing may have them already.
    bool hasBaseline = false;
    std::unordered_set<std::string> arrivedSinceStart;
};

struct FolderWatcher::Listing {
    std::vector<ListedFile> unknownFiles; ///< sorted by file name
    bool isFolderGone = false;
};

FolderWatcher::FolderWatcher(std::chrono::milliseconds scanDelay, QObject *parent)
    : QObject(parent)
    , m_scanDelay(scanDelay)
    , m_scanTimer(this)
{
    m_scanTimer.setSingleShot(true);
    m_scanTimer.setTimerType(Qt::PreciseTimer); // a coarse one may come early
    connect(&m_scanTimer, &QTimer::timeout, this, &FolderWatcher::scan);
}

FolderWatcher::~FolderWatcher() = default;

Result<void, SystemError> FolderWatcher::start(const std::filesystem::path &folder, bool includeExisting)
{
    stop();
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(folder, error);
    if (error)
        return tl::unexpected(SystemError { error.value() });
    const Result<FolderEvents *, SystemError> events = FolderEvents::open(resolved, this);
    if (!events)
        return tl::unexpected(events.error());

    m_events = *events;
    connect(m_events, &FolderEvents::pending, this, &FolderWatcher::takeEvents);
    m_watch = std::make_shared<Watch>();
    m_watch->folder = resolved;
    m_watch->hasBaseline = includeExisting;
    if (includeExisting)
        scheduleScan();
    else
        list();
    emit isWatchingChanged();
    return {};
}

void FolderWatcher::stop()
{
    m_scanTimer.stop();
    if (m_events) {
        m_events->disconnect(this);
        m_events->close();
        m_events->deleteLater(); // its own signal may be what led here
        m_events = nullptr;
    }
    if (std::exchange(m_watch, nullptr))
        emit isWatchingChanged();
    setPausedState(false);
}

void FolderWatcher::setPaused(bool isPaused)
{
    setPausedState(isPaused);
    if (!isPaused && isWatching())
        scheduleScan();
}

void FolderWatcher::setPausedState(bool isPaused)
{
    if (std::exchange(m_isPaused, isPaused) != isPaused)
        emit isPausedChanged();
}

void FolderWatcher::scheduleScan() { m_scanTimer.start(m_scanDelay); }

bool FolderWatcher::takeEvents()
{
    const FolderEvents::Slice slice = m_events->read();
    if (slice.isFolderLost) {
        giveUp();
        return false;
    }
    if (!m_watch->hasBaseline)
        m_watch->arrivedSinceStart.insert(slice.arrived.begin(), slice.arrived.end());
    if (!slice.isEmpty && !m_isPaused)
        scheduleScan();
    return !slice.isEmpty;
}

/// Those too that the event loop has not come to yet.
void FolderWatcher::takePendingEvents()
{
    constexpr int mostSlices = 256; // many times the system's own limit for a queue
    for (int slice = 0; slice < mostSlices && m_watch && takeEvents(); ++slice) { }
}

void FolderWatcher::scan()
{
    if (m_isPaused || m_scanTimer.isActive())
        return;
    if (m_watch->isListing)
        m_watch->isScanDue = true;
    else
        list();
}

QCoro::Task<void> FolderWatcher::list()
{
    const QPointer<FolderWatcher> self = this;
    const std::shared_ptr<Watch> watch = m_watch;
    watch->isListing = true;
    QFuture<std::shared_ptr<Listing>> future = QtConcurrent::run([watch] { return listUnknownFiles(watch); });
    const std::shared_ptr<Listing> listing = co_await future;
    if (!self || m_watch != watch)
        co_return;
    watch->isListing = false;
    takePendingEvents(); // what the listing saw arriving has its event by now
    if (m_watch == watch)
        take(*listing);
}

static std::string_view fileName(const ListedFile &file)
{
    const std::string_view path(file.path.native());
    return path.substr(path.rfind('/') + 1);
}

std::shared_ptr<FolderWatcher::Listing> FolderWatcher::listUnknownFiles(const std::shared_ptr<const Watch> &watch)
{
    auto listing = std::make_shared<Listing>();
    auto files = listSupportedFiles(watch->folder);
    if (!files) {
        // Deleting a folder that somebody still stands in is no event until he leaves it, nor is moving its parent.
        listing->isFolderGone = files.error().code == ENOENT || files.error().code == ENOTDIR;
        return listing;
    }
    std::erase_if(*files, [&](const ListedFile &file) { return watch->knownFiles.contains(file.path.native()); });
    std::ranges::stable_sort(*files, {}, fileName);
    listing->unknownFiles = std::move(*files);
    return listing;
}

void FolderWatcher::take(Listing &listing)
{
    if (listing.isFolderGone) {
        giveUp();
        return;
    }
    const bool isScanDue = std::exchange(m_watch->isScanDue, false);
    const bool isBaseline = !m_watch->hasBaseline;
    if (isBaseline)
        adoptBaseline(listing);
    if (isScanDue) {
        scan();
        return;
    }
    // Something went on during the listing, so it may hold a file that is not whole yet; the next one will do.
    const bool isOutdated = m_scanTimer.isActive();
    if (!isBaseline && !m_isPaused && !isOutdated)
        report(listing);
}

void FolderWatcher::adoptBaseline(const Listing &listing)
{
    for (const ListedFile &file : listing.unknownFiles) {
        if (!m_watch->arrivedSinceStart.contains(file.name))
            m_watch->knownFiles.insert(file.path.native());
    }
    m_watch->hasBaseline = true;
    m_watch->arrivedSinceStart.clear();
}

void FolderWatcher::report(Listing &listing)
{
    std::vector<std::filesystem::path> files;
    for (ListedFile &file : listing.unknownFiles) {
        // Two links may lead to one file.
        if (m_watch->knownFiles.insert(file.path.native()).second)
            files.push_back(std::move(file.path));
    }
    if (!files.empty())
        emit newFilesFound(files);
}

void FolderWatcher::giveUp()
{
    stop();
    emit folderLost();
}

} // namespace Varlo
