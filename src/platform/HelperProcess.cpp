#include "platform/HelperProcess.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <QProcess>
#include <csignal>

void HelperProcess::dieWithParent(QProcess& process) {
    const pid_t parent = ::getpid();
    process.setChildProcessModifier([parent] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The parent may have died between the fork and the line above.
        if (::getppid() != parent) {
            ::_exit(127);
        }
    });
}
