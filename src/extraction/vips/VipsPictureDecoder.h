// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureDecoder.h"

namespace Varlo {

/// Decodes TIFF, HEIF and AVIF with libvips, on the calling thread, with none of its caches, none of its loaders
/// that are not for strangers' files, and no machine code made at run time. Making the first one gets libvips ready,
/// has freed memory given back at once, and silences GLib's log, whose writer asks the system what a locked-down
/// process may not: all for the whole process.
class VipsPictureDecoder final : public PictureDecoder {
public:
    VipsPictureDecoder();
    /// Moves the descriptor's offset.
    [[nodiscard]] bool decode(const FileDescriptor &file, PictureRows &rows) override;

private:
    bool m_isReady;
};

} // namespace Varlo
