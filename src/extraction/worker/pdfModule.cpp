// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/ReaderModules.h"

using namespace Varlo;

extern "C" Q_DECL_EXPORT void varloPDF2(PDFModule &module)
{
    module.read = readPDF;
    module.preview = renderFirstPage;
}
