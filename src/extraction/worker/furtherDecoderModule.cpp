// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// GLib's headers use "signals" as a name.
#define QT_NO_KEYWORDS
#include "extraction/vips/VipsPictureDecoder.h"

#include "extraction/worker/ReaderModules.h"
#include <vips/vips.h>

using namespace Varlo;
using namespace Qt::StringLiterals;

static bool hasLoader(const char *name) { return vips_type_find("VipsOperation", name) != 0; }

extern "C" Q_DECL_EXPORT void varloFurtherDecoder1(FurtherDecoderModule &module)
{
    module.decoder = std::make_unique<VipsPictureDecoder>();
    if (!hasLoader("tiffload_source"))
        module.missingFormats << u"tiff"_s << u"tif"_s;
    if (!hasLoader("heifload_source"))
        module.missingFormats << u"heic"_s << u"heif"_s << u"heics"_s << u"avif"_s;
}
