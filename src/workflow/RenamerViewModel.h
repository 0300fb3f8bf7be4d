// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/ContentReader.h"
#include "history/applyHistoryChanges.h"
#include "history/RenameLog.h"
#include "notify/SuggestedFile.h"
#include "platform/AutomationHost.h"
#include "platform/SystemLocale.h"
#include "renaming/FileRenamer.h"
#include "renaming/FolderAccess.h"
#include "settings/Preferences.h"
#include "suggestion/NameSuggestionService.h"
#include "templates/TemplateStore.h"
#include "workflow/FileItem.h"
#include "workflow/FolderWalk.h"
#include "workflow/TurnQueue.h"
#include <algorithm>
#include <memory>
#include <optional>
#include <QAbstractListModel>
#include <QCoroTask>
#include <QHash>
#include <QUrl>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Varlo {

/// The batch: the files being renamed, in the order of their admission, and the runs over them. Lives on the main
/// thread. It stores nothing itself; language and template start anew with each object.
class RenamerViewModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countsChanged)
    Q_PROPERTY(bool isSuggesting READ isSuggesting NOTIFY isSuggestingChanged)
    Q_PROPERTY(bool isRenaming READ isRenaming NOTIFY isRenamingChanged)
    Q_PROPERTY(int completedCount READ completedCount NOTIFY countsChanged)
    Q_PROPERTY(double totalBytes READ totalBytes NOTIFY countsChanged)
    Q_PROPERTY(bool hasPending READ hasPending NOTIFY countsChanged)
    Q_PROPERTY(int renamableCount READ renamableCount NOTIFY countsChanged)
    Q_PROPERTY(int keptCount READ keptCount CONSTANT)
    Q_PROPERTY(int forgottenCount READ forgottenCount NOTIFY countsChanged)
    Q_PROPERTY(int renameDoneCount READ renameDoneCount NOTIFY renameProgressChanged)
    Q_PROPERTY(int renameTotalCount READ renameTotalCount NOTIFY renameProgressChanged)
    Q_PROPERTY(bool isKeyMissing READ isKeyMissing NOTIFY countsChanged)
    Q_PROPERTY(double lastSuggestSeconds READ shownSuggestSeconds NOTIFY lastSuggestSecondsChanged)
    Q_PROPERTY(bool isNothingRenameable READ isNothingRenameable NOTIFY dropFeedbackChanged)
    Q_PROPERTY(QString languageId READ languageId WRITE setLanguageId NOTIFY filenameLanguageOptionChanged)
    Q_PROPERTY(QString templateId READ templateId WRITE setTemplateId NOTIFY selectedTemplateIDChanged)
