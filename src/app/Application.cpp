// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/rememberWindowSize.h"
#include "app/WindowKeys.h"
#include "ui/IconProvider.h"
#include <chrono>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(VarloPlugin)

namespace Varlo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Of a build that names one.
static std::unique_ptr<UpdateChecker> updateChecker()
{
    auto feed = UpdateFeed::parse(QStringLiteral(VARLO_UPDATE_FEED), VARLO_UPDATE_KEY);
    return feed ? std::make_unique<UpdateChecker>(std::move(*feed)) : nullptr;
}

Application::Application(const Environment &environment)
    : m_folders(StateFolders::from(environment))
    , m_preferenceStore(m_folders.config / "preferences.json")
    , m_preferences(m_preferenceStore)
    , m_language(m_preferences, m_locale)
    , m_templateStore(m_preferences)
    , m_folderAccess(m_preferences, m_folderPanel)
    , m_journal(m_folders.state)
    , m_renamer(m_journal, m_clock)
    , m_renameLog(m_preferences, m_renamer, m_folderAccess)
    , m_secretStores(m_folders)
    , m_suggester(m_preferences, m_secretStores.either,
          { value(environment, "VARLO_ENDPOINT"), value(environment, "VARLO_MODEL"),
              value(environment, "VARLO_API_KEY") })
    , m_reader(m_fileFlags, { {}, {}, [](const QString &warning) { qWarning("%s", qUtf8Printable(warning)); } })
    , m_batch(std::make_unique<RenamerViewModel>(RenamerViewModel::Collaborators { m_reader, m_suggester,
          m_templateStore, m_renameLog, m_renamer, m_folderAccess, nullptr, m_preferences, m_locale }))
    , m_templateChoices(
          m_templateStore, [this] { return resolvedLanguage(m_batch->filenameLanguageOption(), m_locale); })
    , m_historyView(m_renameLog, m_clock)
    , m_quickLook(*m_batch, m_reader)
    , m_watchedFolder(m_preferences, m_folderAccess, m_watcher, *m_batch)
    , m_settings(m_preferences, m_templateStore, m_folderAccess, nullptr, m_suggester, m_locale)
    , m_updater(updateChecker(), QVersionNumber::fromString(QStringLiteral(VARLO_VERSION)), &QDesktopServices::openUrl)
{
    QObject::connect(
        m_settings.provider(), &ProviderModel::keyCame, m_batch.get(), &RenamerViewModel::askAgainForWantOfKey);
}

Application::~Application() = default;

void Application::retranslate()
{
    m_engine.retranslate();
    m_batch->retranslate();
    m_historyView.retranslate();
    m_updater.retranslate();
    m_settings.retranslate();
    m_quickLook.retranslate();
    emit m_templateChoices.changed();
    emit m_uiState.languageChanged();
}

void Application::activate(const QVariantMap &platformData)
{
    // Where Qt's Wayland part looks for the right to come to the front, and takes it from.
    const QByteArray token = platformData.value(u"activation-token"_s).toString().toUtf8();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    if (!m_window && !show())
        return QGuiApplication::exit(1);
    if (m_window->windowStates() & Qt::WindowMinimized)
        m_window->showNormal();
    m_window->raise();
    m_window->requestActivate();
}

void Application::act(const QString &action)
{
    if (action == "settings"_L1)
        m_uiState.setProperty("showingSettings", true);
    else if (action == "history"_L1)
        m_uiState.setProperty("showingHistory", true);
    else if (action == "check-for-updates"_L1)
        m_updater.checkForUpdates();
}

void Application::followDesktop(const QDBusConnection &bus)
{
    QObject::connect(&m_desktopMotion, &DesktopMotion::changed, &m_uiState,
        [this] { m_uiState.setMotionWanted(m_desktopMotion.isWanted()); });
    m_desktopMotion.follow(bus);
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameHasOwner"_s);
    question << u"com.canonical.AppMenu.Registrar"_s;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), &m_uiState);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_uiState, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> reply = *answer;
        m_uiState.setProperty("hasGlobalMenu", !reply.isError() && reply.value());
    });
}

void Application::finish()
{
    m_folderPanel.decline();
    m_batch->stopRenaming();
    m_batch->clear(); // an action that waits for its turn then finds nothing
    if (!m_batch->isRenaming())
        return QGuiApplication::quit();
    QObject::connect(m_batch.get(), &RenamerViewModel::isRenamingChanged, QGuiApplication::instance(), [this] {
        if (!m_batch->isRenaming())
            QGuiApplication::quit();
    });
}

QQuickWindow *Application::show()
{
    m_engine.addImportPath(u"qrc:/qt/qml"_s); // where later versions of Qt look by themselves
    m_engine.addImageProvider(u"icons"_s, new IconProvider); // the engine owns it
    m_engine.setInitialProperties({ { u"batch"_s, QVariant::fromValue(m_batch.get()) },
        { u"history"_s, QVariant::fromValue(&m_historyView) },
        { u"templates"_s, QVariant::fromValue(&m_templateChoices) }, { u"watcher"_s, QVariant::fromValue(&m_watcher) },
        { u"watchedFolder"_s, QVariant::fromValue(&m_watchedFolder) },
        { u"quickLook"_s, QVariant::fromValue(&m_quickLook) },
        { u"folderPanel"_s, QVariant::fromValue(&m_folderPanel) }, { u"settings"_s, QVariant::fromValue(&m_settings) },
        { u"updater"_s, QVariant::fromValue(&m_updater) }, { u"uiState"_s, QVariant::fromValue(&m_uiState) },
        { u"isOpening"_s, m_batch->isAdmitting() } });
    m_engine.load(QUrl(u"qrc:/qt/qml/Varlo/ContentView.qml"_s));
    if (m_engine.rootObjects().isEmpty())
        return nullptr;
    auto *window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst());
    m_window = window;
    rememberWindowSize(*window, m_preferences);
    const auto *keys = new WindowKeys(window);
    QObject::connect(keys, &WindowKeys::menuRequested, &m_uiState, &AppUIState::menuRequested);
    QObject::connect(keys, &WindowKeys::undoRequested, &m_uiState, &AppUIState::undoRequested);
    // After the first frames, which would wait for neither.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [this, window] {
            constexpr auto untilRowsAreShown = 100ms;
            QTimer::singleShot(untilRowsAreShown, window, [this] {
                m_preferenceStore.observe(); // the terminal renames and changes settings too
                m_reader.warmUp(); // the first file then does not wait for the readers' process
            });
        },
        Qt::SingleShotConnection);
    QObject::connect(&m_language, &InterfaceLanguage::changed, window, [this] { retranslate(); });
    window->show();
    m_watchedFolder.apply();
    return window;
}

} // namespace Varlo
