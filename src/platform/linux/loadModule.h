// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFunctionPointer>
#include <QLatin1StringView>

namespace Varlo {

/// Loads a part of Varlo that a program does not start with, since it brings large libraries along, and looks up its
/// entry function. It stays loaded. Null where the part, or a library that it needs, is not installed. Safe on any
/// thread, once a QCoreApplication exists.
[[nodiscard]] QFunctionPointer loadModule(QLatin1StringView name, const char *entryName);

} // namespace Varlo
