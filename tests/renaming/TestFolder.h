// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <QTemporaryDir>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace Varlo {

/// A temporary folder whose files are named in bytes. A new file contains its own first name.
class TestFolder {
public:
    TestFolder()
        : m_path(m_folder.path().toStdString())
    {
    }
    [[nodiscard]] const std::filesystem::path &path() const { return m_path; }
    [[nodiscard]] std::filesystem::path operator/(const std::string &name) const { return m_path / name; }
    std::filesystem::path create(const std::string &name) const { return create(name, name); }
    std::filesystem::path create(const std::string &name, const std::string &content) const
    {
        std::ofstream(m_path / name, std::ios::binary) << content;
        return m_path / name;
    }
    [[nodiscard]] static std::string content(const std::filesystem::path &file)
    {
        std::ifstream stream(file, std::ios::binary);
        return { std::istreambuf_iterator<char>(stream), {} };
    }
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().native());
        std::sort(names.begin(), names.end());
        return names;
    }
    [[nodiscard]] static ino_t inode(const std::filesystem::path &file)
    {
        struct stat status { };
        return ::lstat(file.c_str(), &status) == 0 ? status.st_ino : 0;
    }

private:
    QTemporaryDir m_folder;
    std::filesystem::path m_path;
};

} // namespace Varlo
