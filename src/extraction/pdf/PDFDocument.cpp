// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/PDFDocument.h"

#include <limits>
#include <poppler-global.h>

namespace Varlo {

std::optional<PDFDocument> PDFDocument::open(const FileDescriptor &file)
{
    MappedFile mapped(file);
    const QByteArrayView bytes = mapped.bytes();
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int>::max())
        return std::nullopt;
    // By default it prints a line for each wrong byte.
    poppler::set_debug_error_function([](const std::string &, void *) {}, nullptr);
    std::unique_ptr<poppler::document> document(
        poppler::document::load_from_raw_data(bytes.data(), static_cast<int>(bytes.size())));
    if (!document || document->is_locked())
        return std::nullopt;
    return PDFDocument(std::move(mapped), std::move(document));
}

PDFDocument::PDFDocument(MappedFile file, std::unique_ptr<poppler::document> document)
    : m_file(std::move(file))
    , m_document(std::move(document))
{
}

std::unique_ptr<poppler::page> PDFDocument::page(int index) const
{
    return std::unique_ptr<poppler::page>(m_document->create_page(index));
}

} // namespace Varlo
