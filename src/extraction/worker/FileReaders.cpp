// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/FileReaders.h"

#include "extraction/office/readPresentation.h"
#include "extraction/office/readSpreadsheet.h"
#include "extraction/office/readWordDocument.h"
#include "extraction/readPlainText.h"
#include "extraction/richtext/readRichText.h"
#include "extraction/supportedExtensions.h"
#include "platform/linux/loadModule.h"
#include "platform/Result.h"
#include <algorithm>
#include <array>
#include <QJsonArray>
#include <span>

namespace Varlo {

using namespace Qt::StringLiterals;

// What each of officeExtensions is read by.
static constexpr std::array<std::string_view, 1> wordExtensions { "docx" };
static constexpr std::array<std::string_view, 1> spreadsheetExtensions { "xlsx" };
static constexpr std::array<std::string_view, 1> presentationExtensions { "pptx" };
static constexpr std::array<std::string_view, 1> richTextExtensions { "rtf" };
// What the module of pictures leaves to the further decoder, unless the name deceives.
static constexpr std::array<std::string_view, 6> furtherExtensions { "tiff", "tif", "heic", "heif", "heics", "avif" };

template <typename List> static bool contains(const List &list, std::string_view extension)
{
    return std::find(list.begin(), list.end(), extension) != list.end();
}

static WorkerAnswer toAnswer(const Extraction &extraction)
{
    return std::visit(Overloaded {
                          [](const FileContent &content) -> WorkerAnswer { return content; },
                          [](const Unreadable &) -> WorkerAnswer { return NoTextFound {}; },
                          [](NoTextFound) -> WorkerAnswer { return NoTextFound {}; },
                          [](NotSupportedYet) -> WorkerAnswer { return NoTextFound {}; },
                      },
        extraction);
}

template <typename Module>
static void loadOnce(bool isLoaded, Module &module, QLatin1StringView name, const char *entry)
{
    if (isLoaded)
        return;
    if (const auto fill = reinterpret_cast<void (*)(Module &)>(loadModule(name, entry)))
        fill(module);
}

static std::string_view librariesForPDF(const WorkerJob &job)
{
    return job.recognizesText ? "pdf, recognition" : "pdf";
}

static bool usesFurtherDecoder(const WorkerJob &job)
{
    return job.usesFurtherDecoder || contains(furtherExtensions, job.extension);
}

static std::string_view librariesForPicture(const WorkerJob &job)
{
    return usesFurtherDecoder(job) ? "pictures, further decoder" : "pictures";
}

struct FileReaders::KindOfFile {
    using Read = WorkerAnswer (*)(
        const FileReaders &readers, const WorkerJob &job, const FileDescriptor &file, const ReportProgress &);
    using Preview = WorkerAnswer (*)(const FileReaders &readers, const WorkerJob &job, const FileDescriptor &file);

