#include "platform/HelperProcess.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <QProcess>
#include <climits>
#include <csignal>

void HelperProcess::prepare(QProcess& process) {
    const pid_t parent = ::getpid();
    process.setChildProcessModifier([parent] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The parent may have died between the fork and the line above.
        if (::getppid() != parent) {
            ::_exit(127);
        }
        // Closed at exec rather than now: QProcess still reports a failed exec through a
        // descriptor of its own. Kernels before 5.11 lack the call; the helper then inherits.
        ::close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_CLOEXEC);
    });
}
