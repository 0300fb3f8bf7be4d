// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeSystemLocale.h"
#include "platform/linux/QtSystemLocale.h"
#include "templates/FilenameLanguage.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;
using enum FilenameLanguage;

class FilenameLanguageTest : public QObject {
    Q_OBJECT
private slots:
    void readsRawValues();
    void followsTheSystem_data();
    void followsTheSystem();
    void readsTheEnvironment_data();
    void readsTheEnvironment();
};

void FilenameLanguageTest::readsRawValues()
{
    QVERIFY(filenameLanguage(u"nl"_s) == Dutch);
    QVERIFY(!filenameLanguage(u"NL"_s));
    QVERIFY(!filenameLanguage(u"system"_s));
    QStringList ids;
    for (const FilenameLanguageOption &option : filenameLanguageOptions) {
        ids.append(id(option));
        QVERIFY(filenameLanguageOption(id(option)) == option);
    }
    QCOMPARE(ids, QStringList({ u"auto"_s, u"system"_s, u"en"_s, u"es"_s, u"nl"_s }));
}

void FilenameLanguageTest::followsTheSystem_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<FilenameLanguage>("language");
    QTest::newRow("es") << u"es"_s << Spanish;
    QTest::newRow("nl") << u"nl"_s << Dutch;
    QTest::newRow("another language is never Auto") << u"ja"_s << English;
    QTest::newRow("none set") << u""_s << English;
    QTest::newRow("nothing but the code counts: Low German") << u"nds"_s << English;
}

void FilenameLanguageTest::followsTheSystem()
{
    QFETCH(QString, code);
    QFETCH(FilenameLanguage, language);
    const FakeSystemLocale locale(code);
    QCOMPARE(resolvedLanguage(FollowSystem {}, locale), language);
    QCOMPARE(resolvedLanguage(Auto, locale), Auto);
}

void FilenameLanguageTest::readsTheEnvironment_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QString>("code");
    QTest::newRow("the region does not matter") << QStringList { u"LANG=nl_BE.UTF-8"_s } << u"nl"_s;
    QTest::newRow("LC_ALL stands over LANG")
        << QStringList { u"LANG=nl_NL.UTF-8"_s, u"LC_ALL=es_MX.UTF-8"_s } << u"es"_s;
    QTest::newRow("LC_MESSAGES stands over LANG")
        << QStringList { u"LANG=nl_NL.UTF-8"_s, u"LC_MESSAGES=es_ES.UTF-8"_s } << u"es"_s;
    QTest::newRow("the first of LANGUAGE stands over both")
        << QStringList { u"LANGUAGE=nl:es"_s, u"LANG=de_DE.UTF-8"_s, u"LC_ALL=fr_FR.UTF-8"_s } << u"nl"_s;
    QTest::newRow("three letters") << QStringList { u"LANG=haw_US.UTF-8"_s } << u"haw"_s;
    QTest::newRow("C is no language") << QStringList { u"LANG=C.UTF-8"_s } << u""_s;
    QTest::newRow("nothing set") << QStringList {} << u""_s;
}

void FilenameLanguageTest::readsTheEnvironment()
{
    QFETCH(QStringList, environment);
    QFETCH(QString, code);
    QProcess self; // Qt reads the system's locale once a process
    self.setEnvironment(environment);
    self.start(QCoreApplication::applicationFilePath(), { u"--language"_s });
    QVERIFY(self.waitForFinished());
    QCOMPARE(QString::fromUtf8(self.readAllStandardOutput()), u'[' + code + u']');
}

int main(int count, char **values)
{
    QCoreApplication application(count, values);
    if (application.arguments().value(1) == "--language"_L1) {
        QTextStream(stdout) << '[' << QtSystemLocale().languageCode() << ']';
        return 0;
    }
    FilenameLanguageTest test;
    return QTest::qExec(&test, count, values);
}

#include "tst_FilenameLanguage.moc"
