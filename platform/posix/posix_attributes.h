// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <string>

namespace zev {

/// How much of a file's owner, rights and attributes another file has.
enum class Carried {
    All,
    AllButOwner,  ///< nor the rights tied to the owner, to run with his or the group's
    Less,         ///< unknown: some of it, with an access that may be wider than that of the file
    Failed  ///< the same, for even the mode of a file of one's own cannot be set; errno tells why
};

/// Gives the open file `descriptor` the owner, group, mode and extended attributes (access control
/// lists among them) of the file `path`, whose lstat() is `status`, as far as this user may.
Carried copyAttributes(const std::string& path, const struct stat& status, int descriptor);

}  // namespace zev
