// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowKeys.h"

#include <QKeyEvent>

namespace Varlo {

WindowKeys::WindowKeys(QObject *window)
    : QObject(window)
{
    window->installEventFilter(this);
}

static bool isUndo(QEvent *event) { return static_cast<QKeyEvent *>(event)->matches(QKeySequence::Undo); }

static bool isAlt(QEvent *event)
{
    const auto *key = static_cast<QKeyEvent *>(event);
    return key->key() == Qt::Key_Alt && !key->isAutoRepeat();
}

bool WindowKeys::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // comes first: who accepts it gets the key itself
        if (!isUndo(event))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        m_isAltAlone = isAlt(event);
        if (!isUndo(event))
            return false;
        emit undoRequested();
        return true;
    case QEvent::KeyRelease:
        if (std::exchange(m_isAltAlone, false) && isAlt(event))
            emit menuRequested();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut: // Alt+Tab
        m_isAltAlone = false;
        return false;
    default:
        return false;
    }
}

} // namespace Varlo
