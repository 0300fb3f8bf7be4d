// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Terminal.h"

#include "cli/elidedInMiddle.h"
#include "platform/Characters.h"
#include <algorithm>
#include <iostream>
#include <numeric>
#include <QCoreApplication>
#include <QJsonDocument>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

static int columnsOf(int descriptor)
{
    constexpr int usualColumns = 80;
    if (!::isatty(descriptor))
        return 0;
    winsize size {};
    return ::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usualColumns;
}

static bool writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count
            = ::write(descriptor, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        written += count;
    }
    return true;
}

Terminal::Terminal()
    : m_columns(columnsOf(STDOUT_FILENO))
    , m_hasColours(m_columns > 0 && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb")
    , m_progressColumns(columnsOf(STDERR_FILENO))
{
}

void Terminal::write(const QByteArray &bytes)
{
    showProgress({});
    m_isOutputWhole = m_isOutputWhole && writeAll(STDOUT_FILENO, bytes);
}

void Terminal::print(const QString &line) { write(line.toUtf8() + '\n'); }

void Terminal::printJson(const QJsonObject &object)
{
    write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

QString Terminal::coloured(const QString &text, Colour colour) const
{
    if (!m_hasColours || colour == Colour::Plain)
        return text;
    static constexpr std::array codes { 0, 2, 32, 33, 31 }; // SGR parameters, in the order of Colour (ECMA-48)
    return u"\033[%1m%2\033[0m"_s.arg(codes.at(static_cast<std::size_t>(colour))).arg(text);
}

/// Takes columns away from the widest until all fit.
static void shrink(std::vector<int> &widths, int available)
{
    constexpr int narrowest = 8;
    while (std::accumulate(widths.begin(), widths.end(), 0) > available) {
        const auto widest = std::ranges::max_element(widths);
        if (*widest <= narrowest)
            return;
        --*widest;
    }
}

void Terminal::printTable(const QStringList &headings, const std::vector<TableRow> &rows)
{
    std::vector<TableRow> lines;
    lines.emplace_back();
    for (const QString &heading : headings)
        lines.back().push_back({ heading, Colour::Dim });
    lines.insert(lines.end(), rows.begin(), rows.end());
    write(layOut(lines).toUtf8());
}

void Terminal::printRow(const TableRow &row) { write(layOut({ row }).toUtf8()); }

QString Terminal::layOut(const std::vector<TableRow> &lines) const
{
    constexpr int gap = 2;
    const std::size_t columnCount = lines.front().size();
    std::vector<int> widths(columnCount, 0);
    for (const TableRow &line : lines) {
        for (std::size_t column = 0; column < columnCount; ++column)
            widths[column] = std::max(widths[column], terminalWidth(line[column].text));
    }
    if (m_columns > 0)
        shrink(widths, m_columns - gap * static_cast<int>(columnCount - 1));

    QString out;
    for (const TableRow &line : lines) {
        for (std::size_t column = 0; column < columnCount; ++column) {
            const QString text = elidedInMiddle(line[column].text, widths[column]);
            out += coloured(text, line[column].colour);
            if (column + 1 < columnCount)
                out += QString(widths[column] - terminalWidth(text) + gap, u' ');
        }
        while (out.endsWith(u' '))
            out.chop(1);
        out += u'\n';
    }
    return out;
}

void Terminal::complain(const QString &message) { inform(u"varlo: "_s + message); }

void Terminal::inform(const QString &message)
{
    showProgress({});
    writeAll(STDERR_FILENO, message.toUtf8() + '\n');
}

bool Terminal::canAsk() const { return m_progressColumns > 0 && ::isatty(STDIN_FILENO); }

bool Terminal::confirm(const QString &question)
{
    showProgress({});
    //: What has to be typed for yes; the capital letter marks what a mere Return means
    const QString choices = QCoreApplication::translate("Terminal", "[y/N]");
    writeAll(STDERR_FILENO, (question + u' ' + choices + u' ').toUtf8());
    std::string answer;
    std::getline(std::cin, answer);
    //: The letter that means yes
    const QString yes = QCoreApplication::translate("Terminal", "y");
    return QString::fromStdString(answer).trimmed().startsWith(yes, Qt::CaseInsensitive);
}

void Terminal::showProgress(const QString &line)
{
    if (m_progressColumns == 0 || (line.isEmpty() && !m_isProgressShown))
        return;
    // Back to the first column, then erase to the end of the line (ECMA-48 EL).
    writeAll(STDERR_FILENO, "\r\033[K" + elidedInMiddle(line, m_progressColumns - 1).toUtf8());
    m_isProgressShown = !line.isEmpty();
}

} // namespace Varlo
