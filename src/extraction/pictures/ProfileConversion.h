// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include <memory>
#include <optional>

namespace Varlo {

/// Brings samples that an embedded ICC profile describes to sRGB.
class ProfileConversion {
public:
    /// Absent where nothing is to be done: the profile is damaged, is for other samples than these, or means sRGB
    /// itself. RGB and RGBA also take a grey profile, whose grey then stands in all three samples.
    [[nodiscard]] static std::optional<ProfileConversion> make(const QByteArray &profile, PixelLayout layout);
    /// `to` gets three samples a pixel; for a layout of three it may be `from`. Alpha is ignored.
    void convert(const uchar *from, uchar *to, int pixels) const;

private:
    ProfileConversion() = default;

    std::shared_ptr<void> m_transform;
};

} // namespace Varlo
