// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/IsolatedContentReader.h"

#include "extraction/describe.h"
#include "platform/FileDescriptor.h"
#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <QCoroTask>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <seccomp.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

namespace {

struct DiskFlags final : FileFlags {
    [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &) const override { return false; }
};

/// Holds every asking thread back until five of them wait, and then a moment longer for a sixth, who must not come.
struct GateOfFive final : FileFlags {
    mutable std::mutex mutex;
    mutable std::condition_variable someoneCame;
    mutable int inside = 0, most = 0, came = 0;
    mutable bool isOnMainThread = false, isOpen = false;

    [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &) const override
    {
        std::unique_lock lock(mutex);
        most = std::max(most, ++inside);
        isOnMainThread = isOnMainThread || QThread::currentThread() == qApp->thread();
        ++came;
        someoneCame.notify_all();
        someoneCame.wait(lock, [this] { return came >= 5; });
        someoneCame.wait_for(lock, std::chrono::milliseconds(200), [this] { return isOpen || inside > 5; });
        isOpen = true;
        someoneCame.notify_all();
        --inside;
        return false;
    }
};

} // namespace

static const QString unsafe = u"unreadable: This file could not be read safely."_s;
// Of files for which the extractor makes a branch of its starter, and of those whose workers the starter itself forks.
static const QString branched = u"pdf"_s;
static const QString unbranched = u"rtf"_s;
static constexpr qsizetype starterAndBranch = 2;
static const QString tooLong = u"unreadable: Reading this file took too long."_s;

class IsolatedContentReaderTest : public QObject {
    Q_OBJECT
private slots:
    void costsOneFile_data();
    void costsOneFile();
    void waitsForWhoeverMovesOn();
    void leaksNothing();
    void readsFiveAtOnce();
    void readsFiveTextsAtOnce();
    void startsNothingForText();
    void survivesItsStarter_data();
    void survivesItsStarter();
    void endsWithoutStarter_data();
    void endsWithoutStarter();
    void answersAfterItsEnd();
    void goesOnWithoutLayers(); // the last one, as the process keeps what it does

private:
    /// A file for a worker, which does what it says.
    std::filesystem::path fileSaying(const QString &content, const QString &extension = branched);
    QString read(IsolatedContentReader &reader, const QString &content);
    /// Files whose workers go on until tellAll().
    void readUntilTold(IsolatedContentReader &reader, const QStringList &extensions);
    void tellAll();

    const DiskFlags m_flags;
    QTemporaryDir m_folder;
    int m_files = 0;
    std::vector<std::filesystem::path> m_untold;
    QStringList m_outcomes; ///< of those files
};

static IsolatedContentReader::Options options(const ReadingLimits &limits = {})
{
    return { QStringLiteral(MISBEHAVING_EXTRACTOR), limits, {} };
}

static QCoro::Task<void> collect(ContentReader &reader, std::filesystem::path path, QStringList &outcomes)
{
    const Extraction outcome = co_await reader.read(path);
    outcomes.append(describe(outcome));
}

