// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/HistoryView.h"
#include "templates/TemplateChoices.h"
#include "ui/AppUIState.h"
#include "ui/QuickLook.h"
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
struct ForeignAppUIState {
    Q_GADGET
    QML_FOREIGN(Varlo::AppUIState)
    QML_NAMED_ELEMENT(AppUIState)
    QML_UNCREATABLE("made at start-up")
};

} // namespace Varlo
