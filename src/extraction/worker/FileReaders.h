// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/worker/JobPerformer.h"
#include "extraction/worker/ReaderModules.h"
#include <QStringList>

namespace Varlo {

/// Every reader, by extension, and what else can be done with such a file. Modules are loaded with the first file that
/// needs them. For one thread.
class FileReaders final : public JobPerformer {
public:
    [[nodiscard]] std::string_view libraries(const WorkerJob &job) const override;
    void prepare(const WorkerJob &job) override;
    [[nodiscard]] bool needsThreads(const WorkerJob &job) const override;
    [[nodiscard]] WorkerAnswer perform(
        const WorkerJob &job, const FileDescriptor &file, const ReportProgress &reportProgress) override;

private:
    struct KindOfFile;
    static const KindOfFile *kindOf(const std::string &extension);

    void preparePDF(const WorkerJob &job);
    void preparePicture(const WorkerJob &job);
    WorkerAnswer readPDF(const WorkerJob &job, const FileDescriptor &file, const ReportProgress &reportProgress) const;
    WorkerAnswer readPicture(const WorkerJob &job, const FileDescriptor &file) const;
    WorkerAnswer previewPDF(const WorkerJob &job, const FileDescriptor &file) const;
    WorkerAnswer previewPicture(const WorkerJob &job, const FileDescriptor &file) const;
    [[nodiscard]] QJsonObject findings() const;

    // What has no entry yet has not been loaded, or is not installed.
    PDFModule m_pdf;
    RecognitionModule m_recognition;
    PicturesModule m_pictures;
    FurtherDecoderModule m_furtherDecoder;
};

} // namespace Varlo
