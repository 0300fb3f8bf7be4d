// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FolderEvents.h"

#include "platform/linux/retryInterrupted.h"
#include <array>
#include <cstring>
#include <QSocketNotifier>
#include <sys/inotify.h>

namespace Varlo {

Result<FolderEvents *, SystemError> FolderEvents::open(const std::filesystem::path &folder, QObject *parent)
{
    // A file that was deleted may be written to for hours yet: IN_EXCL_UNLINK keeps quiet about it.
    constexpr std::uint32_t events = IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE | IN_MODIFY | IN_DELETE | IN_MOVED_FROM
        | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
    FileDescriptor queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (!queue.isOpen() || ::inotify_add_watch(queue.get(), folder.c_str(), events) < 0)
        return tl::unexpected(SystemError::latest());
    return new FolderEvents(std::move(queue), parent);
}

FolderEvents::FolderEvents(FileDescriptor queue, QObject *parent)
    : QObject(parent)
    , m_queue(std::move(queue))
    , m_notifier(new QSocketNotifier(m_queue.get(), QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &FolderEvents::pending);
}

FolderEvents::~FolderEvents() = default;

FolderEvents::Slice FolderEvents::read()
{
    std::array<char, 64 * 1024> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): the kernel fills it
    const ssize_t size = retryInterrupted([&] { return ::read(m_queue.get(), buffer.data(), buffer.size()); });
    Slice slice;
    for (ssize_t offset = 0; offset < size;) {
        inotify_event event {};
        std::memcpy(&event, buffer.data() + offset, sizeof event);
        const char *name = buffer.data() + offset + sizeof event; // filled up with NUL
        offset += static_cast<ssize_t>(sizeof event + event.len);

        slice.isEmpty = false;
        if (event.mask & (IN_CREATE | IN_MOVED_TO))
            slice.arrived.emplace_back(name, ::strnlen(name, event.len));
        if (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED))
            slice.isFolderLost = true;
    }
    return slice;
}

void FolderEvents::close()
{
    m_notifier->setEnabled(false); // before the number goes to somebody else's descriptor
    m_queue = FileDescriptor();
}

} // namespace Varlo
