// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/TemplateStore.h"
#include <QAbstractListModel>
#include <QVariantList>

namespace Varlo {

/// One template being edited: its fields as rows, in their order. Every change is stored at once, and what another
/// process stores shows here. Lives on the main thread.
class TemplateEditor final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString templateId READ templateId NOTIFY edited)
    Q_PROPERTY(QString title READ title NOTIFY edited)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY edited)
    Q_PROPERTY(bool isBuiltIn READ isBuiltIn NOTIFY edited)
    Q_PROPERTY(QString preview READ preview NOTIFY edited)
    Q_PROPERTY(QVariantList missingFields READ missingFields NOTIFY edited)
public:
    enum Role { LabelRole = Qt::UserRole + 1 };

    /// Both outlive this object.
    TemplateEditor(TemplateStore &store, const SystemLocale &locale, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// "" while no template is edited.
    [[nodiscard]] QString templateId() const { return m_id; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString name() const;
    void setName(const QString &name);
    /// A built-in template keeps its title and cannot be deleted.
    [[nodiscard]] bool isBuiltIn() const;
    /// A name made by it, in the system's language; of an invoice where the template is gone.
    [[nodiscard]] QString preview() const;
    /// The fields that can be added, each with id and name.
    [[nodiscard]] QVariantList missingFields() const;

    Q_INVOKABLE void edit(const QString &id);
    /// Edits a new template with a date and a title.
    Q_INVOKABLE void create();
    Q_INVOKABLE void close() { edit({}); }
    /// One that the template has already is not added.
    Q_INVOKABLE void addField(const QString &id);
    Q_INVOKABLE void removeField(int row);
    /// `to` is the row that the field has afterwards.
    Q_INVOKABLE void moveField(int from, int to);
    Q_INVOKABLE void remove();
    /// The texts are asked for again, in another language.
    void retranslate();

signals:
    void edited();

private:
    void reload();
    void store(const NameTemplate &changed);

    TemplateStore &m_store;
    const SystemLocale &m_locale;
    QString m_id;
    QList<TemplateField> m_fields;
};

} // namespace Varlo
