// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SecretServiceStore.h"

#include "platform/linux/loadModule.h"
#include "platform/linux/secretservice/SecretServiceModule.h"
#include <functional>
#include <memory>
#include <QCoreApplication>
#include <QCoroSignal>
#include <QFutureWatcher>
#include <QPromise>
#include <QStringDecoder>
#include <thread>

namespace Varlo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Failure = SecretStore::Failure;

namespace {

/// The module's calls, or nullptr where it or a library that it needs is not installed.
const SecretServiceModule *module()
{
    static const SecretServiceModule *const loaded = [] {
        const auto entry
            = reinterpret_cast<SecretServiceEntry>(loadModule("varlo-secret-service"_L1, secretServiceEntryName));
        return entry ? entry() : nullptr;
    }();
    return loaded;
}

using Reply = Result<QByteArray, Failure>;
using Call = std::function<Reply(const SecretServiceModule &)>;

/// Runs the call on a thread of its own and waits for it no longer than `limit`. The thread is left to itself then; the
/// call ends through a limit of its own, unless a library hangs beyond reach of it.
QCoro::Task<Reply> inThread(Call call, std::chrono::milliseconds limit)
{
    auto promise = std::make_shared<QPromise<Reply>>();
    QFutureWatcher<Reply> watcher;
    watcher.setFuture(promise->future());
    promise->start();
    std::thread([call = std::move(call), promise] {
        const SecretServiceModule *const loaded = module();
        promise->addResult(loaded ? call(*loaded) : Reply(tl::unexpected(Failure::Unavailable)));
        promise->finish();
    }).detach();
    co_await qCoro(&watcher, &QFutureWatcher<Reply>::finished, limit);
    if (!watcher.isFinished())
        co_return tl::unexpected(Failure::Unavailable);
    co_return watcher.result();
}

/// A little less than the caller waits, so that the call's own answer comes in time.
std::chrono::milliseconds innerLimit(std::chrono::milliseconds limit) { return limit - 200ms; }

Result<void, Failure> withoutValue(const Reply &reply)
{
    if (!reply)
        return tl::unexpected(reply.error());
    return {};
}

} // namespace

QCoro::Task<Result<QString, Failure>> SecretServiceStore::load(QString account)
{
    const Call call
        = [account](const SecretServiceModule &loaded) { return loaded.load(account.toUtf8(), innerLimit(readLimit)); };
    const Reply reply = co_await inThread(call, readLimit);
    if (!reply)
        co_return tl::unexpected(reply.error());
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString secret = decoder(*reply);
    if (decoder.hasError())
        co_return tl::unexpected(Failure::NotFound);
    co_return secret;
}

QCoro::Task<Result<void, Failure>> SecretServiceStore::save(QString account, QString secret)
{
    const Call call = [account, secret](const SecretServiceModule &loaded) {
        return loaded.save(account.toUtf8(), secret.toUtf8(), innerLimit(readLimit), innerLimit(changeLimit));
    };
    const Reply reply = co_await inThread(call, changeLimit);
    co_return withoutValue(reply);
}

QCoro::Task<Result<void, Failure>> SecretServiceStore::remove(QString account)
{
    const Call call = [account](const SecretServiceModule &loaded) {
        return loaded.remove(account.toUtf8(), innerLimit(readLimit), innerLimit(changeLimit));
    };
    const Reply reply = co_await inThread(call, changeLimit);
    co_return withoutValue(reply);
}

QString SecretServiceStore::description() const { return u"Secret Service"_s; }

} // namespace Varlo
