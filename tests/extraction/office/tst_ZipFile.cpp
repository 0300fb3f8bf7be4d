// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/ZipFile.h"

#include "extraction/office/buildZip.h"
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ZipFileTest : public QObject {
    Q_OBJECT
private slots:
    void lists_data();
    void lists();
    void reads_data();
    void reads();
    void ignoresOtherFields();
    void survivesDamage_data();
    void survivesDamage();
};

static const QByteArray text = "Text that deflates: aaaaaaaaaaaaaaaaaaaa bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb."_ba;
constexpr qint64 mebibyte = 1 << 20;

/// A copy that ends where its memory ends, so that AddressSanitizer notices a read behind it.
static std::vector<char> exactCopy(const QByteArray &bytes) { return { bytes.begin(), bytes.end() }; }

static QString namesIn(const QByteArray &archive)
{
    QStringList names;
    for (const ZipFile::Entry &entry : ZipFile::entries(exactCopy(archive)))
        names.append(entry.name);
    return names.join(u'|');
}

void ZipFileTest::lists_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("names");
    const QList<ZipContent> three { { "a", text }, { "b", text, 0 },
        { .name = "c", .data = text, .directoryExtra = "PK\1\2" } };
    const QByteArray archive = buildZip(three);
    const QByteArray end = archive.right(22);
    const QByteArray directory = archive.sliced(archive.indexOf("PK\1\2"_ba)).chopped(22);
    const qsizetype secondRecord = archive.indexOf("PK\1\2"_ba, archive.size() - 22 - directory.size() + 1);
    const auto row = [](const char *name, const QByteArray &bytes, const QString &names) {
        QTest::newRow(name) << bytes << names;
    };
    const auto commented = [&](const QByteArray &comment) { return buildZip(three, { .comment = comment }); };
    row("in the directory's order", buildZip({ { "b", text }, { "a", text }, { "b", text } }), u"b|a|b"_s);
    row("nothing but an end that is a byte short", end.chopped(1), u""_s);
    row("no end", archive.chopped(22) + QByteArray(22, 'x'), u""_s);
    row("longest comment", commented(QByteArray(65535, 'x')), u"a|b|c"_s);
    row("comment a byte too long", commented(QByteArray(65536, 'x')), u""_s);
    row("later of two ends", commented(buildZip({})), u""_s);
    row("end's signature too late for an end", commented("PK\5\6"_ba + QByteArray(17, 'x')), u"a|b|c"_s);
    row("fewer entries, says the count", buildZip(three, { .claimedCount = 2 }), u"a|b"_s);
    row("more entries, says the count", buildZip(three, { .claimedCount = 65535 }), u"a|b|c"_s);
    row("wrong signature in the second", QByteArray(archive).replace(secondRecord, 4, "PK\1\3"_ba), u"a"_s);
    row("wrong signature in the first", buildZip(three, { .claimedOffset = 1 }), u""_s);
    row("directory behind the end of the file", buildZip(three, { .claimedOffset = 0xFFFFFFFF }), u""_s);
    // With the directory as the end's comment, it may break off anywhere.
    const auto atTheEnd = [&](qsizetype missing) {
        return buildZip({}, { .claimedCount = 3, .claimedOffset = 22, .comment = directory.chopped(missing) });
    };
    row("odd names", buildZip({ { "\xE9.xml"_ba, text }, { "\uFEFFa"_ba, text }, { "a\0b"_ba, text } }),
        u"\uFFFD.xml|\uFEFFa|a\0b"_s);
    row("directory up to the last byte", atTheEnd(0), u"a|b|c"_s);
    row("extra field cut short", atTheEnd(1), u"a|b|c"_s);
    row("name cut short", atTheEnd(5), u"a|b"_s);
    row("record cut short", atTheEnd(6), u"a|b"_s);
    row("first name cut short", atTheEnd(directory.size() - 46), u""_s);
    row("first record cut short", atTheEnd(directory.size() - 45), u""_s);
}

void ZipFileTest::lists()
{
    QFETCH(QByteArray, archive);
    QTEST(namesIn(archive), "names");
}

/// The content of the first entry, or "absent".
static QByteArray firstIn(const QByteArray &archive, qint64 maxBytes = 4 * mebibyte)
{
    const std::vector<char> bytes = exactCopy(archive);
    const std::vector<ZipFile::Entry> entries = ZipFile::entries(bytes);
    return entries.empty() ? "no entry"_ba : ZipFile::read(entries.front(), bytes, maxBytes).value_or("absent"_ba);
}

