// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Renders every screen of the window to pictures, with the same files and the same day each time:
//     varlo-shots FOLDER [WORD...]
// writes those screens whose names contain one of the words, or all, and each in Dutch and Spanish too. Fails where a
// screen has Qt warn of anything, where some text in it would be taken for markup, and where a control's words are cut.
#include "fakes/FakeAutomationHost.h"
#include "fakes/FakeClock.h"
#include "fakes/FakePreviewReader.h"
#include "fakes/FakeSecretStore.h"
#include "history/HistoryView.h"
#include "languages/InterfaceLanguage.h"
#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include "templates/TemplateChoices.h"
#include "ui/AppUIState.h"
#include "ui/chooseFonts.h"
#include "ui/IconProvider.h"
#include "ui/QuickLook.h"
#include "ui/SettingsModels.h"
#include "workflow/TestBatch.h"
#include "workflow/WatchedFolder.h"
#include <filesystem>
#include <functional>
#include <QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(VarloPlugin)

using namespace Varlo;
using namespace Qt::StringLiterals;

namespace {

struct SampleFile {
    const char *folder;
    const char *name;
    qint64 size;
    const char *suggestion; ///< "" for none
    QStringList tags;
};

/// Names that a model might answer for the sample files.
struct SampleSuggester final : NameSuggestionService {
    std::map<QString, NameSuggestion> answers;
    QStringList held; ///< these are never answered
    std::map<QString, NameSuggestionError> errors;

    QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(SuggestionRequest request) override
    {
        const QString name = request.existingName;
        if (held.contains(name))
            co_await m_never;
        const auto error = errors.find(name);
        if (error != errors.end())
            co_return tl::unexpected(error->second);
        const auto answer = answers.find(name);
        if (answer == answers.end())
            co_return tl::unexpected(NameSuggestionError { NoReadableContent {} });
        const NameSuggestion copy = answer->second; // a member that is returned is moved from
        co_return copy;
    }

private:
    QFuture<void> m_never = [] {
        static QPromise<void> promise;
        promise.start();
        return promise.future();
    }();
};

/// A batch in its window, and what to do with both.
class Stage {
public:
    Stage(const QString &languageCode, bool hasFinder)
        : settings(std::make_unique<SettingsModels>(
            preferences, templates, access, hasFinder ? &finder : nullptr, configured, locale))
    {
        static_cast<void>(preferences.set(Preference::uiLanguage, languageCode));
        finder.status = AutomationHost::consentNeeded;
        settings->preferences()->setHasCompletedOnboarding(true);
        engine.addImportPath(u"qrc:/qt/qml"_s);
        engine.addImageProvider(u"icons"_s, new IconProvider);
        clock.time = QDateTime(QDate(2026, 3, 14), QTime(15, 9, 26));
        engine.setInitialProperties({ { u"batch"_s, QVariant::fromValue(&batch) },
            { u"history"_s, QVariant::fromValue(&history) }, { u"templates"_s, QVariant::fromValue(&choices) },
            { u"watcher"_s, QVariant::fromValue(&watcher) },
            { u"watchedFolder"_s, QVariant::fromValue(&watchedFolder) },
            { u"quickLook"_s, QVariant::fromValue(&quickLook) }, { u"settings"_s, QVariant::fromValue(settings.get()) },
            { u"uiState"_s, QVariant::fromValue(&uiState) } });
        engine.load(QUrl(u"qrc:/qt/qml/Varlo/ContentView.qml"_s));
        if (engine.rootObjects().isEmpty())
            qFatal("the window cannot be made");
        window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    }

    std::filesystem::path make(const SampleFile &sample)
    {
        const std::filesystem::path folder = home / sample.folder;
        std::filesystem::create_directories(folder);
        const std::filesystem::path path = folder / sample.name;
        std::ofstream(path).flush();
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(sample.size));
        const QString base = shownPath(baseName(path));
        if (*sample.suggestion)
            suggester.answers[base] = { QString::fromUtf8(sample.suggestion), sample.tags };
        return path;
    }
    void add(const std::vector<SampleFile> &samples)
    {
        std::vector<std::filesystem::path> paths;
        for (const SampleFile &sample : samples)
            paths.push_back(make(sample));
        QCoro::waitFor(batch.addFiles(std::move(paths), true));
    }
    void grab(const QString &file) const
    {
        QTest::qWait(50); // what is being laid out is laid out
        window->grabWindow().save(file);
    }

