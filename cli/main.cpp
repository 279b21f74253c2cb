// SPDX-License-Identifier: MIT
#include <csignal>
#include <exception>

#include "cli/command_line.h"
#include "platform/posix/posix_file_system.h"

int main(int argumentCount, char** arguments) {
    // A reader that has gone is an error of the write, not the end of the process.
    std::signal(SIGPIPE, SIG_IGN);
    // So is a file that would grow beyond the user's limit for files.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        zev::PosixFileSystem files;
        return static_cast<int>(zev::runCommandLine(argumentCount, arguments, files));
    } catch (const std::exception& problem) {
        zev::printProblem(problem.what());
        return static_cast<int>(zev::ExitStatus::FileProblem);
    }
}
