// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/OfficePackage.h"

#include <algorithm>

namespace Varlo {

constexpr qint64 officeEntryByteLimit = 4'194'304;
// Entries can share their bytes, so that a small archive holds 65,535 parts of 4 MiB. What is named from a document
// stands in the first few of its parts. Nothing takes longer to parse than attributes, 0.4 s for 4 MiB of them.
constexpr qint64 packageByteLimit = 16 * officeEntryByteLimit;

OfficePackage::OfficePackage(const FileDescriptor &file)
    : m_file(file)
    , m_entries(ZipFile::entries(m_file.bytes()))
{
    for (const ZipFile::Entry &entry : m_entries)
        m_firstByName.emplace(entry.name, &entry);
}

QStringList OfficePackage::partNames(QStringView beginning, QStringView end) const
{
    QStringList names;
    for (const ZipFile::Entry &entry : m_entries) {
        if (entry.name.startsWith(beginning) && entry.name.endsWith(end))
            names.append(entry.name);
    }
    return names;
}

std::optional<QByteArray> OfficePackage::read(const QString &partName)
{
    const auto found = m_firstByName.find(partName);
    if (found == m_firstByName.end() || m_bytesRead >= packageByteLimit)
        return std::nullopt;
    const ZipFile::Entry &entry = *found->second;
    // What is read in vain counts as well.
    m_bytesRead += std::min(std::max(entry.compressedSize, entry.uncompressedSize), officeEntryByteLimit);
    return ZipFile::read(entry, m_file.bytes(), officeEntryByteLimit);
}

} // namespace Varlo
