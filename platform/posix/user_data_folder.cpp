// SPDX-License-Identifier: MIT
#include "platform/posix/user_data_folder.h"

#include <cstdlib>
#include <string_view>

namespace zev {

namespace {

/// A relative path would be another folder with every current folder; such are to be ignored.
std::string folderIn(const char* variable) {
    const char* const value = std::getenv(variable);
    const std::string_view folder = value != nullptr ? value : "";
    return folder.starts_with('/') ? std::string(folder) : "";
}

}  // namespace

std::string userDataFolder() {
    std::string folder = folderIn("XDG_DATA_HOME");
    if (folder.empty()) {
        folder = folderIn("HOME");
        if (!folder.empty())
            folder += "/.local/share";
    }
    return folder.empty() ? folder : folder + "/zevmenu-creator";
}

}  // namespace zev
