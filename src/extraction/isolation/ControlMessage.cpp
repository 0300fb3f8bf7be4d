// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/ControlMessage.h"

#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <sys/socket.h>
#include <type_traits>

namespace Varlo {

namespace {

constexpr quint32 protocolVersion = 1;
constexpr std::size_t mostDescriptors = 2;

// Both sides run on one machine, so it goes over as it lies in memory.
struct WireMessage {
    quint32 version = protocolVersion;
    quint32 id = 0;
    qint32 longestSide = 0;
    quint8 action = 0;
    quint8 kind = 0;
    quint8 recognizesText = 0;
    quint8 usesFurtherDecoder = 0;
    std::array<char, 8> extension {}; // ends with NUL
};
static_assert(std::is_trivially_copyable_v<WireMessage>);

union DescriptorSpace {
    cmsghdr header;
    char bytes[CMSG_SPACE(mostDescriptors * sizeof(int))];
};

} // namespace

static WireMessage toWire(const ControlMessage &message)
{
    WireMessage wire;
    wire.id = message.id;
    wire.longestSide = message.job.longestSide;
    wire.action = static_cast<quint8>(message.action);
    wire.kind = static_cast<quint8>(message.job.kind);
    wire.recognizesText = message.job.recognizesText ? 1 : 0;
    wire.usesFurtherDecoder = message.job.usesFurtherDecoder ? 1 : 0;
    message.job.extension.copy(wire.extension.data(), wire.extension.size() - 1);
    return wire;
}

static ControlMessage fromWire(const WireMessage &wire)
{
    ControlMessage message;
    message.action = static_cast<ControlMessage::Action>(wire.action);
    message.id = wire.id;
    message.job.kind = static_cast<WorkerJob::Kind>(wire.kind);
    message.job.extension = wire.extension.data();
    message.job.recognizesText = wire.recognizesText != 0;
    message.job.usesFurtherDecoder = wire.usesFurtherDecoder != 0;
    message.job.longestSide = wire.longestSide;
    return message;
}

Result<void, SystemError> sendControlMessage(
    const FileDescriptor &socket, const ControlMessage &message, const std::vector<int> &descriptors)
{
    WireMessage wire = toWire(message);
    iovec part { &wire, sizeof wire };
    DescriptorSpace space {};
    msghdr header {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (!descriptors.empty()) {
        const std::size_t size = std::min(descriptors.size(), mostDescriptors) * sizeof(int);
        header.msg_control = &space;
        header.msg_controllen = CMSG_SPACE(size);
        space.header.cmsg_level = SOL_SOCKET;
        space.header.cmsg_type = SCM_RIGHTS;
        space.header.cmsg_len = CMSG_LEN(size);
        std::memcpy(CMSG_DATA(&space.header), descriptors.data(), size);
    }
    const ssize_t sent
        = retryInterrupted([&] { return ::sendmsg(socket.get(), &header, MSG_DONTWAIT | MSG_NOSIGNAL); });
    if (sent < 0)
        return tl::unexpected(SystemError::latest());
    return {};
}

static std::vector<FileDescriptor> takeDescriptors(msghdr &header)
{
    std::vector<FileDescriptor> descriptors;
    for (cmsghdr *part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        for (std::size_t offset = 0; CMSG_LEN(offset + sizeof(int)) <= part->cmsg_len; offset += sizeof(int)) {
            int descriptor = -1;
            std::memcpy(&descriptor, CMSG_DATA(part) + offset, sizeof descriptor);
            descriptors.emplace_back(descriptor);
        }
    }
    return descriptors;
}

std::optional<ReceivedControlMessage> receiveControlMessage(const FileDescriptor &socket)
{
    WireMessage wire;
    iovec part { &wire, sizeof wire };
    DescriptorSpace space {};
    msghdr header {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = &space;
    header.msg_controllen = sizeof space;
    const ssize_t received = retryInterrupted([&] { return ::recvmsg(socket.get(), &header, MSG_CMSG_CLOEXEC); });
    if (received <= 0)
        return {};
    std::vector<FileDescriptor> descriptors = takeDescriptors(header);
    if (received != sizeof wire || wire.version != protocolVersion || (header.msg_flags & MSG_CTRUNC) != 0)
        return {};
    wire.extension.back() = '\0';
    return ReceivedControlMessage { fromWire(wire), std::move(descriptors) };
}

} // namespace Varlo
