#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/posix/posix_side_file.h"

namespace zev {

/// Replaces the content of `path`, whole or not at all, or makes the file.
///
/// The bytes are written to a new file beside the target, flushed, and renamed over it. Symbolic
/// links are followed and stay links; the file keeps its mode, its owner where that is allowed, and
/// its extended attributes (access control lists among them). Where a rename would break something
/// (a file with several hard links, a folder that forbids new files, a bind mount) the file is
/// written in place, with a copy of the old content kept beside it, or in the folder for temporary
/// files, until the new content is safe; a failure half-way puts the old content back. Devices and
/// pipes are written straight. A file without write permission is refused.
///
/// What a killed run left beside the target is removed by the next call for the same target, as far
/// as it is among `leftovers`, which a failure empties: it may leave something itself.
FileOutcome replaceFile(const std::string& path, std::string_view bytes,
                        FolderLeftovers& leftovers);

}  // namespace zev
