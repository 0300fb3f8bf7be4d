// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/recognition/TesseractRecognizer.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <leptonica/allheaders.h>
#include <tesseract/baseapi.h>
#include <tesseract/ocrclass.h>

using namespace Qt::StringLiterals;

namespace Varlo {

constexpr float radiansPerDegree = 0.0174533F;
constexpr float leastSkew = 0.1F; // degrees; turning the page costs sharpness
constexpr float leastSkewConfidence = 3; // what Leptonica's own deskewing asks for

constexpr int smallPrint = 9; // pixels; the engine wants letters of ten and more
constexpr int mostPixelsToEnlarge = 8'000'000;

namespace {
struct DestroyPix {
    void operator()(Pix *pix) const { ::pixDestroy(&pix); }
};
using PixPointer = std::unique_ptr<Pix, DestroyPix>;
struct DestroyBoxes {
    void operator()(Boxa *boxes) const { ::boxaDestroy(&boxes); }
};
using BoxesPointer = std::unique_ptr<Boxa, DestroyBoxes>;
} // namespace

/// The first language has the last word on what it is sure of. English knows no accents and is sure without them.
static const QStringList &languages()
{
    static const QStringList names { u"nld"_s, u"spa"_s, u"eng"_s };
    return names;
}

static PixPointer toPix(const PagePicture &page)
{
    PixPointer pix(::pixCreate(page.width, page.height, 8));
    if (!pix)
        return nullptr;
    const size_t pixBytesPerRow = size_t { 4 } * static_cast<size_t>(::pixGetWpl(pix.get()));
    auto *const pixels = reinterpret_cast<std::byte *>(::pixGetData(pix.get()));
    for (size_t row = 0; row < static_cast<size_t>(page.height); ++row) {
        const auto source = page.pixels.subspan(row * static_cast<size_t>(page.bytesPerRow));
        std::memcpy(pixels + row * pixBytesPerRow, source.data(), static_cast<size_t>(page.width));
    }
    ::pixEndianByteSwap(pix.get()); // its rows are 32-bit words with the leftmost pixel on top
    return pix;
}

/// Ink and paper, told apart by the page's own brightness.
static PixPointer toBlackAndWhite(Pix *grey)
{
    Pix *blackAndWhite = nullptr;
    ::pixOtsuAdaptiveThreshold(grey, ::pixGetWidth(grey), ::pixGetHeight(grey), 0, 0, 0.1F, nullptr, &blackAndWhite);
    return PixPointer(blackAndWhite);
}

/// Two degrees of skew leave the engine next to nothing of a page.
static PixPointer straightened(PixPointer grey, Pix *blackAndWhite)
{
    float degrees = 0;
    float confidence = 0;
    ::pixFindSkew(blackAndWhite, &degrees, &confidence);
    if (std::abs(degrees) < leastSkew || confidence < leastSkewConfidence)
        return grey;
    return PixPointer(::pixRotate(grey.get(), degrees * radiansPerDegree, L_ROTATE_AREA_MAP, L_BRING_IN_WHITE, 0, 0));
}

/// The height of a usual letter in pixels; 0 where there is none.
static int letterHeight(Pix *blackAndWhite)
{
    const BoxesPointer shapes(::pixConnCompBB(blackAndWhite, 8));
    // Specks and dots are no letters.
    const BoxesPointer letters(::boxaSelectBySize(shapes.get(), 3, 3, L_SELECT_IF_BOTH, L_SELECT_IF_GTE, nullptr));
    l_int32 height = 0;
    ::boxaGetMedianVals(letters.get(), nullptr, nullptr, nullptr, nullptr, nullptr, &height);
    return height;
}

/// What the engine reads best: upright, and fine print enlarged. Null when memory is short.
static PixPointer prepared(const PagePicture &page)
{
    PixPointer grey = toPix(page);
    const PixPointer blackAndWhite = grey ? toBlackAndWhite(grey.get()) : nullptr;
    if (!blackAndWhite)
        return grey;
    grey = straightened(std::move(grey), blackAndWhite.get());
    const int height = letterHeight(blackAndWhite.get());
    const bool isFinePrint = height > 0 && height <= smallPrint;
    if (grey && isFinePrint && page.width * page.height <= mostPixelsToEnlarge)
        return PixPointer(::pixScaleGray2xLI(grey.get()));
    return grey;
}

TesseractRecognizer::TesseractRecognizer(const std::filesystem::path &dataFolder, std::chrono::milliseconds pageLimit)
    : m_engine(std::make_unique<tesseract::TessBaseAPI>())
    , m_pageLimit(pageLimit)
{
    ::setMsgSeverity(L_SEVERITY_NONE);
    m_engine->SetVariable("debug_file", "/dev/null"); // else it remarks on every empty page
    const QByteArray wanted = languages().join(u'+').toUtf8();
    const char *const folder = dataFolder.empty() ? nullptr : dataFolder.c_str();
    const bool isLoaded = m_engine->Init(folder, wanted.constData(), tesseract::OEM_LSTM_ONLY) == 0;
    // The single block that is assumed by default runs columns into each other.
    m_engine->SetPageSegMode(tesseract::PSM_AUTO);

    std::vector<std::string> loaded;
    if (isLoaded)
        m_engine->GetLoadedLanguagesAsVector(&loaded);
    for (const QString &language : languages()) {
        if (std::find(loaded.begin(), loaded.end(), language.toStdString()) == loaded.end())
            m_missingLanguages.append(language);
    }
}

TesseractRecognizer::~TesseractRecognizer() = default;

QString TesseractRecognizer::recognize(const PagePicture &page)
{
    if (m_missingLanguages.size() == languages().size())
        return {};
    const PixPointer pix = prepared(page);
    if (!pix)
        return {};
    m_engine->SetImage(pix.get());
    m_engine->SetSourceResolution(page.resolution * ::pixGetWidth(pix.get()) / page.width);
    tesseract::ETEXT_DESC monitor;
    monitor.set_deadline_msecs(static_cast<int>(m_pageLimit.count()));
    m_engine->Recognize(&monitor);
    const std::unique_ptr<char[]> text(m_engine->GetUTF8Text());
    m_engine->Clear();
    return QString::fromUtf8(text.get()).simplified();
}

} // namespace Varlo
