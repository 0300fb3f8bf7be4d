// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Shows an empty window of Qt Quick and quits with its first frame: what every such program costs.
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(EmptyPlugin)

int main(int argumentCount, char **arguments)
{
    const QGuiApplication application(argumentCount, arguments);
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Empty/Empty.qml")));
    auto *const window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    QObject::connect(window, &QQuickWindow::frameSwapped, &application, &QGuiApplication::quit);
    window->show();
    return QGuiApplication::exec();
}
