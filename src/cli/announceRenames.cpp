// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/announceRenames.h"

#include "notify/makeNotifier.h"
#include "platform/visibleText.h"
#include <chrono>
#include <QCoreApplication>
#include <QCoroTask>
#include <QEventLoop>
#include <QTimer>

namespace Varlo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto undoLimit = 10min;

static Notification summaryNotification(const RenameSummary &summary)
{
    constexpr qsizetype shownNames = 3;
    Notification result;
    QStringList lines = summary.newNames.first(std::min(shownNames, summary.newNames.size()));
    if (summary.newNames.size() > shownNames)
        lines.append(u"…"_s);
    if (summary.failedCount > 0) {
        lines.append(QCoreApplication::translate("Notification", "%n file(s) not renamed", nullptr, summary.failedCount)
            + u": "_s + summary.failure);
    } else if (!summary.failure.isEmpty()) {
        lines.append(summary.failure);
    }
    const int count = static_cast<int>(summary.entryIds.size());
    if (count > 0) {
        result.title = QCoreApplication::translate("Notification", "%n file(s) renamed", nullptr, count);
        //: A button of a notification; takes the renames back
        result.actions = { { u"undo"_s, QCoreApplication::translate("Notification", "Undo") } };
    } else {
        result.title = QCoreApplication::translate("Notification", "No file was renamed");
    }
    result.text = lines.join(u'\n');
    return result;
}

/// Newest first, so that names that were passed on within the batch come back to their files.
static Notification takeBack(const std::vector<QString> &entryIds, Session &session)
{
    int count = 0;
    QStringList complaints;
    const RenameLog::Action action = session.renameLog().beginAction();
    for (auto id = entryIds.rbegin(); id != entryIds.rend(); ++id) {
        const RenameLog::RevertOutcome outcome = QCoro::waitFor(session.renameLog().revert(*id));
        if (!outcome)
            complaints.append(visibleMessage(outcome.error()));
        else if (*outcome)
            ++count;
    }
    complaints.removeDuplicates();
    return { QCoreApplication::translate("Notification", "%n rename(s) taken back", nullptr, count),
        complaints.join(u'\n'), {} };
}

/// The action that the user chose; "" for none.
static QString choiceOf(Notifier &notifier, const Notification &notification)
{
    QEventLoop loop;
    QString choice;
    notifier.whenChosen = [&](const QString &actionId) {
        choice = actionId;
        loop.quit();
    };
    notifier.whenGone = [&loop] { loop.quit(); };
    notifier.show(notification);
    QTimer::singleShot(undoLimit, &loop, [&notifier] { notifier.close(); });
    loop.exec();
    notifier.whenGone = notifier.whenShown = [] {};
    return choice;
}

static void showAndLeave(Notifier &notifier, const Notification &notification)
{
    QEventLoop loop;
    notifier.whenShown = notifier.whenGone = [&loop] { loop.quit(); };
    notifier.show(notification);
    loop.exec();
}

void announceRenames(const RenameSummary &summary, Session &session)
{
    const std::unique_ptr<Notifier> notifier = makeNotifier();
    if (!notifier) {
        session.terminal().complain(
            QCoreApplication::translate("Terminal", "this session has no notifications to show"));
        return;
    }
    const Notification notification = summaryNotification(summary);
    if (notification.actions.isEmpty())
        showAndLeave(*notifier, notification);
    else if (choiceOf(*notifier, notification) == "undo"_L1)
        showAndLeave(*notifier, takeBack(summary.entryIds, session));
}

} // namespace Varlo
