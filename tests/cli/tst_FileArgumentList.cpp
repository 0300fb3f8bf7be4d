// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FileArgumentList.h"
#include <fstream>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using namespace Varlo;
using namespace Qt::StringLiterals;

class FileArgumentListTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void resolvesDots_data();
    void resolvesDots();
    void takesNulEnded();
    void refuses_data();
    void refuses();
    void refusesList_data();
    void refusesList();
    void opensNoFifo();
    void keepsBytesInJson();

private:
    [[nodiscard]] std::filesystem::path at(const std::filesystem::path &name) const { return m_root / name; }
    [[nodiscard]] std::filesystem::path make(const std::filesystem::path &name) const;

    std::optional<QTemporaryDir> m_folder;
    std::filesystem::path m_root;
};

void FileArgumentListTest::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_root = std::filesystem::canonical(m_folder->path().toStdString());
}

std::filesystem::path FileArgumentListTest::make(const std::filesystem::path &name) const
{
    std::ofstream(at(name)) << "x";
    return at(name);
}

void FileArgumentListTest::resolvesDots_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("resolved");
    QTest::newRow("parent of a link taken by its words") << u"link/../x"_s << u"away/x"_s;
    QTest::newRow("parent of a link at the end") << u"link/.."_s << u"away"_s;
    QTest::newRow("link resolved without need") << u"./link"_s << u"link"_s;
    QTest::newRow("last part resolved") << u"away/../link"_s << u"link"_s;
}

void FileArgumentListTest::resolvesDots()
{
    QFETCH(QString, argument);
    QFETCH(QString, resolved);
    std::filesystem::create_directories(at("away/inside"));
    std::filesystem::create_directory_symlink(at("away/inside"), at("link"));
    QCOMPARE(resolvedArgument(at(argument.toStdString())), at(resolved.toStdString()));
}

void FileArgumentListTest::takesNulEnded()
{
    const std::vector<std::filesystem::path> files { make("a.pdf"), make("b\n .pdf"), make("c.pdf") };
    std::ofstream list(at("list"), std::ios::binary);
    list << files[1].native() << '\0' << '\0' << files[2].native(); // an empty one, and the last without its NUL
    list.close();
    const FileArgumentList taken = lookAt({ { files[0] }, at("list") }, true);
    QCOMPARE(taken.paths, files);
    QVERIFY(taken.refused.empty());
}

void FileArgumentListTest::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << u"missing.pdf"_s << u"No such file"_s;
    QTest::newRow("link to nothing") << u"dangling.pdf"_s << u"No such file"_s;
    QTest::newRow("type that is not read") << u"film.xyz"_s << u"not supported"_s;
}

void FileArgumentListTest::refuses()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    std::filesystem::create_symlink(at("nothing"), at("dangling.pdf"));
    std::ignore = make("film.xyz");
    const std::filesystem::path good = make("good.txt");
    const FileArgumentList list = lookAt({ { at(name.toStdString()), good }, {} }, true);
    QCOMPARE(list.refused.size(), std::size_t(1));
    QCOMPARE(list.refused.front().path, at(name.toStdString()));
    QVERIFY2(list.refused.front().message.contains(message), qPrintable(list.refused.front().message));
    QCOMPARE(list.paths, std::vector { good });
}

void FileArgumentListTest::refusesList_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("folder") << u"."_s; // it can be opened, but not read
}

void FileArgumentListTest::refusesList()
{
    QFETCH(QString, name);
    const std::filesystem::path list = at(name.toStdString());
    const FileArgumentList taken = lookAt({ {}, list }, true);
    QCOMPARE(taken.refused.size(), std::size_t(1));
    QCOMPARE(taken.refused.front().path, list);
    QVERIFY(!taken.refused.front().message.isEmpty());
}

// It would wait for somebody to write to it. The one who reads the file tells what it is.
void FileArgumentListTest::opensNoFifo()
{
    QCOMPARE(::mkfifo(at("fifo.pdf").c_str(), 0600), 0);
    QCOMPARE(lookAt({ { at("fifo.pdf") }, {} }, true).paths, std::vector { at("fifo.pdf") });
}

void FileArgumentListTest::keepsBytesInJson()
{
    QJsonObject object;
    insertPath(object, u"path"_s, "/a\xff");
    insertPath(object, u"newPath"_s, "/é");
    const QJsonObject expected { { u"path"_s, u"/a\ufffd"_s }, { u"pathBytes"_s, u"L2H/"_s },
        { u"newPath"_s, u"/é"_s } };
    QCOMPARE(object, expected);
}

QTEST_GUILESS_MAIN(FileArgumentListTest)
#include "tst_FileArgumentList.moc"
