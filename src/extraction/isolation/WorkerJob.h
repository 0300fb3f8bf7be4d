// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace Varlo {

/// What one worker is started for.
struct WorkerJob {
    enum class Kind {
        Extract, ///< the text or picture for the model
        Preview, ///< a picture of the first page or of the picture
        Inspect, ///< what can be read on this machine; comes without a file
    };

    Kind kind = Kind::Extract;
    std::string extension; ///< in lower case, without "."; at most 7 bytes
    bool recognizesText = false; ///< pages of a PDF without text may be recognized, which takes long
    bool usesFurtherDecoder = false; ///< the picture is of a kind that its extension did not tell
    int longestSide = 0; ///< in pixels, of a preview; at most longestPreviewSide
};

} // namespace Varlo
