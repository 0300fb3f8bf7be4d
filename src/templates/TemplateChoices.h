// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/TemplateStore.h"
#include <QVariantList>

namespace Varlo {

/// The templates as a window offers them.
class TemplateChoices final : public QObject {
    Q_OBJECT
    /// In their order, each with id, name (its title), structure (its fields), isBuiltIn and example (a name made
    /// by it).
    Q_PROPERTY(QVariantList choices READ choices NOTIFY changed)
public:
    /// The store outlives this object; examples are in the language that `language` answers.
    TemplateChoices(TemplateStore &store, std::function<FilenameLanguage()> language, QObject *parent = nullptr);

    [[nodiscard]] QVariantList choices() const;
    /// Removes a template of the user's; a built-in one stays.
    Q_INVOKABLE void remove(const QString &id);

signals:
    void changed();

private:
    TemplateStore &m_store;
    std::function<FilenameLanguage()> m_language;
};

} // namespace Varlo
