// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakePreferenceStore.h"
#include "fakes/FakeSystemLocale.h"
#include "templates/TemplateEditor.h"
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using enum TemplateField;
using Fields = QList<TemplateField>;

class TemplateEditorTest : public QObject {
    Q_OBJECT
private slots:
    void followsFieldByField_data();
    void followsFieldByField();
    void storesWhatIsDone();
    void leavesWhatIsNotThere();
};

static QStringList labels(const TemplateEditor &editor)
{
    QStringList all;
    for (int row = 0; row < editor.rowCount(); ++row)
        all.append(editor.data(editor.index(row), TemplateEditor::LabelRole).toString());
    return all;
}

struct Desk {
    FakePreferenceStore preferenceStore;
    Preferences preferences { preferenceStore };
    TemplateStore store { preferences };
    FakeSystemLocale locale;
    TemplateEditor editor { store, locale };
    QAbstractItemModelTester tester { &editor, QAbstractItemModelTester::FailureReportingMode::Fatal };

    void keep(const Fields &fields) { static_cast<void>(store.setTemplates({ { u"t"_s, u"T"_s, fields } })); }
    [[nodiscard]] Fields kept() const { return store.templates().constFirst().fields; }
};

void TemplateEditorTest::followsFieldByField_data()
{
    QTest::addColumn<Fields>("before");
    QTest::addColumn<Fields>("after");
    QTest::addColumn<int>("keptRow"); ///< of the first field; -1 where it goes
    QTest::newRow("moved to the end") << Fields { Date, Vendor, Amount } << Fields { Vendor, Amount, Date } << 2;
    QTest::newRow("moved to the front") << Fields { Date, Vendor, Amount } << Fields { Amount, Date, Vendor } << 1;
    QTest::newRow("first removed") << Fields { Date, Vendor, Amount } << Fields { Vendor, Amount } << -1;
    QTest::newRow("middle removed") << Fields { Date, Vendor, Amount } << Fields { Date, Amount } << 0;
    QTest::newRow("last removed") << Fields { Date, Vendor, Amount } << Fields { Date, Vendor } << 0;
    QTest::newRow("added in front") << Fields { Date, Vendor } << Fields { Title, Date, Vendor } << 1;
    QTest::newRow("a field twice, from elsewhere") << Fields { Date, Vendor } << Fields { Vendor, Date, Vendor } << 1;
    QTest::newRow("all others") << Fields { Date, Vendor } << Fields { Title, Parties, DocumentType } << -1;
    QTest::newRow("none left") << Fields { Date, Vendor } << Fields {} << -1;
}

void TemplateEditorTest::followsFieldByField()
{
    QFETCH(Fields, before);
    QFETCH(Fields, after);
    QFETCH(int, keptRow);
    Desk desk;
    desk.keep(before);
    desk.editor.edit(u"t"_s);
    const QPersistentModelIndex first = desk.editor.index(0);
    QSignalSpy resets(&desk.editor, &QAbstractItemModel::modelReset);
    desk.keep(after);
    QStringList expected;
    for (const TemplateField field : after)
        expected.append(label(field));
    QCOMPARE(labels(desk.editor), expected);
    QCOMPARE(first.row(), keptRow); // else the keyboard would be somewhere else
    QVERIFY(resets.isEmpty());
}

void TemplateEditorTest::storesWhatIsDone()
{
    Desk desk;
    desk.editor.create();
    const QString id = desk.editor.templateId();
    const auto fields = [&] { return desk.store.nameTemplate(id)->fields; };
    QCOMPARE(fields(), (Fields { Date, Title }));
    QCOMPARE(desk.editor.title(), u"Untitled"_s);
    desk.editor.setName(u"Mine"_s);
    QCOMPARE(desk.store.nameTemplate(id)->name, u"Mine"_s);
    desk.editor.addField(u"vendor"_s);
    desk.editor.addField(u"vendor"_s); // once is enough
    QCOMPARE(fields(), (Fields { Date, Title, Vendor }));
    QStringList missing;
    for (const QVariant &field : desk.editor.missingFields())
        missing.append(field.toMap().value(u"id"_s).toString());
    QCOMPARE(missing, (QStringList { u"amount"_s, u"type"_s, u"parties"_s }));
    desk.editor.moveField(2, 0);
    QCOMPARE(fields(), (Fields { Vendor, Date, Title }));
    desk.editor.removeField(1);
    QCOMPARE(desk.editor.preview(), u"Squarespace - Annual report"_s);
    desk.locale.code = u"nl"_s;
    QCOMPARE(desk.editor.preview(), u"Squarespace - Jaaroverzicht"_s);
    desk.editor.remove();
    QVERIFY(!desk.store.nameTemplate(id));
    QCOMPARE(desk.editor.templateId(), QString());
}

void TemplateEditorTest::leavesWhatIsNotThere()
{
    Desk desk;
    desk.keep({ Date, Vendor });
    desk.editor.edit(u"t"_s);
    desk.editor.moveField(0, 2);
    desk.editor.moveField(-1, 0);
    desk.editor.removeField(2);
    desk.editor.addField(u"documentType"_s);
    QCOMPARE(desk.kept(), (Fields { Date, Vendor }));

    desk.editor.edit(u"invoice"_s); // not in this store
    desk.editor.setName(u"x"_s);
    desk.editor.addField(u"title"_s);
    QCOMPARE(desk.editor.rowCount(), 0);
    QCOMPARE(desk.editor.preview(), u"2025-12-17 - Squarespace - 174.24 EUR"_s);
    QCOMPARE(desk.store.templates().size(), 1);
}

QTEST_GUILESS_MAIN(TemplateEditorTest)
#include "tst_TemplateEditor.moc"
