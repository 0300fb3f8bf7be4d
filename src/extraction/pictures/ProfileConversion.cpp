// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/ProfileConversion.h"

#include <array>
#include <cstdlib>
#include <lcms2.h>

namespace Varlo {

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

/// LittleCMS's word for the samples, as the profile sees them; absent where the two do not fit.
static std::optional<cmsUInt32Number> sampleFormat(cmsColorSpaceSignature space, PixelLayout layout)
{
    const bool isCMYK = layout == PixelLayout::InvertedCMYK;
    if (isCMYK)
        return space == cmsSigCmykData ? std::optional(TYPE_CMYK_8_REV) : std::nullopt;
    const int extra = samplesPerPixel(layout) - 3;
    if (space == cmsSigRgbData)
        return COLORSPACE_SH(PT_RGB) | CHANNELS_SH(3) | BYTES_SH(1) | EXTRA_SH(extra);
    if (space == cmsSigGrayData)
        return COLORSPACE_SH(PT_GRAY) | CHANNELS_SH(1) | BYTES_SH(1) | EXTRA_SH(2 + extra);
    return std::nullopt;
}

/// Whether colours come out as they went in. Most pictures that have a profile have one for sRGB, in many versions.
static bool changesNothing(const ProfileConversion &conversion)
{
    constexpr std::array<uchar, 5> levels { 0, 64, 128, 200, 255 };
    for (const uchar red : levels) {
        for (const uchar green : levels) {
            for (const uchar blue : levels) {
                const std::array<uchar, 3> before { red, green, blue };
                std::array<uchar, 3> after {};
                conversion.convert(before.data(), after.data(), 1);
                for (size_t i = 0; i < 3; ++i) {
                    if (std::abs(before[i] - after[i]) > 2)
                        return false;
                }
            }
        }
    }
    return true;
}

std::optional<ProfileConversion> ProfileConversion::make(const QByteArray &profile, PixelLayout layout)
{
    if (profile.isEmpty())
        return std::nullopt;
    const Profile source(
        cmsOpenProfileFromMem(profile.constData(), static_cast<cmsUInt32Number>(profile.size())), &cmsCloseProfile);
    const auto format = source ? sampleFormat(cmsGetColorSpace(source.get()), layout) : std::nullopt;
    if (!format)
        return std::nullopt;
    const Profile target(cmsCreate_sRGBProfile(), &cmsCloseProfile);
    ProfileConversion conversion;
    conversion.m_transform.reset(
        cmsCreateTransform(source.get(), *format, target.get(), TYPE_RGB_8, INTENT_PERCEPTUAL, 0), [](void *transform) {
            if (transform)
                cmsDeleteTransform(transform);
        });
    if (!conversion.m_transform || (layout == PixelLayout::RGB && changesNothing(conversion)))
        return std::nullopt;
    return conversion;
}

void ProfileConversion::convert(const uchar *from, uchar *to, int pixels) const
{
    cmsDoTransform(m_transform.get(), from, to, static_cast<cmsUInt32Number>(pixels));
}

} // namespace Varlo
