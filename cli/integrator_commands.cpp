#include "cli/integrator_commands.h"

#include <map>
#include <set>
#include <utility>

#include "checks/menu_links.h"
#include "cli/command_paths.h"
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

/// Nothing, with the problem printed, when a relative path has no current folder to count from.
std::optional<std::vector<PageGroup>> groupPages(const IntegrateOptions& options) {
    const std::optional<std::string> definition = fullPathOrAddress(options.definition);
    const std::optional<std::string> library = fullPathOrAddress(options.library);
    if (!definition || !library)
        return {};
    std::vector<PageGroup> groups;
    for (const std::string& page : options.pages) {
        const std::optional<std::string> path = fullPath(page);
        if (!path)
            return {};
        const PathParts parts = SplitPath(*path);
        if (groups.empty() || groups.back().files.folder != parts.folder)
            groups.push_back(
                {{parts.folder, {}}, CalculateURL(parts.folder, *definition, *library)});
        groups.back().files.names.push_back(parts.name);
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
    bool hasFailed = false;
};

/// Integrates one page or takes the menu out of it, and prints what to know of it.
void processPage(FileSystem& files, const IntegrationOptions& options, const ChosenFiles& page,
                 bool isReportAFile, RunReport& report) {
    PageIntegrator integrator(files, options);
    integrator.IntegratePages(page);
    report.text += integrator.report();
    const std::string path = pagePath(page.folder, page.names.front());
    for (const PageNote& note : integrator.status().notes)
        printProblem(path + ": " + noteText(note));
    if (!integrator.hasFailed())
        return;
    report.hasFailed = true;
    if (isReportAFile)
        printProblem(path + ": failed; see the report");
}

/// Writes the report where it is wanted, and `code` to standard output.
ExitStatus writeReport(FileSystem& files, const std::string& path, const RunReport& report,
                       const std::string& code) {
    std::string output = code;
    if (path.empty()) {
        output = withUnixLineEnds(report.text) + code;
    } else if (const FileOutcome error =
                   files.writeFile(path, report.text + "\r\n", Links::Followed)) {
        printProblem(*error);
        return ExitStatus::FileProblem;
    }
    if (!writeStandardOutput(output))
        return ExitStatus::FileProblem;
    return report.hasFailed ? ExitStatus::Counted : ExitStatus::Done;
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
    RunReport report;
    for (const PageGroup& group : *groups) {
        const RewriteOptions rewrite = rewriteOptions(options, group.urls, *menu);
        for (const std::string& name : group.files.names)
            processPage(files, {rewrite, options.hasBackups, options.isDryRun, false},
                        {group.files.folder, {name}}, !options.report.empty(), report);
    }
    return writeReport(files, options.report, report,
                       options.place ? "" : codeOfAll(*groups, options));
}

ExitStatus removeCommand(FileSystem& files, const IntegrateOptions& options) {
    RunReport report;
    for (const std::string& page : options.pages) {
        const std::optional<std::string> path = fullPath(page);
        if (!path)
            return ExitStatus::FileProblem;
        const PathParts parts = SplitPath(*path);
        processPage(files, {{}, options.hasBackups, options.isDryRun, true},
                    {parts.folder, {parts.name}}, !options.report.empty(), report);
    }
    return writeReport(files, options.report, report, "");
}

}  // namespace zev
