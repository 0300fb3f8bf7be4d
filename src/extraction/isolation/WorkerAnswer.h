// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/PicturePreview.h"
#include <QJsonObject>

namespace Varlo {

/// Some page has no text of its own: the same file is to be asked for again with WorkerJob::recognizesText.
struct RecognitionNeeded {
    bool operator==(const RecognitionNeeded &) const = default;
};
/// The picture is of another kind than its name says: to be asked for again with WorkerJob::usesFurtherDecoder.
struct FurtherDecoderNeeded {
    bool operator==(const FurtherDecoderNeeded &) const = default;
};
/// The part of Varlo that reads such files, or a library that it needs, is not installed.
struct ReaderNotInstalled {
    bool operator==(const ReaderNotInstalled &) const = default;
};
/// What can be read on this machine.
struct ReadersFound {
    QJsonObject findings;

    bool operator==(const ReadersFound &) const = default;
};

/// What a worker says when it is done.
using WorkerAnswer = std::variant<FileContent, PicturePreview, NoTextFound, RecognitionNeeded, FurtherDecoderNeeded,
    ReaderNotInstalled, ReadersFound>;

} // namespace Varlo
