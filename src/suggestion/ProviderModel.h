// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/visibleText.h"
#include "suggestion/ConfiguredNameSuggester.h"

namespace Varlo {

/// What the user sets of the model that is asked, as a view shows it. The key goes in here and never comes out. Lives
/// on the main thread.
class ProviderModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasKey READ hasKey NOTIFY hasKeyChanged)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY isSavingChanged)
    /// Those in use: "" for the hosted endpoint, and for the usual model.
    Q_PROPERTY(QString endpoint READ endpoint NOTIFY changed)
    Q_PROPERTY(QString model READ model NOTIFY changed)
    /// The environment names them, so that nothing set here would count.
    Q_PROPERTY(bool isEndpointFixed READ isEndpointFixed CONSTANT)
    Q_PROPERTY(bool isModelFixed READ isModelFixed CONSTANT)
    Q_PROPERTY(QString hostedEndpoint READ hostedEndpoint CONSTANT)
    Q_PROPERTY(QString usualModel READ usualModel CONSTANT)
    Q_PROPERTY(bool isTesting READ isTesting NOTIFY testChanged)
    /// What came of the latest test, or why nothing could be set; "" before.
    Q_PROPERTY(QString outcome READ outcome NOTIFY testChanged)
    Q_PROPERTY(bool isOutcomeGood READ isOutcomeGood NOTIFY testChanged)
public:
    /// Both outlive this object.
    ProviderModel(Preferences &preferences, ConfiguredNameSuggester &suggester, QObject *parent = nullptr);

    [[nodiscard]] bool hasKey() const;
    [[nodiscard]] bool isSaving() const { return m_isSaving; }
    [[nodiscard]] QString endpoint() const { return m_suggester.endpointText(); }
    [[nodiscard]] QString model() const { return m_suggester.model(); }
    [[nodiscard]] bool isEndpointFixed() const { return !m_suggester.environment().endpoint.isEmpty(); }
    [[nodiscard]] bool isModelFixed() const { return !m_suggester.environment().model.isEmpty(); }
    [[nodiscard]] QString hostedEndpoint() const;
    [[nodiscard]] QString usualModel() const;
    [[nodiscard]] bool isTesting() const { return m_isTesting; }
    [[nodiscard]] QString outcome() const { return visibleMessage(m_outcome.text()); }
    [[nodiscard]] bool isOutcomeGood() const { return m_isOutcomeGood; }

    /// Looks whether there is a key; `hasKey` follows.
    Q_INVOKABLE void refresh();
    /// Whether there is anything to save in what was typed.
    Q_INVOKABLE [[nodiscard]] static bool isKey(const QString &typed) { return !typed.trimmed().isEmpty(); }
    /// Sets what differs. False, with the reason as outcome, where the endpoint is none; nothing is set then.
    Q_INVOKABLE bool setUp(const QString &endpoint, const QString &model);
    /// Ends with keySaved() or keyNotSaved(). The key is for the endpoint in use.
    Q_INVOKABLE void saveKey(const QString &key);
    /// `hasKey` is false afterwards, whatever the keyring says, unless the environment has a key.
    Q_INVOKABLE void removeKey();
    /// One tiny request, with the key saved for that endpoint, if any. Nothing is set.
    Q_INVOKABLE void test(const QString &endpoint, const QString &model);
    /// A test under way ends without an outcome.
    Q_INVOKABLE void forgetOutcome();
    /// The outcome is asked for again, in another language.
    void retranslate() { emit testChanged(); }

signals:
    void hasKeyChanged();
    void isSavingChanged();
    void changed();
    void testChanged();
    void keySaved();
    void keyNotSaved();
    /// What failed for want of a key may be asked again: one was saved, or is found that was not known of.
    void keyCame();

private:
    void followKeyStore();
    QCoro::Task<void> load();
    QCoro::Task<void> save(QString key);
    QCoro::Task<void> drop();
    QCoro::Task<void> ask(Endpoint endpoint, QString model);
    void setSaving(bool isSaving);
    void tell(const Message &outcome, bool isGood, bool isTesting = false);

    Preferences &m_preferences;
    ConfiguredNameSuggester &m_suggester;
    std::shared_ptr<APIKeyStore> m_keys; ///< null while the endpoint is none
    bool m_isSaving = false;
    bool m_isTesting = false;
    int m_testNumber = 0; ///< of the latest: the outcome of an earlier one is not told any more
    Message m_outcome;
    bool m_isOutcomeGood = false;
};

} // namespace Varlo
