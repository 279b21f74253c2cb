#include "cli/command_paths.h"

#include <filesystem>
#include <system_error>

#include "cli/command_files.h"

namespace zev {

bool isDrivePath(std::string_view path) {
    const bool isLetter =
        !path.empty() && ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
    return isLetter && path.substr(1).starts_with(":\\");
}

std::optional<std::string> fullPath(const std::string& path) {
    if (isDrivePath(path))
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
    std::optional<std::string> full = fullPath(folder);
    if (!full)
        return {};
    if (isDrivePath(folder))
        return folder.substr(0, folder.find_last_not_of('\\') + 1);
    if (full->size() > 1 && full->ends_with('/'))
        full->pop_back();
    return full;
}

}  // namespace zev
