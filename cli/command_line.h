// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

/// Describes the program and its commands to `program`, for whose life the rest must live; the
/// options of those commands only that `isNamed` names, as describing all is most of what a short
/// run takes. When it then takes arguments apart, the command that they name runs and sets
/// `status`.
void addCommands(CLI::App& program, FileSystem& files, ExitStatus& status,
                 const std::function<bool(const std::string& command)>& isNamed);

/// Takes the arguments of main() apart and runs the command they name.
ExitStatus runCommandLine(int argumentCount, const char* const* arguments, FileSystem& files);

}  // namespace zev
