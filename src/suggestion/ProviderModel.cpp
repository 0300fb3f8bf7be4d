// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/ProviderModel.h"

#include "suggestion/makeModelClient.h"
#include <QPointer>

namespace Varlo {

using namespace Qt::StringLiterals;

ProviderModel::ProviderModel(Preferences &preferences, ConfiguredNameSuggester &suggester, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_suggester(suggester)
{
    connect(this, &ProviderModel::hasKeyChanged, this, [this] {
        if (hasKey())
            emit keyCame();
    });
    followKeyStore();
    connect(&suggester, &ConfiguredNameSuggester::changed, this, [this] {
        followKeyStore();
        emit changed();
    });
}

/// Another endpoint has another key.
void ProviderModel::followKeyStore()
{
    const auto keys = m_suggester.keyStore();
    if (keys == m_keys)
        return;
    if (m_keys)
        m_keys->disconnect(this);
    const bool isFirst = m_keys == nullptr;
    m_keys = keys;
    if (m_keys)
        connect(m_keys.get(), &APIKeyStore::hasKeyChanged, this, &ProviderModel::hasKeyChanged);
    emit hasKeyChanged();
    if (!isFirst)
        refresh();
}

bool ProviderModel::hasKey() const { return m_keys && m_keys->hasKey(); }

QString ProviderModel::hostedEndpoint() const { return Endpoint::hosted().origin(); }

QString ProviderModel::usualModel() const { return QString::fromLatin1(Varlo::usualModel); }

void ProviderModel::refresh() { load(); }

QCoro::Task<void> ProviderModel::load()
{
    const auto keys = m_keys; // which tells by its signal
    if (keys)
        static_cast<void>(co_await keys->loadKey());
}

bool ProviderModel::setUp(const QString &endpoint, const QString &model)
{
    if (const auto parsed = Endpoint::parse(endpoint); !parsed) {
        tell(description(parsed.error()), false);
        return false;
    }
    Result<void, SystemError> stored;
    if (!isEndpointFixed() && endpoint.trimmed() != this->endpoint())
        stored = m_preferences.set(Preference::endpoint, endpoint.trimmed());
    if (stored && !isModelFixed() && model.trimmed() != this->model())
        stored = m_preferences.set(Preference::model, model.trimmed());
    tell(stored ? QString() : stored.error().description(), false);
    return stored.has_value();
}

void ProviderModel::saveKey(const QString &key)
{
    if (!m_isSaving && m_keys)
        save(key);
}

QCoro::Task<void> ProviderModel::save(QString key)
{
    const QPointer<ProviderModel> self = this;
    const auto keys = m_keys;
    setSaving(true);
    const auto saved = co_await keys->saveKey(std::move(key));
    if (!self)
        co_return;
    setSaving(false);
    if (!saved)
        co_return emit keyNotSaved();
    emit keySaved();
    if (self)
        emit keyCame();
}

void ProviderModel::removeKey()
{
    if (m_keys)
        drop();
}

QCoro::Task<void> ProviderModel::drop()
{
    const auto keys = m_keys;
    static_cast<void>(co_await keys->deleteKey());
}

void ProviderModel::test(const QString &endpoint, const QString &model)
{
    const auto parsed = Endpoint::parse(endpoint);
    if (!parsed)
        tell(description(parsed.error()), false);
    else
        ask(*parsed, model.trimmed());
}

/// The shortest document that gets a name.
static SuggestionRequest tinyRequest()
{
    SuggestionRequest request;
    request.content = TextContent { u"Acme. Invoice of 1 March 2025. Total 10.00 EUR."_s };
    request.existingName = u"scan"_s;
    return request;
}

QCoro::Task<void> ProviderModel::ask(Endpoint endpoint, QString model)
{
    const QPointer<ProviderModel> self = this;
    tell({}, false, true);
    const int number = ++m_testNumber;
    SuggestionRequest request = tinyRequest();
    const auto answer = co_await m_suggester.tryOut(endpoint, model, std::move(request));
    if (!self || number != m_testNumber)
        co_return;
    if (!answer) {
        tell(description(answer.error()), false);
        co_return;
    }
    //: What came of trying out the model; %1 is the file name that it suggested for a sample
    tell({ "ProviderModel", QT_TRANSLATE_NOOP("ProviderModel", "The model answers. It suggested “%1”."),
             { answer->name } },
        true);
}

void ProviderModel::forgetOutcome()
{
    ++m_testNumber;
    tell({}, false);
}

void ProviderModel::setSaving(bool isSaving)
{
    m_isSaving = isSaving;
    emit isSavingChanged();
}

void ProviderModel::tell(const Message &outcome, bool isGood, bool isTesting)
{
    m_outcome = outcome;
    m_isOutcomeGood = isGood;
    m_isTesting = isTesting;
    emit testChanged();
}

} // namespace Varlo
