#include "platform/InterruptWatcher.h"

#include <sys/socket.h>
#include <unistd.h>

#include <csignal>

namespace {

int signalPipe[2] = {-1, -1};

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
}

}  // namespace

InterruptWatcher::InterruptWatcher(QObject* parent) : InterruptWatcher({SIGINT, SIGTERM}, parent) {}

InterruptWatcher::InterruptWatcher(QList<int> signalNumbers, QObject* parent)
    : QObject(parent), signalNumbers_(std::move(signalNumbers)) {
    if (signalPipe[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const ssize_t read = ::read(signalPipe[0], &byte, 1);
        emit interrupted();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers_) {
        sigaction(number, &action, nullptr);
    }
}

InterruptWatcher::~InterruptWatcher() {
    for (const int number : signalNumbers_) {
        signal(number, SIG_DFL);
    }
}
