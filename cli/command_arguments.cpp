// SPDX-License-Identifier: MIT
#include "cli/command_arguments.h"

namespace zev {

const char* const kFooter =
    "\"-\" is standard input or output.\n"
    "Exit status: 0 done, 1 done with counted errors or warnings (the output is written),\n"
    "2 wrong use, 3 a file could not be read or written.";

std::string refuseEmpty(const std::string& value) {
    return value.empty() ? "must not be empty" : "";
}

void addRequired(CLI::App& command, const std::string& name, const std::string& typeName,
                 std::string& value, const std::string& description) {
    command.add_option(name, value, description)
        ->required()
        ->type_name(typeName)
        ->check(refuseEmpty);
}

void addInput(CLI::App& command, std::string& input, const std::string& description) {
    addRequired(command, "IN", "", input, description);
}

CLI::Option* addOutput(CLI::App& command, std::string& output) {
    return command.add_option("-o,--output", output, "File to write; without it, standard output")
        ->type_name("OUT")
        ->check(refuseEmpty);
}

}  // namespace zev
