// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeClock.h"
#include "fakes/FakeContentReader.h"
#include "fakes/FakeFolderAccessPanel.h"
#include "fakes/FakeNameSuggester.h"
#include "fakes/FakePreferenceStore.h"
#include "fakes/FakeSystemLocale.h"
#include "workflow/RenamerViewModel.h"
#include <fstream>
#include <QTemporaryDir>

namespace Varlo {

/// A batch with platform, model and clock faked, and a folder of real files that are really renamed.
struct TestBatch {
    QTemporaryDir temporary;
    std::filesystem::path folder = std::filesystem::path(temporary.path().toStdString());
    FakePreferenceStore store;
    Preferences preferences { store };
    TemplateStore templates { preferences };
    FakeClock clock;
    FakeFolderAccessPanel panel;
    RenameJournal journal { folder / ".state" };
    FileRenamer renamer { journal, clock };
    FolderAccess access { preferences, panel };
    RenameLog log { preferences, renamer, access };
    FakeContentReader reader;
    FakeNameSuggester suggester;
    FakeSystemLocale locale;
    std::unique_ptr<RenamerViewModel> batch;

    explicit TestBatch(AutomationHost *automation = nullptr)
        : batch(std::make_unique<RenamerViewModel>(RenamerViewModel::Collaborators {
            reader, suggester, templates, log, renamer, access, automation, preferences, locale }))
    {
    }

    std::filesystem::path make(const std::filesystem::path &relative, const std::string &content = "x") const
    {
        const std::filesystem::path path = folder / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << content;
        return path;
    }
    void add(std::vector<std::filesystem::path> paths, bool reportEmpty = true) const
    {
        QCoro::waitFor(batch->addFiles(std::move(paths), reportEmpty));
    }
    void suggest() const { QCoro::waitFor(batch->suggestAll()); }
    /// Admits a new file and gives it this suggestion, as if typed.
    QUuid addNamed(const std::string &file, const QString &name)
    {
        reader.extractions.insert_or_assign(make(file), NoTextFound {});
        add({ folder / file });
        suggest();
        batch->setSuggestedName(batch->rowCount() - 1, name);
        return batch->files().back().id;
    }

    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const FileItem &item : batch->files())
            names.append(QString::fromStdString(std::filesystem::path(item.path).lexically_relative(folder).native()));
        return names;
    }
    [[nodiscard]] QStringList statuses() const
    {
        QStringList words;
        for (const FileItem &item : batch->files()) {
            const auto *failed = std::get_if<FileItem::Failed>(&item.status);
            words.append(rawValue(item.status) + (failed ? QStringLiteral(": ") + failed->message.text() : QString()));
        }
        return words;
    }
};

} // namespace Varlo
