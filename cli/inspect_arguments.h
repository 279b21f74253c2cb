// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

// Each adds the options of a command that looks at menus and changes none; when it is the one that
// was asked for, it runs and sets `status`.

void addCheck(CLI::App& command, FileSystem& files, ExitStatus& status);

void addDiff(CLI::App& command, FileSystem& files, ExitStatus& status);

void addTree(CLI::App& command, FileSystem& files, ExitStatus& status);

void addOutline(CLI::App& command, FileSystem& files, ExitStatus& status);

}  // namespace zev
