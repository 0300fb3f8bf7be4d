// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakePreferenceStore.h"
#include "fakes/FakeSystemLocale.h"
#include "languages/InterfaceLanguage.h"
#include "platform/Message.h"
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class InterfaceLanguageTest final : public QObject {
    Q_OBJECT
private slots:
    void speaks_data();
    void speaks();
    void changesAtOnce();
    void countsInEnglish();
    void fillsInWhatIsNotItsOwn();
};

static QString files(int count) { return QCoreApplication::translate("FileList", "%n file(s)", nullptr, count); }

void InterfaceLanguageTest::speaks_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("the chosen one, not the system's") << u"nl"_s << u"es"_s << u"2 bestanden"_s;
    QTest::newRow("English on a Dutch system") << u"en"_s << u"nl"_s << u"2 files"_s;
    QTest::newRow("the system's") << u"system"_s << u"es"_s << u"2 archivos"_s;
    QTest::newRow("the system's for a choice that there is not") << u"de"_s << u"nl"_s << u"2 bestanden"_s;
    QTest::newRow("English for a system's that there is not") << u"system"_s << u"de"_s << u"2 files"_s;
    QTest::newRow("English for none at all") << u""_s << u""_s << u"2 files"_s;
}

void InterfaceLanguageTest::speaks()
{
    QFETCH(QString, preference);
    QFETCH(QString, system);
    FakePreferenceStore store;
    Preferences preferences(store);
    QVERIFY(preferences.set(Preference::uiLanguage, preference));
    FakeSystemLocale locale;
    locale.code = system;
    const InterfaceLanguage language(preferences, locale);
    QTEST(files(2), "spoken");
}

void InterfaceLanguageTest::changesAtOnce()
{
    FakePreferenceStore store;
    Preferences preferences(store);
    const FakeSystemLocale locale;
    const InterfaceLanguage language(preferences, locale);
    const Message kept { "NameSuggestionError", "No API key set." };
    QCOMPARE(kept.text(), u"No API key set."_s);
    QSignalSpy changed(&language, &InterfaceLanguage::changed);
    QVERIFY(preferences.set(Preference::uiLanguage, u"nl"_s));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(kept.text(), u"Geen API-sleutel ingesteld."_s);
    QCOMPARE(QLocale().language(), QLocale::Dutch);
    QVERIFY(preferences.set(Preference::uiLanguage, u"es"_s));
    QCOMPARE(kept.text(), u"No hay ninguna clave de API."_s);
    QVERIFY(preferences.set(Preference::uiLanguage, u"en"_s));
    QCOMPARE(kept.text(), u"No API key set."_s);
    QVERIFY(preferences.set(Preference::writeFinderTags, true));
    QCOMPARE(changed.size(), 3); // not for any other preference
}

void InterfaceLanguageTest::countsInEnglish()
{
    FakePreferenceStore store;
    Preferences preferences(store);
    const FakeSystemLocale locale;
    const InterfaceLanguage language(preferences, locale);
    QCOMPARE(files(1), u"1 file"_s);
    QCOMPARE(files(0), u"0 files"_s);
}

void InterfaceLanguageTest::fillsInWhatIsNotItsOwn()
{
    const Message server(u"key sk-12345678 refused"_s);
    const Message told { "RenameLog", "The history could not be read: %1", { server } };
    const Message hidden = told.replaced(u"sk-12345678"_s, u"•••"_s);
    QCOMPARE(hidden.text(), u"The history could not be read: key ••• refused"_s);
    const Message tricky { "Any", "%1 and %2", { u"%2"_s, u"%1"_s } };
    QCOMPARE(tricky.text(), u"%2 and %1"_s);
    QCOMPARE(Message().text(), QString());
}

QTEST_GUILESS_MAIN(InterfaceLanguageTest)
#include "tst_InterfaceLanguage.moc"
