// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A stand-in for the model, to try Varlo with neither a key nor a network:
//     varlo-fake-server --port 8080 &
//     VARLO_API_KEY=any VARLO_ENDPOINT=http://127.0.0.1:8080 varlo suggest invoice.pdf
#include "fakes/FakeMessagesServer.h"

#include <csignal>
#include <cstdio>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <sys/signalfd.h>

using namespace Varlo;
using namespace Qt::StringLiterals;

/// Ctrl-C and `kill` end the event loop, so that the counts are still printed.
static void quitWhenTold(QCoreApplication &application)
{
    sigset_t endings {};
    sigemptyset(&endings);
    sigaddset(&endings, SIGINT);
    sigaddset(&endings, SIGTERM);
    sigprocmask(SIG_BLOCK, &endings, nullptr);
    auto *notifier = new QSocketNotifier(::signalfd(-1, &endings, SFD_CLOEXEC), QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Answers requests of the Messages interface on loopback. Prints its address first."_s);
    parser.addHelpOption();
    const QCommandLineOption port(u"port"_s, u"Listen on this port rather than on a free one."_s, u"port"_s, u"0"_s);
    const QCommandLineOption delay(u"delay"_s, u"Wait before each answer."_s, u"milliseconds"_s, u"0"_s);
    const QCommandLineOption reply(
        u"reply"_s, u"Say this rather than a name made of the file's first words."_s, u"text"_s);
    const QCommandLineOption status(u"status"_s, u"Refuse every request with this HTTP status."_s, u"number"_s);
    parser.addOptions({ port, delay, reply, status });
    parser.process(application);

    FakeMessagesServer server([&](const FakeMessagesServer::Request &request) {
        FakeMessagesServer::Reply answer = FakeMessagesServer::plausibleName(request);
        if (parser.isSet(status))
            answer = FakeMessagesServer::answer(parser.value(status).toInt(), "{}");
        else if (parser.isSet(reply))
            answer = FakeMessagesServer::text(parser.value(reply));
        answer.delay = std::chrono::milliseconds(parser.value(delay).toInt());
        return answer;
    });
    if (!server.listen(parser.value(port).toUShort())) {
        std::fprintf(stderr, "The port is taken.\n");
        return 1;
    }
    std::printf("%s\n", qPrintable(server.address()));
    std::fflush(stdout);
    quitWhenTold(application);
    const int code = QCoreApplication::exec();
    std::printf(
        "%lld requests, %d connections\n", static_cast<long long>(server.requests().size()), server.connectionCount());
    return code;
}
