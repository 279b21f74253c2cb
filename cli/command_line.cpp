#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <sstream>
#include <string>

#include "cli/commands.h"
#include "platform/posix/posix_process.h"

namespace zev {

namespace {

constexpr const char* kFooter =
    "\"-\" is standard input or output.\n"
    "Exit status: 0 done, 1 done with counted errors (the output is written), 2 wrong use,\n"
    "3 a file could not be read or written.";

/// The command that the arguments name, ready to run.
using Command = std::function<ExitStatus()>;

/// An empty path is a script's unset variable, not a wish.
std::string refuseEmpty(const std::string& value) {
    return value.empty() ? "must not be empty" : "";
}

CLI::App& addCommand(CLI::App& program, const std::string& name, const std::string& description) {
    CLI::App& command = *program.add_subcommand(name, description);
    command.set_version_flag("--version", "zevmenu " ZEV_VERSION, "Print the version and exit");
    command.footer(kFooter);
    return command;
}

void addInput(CLI::App& command, std::string& input) {
    command.add_option("IN", input, "Menu definition to read")
        ->required()
        ->type_name("")
        ->check(refuseEmpty);
}

void addOutput(CLI::App& command, std::string& output) {
    command.add_option("-o,--output", output, "File to write; without it, standard output")
        ->type_name("OUT")
        ->check(refuseEmpty);
}

void addFormat(CLI::App& program, FileSystem& files, Command& chosen) {
    struct Options {
        std::string input;
        std::string output;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        program, "format", "Read a menu definition and write it as the editor would save it");
    addInput(command, options->input);
    addOutput(command, options->output);
    command.callback([&files, &chosen, options] {
        chosen = [&files, options] {
            return formatCommand(files, options->input, options->output);
        };
    });
}

void addRebase(CLI::App& program, FileSystem& files, Command& chosen) {
    const auto options = std::make_shared<RebaseOptions>();
    CLI::App& command = addCommand(
        program, "rebase", "Recalculate the relative URLs of a menu definition for another folder");
    command.footer(
        "OLDDIR and NEWDIR need not exist. A relative one counts from the current folder, \".\" "
        "and\n"
        "\"..\" are resolved by name; C:\\web and the like are taken as they are.\n" +
        std::string(kFooter));
    command.add_option("--from", options->from, "Folder the URLs are relative to now")
        ->required()
        ->type_name("OLDDIR")
        ->check(refuseEmpty);
    command.add_option("--to", options->to, "Folder they are to be relative to")
        ->required()
        ->type_name("NEWDIR")
        ->check(refuseEmpty);
    addInput(command, options->input);
    addOutput(command, options->output);
    command.callback([&files, &chosen, options] {
        chosen = [&files, options] { return rebaseCommand(files, *options); };
    });
}

void addSubmenus(CLI::App& program, FileSystem& files, Command& chosen) {
    const auto input = std::make_shared<std::string>();
    CLI::App& command =
        addCommand(program, "submenus", "List the submenus of a menu definition, one a line");
    addInput(command, *input);
    command.callback([&files, &chosen, input] {
        chosen = [&files, input] { return submenusCommand(files, *input); };
    });
}

void addPublish(CLI::App& program, FileSystem& files, Command& chosen) {
    struct Options {
        std::string input;
        std::string folder;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        program, "publish", "Write a menu definition and the run-time scripts into a folder");
    addInput(command, options->input);
    command.add_option("DIR", options->folder, "Folder of the web site; it must exist")->required();
    command.callback([&files, &chosen, options] {
        chosen = [&files, options] {
            return publishCommand(files, runningProgram(), options->input, options->folder);
        };
    });
}

/// Prints help, version or what was wrong with the arguments.
ExitStatus report(const CLI::App& program, const CLI::ParseError& outcome) {
    std::ostringstream output;
    std::ostringstream problem;
    const bool isWrong = program.exit(outcome, output, problem) != 0;
    if (isWrong) {
        printProblem(problem.str());
        return ExitStatus::WrongUse;
    }
    return writeStandardOutput(output.str()) ? ExitStatus::Done : ExitStatus::FileProblem;
}

}  // namespace

ExitStatus runCommandLine(int argumentCount, const char* const* arguments, FileSystem& files) {
    CLI::App program("Works on the menu definitions of ZEVMenu Creator.", "zevmenu");
    program.set_version_flag("--version", "zevmenu " ZEV_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    program.footer(kFooter);
    Command chosen;
    addFormat(program, files, chosen);
    addRebase(program, files, chosen);
    addSubmenus(program, files, chosen);
    addPublish(program, files, chosen);
    try {
        program.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& outcome) {
        return report(program, outcome);
    }
    return chosen();
}

}  // namespace zev
