// SPDX-License-Identifier: MIT
#include "checks/link_problems.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "checks/item_names.h"
#include "html/caption_text.h"
#include "html/html_parse.h"
#include "text/ascii.h"
#include "text/path.h"
#include "text/percent_encoding.h"

namespace zev {

namespace {

using Kind = MenuProblem::Kind;
using Reason = MenuProblem::Reason;

constexpr std::uint64_t kMaxPageBytes = std::uint64_t{64} << 20;

/// Of a page, and of all together, that nobody has asked to read.
constexpr std::uint64_t kMaxUnaskedPageBytes = std::uint64_t{4} << 20;
constexpr std::uint64_t kMaxUnaskedBytes = std::uint64_t{16} << 20;

/// "http:", "javascript:", but "a/b:c" has none.
bool hasScheme(std::string_view url) {
    const std::size_t end = url.find_first_of(":/?#");
    return end != std::string_view::npos && end > 0 && url[end] == ':';
}

bool isHtmlFile(std::string_view path) {
    const std::string_view extension = path.substr(std::min(path.rfind('.'), path.size()));
    return equalsIgnoringCase(extension, ".html") || equalsIgnoringCase(extension, ".htm") ||
           equalsIgnoringCase(extension, ".xhtml");
}

/// The names of the places in a page that a link can lead to.
std::set<std::string> anchorsOf(std::string_view page) {
    std::set<std::string> anchors;
    HtmlParse html;
    html.Load(page);
    for (;; html.Next()) {
        if (html.IsTag()) {
            anchors.insert(captionText(html.Attribute("id")));
            if (html.TagName() == "a")
                anchors.insert(captionText(html.Attribute("name")));
        }
        if (html.IsLast())
            return anchors;
    }
}

/// How many folders above the file the way to it leads through at the least, from the root of the
/// disk. The way is `path` from a folder that lies `level` folders deep.
int lowestLevel(int level, std::string_view path) {
    int lowest = level;
    while (!path.empty()) {
        const std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(step.size() + 1, path.size()));
        if (step == "..")
            lowest = std::min(lowest, --level);
        else if (!step.empty() && step != ".")
            ++level;
    }
    return lowest;
}

int levelOf(std::string_view folder) {
    int level = 0;
    for (std::size_t at = 0; at < folder.size(); ++at)
        level += folder[at] == '/' && at + 1 < folder.size() && folder[at + 1] != '/' ? 1 : 0;
    return level;
}

class LinkFinder {
  public:
    LinkFinder(const MenuContent& content, const FileSystem& files, const SiteFolders& folders)
        : m_content(content), m_files(files), m_folders(folders) {}

    std::vector<MenuProblem> find() {
        checkMenu(m_content.DefaultProp, nullptr, true);
        checkMenu(m_content.RootMenuProp, nullptr, false);
        const MenuTree& tree = m_content.tree;
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
            const ItemProp& item = node->item;
            checkLink(*node, withoutEscapes(item.URL));
            if (item.IsRollover) {
                checkImage(item.ImageOut, {.item = node, .field = "out"});
                checkImage(item.ImageOver, {.item = node, .field = "over"});
            } else {
                checkHtml(item.Caption, {.item = node, .field = "caption"});
            }
            checkMenu(*item.MenuProperty, node, false);
        }
        return std::move(m_problems);
    }

  private:
    /// The file that an address means; none when it is not to be looked up.
    std::optional<std::string> fileOf(std::string_view url) const {
        url = url.substr(0, url.find_first_of("?#"));
        if (url.empty() || hasScheme(url) || url.starts_with("//"))
            return {};
        const std::string path = percentDecoded(url);
        if (!url.starts_with('/')) {
            if (m_folders.isUnasked && lowestLevel(m_level, path) < 1)
                return {};
            return m_folders.definition.empty()
                       ? path
                       : Path::onThisSystem(m_folders.definition).child(path);
        }
        if (m_folders.root.empty())
            return {};
        return Path::onThisSystem(m_folders.root).child(std::string_view(path).substr(1));
    }

    /// Menus lead to the same few files again and again.
    bool isFile(const std::string& path) {
        const auto [known, isNew] = m_isFile.try_emplace(path, false);
        if (isNew)
            known->second = m_files.FileExists(path);
        return known->second;
    }
    bool isThere(const std::string& path) { return isFile(path) || m_files.isFolder(path); }

