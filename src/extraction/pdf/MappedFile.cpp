// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/MappedFile.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <utility>

namespace Varlo {

std::optional<MappedFile> MappedFile::map(const FileDescriptor &file)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0 || status.st_size <= 0)
        return std::nullopt;
    const auto size = static_cast<size_t>(status.st_size);
    void *const begin = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (begin == MAP_FAILED)
        return std::nullopt;
    return MappedFile(std::span(static_cast<const char *>(begin), size));
}

MappedFile::MappedFile(MappedFile &&other) noexcept
    : m_bytes(std::exchange(other.m_bytes, {}))
{
}

MappedFile::~MappedFile()
{
    if (!m_bytes.empty())
        ::munmap(const_cast<char *>(m_bytes.data()), m_bytes.size());
}

} // namespace Varlo
