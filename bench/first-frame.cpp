// Starts a window program and measures its start-up: the milliseconds from just before exec to
// its first painted frame, which the program reports on standard output as "first paint NS"
// (CLOCK_MONOTONIC, see FirstPaintReport), and its resident memory two seconds later. Then ends
// it with SIGTERM.
//
//   orvale-first-frame COMMAND [ARGUMENT...]
//
// Prints "MILLISECONDS RSS_KIB" on standard output; exit status 1 when no frame came in 60 s.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <thread>

namespace {

long long monotonicNs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

long residentKib(pid_t pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string key;
    while (status >> key) {
        if (key == "VmRSS:") {
            long kib = 0;
            status >> kib;
            return kib;
        }
        status.ignore(4096, '\n');
    }
    return 0;
}

// Reads the child's output until the report line; -1 when it does not come in time.
long long firstPaint(int fd) {
    std::string pending;
    const long long deadline = monotonicNs() + 60'000'000'000LL;
    while (monotonicNs() < deadline) {
        pollfd readable{fd, POLLIN, 0};
        if (poll(&readable, 1, 1000) <= 0) {
            continue;
        }
        char buffer[512];
        const ssize_t got = read(fd, buffer, sizeof buffer);
        if (got <= 0) {
            return -1;
        }
        pending.append(buffer, static_cast<size_t>(got));
        const size_t at = pending.find("first paint ");
        if (at != std::string::npos && pending.find('\n', at) != std::string::npos) {
            return std::atoll(pending.c_str() + at + 12);
        }
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: orvale-first-frame COMMAND [ARGUMENT...]\n");
        return 2;
    }
    int out[2];
    if (pipe(out) != 0) {
        return 1;
    }
    setenv("ORVALE_REPORT_FIRST_PAINT", "1", 1);
    const long long started = monotonicNs();
    const pid_t child = fork();
    if (child == 0) {
        dup2(out[1], STDOUT_FILENO);
        close(out[0]);
        close(out[1]);
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    close(out[1]);
    const long long painted = firstPaint(out[0]);
    long rss = 0;
    if (painted > 0) {
        std::this_thread::sleep_for(std::chrono::seconds(2));
        rss = residentKib(child);
    }
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    if (painted <= 0) {
        std::fprintf(stderr, "orvale-first-frame: no first frame from %s\n", argv[1]);
        return 1;
    }
    std::printf("%.1f %ld\n", static_cast<double>(painted - started) / 1e6, rss);
    return 0;
}
