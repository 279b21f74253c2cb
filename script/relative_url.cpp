// SPDX-License-Identifier: MIT
#include "script/relative_url.h"

#include <algorithm>
#include <cstddef>

#include "text/ascii.h"
#include "text/path.h"

namespace zev {

namespace {

constexpr auto kNpos = std::string_view::npos;
constexpr std::string_view kParentStep = "../";

/// True for addresses that no folder has a part in. A full "https://" or "ftp://" address is not
/// among them and is treated like a relative URL.
bool isAddress(std::string_view url) {
    std::string lowerCase(url);
    std::transform(lowerCase.begin(), lowerCase.end(), lowerCase.begin(), asciiLower);
    return lowerCase.starts_with("http://") || lowerCase.starts_with("javascript:") ||
           lowerCase.starts_with("mailto:") || lowerCase == "ftp://" || lowerCase == "https://";
}

/// A URL with a leading slash starts at the root of the web site, which no folder of the system
/// tells.
bool isSiteRootURL(const Path& base, std::string_view url) {
    return base.kind() == Path::Kind::System && url.starts_with('/');
}

/// A folder of the system may be given with slashes at its end.
Path baseFolder(std::string_view base) {
    const Path folder(base);
    return folder.kind() == Path::Kind::System ? Path(folder.withoutTrailingSeparators()) : folder;
}

/// A drive's folder gets a separator whatever it ends in.
std::string withSeparator(const Path& folder) {
    std::string path(folder.text());
    if (!folder.isSystemRoot())
        path += folder.separator();
    return path;
}

void rebaseItem(ItemProp& item, std::string_view oldFolder, std::string_view newFolder) {
    for (std::string* url : {&item.URL, &item.ImageOut, &item.ImageOver})
        *url = RebaseURL(oldFolder, newFolder, *url);
    if (!item.MenuProperty->BgImg.empty()) {
        std::string& background = item.MenuProperty.edit().BgImg;
        background = RebaseURL(oldFolder, newFolder, background);
    }
}

}  // namespace

PathParts SplitPath(std::string_view path) {
    const Path parts(path);
    return {std::string(parts.name()), std::string(parts.folder())};
}

std::string ToRelativeURL(std::string_view base, std::string_view path) {
    const Path file(path);
    const Path folder = baseFolder(base);
    const bool isFull = file.kind() == Path::Kind::Drive || file.kind() == Path::Kind::System;
    if (!isFull || folder.firstCharacter() != file.firstCharacter())
        return std::string(path);

    const char separator = folder.separator();
    const std::string start = withSeparator(folder);
    std::string_view folderRest = start;
    std::size_t end = folderRest.find(separator);
    while (end != kNpos && path.starts_with(folderRest.substr(0, end + 1))) {
        folderRest.remove_prefix(end + 1);
        path.remove_prefix(end + 1);
        end = folderRest.find(separator);
    }

    std::string url;
    for (const char c : folderRest)
        if (c == separator)
            url += kParentStep;
    url += path;
    std::replace(url.begin(), url.end(), separator, '/');
    return url;
}

std::string ToAbsolutePath(std::string_view base, std::string_view url) {
    Path folder = baseFolder(base);
    if (Path(url).isDriveRoot() || isAddress(url) || isSiteRootURL(folder, url))
        return std::string(url);

    while (url.starts_with(kParentStep)) {
        url.remove_prefix(kParentStep.size());
        folder = Path(folder.folder());
    }
    std::string path = withSeparator(folder);
    const std::size_t urlOffset = path.size();
    path += url;
    std::replace(path.begin() + static_cast<std::ptrdiff_t>(urlOffset), path.end(), '/',
                 folder.separator());
    return path;
}

std::string RebaseURL(std::string_view oldFolder, std::string_view newFolder,
                      std::string_view url) {
    if (url.empty() || isSiteRootURL(Path(oldFolder), url))
        return std::string(url);
    return ToRelativeURL(newFolder, ToAbsolutePath(oldFolder, url));
}

void RebaseAllURLs(MenuContent& content, std::string_view oldFolder, std::string_view newFolder) {
    if (oldFolder == newFolder)
        return;
    MenuTree& tree = content.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        rebaseItem(tree.edit(*node).item, oldFolder, newFolder);
}

Changes RebaseAllURLs(MenuDocument& document, std::string_view oldFolder,
                      std::string_view newFolder) {
    Changes changes;
    if (oldFolder == newFolder)
        return changes;
    const MenuTree& tree = document.tree();
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        SetItem change{node, node->item};
        rebaseItem(change.item, oldFolder, newFolder);
        if (change.item != node->item)
            changes.push_back(std::move(change));
    }
    return document.apply(std::move(changes));
}

}  // namespace zev
