// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/PreviewReader.h"
#include "workflow/RenamerViewModel.h"
#include <QImage>
#include <QObject>
#include <QTimer>

namespace Varlo {

/// One file of the batch at a glance: its picture, its first page or its first lines, and its two names. Lives on the
/// main thread and decodes nothing: what it shows comes as bare pixels or as text.
class QuickLook final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(int row READ row NOTIFY rowChanged)
    Q_PROPERTY(QString oldName READ oldName NOTIFY namesChanged)
    Q_PROPERTY(QString newName READ newName NOTIFY namesChanged)
    Q_PROPERTY(QString folderName READ folderName NOTIFY namesChanged)
    Q_PROPERTY(double byteSize READ byteSize NOTIFY namesChanged)
    Q_PROPERTY(bool isReading READ isReading NOTIFY contentChanged)
    Q_PROPERTY(QVariant picture READ shownPicture NOTIFY contentChanged)
    Q_PROPERTY(QString text READ text NOTIFY contentChanged)
    Q_PROPERTY(QString message READ message NOTIFY contentChanged)
public:
    /// Both outlive this object.
    QuickLook(RenamerViewModel &batch, PreviewReader &reader, QObject *parent = nullptr);

    /// `pixelRatio` is how many pixels of the screen a pixel of the window has along a side.
    Q_INVOKABLE void open(int row, double pixelRatio);
    /// Goes on to another row where there is one. A row that is passed over quickly is not read.
    Q_INVOKABLE void step(int by);
    Q_INVOKABLE void close();

    [[nodiscard]] bool isOpen() const { return m_row >= 0; }
    [[nodiscard]] int row() const { return m_row; } ///< -1 while closed
    [[nodiscard]] QString oldName() const;
    [[nodiscard]] QString newName() const; ///< the proposed one, or of a renamed file the one it has; "" for none
    [[nodiscard]] QString folderName() const { return role(RenamerViewModel::FolderNameRole).toString(); }
    [[nodiscard]] double byteSize() const { return role(RenamerViewModel::ByteSizeRole).toDouble(); }
    [[nodiscard]] bool isReading() const { return m_isReading; }
    [[nodiscard]] QImage picture() const { return m_picture; } ///< null where there is none
    [[nodiscard]] QVariant shownPicture() const { return m_picture; }
    [[nodiscard]] QString text() const { return m_text; } ///< the first lines; "" for none
    [[nodiscard]] QString message() const; ///< why there is nothing to see; "" otherwise
    /// The message is asked for again, in another language.
    void retranslate() { emit contentChanged(); }

signals:
    void isOpenChanged();
    void rowChanged();
    void namesChanged();
    void contentChanged();

private:
    [[nodiscard]] QVariant role(RenamerViewModel::Role role) const;
    void show(int row);
    void clearContent();
    QCoro::Task<void> read();
    void take(const Preview &preview);

    RenamerViewModel &m_batch;
    PreviewReader &m_reader;
    QTimer m_readSoon;
    int m_row = -1;
    int m_longestSide = 0;
    quint64 m_lookCount = 0; ///< tells an answer that comes after another row is looked at
    bool m_isReading = false;
    QImage m_picture;
    QString m_text;
    std::variant<std::monostate, Unreadable, NoTextFound, NotSupportedYet> m_nothing; ///< why there is nothing to see
};

} // namespace Varlo
