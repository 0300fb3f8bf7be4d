// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// GLib's headers use "signals" as a name.
#define QT_NO_KEYWORDS
#include "platform/linux/SecretServiceStore.h"

#include <gio/gio.h>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <signal.h>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;
using namespace Varlo;
using Failure = SecretStore::Failure;

template <typename Value> static Value wait(QCoro::Task<Value> &&task) { return QCoro::waitFor(std::move(task)); }

/// Runs against gnome-keyring's daemon on a bus that starts no services by itself.
class SecretServiceStoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void keepsOneItemAnAccount();
    void readsNoKeyFromBytesThatAreNotText();
    void neverPromptsToRead();
    void followsTheBus();
    void saysUnavailable_data();
    void saysUnavailable();

private:
    void startBus();
    void startKeyring();
    void startMute(QProcess &process, const QString &name) const;
    static QByteArray helper(const QStringList &arguments);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QProcess> m_bus;
    std::unique_ptr<QProcess> m_keyring;
    SecretServiceStore m_store;
};

static const QString helperPath = QStringLiteral(VARLO_SECRET_SERVICE_HELPER);

static bool isLoaded(const QByteArray &library)
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

void SecretServiceStoreTest::initTestCase()
{
    // Its GLib libraries are no measure: Qt Network of Debian 13 brings them, and so the tests' own support.
    QVERIFY2(!isLoaded("libsecret"), "a start must not pay for the keyring's libraries");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    (void)wait(m_store.load(u"a"_s));
    QVERIFY2(isLoaded("libsecret"), "the module was not found, so nothing below would test it");
}

void SecretServiceStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath(u"data"_s)));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder->path()));
}

