// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pdf/readPDF.h"
#include "extraction/pdf/renderFirstPage.h"
#include "extraction/pdf/TextRecognizer.h"
#include "extraction/PicturePreview.h"
#include "extraction/pictures/PictureDecoder.h"
#include "extraction/pictures/readImage.h"
#include "platform/FileDescriptor.h"
#include <memory>
#include <QStringList>
#include <string_view>

namespace Varlo {

// The readers that bring large libraries along are modules, loaded with the first file that needs them. Each has one
// entry function, which fills in the structure it is given.

struct PDFModule {
    decltype(&readPDF) read = nullptr;
    decltype(&renderFirstPage) preview = nullptr;
};
using PDFModuleEntry = void (*)(PDFModule &module);
inline constexpr char pdfModuleEntryName[] = "varloPDF2";

struct RecognitionModule {
    std::unique_ptr<TextRecognizer> recognizer;
    QStringList missingLanguages; ///< as Tesseract calls them
};
using RecognitionModuleEntry = void (*)(RecognitionModule &module);
inline constexpr char recognitionModuleEntryName[] = "varloRecognition1";

struct PicturesModule {
    decltype(&readImage) read = nullptr;
    /// NoTextFound where there is no picture. NeedsFurtherDecoder as in readImage().
    std::variant<PicturePreview, NoTextFound, NeedsFurtherDecoder> (*preview)(
        const FileDescriptor &file, std::string_view extension, int longestSide, PictureDecoder *furtherDecoder)
        = nullptr;
    QStringList missingFormats; ///< extensions that no installed library decodes
};
using PicturesModuleEntry = void (*)(PicturesModule &module);
inline constexpr char picturesModuleEntryName[] = "varloPictures2";

/// What the module of pictures leaves to others.
struct FurtherDecoderModule {
    std::unique_ptr<PictureDecoder> decoder;
    QStringList missingFormats;
};
using FurtherDecoderModuleEntry = void (*)(FurtherDecoderModule &module);
inline constexpr char furtherDecoderModuleEntryName[] = "varloFurtherDecoder1";

} // namespace Varlo
