// SPDX-License-Identifier: MIT
#include "integrator/page_list.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>

#include "html/html_characters.h"
#include "html/html_parse.h"
#include "text/path.h"
#include "text/pattern.h"
#include "text/percent_encoding.h"

namespace zev {

namespace {

bool matchesAny(std::string_view path, const std::vector<std::string>& patterns) {
    return std::any_of(
        patterns.begin(), patterns.end(),
        [&](const std::string& pattern) { return matchesPattern(path, pattern); });
}

using GoesOn = std::function<bool(std::size_t foundCount)>;

class PageFinder {
  public:
    PageFinder(const FileSystem& files, PagePatterns patterns, const GoesOn& goesOn)
        : m_files(files), m_patterns(std::move(patterns)), m_goesOn(goesOn) {
        if (m_patterns.included.empty())
            m_patterns.included = {"*.htm", "*.html"};
    }

    FoundPages findIn(const std::string& folder) {
        std::vector<Folder> waiting{{folder, ""}};
        while (!waiting.empty() && !m_found.isStopped) {
            const Folder next = std::move(waiting.back());
            waiting.pop_back();
            std::vector<Folder> inside = lookInto(next);
            // The first of them is to come next.
            waiting.insert(waiting.end(), inside.rbegin(), inside.rend());
        }
        return std::move(m_found);
    }

  private:
    struct Folder {
        std::string path;
        std::string prefix;  ///< its path from the first folder on, with a slash at the end
    };

    /// Takes the folder's pages and gives its subfolders.
    std::vector<Folder> lookInto(const Folder& folder) {
        std::vector<Folder> inside;
        const FileResult<std::vector<std::string>> names = m_files.listFolder(folder.path);
        if (!names.isOk()) {
            m_found.errors.push_back(names.error());
            return inside;
        }
        for (const std::string& name : names.value()) {
            if (m_found.isStopped = isStopped(); m_found.isStopped)
                break;
            std::string path = Path(folder.path).child(name);
            const std::string fromStart = folder.prefix + name;
            if (m_files.entryAt(path) == DiskEntry::Link ||
                matchesAny(fromStart, m_patterns.excluded))
                continue;
            if (m_files.isFolder(path))
                inside.push_back({std::move(path), fromStart + "/"});
            else if (matchesAny(fromStart, m_patterns.included) && !matchesPattern(name, "*.bak*"))
                m_found.paths.push_back(std::move(path));
        }
        return inside;
    }

    /// Looking at one entry is quicker than asking.
    bool isStopped() {
        constexpr std::size_t kEntries = 64;
        return ++m_entryCount % kEntries == 0 && m_goesOn && !m_goesOn(m_found.paths.size());
    }

    const FileSystem& m_files;
    PagePatterns m_patterns;
    const GoesOn& m_goesOn;
    std::size_t m_entryCount = 0;
    FoundPages m_found;
};

/// The path of an address within its site, without a slash at its beginning, and decoded; of an
/// address alone, such as "https://shop.example", nothing.
std::string_view sitePath(std::string_view address) {
    const std::size_t scheme = address.find("://");
    if (scheme == std::string_view::npos)
        return {};
    address = address.substr(0, address.find_first_of("?#"));
    const std::size_t slash = address.find('/', scheme + 3);
    return slash == std::string_view::npos ? std::string_view() : address.substr(slash + 1);
}

/// Whether each of its pieces names something below the folder.
bool staysBelow(std::string_view path) {
    return ("/" + std::string(path) + "/").find("/../") == std::string::npos &&
           path.find('\0') == std::string_view::npos;
}

std::string trimmed(std::string_view text) {
    while (!text.empty() && isHtmlSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isHtmlSpace(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

std::string withoutReferences(std::string text) {
    text = replaceAll(text, "&apos;", "'");
    text = replaceAll(text, "&quot;", "\"");
    text = replaceAll(text, "&lt;", "<");
    text = replaceAll(text, "&gt;", ">");
    return replaceAll(text, "&amp;", "&");
}

}  // namespace

FoundPages findPages(const FileSystem& files, const std::string& folder,
                     const PagePatterns& patterns,
                     const std::function<bool(std::size_t foundCount)>& goesOn) {
    return PageFinder(files, patterns, goesOn).findIn(folder);
}

std::vector<std::string> pathsInList(std::string_view list) {
    const bool hasNul = list.find('\0') != std::string_view::npos;
    std::vector<std::string> paths;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(hasNul ? '\0' : '\n'), list.size());
        std::string_view path = list.substr(0, end);
        if (!hasNul && path.ends_with('\r'))
            path.remove_suffix(1);
        if (!path.empty())
            paths.emplace_back(path);
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return paths;
}

bool isSiteMap(std::string_view text) {
    return text.find('\0') == std::string_view::npos && text.find("<urlset") != text.npos;
}

std::vector<std::string> pathsInSiteMap(const FileSystem& files, std::string_view map,
                                        const std::string& folder) {
    std::vector<std::string> paths;
    std::set<std::string> known;
    HtmlParse parser;
    for (parser.Load(map); !parser.IsLast(); parser.Next()) {
        if (parser.TagName() != "loc")
            continue;
        parser.Next();
        const std::string address = withoutReferences(trimmed(parser.Text()));
        const std::string place = percentDecoded(sitePath(address));
        if (address.find("://") == std::string::npos || !staysBelow(place))
            continue;
        std::string path = Path(folder).child(place);
        if (place.empty() || place.ends_with('/')) {
            const std::string index = path + "index.html";
            path += files.FileExists(path + "index.htm") && !files.FileExists(index) ? "index.htm"
                                                                                     : "index.html";
        }
        if (known.insert(path).second)
            paths.push_back(std::move(path));
    }
    return paths;
}

}  // namespace zev
