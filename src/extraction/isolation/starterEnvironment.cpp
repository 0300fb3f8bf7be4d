// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/starterEnvironment.h"

#include <string_view>
#include <unistd.h>

namespace Varlo {

static bool isPassedOn(std::string_view variable)
{
    return variable.starts_with("LANG=") || variable.starts_with("LC_") || variable.starts_with("TZ=");
}

// Each worker's memory comes fresh from the kernel: fewer and larger pieces of it, and none given back.
static constexpr char memoryTunables[] = "GLIBC_TUNABLES=glibc.malloc.hugetlb=1:glibc.malloc.mmap_threshold=1073741824"
                                         ":glibc.malloc.trim_threshold=1073741824";

std::vector<std::string> starterEnvironment()
{
    std::vector<std::string> variables {
        "MALLOC_ARENA_MAX=1", // an arena for each thread takes address space, which is limited
        "OMP_THREAD_LIMIT=1", // Tesseract's threads take five times as long as one
        "VIPS_NOVECTOR=1", // libvips compiles code into files, which may not be written
        "VIPS_BLOCK_UNTRUSTED=1", // only decoders that are meant for strangers' files
        memoryTunables,
        "LD_BIND_NOW=1", // once in the starter instead of in each worker
        "QT_NO_GLIB=1", // its main loop is of no use to us
    };
    for (char *const *variable = environ; *variable; ++variable) {
        if (isPassedOn(*variable))
            variables.emplace_back(*variable);
    }
    return variables;
}

} // namespace Varlo
