// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/MappedFile.h"
#include <memory>
#include <optional>
#include <poppler-document.h>
#include <poppler-page.h>

namespace Varlo {

/// An open PDF that needs no password. Nothing that it asks for is done: no script, no action, no attachment.
class PDFDocument {
public:
    /// Nothing for what is no PDF, for one locked by a password, and beyond 2 GiB, which Poppler does not take.
    [[nodiscard]] static std::optional<PDFDocument> open(const FileDescriptor &file);

    /// As many as the document says: not all of them need be there.
    [[nodiscard]] int pageCount() const { return m_document->pages(); }
    /// Null when there is no such page.
    [[nodiscard]] std::unique_ptr<poppler::page> page(int index) const;

private:
    PDFDocument(MappedFile file, std::unique_ptr<poppler::document> document);

    MappedFile m_file; // Poppler reads from it until the document is closed
    std::unique_ptr<poppler::document> m_document;
};

} // namespace Varlo
