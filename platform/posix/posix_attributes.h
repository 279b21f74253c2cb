#pragma once

#include <sys/stat.h>

#include <string>

namespace zev {

/// Gives the open file `descriptor` the owner, mode and extended attributes (access control lists
/// among them) of the file `path`, whose lstat() is `status`. An owner that this user may not set
/// is left out. False when something else could not be carried over.
bool copyAttributes(const std::string& path, const struct stat& status, int descriptor);

}  // namespace zev
