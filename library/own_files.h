// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/file_system.h"
#include "text/path.h"

namespace zev {

// What tells the program's own files in a site's folder from somebody's.

/// True for the bytes of a run-time file of this or an earlier version of the program, which may be
/// replaced: its first line says so, or it was given out before that line was.
bool isOwnFile(std::string_view bytes);

/// True when a definition written to `path` would take the place of a file that the program writes
/// beside definitions, a run-time or a preview file: by name, by a link, or, where the disk does
/// not tell upper from lower case, by a name spelt otherwise.
bool hasReservedName(const FileSystem& files, const Path& path);

}  // namespace zev
