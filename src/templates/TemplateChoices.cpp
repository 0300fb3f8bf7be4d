// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "templates/TemplateChoices.h"

#include "platform/visibleText.h"
#include <QVariantMap>

namespace Varlo {

using namespace Qt::StringLiterals;

TemplateChoices::TemplateChoices(TemplateStore &store, std::function<FilenameLanguage()> language, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_language(std::move(language))
{
    connect(&store, &TemplateStore::changed, this, &TemplateChoices::changed);
}

/// The fields' labels, in their order.
static QString structure(const NameTemplate &nameTemplate)
{
    QStringList labels;
    for (const TemplateField field : nameTemplate.fields)
        labels.append(label(field));
    return labels.join(u" · "_s);
}

QVariantList TemplateChoices::choices() const
{
    QVariantList all;
    for (const NameTemplate &nameTemplate : m_store.templates()) {
        all.append(QVariantMap { { u"id"_s, nameTemplate.id }, { u"name"_s, visibleText(templateTitle(nameTemplate)) },
            { u"structure"_s, structure(nameTemplate) },
            { u"isBuiltIn"_s, builtInTemplateName(nameTemplate.id).has_value() },
            { u"example"_s, visibleText(nameTemplate.exampleName(m_language())) } });
    }
    return all;
}

void TemplateChoices::remove(const QString &id)
{
    // What cannot be stored now is stored with the next change; the list has changed all the same.
    static_cast<void>(m_store.deleteTemplate(id));
}

} // namespace Varlo
