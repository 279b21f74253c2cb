#include "platform/qt/browser_sandbox.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace zev {

#ifdef Q_OS_LINUX

bool canStartBrowser() {
    if (qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0)
        return true;
    if (geteuid() == 0)
        return false;
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

#else

bool canStartBrowser() {
    return true;
}

#endif

}  // namespace zev
