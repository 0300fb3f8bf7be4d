// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

namespace Varlo {

/// A path kept as its bytes alone. A std::filesystem::path keeps each of its parts as well, some 300 bytes more and
/// most of the time that it takes to make one: too much where there are 100,000.
class CompactPath {
public:
    CompactPath() = default;
    CompactPath(std::string bytes) // implicit both ways: it stands for a path wherever one is meant
        : m_bytes(std::move(bytes))
    {
    }
    CompactPath(const std::filesystem::path &path)
        : m_bytes(path.native())
    {
    }
    operator std::filesystem::path() const { return m_bytes; }

    [[nodiscard]] const std::string &native() const { return m_bytes; }
    [[nodiscard]] std::filesystem::path filename() const { return std::filesystem::path(m_bytes).filename(); }
    [[nodiscard]] std::filesystem::path parentPath() const { return std::filesystem::path(m_bytes).parent_path(); }

    bool operator==(const CompactPath &) const = default;
    bool operator==(const std::filesystem::path &path) const { return m_bytes == path.native(); }

private:
    std::string m_bytes;
};

} // namespace Varlo
