// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/isSharedAlone.h"

#include <algorithm>
#include <string_view>

namespace Varlo {

/// What is left behind the prefix; an empty text where the path does not begin so.
static std::string_view behind(std::string_view prefix, std::string_view path)
{
    return path.starts_with(prefix) ? path.substr(prefix.size()) : std::string_view();
}

/// "ID/NAME" of a document, or what stands for it below a shared folder.
static std::string_view insideOfPortal(std::string_view path)
{
    if (const std::string_view rest = behind("/run/flatpak/doc/", path); !rest.empty())
        return rest;
    const std::string_view userAndRest = behind("/run/user/", path);
    const std::size_t slash = userAndRest.find('/');
    const std::string_view user = userAndRest.substr(0, slash);
    const bool isUser = !user.empty() && user.find_first_not_of("0123456789") == std::string_view::npos;
    if (!isUser || slash == std::string_view::npos)
        return {};
    std::string_view rest = behind("/doc/", userAndRest.substr(slash));
    if (const std::string_view ofApplication = behind("by-app/", rest); !ofApplication.empty())
        rest = ofApplication.substr(std::min(ofApplication.find('/'), ofApplication.size() - 1) + 1);
    return rest;
}

bool isSharedAlone(const std::filesystem::path &path)
{
    const std::string_view inside = insideOfPortal(path.native());
    return std::count(inside.begin(), inside.end(), '/') == 1;
}

} // namespace Varlo
