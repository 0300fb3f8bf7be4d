// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pdf/TextRecognizer.h"
#include <chrono>
#include <filesystem>
#include <memory>
#include <QStringList>

namespace tesseract {
class TessBaseAPI;
}

namespace Varlo {

/// Tesseract for English, Dutch and Spanish, as far as their language packs are installed. The engine is loaded once,
/// half a second of work; a process forked from here has it too. Set OMP_THREAD_LIMIT=1 before the process starts:
/// with threads of its own a page takes five times as long.
class TesseractRecognizer final : public TextRecognizer {
public:
    /// `dataFolder` holds the language packs (NAME.traineddata); empty: where the system has them. On a page that
    /// takes longer than `pageLimit`, what was recognized so far is all.
    explicit TesseractRecognizer(
        const std::filesystem::path &dataFolder = {}, std::chrono::milliseconds pageLimit = std::chrono::seconds(50));
    ~TesseractRecognizer() override;

    [[nodiscard]] QString recognize(const PagePicture &page) override;
    /// The names of the language packs that could not be loaded, as Tesseract calls them ("nld"). With none of them
    /// nothing is ever recognized.
    [[nodiscard]] QStringList missingLanguages() const { return m_missingLanguages; }

private:
    std::unique_ptr<tesseract::TessBaseAPI> m_engine;
    QStringList m_missingLanguages;
    std::chrono::milliseconds m_pageLimit;
};

} // namespace Varlo
