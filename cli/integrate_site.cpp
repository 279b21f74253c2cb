// SPDX-License-Identifier: MIT
#include "cli/integrate_site.h"

#include "cli/command_arguments.h"
#include "cli/command_paths.h"
#include "integrator/page_list.h"
#include "text/path.h"

namespace zev {

namespace {

void addPatterns(CLI::App& command, const std::string& name, std::vector<std::string>& patterns,
                 const std::string& description, CLI::Option* needed) {
    command.add_option(name, patterns, description)
        ->type_name("PATTERN")
        ->allow_extra_args(false)
        ->check(refuseEmpty)
        ->needs(needed);
}

bool addFolderPages(const FileSystem& files, const SiteArguments& site,
                    std::vector<std::string>& pages) {
    const std::optional<std::string> folder = fullFolder(site.folder);
    if (!folder)
        return false;
    const FoundPages found = findPages(files, *folder, {site.included, site.excluded});
    for (const FileError& error : found.errors)
        printProblem(error);
    pages.insert(pages.end(), found.paths.begin(), found.paths.end());
    return found.errors.empty();
}

bool addListedPages(const FileSystem& files, const std::string& path,
                    std::vector<std::string>& pages) {
    const FileResult<std::string> list = readInputFile(files, path);
    if (!list.isOk()) {
        printProblem(list.error());
        return false;
    }
    std::vector<std::string> listed;
    if (isSiteMap(list.value())) {
        const std::optional<std::string> map = fullPath(path == "-" ? "sitemap.xml" : path);
        if (!map)
            return false;
        listed = pathsInSiteMap(files, list.value(), std::string(Path(*map).folder()));
    } else {
        listed = pathsInList(list.value());
    }
    pages.insert(pages.end(), listed.begin(), listed.end());
    return true;
}

}  // namespace

void addSiteOptions(CLI::App& command, SiteArguments& site) {
    CLI::Option* const folder =
        command.add_option("--recursive", site.folder, "The pages in and below this folder, too")
            ->type_name("FOLDER")
            ->check(refuseEmpty);
    addPatterns(command, "--include", site.included,
                "There, only these (without it, *.htm and *.html)", folder);
    addPatterns(command, "--exclude", site.excluded, "There, none of these", folder);
    command.add_option("--files-from", site.list, "The pages in this list, or site map, too")
        ->type_name("FILE")
        ->check(refuseEmpty);
}

std::optional<ExitStatus> addSitePages(const FileSystem& files, const SiteArguments& site,
                                       std::vector<std::string>& pages) {
    // What cannot be listed is no reason to do half of a site.
    if (!site.folder.empty() && !addFolderPages(files, site, pages))
        return ExitStatus::FileProblem;
    if (!site.list.empty() && !addListedPages(files, site.list, pages))
        return ExitStatus::FileProblem;
    if (!pages.empty())
        return {};
    printProblem("no pages found");
    return ExitStatus::Counted;
}

}  // namespace zev
