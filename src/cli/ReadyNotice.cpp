// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ReadyNotice.h"

#include "cli/suggestNames.h"
#include "platform/visibleText.h"
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

ReadyNotice::ReadyNotice(std::unique_ptr<Notifier> notifier)
    : m_notifier(std::move(notifier))
{
    m_notifier->whenChosen = [this](const QString &) { open(); };
    m_notifier->whenGone = [this] { forget(); };
}

void ReadyNotice::add(const FileItem &item)
{
    if (std::holds_alternative<FileItem::Suggested>(item.status)) {
        m_files.push_back(
            { item.path, item.identity.value_or(FileIdentity {}), item.suggestedName, item.suggestedTags });
        m_newestNames.append(visibleText(suggestedFileName(item)));
    } else if (const auto *failed = std::get_if<FileItem::Failed>(&item.status)) {
        m_failure = m_failedCount++ == 0 ? visibleMessage(failed->message) : m_failure;
    } else {
        return;
    }
    m_hasNews = true;
}

void ReadyNotice::show()
{
    if (std::exchange(m_hasNews, false))
        m_notifier->show(notification());
}

Notification ReadyNotice::notification() const
{
    constexpr qsizetype shownNames = 3;
    Notification result;
    QStringList lines = m_newestNames.last(std::min(shownNames, m_newestNames.size()));
    if (m_newestNames.size() > shownNames)
        lines.prepend(u"…"_s);
    if (m_files.empty()) {
        result.title = QCoreApplication::translate("Notification", "No names for %n file(s)", nullptr, m_failedCount);
        lines.append(m_failure);
    } else {
        const int count = static_cast<int>(m_files.size());
        result.title = QCoreApplication::translate("Notification", "%n name(s) ready", nullptr, count);
        //: A button of a notification; opens the window with the files
        const QString label = QCoreApplication::translate("Notification", "Review");
        result.actions = { { u"default"_s, label }, { u"review"_s, label } };
    }
    result.text = lines.join(u'\n');
    return result;
}

void ReadyNotice::open()
{
    if (!m_files.empty())
        m_notifier->openWindow(m_files);
    forget();
}

void ReadyNotice::forget()
{
    m_files.clear();
    m_newestNames.clear();
    m_failedCount = 0;
}

} // namespace Varlo
