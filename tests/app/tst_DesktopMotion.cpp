// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DesktopMotion.h"
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

/// The settings portal of a desktop, with the settings that it has.
class FakePortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QMap<QString, QVariant> values;

public slots:
    Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key, const QDBusMessage &message)
    {
        const auto value = values.constFind(group + u' ' + key);
        if (value == values.constEnd()) {
            message.setDelayedReply(true);
            bus().send(message.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"not found"_s));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(*value))); // wrapped twice, as the portal does
    }

signals:
    Q_SCRIPTABLE void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

public:
    static QDBusConnection bus() { return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s); }
};

class DesktopMotionTest final : public QObject {
    Q_OBJECT
private slots:
    void follows_data();
    void follows();
    void hearsOfChanges();
    void needsNoPortal();
};

void DesktopMotionTest::follows_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isWanted");
    const QString gnome = u"org.gnome.desktop.interface enable-animations"_s;
    const QString kde = u"org.kde.kdeglobals.KDE AnimationDurationFactor"_s;
    QTest::newRow("GNOME without") << gnome << QVariant(false) << false;
    QTest::newRow("GNOME with") << gnome << QVariant(true) << true;
    QTest::newRow("KDE without") << kde << QVariant(u"0"_s) << false;
    QTest::newRow("KDE faster") << kde << QVariant(u"0.25"_s) << true;
    QTest::newRow("KDE nonsense") << kde << QVariant(u"fast"_s) << true;
    QTest::newRow("of another kind") << gnome << QVariant(0) << true;
    QTest::newRow("something else") << u"org.gnome.desktop.interface font-name"_s << QVariant(false) << true;
}

void DesktopMotionTest::follows()
{
    QFETCH(QString, setting);
    QFETCH(QVariant, value);
    QFETCH(bool, isWanted);
    FakePortal portal;
    portal.values.insert(setting, value);
    QDBusConnection bus = FakePortal::bus();
    QVERIFY(
        bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal, QDBusConnection::ExportScriptableContents));
    QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    DesktopMotion motion;
    motion.follow(QDBusConnection::sessionBus());
    QTRY_COMPARE_WITH_TIMEOUT(motion.findChildren<QObject *>().size(), 0, 60'000); // both answers have come
    QCOMPARE(motion.isWanted(), isWanted);
    QVERIFY(bus.unregisterService(u"org.freedesktop.portal.Desktop"_s));
}

void DesktopMotionTest::hearsOfChanges()
{
    FakePortal portal;
    QDBusConnection bus = FakePortal::bus();
    QVERIFY(
        bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal, QDBusConnection::ExportScriptableContents));
    QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    DesktopMotion motion;
    const QSignalSpy changed(&motion, &DesktopMotion::changed);
    motion.follow(QDBusConnection::sessionBus());
    QTRY_COMPARE_WITH_TIMEOUT(motion.findChildren<QObject *>().size(), 0, 60'000);
    emit portal.SettingChanged(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, QDBusVariant(false));
    QTRY_VERIFY_WITH_TIMEOUT(!motion.isWanted(), 60'000);
    emit portal.SettingChanged(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, QDBusVariant(true));
    QTRY_VERIFY_WITH_TIMEOUT(motion.isWanted(), 60'000);
    QCOMPARE(changed.size(), 2);
    QVERIFY(bus.unregisterService(u"org.freedesktop.portal.Desktop"_s));
}

void DesktopMotionTest::needsNoPortal()
{
    DesktopMotion motion;
    motion.follow(QDBusConnection(u"none"_s));
    QVERIFY(motion.isWanted());
}

QTEST_GUILESS_MAIN(DesktopMotionTest)
#include "tst_DesktopMotion.moc"
