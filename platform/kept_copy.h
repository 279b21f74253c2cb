// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zev {

// What the program is about to replace and has not written itself is kept beside it:
//
//     menu.js.bak      the first that was kept
//     menu.js.bak.2    the next, and so on
//
// A name that is taken, be it by a link or a folder, is never written to.

/// Keeps a copy of the file `path` (a link is followed there), with its owner, mode and attributes
/// as `FileSystem::backUpFile` gives them. A file with the same content that was kept before is
/// enough. The value is the path of what holds the content now.
FileResult<std::string> keepCopy(FileSystem& files, const std::string& path);

/// The same for bytes that `path` or its backup held, under the first free one of `name`, `name`.2
/// and so on.
FileResult<std::string> keepBytes(FileSystem& files, const std::string& path,
                                  const std::string& name, const std::string& bytes);

/// Gives the file or link `path` the first of these names that is free. What a link leads to stays
/// as it is. The value is the new path.
FileResult<std::string> setAside(FileSystem& files, const std::string& path);

}  // namespace zev
