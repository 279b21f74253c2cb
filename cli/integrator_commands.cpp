// SPDX-License-Identifier: MIT
#include "cli/integrator_commands.h"

#include <map>
#include <set>
#include <utility>

#include "checks/menu_links.h"
#include "cli/command_paths.h"
#include "cli/run_commands.h"
#include "integrator/page_integration.h"
#include "messages/integration_messages.h"
#include "script/relative_url.h"
#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

std::string withUnixLineEnds(std::string_view text) {
    return replaceAll(text, "\r\n", "\n");
}

std::string codeToPaste(const std::string& definitionURL,
                        const std::optional<PopupOptions>& popup) {
    const std::string code = popup ? definitionReference(definitionURL) + "\r\n" +
                                         popupLinkCode(popup->submenuId, popup->placement)
                                   : menuCode(definitionURL);
    return withUnixLineEnds(code) + "\n";
}

/// "http://..." and the like name no file of this machine.
std::optional<std::string> fullPathOrAddress(const std::string& path) {
    return path.find("://") != std::string::npos ? path : fullPath(path);
}

/// Neighbouring pages of one folder.
struct PageGroup {
    ChosenFiles files;
    IntegrationURLs urls;
};

// Nothing, with the problem printed, when a relative path has no current folder to count from.

std::optional<std::vector<ChosenFiles>> neighboursIn(const std::vector<std::string>& pages) {
    std::vector<ChosenFiles> groups;
    for (const std::string& page : pages) {
        const std::optional<std::string> path = fullPath(page);
        if (!path)
            return {};
        const PathParts parts = SplitPath(*path);
        if (groups.empty() || groups.back().folder != parts.folder)
            groups.push_back({parts.folder, {}});
        groups.back().names.push_back(parts.name);
    }
    return groups;
}

std::optional<std::vector<PageGroup>> groupPages(const IntegrateOptions& options) {
    const std::optional<std::string> definition = fullPathOrAddress(options.definition);
    const std::optional<std::string> library = fullPathOrAddress(options.library);
    std::optional<std::vector<ChosenFiles>> neighbours = neighboursIn(options.pages);
    if (!definition || !library || !neighbours)
        return {};
    std::vector<PageGroup> groups;
    for (ChosenFiles& files : *neighbours) {
        IntegrationURLs urls = CalculateURL(files.folder, *definition, *library);
        groups.push_back({std::move(files), std::move(urls)});
    }
    return groups;
}

/// The code, once for each URL that the definition has seen from the pages' folders.
std::string codeOfAll(const std::vector<PageGroup>& groups, const IntegrateOptions& options) {
    std::map<std::string, std::set<std::string>> foldersOfURLs;
    for (const PageGroup& group : groups)
        foldersOfURLs[group.urls.definition].insert(group.files.folder);
    std::string text;
    for (const auto& [url, folders] : foldersOfURLs) {
        for (const std::string& folder : folders)
            text += "Code for the pages in " + folder + "\n";
        text += "\n" + codeToPaste(url, options.popup) + "\n";
    }
    return text;
}

/// What the pages of a run have become.
struct RunReport {
    std::string text;
    RunSummary summary;
};

/// Integrates pages of one folder or takes the menu out of them, and prints what to know of them.
void processPages(FileSystem& files, IntegrationOptions integration,
                  const IntegrateOptions& options, const ChosenFiles& pages, CommandRun& run,
                  RunReport& report) {
    integration.hasBackups = options.hasBackups;
    integration.isDryRun = options.isDryRun;
    integration.skipsFailing = options.skipsFailing;
    integration.record = run.record();
    PageIntegrator integrator(files, integration);
    for (const std::string& name : pages.names) {
        integrator.IntegratePages({pages.folder, {name}});
        for (const PageNote& note : integrator.status().notes)
            printProblem(pagePath(pages.folder, name) + ": " + noteText(note));
    }
    integrator.finish();
    report.text += integrator.report();
    report.summary.add(integrator.summary());
}

/// Writes the report where it is wanted, and `code` to standard output.
ExitStatus writeReport(FileSystem& files, const std::string& path, const RunReport& report,
                       const std::string& code) {
    const std::string text = report.text + report.summary.text();
    std::string output = code;
    if (!path.empty())
        for (const std::string& page : report.summary.failedPages)
            printProblem(page + ": failed; see the report");
    if (path.empty()) {
        output = withUnixLineEnds(text) + code;
    } else if (const FileOutcome error = files.writeFile(path, text + "\r\n", Links::Followed)) {
        printProblem(*error);
        return ExitStatus::FileProblem;
    }
    if (!writeStandardOutput(output))
        return ExitStatus::FileProblem;
    return report.summary.failedPages.empty() ? ExitStatus::Done : ExitStatus::Counted;
}

/// The menu whose links are to stand in the pages; null when none are. Nothing, with the problem
/// printed, when it cannot be read.
std::optional<MenuContent*> menuForLinks(const FileSystem& files, const IntegrateOptions& options) {
    if (!options.hasLinkList)
        return nullptr;
    MenuContent& content = commandContent();
    if (!readDefinition(files, options.definition, content))
        return {};
    return &content;
}

/// For the pages of a folder from which the URLs are seen so.
RewriteOptions rewriteOptions(const IntegrateOptions& options, const IntegrationURLs& urls,
                              const MenuContent* menu) {
    RewriteOptions rewrite{urls.library, options.keepsOtherScripts};
    if (options.replacesReferences)
        rewrite.newDefinitionURL = urls.definition;
    if (!options.place)
        return rewrite;
    std::string code = options.popup
                           ? definitionReference(urls.definition) +
                                 popupLinkCode(options.popup->submenuId, options.popup->placement)
                           : placedMenuCode(urls.definition);
    if (menu)
        code += noScriptLinks(*menu, urls.definition);
    rewrite.menu = PlacedMenu{*options.place, std::move(code)};
    return rewrite;
}

}  // namespace

ExitStatus linkcodeCommand(const std::string& definitionURL,
                           const std::optional<PopupOptions>& popup) {
    return writeStandardOutput(codeToPaste(std::string(trimSpaces(definitionURL)), popup))
               ? ExitStatus::Done
               : ExitStatus::FileProblem;
}

ExitStatus integrateCommand(FileSystem& files, const IntegrateOptions& options) {
    const std::optional<std::vector<PageGroup>> groups = groupPages(options);
    const std::optional<MenuContent*> menu = menuForLinks(files, options);
    if (!groups || !menu)
        return ExitStatus::FileProblem;
    CommandRun run(files, options.isDryRun);
    RunReport report;
    for (const PageGroup& group : *groups) {
        IntegrationOptions integration{rewriteOptions(options, group.urls, *menu)};
        processPages(files, integration, options, group.files, run, report);
    }
    run.printOutcome();
    return writeReport(files, options.report, report,
                       options.place ? "" : codeOfAll(*groups, options));
}

ExitStatus removeCommand(FileSystem& files, const IntegrateOptions& options) {
    const std::optional<std::vector<ChosenFiles>> groups = neighboursIn(options.pages);
    if (!groups)
        return ExitStatus::FileProblem;
    CommandRun run(files, options.isDryRun);
    RunReport report;
    IntegrationOptions integration;
    integration.isRemoval = true;
    for (const ChosenFiles& group : *groups)
        processPages(files, integration, options, group, run, report);
    run.printOutcome();
    return writeReport(files, options.report, report, "");
}

}  // namespace zev
