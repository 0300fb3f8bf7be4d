// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "cli/ReadyNotice.h"
#include "cli/suggestionCell.h"
#include "cli/suggestNames.h"
#include "notify/makeNotifier.h"
#include "platform/visibleText.h"
#include "watch/FolderWatcher.h"
#include "workflow/takeNewFiles.h"
#include <csignal>
#include <QCoreApplication>
#include <QEventLoop>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

/// One watch, from its start until the folder is lost or nothing can be printed any more. Outlives every task that it
/// starts.
class Watch final : public QObject {
public:
    Watch(const WatchCommand &command, RenamerViewModel &batch, Terminal &terminal);

    [[nodiscard]] ExitCode run();

private:
    QCoro::Task<void> take(std::vector<std::filesystem::path> files);
    void printAdmitted(int first, int last);
    void print(const FileItem &item);
    void notify();
    void complainOfStart(const SystemError &error);
    /// Ends the event loop as soon as the files in hand are through.
    void end();

    const WatchCommand &m_command;
    const std::filesystem::path m_folder;
    RenamerViewModel &m_batch;
    Terminal &m_terminal;
    FolderWatcher m_watcher;
    std::optional<ReadyNotice> m_notice;
    QEventLoop m_loop;
    int m_tasks = 0;
    bool m_isEnding = false;
    bool m_hasAdvisedOnKey = false;
};

} // namespace

Watch::Watch(const WatchCommand &command, RenamerViewModel &batch, Terminal &terminal)
    : m_command(command)
    , m_folder(resolvedArgument(command.folder))
    , m_batch(batch)
    , m_terminal(terminal)
{
    connect(&m_watcher, &FolderWatcher::newFilesFound, this,
        [this](const std::vector<std::filesystem::path> &files) { take(files); });
    connect(&m_watcher, &FolderWatcher::folderLost, this, [this] {
        m_terminal.complain(
            QCoreApplication::translate("Terminal", "the folder %1 is gone").arg(pathFromHere(m_folder)));
        end();
    });
    connect(&m_batch, &QAbstractItemModel::rowsInserted, this,
        [this](const QModelIndex &, int first, int last) { printAdmitted(first, last); });
    connect(&m_batch, &RenamerViewModel::suggestionFinished, this,
        [this](int row) { print(m_batch.files()[static_cast<std::size_t>(row)]); });
    if (m_command.notify)
        notify();
}

/// Once a run, since a pile of scans comes as one.
void Watch::notify()
{
    std::unique_ptr<Notifier> notifier = makeNotifier();
    if (!notifier) {
        m_terminal.complain(QCoreApplication::translate("Terminal", "this session has no notifications to show"));
        return;
    }
    m_notice.emplace(std::move(notifier));
    connect(&m_batch, &RenamerViewModel::suggestionFinished, this,
        [this](int row) { m_notice->add(m_batch.files()[static_cast<std::size_t>(row)]); });
    connect(&m_batch, &RenamerViewModel::isSuggestingChanged, this, [this] {
        if (!m_batch.isSuggesting())
            m_notice->show();
    });
}

ExitCode Watch::run()
{
    if (const Result<void, SystemError> started = m_watcher.start(m_folder, m_command.includeExisting); !started) {
        complainOfStart(started.error());
        return ExitCode::SomeFailed;
    }
    m_terminal.inform(QCoreApplication::translate("Terminal", "Watching %1 until Ctrl-C.").arg(pathFromHere(m_folder)));
    m_loop.exec();
    return ExitCode::SomeFailed; // an interrupt ends the process by itself
}

QCoro::Task<void> Watch::take(std::vector<std::filesystem::path> files)
{
    ++m_tasks;
    co_await takeNewFiles(&m_batch, std::move(files));
    --m_tasks;
    if (m_isEnding)
        end();
}

/// Files that get no suggestion, since Varlo gave them their names before.
void Watch::printAdmitted(int first, int last)
{
    for (int row = first; row <= last && m_terminal.isOutputWhole(); ++row) { // or else the batch is empty
        const FileItem &item = m_batch.files()[static_cast<std::size_t>(row)];
        if (!std::holds_alternative<FileItem::Pending>(item.status))
            print(item);
    }
}

void Watch::print(const FileItem &item)
{
    if (m_command.json) {
        m_terminal.printJson(toJson(item));
    } else {
        TableRow row { { pathFromHere(item.path), Colour::Plain }, { u"→"_s, Colour::Dim }, suggestionCell(item) };
        if (!item.suggestedTags.isEmpty())
            row.push_back({ visibleText(item.suggestedTags.join(u", "_s)), Colour::Dim });
        m_terminal.printRow(row);
    }
    if (lacksKey(item) && !std::exchange(m_hasAdvisedOnKey, true))
        adviseOnKey(m_terminal);
    if (!m_terminal.isOutputWhole()) {
        m_terminal.complain(QCoreApplication::translate("Terminal", "the suggestions can no longer be printed"));
        m_batch.clear(); // nothing more is read or asked for
        end();
    }
}

void Watch::complainOfStart(const SystemError &error)
{
    const bool isWatchingTooMuch = error.code == ENOSPC || error.code == EMFILE;
    m_terminal.complain(pathFromHere(m_folder) + u": "_s
        + (isWatchingTooMuch ? QCoreApplication::translate("Terminal",
               "too much is watched on this machine already (raise fs.inotify.max_user_watches and "
               "fs.inotify.max_user_instances)")
                             : error.description()));
}

void Watch::end()
{
    m_isEnding = true;
    m_watcher.stop();
    if (m_tasks == 0)
        m_loop.quit();
}

ExitCode run(const WatchCommand &command, Session &session)
{
    const std::unique_ptr<RenamerViewModel> batch = makeBatch(command.naming, session);
    if (!batch)
        return ExitCode::WrongUsage;
    exitOn(SIGTERM);
    return Watch(command, *batch, session.terminal()).run();
}

} // namespace Varlo
