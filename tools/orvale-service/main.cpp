#include <signal.h>

#include <QStringList>
#include <cstdio>
#include <thread>

#include "server/Fixture.h"
#include "server/Options.h"
#include "server/ServiceServer.h"

using namespace orvale_service;

namespace {

// Blocked in every thread, so the one waiting thread receives them and can stop the server
// cleanly instead of a handler interrupting a worker in the middle of a write.
sigset_t stopSignals() {
    sigset_t stopSet;
    sigemptyset(&stopSet);
    sigaddset(&stopSet, SIGINT);
    sigaddset(&stopSet, SIGTERM);
    return stopSet;
}

void stopOnSignal(ServiceServer& server) {
    std::thread([&server] {
        const sigset_t stopSet = stopSignals();
        int received = 0;
        sigwait(&stopSet, &received);
        server.stop();
    }).detach();
}

}  // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    QString message;
    bool help = false;
    const auto options = Options::parse(arguments, &message, &help);
    if (!options) {
        std::fprintf(help ? stdout : stderr, "%s\n", qPrintable(message));
        return help ? 0 : 2;
    }
    const auto fixture = Fixture::load(options->fixturePath, &message);
    if (!fixture) {
        std::fprintf(stderr, "orvale-service: %s\n", qPrintable(message));
        return 1;
    }

    const sigset_t stopSet = stopSignals();
    pthread_sigmask(SIG_BLOCK, &stopSet, nullptr);
    // A client that hangs up while we write must not end the server.
    signal(SIGPIPE, SIG_IGN);

    ServiceServer server(*options, *fixture);
    if (!server.start(&message)) {
        std::fprintf(stderr, "orvale-service: %s\n", qPrintable(message));
        return 1;
    }
    std::printf("listening on 127.0.0.1:%d\n", server.port());
    std::fflush(stdout);
    std::fprintf(stderr, "orvale-service: uploads go to %s\n",
                 qPrintable(server.uploadsDirectory()));
    stopOnSignal(server);
    server.run();
    return 0;
}
