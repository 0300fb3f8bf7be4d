// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/answerMessages.h"
#include "extraction/worker/Starter.h"
#include "platform/linux/retryInterrupted.h"
#include <array>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <QFile>
#include <QJsonObject>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

// A starter like ours, whose workers do what their file says: what a reader might do that a hostile file has taken
// over.

using namespace Varlo;
using namespace Qt::StringLiterals;

static WorkerAnswer text(const QString &text) { return FileContent { TextContent { text } }; }

static QString contentOf(const FileDescriptor &file)
{
    std::array<char, 1000> bytes {};
    const ssize_t size = ::pread(file.get(), bytes.data(), bytes.size(), 0);
    return QString::fromUtf8(bytes.data(), size);
}

static bool isSocket(int descriptor)
{
    struct stat status { };
    return ::fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode);
}

/// Its answer socket, which nobody has given it.
static FileDescriptor answerSocket()
{
    for (int descriptor = 3; descriptor < 200; ++descriptor) {
        if (isSocket(descriptor))
            return FileDescriptor(descriptor);
    }
    return {};
}

static void say(const FileDescriptor &socket, const void *bytes, std::size_t size)
{
    retryInterrupted([&] { return ::write(socket.get(), bytes, size); });
}

static AnswerHeader pictureHeader(quint32 bytes)
{
    AnswerHeader header;
    header.kind = AnswerKind::Picture;
    header.bytes = bytes;
    return header;
}

static void sleepMs(int milliseconds) { ::usleep(static_cast<useconds_t>(milliseconds) * 1000); }

namespace {

int filesSeen = 0; // by this process: more than one would have come from another file

struct Misbehaviour final : JobPerformer {
    using Act = WorkerAnswer (*)(const ReportProgress &reportProgress);
    std::map<QString, Act> acts;

    Misbehaviour();
    std::string_view libraries(const WorkerJob &job) const override { return job.extension == "pdf" ? "pdf" : ""; }
    void prepare(const WorkerJob &) override { }
    bool needsThreads(const WorkerJob &) const override { return false; }
    WorkerAnswer perform(const WorkerJob &job, const FileDescriptor &file, const ReportProgress &progress) override
    {
        if (job.kind == WorkerJob::Kind::Inspect)
            return ReadersFound { { { u"languages"_s, u"eng"_s } } };
        const QString content = contentOf(file);
        if (content == u"scan")
            return job.recognizesText ? text(u"recognized on the second call"_s) : WorkerAnswer(RecognitionNeeded {});
        if (content == u"work until told"_s) {
            while (contentOf(file) == content)
                sleepMs(10);
            return text(u"the file says now to end"_s);
        }
        const auto act = acts.find(content);
        return act == acts.end() ? text(content) : act->second(progress);
    }
};

} // namespace

Misbehaviour::Misbehaviour()
{
    acts[u"hang"_s] = [](const ReportProgress &) -> WorkerAnswer {
        for (;;)
            sleepMs(1000);
    };
    acts[u"hang while it reports progress"_s] = [](const ReportProgress &reportProgress) -> WorkerAnswer {
        for (;; sleepMs(20))
            reportProgress();
    };
    acts[u"exit"_s] = [](const ReportProgress &) -> WorkerAnswer { ::_exit(0); };
    acts[u"abort"_s] = [](const ReportProgress &) -> WorkerAnswer { std::abort(); };
    acts[u"throw"_s] = [](const ReportProgress &) -> WorkerAnswer { throw std::bad_alloc(); };
    acts[u"say nonsense"_s] = [](const ReportProgress &) -> WorkerAnswer {
        say(answerSocket(), "nonsense", 8);
        return NoTextFound {};
    };
    acts[u"hang up and go on"_s] = [](const ReportProgress &) -> WorkerAnswer {
        ::close(answerSocket().release());
        for (;;)
            sleepMs(1000);
    };
    acts[u"answer a GiB"_s] = [](const ReportProgress &) -> WorkerAnswer {
        const FileDescriptor socket = answerSocket();
        const AnswerHeader header = pictureHeader(1 << 30);
        say(socket, &header, sizeof header);
        const std::vector<char> chunk(mostChunkBytes);
        for (int count = 0; count < (1 << 30) / mostChunkBytes; ++count)
            say(socket, chunk.data(), chunk.size());
        return NoTextFound {};
    };
    acts[u"report progress without end"_s] = [](const ReportProgress &) -> WorkerAnswer {
        const FileDescriptor socket = answerSocket();
        const AnswerProgress progress;
        for (;;)
            say(socket, &progress, sizeof progress);
    };
    acts[u"answer twice"_s] = [](const ReportProgress &) -> WorkerAnswer {
        const FileDescriptor socket = answerSocket();
        AnswerHeader header;
        say(socket, &header, sizeof header);
        say(socket, &header, sizeof header);
        ::_exit(0);
    };
    acts[u"answer and go on"_s] = [](const ReportProgress &) -> WorkerAnswer {
        const FileDescriptor socket = answerSocket();
        const AnswerHeader header;
        say(socket, &header, sizeof header);
        for (;;)
            sleepMs(1000);
    };
    acts[u"take all memory"_s] = [](const ReportProgress &) -> WorkerAnswer {
        std::vector<std::vector<char>> all;
        for (;;)
            all.emplace_back(1 << 20, 'x');
    };
    acts[u"fork for ever"_s] = [](const ReportProgress &) -> WorkerAnswer {
        for (int count = 0; count < 1000; ++count) {
            if (::fork() == 0)
                sleepMs(60'000);
        }
        return NoTextFound {};
    };
    acts[u"run a program"_s] = [](const ReportProgress &) -> WorkerAnswer {
        ::execl("/usr/bin/sleep", "sleep", "60", nullptr);
        return text(u"nobody stopped the program"_s);
    };
    acts[u"open a socket"_s] = [](const ReportProgress &) -> WorkerAnswer {
        return ::socket(AF_INET, SOCK_STREAM, 0) < 0 ? text(u"no socket was to be had"_s)
                                                     : text(u"there was a socket indeed"_s);
    };
    acts[u"count files"_s]
        = [](const ReportProgress &) { return text(u"%1 files were seen before this one"_s.arg(filesSeen++)); };
    acts[u"list descriptors"_s] = [](const ReportProgress &) {
        QString list = u"open descriptors:"_s;
        for (int descriptor = 0; descriptor < 1024; ++descriptor) {
            if (::fcntl(descriptor, F_GETFD) >= 0)
                list += isSocket(descriptor) ? u" socket"_s : u" file"_s;
        }
        return text(list);
    };
    acts[u"list the environment"_s] = [](const ReportProgress &) {
        QStringList names;
        for (char *const *variable = environ; *variable; ++variable)
            names.append(QString::fromUtf8(*variable).section(u'=', 0, 0));
        names.sort();
        return text(names.join(u' '));
    };
    acts[u"work on many pages"_s] = [](const ReportProgress &reportProgress) {
        for (int page = 0; page < 30; ++page) {
            sleepMs(100);
            reportProgress();
        }
        return text(u"thirty pages were read"_s);
    };
}

int main()
{
    Misbehaviour misbehaviour;
    const Lockdown lockdown;
    Starter(FileDescriptor(controlDescriptor), misbehaviour, lockdown).serve();
    ::_exit(0);
}
