#include "cli/inspect_arguments.h"

#include <memory>
#include <string>

#include "cli/command_arguments.h"
#include "cli/inspect_commands.h"

namespace zev {

namespace {

void addJson(CLI::App& command, bool& isJson) {
    command.add_flag("--json", isJson, "Print JSON, for other programs");
}

}  // namespace

void addTree(CLI::App& program, const FileSystem& files, ExitStatus& status) {
    struct Options {
        std::string input;
        bool isJson = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(program, "tree", "Print the menu as an indented outline");
    addInput(command, options->input);
    addJson(command, options->isJson);
    command.callback([&files, &status, options] {
        status = treeCommand(files, options->input, options->isJson);
    });
}

}  // namespace zev
