#include "platform/posix/posix_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/posix/posix_descriptor.h"

namespace zev {

namespace {

using Clock = std::chrono::steady_clock;

bool isExecutableFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

/// The form exec() takes; valid as long as `arguments` is unchanged.
std::vector<char*> argumentPointers(const std::vector<std::string>& arguments) {
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

/// Starts `arguments` as `program` in a session of its own, with its output going to `output`;
/// everything else goes nowhere. -1 when it cannot be executed.
pid_t spawn(const std::string& program, const std::vector<std::string>& arguments, int output) {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    sigset_t none;
    sigset_t sigPipe;
    sigemptyset(&none);
    sigemptyset(&sigPipe);
    sigaddset(&sigPipe, SIGPIPE);
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &sigPipe);
    pid_t child = -1;
    if (::posix_spawn(&child, program.c_str(), &actions, &attributes,
                      argumentPointers(arguments).data(), environ) != 0)
        child = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return child;
}

/// Reads until the end of the pipe; false when `deadline` comes first.
bool readUntil(int pipe, Clock::time_point deadline, std::string& output) {
    char chunk[4096];
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        pollfd waiting{pipe, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(left.count()));
        if (ready == 0 || (ready < 0 && errno == EINTR))
            continue;
        const ssize_t count = ready < 0 ? -1 : ::read(pipe, chunk, sizeof chunk);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        output.append(chunk, static_cast<std::size_t>(count));
    }
}

int waitFor(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    return status;
}

}  // namespace

std::string runningProgram() {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : path.string();
}

std::string findProgram(const std::string& name) {
    if (name.find('/') != std::string::npos)
        return isExecutableFile(name) ? name : std::string();
    const char* const variable = std::getenv("PATH");
    const std::string folders = variable ? variable : "/usr/local/bin:/usr/bin:/bin";
    for (std::size_t start = 0; !name.empty() && start <= folders.size();) {
        const std::size_t end = std::min(folders.find(':', start), folders.size());
        // An empty entry, which stands for the current folder, is not searched.
        const std::string path = folders.substr(start, end - start) + "/" + name;
        if (end > start && isExecutableFile(path))
            return path;
        start = end + 1;
    }
    return {};
}

std::optional<std::string> runProgram(const std::vector<std::string>& arguments,
                                      std::chrono::milliseconds timeLimit) {
    const std::string program = findProgram(arguments.front());
    int ends[2];
    if (program.empty() || ::pipe2(ends, O_CLOEXEC) != 0)
        return {};
    const PosixDescriptor readEnd(ends[0]);
    PosixDescriptor writeEnd(ends[1]);
    const pid_t child = spawn(program, arguments, writeEnd.get());
    if (child < 0)
        return {};
    writeEnd.close();
    std::string output;
    const bool isDone = readUntil(readEnd.get(), Clock::now() + timeLimit, output);
    // The leader of a session leads a process group too.
    if (!isDone)
        ::kill(-child, SIGKILL);
    const int status = waitFor(child);
    if (!isDone || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return {};
    return output;
}

bool startDetached(const std::vector<std::string>& arguments) {
    const std::string program = findProgram(arguments.front());
    PosixDescriptor nowhere;
    if (program.empty() || openDescriptor("/dev/null", O_WRONLY, 0, nowhere) != 0)
        return false;
    // Forked once more, so that it is nobody's child here when it ends.
    std::vector<std::string> detached{"/usr/bin/setsid", "--fork", program};
    detached.insert(detached.end(), arguments.begin() + 1, arguments.end());
    const pid_t child = spawn(detached.front(), detached, nowhere.get());
    return child >= 0 && waitFor(child) == 0;
}

}  // namespace zev
