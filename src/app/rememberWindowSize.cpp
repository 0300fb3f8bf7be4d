// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/rememberWindowSize.h"

#include <chrono>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace Varlo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Nothing for words that are no size, as those of a hand in the file may be.
static std::optional<QSize> parse(const QString &words)
{
    const QStringList numbers = words.split(u'x');
    bool isWidth = false;
    bool isHeight = false;
    const QSize size(numbers.value(0).toInt(&isWidth), numbers.value(1).toInt(&isHeight));
    return numbers.size() == 2 && isWidth && isHeight ? std::optional(size) : std::nullopt;
}

static void store(const QWindow &window, Preferences &preferences)
{
    const QString words = u"%1x%2"_s.arg(window.width()).arg(window.height());
    if (!window.isVisible() || window.windowState() != Qt::WindowNoState
        || words == preferences.string(Preference::windowSize)) {
        return;
    }
    // A size that cannot be stored is no loss worth a word.
    static_cast<void>(preferences.set(Preference::windowSize, words));
}

void rememberWindowSize(QWindow &window, Preferences &preferences)
{
    if (const auto size = parse(preferences.string(Preference::windowSize))) {
        const QSize room = window.screen() ? window.screen()->availableSize() : *size;
        window.resize(size->boundedTo(room).expandedTo(window.minimumSize()));
    }
    auto *timer = new QTimer(&window); // dragging an edge makes a hundred sizes
    timer->setSingleShot(true);
    timer->setInterval(300ms);
    for (auto change : { &QWindow::widthChanged, &QWindow::heightChanged })
        QObject::connect(&window, change, timer, [timer] { timer->start(); });
    QObject::connect(timer, &QTimer::timeout, &window, [&window, &preferences] { store(window, preferences); });
}

} // namespace Varlo