static QByteArray readProcessFile(const QString &pid, QLatin1StringView name)
{
    QFile file(u"/proc/%1/%2"_s.arg(pid, name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The starter and the workers, of no other build's test; not those that ended and are not reaped yet.
static QList<pid_t> extractorProcesses()
{
    QList<pid_t> found;
    for (const QString &entry : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        const QByteArray stat = readProcessFile(entry, "stat"_L1); // pid (name) state parent
        const bool isEnded = stat.contains(") Z ") || stat.contains(") X ");
        if (!isEnded && readProcessFile(entry, "cmdline"_L1).startsWith(MISBEHAVING_EXTRACTOR))
            found.append(entry.toInt());
    }
    return found;
}

std::filesystem::path IsolatedContentReaderTest::fileSaying(const QString &content, const QString &extension)
{
    QFile file(m_folder.filePath(QString::number(++m_files) + u'.' + extension));
    if (!file.open(QFile::WriteOnly) || file.write(content.toUtf8()) < 0)
        qFatal("no room for a file");
    return file.filesystemFileName();
}

QString IsolatedContentReaderTest::read(IsolatedContentReader &reader, const QString &content)
{
    return describe(QCoro::waitFor(reader.read(fileSaying(content))));
}

void IsolatedContentReaderTest::readUntilTold(IsolatedContentReader &reader, const QStringList &extensions)
{
    m_outcomes.clear();
    for (const QString &extension : extensions) {
        m_untold.push_back(fileSaying(u"work until told"_s, extension));
        collect(reader, m_untold.back(), m_outcomes);
    }
}

void IsolatedContentReaderTest::tellAll()
{
    for (const std::filesystem::path &path : m_untold) {
        QFile file(path);
        if (!file.open(QFile::Append) || file.write(": now") < 0)
            qFatal("a file cannot be written");
    }
    m_untold.clear();
}

void IsolatedContentReaderTest::costsOneFile_data()
{
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *act, const QString &outcome) { QTest::newRow(act) << outcome; };
    row("hang", tooLong);
    row("hang while it reports progress", tooLong);
    row("answer and go on", tooLong);
    row("hang up and go on", unsafe);
    row("exit", unsafe);
    row("abort", unsafe);
    row("throw", unsafe);
    row("say nonsense", unsafe);
    row("answer a GiB", unsafe);
    row("answer twice", unsafe);
    row("report progress without end", unsafe);
    row("run a program", unsafe);
#ifndef __SANITIZE_ADDRESS__ // which has no limit that it could reach
    row("take all memory", unsafe);
#endif
    row("fork for ever", u"no text found"_s);
    row("open a socket", u"text: no socket was to be had"_s);
}

void IsolatedContentReaderTest::costsOneFile()
{
    QFETCH(QString, outcome);
    using namespace std::chrono_literals;
    // Only what is to run out of time is given little of it.
    const ReadingLimits limits = outcome == tooLong ? ReadingLimits { 3s, 3s, 5s } : ReadingLimits { 60s, 60s, 60s };
    IsolatedContentReader reader(m_flags, options(limits));
    const QString fine = u"words of a good file"_s;
    const QString act = QString::fromUtf8(QTest::currentDataTag());
    // Beside a good one, and before another.
    QStringList beside;
    collect(reader, fileSaying(fine), beside);
    QCOMPARE(read(reader, act), outcome);
    QCOMPARE(read(reader, fine), u"text: "_s + fine);
    QTRY_COMPARE_WITH_TIMEOUT(beside, QStringList { u"text: "_s + fine }, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch, 60000);
}

void IsolatedContentReaderTest::waitsForWhoeverMovesOn()
{
    using namespace std::chrono_literals;
    IsolatedContentReader reader(m_flags, options({ 2500ms, 60s, 60s }));
    QCOMPARE(read(reader, u"work on many pages"_s), u"text: thirty pages were read"_s); // for three seconds
    QCOMPARE(read(reader, u"scan"_s), u"text: recognized on the second call"_s);
    const auto report = QCoro::waitFor(reader.inspect());
    QVERIFY(report && report->layers && report->layers->isComplete());
    QCOMPARE(report->findings.value(u"languages"_s).toString(), u"eng"_s);
}

void IsolatedContentReaderTest::leaksNothing()
{
    for (const char *name : { "LANG", "LANGUAGE", "LC_TIME", "LC_ALL", "TZ" })
        qunsetenv(name);
    qputenv("VARLO_API_KEY", "secret");
    qputenv("LD_PRELOAD_NOT", "x");
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    const FileDescriptor inheritable(::open("/dev/null", O_RDONLY)); // NOLINT: on purpose without O_CLOEXEC
    IsolatedContentReader reader(m_flags, options());
    QCOMPARE(read(reader, u"list the environment"_s),
        u"text: GLIBC_TUNABLES LC_ALL LD_BIND_NOW MALLOC_ARENA_MAX OMP_THREAD_LIMIT QT_NO_GLIB TZ "
        u"VIPS_BLOCK_UNTRUSTED VIPS_NOVECTOR"_s);
    for (const QString &extension : { branched, unbranched }) {
        QCOMPARE(describe(QCoro::waitFor(reader.read(fileSaying(u"list descriptors"_s, extension)))),
            u"text: open descriptors: file file file socket file"_s);
    }
    for (const QString &extension : { branched, branched, unbranched, unbranched }) {
        QCOMPARE(describe(QCoro::waitFor(reader.read(fileSaying(u"count files"_s, extension)))),
            u"text: 0 files were seen before this one"_s);
    }
}

void IsolatedContentReaderTest::readsFiveAtOnce()
{
    IsolatedContentReader reader(m_flags, options());
    const QStringList oneOfEach { branched, unbranched };
    readUntilTold(reader, oneOfEach + oneOfEach + oneOfEach + oneOfEach);
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch + 5, 60000);
    QTest::qWait(100); // a sixth would come now
    QCOMPARE(extractorProcesses().size(), starterAndBranch + 5);
    tellAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 8, 60000);
    for (const QString &outcome : std::as_const(m_outcomes))
        QVERIFY2(outcome.startsWith(u"text: "_s), qPrintable(outcome)); // some had been told before they began
}

// Missing files make each reading ask for the flags, where the gate is.
void IsolatedContentReaderTest::readsFiveTextsAtOnce()
{
    const GateOfFive gate;
    IsolatedContentReader reader(gate, options());
    QStringList outcomes;
    for (int number = 0; number < 30; ++number)
        collect(reader, m_folder.filePath(u"missing.txt"_s).toStdString(), outcomes);
    QTRY_COMPARE_WITH_TIMEOUT(outcomes, QStringList(30, u"unreadable: "_s + qt_error_string(ENOENT)), 60000);
    QCOMPARE(gate.most, 5);
    QVERIFY(!gate.isOnMainThread);
}

