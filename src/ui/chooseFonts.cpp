// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/chooseFonts.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QThreadPool>

namespace Varlo {

using namespace Qt::StringLiterals;

void chooseFonts()
{
    QFont::insertSubstitutions(u"Inter"_s, { u"Cantarell"_s, u"Noto Sans"_s });
    QFont::insertSubstitutions(u"Inter Display"_s, { u"Inter"_s, u"Cantarell"_s, u"Noto Sans"_s });
    QFont::insertSubstitutions(u"JetBrains Mono"_s, { u"Noto Sans Mono"_s, u"monospace"_s });
    QFont font = QGuiApplication::font();
    font.setFamily(u"Inter"_s);
    QGuiApplication::setFont(font);
    // Nothing of the start takes longer than to read what fonts the system has, and the main thread has other work
    // before its first word.
    QThreadPool::globalInstance()->start([font] { (void)QFontMetricsF(font).height(); });
}

} // namespace Varlo
