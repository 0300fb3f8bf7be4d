// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "notify/makeNotifier.h"

#include "platform/linux/loadModule.h"

namespace Varlo {

using namespace Qt::StringLiterals;

std::unique_ptr<Notifier> makeNotifier()
{
    const auto entry = reinterpret_cast<NotifierEntry>(loadModule("varlo-notify"_L1, notifierEntryName));
    return std::unique_ptr<Notifier>(entry ? entry() : nullptr);
}

} // namespace Varlo
