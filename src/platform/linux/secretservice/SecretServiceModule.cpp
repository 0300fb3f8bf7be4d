// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// GLib's headers use "signals" as a name.
#define QT_NO_KEYWORDS
#include "platform/linux/secretservice/SecretServiceModule.h"

#include <functional>
#include <libsecret/secret.h>
#include <memory>
#include <vector>

namespace Varlo {

using Failure = SecretStore::Failure;
using Reply = SecretServiceModule::Reply;
using std::chrono::milliseconds;

namespace {

struct Unreference {
    void operator()(void *object) const { g_object_unref(object); }
};
template <typename Type> using Object = std::unique_ptr<Type, Unreference>;

constexpr char serviceName[] = "com.varlo.api-key";

const SecretSchema schema { serviceName, SECRET_SCHEMA_NONE,
    { { "service", SECRET_SCHEMA_ATTRIBUTE_STRING }, { "account", SECRET_SCHEMA_ATTRIBUTE_STRING },
        { nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING } },
    0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr };

struct Attributes {
    explicit Attributes(const QByteArray &account)
        : table(secret_attributes_build(
            &schema, "service", serviceName, "account", account.constData(), static_cast<char *>(nullptr)))
    {
    }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;
    ~Attributes() { g_hash_table_unref(table); }

    GHashTable *table;
};

/// Where a thread waits for asynchronous calls, each with a time limit. libsecret's synchronous calls would run a loop
/// of their own, in which no timer of ours could end them.
class Waiting {
public:
    Waiting()
        : m_context(g_main_context_new())
        , m_loop(g_main_loop_new(m_context, FALSE))
    {
        g_main_context_push_thread_default(m_context);
    }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;
    ~Waiting()
    {
        while (g_main_context_iteration(m_context, FALSE)) { }
        g_main_context_pop_thread_default(m_context);
        g_main_loop_unref(m_loop);
        g_main_context_unref(m_context);
    }

    using Start = std::function<void(GCancellable *, GAsyncReadyCallback, gpointer)>;
    /// The result to hand to the call's finishing function. A call that its limit cancelled ends with an error.
    [[nodiscard]] Object<GAsyncResult> call(milliseconds limit, const Start &start)
    {
        const Object<GCancellable> cancellable(g_cancellable_new());
        GSource *const timer = g_timeout_source_new(static_cast<guint>(limit.count()));
        g_source_set_callback(timer, &Waiting::cancel, cancellable.get(), nullptr);
        g_source_attach(timer, m_context);
        start(cancellable.get(), &Waiting::finish, this);
        g_main_loop_run(m_loop);
        g_source_destroy(timer);
        g_source_unref(timer);
        return std::move(m_result);
    }

private:
    static gboolean cancel(gpointer cancellable)
    {
        g_cancellable_cancel(static_cast<GCancellable *>(cancellable));
        return G_SOURCE_REMOVE;
    }
    static void finish(GObject *, GAsyncResult *result, gpointer self)
    {
        auto *const waiting = static_cast<Waiting *>(self);
        waiting->m_result.reset(G_ASYNC_RESULT(g_object_ref(result)));
        g_main_loop_quit(waiting->m_loop);
    }

