// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FolderAccessPanel.h"
#include <QObject>
#include <QPromise>
#include <QUrl>

namespace Varlo {

/// Asks for a folder with the desktop's chooser, which the window opens when it is told to.
class FolderPanel final : public QObject, public FolderAccessPanel {
    Q_OBJECT
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString confirmation READ confirmation CONSTANT)
public:
    explicit FolderPanel(QObject *parent = nullptr);
    ~FolderPanel() override;
    /// A call while another one is open is declined.
    [[nodiscard]] QCoro::Task<std::optional<std::filesystem::path>> ask(std::filesystem::path folder) override;

    [[nodiscard]] QString message() const;
    [[nodiscard]] QString confirmation() const;
    Q_INVOKABLE void choose(const QUrl &folder);
    Q_INVOKABLE void decline();

signals:
    /// The chooser is to open in this folder and to end with choose() or decline().
    void asked(const QUrl &folder);

private:
    void answer(std::optional<std::filesystem::path> folder);
    std::unique_ptr<QPromise<std::optional<std::filesystem::path>>> m_question;
};

} // namespace Varlo
