// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickLook.h"

#include "platform/Result.h"
#include "platform/visibleText.h"
#include <cmath>
#include <QPointer>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr double sheetWidth = 672; // of what the sheet has for the picture
static constexpr int keyRepeatMs = 60; // a held key comes more often

QuickLook::QuickLook(RenamerViewModel &batch, PreviewReader &reader, QObject *parent)
    : QObject(parent)
    , m_batch(batch)
    , m_reader(reader)
    , m_readSoon(this)
{
    m_readSoon.setSingleShot(true);
    connect(&m_readSoon, &QTimer::timeout, this, &QuickLook::read);
    connect(&batch, &QAbstractItemModel::modelReset, this, &QuickLook::close);
    connect(&batch, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &first, const QModelIndex &last) {
        if (first.row() <= m_row && m_row <= last.row())
            emit namesChanged();
    });
}

QVariant QuickLook::role(RenamerViewModel::Role role) const { return m_batch.index(m_row).data(role); }

QString QuickLook::oldName() const
{
    const QString previous = role(RenamerViewModel::PreviousNameRole).toString();
    return previous.isEmpty() ? role(RenamerViewModel::FileNameRole).toString() : previous;
}

QString QuickLook::newName() const
{
    if (!role(RenamerViewModel::PreviousNameRole).toString().isEmpty())
        return role(RenamerViewModel::FileNameRole).toString();
    const QString name = role(RenamerViewModel::SuggestedNameRole).toString();
    return name.isEmpty() ? QString() : name + role(RenamerViewModel::ExtensionRole).toString();
}

QString QuickLook::message() const
{
    return std::visit(Overloaded {
                          [](std::monostate) { return QString(); },
                          [](const Unreadable &unreadable) { return visibleMessage(unreadable.message); },
                          [](NoTextFound) { return label(FileItem::NoTextFound {}); },
                          [](NotSupportedYet) { return label(FileItem::NotSupportedYet {}); },
                      },
        m_nothing);
}

void QuickLook::open(int row, double pixelRatio)
{
    if (row < 0 || row >= m_batch.rowCount())
        return;
    const bool wasOpen = isOpen();
    m_longestSide = static_cast<int>(std::ceil(sheetWidth * pixelRatio));
    show(row);
    if (!wasOpen)
        emit isOpenChanged();
}

void QuickLook::step(int by)
{
    const int row = m_row + by;
    if (isOpen() && row >= 0 && row < m_batch.rowCount())
        show(row);
}

void QuickLook::close()
{
    if (!isOpen())
        return;
    m_row = -1;
    m_readSoon.stop();
    clearContent();
    emit contentChanged();
    emit isOpenChanged();
}

void QuickLook::show(int row)
{
    m_row = row;
    clearContent();
    m_isReading = true;
    m_readSoon.start(keyRepeatMs);
    emit rowChanged();
    emit namesChanged();
    emit contentChanged();
}

void QuickLook::clearContent()
{
    ++m_lookCount;
    m_isReading = false;
    m_picture = {};
    m_text.clear();
    m_nothing.emplace<std::monostate>();
}

QCoro::Task<void> QuickLook::read()
{
    const QPointer<QuickLook> self = this;
    const quint64 look = m_lookCount;
    const std::filesystem::path path = m_batch.files()[static_cast<std::size_t>(m_row)].path;
    const Preview preview = co_await m_reader.preview(path, m_longestSide);
    if (!self || look != m_lookCount)
        co_return;
    m_isReading = false;
    take(preview);
    emit contentChanged();
}

/// Lines stay lines, and nothing else in them acts.
static QString visibleLines(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        line = visibleText(line.replace(u'\t', u"    "_s));
    }
    return lines.join(u'\n');
}

void QuickLook::take(const Preview &preview)
{
    std::visit(Overloaded {
                   [this](const TextPreview &text) { m_text = visibleLines(text.text); },
                   [this](const PicturePreview &picture) {
                       const auto *const pixels = reinterpret_cast<const uchar *>(picture.pixels.constData());
                       const int width = picture.size.width();
                       // Converted, so that it no longer refers to the bytes.
                       m_picture = QImage(pixels, width, picture.size.height(), width * 3, QImage::Format_RGB888)
                                       .convertToFormat(QImage::Format_RGB32);
                   },
                   [this](const Unreadable &unreadable) { m_nothing = unreadable; },
                   [this](NoTextFound) { m_nothing = NoTextFound {}; },
                   [this](NotSupportedYet) { m_nothing = NotSupportedYet {}; },
               },
        preview);
}

} // namespace Varlo