    std::span<const std::string_view> extensions;
    std::string_view (*libraries)(const WorkerJob &job);
    void (*prepare)(FileReaders &readers, const WorkerJob &job);
    Read read;
    Preview preview; // null: shown by its text
};

const FileReaders::KindOfFile *FileReaders::kindOf(const std::string &extension)
{
    using Job = const WorkerJob &;
    using File = const FileDescriptor &;
    using Self = const FileReaders &;
    using Report = const ReportProgress &;
    constexpr auto none = [](Job) { return std::string_view(); };
    constexpr auto nothing = [](FileReaders &, Job) {};
    static constexpr std::array kinds {
        KindOfFile { textExtensions, none, nothing,
            [](Self, Job, File file, Report) { return toAnswer(readPlainText(file)); }, nullptr },
        KindOfFile { wordExtensions, none, nothing,
            [](Self, Job, File file, Report) { return toAnswer(readWordDocument(file)); }, nullptr },
        KindOfFile { spreadsheetExtensions, none, nothing,
            [](Self, Job, File file, Report) { return toAnswer(readSpreadsheet(file)); }, nullptr },
        KindOfFile { presentationExtensions, none, nothing,
            [](Self, Job, File file, Report) { return toAnswer(readPresentation(file)); }, nullptr },
        KindOfFile { richTextExtensions, none, nothing,
            [](Self, Job, File file, Report) { return toAnswer(readRichText(file)); }, nullptr },
        KindOfFile { pdfExtensions, librariesForPDF, [](FileReaders &self, Job job) { self.preparePDF(job); },
            [](Self self, Job job, File file, Report report) { return self.readPDF(job, file, report); },
            [](Self self, Job job, File file) { return self.previewPDF(job, file); } },
        KindOfFile { imageExtensions, librariesForPicture, [](FileReaders &self, Job job) { self.preparePicture(job); },
            [](Self self, Job job, File file, Report) { return self.readPicture(job, file); },
            [](Self self, Job job, File file) { return self.previewPicture(job, file); } },
    };
    const auto kind = std::find_if(kinds.begin(), kinds.end(),
        [&extension](const KindOfFile &each) { return contains(each.extensions, extension); });
    return kind == kinds.end() ? nullptr : &*kind;
}

void FileReaders::preparePDF(const WorkerJob &job)
{
    loadOnce(m_pdf.read != nullptr, m_pdf, "varlo-pdf"_L1, pdfModuleEntryName);
    if (job.recognizesText)
        loadOnce(
            m_recognition.recognizer != nullptr, m_recognition, "varlo-recognition"_L1, recognitionModuleEntryName);
}

void FileReaders::preparePicture(const WorkerJob &job)
{
    loadOnce(m_pictures.read != nullptr, m_pictures, "varlo-pictures"_L1, picturesModuleEntryName);
    if (usesFurtherDecoder(job))
        loadOnce(m_furtherDecoder.decoder != nullptr, m_furtherDecoder, "varlo-further-decoder"_L1,
            furtherDecoderModuleEntryName);
}

std::string_view FileReaders::libraries(const WorkerJob &job) const
{
    if (job.kind == WorkerJob::Kind::Inspect)
        return "all";
    const KindOfFile *const kind = kindOf(job.extension);
    return kind ? kind->libraries(job) : std::string_view();
}

void FileReaders::prepare(const WorkerJob &job)
{
    if (job.kind == WorkerJob::Kind::Inspect) {
        WorkerJob everything = job;
        everything.recognizesText = everything.usesFurtherDecoder = true;
        preparePDF(everything);
        preparePicture(everything);
    } else if (const KindOfFile *const kind = kindOf(job.extension)) {
        kind->prepare(*this, job);
    }
}

bool FileReaders::needsThreads(const WorkerJob &job) const
{
    // Qt converts large pictures, and the further decoder's libraries read AVIF, with threads or not at all.
    return contains(imageExtensions, job.extension);
}

WorkerAnswer FileReaders::perform(
    const WorkerJob &job, const FileDescriptor &file, const ReportProgress &reportProgress)
{
    if (job.kind == WorkerJob::Kind::Inspect)
        return ReadersFound { findings() };
    const KindOfFile *const kind = kindOf(job.extension);
    if (!kind)
        return NoTextFound {};
    if (job.kind == WorkerJob::Kind::Preview)
        return kind->preview ? kind->preview(*this, job, file) : WorkerAnswer(NoTextFound {});
    return kind->read(*this, job, file, reportProgress);
}

WorkerAnswer FileReaders::readPDF(
    const WorkerJob &job, const FileDescriptor &file, const ReportProgress &reportProgress) const
{
    if (!m_pdf.read)
        return ReaderNotInstalled {};
    TextRecognizer *const recognizer = job.recognizesText ? m_recognition.recognizer.get() : nullptr;
    const auto outcome = m_pdf.read(file, recognizer, reportProgress, std::chrono::minutes(9));
    if (const auto *const extraction = std::get_if<Extraction>(&outcome))
        return toAnswer(*extraction);
    if (job.recognizesText)
        return ReaderNotInstalled {};
    return RecognitionNeeded {};
}

WorkerAnswer FileReaders::previewPDF(const WorkerJob &job, const FileDescriptor &file) const
{
    if (!m_pdf.preview)
        return ReaderNotInstalled {};
    const std::optional<PicturePreview> page = m_pdf.preview(file, job.longestSide);
    if (!page)
        return NoTextFound {};
    return *page;
}

/// What to say to a picture for which the further decoder is missing.
static WorkerAnswer withoutFurtherDecoder(const WorkerJob &job)
{
    if (job.usesFurtherDecoder)
        return ReaderNotInstalled {};
    return FurtherDecoderNeeded {};
}

WorkerAnswer FileReaders::readPicture(const WorkerJob &job, const FileDescriptor &file) const
{
    if (!m_pictures.read)
        return ReaderNotInstalled {};
    const auto outcome = m_pictures.read(file, job.extension, m_furtherDecoder.decoder.get());
    const auto *const extraction = std::get_if<Extraction>(&outcome);
    return extraction ? toAnswer(*extraction) : withoutFurtherDecoder(job);
}

WorkerAnswer FileReaders::previewPicture(const WorkerJob &job, const FileDescriptor &file) const
{
    if (!m_pictures.preview)
        return ReaderNotInstalled {};
    const auto outcome = m_pictures.preview(file, job.extension, job.longestSide, m_furtherDecoder.decoder.get());
    return std::visit(Overloaded {
                          [](const PicturePreview &picture) -> WorkerAnswer { return picture; },
                          [](NoTextFound) -> WorkerAnswer { return NoTextFound {}; },
                          [&](NeedsFurtherDecoder) { return withoutFurtherDecoder(job); },
                      },
        outcome);
}

QJsonObject FileReaders::findings() const
{
    const auto allOf = [](const auto &names) {
        QStringList list;
        for (const std::string_view name : names)
            list.append(QLatin1StringView(name));
        return list;
    };
    constexpr std::array<std::string_view, 3> languages { "eng", "nld", "spa" };
    const QStringList missingLanguages = m_recognition.recognizer ? m_recognition.missingLanguages : allOf(languages);
    QStringList missingFormats = m_pictures.read ? m_pictures.missingFormats : allOf(imageExtensions);
    if (m_pictures.read)
        missingFormats += m_furtherDecoder.decoder ? m_furtherDecoder.missingFormats : allOf(furtherExtensions);
    QStringList missingParts;
    const auto note = [&missingParts](bool isThere, const QString &name) {
        if (!isThere)
            missingParts.append(name);
    };
    note(m_pdf.read, u"varlo-pdf"_s);
    note(m_recognition.recognizer != nullptr, u"varlo-recognition"_s);
    note(m_pictures.read, u"varlo-pictures"_s);
    note(m_furtherDecoder.decoder != nullptr, u"varlo-further-decoder"_s);
    return {
        { u"missingParts"_s, QJsonArray::fromStringList(missingParts) },
        { u"missingLanguages"_s, QJsonArray::fromStringList(missingLanguages) },
        { u"missingFormats"_s, QJsonArray::fromStringList(missingFormats) },
    };
}

} // namespace Varlo
