// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdaterModel.h"

#include <QPointer>
#include <utility>

namespace Varlo {

UpdaterModel::UpdaterModel(
    std::unique_ptr<UpdateChecker> checker, QVersionNumber ownVersion, OpenPage openPage, QObject *parent)
    : QObject(parent)
    , m_checker(std::move(checker))
    , m_ownVersion(std::move(ownVersion))
    , m_openPage(std::move(openPage))
{
}

bool UpdaterModel::isNewer() const { return m_answer && m_answer->version > m_ownVersion; }

bool UpdaterModel::hasPage() const { return !m_isChecking && isNewer(); }

QString UpdaterModel::title() const
{
    if (m_isChecking)
        return tr("Checking for updates…");
    if (!m_answer)
        return tr("Updates could not be checked.");
    //: %1 is a version, as 1.2.0
    return isNewer() ? tr("Varlo %1 is available.").arg(m_answer->version.toString()) : tr("Varlo is up to date.");
}

QString UpdaterModel::detail() const
{
    if (!m_isChecking && !m_answer)
        return m_answer.error().text();
    return tr("You have version %1.").arg(m_ownVersion.toString());
}

void UpdaterModel::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    m_isChecking = true;
    m_isShown = true;
    emit changed();
    check();
}

QCoro::Task<void> UpdaterModel::check()
{
    const QPointer<UpdaterModel> self = this;
    Result<Release, Message> answer = co_await m_checker->latestRelease();
    if (!self)
        co_return;
    m_answer = std::move(answer);
    m_isChecking = false;
    emit changed();
}

void UpdaterModel::openPage()
{
    if (hasPage())
        m_openPage(m_answer->page);
    dismiss();
}

void UpdaterModel::dismiss()
{
    if (!std::exchange(m_isShown, false))
        return; // a view that closes says so, whatever closed it
    emit changed();
}

} // namespace Varlo
