// SPDX-License-Identifier: MIT
#include "cli/integrator_commands.h"

#include <ctime>

#include "checks/menu_links.h"
#include "cli/command_paths.h"
#include "cli/run_commands.h"
#include "integrator/site_run.h"
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

/// Pages of one folder each. Nothing, with the problem printed, when a relative path has no current
/// folder to count from.
std::optional<std::vector<ChosenFiles>> groupPages(const std::vector<std::string>& pages) {
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

/// The code, once for each URL that the definition has seen from the pages' folders.
std::string codeOfAll(const std::vector<ChosenFiles>& pages, const WizardAnswers& answers,
                      const std::optional<PopupOptions>& popup) {
    std::string text;
    for (const auto& [url, folders] : definitionURLs(pages, answers)) {
        for (const std::string& folder : folders)
            text += "Code for the pages in " + folder + "\n";
        text += "\n" + codeToPaste(url, popup) + "\n";
    }
    return text;
}

/// Writes the report where it is wanted, and `code` to standard output.
ExitStatus writeReport(FileSystem& files, const std::string& path, const SiteRunResult& result,
                       const std::string& code) {
    std::string output = code;
    if (!path.empty())
        for (const std::string& page : result.summary.failedPages)
            printProblem(page + ": failed; see the report");
    if (path.empty()) {
        output = withUnixLineEnds(result.report) + code;
    } else if (const FileOutcome error =
                   files.writeFile(path, result.report + "\r\n", Links::Followed)) {
        printProblem(*error);
        return ExitStatus::FileProblem;
    }
    if (!writeStandardOutput(output))
        return ExitStatus::FileProblem;
    return result.summary.failedPages.empty() ? ExitStatus::Done : ExitStatus::Counted;
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

/// What is done with each page alike.
SiteRunOptions runOptions(const IntegrateOptions& options) {
    SiteRunOptions run;
    run.answers.hasBackups = options.hasBackups;
    run.isDryRun = options.isDryRun;
    if (!options.isDryRun)
        run.recordFolder = runsFolder();
    run.startedAt = std::time(nullptr);
    return run;
}

/// How the menu is put into the pages; nothing where its code is printed. `menu` is null where its
/// links are not to stand there.
std::optional<MenuPlacing> placingOf(const IntegrateOptions& options, const MenuContent* menu) {
    if (!options.place)
        return {};
    MenuPlacing placing{*options.place, {}};
    if (menu != nullptr)
        placing.addition = [menu](const std::string& url) { return noScriptLinks(*menu, url); };
    return placing;
}

SiteRunResult runAndTell(FileSystem& files, const std::vector<ChosenFiles>& pages,
                         const SiteRunOptions& options) {
    SiteRunResult result = runOverSite(files, pages, options, {});
    for (const NotedPage& noted : result.notes)
        printProblem(noted.page + ": " + noteText(noted.note));
    printRun(options, result);
    return result;
}

}  // namespace

ExitStatus linkcodeCommand(const std::string& definitionURL,
                           const std::optional<PopupOptions>& popup) {
    return writeStandardOutput(codeToPaste(std::string(trimSpaces(definitionURL)), popup))
               ? ExitStatus::Done
               : ExitStatus::FileProblem;
}

ExitStatus integrateCommand(FileSystem& files, const IntegrateOptions& options) {
    const std::optional<std::string> definition = fullPathOrAddress(options.definition);
    const std::optional<std::string> library = fullPathOrAddress(options.library);
    const std::optional<std::vector<ChosenFiles>> pages = groupPages(options.pages);
    const std::optional<MenuContent*> menu = menuForLinks(files, options);
    if (!definition || !library || !pages || !menu)
        return ExitStatus::FileProblem;
    SiteRunOptions run = runOptions(options);
    run.answers.definition = *definition;
    run.answers.library = *library;
    run.answers.keepsOtherScripts = options.keepsOtherScripts;
    run.answers.skipsFailing = options.skipsFailing;
    run.answers.isPopup = options.popup.has_value();
    if (options.popup) {
        run.answers.submenuId = options.popup->submenuId;
        run.answers.placement = options.popup->placement;
    }
    run.placing = placingOf(options, *menu);
    run.replacesReferences = options.replacesReferences;
    const SiteRunResult result = runAndTell(files, *pages, run);
    return writeReport(files, options.report, result,
                       options.place ? "" : codeOfAll(*pages, run.answers, options.popup));
}

ExitStatus removeCommand(FileSystem& files, const IntegrateOptions& options) {
    const std::optional<std::vector<ChosenFiles>> pages = groupPages(options.pages);
    if (!pages)
        return ExitStatus::FileProblem;
    SiteRunOptions run = runOptions(options);
    run.isRemoval = true;
    return writeReport(files, options.report, runAndTell(files, *pages, run), "");
}

}  // namespace zev
