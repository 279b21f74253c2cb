// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <string>

#include "platform/file_system.h"

namespace zev {

/// Where a write to some path ends up.
struct WriteTarget {
    std::string path;    ///< the file itself: its last component is no symbolic link
    std::string folder;  ///< its folder, "." when the path names none
    std::string name;    ///< its name in that folder
    /// What its new content is called while it is written; empty: a name that nothing else has.
    std::string temporaryName;
    bool isFlushedLater = false;  ///< its folder, once for many files
    bool exists = false;          ///< `status` is valid
    struct stat status = {};      ///< as lstat() gives it
    /// It has no place of its own on the disk that could be replaced: a device, a pipe, a file
    /// reached through a name such as /dev/stdout.
    bool isWrittenStraight = false;
    int ownDescriptor = -1;  ///< the descriptor that a name such as /dev/stdout stands for, or -1
};

/// Finds the file that a write to `path` is about. It need not exist, also at the end of a link.
/// Where links are replaced, a symbolic link or one of several hard links counts as no file.
/// Returns 0 or an errno; EISDIR for a folder.
int resolveWriteTarget(const std::string& path, Links links, WriteTarget& target);

}  // namespace zev
