// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

/// Takes the arguments of main() apart and runs the command they name.
ExitStatus runCommandLine(int argumentCount, const char* const* arguments, FileSystem& files);

}  // namespace zev
