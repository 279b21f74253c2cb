// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zev {

// Where the run-time files come from. `executable` is the full path of the running program.

/// The folder that holds the installed run-time files: the executable's own, as in a build or an
/// unpacked archive, or "../share/zevmenu-creator" beside it. It may be read-only. An error names
/// the file that is missing.
FileResult<std::string> findInstalledFolder(const FileSystem& files, const std::string& executable);

/// The program's own folder, which holds the run-time files and the manual and takes the preview's
/// files of a menu never saved. It is the executable's own when that holds the run-time files and
/// is writable. Else, and always of an installation in "../share", which is never written, it is
/// `userFolder`, made when missing, filled from the installed folder, with every file brought up to
/// date that differs from the installed one.
FileResult<std::string> findProgramFolder(FileSystem& files, const std::string& executable,
                                          const std::string& userFolder);

}  // namespace zev
