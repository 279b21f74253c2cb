// SPDX-License-Identifier: MIT
#include "platform/posix/running_program.h"

#include <filesystem>
#include <system_error>

namespace zev {

std::string runningProgram() {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : path.string();
}

}  // namespace zev
