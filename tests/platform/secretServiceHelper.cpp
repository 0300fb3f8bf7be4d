// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What a test of the Secret Service needs from a process of its own, so that the test program stays free of libsecret.
// NAME stands for a bus name, ACCOUNT for the account of an item of Varlo's.
#include <cstdio>
#include <libsecret/secret.h>
#include <string>

static const SecretSchema schema { "com.varlo.api-key", SECRET_SCHEMA_NONE,
    { { "service", SECRET_SCHEMA_ATTRIBUTE_STRING }, { "account", SECRET_SCHEMA_ATTRIBUTE_STRING },
        { nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING } },
    0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr };

static GHashTable *attributes(const char *account)
{
    return secret_attributes_build(
        &schema, "service", "com.varlo.api-key", "account", account, static_cast<char *>(nullptr));
}

static int failed(const char *what, const GError *error)
{
    std::fprintf(stderr, "%s: %s\n", what, error ? error->message : "nothing");
    return 1;
}

static void say(const char *word)
{
    std::puts(word);
    std::fflush(stdout);
}

static GDBusMessage *swallow(GDBusConnection *, GDBusMessage *message, gboolean isIncoming, gpointer)
{
    if (!isIncoming || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
        return message;
    say("called");
    g_object_unref(message);
    return nullptr;
}

/// Owns NAME, says "called" for each call and answers none.
static int stayMute(const char *name)
{
    GDBusConnection *const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    g_dbus_connection_add_filter(bus, &swallow, nullptr, nullptr);
    const auto acquired = [](GDBusConnection *, const gchar *, gpointer) { say("ready"); };
    g_bus_own_name_on_connection(bus, name, G_BUS_NAME_OWNER_FLAGS_NONE, acquired, nullptr, nullptr, nullptr);
    g_main_loop_run(g_main_loop_new(nullptr, FALSE));
    return 0;
}

/// Ends when somebody owns NAME.
static int waitFor(const char *name)
{
    GMainLoop *const loop = g_main_loop_new(nullptr, FALSE);
    const auto appeared = [](GDBusConnection *, const gchar *, const gchar *, gpointer data) {
        g_main_loop_quit(static_cast<GMainLoop *>(data));
    };
    g_bus_watch_name(G_BUS_TYPE_SESSION, name, G_BUS_NAME_WATCHER_FLAGS_NONE, appeared, nullptr, loop, nullptr);
    g_main_loop_run(loop);
    return 0;
}

/// Locks the default collection.
static int lock()
{
    GError *error = nullptr;
    // With no service given, libsecret 0.20 asserts instead of opening one.
    SecretService *const service = secret_service_get_sync(SECRET_SERVICE_NONE, nullptr, &error);
    if (!service)
        return failed("service", error);
    SecretCollection *const collection
        = secret_collection_for_alias_sync(service, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, nullptr, &error);
    if (!collection)
        return failed("default collection", error);
    GList list { collection, nullptr, nullptr };
    return secret_service_lock_sync(service, &list, nullptr, nullptr, &error) == 1 ? 0 : failed("lock", error);
}

/// Stores bytes that are not UTF-8 for ACCOUNT.
static int storeBytes(const char *account)
{
    GError *error = nullptr;
    SecretValue *const value = secret_value_new("k\xff\xfe", 3, "application/octet-stream");
    return secret_service_store_sync(
               nullptr, &schema, attributes(account), SECRET_COLLECTION_DEFAULT, "bytes", value, nullptr, &error)
        ? 0
        : failed("store", error);
}

/// Says how many items ACCOUNT has.
static int count(const char *account)
{
    GError *error = nullptr;
    GList *const items
        = secret_service_search_sync(nullptr, &schema, attributes(account), SECRET_SEARCH_ALL, nullptr, &error);
    if (error)
        return failed("search", error);
    say(std::to_string(g_list_length(items)).c_str());
    return 0;
}

int main(int argumentCount, char **arguments)
{
    const std::string command = argumentCount > 1 ? arguments[1] : "";
    const char *const operand = argumentCount > 2 ? arguments[2] : "";
    if (command == "mute")
        return stayMute(operand);
    if (command == "wait")
        return waitFor(operand);
    if (command == "lock")
        return lock();
    if (command == "bytes")
        return storeBytes(operand);
    if (command == "count")
        return count(operand);
    return 2;
}
