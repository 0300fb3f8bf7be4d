// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/extractContent.h"

#include "extraction/openForReading.h"
#include "extraction/supportedExtensions.h"
#include "platform/pathExtension.h"
#include "platform/Result.h"
#include <QCoreApplication>

namespace Varlo {

static WorkerAnswer perform(const WorkerJob &job, const FileDescriptor &file, FileReaders &readers)
{
    readers.prepare(job);
    return readers.perform(job, file, [] {});
}

static Extraction readByKind(const FileDescriptor &file, const std::string &extension, FileReaders &readers)
{
    WorkerJob job;
    job.extension = extension;
    WorkerAnswer answer = perform(job, file, readers);
    job.recognizesText = std::holds_alternative<RecognitionNeeded>(answer);
    job.usesFurtherDecoder = std::holds_alternative<FurtherDecoderNeeded>(answer);
    if (job.recognizesText || job.usesFurtherDecoder)
        answer = perform(job, file, readers);
    return std::visit(
        Overloaded {
            [](const FileContent &content) -> Extraction { return content; },
            [](const PicturePreview &) -> Extraction { return NoTextFound {}; },
            [](NoTextFound) -> Extraction { return NoTextFound {}; },
            [](RecognitionNeeded) -> Extraction { return NoTextFound {}; },
            [](FurtherDecoderNeeded) -> Extraction { return NoTextFound {}; },
            [](ReaderNotInstalled) -> Extraction {
                return Unreadable { { "Extraction",
                    QT_TRANSLATE_NOOP("Extraction", "The part that reads such files is not installed.") } };
            },
            [](const ReadersFound &) -> Extraction { return NoTextFound {}; },
        },
        answer);
}

Extraction extractContent(const std::filesystem::path &path, const FileFlags &flags, FileReaders &readers)
{
    const auto file = openForReading(path, flags);
    if (!file)
        return file.error();
    const std::string extension = lowerCaseExtension(path);
    if (!supportedExtensions().contains(extension))
        return NotSupportedYet {};
    return readByKind(*file, extension, readers);
}

} // namespace Varlo
