// Runs a command and measures it with everything it starts: its wall time, and the peak of the
// resident memory of its whole process tree, summed over the processes and sampled every 20 ms.
// Children are found through /proc/PID/task/TID/children, for every thread: orvale starts its
// helpers from several threads.
//
//   orvale-tree-rss COMMAND [ARGUMENT...]
//
// Prints "WALL_SECONDS PEAK_KIB" on standard error when the command has ended; standard output
// and the exit status are the command's.
#include <dirent.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

long residentKib(long pid) {
    std::ifstream statm("/proc/" + std::to_string(pid) + "/statm");
    long size = 0;
    long resident = 0;
    if (!(statm >> size >> resident)) {
        return 0;
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

std::vector<long> childrenOf(long pid) {
    std::vector<long> children;
    const std::string tasks = "/proc/" + std::to_string(pid) + "/task";
    DIR* folder = opendir(tasks.c_str());
    if (folder == nullptr) {
        return children;
    }
    while (const dirent* entry = readdir(folder)) {
        if (entry->d_name[0] == '.') {
            continue;
        }
        std::ifstream list(tasks + "/" + entry->d_name + "/children");
        for (long child = 0; list >> child;) {
            children.push_back(child);
        }
    }
    closedir(folder);
    return children;
}

long treeKib(long root) {
    long sum = 0;
    std::vector<long> pending{root};
    while (!pending.empty()) {
        const long pid = pending.back();
        pending.pop_back();
        sum += residentKib(pid);
        for (const long child : childrenOf(pid)) {
            pending.push_back(child);
        }
    }
    return sum;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s COMMAND [ARGUMENT...]\n", argv[0]);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[1], argv + 1);
        std::perror(argv[1]);
        _exit(127);
    }
    long peak = 0;
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        peak = std::max(peak, treeKib(child));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "%.3f %ld\n", wall.count(), peak);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
