// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemError.h"
#include "settings/Preferences.h"
#include "templates/NameTemplate.h"
#include <functional>
#include <QObject>
#include <vector>

namespace Varlo {

/// The user's naming templates, the built-in four among them. Lives on the main thread. Each operation is applied to
/// the list as it is stored at that moment and stored before the call returns, so that two processes lose nothing to
/// each other. Where storing fails, the list here has changed all the same, and the next operation stores both.
class TemplateStore : public QObject {
    Q_OBJECT
public:
    /// Nothing stored, or nothing that can be made out, gives the built-in four; nothing is written yet. The
    /// preferences outlive this object.
    explicit TemplateStore(Preferences &preferences, QObject *parent = nullptr);

    [[nodiscard]] const QList<NameTemplate> &templates() const { return m_templates; }
    /// The first template with that id.
    [[nodiscard]] std::optional<NameTemplate> nameTemplate(const QString &id) const;

    /// Appends a template with an empty name and returns its id, a new UUID. It is the last one even after an error.
    [[nodiscard]] Result<QString, SystemError> addTemplate(const QList<TemplateField> &fields);
    /// Replaces the template of the same id; one that is not there (any more) changes nothing.
    [[nodiscard]] Result<void, SystemError> updateTemplate(const NameTemplate &nameTemplate);
    /// A built-in template stays, and an unknown id changes nothing.
    [[nodiscard]] Result<void, SystemError> deleteTemplate(const QString &id);
    [[nodiscard]] Result<void, SystemError> setTemplates(const QList<NameTemplate> &templates);

signals:
    /// The list differs from before, through an operation here or in another process.
    void changed();

private:
    /// Applying one twice is the same as once: a failed store may have reached the disk.
    using Edit = std::function<void(QList<NameTemplate> &)>;
    [[nodiscard]] Result<void, SystemError> apply(const Edit &edit);
    [[nodiscard]] Result<void, SystemError> store();
    void reload();
    void adopt(const QList<NameTemplate> &templates);

    Preferences &m_preferences;
    QList<NameTemplate> m_templates;
    std::vector<Edit> m_unstored; ///< oldest first
    bool m_isStoring = false;
};

} // namespace Varlo