    GMainContext *m_context;
    GMainLoop *m_loop;
    Object<GAsyncResult> m_result;
};

using Items = std::vector<Object<SecretItem>>;

Items taken(GList *list)
{
    Items items;
    for (GList *entry = list; entry; entry = entry->next)
        items.emplace_back(SECRET_ITEM(entry->data));
    g_list_free(list);
    return items;
}

GObject *constructWithoutBus(GType type, guint count, GObjectConstructParam *properties)
{
    GObject *const object
        = G_OBJECT_CLASS(g_type_class_peek(SECRET_TYPE_SERVICE))->constructor(type, count, properties);
    g_object_set(object, "g-bus-type", G_BUS_TYPE_NONE, static_cast<char *>(nullptr));
    return object;
}

/// A SecretService that takes a "g-connection". The constructor of libsecret's own always asks for the shared one.
GType connectionServiceType()
{
    static const GType type = g_type_register_static_simple(
        SECRET_TYPE_SERVICE, "VarloSecretService", sizeof(SecretServiceClass),
        [](gpointer serviceClass, gpointer) { G_OBJECT_CLASS(serviceClass)->constructor = &constructWithoutBus; },
        sizeof(SecretService), nullptr, G_TYPE_FLAG_NONE);
    return type;
}

/// One conversation with the service, over a connection of its own: GLib shares one connection with the whole program
/// and, while anything still holds that, hands it out even after its bus has gone.
class Session {
public:
    [[nodiscard]] bool open(milliseconds limit)
    {
        const std::unique_ptr<gchar, void (*)(void *)> address(
            g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, nullptr), &g_free);
        if (!address)
            return false;
        const auto connected
            = m_waiting.call(limit, [&](GCancellable *cancellable, GAsyncReadyCallback ready, gpointer data) {
                  g_dbus_connection_new_for_address(address.get(),
                      static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
                          | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
                      nullptr, cancellable, ready, data);
              });
        m_bus.reset(g_dbus_connection_new_for_address_finish(connected.get(), nullptr));
        if (!m_bus)
            return false;
        const auto opened
            = m_waiting.call(limit, [&](GCancellable *cancellable, GAsyncReadyCallback ready, gpointer data) {
                  g_async_initable_new_async(connectionServiceType(), G_PRIORITY_DEFAULT, cancellable, ready, data,
                      "g-connection", m_bus.get(), static_cast<char *>(nullptr));
              });
        m_service.reset(secret_service_open_finish(opened.get(), nullptr));
        return m_service != nullptr;
    }

    /// Every item of the account, locked ones too; the others with their secrets where `flags` say so. Never prompts.
    [[nodiscard]] Result<Items, Failure> search(const Attributes &attributes, int flags, milliseconds limit)
    {
        const auto result = m_waiting.call(limit, [&](auto *cancellable, auto ready, auto data) {
            secret_service_search(m_service.get(), &schema, attributes.table,
                static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | flags), cancellable, ready, data);
        });
        GError *error = nullptr;
        GList *const list = secret_service_search_finish(m_service.get(), result.get(), &error);
        if (!error)
            return taken(list);
        g_error_free(error);
        return tl::unexpected(Failure::Unavailable);
    }

    /// The collection that new items go to; nothing where the user has none yet.
    [[nodiscard]] Object<SecretCollection> defaultCollection(milliseconds limit)
    {
        const auto result = m_waiting.call(limit, [&](auto *cancellable, auto ready, auto data) {
            secret_collection_for_alias(
                m_service.get(), SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, cancellable, ready, data);
        });
        return Object<SecretCollection>(secret_collection_for_alias_finish(result.get(), nullptr));
    }

    /// Asks the user where the service wants that.
    [[nodiscard]] bool unlock(void *itemOrCollection, milliseconds limit)
    {
        GList objects { itemOrCollection, nullptr, nullptr };
        const auto result = m_waiting.call(limit, [&](auto *cancellable, auto ready, auto data) {
            secret_service_unlock(m_service.get(), &objects, cancellable, ready, data);
        });
        GList *unlocked = nullptr;
        const gint count = secret_service_unlock_finish(m_service.get(), result.get(), &unlocked, nullptr);
        g_list_free_full(unlocked, g_object_unref);
        return count > 0;
    }

    [[nodiscard]] bool setSecret(SecretItem *item, SecretValue *value, milliseconds limit)
    {
        const auto result = m_waiting.call(limit, [&](auto *cancellable, auto ready, auto data) {
            secret_item_set_secret(item, value, cancellable, ready, data);
        });
        return secret_item_set_secret_finish(item, result.get(), nullptr);
    }

    [[nodiscard]] bool store(const Attributes &attributes, SecretValue *value, milliseconds limit)
    {
        const auto result = m_waiting.call(limit, [&](auto *cancellable, auto ready, auto data) {
            secret_service_store(m_service.get(), &schema, attributes.table, SECRET_COLLECTION_DEFAULT, "Varlo API key",
                value, cancellable, ready, data);
        });
        return secret_service_store_finish(m_service.get(), result.get(), nullptr);
    }

    [[nodiscard]] bool remove(SecretItem *item, milliseconds limit)
    {
        const auto result = m_waiting.call(limit,
            [&](auto *cancellable, auto ready, auto data) { secret_item_delete(item, cancellable, ready, data); });
        return secret_item_delete_finish(item, result.get(), nullptr);
    }

private:
    // Destroyed from the bottom up: the objects below hand their last work to the context.
    Waiting m_waiting;
    Object<GDBusConnection> m_bus;
    Object<SecretService> m_service;
};

