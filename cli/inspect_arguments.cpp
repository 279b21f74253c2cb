// SPDX-License-Identifier: MIT
#include "cli/inspect_arguments.h"

#include <memory>
#include <string>

#include "cli/check_command.h"
#include "cli/command_arguments.h"
#include "cli/inspect_commands.h"

namespace zev {

namespace {

void addJson(CLI::App& command, bool& isJson) {
    command.add_flag("--json", isJson, "Print JSON, for other programs");
}

std::string refuseNoAddress(const std::string& url) {
    const bool isAddress = url.starts_with("http://") || url.starts_with("https://");
    return isAddress ? "" : "must begin with http:// or https://";
}

}  // namespace

void addCheck(CLI::App& command, FileSystem& files, ExitStatus& status) {
    const auto options = std::make_shared<CheckOptions>();
    command.footer(
        "\"-\" is standard input.\n"
        "Exit status: 0 nothing is wrong, 1 something is, 2 wrong use, 3 a file could not be read\n"
        "(the others are checked).");
    command.add_option("FILE", options->inputs, "Menu definitions")
        ->required()
        ->type_name("")
        ->check(refuseEmpty);
    command.add_option("--root", options->root, "Folder of the site, for links that begin with /")
        ->type_name("DIR")
        ->check(refuseEmpty);
    addJson(command, options->isJson);
    command.callback([&files, &status, options] { status = checkCommand(files, *options); });
}

void addDiff(CLI::App& command, FileSystem& files, ExitStatus& status) {
    struct Options {
        std::string oldInput;
        std::string newInput;
        bool isJson = false;
    };
    const auto options = std::make_shared<Options>();
    command.footer(
        "\"-\" is standard input.\n"
        "Exit status: 0 no difference, 1 they differ or have errors, 2 wrong use, 3 a file could "
        "not\n"
        "be read.");
    addRequired(command, "OLD", "", options->oldInput, "Menu definition as it was");
    addRequired(command, "NEW", "", options->newInput, "Menu definition as it is");
    addJson(command, options->isJson);
    command.callback([&files, &status, options] {
        status = diffCommand(files, options->oldInput, options->newInput, options->isJson);
    });
}

void addTree(CLI::App& command, FileSystem& files, ExitStatus& status) {
    struct Options {
        std::string input;
        bool isJson = false;
    };
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    addJson(command, options->isJson);
    command.callback([&files, &status, options] {
        status = treeCommand(files, options->input, options->isJson);
    });
}

void addOutline(CLI::App& command, FileSystem& files, ExitStatus& status) {
    struct Options {
        OutlineOptions outline;
        bool isHtml = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::Option* const html =
        command.add_flag("--html", options->isHtml, "Print a nested list of links");
    CLI::Option* const base =
        command
            .add_option("--base", options->outline.base,
                        "Address of the menu definition; the links are absolute then")
            ->type_name("URL")
            ->check(refuseNoAddress);
    command
        .add_flag("--sitemap", options->outline.isSiteMap,
                  "Print a site map of all pages that the menu leads to")
        ->needs(base)
        ->excludes(html);
    addInput(command, options->outline.input);
    addOutput(command, options->outline.output);
    command.callback([&files, &status, options] {
        if (!options->isHtml && !options->outline.isSiteMap)
            throw CLI::RequiredError("--html or --sitemap");
        status = outlineCommand(files, options->outline);
    });
}

}  // namespace zev
