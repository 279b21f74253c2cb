// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

// The commands that look at menus and change none. Their lines end in LF; `isJson` asks for JSON
// instead.

/// Prints the menu as an outline. `input` may be "-".
ExitStatus treeCommand(const FileSystem& files, const std::string& input, bool isJson);

struct OutlineOptions {
    std::string input;       ///< may be "-"
    std::string output;      ///< "-" or empty: standard output
    std::string base;        ///< address of the definition; empty: links count from its folder
    bool isSiteMap = false;  ///< a site map, not a list; it needs a base
};

/// Writes the menu's links.
ExitStatus outlineCommand(FileSystem& files, const OutlineOptions& options);

/// Prints what has become of the old menu, in terms of its items; Counted when anything has. One of
/// the two may be "-".
ExitStatus diffCommand(const FileSystem& files, const std::string& oldInput,
                       const std::string& newInput, bool isJson);

}  // namespace zev
