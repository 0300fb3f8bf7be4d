// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FolderPanel.h"

#include "platform/localPath.h"
#include "renaming/FolderAccess.h"
#include <QCoroFuture>

namespace Varlo {

using Folder = std::optional<std::filesystem::path>;

FolderPanel::FolderPanel(QObject *parent)
    : QObject(parent)
{
}

FolderPanel::~FolderPanel() { answer({}); }

QCoro::Task<Folder> FolderPanel::ask(std::filesystem::path folder)
{
    if (m_question)
        co_return Folder {};
    m_question = std::make_unique<QPromise<Folder>>();
    m_question->start();
    QFuture<Folder> answered = m_question->future();
    emit asked(localUrl(folder));
    Folder chosen = co_await answered;
    co_return chosen;
}

QString FolderPanel::message() const { return FolderAccess::panelMessage(); }

QString FolderPanel::confirmation() const { return FolderAccess::panelConfirmation(); }

void FolderPanel::choose(const QUrl &folder) { answer(localPath(folder)); }

void FolderPanel::decline() { answer({}); }

void FolderPanel::answer(Folder folder)
{
    const auto question = std::exchange(m_question, nullptr);
    if (!question)
        return;
    question->addResult(std::move(folder));
    question->finish();
}

} // namespace Varlo