void IsolatedContentReaderTest::startsNothingForText()
{
    IsolatedContentReader reader(m_flags, options());
    QFile file(m_folder.filePath(u"note.txt"_s));
    QVERIFY(file.open(QFile::WriteOnly) && file.write("words of a good file\n second line") > 0 && file.flush());
    const std::filesystem::path path = file.filesystemFileName();
    QCOMPARE(describe(QCoro::waitFor(reader.read(path))), u"text: words of a good file second line"_s);
    const Preview preview = QCoro::waitFor(reader.preview(path, 500));
    QCOMPARE(std::get<TextPreview>(preview).text, u"words of a good file\n second line"_s);
    QCOMPARE(describe(QCoro::waitFor(reader.read("film.mp4"))), u"unreadable: "_s + qt_error_string(ENOENT));
    QVERIFY(extractorProcesses().isEmpty());
    reader.warmUp();
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), 1, 60000);
}

void IsolatedContentReaderTest::survivesItsStarter_data()
{
    QTest::addColumn<bool>("killsBranch");
    QTest::newRow("starter") << false; // whose branch must not stay
    QTest::newRow("branch") << true; // whose files nobody else would answer for
}

void IsolatedContentReaderTest::survivesItsStarter()
{
    QFETCH(bool, killsBranch);
    IsolatedContentReader reader(m_flags, options());
    reader.warmUp();
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), 1, 60000);
    const pid_t starter = extractorProcesses().first();
    QCOMPARE(read(reader, u"words of a good file"_s), u"text: words of a good file"_s);
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch, 60000);
    QList<pid_t> others = extractorProcesses();
    others.removeOne(starter);
    readUntilTold(reader, { unbranched, branched, branched, branched, branched });
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch + 5, 60000);
    ::kill(killsBranch ? others.first() : starter, SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(!extractorProcesses().contains(starter), 60000); // it ends with its branch
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch + 5, 60000); // each is read once more
    tellAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes, QStringList(5, u"text: the file says now to end"_s), 60000);
    QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch, 60000);
}

void IsolatedContentReaderTest::endsWithoutStarter_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("not installed") << u"/nowhere/varlo-extractor"_s
                                   << u"unreadable: The part that reads such files is not installed."_s;
    QTest::newRow("dies at once") << u"/usr/bin/false"_s << unsafe;
}

void IsolatedContentReaderTest::endsWithoutStarter()
{
    QFETCH(QString, program);
    IsolatedContentReader reader(m_flags, { program, {}, {} });
    QTEST(read(reader, u"words of a good file"_s), "outcome");
    QTEST(read(reader, u"words of a good file"_s), "outcome");
    QVERIFY(!QCoro::waitFor(reader.inspect()));
}

void IsolatedContentReaderTest::answersAfterItsEnd()
{
    QStringList outcomes;
    {
        IsolatedContentReader reader(m_flags, options());
        for (int file = 0; file < 20; ++file)
            collect(reader, fileSaying(u"hang"_s, file % 2 == 0 ? branched : unbranched), outcomes);
        QTRY_COMPARE_WITH_TIMEOUT(extractorProcesses().size(), starterAndBranch + 5, 60000);
    }
    QTRY_COMPARE_WITH_TIMEOUT(outcomes, QStringList(20, unsafe), 60000);
    QTRY_VERIFY_WITH_TIMEOUT(extractorProcesses().isEmpty(), 60000);
}

/// Makes this system one that has neither layer, for this process and what it starts.
static bool takeLayersAway()
{
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    bool isDone = true;
    for (const char *call : { "landlock_create_ruleset", "landlock_add_rule", "landlock_restrict_self", "seccomp" })
        isDone = ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), ::seccomp_syscall_resolve_name(call), 0) == 0
            && isDone;
    isDone = ::seccomp_load(filter) == 0 && isDone;
    ::seccomp_release(filter);
    return isDone;
}

void IsolatedContentReaderTest::goesOnWithoutLayers()
{
    QVERIFY(takeLayersAway());
    QStringList warnings;
    IsolatedContentReader reader(
        m_flags, { QStringLiteral(MISBEHAVING_EXTRACTOR), {}, [&](const QString &text) { warnings.append(text); } });
    QCOMPARE(read(reader, u"words of a good file"_s), u"text: words of a good file"_s);
    QCOMPARE(read(reader, u"open a socket"_s), u"text: there was a socket indeed"_s);
    QCOMPARE(warnings.size(), 1);
    const auto report = QCoro::waitFor(reader.inspect());
    QVERIFY(report && report->layers == SandboxLayers());
}

QTEST_GUILESS_MAIN(IsolatedContentReaderTest)
#include "tst_IsolatedContentReader.moc"
