// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/decodeReply.h"

using namespace Varlo;

// The first byte says whether the answer is a success or a refusal.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray body(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    const int status = data[0] % 2 == 0 ? 200 : 400 + data[0] / 2;
    const auto text = decodeReply(status, body);
    if (status != 200 && (text || !std::holds_alternative<ApiError>(text.error())))
        qFatal("a refusal was taken for something else");
    if (status == 200 && !text && std::holds_alternative<ApiError>(text.error()))
        qFatal("a success was taken for a refusal");
    return 0;
}