    QTemporaryDir temporary;
    std::filesystem::path home = temporary.path().toStdString();
    FakePreferenceStore store;
    Preferences preferences { store };
    FakeSystemLocale locale;
    InterfaceLanguage language { preferences, locale };
    TemplateStore templates { preferences };
    FakeClock clock;
    FakeFolderAccessPanel panel;
    RenameJournal journal { home / ".state" };
    FileRenamer renamer { journal, clock };
    FolderAccess access { preferences, panel };
    RenameLog log { preferences, renamer, access };
    FakeContentReader reader;
    SampleSuggester suggester;
    RenamerViewModel batch { RenamerViewModel::Collaborators {
        reader, suggester, templates, log, renamer, access, nullptr, preferences, locale } };
    FolderWatcher watcher;
    WatchedFolder watchedFolder { preferences, access, watcher, batch };
    TemplateChoices choices { templates, [] { return FilenameLanguage::English; } };
    HistoryView history { log, clock };
    FakePreviewReader previews;
    QuickLook quickLook { batch, previews };
    FakeSecretStore secrets;
    ConfiguredNameSuggester configured { preferences, secrets, {} };
    FakeAutomationHost finder;
    std::unique_ptr<SettingsModels> settings;
    AppUIState uiState;
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
};

} // namespace

