// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/MappedFile.h"

#include <sys/mman.h>
#include <sys/stat.h>

namespace Varlo {

MappedFile::MappedFile(const FileDescriptor &file)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0 || status.st_size == 0)
        return;
    const void *const start
        = ::mmap(nullptr, static_cast<size_t>(status.st_size), PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (start != MAP_FAILED)
        m_bytes = { static_cast<const char *>(start), static_cast<qsizetype>(status.st_size) };
}

MappedFile::~MappedFile()
{
    if (!m_bytes.isEmpty())
        ::munmap(const_cast<char *>(m_bytes.data()), static_cast<size_t>(m_bytes.size()));
}

} // namespace Varlo
