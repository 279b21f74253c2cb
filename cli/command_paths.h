// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zev {

// Paths from the command line as the URL rules take them. Paths with a drive letter ("C:\web") are
// taken as they are; relative ones count from the current folder, and "." and ".." are resolved by
// name.

/// "C:" alone counts, for it is no use as the name of a folder of this system.
bool isDriveFolder(std::string_view folder);

/// Nothing, with the problem printed, when a relative path has no current folder to count from.
std::optional<std::string> fullPath(const std::string& path);

/// The same for a folder: no separator at its end but the root's own.
std::optional<std::string> fullFolder(const std::string& folder);

}  // namespace zev