bool isLocked(const Object<SecretItem> &item) { return secret_item_get_locked(item.get()); }

/// Some keyrings do not list the items of a locked collection at all.
Failure absence(Session &session, milliseconds limit)
{
    const auto collection = session.defaultCollection(limit);
    return collection && secret_collection_get_locked(collection.get()) ? Failure::Locked : Failure::NotFound;
}

Reply load(const QByteArray &account, milliseconds searchLimit)
{
    Session session;
    if (!session.open(searchLimit))
        return tl::unexpected(Failure::Unavailable);
    const Attributes attributes(account);
    const auto items = session.search(attributes, SECRET_SEARCH_LOAD_SECRETS, searchLimit);
    if (!items)
        return tl::unexpected(items.error());
    bool hasLocked = false;
    for (const auto &item : *items) {
        hasLocked = hasLocked || isLocked(item);
        const std::unique_ptr<SecretValue, void (*)(void *)> value(
            isLocked(item) ? nullptr : secret_item_get_secret(item.get()),
            [](void *secret) { secret_value_unref(secret); });
        if (!value)
            continue;
        gsize length = 0;
        const gchar *const bytes = secret_value_get(value.get(), &length);
        return QByteArray(bytes, static_cast<qsizetype>(length));
    }
    return tl::unexpected(hasLocked ? Failure::Locked : absence(session, searchLimit));
}

/// The account's items that can be changed: those that are not locked or, if all are, the first once it is unlocked.
Result<Items, Failure> changeableItems(
    Session &session, const Attributes &attributes, milliseconds searchLimit, milliseconds promptLimit)
{
    auto items = session.search(attributes, SECRET_SEARCH_NONE, searchLimit);
    if (!items || items->empty())
        return items;
    if (std::all_of(items->begin(), items->end(), isLocked)) {
        if (!session.unlock(items->front().get(), promptLimit))
            return tl::unexpected(Failure::Locked);
        items->erase(items->begin() + 1, items->end());
        return items;
    }
    std::erase_if(*items, isLocked);
    return items;
}

Reply addItem(Session &session, const Attributes &attributes, SecretValue *value, milliseconds searchLimit,
    milliseconds promptLimit)
{
    const auto collection = session.defaultCollection(searchLimit);
    if (collection && secret_collection_get_locked(collection.get()) && !session.unlock(collection.get(), promptLimit))
        return tl::unexpected(Failure::Locked);
    if (!session.store(attributes, value, promptLimit))
        return tl::unexpected(Failure::Unavailable);
    return QByteArray();
}

Reply save(const QByteArray &account, const QByteArray &secret, milliseconds searchLimit, milliseconds promptLimit)
{
    Session session;
    if (!session.open(searchLimit))
        return tl::unexpected(Failure::Unavailable);
    const Attributes attributes(account);
    const auto items = changeableItems(session, attributes, searchLimit, promptLimit);
    if (!items)
        return tl::unexpected(items.error());
    const std::unique_ptr<SecretValue, void (*)(void *)> value(
        secret_value_new(secret.constData(), secret.size(), "text/plain"),
        [](void *created) { secret_value_unref(created); });
    if (items->empty())
        return addItem(session, attributes, value.get(), searchLimit, promptLimit);
    for (const auto &item : *items) {
        if (!session.setSecret(item.get(), value.get(), searchLimit))
            return tl::unexpected(Failure::Unavailable);
    }
    return QByteArray();
}

Reply remove(const QByteArray &account, milliseconds searchLimit, milliseconds promptLimit)
{
    Session session;
    if (!session.open(searchLimit))
        return tl::unexpected(Failure::Unavailable);
    const Attributes attributes(account);
    const auto items = changeableItems(session, attributes, searchLimit, promptLimit);
    if (!items)
        return tl::unexpected(items.error());
    if (items->empty())
        return tl::unexpected(absence(session, searchLimit));
    for (const auto &item : *items) {
        if (!session.remove(item.get(), searchLimit))
            return tl::unexpected(Failure::Unavailable);
    }
    return QByteArray();
}

} // namespace

extern "C" Q_DECL_EXPORT const SecretServiceModule *varloSecretService1()
{
    static constexpr SecretServiceModule calls { &load, &save, &remove };
    return &calls;
}

} // namespace Varlo
