// SPDX-License-Identifier: MIT
#include "integrator/page_groups.h"

#include <string_view>
#include <unordered_set>

#include "integrator/page_integration.h"
#include "script/relative_url.h"
#include "text/path.h"

namespace zev {

namespace {

/// What all paths in a folder begin with.
std::string beginningOf(const std::string& folder) {
    const char separator = Path(folder).separator();
    return folder.ends_with(separator) ? folder : folder + separator;
}

}  // namespace

std::vector<std::string> pagePaths(const ChosenFiles& pages) {
    std::vector<std::string> paths;
    paths.reserve(pages.names.size());
    for (const std::string& name : pages.names)
        paths.push_back(pagePath(pages.folder, name));
    return paths;
}

ChosenFiles chosenPages(const std::vector<std::string>& paths) {
    if (paths.empty())
        return {};
    ChosenFiles pages{SplitPath(paths.front()).folder, {}};
    std::string beginning = beginningOf(pages.folder);
    for (const std::string& path : paths) {
        while (!path.starts_with(beginning)) {
            const std::string above(Path(pages.folder).folder());
            if (above == pages.folder)
                return {};
            pages.folder = above;
            beginning = beginningOf(above);
        }
    }
    std::unordered_set<std::string_view> known;
    for (const std::string& path : paths)
        if (known.insert(path).second)
            pages.names.push_back(path.substr(beginning.size()));
    return pages;
}

std::vector<ChosenFiles> pagesByFolder(const ChosenFiles& pages) {
    std::vector<ChosenFiles> groups;
    const char separator = Path(pages.folder).separator();
    for (const std::string& name : pages.names) {
        const std::size_t end = name.rfind(separator);
        const std::string folder =
            end == std::string::npos ? pages.folder : pagePath(pages.folder, name.substr(0, end));
        if (groups.empty() || groups.back().folder != folder)
            groups.push_back({folder, {}});
        groups.back().names.push_back(end == std::string::npos ? name : name.substr(end + 1));
    }
    return groups;
}

}  // namespace zev
