// SPDX-License-Identifier: MIT
#include "cli/integrator_commands.h"

#include <map>
#include <set>

#include "cli/command_paths.h"
#include "integrator/page_integration.h"
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

}  // namespace

ExitStatus linkcodeCommand(const std::string& definitionURL,
                           const std::optional<PopupOptions>& popup) {
    return writeStandardOutput(codeToPaste(std::string(trimSpaces(definitionURL)), popup))
               ? ExitStatus::Done
               : ExitStatus::FileProblem;
}

ExitStatus integrateCommand(FileSystem& files, const IntegrateOptions& options) {
    const std::optional<std::vector<PageGroup>> groups = groupPages(options);
    if (!groups)
        return ExitStatus::FileProblem;
    std::string report;
    bool hasFailed = false;
    for (const PageGroup& group : *groups) {
        for (const std::string& name : group.files.names) {
            PageIntegrator integrator(files, {{group.urls.library, options.keepsOtherScripts},
                                              options.hasBackups,
                                              options.isDryRun});
            integrator.IntegratePages({group.files.folder, {name}});
            report += integrator.report();
            if (!integrator.hasFailed())
                continue;
            hasFailed = true;
            if (!options.report.empty())
                printProblem(pagePath(group.files.folder, name) + ": failed; see the report");
        }
    }
    std::string output = codeOfAll(*groups, options);
    if (options.report.empty()) {
        output = withUnixLineEnds(report) + output;
    } else if (const FileOutcome error =
                   files.writeFile(options.report, report + "\r\n", Links::Followed)) {
        printProblem(*error);
        return ExitStatus::FileProblem;
    }
    if (!writeStandardOutput(output))
        return ExitStatus::FileProblem;
    return hasFailed ? ExitStatus::Counted : ExitStatus::Done;
}

}  // namespace zev