/// A test that is killed leaves no daemon behind, which would keep whatever it inherited.
static void dieWithTheTest(QProcess &process)
{
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

static void stop(std::unique_ptr<QProcess> &process)
{
    if (process) {
        process->kill();
        process->waitForFinished();
    }
    process.reset();
}

void SecretServiceStoreTest::cleanup()
{
    stop(m_keyring);
    stop(m_bus);
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

void SecretServiceStoreTest::startBus()
{
    QFile configuration(m_folder->filePath(u"bus.conf"_s));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write(R"(<busconfig><type>session</type><listen>unix:dir=)" + m_folder->path().toUtf8()
        + R"(</listen><auth>EXTERNAL</auth><policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>)");
    configuration.close();
    m_bus = std::make_unique<QProcess>();
    dieWithTheTest(*m_bus);
    m_bus->start(
        u"dbus-daemon"_s, { u"--nofork"_s, u"--print-address"_s, u"--config-file="_s + configuration.fileName() });
    QVERIFY(m_bus->waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->readLine().trimmed());
}

void SecretServiceStoreTest::startKeyring()
{
    startBus();
    m_keyring = std::make_unique<QProcess>();
    dieWithTheTest(*m_keyring);
    m_keyring->start(u"gnome-keyring-daemon"_s, { u"--foreground"_s, u"--unlock"_s, u"--components=secrets"_s });
    m_keyring->write("password");
    QVERIFY(m_keyring->waitForBytesWritten());
    m_keyring->closeWriteChannel();
    helper({ u"wait"_s, u"org.freedesktop.secrets"_s });
}

void SecretServiceStoreTest::startMute(QProcess &process, const QString &name) const
{
    dieWithTheTest(process);
    process.start(helperPath, { u"mute"_s, name });
    QVERIFY(process.waitForReadyRead());
    QCOMPARE(process.readLine(), "ready\n");
}

QByteArray SecretServiceStoreTest::helper(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    dieWithTheTest(process);
    process.start(helperPath, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("The helper failed: %s", qPrintable(arguments.join(u' ')));
    return process.readAllStandardOutput();
}

void SecretServiceStoreTest::keepsOneItemAnAccount()
{
    startKeyring();
    const QString account = u"anthropic"_s;
    const QString other = u"http://127.0.0.1:8080"_s;
    QVERIFY(wait(m_store.load(account)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(m_store.save(account, u"first"_s)));
    QVERIFY(wait(m_store.save(account, u"s\u00e9cond\n"_s)));
    QVERIFY(wait(m_store.load(account)) == u"s\u00e9cond\n"_s);
    QCOMPARE(helper({ u"count"_s, account }), "1\n");
    QVERIFY(wait(m_store.load(other)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(m_store.save(other, u"other"_s)));
    QVERIFY(wait(m_store.remove(account)));
    QVERIFY(wait(m_store.remove(account)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(m_store.load(account)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(m_store.load(other)) == u"other"_s);
}

void SecretServiceStoreTest::readsNoKeyFromBytesThatAreNotText()
{
    startKeyring();
    helper({ u"bytes"_s, u"anthropic"_s });
    QVERIFY(wait(m_store.load(u"anthropic"_s)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(m_store.save(u"anthropic"_s, u"text"_s)));
    QVERIFY(wait(m_store.load(u"anthropic"_s)) == u"text"_s);
    QCOMPARE(helper({ u"count"_s, u"anthropic"_s }), "1\n");
}

void SecretServiceStoreTest::neverPromptsToRead()
{
    startKeyring();
    QVERIFY(wait(m_store.save(u"anthropic"_s, u"key"_s)));
    helper({ u"lock"_s });
    {
        QProcess prompter;
        startMute(prompter, u"org.gnome.keyring.SystemPrompter"_s);
        for (const QString &account : { u"anthropic"_s, u"http://[::1]:1"_s })
            QVERIFY2(wait(m_store.load(account)) == tl::make_unexpected(Failure::Locked), qPrintable(account));
        QCOMPARE(prompter.readAllStandardOutput(), "");
        prompter.kill();
        prompter.waitForFinished();
    }
    // Nobody is there to ask, so these cannot wait for an answer.
    QVERIFY(wait(m_store.save(u"anthropic"_s, u"new"_s)) == tl::make_unexpected(Failure::Locked));
    QVERIFY(wait(m_store.save(u"http://[::1]:1"_s, u"new"_s)) == tl::make_unexpected(Failure::Locked));
    QVERIFY(wait(m_store.remove(u"anthropic"_s)) == tl::make_unexpected(Failure::Locked));
    QCOMPARE(helper({ u"count"_s, u"anthropic"_s }), "1\n");
}

// Qt's and a desktop's plug-ins may hold GLib's shared connection, which stays closed once its bus has gone.
void SecretServiceStoreTest::followsTheBus()
{
    startBus();
    GDBusConnection *const shared = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    QVERIFY(shared);
    g_dbus_connection_set_exit_on_close(shared, FALSE);
    stop(m_bus);
    startKeyring();
    QVERIFY(wait(m_store.save(u"anthropic"_s, u"key"_s)));
    QVERIFY(wait(m_store.load(u"anthropic"_s)) == u"key"_s);
    g_object_unref(shared);
}

void SecretServiceStoreTest::saysUnavailable_data()
{
    QTest::addColumn<QString>("situation");
    for (const char *situation : { "no bus", "a bus that is gone", "a socket that says nothing", "no service",
             "a service that never answers", "a service that stops answering" })
        QTest::newRow(situation) << QString::fromLatin1(situation);
}

void SecretServiceStoreTest::saysUnavailable()
{
    QFETCH(QString, situation);
    QLocalServer silentSocket;
    QProcess mute;
    if (situation == "a bus that is gone"_L1) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    } else if (situation == "a socket that says nothing"_L1) {
        QVERIFY(silentSocket.listen(m_folder->filePath(u"socket"_s)));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + silentSocket.fullServerName().toUtf8());
    } else if (situation == "no service"_L1) {
        startBus();
    } else if (situation == "a service that never answers"_L1) {
        startBus();
        startMute(mute, u"org.freedesktop.secrets"_s);
    } else if (situation == "a service that stops answering"_L1) {
        startKeyring();
        QVERIFY(wait(m_store.save(u"anthropic"_s, u"key"_s)));
        QCOMPARE(::kill(static_cast<pid_t>(m_keyring->processId()), SIGSTOP), 0);
    }
    QVERIFY(wait(m_store.load(u"anthropic"_s)) == tl::make_unexpected(Failure::Unavailable));
    QVERIFY(wait(m_store.save(u"anthropic"_s, u"key"_s)) == tl::make_unexpected(Failure::Unavailable));
    QVERIFY(wait(m_store.remove(u"anthropic"_s)) == tl::make_unexpected(Failure::Unavailable));
    mute.kill();
    mute.waitForFinished();
}

QTEST_GUILESS_MAIN(SecretServiceStoreTest)
#include "tst_SecretServiceStore.moc"
