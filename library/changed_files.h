// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/library_files.h"

namespace zev {

/// Names of the run-time files in `folder` that are not, by size and hash, those this program was
/// built with: a mixture of versions, or somebody's own. Only files that `copyLibrary` would copy
/// are looked at; one that is missing or cannot be read is left to it to report.
std::vector<std::string_view> changedRunTimeFiles(const FileSystem& files, const Path& folder,
                                                  CopiedFiles copiedFiles);

}  // namespace zev
