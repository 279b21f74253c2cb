// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/locked_file.h"

namespace zev {

/// Locks are flock()'s: they belong to the open file and go with the last descriptor of it.
///
///     menu.journal     the file
///     menu.journal~    new content on its way to be renamed; locked already

/// Makes the file, or replaces it.
FileResult<std::unique_ptr<LockedFile>> makePosixLockedFile(const std::string& path,
                                                            std::string_view bytes);
/// Null when the file is not there, cannot be opened, or is held.
std::unique_ptr<LockedFile> lockPosixFile(const std::string& path);

}  // namespace zev
