// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/recognition/TesseractRecognizer.h"
#include "extraction/worker/ReaderModules.h"

using namespace Varlo;

extern "C" Q_DECL_EXPORT void varloRecognition1(RecognitionModule &module)
{
    auto recognizer = std::make_unique<TesseractRecognizer>();
    module.missingLanguages = recognizer->missingLanguages();
    module.recognizer = std::move(recognizer);
}
