// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace zev {

// What the commands' arguments have in common. Values are references that live as long as the
// command.

/// The end of a command's help: standard input and output, and the exit status.
extern const char* const kFooter;

/// An empty path is a script's unset variable, not a wish.
std::string refuseEmpty(const std::string& value);

/// A positional or an option that must be given and must not be empty.
void addRequired(CLI::App& command, const std::string& name, const std::string& typeName,
                 std::string& value, const std::string& description);

void addInput(CLI::App& command, std::string& input,
              const std::string& description = "Menu definition to read");

CLI::Option* addOutput(CLI::App& command, std::string& output);

}  // namespace zev
