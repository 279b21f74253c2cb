// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/posix/posix_side_file.h"
#include "platform/posix/posix_write_target.h"

namespace zev {

/// Replaces the content of `path`, whole or not at all, or makes the file.
///
/// The bytes are written to a new file beside the target, flushed, and renamed over it. The file
/// keeps its owner, group, mode and extended attributes (access control lists among them). Where
/// the new file cannot have those, or a rename would break something (a file with several hard
/// links, a folder that forbids new files, a bind mount), the file is written in place, with a copy
/// of the old content kept beside it, or in the folder for temporary files, until the new content
/// is safe; a failure half-way puts the old content back. A file without write permission is
/// refused.
///
/// Where links are followed they stay links, and devices and pipes are written straight. Where they
/// are replaced, nothing is ever written to what a link, symbolic or hard, leads to, and a device
/// or pipe is an error.
///
/// What a killed run left beside the target is removed by the next call for the same target, as far
/// as it is among `leftovers`, which a failure empties: it may leave something itself.
FileOutcome replaceFile(const std::string& path, std::string_view bytes, Links links,
                        FolderLeftovers& leftovers);

/// The same with links followed, where the new file is called `temporaryName` meanwhile, in place
/// of a name that nothing else has; a file that has it is lost. It must not be the target's own
/// name. The folder is not flushed but added to `unflushedFolders`: until somebody does, a failing
/// power may bring the old file back.
FileOutcome replaceFileThrough(const std::string& temporaryName, const std::string& path,
                               std::string_view bytes, FolderLeftovers& leftovers,
                               std::set<std::string>& unflushedFolders);

/// Makes what was made and renamed in the folder outlive the power. 0 or an errno. A folder that
/// may be written but not read cannot be flushed; that is no error.
int flushFolder(const std::string& path);

/// Replaces `backup`, a name of the program's own, by a file that holds `bytes`, the content of the
/// file `original`, and has from its first byte on what that one has of owner, group, mode and
/// extended attributes. Without its group or attributes only the user may read and write the
/// backup. An original without write permission is refused: nobody is going to change it.
FileOutcome writeBackup(const std::string& original, const std::string& backup,
                        std::string_view bytes, FolderLeftovers& leftovers);

}  // namespace zev