    void checkLink(const MenuNode& node, const std::string& url) {
        const std::optional<std::string> file = fileOf(url);
        if (!file)
            return;
        const std::size_t hash = url.find('#');
        const std::string anchor =
            hash == std::string::npos ? "" : percentDecoded(std::string_view(url).substr(hash + 1));
        if (!isThere(*file))
            tell({Kind::Link, Reason::NoFile, &node, false, false, "url", url});
        else if (!anchor.empty() && mayRead(url) && !hasAnchor(*file, anchor))
            tell({Kind::Anchor, Reason::NoAnchor, &node, false, false, "url", url});
    }

    bool mayRead(std::string_view url) const {
        if (!m_folders.isUnasked)
            return true;
        const std::string path = percentDecoded(url.substr(0, url.find_first_of("?#")));
        return !path.starts_with('/') && lowestLevel(m_level, path) >= m_level;
    }

    /// True also where nothing can be said of it.
    bool hasAnchor(const std::string& path, const std::string& anchor) {
        if (!isHtmlFile(path) || equalsIgnoringCase(anchor, "top"))
            return true;
        const auto [known, isNew] = m_anchors.try_emplace(path);
        if (isNew)
            known->second = readAnchors(path);
        return !known->second || known->second->contains(anchor);
    }

    std::optional<std::set<std::string>> readAnchors(const std::string& path) {
        const std::uint64_t most = m_folders.isUnasked
                                       ? std::min(kMaxUnaskedPageBytes, m_unaskedBytesLeft)
                                       : kMaxPageBytes;
        const FileResult<std::string> page = m_files.readFile(path, most);
        if (m_folders.isUnasked)
            m_unaskedBytesLeft -= page.isOk() ? page.value().size() : most;
        if (!page.isOk())
            return {};
        return anchorsOf(page.value());
    }

    void checkImage(std::string_view value, MenuProblem problem) {
        problem.kind = Kind::Image;
        problem.reason = Reason::NoFile;
        problem.value = withoutEscapes(value);
        const std::optional<std::string> file = fileOf(problem.value);
        if (file && !isFile(*file))
            tell(std::move(problem));
    }

    void checkMenu(const MenuProp& prop, const MenuNode* node, bool isDefault) {
        const auto problemOf = [&](const char* field) {
            return MenuProblem{
                .item = node, .isDefault = isDefault, .isProperty = true, .field = field};
        };
        checkImage(prop.BgImg, problemOf("bgimage"));
        checkHtml(prop.HTMLAfter, problemOf("htmlAfter"));
        checkHtml(prop.HTMLBefore, problemOf("htmlBefore"));
        checkHtml(prop.Divider, problemOf("divider"));
        checkHtml(prop.marker, problemOf("marker"));
    }

    void checkHtml(std::string_view value, MenuProblem problem) {
        if (value.find('<') == std::string_view::npos)
            return;
        const std::string text = withoutEscapes(value);
        HtmlParse html;
        html.Load(text);
        for (;; html.Next()) {
            if (html.TagName() == "img") {
                problem.value = html.Attribute("src");
                checkImage(problem.value, problem);
                problem.kind = Kind::Image;
                problem.reason = Reason::NoAlternative;
                // An empty one says that the image is decoration.
                if (!html.hasAttribute("alt"))
                    tell(problem);
            }
            if (html.IsLast())
                return;
        }
    }

    void tell(MenuProblem problem) { m_problems.push_back(std::move(problem)); }

    const MenuContent& m_content;
    const FileSystem& m_files;
    const SiteFolders& m_folders;
    const int m_level = levelOf(m_folders.definition);
    std::uint64_t m_unaskedBytesLeft = kMaxUnaskedBytes;
    std::unordered_map<std::string, bool> m_isFile;  ///< by path
    /// By page; none where it cannot be read.
    std::map<std::string, std::optional<std::set<std::string>>> m_anchors;
    std::vector<MenuProblem> m_problems;
};

}  // namespace

std::vector<MenuProblem> findBrokenLinks(const MenuContent& content, const FileSystem& files,
                                         const SiteFolders& folders) {
    return LinkFinder(content, files, folders).find();
}

}  // namespace zev
