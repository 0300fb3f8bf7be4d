// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// GLib's headers use "signals" as a name.
#define QT_NO_KEYWORDS
#include "extraction/vips/VipsPictureDecoder.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <gmodule.h>
#include <malloc.h>
#include <memory>
#include <optional>
#include <string_view>
#include <unistd.h>
#include <vips/vips.h>

#include <vips/vector.h> // does not compile before the other

namespace Varlo {

// Rows that are decoded at a time.
static constexpr int stripHeight = 64;

namespace {
struct Unreference {
    void operator()(void *object) const { g_object_unref(object); }
};
template <typename Type> using Object = std::unique_ptr<Type, Unreference>;
using Image = Object<VipsImage>;

enum class Format { TIFF, HEIF };
} // namespace

/// The library describes each of its operations to its type system at the first use, which every worker would do again.
static void meetOperations()
{
    static constexpr std::string_view noPicture = "no picture";
    const Object<VipsSource> source(vips_source_new_from_memory(noPicture.data(), noPicture.size()));
    vips_foreign_find_load_source(source.get());
    for (const char *const name : { "tiffload_source", "heifload_source", "colourspace", "cast", "flatten",
             "extract_band", "icc_transform", "copy", "sRGB2scRGB", "scRGB2sRGB", "autorot", "linear" }) {
        if (VipsOperation *const operation = vips_operation_new(name))
            g_object_unref(operation);
    }
    vips_error_clear();
}

/// As a rule the library loads all modules in the folder beside it. All but this one read what nobody gives us, and
/// bring eighty libraries along, which make every fork slower. Where it is built in instead, there is no such file.
static void loadHEIFModule()
{
    Dl_info library;
    if (::dladdr(reinterpret_cast<void *>(&vips_init), &library) == 0)
        return;
    const std::string folder
        = "vips-modules-" + std::to_string(vips_version(0)) + '.' + std::to_string(vips_version(1));
    const auto module = std::filesystem::path(library.dli_fname).parent_path() / folder / "vips-heif.so";
    g_module_open(module.c_str(), G_MODULE_BIND_LAZY); // for good, as its types stay known
}

static bool prepareVips()
{
    // Where it looks for modules.
    g_setenv("VIPSHOME", "/nonexistent", TRUE);
    g_log_set_writer_func(
        [](GLogLevelFlags, const GLogField *, gsize, gpointer) { return G_LOG_WRITER_HANDLED; }, nullptr, nullptr);
    if (vips_init("varlo") != 0)
        return false;
    loadHEIFModule();
    vips_block_untrusted_set(TRUE); // also what the module has just brought
    vips_vector_set_enabled(FALSE); // its compiler leaves files in the user's folders
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    // glibc would keep the frames of a decoder that are freed for the next of their size, which never comes. Small ones
    // may stay: to get their pages from the kernel takes longer than to fill them.
    ::mallopt(M_MMAP_THRESHOLD, 4 * 1024 * 1024);
    meetOperations();
    return true;
}

VipsPictureDecoder::VipsPictureDecoder()
{
    static const bool isReady = prepareVips();
    m_isReady = isReady;
}

static std::optional<Format> formatOf(VipsSource *source)
{
    const char *const name = vips_foreign_find_load_source(source);
    const std::string_view loader = name ? name : "";
    if (loader == "VipsForeignLoadTiffSource")
        return Format::TIFF;
    if (loader == "VipsForeignLoadHeifSource")
        return Format::HEIF;
    return std::nullopt;
}

/// Only the header is read yet; rows are decoded as they are asked for.
static Image open(VipsSource *source)
{
    // Both formats may hold smaller copies, which need not show the same.
    Image image(vips_image_new_from_source(source, "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr));
    return image && !isTooLarge(image->Xsize, image->Ysize) ? std::move(image) : nullptr;
}

static QByteArray profileOf(VipsImage *image)
{
    const void *bytes = nullptr;
    size_t size = 0;
    if (vips_image_get_typeof(image, VIPS_META_ICC_NAME) == 0
        || vips_image_get_blob(image, VIPS_META_ICC_NAME, &bytes, &size) != 0)
        return {};
    return { static_cast<const char *>(bytes), static_cast<qsizetype>(size) };
}

/// Whether the samples are grey or red, green and blue, which an embedded profile can be applied to later, when there
/// are fewer.
static bool isGreyOrRGB(VipsImage *image)
{
    switch (image->Type) {
    case VIPS_INTERPRETATION_sRGB:
    case VIPS_INTERPRETATION_RGB:
    case VIPS_INTERPRETATION_B_W:
        return image->BandFmt == VIPS_FORMAT_UCHAR;
    case VIPS_INTERPRETATION_RGB16:
    case VIPS_INTERPRETATION_GREY16:
        return image->BandFmt == VIPS_FORMAT_USHORT;
    default:
        return false;
    }
}

/// The first band of several that mean no colours.
static Image asGrey(VipsImage *image)
{
    VipsImage *band = nullptr;
    if (vips_extract_band(image, &band, 0, nullptr) != 0)
        return nullptr;
    const Image bandOwner(band);
    VipsImage *grey = nullptr;
    const bool isDeep = image->BandFmt == VIPS_FORMAT_USHORT;
    const auto meaning = isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    return vips_copy(band, &grey, "interpretation", meaning, nullptr) == 0 ? Image(grey) : nullptr;
}

/// Three samples of eight bits, or four with alpha.
static Image inEightBits(Image image)
{
    if (image->Type == VIPS_INTERPRETATION_MULTIBAND)
        image = asGrey(image.get());
    VipsImage *next = nullptr;
    if (!image)
        return nullptr;
    const bool isByProfile = !isGreyOrRGB(image.get()) && vips_image_get_typeof(image.get(), VIPS_META_ICC_NAME) != 0
        && vips_icc_transform(image.get(), &next, "srgb", "embedded", TRUE, nullptr) == 0;
    if (!isByProfile && vips_colourspace(image.get(), &next, VIPS_INTERPRETATION_sRGB, nullptr) != 0)
        return nullptr;
    image.reset(next);
    if (image->BandFmt != VIPS_FORMAT_UCHAR) {
        if (vips_cast_uchar(image.get(), &next, nullptr) != 0)
            return nullptr;
        image.reset(next);
    }
    if (image->Bands > 4) {
        if (vips_extract_band(image.get(), &next, 0, "n", 4, nullptr) != 0)
            return nullptr;
        image.reset(next);
    }
    return image->Bands >= 3 ? std::move(image) : nullptr;
}

static void addRows(VipsImage *image, PictureRows &rows)
{
    const Object<VipsRegion> region(vips_region_new(image));
    for (int top = 0; top < image->Ysize; top += stripHeight) {
        const VipsRect strip { 0, top, image->Xsize, std::min(stripHeight, image->Ysize - top) };
        if (vips_region_prepare(region.get(), &strip) != 0)
            return; // damaged: the rows so far stand
        for (int y = top; y < top + strip.height; ++y)
            rows.addRow(VIPS_REGION_ADDR(region.get(), 0, y));
    }
}

bool VipsPictureDecoder::decode(const FileDescriptor &file, PictureRows &rows)
{
    if (!m_isReady || ::lseek(file.get(), 0, SEEK_SET) != 0)
        return false;
    const Object<VipsSource> source(vips_source_new_from_descriptor(file.get()));
    const auto format = source ? formatOf(source.get()) : std::nullopt;
    if (!format)
        return false;
    Image image = open(source.get());
    if (!image)
        return false;
    PictureHeader header { { image->Xsize, image->Ysize } };
    if (isGreyOrRGB(image.get()))
        header.colourProfile = profileOf(image.get());
    if (*format == Format::TIFF && image->Xres > 0 && image->Yres > 0)
        header.pixelAspect = image->Yres / image->Xres; // pixels a length, so the other way round
    image = inEightBits(std::move(image));
    if (!image)
        return false;
    header.layout = image->Bands == 4 ? PixelLayout::RGBA : PixelLayout::RGB;
    if (!rows.begin(header))
        return false;
    addRows(image.get(), rows);
    return true;
}

} // namespace Varlo
