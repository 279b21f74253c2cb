// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <memory>
#include <sstream>
#include <string>

#include "cli/command_arguments.h"
#include "cli/commands.h"
#include "cli/inspect_arguments.h"
#include "cli/integrate_place.h"
#include "cli/integrate_site.h"
#include "cli/integrator_commands.h"
#include "cli/run_commands.h"
#include "platform/posix/running_program.h"
#include "script/submenu_list.h"
#include "text/program_name.h"

namespace zev {

namespace {

void addFormat(CLI::App& command, FileSystem& files, ExitStatus& status) {
    const auto options = std::make_shared<FormatOptions>();
    addInput(command, options->input);
    CLI::Option* const output = addOutput(command, options->output);
    CLI::Option* const check = command
                                   .add_flag("--check", options->isCheck,
                                             "Print the lines that would change, write nothing")
                                   ->excludes(output);
    command
        .add_flag("--force", options->isForced,
                  "Overwrite IN even if that loses lines that are not understood")
        ->excludes(check);
    command.callback([&files, &status, options] { status = formatCommand(files, *options); });
}

/// The names of the formats, as in "a, b or c".
std::string importFormatNames() {
    std::string names;
    for (const ImportFormat& format : importFormats()) {
        if (!names.empty())
            names += &format == &importFormats().back() ? " or " : ", ";
        names += format.name;
    }
    return names;
}

std::string refuseNoImportFormat(const std::string& name) {
    return findImportFormat(name) ? "" : "must be " + importFormatNames();
}

void addImport(CLI::App& command, FileSystem& files, ExitStatus& status) {
    const auto options = std::make_shared<ImportOptions>();
    command
        .add_option_function<std::string>(
            "--format",
            [options](const std::string& name) { options->format = findImportFormat(name); },
            "What made the menu: " + importFormatNames())
        ->required()
        ->type_name("FORMAT")
        ->check(refuseNoImportFormat);
    command.add_flag("--verbose", options->isVerbose,
                     "Print the line and the reason of each warning");
    addInput(command, options->input, "Menu to read");
    addOutput(command, options->output);
    command.callback([&files, &status, options] { status = importCommand(files, *options); });
}

void addRebase(CLI::App& command, FileSystem& files, ExitStatus& status) {
    const auto options = std::make_shared<RebaseOptions>();
    command.footer(
        "OLDDIR and NEWDIR need not exist. A relative one counts from the current folder, \".\" "
        "and\n"
        "\"..\" are resolved by name; C:\\web and the like are taken as they are.\n" +
        std::string(kFooter));
    addRequired(command, "--from", "OLDDIR", options->from, "Folder the URLs are relative to now");
    addRequired(command, "--to", "NEWDIR", options->to, "Folder they are to be relative to");
    addInput(command, options->input);
    addOutput(command, options->output);
    command.callback([&files, &status, options] { status = rebaseCommand(files, *options); });
}

void addSubmenus(CLI::App& command, FileSystem& files, ExitStatus& status) {
    const auto input = std::make_shared<std::string>();
    addInput(command, *input);
    command.callback([&files, &status, input] { status = submenusCommand(files, *input); });
}

void addPublish(CLI::App& command, FileSystem& files, ExitStatus& status) {
    struct Options {
        std::string input;
        std::string folder;
    };
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addRequired(command, "DIR", "TEXT", options->folder,
                "Folder of the web site, made where one is missing");
    command.callback([&files, &status, options] {
        status = publishCommand(files, runningProgram(), options->input, options->folder);
    });
}

bool isInteger(std::string_view text) {
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, problem] = std::from_chars(text.data(), end, value);
    return problem == std::errc() && rest == end;
}

std::string refuseNoPosition(const std::string& text) {
    const std::size_t comma = text.find(',');
    const bool isPosition = comma != std::string::npos && isInteger(text.substr(0, comma)) &&
                            isInteger(text.substr(comma + 1));
    return isPosition ? "" : "must be two whole numbers, for example 100,50";
}

std::string refuseNoEntry(const std::string& text) {
    return isSubmenuId(submenuIdOf(text)) ? ""
                                          : "must be an entry as \"zevmenu submenus\" prints it";
}

/// What the options of a popup menu were given as.
struct PopupArguments {
    std::string entry;
    bool isAtMouse = false;
    std::string position;

