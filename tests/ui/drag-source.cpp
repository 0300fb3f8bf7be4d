// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A window at 1120, 0 from which the files of the command line can be dragged, as from a file manager:
//     drag-source FILE...
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QUrl>

class Source final : public QRasterWindow {
protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (!(event->buttons() & Qt::LeftButton))
            return;
        QList<QUrl> urls;
        for (const QString &file : QGuiApplication::arguments().mid(1))
            urls.append(QUrl::fromLocalFile(file));
        auto *data = new QMimeData;
        data->setUrls(urls);
        auto *drag = new QDrag(this); // whoever takes the files asks for them after the drop
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction);
    }
};

int main(int argumentCount, char **arguments)
{
    const QGuiApplication application(argumentCount, arguments);
    Source source;
    source.setGeometry(1120, 0, 80, 80);
    source.show();
    return QGuiApplication::exec();
}
