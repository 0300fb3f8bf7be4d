// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/HistoryView.h"
#include "templates/TemplateChoices.h"
#include "ui/AppUIState.h"
#include "ui/QuickLook.h"
#include "ui/SettingsModels.h"
#include "updates/UpdaterModel.h"
#include "workflow/RenamerViewModel.h"
#include <QtQml/qqml.h>

// The models under the names that QML knows them by. All are made by start-up and handed in.
namespace Varlo {

struct ForeignRenamerViewModel {
    Q_GADGET
    QML_FOREIGN(Varlo::RenamerViewModel)
    QML_NAMED_ELEMENT(RenamerViewModel)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignHistoryView {
    Q_GADGET
    QML_FOREIGN(Varlo::HistoryView)
    QML_NAMED_ELEMENT(HistoryView)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignTemplateChoices {
    Q_GADGET
    QML_FOREIGN(Varlo::TemplateChoices)
    QML_NAMED_ELEMENT(TemplateChoices)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignQuickLook {
    Q_GADGET
    QML_FOREIGN(Varlo::QuickLook)
    QML_NAMED_ELEMENT(QuickLook)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignUpdaterModel {
    Q_GADGET
    QML_FOREIGN(Varlo::UpdaterModel)
    QML_NAMED_ELEMENT(UpdaterModel)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignPreferenceModel {
    Q_GADGET
    QML_FOREIGN(Varlo::PreferenceModel)
    QML_NAMED_ELEMENT(PreferenceModel)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignTemplateEditor {
    Q_GADGET
    QML_FOREIGN(Varlo::TemplateEditor)
    QML_NAMED_ELEMENT(TemplateEditor)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignGrantedFolders {
    Q_GADGET
    QML_FOREIGN(Varlo::GrantedFolders)
    QML_NAMED_ELEMENT(GrantedFolders)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignFinderAccess {
    Q_GADGET
    QML_FOREIGN(Varlo::FinderAccess)
    QML_NAMED_ELEMENT(FinderAccess)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignProviderModel {
    Q_GADGET
    QML_FOREIGN(Varlo::ProviderModel)
    QML_NAMED_ELEMENT(ProviderModel)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignSettingsModels {
    Q_GADGET
    QML_FOREIGN(Varlo::SettingsModels)
    QML_NAMED_ELEMENT(SettingsModels)
    QML_UNCREATABLE("made at start-up")
};
struct ForeignAppUIState {
    Q_GADGET
    QML_FOREIGN(Varlo::AppUIState)
    QML_NAMED_ELEMENT(AppUIState)
    QML_UNCREATABLE("made at start-up")
};

} // namespace Varlo