    /// Once the arguments are taken apart. Throws CLI::ParseError when they do not go together.
    std::optional<PopupOptions> options() const {
        if (entry.empty())
            return {};
        const std::string submenuId(submenuIdOf(entry));
        if (isAtMouse)
            return PopupOptions{submenuId, {}};
        if (position.empty())
            throw CLI::ValidationError("--popup", "requires --mouse or --at");
        const std::size_t comma = position.find(',');
        return PopupOptions{submenuId,
                            {false, position.substr(0, comma), position.substr(comma + 1)}};
    }
};

void addPopup(CLI::App& command, PopupArguments& popup) {
    CLI::Option* const entry =
        command.add_option("--popup", popup.entry, "Popup menu: this submenu opens at a link")
            ->type_name("ENTRY")
            ->check(refuseNoEntry);
    CLI::Option* const mouse =
        command.add_flag("--mouse", popup.isAtMouse, "It opens beside the mouse")->needs(entry);
    command.add_option("--at", popup.position, "It opens at this position, in pixels")
        ->type_name("X,Y")
        ->check(refuseNoPosition)
        ->needs(entry)
        ->excludes(mouse);
}

void addLinkcode(CLI::App& command, FileSystem&, ExitStatus& status) {
    struct Options {
        std::string definition;
        PopupArguments popup;
    };
    const auto options = std::make_shared<Options>();
    command.footer("Exit status: 0 done, 2 wrong use, 3 the output could not be written.");
    addRequired(command, "--definition", "URL", options->definition, "URL of the menu definition");
    addPopup(command, options->popup);
    command.callback([&status, options] {
        status = linkcodeCommand(options->definition, options->popup.options());
    });
}

/// Throws CLI::ParseError when one is missing.
void requireArguments(const IntegrateOptions& integrate, const SiteArguments& site,
                      bool isRemoval) {
    if (!isRemoval && integrate.definition.empty())
        throw CLI::RequiredError("--definition");
    if (!isRemoval && integrate.library.empty())
        throw CLI::RequiredError("--library");
    if (integrate.pages.empty() && !site.areGiven())
        throw CLI::RequiredError("PAGE");
}

void addIntegrate(CLI::App& command, FileSystem& files, ExitStatus& status) {
    struct Options {
        IntegrateOptions integrate;
        PopupArguments popup;
        PlaceArguments place;
        SiteArguments site;
        RunArguments runs;
        bool hasNoBackups = false;
    };
    const auto options = std::make_shared<Options>();
    IntegrateOptions& integrate = options->integrate;
    command.footer(
        "Definition and library need not exist. Relative paths count from the current folder; an\n"
        "address such as \"http://example.org/menu/\" is taken as it is.\n"
        "A run prints its name on standard error; --undo takes it back.\n"
        "Exit status: 0 done, 1 a page failed (the others are done), no page was found or nothing\n"
        "could be undone, 2 wrong use, 3 the report could not be written or a list not read.");
    // Required as well, but not to take a menu out nor for what is done with earlier runs.
    command
        .add_option("--definition", integrate.definition,
                    "Menu definition; needed but for --remove, --undo and --list-runs")
        ->type_name("FILE")
        ->check(refuseEmpty);
    command
        .add_option("--library", integrate.library,
                    "Folder of the run-time scripts; needed where a definition is")
        ->type_name("DIR")
        ->check(refuseEmpty);
    command.add_flag("--no-backup", options->hasNoBackups, "Do not keep a copy PAGE.bak");
    command.add_flag("--keep-scripts", integrate.keepsOtherScripts,
                     "Keep scripts that do not name JavaScript in a language attribute");
    command.add_flag("--skip-failing", integrate.skipsFailing,
                     "Leave pages that lack a place for the menu's code as they are");
    command.add_flag("--dry-run", integrate.isDryRun, "Report, but leave every page as it is");
    command.add_option("--report", integrate.report, "File for the report")
        ->type_name("FILE")
        ->check(refuseEmpty);
    addPopup(command, options->popup);
    addPlaceOptions(command, options->place, integrate);
    addSiteOptions(command, options->site);
    addRunOptions(command, options->runs);
    command.add_option("PAGE", integrate.pages, "Web pages")->type_name("")->check(refuseEmpty);
    command.callback([&files, &status, options] {
        if (options->runs.areGiven()) {
            status = runsCommand(files, options->runs);
            return;
        }
        options->integrate.hasBackups = !options->hasNoBackups;
        options->integrate.popup = options->popup.options();
        takePlaceArguments(options->place, options->integrate);
        requireArguments(options->integrate, options->site, options->place.isRemoval);
        const std::optional<ExitStatus> problem =
            addSitePages(files, options->site, options->integrate.pages);
        if (problem)
            status = *problem;
        else
            status = options->place.isRemoval ? removeCommand(files, options->integrate)
                                              : integrateCommand(files, options->integrate);
    });
}

/// What "--help" prints of a command, or of the program when none is named.
std::string helpText(const CLI::App& program, const std::string& command) {
    if (command.empty())
        return program.get_formatter()->make_help(&program, program.get_name(),
                                                  CLI::AppFormatMode::Normal);
    return program.get_subcommand(command)->help(program.get_name());
}

void addHelp(CLI::App& command, FileSystem&, ExitStatus& status) {
    const CLI::App& program = *command.get_parent();
    const auto name = std::make_shared<std::string>();
    command.footer("Exit status: 0 done, 2 wrong use, 3 the output could not be written.");
    command.add_option("COMMAND", *name, "Command; without it, those there are are listed")
        ->type_name("")
        ->check([&program](const std::string& text) {
            const auto found = program.get_subcommands(
                [&text](const CLI::App* each) { return each->get_name() == text; });
            return found.empty() ? "there is no such command" : "";
        });
    command.callback([&program, &status, name] {
        status = writeStandardOutput(helpText(program, *name)) ? ExitStatus::Done
                                                               : ExitStatus::FileProblem;
    });
}

const char* const kVersion = "zevmenu " ZEV_VERSION;
const char* const kVersionHelp = "Print the version and exit";

struct Command {
    const char* name;
    const char* description;
    void (*addOptions)(CLI::App& command, FileSystem& files, ExitStatus& status);
};

const Command kCommands[] = {
    {"format", "Read a menu definition and write it as the editor would save it", addFormat},
    {"import", "Read the menu of an earlier product and write a menu definition", addImport},
    {"rebase", "Recalculate the relative URLs of a menu definition for another folder", addRebase},
    {"submenus", "List the submenus of a menu definition, one a line", addSubmenus},
    {"check", "Find what is wrong in menu definitions", addCheck},
    {"diff", "Tell in what the items of two menu definitions differ", addDiff},
    {"tree", "Print the menu as an indented outline", addTree},
    {"outline", "Print the menu's links as a list or a site map for web pages", addOutline},
    {"publish", "Write a menu definition and the run-time scripts into a folder", addPublish},
    {"linkcode", "Print the code that shows a menu on a web page", addLinkcode},
    {"integrate", "Make web pages load a menu and print what to paste", addIntegrate},
    {"help", "Print the help of a command", addHelp}};

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

void addCommands(CLI::App& program, FileSystem& files, ExitStatus& status,
                 const std::function<bool(const std::string&)>& isNamed) {
    program.description(std::string("Works on the menu definitions of ") + kProgramName + ".");
    program.name("zevmenu");
    program.set_version_flag("--version", kVersion, kVersionHelp);
    program.require_subcommand(1);
    program.footer(kFooter);
    for (const Command& each : kCommands) {
        CLI::App& command = *program.add_subcommand(each.name, each.description);
        if (!isNamed(each.name))
            continue;
        command.set_version_flag("--version", kVersion, kVersionHelp);
        command.footer(kFooter);
        each.addOptions(command, files, status);
    }
}

ExitStatus runCommandLine(int argumentCount, const char* const* arguments, FileSystem& files) {
    CLI::App program;
    ExitStatus status = ExitStatus::Done;
    addCommands(program, files, status, [&](const std::string& name) {
        return std::find(arguments, arguments + argumentCount, name) != arguments + argumentCount;
    });
    try {
        program.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& outcome) {
        return report(program, outcome);
    }
    return status;
}

}  // namespace zev
