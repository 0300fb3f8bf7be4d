// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "templates/TemplateEditor.h"

#include "platform/visibleText.h"
#include <QVariantMap>

namespace Varlo {

using namespace Qt::StringLiterals;

TemplateEditor::TemplateEditor(TemplateStore &store, const SystemLocale &locale, QObject *parent)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_locale(locale)
{
    connect(&store, &TemplateStore::changed, this, &TemplateEditor::reload);
}

int TemplateEditor::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_fields.size());
}

QVariant TemplateEditor::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != LabelRole)
        return {};
    return label(m_fields.at(index.row()));
}

QHash<int, QByteArray> TemplateEditor::roleNames() const { return { { LabelRole, "label" } }; }

QString TemplateEditor::title() const
{
    const auto edited = m_store.nameTemplate(m_id);
    return edited ? visibleText(templateTitle(*edited)) : QString();
}

QString TemplateEditor::name() const
{
    const auto edited = m_store.nameTemplate(m_id);
    return edited ? edited->name.value_or(QString()) : QString();
}

void TemplateEditor::setName(const QString &name)
{
    auto changed = m_store.nameTemplate(m_id);
    if (!changed || isBuiltIn() || changed->name == name)
        return;
    changed->name = name;
    store(*changed);
}

bool TemplateEditor::isBuiltIn() const { return builtInTemplateName(m_id).has_value(); }

QString TemplateEditor::preview() const
{
    const NameTemplate shown = m_store.nameTemplate(m_id).value_or(builtInTemplates().front());
    return shown.exampleName(systemFilenameLanguage(m_locale));
}

QVariantList TemplateEditor::missingFields() const
{
    QVariantList missing;
    for (const TemplateField field : allTemplateFields) {
        if (!m_fields.contains(field))
            missing.append(QVariantMap { { u"id"_s, rawValue(field) }, { u"name"_s, label(field) } });
    }
    return missing;
}

void TemplateEditor::edit(const QString &id)
{
    m_id = id;
    reload();
}

void TemplateEditor::create()
{
    // What cannot be stored now is stored with the next change; the template is there all the same, as the last one.
    const auto added = m_store.addTemplate({ TemplateField::Date, TemplateField::Title });
    edit(added ? *added : m_store.templates().back().id);
}

void TemplateEditor::addField(const QString &id)
{
    const auto field = templateField(id);
    auto changed = m_store.nameTemplate(m_id);
    if (!field || !changed || changed->fields.contains(*field))
        return;
    changed->fields.append(*field);
    store(*changed);
}

void TemplateEditor::removeField(int row)
{
    auto changed = m_store.nameTemplate(m_id);
    if (!changed || row < 0 || row >= changed->fields.size())
        return;
    changed->fields.removeAt(row);
    store(*changed);
}

void TemplateEditor::moveField(int from, int to)
{
    auto changed = m_store.nameTemplate(m_id);
    if (!changed || std::min(from, to) < 0 || std::max(from, to) >= changed->fields.size() || from == to)
        return;
    changed->fields.move(from, to);
    store(*changed);
}

void TemplateEditor::remove()
{
    static_cast<void>(m_store.deleteTemplate(QString(m_id)));
    close();
}

void TemplateEditor::retranslate()
{
    if (!m_fields.isEmpty())
        emit dataChanged(index(0), index(rowCount() - 1));
    emit edited();
}

/// The list here has changed also where storing fails, and then the next change stores both.
void TemplateEditor::store(const NameTemplate &changed) { static_cast<void>(m_store.updateTemplate(changed)); }

/// Field by field, so that one that stays or moves keeps the keyboard.
void TemplateEditor::reload()
{
    const auto edited = m_store.nameTemplate(m_id);
    const QList<TemplateField> wanted = edited ? edited->fields : QList<TemplateField>();
    for (int row = 0; row < wanted.size(); ++row) {
        if (row < m_fields.size() && m_fields.at(row) == wanted.at(row))
            continue;
        const int from = static_cast<int>(m_fields.indexOf(wanted.at(row), row));
        if (from < 0) {
            beginInsertRows({}, row, row);
            m_fields.insert(row, wanted.at(row));
            endInsertRows();
        } else if (wanted.size() < m_fields.size() && from == row + 1) {
            beginRemoveRows({}, row, row); // else the ones behind it would all have to move
            m_fields.removeAt(row);
            endRemoveRows();
        } else {
            beginMoveRows({}, from, from, {}, row);
            m_fields.move(from, row);
            endMoveRows();
        }
    }
    if (m_fields.size() > wanted.size()) {
        beginRemoveRows({}, static_cast<int>(wanted.size()), rowCount() - 1);
        m_fields.resize(wanted.size());
        endRemoveRows();
    }
    emit this->edited();
}

} // namespace Varlo
