// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/FilenameLanguage.h"
#include <array>
#include <optional>
#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace Varlo {

enum class TemplateField { Date, Vendor, Amount, Title, DocumentType, Parties };
inline constexpr std::array allTemplateFields { TemplateField::Date, TemplateField::Vendor, TemplateField::Amount,
    TemplateField::Title, TemplateField::DocumentType, TemplateField::Parties };

/// The word stored and typed for a field: "date", "vendor", "amount", "title", "type", "parties".
[[nodiscard]] QString rawValue(TemplateField field);
[[nodiscard]] std::optional<TemplateField> templateField(const QString &rawValue);
/// The word shown for a field.
[[nodiscard]] QString label(TemplateField field);

/// The structure that names of a batch follow: fields in their order.
struct NameTemplate {
    QString id; ///< a fixed word for a built-in template, a UUID for a user's
    std::optional<QString> name; ///< absent for a built-in template; "" for one that the user has not named yet
    QList<TemplateField> fields;

    bool operator==(const NameTemplate &) const = default;

    /// A name made of this template's fields for a well-known document; "" without fields. It previews the template.
    [[nodiscard]] QString exampleName(FilenameLanguage language) const;
};

/// Invoice, receipt, document and contract, in this order.
[[nodiscard]] const QList<NameTemplate> &builtInTemplates();
/// "Invoice", "Receipt", "Document" or "Contract" in English; nothing for any other id.
[[nodiscard]] std::optional<QString> builtInTemplateName(const QString &id);
/// The title shown in lists: the translated name of a built-in template, whatever name it carries; else the user's
/// name; else "Untitled".
[[nodiscard]] QString templateTitle(const NameTemplate &nameTemplate);

[[nodiscard]] QJsonObject toJson(const NameTemplate &nameTemplate);
/// A JSON array of {"id", "name"?, "fields"}. Nothing when any object of it lacks an id or fields, or names a field
/// that does not exist.
[[nodiscard]] std::optional<QList<NameTemplate>> decodeTemplates(const QByteArray &json);
[[nodiscard]] QByteArray encodeTemplates(const QList<NameTemplate> &templates);

} // namespace Varlo