void ZipFileTest::reads_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const ZipContent &content, const QByteArray &expected) {
        QTest::newRow(name) << buildZip({ content, { "behind", text } }) << expected;
    };
    const auto size = static_cast<quint32>(text.size());
    const QByteArray large = text.repeated(10 * mebibyte / text.size() + 1);
    row("deflated", { "a", text }, text);
    row("stored", { "a", text, 0 }, text);
    row("deflated, cut at the limit", { "a", large }, large.first(4 * mebibyte));
    row("stored, cut at the limit", { "a", large, 0 }, large.first(4 * mebibyte));
    row("other lengths in the local header",
        { .name = "a", .data = text, .localExtra = "0123456789", .directoryExtra = "0" }, text);
    row("says a byte less", { .name = "a", .data = text, .claimedSize = size - 1 }, text.chopped(1));
    row("says a byte more", { .name = "a", .data = text, .claimedSize = size + 1 }, "absent"_ba);
    row("says 4 GiB", { .name = "a", .data = text, .claimedSize = 0xFFFFFFFF }, "absent"_ba);
    row("says nothing", { .name = "a", .data = text, .claimedSize = 0 }, ""_ba);
    row("nothing compressed", { .name = "a", .data = text, .claimedCompressedSize = 0 }, ""_ba);
    row("compressed otherwise", { "a", text, 12 }, "absent"_ba);
    row("data behind the end of the file", { .name = "a", .data = text, .claimedCompressedSize = 0xFFFFFFFF },
        "absent"_ba);
    row("header behind the end of the file", { .name = "a", .data = text, .claimedOffset = 0xFFFFFFFF }, "absent"_ba);
    row("header with a wrong signature", { .name = "a", .data = text, .claimedOffset = 1 }, "absent"_ba);
    row("end of the stream is missing", { .name = "a", .data = text, .claimedCompressedSize = 20 }, "absent"_ba);
    const QByteArray uncompressedBlock = "\0\2\0\xFD\xFF\x61\x62"_ba; // RFC 1951, section 3.2.4
    const QByteArray blockOfNoType = "\7"_ba;
    row("damaged behind the size", { .name = "a", .data = "ab", .stream = uncompressedBlock + blockOfNoType }, "ab"_ba);
    row("damaged within the size", { .name = "a", .data = "abc", .stream = uncompressedBlock + blockOfNoType },
        "absent"_ba);
    // With directory and entry as the end's comment, the entry may break off anywhere.
    const QByteArray whole = buildZip({ { .name = "a", .data = text, .method = 0, .claimedOffset = 22 + 47 } });
    const qsizetype localSize = whole.indexOf("PK\1\2"_ba);
    const QByteArray turned = whole.sliced(localSize).chopped(22) + whole.first(localSize);
    const auto atTheEnd = [&](qsizetype missing) {
        return buildZip({}, { .claimedCount = 1, .claimedOffset = 22, .comment = turned.chopped(missing) });
    };
    QTest::newRow("data up to the last byte") << atTheEnd(0) << text;
    QTest::newRow("data cut short") << atTheEnd(1) << "absent"_ba;
    QTest::newRow("local header cut short") << atTheEnd(text.size() + 2) << "absent"_ba;
}

void ZipFileTest::reads()
{
    QFETCH(QByteArray, archive);
    QFETCH(QByteArray, content);
    const QByteArray found = firstIn(archive);
    QCOMPARE(found.size(), content.size());
    QVERIFY(found == content);
    if (found != "absent")
        QCOMPARE(firstIn(archive, 3), content.first(std::min<qsizetype>(3, content.size())));
}

// Version, flags (the one for encryption too), time, checksum, disks, attributes; what the local header says of the
// data; the size of the directory, and the length of the comment.
void ZipFileTest::ignoresOtherFields()
{
    const QByteArray archive = buildZip({ { "a", text } });
    const qsizetype directory = archive.indexOf("PK\1\2"_ba);
    const qsizetype end = archive.indexOf("PK\5\6"_ba);
    const std::vector<std::pair<qsizetype, qsizetype>> fields { { 4, 26 }, { directory + 4, directory + 10 },
        { directory + 12, directory + 20 }, { directory + 32, directory + 42 }, { end + 4, end + 10 },
        { end + 12, end + 16 }, { end + 20, end + 22 } };
    for (const auto &[from, to] : fields)
        QVERIFY(firstIn(QByteArray(archive).replace(from, to - from, QByteArray(to - from, '\xFF'))) == text);
}

void ZipFileTest::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::newRow("deflated") << buildZip({ { "a", text }, { "b", text.repeated(20) } });
    QTest::newRow("stored") << buildZip({ { "a", text, 0 }, { "b", text, 0 } }, { .comment = "PK\5\6 comment" });
    QTest::newRow("extra fields") << buildZip(
        { { .name = "a", .data = text, .localExtra = "PK\3\4", .directoryExtra = "PK\1\2" } });
}

// Asserts of Qt or AddressSanitizer end the program where a read goes astray.
void ZipFileTest::survivesDamage()
{
    QFETCH(QByteArray, archive);
    const auto readAll = [](const QByteArray &damaged) {
        const std::vector<char> bytes = exactCopy(damaged);
        for (const ZipFile::Entry &entry : ZipFile::entries(bytes))
            QVERIFY(ZipFile::read(entry, bytes, 1000).value_or(QByteArray()).size() <= 1000);
    };
    for (qsizetype size = 0; size < archive.size(); ++size)
        readAll(archive.first(size));
    for (char &byte : archive) {
        const char right = byte;
        for (const int flipped : { 1, 2, 4, 8, 16, 32, 64, 128, 255 }) {
            byte = static_cast<char>(right ^ flipped);
            readAll(archive);
        }
        byte = right;
    }
}

QTEST_GUILESS_MAIN(ZipFileTest)
#include "tst_ZipFile.moc"
