// SPDX-License-Identifier: MIT
#include "checks/link_problems.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "checks/item_names.h"
#include "html/caption_text.h"
#include "html/html_attributes.h"
#include "html/html_parse.h"
#include "html/server_blocks.h"
#include "text/ascii.h"
#include "text/path.h"

namespace zev {

namespace {

using Kind = MenuProblem::Kind;
using Reason = MenuProblem::Reason;

constexpr std::uint64_t kMaxPageBytes = std::uint64_t{64} << 20;

/// "http:", "javascript:", but "a/b:c" has none.
bool hasScheme(std::string_view url) {
    const std::size_t end = url.find_first_of(":/?#");
    return end != std::string_view::npos && end > 0 && url[end] == ':';
}

std::string percentDecoded(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned char byte = 0;
        if (text[at] == '%' && at + 2 < text.size()) {
            const char* const digits = text.data() + at + 1;
            const auto [end, error] = std::from_chars(digits, digits + 2, byte, 16);
            if (error == std::errc() && end == digits + 2) {
                result += static_cast<char>(byte);
                at += 2;
                continue;
            }
        }
        result += text[at];
    }
    return result;
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

class LinkFinder {
  public:
    LinkFinder(const MenuContent& content, const FileSystem& files, const SiteFolders& folders)
        : m_content(content), m_files(files), m_folders(folders) {}

    std::vector<MenuProblem> find() {
        checkBackground(m_content.DefaultProp, nullptr, true);
        checkBackground(m_content.RootMenuProp, nullptr, false);
        const MenuTree& tree = m_content.tree;
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
            const ItemProp& item = node->item;
            checkLink(*node, withoutEscapes(item.URL));
            if (item.IsRollover) {
                checkImage(item.ImageOut, {.item = node, .field = "out"});
                checkImage(item.ImageOver, {.item = node, .field = "over"});
            } else {
                checkCaption(*node);
            }
            checkBackground(*item.MenuProperty, node, false);
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
        if (!url.starts_with('/'))
            return m_folders.definition.empty()
                       ? path
                       : Path::onThisSystem(m_folders.definition).child(path);
        if (m_folders.root.empty())
            return {};
        return Path::onThisSystem(m_folders.root).child(std::string_view(path).substr(1));
    }

    bool isThere(const std::string& path) const {
        return m_files.FileExists(path) || m_files.isFolder(path);
    }

    void checkLink(const MenuNode& node, const std::string& url) {
        const std::optional<std::string> file = fileOf(url);
        if (!file)
            return;
        const std::size_t hash = url.find('#');
        const std::string anchor =
            hash == std::string::npos ? "" : percentDecoded(std::string_view(url).substr(hash + 1));
        if (!isThere(*file))
            tell({Kind::Link, Reason::NoFile, &node, false, false, "url", url});
        else if (!anchor.empty() && !hasAnchor(*file, anchor))
            tell({Kind::Anchor, Reason::NoAnchor, &node, false, false, "url", url});
    }

    /// True also where nothing can be said of it.
    bool hasAnchor(const std::string& path, const std::string& anchor) {
        if (!isHtmlFile(path) || equalsIgnoringCase(anchor, "top"))
            return true;
        const auto known = m_anchors.find(path);
        if (known != m_anchors.end())
            return known->second.contains(anchor);
        const FileResult<std::string> page = m_files.readFile(path, kMaxPageBytes);
        if (!page.isOk())
            return true;
        return m_anchors.emplace(path, anchorsOf(page.value())).first->second.contains(anchor);
    }

    void checkImage(std::string_view value, MenuProblem problem) {
        problem.kind = Kind::Image;
        problem.reason = Reason::NoFile;
        problem.value = withoutEscapes(value);
        const std::optional<std::string> file = fileOf(problem.value);
        if (file && !m_files.FileExists(*file))
            tell(std::move(problem));
    }

    void checkBackground(const MenuProp& prop, const MenuNode* node, bool isDefault) {
        checkImage(prop.BgImg,
                   {.item = node, .isDefault = isDefault, .isProperty = true, .field = "bgimage"});
    }

    void checkCaption(const MenuNode& node) {
        const std::string caption = withoutEscapes(node.item.Caption);
        HtmlParse html;
        html.Load(caption);
        for (;; html.Next()) {
            if (html.TagName() == "img") {
                const std::string source(html.Attribute("src"));
                checkImage(source, {.item = &node, .field = "caption"});
                if (!hasAlt(html.TagText()))
                    tell({Kind::Image, Reason::NoAlternative, &node, false, false, "caption",
                          source});
            }
            if (html.IsLast())
                return;
        }
    }

    /// An empty one says that the image is decoration.
    static bool hasAlt(std::string_view tag) {
        ServerBlocks blocks(tag);
        HtmlAttributeReader attributes(tag, blocks, std::string_view("img").size());
        HtmlAttribute attribute;
        while (attributes.next(attribute))
            if (equalsIgnoringCase(
                    tag.substr(attribute.nameBegin, attribute.nameEnd - attribute.nameBegin),
                    "alt"))
                return true;
        return false;
    }

    void tell(MenuProblem problem) { m_problems.push_back(std::move(problem)); }

    const MenuContent& m_content;
    const FileSystem& m_files;
    const SiteFolders& m_folders;
    std::map<std::string, std::set<std::string>> m_anchors;  ///< by page
    std::vector<MenuProblem> m_problems;
};

}  // namespace

std::vector<MenuProblem> findBrokenLinks(const MenuContent& content, const FileSystem& files,
                                         const SiteFolders& folders) {
    return LinkFinder(content, files, folders).find();
}

}  // namespace zev
