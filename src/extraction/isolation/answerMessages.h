// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace Varlo {

// What a worker says, over a socket of type SOCK_SEQPACKET of its own: AnswerStarted, any number of AnswerProgress, one
// AnswerHeader, the bytes that it announces in messages of at most mostChunkBytes, and the end of the socket. All in
// the machine's own byte order, each message a type and its fields; chunks are bytes and nothing else.

enum class AnswerType : quint8 { Started = 'S', Progress = 'P', Result = 'R' };
enum class AnswerKind : quint8 {
    NoText,
    Text,
    Picture,
    RecognitionNeeded,
    FurtherDecoderNeeded,
    NotInstalled,
    ReadersFound,
    Pixels ///< PixelsHeader, then the pixels of a PicturePreview
};

struct AnswerStarted {
    AnswerType type = AnswerType::Started;
    quint8 landlockVersion = 0;
    quint8 filtersCalls = 0;
};
struct AnswerProgress {
    AnswerType type = AnswerType::Progress;
};
struct AnswerHeader {
    AnswerType type = AnswerType::Result;
    AnswerKind kind = AnswerKind::NoText;
    quint8 hasMetadata = 0;
    quint8 unused = 0;
    quint32 metadataBytes = 0; // they come first
    quint32 bytes = 0;
};

struct PixelsHeader {
    quint16 width = 0;
    quint16 height = 0;
};

inline constexpr qsizetype mostChunkBytes = qsizetype { 64 } * 1024;
// A JPEG of 1568 by 1568 pixels of noise has 2 MiB at the quality that readers use.
inline constexpr qsizetype mostPictureBytes = qsizetype { 8 } * 1024 * 1024;
inline constexpr qsizetype mostMetadataBytes = qsizetype { 8 } * 1024;
inline constexpr qsizetype mostFindingsBytes = qsizetype { 64 } * 1024;

} // namespace Varlo
