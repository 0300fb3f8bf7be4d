// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/office/ZipFile.h"
#include "platform/linux/MappedFile.h"
#include <map>
#include <QStringList>

namespace Varlo {

/// The parts of an office document, which is a ZIP archive of them (ECMA-376, part 2). Without parts when the file is
/// anything else.
class OfficePackage {
public:
    explicit OfficePackage(const FileDescriptor &file);

    /// Every name with that beginning and end, in the archive's order; one that it has twice is here twice.
    [[nodiscard]] QStringList partNames(QStringView beginning, QStringView end) const;
    /// The first 4 MiB of the first part of that name; absent when there is none, or it cannot be read. All parts are
    /// absent once more was read than any honest document holds.
    [[nodiscard]] std::optional<QByteArray> read(const QString &partName);

private:
    MappedFile m_file;
    std::vector<ZipFile::Entry> m_entries;
    std::map<QString, const ZipFile::Entry *> m_firstByName;
    qint64 m_bytesRead = 0;
};

} // namespace Varlo
