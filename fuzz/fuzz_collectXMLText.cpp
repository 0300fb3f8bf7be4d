// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/collectXMLText.h"

using namespace Varlo;

// The first byte says how often the rest is repeated, as the limits lie far beyond what a fuzzer writes. Nothing in a
// part makes more text than it takes bytes itself.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    const QByteArray part = data[0] < 0xF0 ? rest : "<r>" + rest.repeated(100 * (data[0] - 0xEF));
    if (collectXMLText(part).size() > part.size())
        qFatal("the text is longer than the part");
    return 0;
}
