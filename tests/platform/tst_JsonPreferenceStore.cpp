// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/JsonPreferenceStore.h"
#include "platform/linux/replaceFile.h"

#include <fcntl.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

static const QByteArray goodContent = R"({
    "folderBookmarks": { "/home/a": "QUJD" },
    "ofALaterVersion": [1, { "x": null }],
    "templates": "W10=",
    "uiLanguage": "nl",
    "writeFinderTags": true
}
)";

static PreferenceStore::Change to(const PreferenceValue &value)
{
    return [value](const auto &) { return value; };
}

static std::optional<PreferenceValue> text(const QString &value) { return PreferenceValue(value); }

static Result<void, SystemError> setLanguage(PreferenceStore &store, const QString &language)
{
    return store.update(u"uiLanguage"_s, PreferenceType::String, to(language));
}

class JsonPreferenceStoreTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void keepsEveryKindOfValue();
    void keepsWhatItDoesNotKnow();
    void startsFromTheDisk();
    void goesOnWithoutTheMissingBytes();
    void survivesAFlippedByte();
    void setsAside_data();
    void setsAside();
    void neverReplacesAnEarlierDamagedFile();
    void goesOnWithWhatItKnewOfADamagedFile();
    void copiesBeforeItReplacesWhatItCannotRead();
    void refuses_data();
    void refuses();
    void refusesAsAnotherUser_data();
    void refusesAsAnotherUser();
    void refusesWhatItCouldNotReadAgain();
    void keepsALink();
    void losesNothingToAnotherProcess();
    void noticesAnotherProcess_data();
    void noticesAnotherProcess();
    void announcesItsOwnChangeOnce();

