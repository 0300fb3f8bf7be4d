// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/openRegularFile.h"

#include <fcntl.h>
#include <QCoreApplication>
#include <sys/stat.h>

namespace Varlo {

Result<FileDescriptor, OpenError> openRegularFile(const std::filesystem::path &path)
{
    // Looked at before it is opened, since opening alone can act on a device (a tape rewinds, a modem is dialled).
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return tl::unexpected<OpenError>(SystemError::latest());
    if (!S_ISREG(status.st_mode))
        return tl::unexpected<OpenError>(NotARegularFile {});

    // Another file may have taken the name meanwhile: O_NONBLOCK keeps even a FIFO from blocking, and what was really
    // opened is looked at again.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0)
        return tl::unexpected<OpenError>(SystemError::latest());
    if (!S_ISREG(status.st_mode))
        return tl::unexpected<OpenError>(NotARegularFile {});
    return file;
}

Message description(const OpenError &error)
{
    return std::visit(Overloaded { [](NotARegularFile) {
                                      //: Error for a folder, pipe, socket or device in place of a document.
                                      return Message(
                                          "OpenError", QT_TRANSLATE_NOOP("OpenError", "This is not a regular file."));
                                  },
                          [](const SystemError &systemError) { return Message(systemError.description()); } },
        error);
}

} // namespace Varlo
