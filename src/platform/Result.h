// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tl/expected.hpp>

namespace Varlo {

/// Done, or why not.
template <typename Value, typename Error> using Result = tl::expected<Value, Error>;

/// Takes a variant apart: std::visit(Overloaded { one lambda a case }, variant).
template <typename... Cases> struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace Varlo