private:
    [[nodiscard]] std::filesystem::path file() const { return folder() / "preferences.json"; }
    [[nodiscard]] std::filesystem::path folder() const { return m_folder->path().toStdString() + "/varlo"; }
    [[nodiscard]] QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] QByteArray content(const char *name = "preferences.json") const
    {
        QFile opened(folder() / name);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    void put(const QByteArray &bytes) const
    {
        QFile opened(file());
        QVERIFY(opened.open(QIODevice::WriteOnly));
        QCOMPARE(opened.write(bytes), bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void JsonPreferenceStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkdir(m_folder->filePath(u"varlo"_s)));
}

void JsonPreferenceStoreTest::keepsEveryKindOfValue()
{
    QVERIFY(QDir(folder()).removeRecursively());
    const std::map<QString, PreferenceValue> values { { u"flag"_s, true },
        { u"text"_s, u"é\0\n\"\U0001F469\u200D\U0001F52C"_s }, { u"data"_s, QByteArray("\0\xff\x80", 3) },
        { u"dictionary"_s, PreferenceDictionary { { u"/a b"_s, "\xfe" }, { u""_s, "" } } } };
    {
        JsonPreferenceStore store(file());
        QCOMPARE(names(), QStringList());
        QVERIFY2(!std::filesystem::exists(folder()), "reading alone must not make folders");
        for (const auto &[key, value] : values)
            QVERIFY(store.update(key, PreferenceType(value.index()), to(value)));
    }
    struct stat status { };
    QCOMPARE(::stat(folder().c_str(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0700u);
    QCOMPARE(::stat(file().c_str(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0600u);

    JsonPreferenceStore store(file());
    for (const auto &[key, value] : values)
        QVERIFY2(store.value(key, PreferenceType(value.index())) == value, qPrintable(key));
    QVERIFY(store.update(u"flag"_s, PreferenceType::Bool, [](const auto &) { return std::nullopt; }));
    QVERIFY(!JsonPreferenceStore(file()).value(u"flag"_s, PreferenceType::Bool));
    QCOMPARE(store.takeNotices(), QStringList());
}

void JsonPreferenceStoreTest::keepsWhatItDoesNotKnow()
{
    put(goodContent);
    JsonPreferenceStore store(file());
    QVERIFY(setLanguage(store, u"es"_s));
    QJsonObject expected = QJsonDocument::fromJson(goodContent).object();
    expected.insert(u"uiLanguage"_s, u"es"_s);
    QCOMPARE(QJsonDocument::fromJson(content()).object(), expected);
}

void JsonPreferenceStoreTest::startsFromTheDisk()
{
    JsonPreferenceStore one(file());
    JsonPreferenceStore other(file());
    QVERIFY(one.update(u"model"_s, PreferenceType::String, to(u"a"_s)));
    QVERIFY(other.update(u"model"_s, PreferenceType::String, [](const std::optional<PreferenceValue> &current) {
        return PreferenceValue(std::get<QString>(current.value_or(u"stale"_s)) + u'b');
    }));
    QVERIFY(other.value(u"model"_s, PreferenceType::String) == text(u"ab"_s));
}

void JsonPreferenceStoreTest::goesOnWithoutTheMissingBytes()
{
    const qsizetype wholeObject = goodContent.size() - 1; // the line break at the end may go
    for (qsizetype length = 0; length < wholeObject; ++length) {
        init();
        put(goodContent.first(length));
        JsonPreferenceStore store(file());
        QVERIFY(!store.value(u"uiLanguage"_s, PreferenceType::String));
        QCOMPARE(store.takeNotices().size(), 1);
        QCOMPARE(content("preferences.damaged-1.json"), goodContent.first(length));
        QVERIFY(setLanguage(store, u"es"_s));
        QCOMPARE(store.takeNotices(), QStringList());
        QCOMPARE(JsonPreferenceStore(file()).takeNotices(), QStringList());
    }
}

void JsonPreferenceStoreTest::survivesAFlippedByte()
{
    for (qsizetype position = 0; position < goodContent.size(); ++position) {
        init();
        QByteArray damaged = goodContent;
        damaged[position] = static_cast<char>(damaged[position] ^ 0xff);
        put(damaged);
        JsonPreferenceStore store(file());
        for (const auto type :
            { PreferenceType::Bool, PreferenceType::String, PreferenceType::Data, PreferenceType::Dictionary }) {
            for (const QString &key : { u"uiLanguage"_s, u"templates"_s, u"folderBookmarks"_s, u"writeFinderTags"_s })
                (void)store.value(key, type);
        }
        QVERIFY(store.update(u"templates"_s, PreferenceType::Data, to(QByteArray("new"))));
        JsonPreferenceStore again(file());
        QVERIFY(again.value(u"templates"_s, PreferenceType::Data) == PreferenceValue(QByteArray("new")));
        if (!QJsonDocument::fromJson(damaged).isObject())
            QCOMPARE(content("preferences.damaged-1.json"), damaged);
    }
}

void JsonPreferenceStoreTest::setsAside_data()
{
    QTest::addColumn<QByteArray>("damaged");
    QTest::addColumn<qint64>("size");
    const auto row
        = [](const char *name, const QByteArray &damaged) { QTest::newRow(name) << damaged << qint64(damaged.size()); };
    row("empty, as a truncating writer leaves it", "");
    row("only NULs, as a power cut leaves it", QByteArray(4096, '\0'));
    row("an array where the object should be", "[]");
    row("a second object behind the first", "{} {}");
    row("objects nested a million deep", QByteArray("{\"a\":").repeated(1'000'000));
    row("closed arrays nested a million deep", QByteArray(1'000'000, '[') + QByteArray(1'000'000, ']'));
    QTest::newRow("two gigabytes, sparse") << QByteArray("{}") << qint64(2) * 1024 * 1024 * 1024;
    QTest::newRow("a byte over the limit") << QByteArray("{}") << JsonPreferenceStore::sizeLimit + 1;
}

void JsonPreferenceStoreTest::setsAside()
{
    QFETCH(QByteArray, damaged);
    QFETCH(qint64, size);
    put(damaged);
    std::filesystem::resize_file(file(), size);
    JsonPreferenceStore store(file());
    QCOMPARE(store.takeNotices().size(), 1);
    QVERIFY(!std::filesystem::exists(file()));
    QCOMPARE(std::filesystem::file_size(folder() / "preferences.damaged-1.json"), std::uintmax_t(size));
    QVERIFY(setLanguage(store, u"nl"_s));
    QVERIFY(JsonPreferenceStore(file()).value(u"uiLanguage"_s, PreferenceType::String) == text(u"nl"_s));
}

void JsonPreferenceStoreTest::neverReplacesAnEarlierDamagedFile()
{
    for (const char *damaged : { "first", "second", "third" }) {
        put(damaged);
        JsonPreferenceStore store(file());
    }
    QCOMPARE(content("preferences.damaged-1.json"), "first");
    QCOMPARE(content("preferences.damaged-2.json"), "second");
    QCOMPARE(content("preferences.damaged-3.json"), "third");
}

void JsonPreferenceStoreTest::goesOnWithWhatItKnewOfADamagedFile()
{
    put(goodContent);
    JsonPreferenceStore store(file());
    put("{\"uiLang");
    QVERIFY(store.update(u"uiLanguage"_s, PreferenceType::String, [](const auto &current) { return current; }));
    QCOMPARE(QJsonDocument::fromJson(content()), QJsonDocument::fromJson(goodContent));
    QCOMPARE(content("preferences.damaged-1.json"), "{\"uiLang");
    QCOMPARE(store.takeNotices().size(), 1);
}

void JsonPreferenceStoreTest::copiesBeforeItReplacesWhatItCannotRead()
{
    const QByteArray damaged
        = R"({"folderBookmarks":{"/a":"QUJD","/b":"*"},"templates":"W1*=","writeFinderTags":"true"})";
    put(damaged);
    JsonPreferenceStore store(file());
    QVERIFY(!store.value(u"templates"_s, PreferenceType::Data));
    QVERIFY(!store.value(u"writeFinderTags"_s, PreferenceType::Bool));
    const PreferenceDictionary readable { { u"/a"_s, "ABC" } };
    QVERIFY(store.value(u"folderBookmarks"_s, PreferenceType::Dictionary) == PreferenceValue(readable));
    QVERIFY(setLanguage(store, u"nl"_s));
    QCOMPARE(names(), QStringList({ u"preferences.json"_s, u"preferences.json.lock"_s }));

    const QByteArray before = content();
    for (const PreferenceValue &value : { PreferenceValue(PreferenceDictionary()), PreferenceValue(true) }) {
        const QString key = value.index() == size_t(PreferenceType::Bool) ? u"writeFinderTags"_s : u"folderBookmarks"_s;
        QVERIFY(store.update(key, PreferenceType(value.index()), to(value)));
    }
    QCOMPARE(content("preferences.damaged-1.json"), before);
    QVERIFY(!std::filesystem::exists(folder() / "preferences.damaged-2.json"));
    QCOMPARE(store.takeNotices().size(), 1);
}

void JsonPreferenceStoreTest::refuses_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("error");
    QTest::newRow("a folder") << u"mkdir preferences.json"_s << EEXIST;
    QTest::newRow("a FIFO, which would hang a plain open") << u"mkfifo preferences.json"_s << EEXIST;
    QTest::newRow("an endless device") << u"ln -s /dev/zero preferences.json"_s << EEXIST;
    QTest::newRow("a link to itself") << u"ln -s preferences.json preferences.json"_s << ELOOP;
    QTest::newRow("a link into a missing folder") << u"ln -s missing/there preferences.json"_s << ENOENT;
    QTest::newRow("a folder where the lock should be") << u"mkdir preferences.json.lock"_s << EISDIR;
}

void JsonPreferenceStoreTest::refuses()
{
    QFETCH(QString, script);
    QFETCH(int, error);
    QProcess shell;
    shell.setWorkingDirectory(QString::fromStdString(folder()));
    shell.start(u"/bin/sh"_s, { u"-c"_s, script });
    QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);
    struct stat before { };
    QVERIFY(::lstat(file().c_str(), &before) == 0 || script.endsWith("lock"_L1));

    JsonPreferenceStore store(file());
    QVERIFY(!store.value(u"uiLanguage"_s, PreferenceType::String));
    const auto refused = setLanguage(store, u"nl"_s);
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, error);
    QCOMPARE(store.takeNotices().size(), script.endsWith("lock"_L1) ? 0 : 1);
    struct stat after { };
    QVERIFY(::lstat(file().c_str(), &after) == 0 || script.endsWith("lock"_L1));
    QCOMPARE(after.st_ino, before.st_ino);
}

void JsonPreferenceStoreTest::refusesAsAnotherUser_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("answer"); // the language read, the error of storing another, the number of notices
    const QString denied = QString::number(EACCES);
    QTest::newRow("a read-only folder") << u"chmod 0555 ."_s << u"nl "_s + denied + u" 0"_s;
    QTest::newRow("a damaged file in a read-only folder")
        << u"echo '{' >preferences.json; chmod 0555 ."_s << u"- "_s + denied + u" 1"_s;
    QTest::newRow("an unreadable file") << u"chmod 0 preferences.json; chmod 0777 ."_s << u"- "_s + denied + u" 1"_s;
    QTest::newRow("a read-only file in a writable folder")
        << u"chmod 0444 preferences.json; chmod 0777 ."_s << u"nl "_s + denied + u" 0"_s;
}

void JsonPreferenceStoreTest::refusesAsAnotherUser()
{
    QFETCH(QString, script);
    QFETCH(QString, answer);
    put(goodContent);
    // The build's folders need not be open to others.
    const QString program = m_folder->filePath(u"program"_s);
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
    QProcess shell;
    shell.setWorkingDirectory(QString::fromStdString(folder()));
    const QString asOther = u"setpriv --reuid=65534 --regid=65534 --clear-groups \"$0\" --other-user \"$PWD\""_s;
    shell.start(u"/bin/sh"_s, { u"-c"_s, script + u'\n' + asOther, program });
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), answer);
}