public:
    enum class DropFeedback { NothingRenameable };
    enum Role {
        IdRole = Qt::UserRole + 1,
        // What is shown has every character written out that would act on the text around it.
        PathRole,
        FileNameRole,
        ExtensionRole, ///< with its dot, as it will stand behind the new name; "" for none
        FolderNameRole, ///< of the folder that the file is in
        StatusRole, ///< the raw value of the status
        StatusLabelRole, ///< the word for it in the interface's language
        MessageRole, ///< why it failed; "" otherwise
        SuggestedNameRole,
        SuggestedTagsRole,
        PreviousNameRole,
        ByteSizeRole,
        IconNameRole,
        HasNameFieldRole, ///< its name may be typed in
        CanRenameRole, ///< a rename action may touch it now
    };
    /// What the batch works with; all of it outlives the batch.
    struct Collaborators {
        ContentReader &reader;
        NameSuggestionService &suggester;
        TemplateStore &templateStore;
        RenameLog &renameLog;
        FileRenamer &renamer;
        FolderAccess &folderAccess;
        AutomationHost *automation; ///< null where the system has none
        Preferences &preferences;
        const SystemLocale &locale;
    };
    static constexpr int maximumInFlight = 5;

    explicit RenamerViewModel(const Collaborators &collaborators, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const FileItems &files() const { return m_files; }
    [[nodiscard]] bool contains(const std::filesystem::path &path) const
    {
        return m_rowsByPath.contains(std::string_view(path.native()));
    }
    [[nodiscard]] bool isSuggesting() const { return m_isSuggesting; }
    /// How long the latest complete suggestion run took.
    [[nodiscard]] std::optional<double> lastSuggestSeconds() const { return m_lastSuggestSeconds; }
    [[nodiscard]] std::optional<DropFeedback> dropFeedback() const { return m_dropFeedback; }
    Q_INVOKABLE void dismissDropFeedback() { setDropFeedback({}); }
    [[nodiscard]] FilenameLanguageOption filenameLanguageOption() const { return m_filenameLanguageOption; }
    /// A choice that differs from the present one returns every suggested file to pending.
    void setFilenameLanguageOption(const FilenameLanguageOption &option);
    [[nodiscard]] std::optional<QString> selectedTemplateID() const { return m_selectedTemplateID; }
    /// As for the language.
    void setSelectedTemplateID(const std::optional<QString> &id);
    /// Absent also when the store no longer has a template with the selected id.
    [[nodiscard]] std::optional<NameTemplate> selectedTemplate() const;

    [[nodiscard]] qsizetype completedCount() const; ///< neither pending nor processing
    [[nodiscard]] qint64 totalBytes() const { return m_totalBytes; }
    [[nodiscard]] bool hasPending() const { return m_pendingCount > 0; }
    [[nodiscard]] int renamableCount() const { return m_renamableCount; }
    /// How many renames the log keeps, and how many of those that "Rename All" would make it could not.
    [[nodiscard]] static int keptCount() { return static_cast<int>(maximumLogEntries); }
    [[nodiscard]] int forgottenCount() const { return std::max(0, m_renamableCount - keptCount()); }
    /// Of the rename action under way, or of the latest: the files it has come to, and all of them.
    [[nodiscard]] int renameDoneCount() const { return m_renameDoneCount; }
    [[nodiscard]] int renameTotalCount() const { return m_renameTotalCount; }
    /// A file failed since no key is stored.
    [[nodiscard]] bool isKeyMissing() const { return m_keyMissingCount > 0; }

    /// Admits files, and the files below folders, that Varlo can name and that are not in the batch yet; passes over
    /// everything else in silence. Rows appear slice by slice while the event loop goes on; calls are served one after
    /// the other. When nothing was admitted and `reportEmpty` is set, dropFeedback() says so at the end. clear() ends
    /// it. A file that would wait for a suggestion has its name from `suggestions` at once, where there is one for it.
    QCoro::Task<void> addFiles(
        std::vector<std::filesystem::path> paths, bool reportEmpty, std::vector<SuggestedFile> suggestions = {});
    /// addFiles() has not come to its end.
    [[nodiscard]] bool isAdmitting() const { return !m_admissionTurns.isIdle(); }
    /// Empties the batch. Nothing on disk and nothing in the rename log changes.
    Q_INVOKABLE void clear();
    /// Takes every pending file through its reading and a suggestion, five at a time, until none is pending. Does
    /// nothing while a run is under way: that run takes what has become pending meanwhile.
    QCoro::Task<void> suggestAll();

    /// Returns to pending what failed for want of a key, but where a name was typed instead.
    void askAgainForWantOfKey();

    /// What the user typed in the row; a rename uses it as it is. A file that is being or was renamed keeps its name.
    Q_INVOKABLE void setSuggestedName(int row, const QString &name);
    /// The files that "Rename All" would rename now: suggested, already renamed, without text or failed, and with a
    /// name.
    [[nodiscard]] std::vector<QUuid> renamableFiles() const;
    /// Where the file is now; nothing once it has left the batch. In constant time.
    [[nodiscard]] std::optional<int> rowOf(const QUuid &id) const;
    /// Renames one file, if it may be; its outcome is its status.
    QCoro::Task<void> rename(QUuid id);
    /// Renames the files that can be renamed at this moment, in the batch's order, and gives the event loop back in
    /// between. One that meanwhile lost its name, or left the batch, is passed over; one failure does not stop the
    /// others. Actions follow each other: a second call waits for the first and then finds what is left.
    QCoro::Task<void> renameAll();
    /// Ends the rename action under way after the rename in hand.
    void stopRenaming() { m_isRenameStopped = true; }
    [[nodiscard]] bool isRenaming() const { return !m_renameTurns.isIdle(); }

    /// Announces every text of Varlo's own again, in the interface's new language.
    void retranslate();

    // What a window asks for; each starts the action of its name, which goes on by itself.
    /// Files dropped or chosen; an address that is no local file is passed over. Says so when nothing can be named.
    Q_INVOKABLE void addUrls(const QList<QUrl> &urls);
    Q_INVOKABLE void suggest();
    Q_INVOKABLE void renameRow(int row);
    Q_INVOKABLE void renameEverything();
    /// The next row, or the one before, whose name may be typed in; -1 where there is none.
    Q_INVOKABLE [[nodiscard]] int nextRowWithName(int row, bool backwards) const;
    /// The first row from `row` on, and round again, whose file's name begins so, in any case; -1 where none does.
    Q_INVOKABLE [[nodiscard]] int rowBeginningWith(const QString &text, int row) const;

    /// -1 before the first run is complete.
    [[nodiscard]] double shownSuggestSeconds() const { return m_lastSuggestSeconds.value_or(-1); }
    [[nodiscard]] bool isNothingRenameable() const { return m_dropFeedback == DropFeedback::NothingRenameable; }
    [[nodiscard]] QString languageId() const { return id(m_filenameLanguageOption); }
    void setLanguageId(const QString &id);
    /// "" for none.
    [[nodiscard]] QString templateId() const { return m_selectedTemplateID.value_or(QString()); }
    void setTemplateId(const QString &id);

signals:
    void isSuggestingChanged();
    void lastSuggestSecondsChanged();
    void dropFeedbackChanged();
    void filenameLanguageOptionChanged();
    void selectedTemplateIDChanged();
    void countsChanged();
    /// The file has come through a suggestion, with or without a name.
    void suggestionFinished(int row);
    /// A rename action has come to the file: it is renamed, or has failed.
    void renameFinished(int row);
    void isRenamingChanged();
    void renameProgressChanged();

private:
    /// The files of one round of a run and what they are asked with.
    struct Pass {
        std::vector<QUuid> ids;
        std::size_t next = 0;
        FilenameLanguage language = FilenameLanguage::Auto;
        std::optional<NameTemplate> nameTemplate;
        bool includeTags = false;
    };
    // Rows are told apart by their item's path, which stands in the item alone.
    struct PathHash {
        using is_transparent = void;
        const FileItems *files;
        std::size_t operator()(std::string_view path) const { return std::hash<std::string_view>()(path); }
        std::size_t operator()(int row) const;
    };
    struct PathEqual {
        using is_transparent = void;
        const FileItems *files;
        bool operator()(int row, int other) const;
        bool operator()(std::string_view path, int row) const;
        bool operator()(int row, std::string_view path) const { return (*this)(path, row); }
    };
    struct SuggestionResult {
        QUuid id;
        FileItem::Status status;
        QString name;
        QStringList tags;
    };

    using Suggestions = std::unordered_map<std::string_view, const SuggestedFile *>; // by path
    qsizetype admit(std::vector<FolderWalk::File> found, const Suggestions &suggestions);
    static bool takeSuggestion(FileItem &item, const Suggestions &suggestions);
    void takeSuggestions(const std::vector<int> &rows, const Suggestions &suggestions);
    QCoro::Task<void> runPass();
    QCoro::Task<void> runLane(std::shared_ptr<Pass> pass);
    QCoro::Task<SuggestionResult> suggestionFor(QUuid id, std::filesystem::path path, std::shared_ptr<const Pass> pass);
    void apply(const SuggestionResult &result);
    void resetSuggestions();
    QCoro::Task<void> renameInTurn(std::vector<QUuid> ids);
    /// Renames some of the ids from `next` on, which it moves; returns the file whose folder refused, if one did.
    [[nodiscard]] std::optional<QUuid> renameSome(const std::vector<QUuid> &ids, std::size_t &next);
    /// Returns which of them the folder refused; those behind it were not tried.
    [[nodiscard]] std::optional<std::size_t> renameDirectly(const std::vector<QUuid> &ids);
    /// False where Finder may not be asked and the direct way is left.
    [[nodiscard]] bool renameThroughFinder(const QUuid &id);
    QCoro::Task<void> askForFolderAndRetry(QUuid id);
    [[nodiscard]] RenameRequest renameRequest(const FileItem &item) const;
    void finishRename(const QUuid &id, const std::filesystem::path &oldPath, const std::filesystem::path &newPath);
    void failRename(const QUuid &id, const Message &message);
    void takeBack(const std::filesystem::path &renamedPath, const std::filesystem::path &restoredPath);
    void setPath(int row, const std::filesystem::path &path);
    void setStatus(int row, const FileItem::Status &status);
    void setSuggestion(int row, const QString &name, const QStringList &tags);
    void count(const FileItem &item, int change);
    void setDropFeedback(std::optional<DropFeedback> feedback);
    void announce(int row, const QList<int> &roles);

    Collaborators m_with;
    FileItems m_files;
    int m_announcedRows = 0; // what views have been told of; equal to the number of items but while some are admitted
    QHash<QUuid, int> m_rowOfId;
    std::unordered_set<int, PathHash, PathEqual> m_rowsByPath; // finds a duplicate without a search
    qsizetype m_pendingCount = 0;
    qsizetype m_processingCount = 0;
    int m_renamableCount = 0;
    int m_keyMissingCount = 0;
    int m_renameDoneCount = 0;
    int m_renameTotalCount = 0;
    qint64 m_totalBytes = 0;
    bool m_isSuggesting = false;
    std::optional<double> m_lastSuggestSeconds;
    std::optional<DropFeedback> m_dropFeedback;
    FilenameLanguageOption m_filenameLanguageOption = FilenameLanguage::Auto;
    std::optional<QString> m_selectedTemplateID;
    TurnQueue m_admissionTurns;
    TurnQueue m_renameTurns;
    quint64 m_clearCount = 0; // an admission that began before the latest clear() adds no more
    bool m_isRenameStopped = false;
};

} // namespace Varlo
