// SPDX-License-Identifier: MIT
#include "cli/command_paths.h"

#include <filesystem>
#include <system_error>

#include "cli/command_files.h"
#include "text/path.h"

namespace zev {

bool isDriveFolder(std::string_view folder) {
    const Path path(folder);
    return path.hasDriveLetter() && path.kind() != Path::Kind::Other;
}

std::optional<std::string> fullPath(const std::string& path) {
    const Path given(path);
    if (given.hasDriveLetter() && given.kind() == Path::Kind::Drive)
        return path;
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(path, error);
    if (error) {
        printProblem(path + ": " + error.message());
        return {};
    }
    return full.lexically_normal().string();
}

std::optional<std::string> fullFolder(const std::string& folder) {
    const std::optional<std::string> full = isDriveFolder(folder) ? folder : fullPath(folder);
    if (!full)
        return {};
    return std::string(Path(*full).withoutTrailingSeparators());
}

}  // namespace zev
