// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakePreferenceStore.h"
#include "platform/linux/JsonPreferenceStore.h"
#include "templates/TemplateStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace Varlo;
using enum TemplateField;

class TemplateStoreTest : public QObject {
    Q_OBJECT
private slots:
    void startsFromTheBuiltInFour_data();
    void startsFromTheBuiltInFour();
    void addsAnUnnamedTemplate();
    void replacesAsAWhole();
    void changesNothing_data();
    void changesNothing();
    void deletesEveryTemplateOfThatId();
    void keepsTheListThatCouldNotBeStored();
    void losesNothingToAnotherStore();
    void copiesBeforeItReplacesWhatItCannotRead();
    void titles_data();
    void titles();
    void previews_data();
    void previews();

private:
    [[nodiscard]] QByteArray stored() const
    {
        const auto found = m_preferenceStore->values.find(Preference::templates.name);
        return found == m_preferenceStore->values.end() ? QByteArray() : std::get<QByteArray>(found->second);
    }
    void init()
    {
        m_preferences.reset();
        m_preferenceStore = std::make_unique<FakePreferenceStore>();
        m_preferences = std::make_unique<Preferences>(*m_preferenceStore);
    }

    std::unique_ptr<FakePreferenceStore> m_preferenceStore;
    std::unique_ptr<Preferences> m_preferences;
};

void TemplateStoreTest::startsFromTheBuiltInFour_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("understood");
    QTest::newRow("nothing stored") << QByteArray() << false;
    QTest::newRow("case name in place of the raw value")
        << QByteArray(R"([{"id":"a","fields":["documentType"]}])") << false;
    QTest::newRow("one good, one with a field of the future")
        << QByteArray(R"([{"id":"a","fields":["date"]},{"id":"b","fields":["pages"]}])") << false;
    QTest::newRow("no id") << QByteArray(R"([{"name":"a","fields":[]}])") << false;
    QTest::newRow("no fields") << QByteArray(R"([{"id":"a"}])") << false;
    QTest::newRow("name is a number") << QByteArray(R"([{"id":"a","name":1,"fields":[]}])") << false;
    QTest::newRow("one object, no array") << QByteArray(R"({"id":"a","fields":[]})") << false;
    QTest::newRow("cut off") << QByteArray(R"([{"id":"a","fields":["da)") << false;
    QTest::newRow("an empty list is a list") << QByteArray("[]") << true;
    QTest::newRow("a template without a name") << QByteArray(R"([{"id":"a","fields":["type"]}])") << true;
}

void TemplateStoreTest::startsFromTheBuiltInFour()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, understood);
    init();
    if (!bytes.isEmpty())
        m_preferenceStore->values.insert_or_assign(Preference::templates.name, bytes);
    const auto before = m_preferenceStore->values;
    const TemplateStore store(*m_preferences);
    QCOMPARE(store.templates() == builtInTemplates(), !understood);
    QCOMPARE(m_preferenceStore->values, before);
}

void TemplateStoreTest::addsAnUnnamedTemplate()
{
    init();
    TemplateStore store(*m_preferences);
    QSignalSpy changes(&store, &TemplateStore::changed);
    const auto id = store.addTemplate({ Date, Title });
    QVERIFY(id);
    QCOMPARE(id->size(), 36);
    QVERIFY(!QUuid::fromString(*id).isNull());
    QCOMPARE(changes.size(), 1);
    const QJsonArray array = QJsonDocument::fromJson(stored()).array();
    QCOMPARE(array.size(), 5);
    QCOMPARE(array.at(0).toObject(),
        (QJsonObject {
            { u"id"_s, u"invoice"_s }, { u"fields"_s, QJsonArray { u"date"_s, u"vendor"_s, u"amount"_s } } }));
    QCOMPARE(array.at(4).toObject(),
        (QJsonObject {
            { u"id"_s, *id }, { u"name"_s, u""_s }, { u"fields"_s, QJsonArray { u"date"_s, u"title"_s } } }));
    QCOMPARE(TemplateStore(*m_preferences).templates(), store.templates());
}

void TemplateStoreTest::replacesAsAWhole()
{
    init();
    TemplateStore store(*m_preferences);
    const NameTemplate changed { u"receipt"_s, u"Kassabon"_s, { Amount, Parties } };
    QVERIFY(store.updateTemplate(changed));
    QCOMPARE(store.templates().at(1), changed);
    QVERIFY(store.nameTemplate(u"receipt"_s) == changed);
    QCOMPARE(templateTitle(store.templates().at(1)), u"Receipt"_s);
    QCOMPARE(*decodeTemplates(stored()), store.templates());
}

void TemplateStoreTest::changesNothing_data()
{
    QTest::addColumn<bool>("isDeletion");
    QTest::addColumn<QString>("id");
    QTest::newRow("delete a built-in") << true << u"contract"_s;
    QTest::newRow("delete what is not there") << true << u"Contract"_s;
    QTest::newRow("update what is not there") << false << u"nothing"_s;
}

void TemplateStoreTest::changesNothing()
{
    QFETCH(bool, isDeletion);
    QFETCH(QString, id);
    init();
    TemplateStore store(*m_preferences);
    QSignalSpy changes(&store, &TemplateStore::changed);
    QVERIFY(isDeletion ? store.deleteTemplate(id) : store.updateTemplate({ id, {}, { Date } }));
    QCOMPARE(store.templates(), builtInTemplates());
    QVERIFY(m_preferenceStore->values.empty());
    QCOMPARE(changes.size(), 0);
}