void JsonPreferenceStoreTest::refusesWhatItCouldNotReadAgain()
{
    put(goodContent);
    JsonPreferenceStore store(file());
    const QByteArray large(JsonPreferenceStore::sizeLimit, 'x');
    const auto refused = store.update(u"renameLog"_s, PreferenceType::Data, to(large));
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, EFBIG);
    QCOMPARE(content(), goodContent);
}

void JsonPreferenceStoreTest::keepsALink()
{
    const std::filesystem::path elsewhere = m_folder->filePath(u"dotfiles"_s).toStdString();
    std::filesystem::create_directory(elsewhere);
    std::filesystem::create_symlink("../dotfiles/varlo.json", file());
    JsonPreferenceStore dangling(file());
    QCOMPARE(dangling.takeNotices().size(), 1);
    QVERIFY(setLanguage(dangling, u"nl"_s));
    QVERIFY(setLanguage(dangling, u"es"_s));
    QVERIFY(std::filesystem::is_symlink(file()));
    QVERIFY(
        JsonPreferenceStore(elsewhere / "varlo.json").value(u"uiLanguage"_s, PreferenceType::String) == text(u"es"_s));
}

static void startSelf(QProcess &process, const QStringList &arguments)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
}

void JsonPreferenceStoreTest::losesNothingToAnotherProcess()
{
    QProcess processes[2];
    for (int index : { 0, 1 })
        startSelf(processes[index], { u"--append"_s, QString::fromStdString(file()), QString::number(index) });
    for (QProcess &process : processes) {
        QVERIFY(process.waitForFinished(120'000));
        QCOMPARE(process.exitCode(), 0);
    }
    const auto stored = JsonPreferenceStore(file()).value(u"log"_s, PreferenceType::String);
    QVERIFY(stored);
    const QString log = std::get<QString>(*stored);
    QCOMPARE(log.count(u'0'), 200);
    QCOMPARE(log.count(u'1'), 200);
    QCOMPARE(names(), QStringList({ u"preferences.json"_s, u"preferences.json.lock"_s }));
}

void JsonPreferenceStoreTest::noticesAnotherProcess_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("file is there") << u"echo '{}' >varlo/preferences.json"_s;
    QTest::newRow("folder comes later") << u"rmdir varlo"_s;
    QTest::newRow("link into another folder")
        << u"mkdir other; echo '{}' >other/p; ln -s ../other/p varlo/preferences.json"_s;
}

void JsonPreferenceStoreTest::noticesAnotherProcess()
{
    QFETCH(QString, script);
    QProcess shell;
    shell.setWorkingDirectory(m_folder->path());
    shell.start(u"/bin/sh"_s, { u"-c"_s, script });
    QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);
    JsonPreferenceStore store(file());
    store.observe();
    QSignalSpy changes(&store, &PreferenceStore::changed);
    for (const QString &model : { u"one"_s, u"two"_s }) {
        QProcess other;
        startSelf(other, { u"--set"_s, QString::fromStdString(file()), model });
        QTRY_VERIFY_WITH_TIMEOUT(store.value(u"model"_s, PreferenceType::String) == text(model), 60'000);
        QVERIFY(other.state() == QProcess::NotRunning || other.waitForFinished());
    }
    QCOMPARE(changes, (QList<QList<QVariant>> { { u"model"_s }, { u"model"_s } }));
}

void JsonPreferenceStoreTest::announcesItsOwnChangeOnce()
{
    JsonPreferenceStore store(file());
    store.observe();
    QSignalSpy changes(&store, &PreferenceStore::changed);
    QVERIFY(setLanguage(store, u"nl"_s));
    QVERIFY(setLanguage(store, u"nl"_s));
    QCOMPARE(changes.size(), 1);
    // Another key's change comes through the watcher, so whatever the watcher made of the first is in by then.
    JsonPreferenceStore other(file());
    QVERIFY(other.update(u"model"_s, PreferenceType::String, to(u"m"_s)));
    QTRY_COMPARE_WITH_TIMEOUT(changes.size(), 2, 60'000);
    QCOMPARE(changes.last(), QList<QVariant> { u"model"_s });
}

static int append(const QString &file, const QString &letter)
{
    for (int round = 0; round < 200; ++round) {
        JsonPreferenceStore store(file.toStdString());
        const auto updated
            = store.update(u"log"_s, PreferenceType::String, [&](const std::optional<PreferenceValue> &current) {
                  return PreferenceValue(std::get<QString>(current.value_or(QString())) + letter);
              });
        if (!updated)
            return updated.error().code;
    }
    return 0;
}

static int reportAsOtherUser(const QString &folder)
{
    if (::geteuid() == 0)
        return 1;
    JsonPreferenceStore store((folder + u"/preferences.json"_s).toStdString());
    const auto language = store.value(u"uiLanguage"_s, PreferenceType::String);
    const auto stored = setLanguage(store, u"es"_s);
    QTextStream(stdout) << (language ? std::get<QString>(*language) : u"-"_s) << ' '
                        << (stored ? 0 : stored.error().code) << ' ' << store.takeNotices().size();
    return 0;
}

int main(int count, char **values)
{
    QCoreApplication application(count, values);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == "--append"_L1)
        return append(arguments.value(2), arguments.value(3));
    if (arguments.value(1) == "--set"_L1) {
        JsonPreferenceStore store(arguments.value(2).toStdString());
        return store.update(u"model"_s, PreferenceType::String, to(arguments.value(3))) ? 0 : 1;
    }
    if (arguments.value(1) == "--other-user"_L1)
        return reportAsOtherUser(arguments.value(2));
    JsonPreferenceStoreTest test;
    return QTest::qExec(&test, arguments);
}

#include "tst_JsonPreferenceStore.moc"
