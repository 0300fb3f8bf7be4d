// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/readPDF.h"

#include "extraction/normalizeExtractedText.h"
#include "extraction/pdf/looksLikeReadableText.h"
#include "extraction/pdf/PDFDocument.h"
#include "extraction/pdf/renderPage.h"
#include "platform/Characters.h"
#include <QDeadlineTimer>
#include <QStringList>

namespace Varlo {

constexpr double recognitionResolution = 144; // pixels an inch: twice the points

namespace {
/// The text of the first pages: as far as anything can depend on it.
struct TextLayer {
    QString text;
    bool looksReadable = false;
};
} // namespace

/// In reading order, also where it is set in columns.
static QString textOf(const poppler::page &page)
{
    const poppler::ustring text = page.text({}, poppler::page::non_raw_non_physical_layout);
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(text.data()), static_cast<qsizetype>(text.size()))
        .simplified();
}

static TextLayer readTextLayer(
    const PDFDocument &document, const QDeadlineTimer &end, const std::function<void()> &reportProgress)
{
    QString text;
    qsizetype characters = 0; // the spaces between pages left out
    ReadabilityTest readability;
    // One character more than is kept, since a mark at the front of the next page could still change the last one.
    const auto hasEnoughText = [&] { return characters > mostTextCharacters || text.size() > mostTextBytes; };
    const int pageCount = document.pageCount();
    for (int index = 0; index < pageCount && !end.hasExpired(); ++index) {
        const auto page = document.page(index);
        const QString pageText = page ? textOf(*page) : QString();
        readability.add(pageText);
        if (!hasEnoughText()) {
            characters += countCharacters(pageText, mostTextCharacters + 1);
            text += pageText + u' ';
        }
        reportProgress();
        if (readability.isDecided() && (hasEnoughText() || !readability.isPassed()))
            break;
    }
    return { text, readability.isPassed() };
}

static QString recognizePageText(const poppler::page &page, TextRecognizer &recognizer)
{
    const auto rendered = renderPage(page, poppler::image::format_gray8, recognitionResolution);
    if (!rendered)
        return {};
    const poppler::image &image = rendered->image;
    const auto size = static_cast<size_t>(image.bytes_per_row()) * static_cast<size_t>(image.height());
    return recognizer.recognize({ .pixels = std::as_bytes(std::span(image.const_data(), size)),
        .width = image.width(),
        .height = image.height(),
        .bytesPerRow = image.bytes_per_row(),
        .resolution = rendered->resolution });
}

static QString recognizePages(const PDFDocument &document, TextRecognizer &recognizer, const QDeadlineTimer &end,
    const std::function<void()> &reportProgress)
{
    QStringList texts;
    qsizetype characters = 0;
    const int pageCount = document.pageCount();
    for (int index = 0; index < pageCount; ++index) {
        const auto page = document.page(index);
        if (!page)
            break;
        texts.append(recognizePageText(*page, recognizer));
        characters += countCharacters(texts.last(), mostTextCharacters);
        reportProgress();
        if (characters >= mostTextCharacters || end.hasExpired())
            break;
    }
    return texts.join(u' ');
}

std::variant<Extraction, NeedsRecognition> readPDF(const FileDescriptor &file, TextRecognizer *recognizer,
    const std::function<void()> &reportProgress, std::chrono::milliseconds limit)
{
    const auto document = PDFDocument::open(file);
    if (!document)
        return NoTextFound {};
    const QDeadlineTimer end(limit);
    const TextLayer layer = readTextLayer(*document, end, reportProgress);
    if (layer.looksReadable)
        return normalizeExtractedText(layer.text);
    if (document->pageCount() == 0)
        return NoTextFound {};
    if (!recognizer)
        return NeedsRecognition {};
    return normalizeExtractedText(recognizePages(*document, *recognizer, end, reportProgress));
}

} // namespace Varlo
