// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeWebP.h"

#include "platform/linux/MappedFile.h"
#include <algorithm>
#include <cmath>
#include <memory>
#include <webp/decode.h>
#include <webp/demux.h>

namespace Varlo {

namespace {
using Demuxer = std::unique_ptr<WebPDemuxer, decltype(&WebPDemuxDelete)>;
using Decoder = std::unique_ptr<WebPIDecoder, decltype(&WebPIDelete)>;

/// The first picture of the file, and where on the canvas it lies.
struct Frame {
    explicit Frame(const WebPDemuxer *demuxer)
        : isThere(WebPDemuxGetFrame(demuxer, 1, &iterator) != 0)
    {
    }
    ~Frame() { WebPDemuxReleaseIterator(&iterator); }
    Frame(const Frame &) = delete;
    Frame &operator=(const Frame &) = delete;

    [[nodiscard]] bool liesOn(QSize canvas) const
    {
        return isThere && iterator.x_offset + iterator.width <= canvas.width()
            && iterator.y_offset + iterator.height <= canvas.height();
    }
    [[nodiscard]] bool fills(QSize canvas) const
    {
        return iterator.width == canvas.width() && iterator.height == canvas.height();
    }

    WebPIterator iterator {};
    bool isThere = false;
};
} // namespace

static QSize canvasSize(const WebPDemuxer *demuxer)
{
    // At most 2^24 each.
    return { static_cast<int>(WebPDemuxGetI(demuxer, WEBP_FF_CANVAS_WIDTH)),
        static_cast<int>(WebPDemuxGetI(demuxer, WEBP_FF_CANVAS_HEIGHT)) };
}

static QByteArray profileOf(const WebPDemuxer *demuxer)
{
    WebPChunkIterator chunk {};
    QByteArray profile;
    if (WebPDemuxGetChunk(demuxer, "ICCP", 1, &chunk) != 0)
        profile
            = QByteArray(reinterpret_cast<const char *>(chunk.chunk.bytes), static_cast<qsizetype>(chunk.chunk.size));
    WebPDemuxReleaseChunkIterator(&chunk);
    return profile;
}

static QSize shrunk(QSize size, int longestSide)
{
    const double scale = std::min(1.0, double(longestSide) / std::max(size.width(), size.height()));
    const auto side = [scale](int length) { return std::max(1, int(std::lround(length * scale))); };
    return { side(size.width()), side(size.height()) };
}

/// How many rows of `output`, from the top, have been decoded.
static int decode(const WebPData &bitstream, WebPDecoderConfig &config)
{
    // The decoder for files that arrive in pieces, as it alone tells how far it has come.
    const Decoder decoder(WebPIDecode(nullptr, 0, &config), WebPIDelete);
    if (!decoder)
        return 0;
    WebPIUpdate(decoder.get(), bitstream.bytes, bitstream.size);
    int lastRow = 0;
    return WebPIDecGetRGB(decoder.get(), &lastRow, nullptr, nullptr, nullptr) ? lastRow : 0;
}

bool decodeWebP(const FileDescriptor &file, int longestSide, PictureRows &rows)
{
    const MappedFile mapped(file);
    const WebPData bytes { reinterpret_cast<const uint8_t *>(mapped.bytes().data()),
        static_cast<size_t>(mapped.bytes().size()) };
    WebPDemuxState state {};
    const Demuxer demuxer(WebPDemuxPartial(&bytes, &state), WebPDemuxDelete);
    if (!demuxer)
        return false;
    const QSize canvas = canvasSize(demuxer.get());
    const Frame frame(demuxer.get());
    if (isTooLarge(canvas.width(), canvas.height()) || !frame.liesOn(canvas))
        return false;

    const bool isWhole = frame.fills(canvas);
    PictureHeader header { isWhole ? shrunk(canvas, longestSide) : canvas };
    header.layout = isWhole && frame.iterator.has_alpha == 0 ? PixelLayout::RGB : PixelLayout::RGBA;
    header.colourProfile = profileOf(demuxer.get());
    const size_t rowSize = size_t(header.size.width()) * samplesPerPixel(header.layout);
    const size_t size = rowSize * header.size.height();
    const std::unique_ptr<uchar[]> samples(new (std::nothrow) uchar[size]()); // around a smaller frame it is clear
    WebPDecoderConfig config;
    if (!samples || WebPInitDecoderConfig(&config) == 0 || !rows.begin(header))
        return false;
    const size_t offset = frame.iterator.y_offset * rowSize + size_t(frame.iterator.x_offset) * 4;
    config.output.colorspace = header.layout == PixelLayout::RGB ? MODE_RGB : MODE_RGBA;
    config.output.is_external_memory = 1;
    config.output.u.RGBA = { samples.get() + offset, static_cast<int>(rowSize), size - offset };
    config.options.use_scaling = header.size != canvas;
    config.options.scaled_width = header.size.width();
    config.options.scaled_height = header.size.height();

    const int decodedRows = decode(frame.iterator.fragment, config);
    const bool isComplete = decodedRows == (isWhole ? header.size.height() : frame.iterator.height);
    const int shownRows
        = isComplete ? header.size.height() : decodedRows + (decodedRows > 0 ? frame.iterator.y_offset : 0);
    for (int row = 0; row < shownRows; ++row)
        rows.addRow(samples.get() + row * rowSize);
    return true;
}

} // namespace Varlo
