// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "templates/TemplateStore.h"

#include <algorithm>
#include <QScopedValueRollback>
#include <QUuid>

namespace Varlo {

using namespace Qt::StringLiterals;

static auto find(QList<NameTemplate> &templates, const QString &id)
{
    return std::find_if(templates.begin(), templates.end(), [&id](const NameTemplate &one) { return one.id == id; });
}

TemplateStore::TemplateStore(Preferences &preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    reload();
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (name == Preference::templates.name)
            reload();
    });
}

std::optional<NameTemplate> TemplateStore::nameTemplate(const QString &id) const
{
    for (const NameTemplate &one : m_templates) {
        if (one.id == id)
            return one;
    }
    return {};
}

Result<QString, SystemError> TemplateStore::addTemplate(const QList<TemplateField> &fields)
{
    const NameTemplate added { QUuid::createUuid().toString(QUuid::WithoutBraces), QString(""_L1), fields };
    const auto stored = apply([added](QList<NameTemplate> &templates) {
        if (find(templates, added.id) == templates.end())
            templates.append(added);
    });
    if (!stored)
        return tl::unexpected(stored.error());
    return added.id;
}

Result<void, SystemError> TemplateStore::updateTemplate(const NameTemplate &nameTemplate)
{
    return apply([nameTemplate](QList<NameTemplate> &templates) {
        if (const auto found = find(templates, nameTemplate.id); found != templates.end())
            *found = nameTemplate;
    });
}

Result<void, SystemError> TemplateStore::deleteTemplate(const QString &id)
{
    if (builtInTemplateName(id))
        return {};
    return apply([id](QList<NameTemplate> &templates) {
        templates.removeIf([&id](const NameTemplate &one) { return one.id == id; });
    });
}

Result<void, SystemError> TemplateStore::setTemplates(const QList<NameTemplate> &replacement)
{
    return apply([replacement](QList<NameTemplate> &templates) { templates = replacement; });
}

Result<void, SystemError> TemplateStore::apply(const Edit &edit)
{
    m_unstored.push_back(edit);
    QList<NameTemplate> edited = m_templates;
    edit(edited);
    const auto stored = store();
    if (stored)
        reload();
    else
        adopt(edited);
    return stored;
}

Result<void, SystemError> TemplateStore::store()
{
    const QScopedValueRollback isStoring(m_isStoring, true);
    Result<void, SystemError> kept;
    const auto stored = m_preferences.update(Preference::templates, [&](const PreferenceValue &current) {
        const QByteArray json = std::get<QByteArray>(current);
        const auto decoded = decodeTemplates(json);
        const QList<NameTemplate> before = decoded.value_or(builtInTemplates());
        QList<NameTemplate> after = before;
        for (const Edit &edit : m_unstored)
            edit(after);
        if (after == before)
            return current;
        if (!decoded && !json.isEmpty())
            kept = m_preferences.keepCopy();
        return kept ? PreferenceValue(encodeTemplates(after)) : current;
    });
    if (!stored)
        return stored;
    if (kept)
        m_unstored.clear();
    return kept;
}

void TemplateStore::reload()
{
    if (m_isStoring)
        return;
    auto templates = decodeTemplates(m_preferences.data(Preference::templates)).value_or(builtInTemplates());
    for (const Edit &edit : m_unstored)
        edit(templates);
    adopt(templates);
}

void TemplateStore::adopt(const QList<NameTemplate> &templates)
{
    if (m_templates == templates)
        return;
    m_templates = templates;
    emit changed();
}

} // namespace Varlo
