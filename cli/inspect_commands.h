// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

// The commands that look at menus and write none. Their lines end in LF; `isJson` asks for JSON
// instead.

/// Prints the menu as an outline. `input` may be "-".
ExitStatus treeCommand(const FileSystem& files, const std::string& input, bool isJson);

/// Prints what has become of the old menu, in terms of its items; Counted when anything has. One of
/// the two may be "-".
ExitStatus diffCommand(const FileSystem& files, const std::string& oldInput,
                       const std::string& newInput, bool isJson);

}  // namespace zev
