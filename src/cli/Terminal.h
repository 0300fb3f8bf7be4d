// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <vector>

namespace Varlo {

enum class Colour { Plain, Dim, Green, Yellow, Red };

struct TableCell {
    QString text; ///< already safe to print
    Colour colour = Colour::Plain;
};
using TableRow = std::vector<TableCell>;

/// Standard output and standard error as this call found them: results go to the one, everything else to the other.
/// Colours and cut columns are for a terminal only; what goes into a pipe or a file is whole and plain.
class Terminal {
public:
    /// Colours are off where the environment has NO_COLOR (https://no-color.org).
    Terminal();

    /// The message with a line break, on standard output.
    void print(const QString &line);
    /// One line that scripts read; written in one piece, so that lines of several calls do not mix.
    void printJson(const QJsonObject &object);
    /// Rows below a heading, in columns as wide as they need; on a terminal the widest ones are cut to fit.
    void printTable(const QStringList &headings, const std::vector<TableRow> &rows);
    /// One row without a heading, for rows that come one at a time; cut as those of a table.
    void printRow(const TableRow &row);
    /// "varlo: message" on standard error.
    void complain(const QString &message);
    /// The message on standard error.
    void inform(const QString &message);
    /// Somebody can be asked: standard input and standard error are a terminal.
    [[nodiscard]] bool canAsk() const;
    /// Asks on standard error and reads a line. Only the language's yes is one; everything else, the end of input too,
    /// is no.
    [[nodiscard]] bool confirm(const QString &question);
    /// One line that the next call replaces; nothing where standard error is not a terminal. "" takes it away.
    void showProgress(const QString &line);
    /// False once standard output could not be written: a full disk, or a reader that has gone.
    [[nodiscard]] bool isOutputWhole() const { return m_isOutputWhole; }

private:
    void write(const QByteArray &bytes);
    [[nodiscard]] QString layOut(const std::vector<TableRow> &lines) const;
    [[nodiscard]] QString coloured(const QString &text, Colour colour) const;

    int m_columns = 0; // of standard output; 0 where it is no terminal
    bool m_hasColours = false;
    int m_progressColumns = 0; // of standard error; 0 where it is no terminal
    bool m_isProgressShown = false;
    bool m_isOutputWhole = true;
};

} // namespace Varlo
