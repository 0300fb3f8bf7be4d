// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "templates/NameTemplate.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace Varlo {

using namespace Qt::StringLiterals;

QString rawValue(TemplateField field)
{
    switch (field) {
    case TemplateField::Date:
        return u"date"_s;
    case TemplateField::Vendor:
        return u"vendor"_s;
    case TemplateField::Amount:
        return u"amount"_s;
    case TemplateField::Title:
        return u"title"_s;
    case TemplateField::DocumentType:
        return u"type"_s;
    case TemplateField::Parties:
        return u"parties"_s;
    }
    Q_UNREACHABLE();
}

std::optional<TemplateField> templateField(const QString &raw)
{
    for (const TemplateField field : allTemplateFields) {
        if (rawValue(field) == raw)
            return field;
    }
    return {};
}

QString label(TemplateField field)
{
    switch (field) {
    case TemplateField::Date:
        return QCoreApplication::translate("TemplateField", "Date");
    case TemplateField::Vendor:
        return QCoreApplication::translate("TemplateField", "Vendor");
    case TemplateField::Amount:
        return QCoreApplication::translate("TemplateField", "Amount");
    case TemplateField::Title:
        return QCoreApplication::translate("TemplateField", "Title");
    case TemplateField::DocumentType:
        return QCoreApplication::translate("TemplateField", "Document type");
    case TemplateField::Parties:
        return QCoreApplication::translate("TemplateField", "Parties");
    }
    Q_UNREACHABLE();
}

static QString exampleTitle(FilenameLanguage language)
{
    switch (language) {
    case FilenameLanguage::Dutch:
        return u"Jaaroverzicht"_s;
    case FilenameLanguage::Spanish:
        return u"Informe anual"_s;
    case FilenameLanguage::English:
    case FilenameLanguage::Auto:
        return u"Annual report"_s;
    }
    Q_UNREACHABLE();
}

static QString exampleValue(TemplateField field, FilenameLanguage language)
{
    switch (field) {
    case TemplateField::Date:
        return u"2025-12-17"_s;
    case TemplateField::Vendor:
        return u"Squarespace"_s;
    case TemplateField::Amount:
        return u"174.24 EUR"_s;
    case TemplateField::Title:
        return exampleTitle(language);
    case TemplateField::DocumentType:
        return language == FilenameLanguage::Spanish ? u"Contrato"_s : u"Contract"_s;
    case TemplateField::Parties:
        return u"Acme x Korvan"_s;
    }
    Q_UNREACHABLE();
}

QString NameTemplate::exampleName(FilenameLanguage language) const
{
    QStringList values;
    for (const TemplateField field : fields)
        values.append(exampleValue(field, language));
    return values.join(" - "_L1);
}

const QList<NameTemplate> &builtInTemplates()
{
    using enum TemplateField;
    static const QList<NameTemplate> templates {
        { u"invoice"_s, {}, { Date, Vendor, Amount } },
        { u"receipt"_s, {}, { Date, Vendor, Amount } },
        { u"document"_s, {}, { Date, Title } },
        { u"contract"_s, {}, { Date, DocumentType, Parties } },
    };
    return templates;
}

std::optional<QString> builtInTemplateName(const QString &id)
{
    for (const NameTemplate &builtIn : builtInTemplates()) {
        if (builtIn.id == id)
            return id.first(1).toUpper() + id.sliced(1);
    }
    return {};
}

QString templateTitle(const NameTemplate &nameTemplate)
{
    [[maybe_unused]] static const char *const titles[]
        = { QT_TRANSLATE_NOOP("NameTemplate", "Invoice"), QT_TRANSLATE_NOOP("NameTemplate", "Receipt"),
              QT_TRANSLATE_NOOP("NameTemplate", "Document"), QT_TRANSLATE_NOOP("NameTemplate", "Contract") };
    if (const auto builtIn = builtInTemplateName(nameTemplate.id))
        return QCoreApplication::translate("NameTemplate", builtIn->toUtf8().constData());
    if (nameTemplate.name && !nameTemplate.name->isEmpty())
        return *nameTemplate.name;
    return QCoreApplication::translate("NameTemplate", "Untitled");
}

QJsonObject toJson(const NameTemplate &nameTemplate)
{
    QJsonArray fields;
    for (const TemplateField field : nameTemplate.fields)
        fields.append(rawValue(field));
    QJsonObject object { { u"id"_s, nameTemplate.id }, { u"fields"_s, fields } };
    if (nameTemplate.name)
        object.insert(u"name"_s, *nameTemplate.name);
    return object;
}

static std::optional<NameTemplate> decodeTemplate(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const QJsonValue id = object.value("id"_L1);
    const QJsonValue name = object.value("name"_L1);
    const QJsonValue fields = object.value("fields"_L1);
    if (!id.isString() || !fields.isArray() || !(name.isString() || name.isNull() || name.isUndefined()))
        return {};
    NameTemplate nameTemplate { id.toString(), {}, {} };
    if (name.isString())
        nameTemplate.name = name.toString();
    const QJsonArray rawFields = fields.toArray();
    for (const QJsonValue rawField : rawFields) {
        const auto field = templateField(rawField.toString());
        if (!field)
            return {};
        nameTemplate.fields.append(*field);
    }
    return nameTemplate;
}

std::optional<QList<NameTemplate>> decodeTemplates(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return {};
    QList<NameTemplate> templates;
    const QJsonArray array = document.array();
    for (const QJsonValue value : array) {
        const auto nameTemplate = decodeTemplate(value);
        if (!nameTemplate)
            return {};
        templates.append(*nameTemplate);
    }
    return templates;
}

QByteArray encodeTemplates(const QList<NameTemplate> &templates)
{
    QJsonArray array;
    for (const NameTemplate &nameTemplate : templates)
        array.append(toJson(nameTemplate));
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

} // namespace Varlo