void TemplateStoreTest::deletesEveryTemplateOfThatId()
{
    init();
    TemplateStore store(*m_preferences);
    const NameTemplate twin { u"twin"_s, u"Twin"_s, { Date } };
    const NameTemplate other { u"other"_s, u"Other"_s, {} };
    QVERIFY(store.setTemplates({ twin, other, twin }));
    QVERIFY(store.deleteTemplate(u"twin"_s));
    QCOMPARE(store.templates(), QList { other });
    QCOMPARE(*decodeTemplates(stored()), QList { other });
}

void TemplateStoreTest::keepsTheListThatCouldNotBeStored()
{
    init();
    TemplateStore store(*m_preferences);
    QSignalSpy changes(&store, &TemplateStore::changed);
    m_preferenceStore->failure = SystemError { ENOSPC };
    const auto failed = store.addTemplate({ Date });
    QVERIFY(failed == tl::make_unexpected(SystemError { ENOSPC }));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(store.templates().size(), 5);
    const NameTemplate unsaved = store.templates().last();

    m_preferenceStore->failure.reset();
    const NameTemplate elsewhere { u"elsewhere"_s, u"Other window"_s, { Title } };
    m_preferenceStore->changeElsewhere(Preference::templates.name, encodeTemplates({ elsewhere }));
    QCOMPARE(store.templates(), QList({ elsewhere, unsaved }));
    QVERIFY(store.addTemplate({ Amount }));
    QCOMPARE(store.templates().size(), 3);
    QCOMPARE(*decodeTemplates(stored()), store.templates());
    QCOMPARE(store.templates().first(2), QList({ elsewhere, unsaved }));
}

void TemplateStoreTest::losesNothingToAnotherStore()
{
    QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath(u"preferences.json"_s).toStdString();
    JsonPreferenceStore oneFile(file);
    JsonPreferenceStore otherFile(file);
    Preferences onePreferences(oneFile);
    Preferences otherPreferences(otherFile);
    TemplateStore one(onePreferences);
    TemplateStore other(otherPreferences);
    oneFile.observe();
    const auto first = one.addTemplate({ Date });
    const auto second = other.addTemplate({ Title });
    QVERIFY(first && second);
    QCOMPARE(other.templates().size(), 6);
    QVERIFY(other.nameTemplate(*first));
    QTRY_COMPARE_WITH_TIMEOUT(one.templates(), other.templates(), 60'000);
    QVERIFY(one.deleteTemplate(*second));
    QCOMPARE(one.templates().size(), 5);
}

void TemplateStoreTest::copiesBeforeItReplacesWhatItCannotRead()
{
    init();
    m_preferenceStore->values.insert_or_assign(Preference::templates.name, QByteArray("[{\"id\":\"mine\""));
    TemplateStore store(*m_preferences);
    QVERIFY(store.deleteTemplate(u"unknown"_s));
    QCOMPARE(m_preferenceStore->copies, 0);
    QCOMPARE(stored(), "[{\"id\":\"mine\"");
    QVERIFY(store.addTemplate({}));
    QVERIFY(store.addTemplate({}));
    QCOMPARE(m_preferenceStore->copies, 1);
    QCOMPARE(decodeTemplates(stored())->size(), 6);
}

void TemplateStoreTest::titles_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("a built-in keeps its title") << u"invoice"_s << u"Mine"_s << u"Invoice"_s;
    QTest::newRow("an empty name") << u"x"_s << u""_s << u"Untitled"_s;
    QTest::newRow("no name") << u"x"_s << QString() << u"Untitled"_s;
    QTest::newRow("a name as written") << u"Invoice"_s << u" bon "_s << u" bon "_s;
}

void TemplateStoreTest::titles()
{
    QFETCH(QString, id);
    QFETCH(QString, name);
    const auto given = name.isNull() ? std::nullopt : std::optional(name);
    QTEST(templateTitle({ id, given, {} }), "title");
}

void TemplateStoreTest::previews_data()
{
    QTest::addColumn<QList<TemplateField>>("fields");
    QTest::addColumn<FilenameLanguage>("language");
    QTest::addColumn<QString>("name");
    using enum FilenameLanguage;
    const QList<TemplateField> contract { Date, DocumentType, Parties };
    QTest::newRow("contract in Spanish") << contract << Spanish << u"2025-12-17 - Contrato - Acme x Korvan"_s;
    QTest::newRow("contract in Dutch") << contract << Dutch << u"2025-12-17 - Contract - Acme x Korvan"_s;
    QTest::newRow("order is the template's")
        << QList { Amount, Vendor, Date } << English << u"174.24 EUR - Squarespace - 2025-12-17"_s;
    QTest::newRow("title, Dutch") << QList { Title } << Dutch << u"Jaaroverzicht"_s;
    QTest::newRow("title, the document's own") << QList { Title } << Auto << u"Annual report"_s;
    QTest::newRow("no fields") << QList<TemplateField> {} << English << u""_s;
}

void TemplateStoreTest::previews()
{
    QFETCH(QList<TemplateField>, fields);
    QFETCH(FilenameLanguage, language);
    const NameTemplate previewed { u"x"_s, {}, fields };
    QTEST(previewed.exampleName(language), "name");
}

QTEST_GUILESS_MAIN(TemplateStoreTest)
#include "tst_TemplateStore.moc"
