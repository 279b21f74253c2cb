// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

struct CheckOptions {
    std::vector<std::string> inputs;
    std::string root;  ///< folder that "/" is on the web server; empty: not known
    bool isJson = false;
};

/// Prints what is wrong in each definition; Counted when anything is. One that cannot be read is a
/// FileProblem, after the others were checked. An input may be "-", whose links count from the
/// current folder.
ExitStatus checkCommand(const FileSystem& files, const CheckOptions& options);

}  // namespace zev