static const std::vector<SampleFile> reviewFiles {
    { "Downloads", "scan_0041.pdf", 1'240'000, "2025-03-14 - Acme - Hosting plan - 174.24 EUR",
        { u"invoice"_s, u"hosting"_s, u"acme"_s } },
    { "Pictures", "IMG_4032.HEIC", 2'400'000, "2024-08-17 - Sunset over the fishing harbour",
        { u"harbour"_s, u"sunset"_s, u"boats"_s, u"evening"_s } },
    { "Downloads", "lease agreement SIGNED (2).pdf", 800'000, "2025-01-31 - Lease - Acme x Korvan",
        { u"contract"_s, u"lease"_s, u"office"_s } },
    { "Downloads", "untitled document (7).docx", 42'000, "2025-04-08 - Minutes of the spring planning meeting",
        { u"minutes"_s, u"planning"_s } },
    { "Downloads", "20250219_090442.pdf", 610'000, "2025-02-19 - Railways - Return ticket - 38.60 EUR",
        { u"receipt"_s, u"travel"_s, u"train"_s } },
    { "Reports", "quarterly figures FINAL.xlsx", 98'000, "2025-04-02 - Quarterly figures Q1",
        { u"finance"_s, u"q1"_s } },
    { "Pictures", "DSC00817.jpg", 4'100'000, "2023-12-29 - Snowy ridge above the hut",
        { u"mountains"_s, u"hiking"_s, u"snow"_s } },
    { "Downloads", "export_20250401.csv", 86'000, "2025-04-01 - Bank statement March", { u"bank"_s, u"statement"_s } },
    { "Downloads", "document-3.pdf", 2'200'000, "Heat pump installation manual", { u"manual"_s, u"heating"_s } },
};

static void fillForReview(Stage &stage)
{
    stage.add(reviewFiles);
    QCoro::waitFor(stage.batch.suggestAll());
}

/// Every status at once, in the middle of a run.
static void fillWithEveryStatus(Stage &stage)
{
    stage.add({ { "Downloads", "lease agreement SIGNED (2).pdf", 800'000, "2025-01-31 - Korvan - Office lease", {} } });
    QCoro::waitFor(stage.batch.suggestAll());
    QCoro::waitFor(stage.batch.renameAll());
    stage.reader.extractions[stage.home / "Downloads/Scan 12 Feb.pdf"] = NoTextFound {};
    stage.log.record(stage.home / "Reports/report.pptx", stage.home / "Reports/2024-11-02 - Annual report.pptx");
    stage.reader.extractions[stage.home / "Downloads/meeting recording.txt"] = NotSupportedYet {};
    stage.suggester.errors[u"quarterly figures FINAL"_s] = ApiError { u"No permission to rename in this folder."_s };
    stage.suggester.held = { u"export_20250401"_s, u"untitled document (7)"_s };
    stage.add({ reviewFiles[0], reviewFiles[1], reviewFiles[5], { "Downloads", "Scan 12 Feb.pdf", 1'100'000, "", {} },
        { "Reports", "2024-11-02 - Annual report.pptx", 5'800'000, "", {} },
        { "Downloads", "meeting recording.txt", 18'400'000, "", {} }, reviewFiles[7] });
    stage.batch.suggest();
    QTest::qWait(100);
    stage.batch.setSuggestedName(3, u"2025-04-02 - Quarterly figures"_s);
    stage.add({ reviewFiles[3] });
}

static void fillHistory(Stage &stage)
{
    const auto renamed = [&](int daysAgo, QTime time, const char *from, const char *to) {
        stage.clock.time = QDateTime(QDate(2026, 3, 14).addDays(-daysAgo), time);
        stage.batch.clear(); // what was reverted would be renamed again
        const std::filesystem::path path = stage.make({ "Downloads", from, 1000, to, {} });
        QCoro::waitFor(stage.batch.addFiles({ path }, false));
        QCoro::waitFor(stage.batch.suggestAll());
        QCoro::waitFor(stage.batch.renameAll());
    };
    renamed(10, QTime(11, 0), "DSC00817.jpg", "2023-12-29 - Snowy ridge above the hut");
    renamed(1, QTime(18, 4), "quarterly figures FINAL.xlsx", "2025-04-02 - Quarterly figures Q1");
    renamed(1, QTime(18, 4), "20250219_090442.pdf", "2025-02-19 - Railways - Return ticket - 38.60 EUR");
    renamed(0, QTime(9, 12), "untitled document (7).docx", "2025-04-08 - Minutes of the spring planning meeting");
    QCoro::waitFor(stage.log.revertLatest());
    renamed(0, QTime(14, 37), "lease agreement SIGNED (2).pdf", "2025-01-31 - Lease - Acme x Korvan");
    renamed(0, QTime(14, 38), "IMG_4032.HEIC", "2024-08-17 - Sunset over the fishing harbour");
    renamed(0, QTime(14, 38), "scan_0041.pdf", "2025-03-14 - Acme - Hosting plan - 174.24 EUR");
    stage.clock.time = QDateTime(QDate(2026, 3, 14), QTime(15, 9, 26));
    stage.batch.clear();
}

/// The words of a button in the interface's language.
static QString translated(const QObject *object, const QString &english)
{
    const QQmlContext *context = qmlContext(object);
    const QString file = context ? QFileInfo(context->baseUrl().path()).baseName() : QString();
    return QCoreApplication::translate(file.toUtf8().constData(), english.toUtf8().constData());
}

static void press(Stage &stage, const QString &accessibleName)
{
    for (QObject *object : stage.window->findChildren<QObject *>()) {
        if (object->property("text").toString() == translated(object, accessibleName)
            && object->metaObject()->indexOfSignal("clicked()") >= 0) {
            QMetaObject::invokeMethod(object, "clicked");
            return;
        }
    }
    qWarning("no button %s", qUtf8Printable(accessibleName));
}

static bool click(QQuickItem *below, const char *type)
{
    for (QQuickItem *item : below->childItems()) {
        if (QByteArray(item->metaObject()->className()).startsWith(type))
            return QMetaObject::invokeMethod(item, "clicked");
        if (click(item, type))
            return true;
    }
    return false;
}

static void openPicker(Stage &stage, const char *type)
{
    click(stage.window->contentItem(), type);
    QTest::qWait(300);
}

static void addOwnTemplate(Stage &stage)
{
    const NameTemplate reports { u"reports"_s, u"Client reports"_s,
        { TemplateField::Date, TemplateField::Vendor, TemplateField::Title } };
    static_cast<void>(stage.templates.setTemplates(builtInTemplates() + QList { reports }));
}

static void watch(Stage &stage, const std::filesystem::path &folder)
{
    std::filesystem::create_directories(folder);
    stage.access.addGrant(folder);
    static_cast<void>(stage.preferences.set(Preference::watchFolderPath, shownPath(folder)));
    static_cast<void>(stage.preferences.set(Preference::watchFolderEnabled, true));
}

/// The settings at a tab, over a window in use.
static void showSettings(Stage &stage, const QString &tab)
{
    fillForReview(stage);
    const std::filesystem::path invoices = stage.home / "Documents/Invoices";
    std::filesystem::create_directories(invoices);
    stage.access.addGrant(invoices);
    watch(stage, stage.home / "Downloads");
    addOwnTemplate(stage);
    stage.settings->preferences()->setWriteFinderTags(true);
    stage.settings->preferences()->setSettingsSelectedTab(tab);
    stage.uiState.setProperty("showingSettings", true);
}

static void showKeySheet(Stage &stage, const QString &key)
{
    if (!key.isEmpty())
        stage.secrets.secrets[u"anthropic"_s] = key;
    showSettings(stage, u"about"_s);
    stage.uiState.setProperty("showingProvider", true);
}

/// The introduction, after these buttons.
static void introduce(Stage &stage, const QStringList &buttons)
{
    stage.settings->preferences()->setHasCompletedOnboarding(false);
    QTest::qWait(100);
    for (const QString &button : buttons)
        press(stage, button);
}

static const std::map<QString, std::function<void(Stage &)>> &screens()
{
    static const std::map<QString, std::function<void(Stage &)>> all {
        { u"main-empty"_s, [](Stage &) {} },
        { u"main-empty-dragover"_s, [](Stage &stage) { stage.window->setProperty("isDropTargeted", true); } },
        { u"main-files"_s, fillWithEveryStatus },
        { u"main-review"_s, fillForReview },
        { u"main-watching"_s,
            [](Stage &stage) {
                fillForReview(stage);
                watch(stage, stage.home / "Scans");
                stage.watchedFolder.apply();
            } },
        { u"main-dragover"_s,
            [](Stage &stage) {
                fillForReview(stage);
                stage.window->setProperty("isDropTargeted", true);
            } },
        { u"main-banner"_s,
            [](Stage &stage) {
                stage.add(reviewFiles);
                stage.add({ { "Downloads", "film.mp4", 10, "", {} } });
            } },
        { u"main-banner-empty"_s,
            [](Stage &stage) {
                stage.add({ { "Downloads", "film.mp4", 10, "", {} } });
            } },
        { u"main-no-key"_s,
            [](Stage &stage) {
                for (const SampleFile &file : reviewFiles)
                    stage.suggester.errors[shownPath(baseName(std::filesystem::path(file.name)))] = MissingAPIKey {};
                fillForReview(stage);
            } },
        { u"main-narrow"_s,
            [](Stage &stage) {
                stage.window->resize(720, 560);
                fillWithEveryStatus(stage);
            } },
        { u"main-menu"_s,
            [](Stage &stage) {
                fillForReview(stage);
                QMetaObject::invokeMethod(stage.window, "toggleMenu");
            } },
        { u"popover-language"_s,
            [](Stage &stage) {
                fillForReview(stage);
                openPicker(stage, "OptionPicker");
            } },
        { u"popover-template"_s,
            [](Stage &stage) {
                fillForReview(stage);
                stage.batch.setTemplateId(u"invoice"_s);
                QCoro::waitFor(stage.batch.suggestAll());
                openPicker(stage, "TemplatePicker");
            } },
        { u"popover-template-default"_s,
            [](Stage &stage) {
                addOwnTemplate(stage);
                fillForReview(stage);
                openPicker(stage, "TemplatePicker");
            } },
        { u"main-hostile"_s,
            [](Stage &stage) {
                stage.add({ { "<i>folder", "<b>x.txt", 10, "<u>name</u>", { u"<s>tag</s>"_s } },
                    { "a\nb", "<img src='x'>.txt", 10, "", {} }, { "c", "annex\u202etxt.pdf", 10, "x\u202ey", {} },
                    { "d", "\u05e9\u05dc\u05d5\u05dd (2).pdf", 10, "\u05e9\u05dc\u05d5\u05dd", {} } });
                stage.suggester.errors[u"annex\u202etxt"_s] = ApiError { u"<a href='x'>no</a>\n"_s.repeated(9) };
                QCoro::waitFor(stage.batch.suggestAll());
            } },
        { u"quicklook-picture"_s,
            [](Stage &stage) {
                fillForReview(stage);
                constexpr int side = 40;
                QByteArray pixels;
                for (int pixel = 0; pixel < 30 * side; ++pixel)
                    pixels.append(char(pixel % side * 6)).append(char(pixel / side * 8)).append(char(0x80));
                stage.previews.previews.insert_or_assign("IMG_4032.HEIC", PicturePreview { { side, 30 }, pixels });
                stage.quickLook.open(1, 1);
            } },
        { u"quicklook-text"_s,
            [](Stage &stage) {
                fillForReview(stage);
                stage.previews.previews.insert_or_assign(
                    "export_20250401.csv", TextPreview { u"2025-04-01;<b>Bank</b>;12.50\n"_s.repeated(60) });
                stage.quickLook.open(7, 1);
            } },
        { u"quicklook-message"_s,
            [](Stage &stage) {
                fillForReview(stage);
                stage.previews.previews.insert_or_assign(
                    "scan_0041.pdf", Unreadable { u"This file could not be read safely."_s });
                stage.quickLook.open(0, 1);
            } },
        { u"settings-language"_s, [](Stage &stage) { showSettings(stage, u"language"_s); } },
        { u"settings-templates"_s, [](Stage &stage) { showSettings(stage, u"templates"_s); } },
        { u"settings-template-editor"_s,
            [](Stage &stage) {
                showSettings(stage, u"templates"_s);
                stage.settings->templateEditor()->edit(u"reports"_s);
            } },
        { u"settings-template-built-in"_s,
            [](Stage &stage) {
                showSettings(stage, u"templates"_s);
                stage.settings->templateEditor()->edit(u"contract"_s);
            } },
        { u"settings-template-field"_s,
            [](Stage &stage) {
                showSettings(stage, u"templates"_s);
                stage.settings->templateEditor()->edit(u"reports"_s);
                QTest::qWait(300);
                press(stage, u"Add Field"_s);
            } },
        { u"settings-template-delete"_s,
            [](Stage &stage) {
                showSettings(stage, u"templates"_s);
                stage.settings->templateEditor()->edit(u"reports"_s);
                QTest::qWait(300);
                press(stage, u"Delete Template…"_s);
            } },
        { u"settings-folders"_s, [](Stage &stage) { showSettings(stage, u"folders"_s); } },
        { u"settings-folders-empty"_s,
            [](Stage &stage) {
                showSettings(stage, u"folders"_s);
                while (stage.settings->folders()->rowCount() > 0)
                    stage.settings->folders()->remove(0);
            } },
        { u"settings-folders-finder"_s, [](Stage &stage) { showSettings(stage, u"folders"_s); } },
        { u"settings-folders-finder-granted"_s,
            [](Stage &stage) {
                stage.finder.status = AutomationHost::noError;
                showSettings(stage, u"folders"_s);
            } },
        { u"settings-tags"_s, [](Stage &stage) { showSettings(stage, u"tags"_s); } },
        { u"settings-watch"_s, [](Stage &stage) { showSettings(stage, u"watch"_s); } },
        { u"settings-about"_s, [](Stage &stage) { showSettings(stage, u"about"_s); } },
        { u"settings-not-stored"_s,
            [](Stage &stage) {
                showSettings(stage, u"tags"_s);
                stage.store.failure = SystemError { ENOSPC };
                stage.settings->preferences()->setWriteFinderTags(false);
            } },
        { u"settings-narrow-finder"_s,
            [](Stage &stage) {
                stage.window->resize(720, 560);
                showSettings(stage, u"folders"_s);
            } },
        { u"key-none"_s, [](Stage &stage) { showKeySheet(stage, {}); } },
        { u"key-set"_s, [](Stage &stage) { showKeySheet(stage, u"sk"_s); } },
        { u"key-narrow"_s,
            [](Stage &stage) {
                stage.window->resize(640, 480);
                showKeySheet(stage, u"sk"_s);
                stage.settings->provider()->setUp(u"http://example.org"_s, {});
            } },
        { u"onboarding-welcome-finder"_s, [](Stage &stage) { introduce(stage, {}); } },
        { u"onboarding-permission-finder"_s, [](Stage &stage) { introduce(stage, { u"Get Started"_s }); } },
        { u"onboarding-permission-granted-finder"_s,
            [](Stage &stage) {
                stage.finder.status = AutomationHost::noError;
                introduce(stage, { u"Get Started"_s });
            } },
        { u"onboarding-linux-welcome"_s, [](Stage &stage) { introduce(stage, {}); } },
        { u"onboarding-linux-ready"_s, [](Stage &stage) { introduce(stage, { u"Get Started"_s }); } },
        { u"onboarding-narrow"_s,
            [](Stage &stage) {
                stage.window->resize(720, 560);
                introduce(stage, {});
            } },
        { u"onboarding-small-finder"_s,
            [](Stage &stage) {
                stage.window->resize(640, 480);
                introduce(stage, { u"Get Started"_s });
            } },
        { u"formats"_s, [](Stage &stage) { stage.uiState.setProperty("showingFormats", true); } },
        { u"history"_s,
            [](Stage &stage) {
                fillHistory(stage);
                fillForReview(stage);
                stage.uiState.setProperty("showingHistory", true);
                stage.history.toggle(0);
                stage.history.toggle(1);
                stage.history.toggle(4);
            } },
        { u"history-empty"_s, [](Stage &stage) { stage.uiState.setProperty("showingHistory", true); } },
        { u"history-error"_s,
            [](Stage &stage) {
                fillHistory(stage);
                stage.uiState.setProperty("showingHistory", true);
                std::filesystem::remove(stage.home / "Downloads" / "2025-03-14 - Acme - Hosting plan - 174.24 EUR.pdf");
                stage.history.revert(0);
            } },
        { u"history-clear"_s,
            [](Stage &stage) {
                fillHistory(stage);
                stage.uiState.setProperty("showingHistory", true);
                QTest::qWait(300);
                press(stage, u"Clear History…"_s);
            } },
    };
    return all;
}

static int complaints = 0;

static void complain(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    complaints += type == QtDebugMsg || type == QtInfoMsg ? 0 : 1;
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

/// Names come from strangers: none may be markup wherever it turns up.
static void checkThatTextsArePlain(const QQuickItem *item)
{
    if (item->inherits("QQuickText") && item->property("textFormat").toInt() != Qt::PlainText)
        qWarning() << "may be markup:" << item->property("text");
    for (const QQuickItem *child : item->childItems())
        checkThatTextsArePlain(child);
}

/// Words that say what a control does are never cut. What a picker shows is somebody's choice, and may be.
static void checkThatWordsFit(const QQuickItem *item, const QQuickItem *control = nullptr)
{
    if (!item->isVisible())
        return;
    const QByteArray type = item->metaObject()->className();
    if (type.startsWith("OptionPicker") || type.startsWith("TemplatePicker") || type.startsWith("PopoverPickerRow"))
        return;
    if (item->inherits("QQuickAbstractButton") || type.startsWith("StatusPill") || type.startsWith("SettingsTab")
        || type.startsWith("WatcherStrip")) // has room for the short names of folders here
        control = item;
    if (control && item->inherits("QQuickText")) {
        const qreal width = item->property("contentWidth").toReal();
        const QRectF words = item->mapRectToItem(control, QRectF(0, 0, width, item->height()));
        if (item->property("truncated").toBool() || words.left() < -0.5 || words.right() > control->width() + 0.5)
            qWarning() << "cut:" << item->property("text");
    }
    for (const QQuickItem *child : item->childItems())
        checkThatWordsFit(child, control);
}

int main(int argumentCount, char **arguments)
{
    qInstallMessageHandler(complain);
    qputenv("VARLO_NO_ANIMATIONS", "1");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argumentCount, arguments);
    chooseFonts();
    const QStringList words = QGuiApplication::arguments().mid(2);
    const QDir folder(QGuiApplication::arguments().value(1, u"."_s));
    folder.mkpath(u"."_s);
    for (const auto &[name, setUp] : screens()) {
        const bool isWanted = words.isEmpty()
            || std::ranges::any_of(words, [&name = name](const QString &word) { return name.contains(word); });
        if (!isWanted)
            continue;
        for (const QString &code : { u"en"_s, u"nl"_s, u"es"_s }) {
            Stage stage(code, name.contains(u"finder"_s));
            stage.window->show();
            setUp(stage);
            QTest::qWait(300);
            checkThatTextsArePlain(stage.window->contentItem());
            checkThatWordsFit(stage.window->contentItem());
            stage.grab(folder.filePath(name + (code == "en"_L1 ? QString() : u'-' + code) + u".png"_s));
            stage.batch.clear();
        }
    }
    std::_Exit(complaints > 0 ? 1 : 0); // the run that is held never ends
}
