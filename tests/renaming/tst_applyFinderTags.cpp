// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/applyFinderTags.h"

#include "renaming/TestFolder.h"
#include <QtTest>
#include <sys/xattr.h>

using namespace Varlo;
using namespace Qt::StringLiterals;

class ApplyFinderTagsTest : public QObject {
    Q_OBJECT
private slots:
    void merges_data();
    void merges();
    void leavesTargetOfLinkAlone();
};

static QByteArray tagsOf(const std::filesystem::path &file)
{
    QByteArray value(1000, '\0');
    const ssize_t length = ::getxattr(file.c_str(), "user.xdg.tags", value.data(), 1000);
    return length < 0 ? QByteArray("none") : value.first(length);
}

void ApplyFinderTagsTest::merges_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *title, const QByteArray &before, const QStringList &tags, const QByteArray &after) {
        QTest::newRow(title) << before << tags << after;
    };
    row("none yet", {}, { u"Work"_s, u"Été"_s }, "Work,\xC3\x89t\xC3\xA9");
    row("one known", "Work", { u"Work"_s, u"Invoices"_s }, "Work,Invoices");
    row("letter case", "work", { u"Work"_s }, "work,Work");
    row("all known, in another order", "b,a", { u"a"_s, u"b"_s }, "b,a");
    row("no tags", {}, {}, "none");
    row("another program's loose commas", "a,,b,", { u"c"_s }, "a,,b,c");
    row("another program's bytes", "\xFF", { u"a"_s }, "\xFF,a");
    row("part of a longer tag", "Workshop", { u"Work"_s }, "Workshop,Work");
}

void ApplyFinderTagsTest::merges()
{
    QFETCH(QByteArray, before);
    QFETCH(QStringList, tags);
    const TestFolder folder;
    const auto file = folder.create("a");
    if (!before.isEmpty())
        QCOMPARE(::setxattr(file.c_str(), "user.xdg.tags", before.constData(), size_t(before.size()), 0), 0);
    applyFinderTags(tags, file);
    QTEST(tagsOf(file), "after");
}

void ApplyFinderTagsTest::leavesTargetOfLinkAlone()
{
    const TestFolder folder;
    const auto target = folder.create("target");
    std::filesystem::create_symlink(target, folder / "link");
    applyFinderTags({ u"Work"_s }, folder / "link");
    QCOMPARE(tagsOf(target), "none");
}

QTEST_GUILESS_MAIN(ApplyFinderTagsTest)
#include "tst_applyFinderTags.moc"
