#include "platform/posix/posix_shell.h"

#include <chrono>
#include <filesystem>

#include "platform/posix/posix_process.h"
#include "text/ascii.h"

namespace zev {

std::string PosixShell::FindExecutable(const std::string& file) {
    constexpr std::chrono::seconds kTimeLimit{5};
    const std::string extension = std::filesystem::path(file).extension();
    if (!equalsIgnoringCase(extension, ".htm") && !equalsIgnoringCase(extension, ".html"))
        return {};
    // xdg-open finds out that there is no browser only when nobody listens to it any more.
    const auto browser = runProgram({"xdg-mime", "query", "default", "text/html"}, kTimeLimit);
    const bool isRegistered = browser && browser->find_first_not_of(" \n") != std::string::npos;
    return isRegistered ? findProgram("xdg-open") : std::string();
}

bool PosixShell::ShellExecute(const std::string& program, const std::string& argument) {
    return startDetached({program, argument});
}

}  // namespace zev
