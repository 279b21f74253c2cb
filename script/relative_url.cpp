#include "script/relative_url.h"

#include <algorithm>
#include <cstddef>

#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

constexpr auto npos = std::string_view::npos;
constexpr std::string_view kParentStep = "../";

bool IsSystemPath(std::string_view path) {
    return path.starts_with('/');
}

/// The first code point of `text`, as bytes.
std::string_view FirstCharacter(std::string_view text) {
    std::size_t length = text.empty() ? 0 : 1;
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80)
        ++length;
    return text.substr(0, length);
}

/// True for "C:\" and whatever follows it; the drive may be any one character.
bool IsDrivePath(std::string_view path) {
    return path.substr(FirstCharacter(path).size()).starts_with(":\\");
}

bool IsDriveRoot(std::string_view path) {
    return IsDrivePath(path) && path.size() == FirstCharacter(path).size() + 2;
}

/// The root directory of the system ends in its separator already. A drive's root is not treated
/// so: the drive-letter rules add a separator to every base.
bool IsSystemRoot(std::string_view path) {
    return path == "/";
}

char SeparatorOf(std::string_view base) {
    return IsSystemPath(base) ? '/' : '\\';
}

/// A folder of the system may be given with slashes at its end.
std::string_view WithoutTrailingSlashes(std::string_view base) {
    while (IsSystemPath(base) && base.size() > 1 && base.ends_with('/'))
        base.remove_suffix(1);
    return base;
}

/// Offset of the last separator: in a path of the system itself a backslash is an ordinary
/// character.
std::size_t LastSeparator(std::string_view path) {
    return path.find_last_of(IsSystemPath(path) ? "/" : "/\\");
}

/// True for addresses that no folder has a part in. A full "https://" or "ftp://" address is not
/// among them and is treated like a relative URL.
bool IsAddress(std::string_view url) {
    std::string lowerCase(url);
    std::transform(lowerCase.begin(), lowerCase.end(), lowerCase.begin(), asciiLower);
    return matchesPattern(lowerCase, "http://*") || matchesPattern(lowerCase, "javascript:*") ||
           matchesPattern(lowerCase, "mailto:*") || lowerCase == "ftp://" ||
           lowerCase == "https://";
}

/// A URL with a leading slash starts at the root of the web site, which no folder of the system
/// tells.
bool IsSiteRootURL(std::string_view base, std::string_view url) {
    return IsSystemPath(base) && url.starts_with('/');
}

}  // namespace

PathParts SplitPath(std::string_view path) {
    const std::size_t separator = LastSeparator(path);
    if (separator == npos)
        return {std::string(path), ""};
    const bool isInSystemRoot = separator == 0 && IsSystemPath(path);
    return {std::string(path.substr(separator + 1)),
            isInSystemRoot ? "/" : std::string(path.substr(0, separator))};
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    const std::size_t last = LastSeparator(folder);
    const bool endsInSeparator = last != npos && last + 1 == folder.size();
    if (!folder.empty() && !endsInSeparator) {
        const bool isBareDrive = last == npos && folder.ends_with(':');
        path += last != npos ? folder[last] : isBareDrive ? '\\' : '/';
    }
    path += name;
    return path;
}

std::string ToRelativeURL(std::string_view base, std::string_view path) {
    if (!IsDrivePath(path) && !IsSystemPath(path))
        return std::string(path);
    if (FirstCharacter(base) != FirstCharacter(path))
        return std::string(path);

    base = WithoutTrailingSlashes(base);
    const char separator = SeparatorOf(base);
    std::string folder(base);
    if (!IsSystemRoot(base))
        folder += separator;
    std::string_view folderRest = folder;
    std::size_t folderEnd = folderRest.find(separator);
    std::size_t pathEnd = path.find(separator);
    while (folderEnd != npos && pathEnd != npos &&
           folderRest.substr(0, folderEnd) == path.substr(0, pathEnd)) {
        folderRest.remove_prefix(folderEnd + 1);
        path.remove_prefix(pathEnd + 1);
        folderEnd = folderRest.find(separator);
        pathEnd = path.find(separator);
    }

    std::string url;
    for (const char c : folderRest) {
        if (c == separator)
            url += kParentStep;
    }
    url += path;
    std::replace(url.begin(), url.end(), separator, '/');
    return url;
}

std::string ToAbsolutePath(std::string_view base, std::string_view url) {
    if (IsDriveRoot(url) || IsAddress(url) || IsSiteRootURL(base, url))
        return std::string(url);

    const char separator = SeparatorOf(base);
    base = WithoutTrailingSlashes(base);
    while (url.starts_with(kParentStep)) {
        url.remove_prefix(kParentStep.size());
        const std::size_t last = LastSeparator(base);
        base = base.substr(0, last == npos ? 0 : last);
    }
    std::string path(base);
    if (!IsSystemRoot(base))
        path += separator;
    const std::size_t urlOffset = path.size();
    path += url;
    std::replace(path.begin() + static_cast<std::ptrdiff_t>(urlOffset), path.end(), '/', separator);
    return path;
}

std::string RebaseURL(std::string_view oldFolder, std::string_view newFolder,
                      std::string_view url) {
    if (url.empty() || IsSiteRootURL(oldFolder, url))
        return std::string(url);
    return ToRelativeURL(newFolder, ToAbsolutePath(oldFolder, url));
}

namespace {

void RebaseItem(ItemProp& item, std::string_view oldFolder, std::string_view newFolder) {
    for (std::string* url : {&item.URL, &item.ImageOut, &item.ImageOver})
        *url = RebaseURL(oldFolder, newFolder, *url);
    if (!item.MenuProperty->BgImg.empty()) {
        std::string& background = item.MenuProperty.edit().BgImg;
        background = RebaseURL(oldFolder, newFolder, background);
    }
}

}  // namespace

void RebaseAllURLs(MenuContent& content, std::string_view oldFolder, std::string_view newFolder) {
    if (oldFolder == newFolder)
        return;
    MenuTree& tree = content.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        RebaseItem(tree.edit(*node).item, oldFolder, newFolder);
}

Changes RebaseAllURLs(MenuDocument& document, std::string_view oldFolder,
                      std::string_view newFolder) {
    Changes changes;
    if (oldFolder == newFolder)
        return changes;
    const MenuTree& tree = document.tree();
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        SetItem change{node, node->item};
        RebaseItem(change.item, oldFolder, newFolder);
        if (change.item != node->item)
            changes.push_back(std::move(change));
    }
    return document.apply(std::move(changes));
}

}  // namespace zev
