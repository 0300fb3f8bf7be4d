// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Varlo {

/// Keys that no Shortcut can have: Alt pressed and released alone, and Ctrl+Z while a text field has the keyboard,
/// which takes it even where it has nothing to undo.
class WindowKeys final : public QObject {
    Q_OBJECT
public:
    /// Watches the window, which owns the new object.
    explicit WindowKeys(QObject *window);

signals:
    void menuRequested();
    void undoRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isAltAlone = false;
};

} // namespace Varlo
