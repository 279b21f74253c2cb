// SPDX-License-Identifier: MIT
#include "checks/menu_links.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/item_names.h"
#include "checks/menu_levels.h"
#include "html/caption_text.h"
#include "html/html_parse.h"
#include "script/link_url.h"
#include "text/ascii.h"
#include "text/pattern.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

/// The code point that well-formed UTF-8 bytes stand for.
std::uint32_t codePointOf(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    std::uint32_t codePoint = first & (0xFFu >> (bytes.size() + 1));
    for (const char tail : bytes.substr(1))
        codePoint = (codePoint << 6) | (static_cast<unsigned char>(tail) & 0x3Fu);
    return codePoint;
}

/// As text or attribute value, in ASCII.
std::string escaped(std::string_view text) {
    std::string html;
    while (!text.empty()) {
        const std::string_view character = firstCodePoint(text);
        text.remove_prefix(character.size());
        if (character.size() > 1)
            html += "&#" + std::to_string(codePointOf(character)) + ";";
        else if (character == "&")
            html += "&amp;";
        else if (character == "<")
            html += "&lt;";
        else if (character == ">")
            html += "&gt;";
        else if (character == "\"")
            html += "&quot;";
        else
            html += character;
    }
    return html;
}

/// What people read of a caption, with the alternatives of its images.
std::string textOfCaption(const std::string& caption) {
    std::string html;
    HtmlParse parser;
    for (parser.Load(caption);; parser.Next()) {
        if (!parser.IsTag())
            html += parser.Text();
        else if (parser.TagName() == "img")
            html += parser.Attribute("alt");
        else if (parser.TagName() == "br")
            html += ' ';
        if (parser.IsLast())
            return captionText(html);
    }
}

/// "pages/our_team.html#top" is "top", "pages/our_team.html" is "our team"; the run-time library
/// names items without words so.
std::string nameFromFile(std::string_view url) {
    if (isScriptURL(url))
        return "";
    url = url.substr(0, url.find('?'));
    const std::size_t hash = url.rfind('#');
    if (hash != std::string_view::npos && hash + 1 < url.size())
        url.remove_prefix(hash + 1);
    while (url.ends_with('#') || url.ends_with('/'))
        url.remove_suffix(1);
    url.remove_prefix(url.rfind('/') + 1);
    const std::size_t dot = url.rfind('.');
    if (dot != std::string_view::npos && dot + 1 < url.size() &&
        std::all_of(url.begin() + static_cast<std::ptrdiff_t>(dot) + 1, url.end(),
                    [](char c) { return isAsciiLetter(c) || isAsciiDigit(c); }))
        url.remove_suffix(url.size() - dot);
    std::string name = replaceAll(url, "%20", " ");
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '_' || c == '+' || c == '-'; }, ' ');
    name.erase(
        std::unique(name.begin(), name.end(), [](char a, char b) { return a == ' ' && b == ' '; }),
        name.end());
    return std::string(trimSpaces(name));
}

std::string linkText(const ItemProp& item) {
    if (!item.IsRollover)
        if (std::string text = textOfCaption(withoutEscapes(item.Caption)); !text.empty())
            return text;
    const std::string name = nameFromFile(cleanURL(withoutEscapes(item.URL)));
    if (!name.empty() || !item.IsRollover)
        return name;
    std::string image = nameFromFile(withoutEscapes(item.ImageOut));
    for (const std::string_view state : {" out", " off", " normal"})
        if (image.size() > state.size() &&
            equalsIgnoringCase(std::string_view(image).substr(image.size() - state.size()), state))
            return image.substr(0, image.size() - state.size());
    return image;
}

class LinkListWriter {
  public:
    LinkListWriter(const MenuContent& content, const std::string& base, bool hasLines)
        : m_content(content), m_base(base), m_hasLines(hasLines) {}

    std::string list() {
        if (m_content.tree.isEmpty())
            return "";
        put("<ul>");
        visitLevels(m_content.tree, [this](const MenuNode& node, std::size_t level) {
            closeTo(level);
            openItem(node);
        });
        closeTo(0);
        put("</ul>");
        return std::move(m_html);
    }

  private:
    /// On a line of its own.
    void put(std::string_view html) {
        if (m_hasLines)
            m_html.append(2 * (2 * m_isOpenWithList.size()), ' ');
        m_html += html;
        if (m_hasLines)
            m_html += '\n';
    }

    void openItem(const MenuNode& node) {
        if (m_hasLines)
            m_html.append(4 * m_isOpenWithList.size() + 2, ' ');
        m_html += "<li>" + linkOf(node);
        m_isOpenWithList.push_back(node.hasChildren());
        if (!node.hasChildren())
            return;
        if (m_hasLines)
            m_html += '\n';
        put("<ul>");
    }

    void closeTo(std::size_t level) {
        while (m_isOpenWithList.size() > level) {
            const bool hasList = m_isOpenWithList.back();
            if (hasList)
                put("</ul>");
            m_isOpenWithList.pop_back();
            if (hasList && m_hasLines)
                m_html.append(4 * m_isOpenWithList.size() + 2, ' ');
            m_html += "</li>";
            if (m_hasLines)
                m_html += '\n';
        }
    }

    std::string linkOf(const MenuNode& node) const {
        const std::string text = escaped(linkText(node.item));
        const std::string url = withoutEscapes(node.item.URL);
        if (cleanURL(url).empty() || isScriptURL(cleanURL(url)))
            return text;
        const std::string target = targetOf(node);
        return "<a href=\"" + escaped(resolveLink(m_base, url)) + "\"" +
               (target.empty() ? "" : " target=\"" + escaped(target) + "\"") + ">" + text + "</a>";
    }

    std::string targetOf(const MenuNode& node) const {
        const std::string& ofMenu = node.parent() ? node.parent()->item.MenuProperty->Target
                                                  : m_content.RootMenuProp.Target;
        const std::string& ofAll = ofMenu.empty() ? m_content.DefaultProp.Target : ofMenu;
        return withoutEscapes(node.item.Target.empty() ? ofAll : node.item.Target);
    }

    const MenuContent& m_content;
    const std::string& m_base;
    bool m_hasLines;
    std::vector<bool> m_isOpenWithList;  // for each open item
    std::string m_html;
};

}  // namespace

std::string menuLinkList(const MenuContent& content, const std::string& base) {
    return LinkListWriter(content, base, true).list();
}

std::string noScriptLinks(const MenuContent& content, const std::string& base) {
    const std::string list = LinkListWriter(content, base, false).list();
    if (list.empty())
        return "";
    const std::string& label = content.DefaultProp.label;
    return "<noscript><nav aria-label=\"" +
           escaped(label.empty() ? "Site menu" : withoutEscapes(label)) + "\">" + list +
           "</nav></noscript>";
}

std::string siteMap(const MenuContent& content, const std::string& base) {
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n";
    std::set<std::string> seen;
    const MenuTree& tree = content.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        std::string url = resolveLink(base, withoutEscapes(node->item.URL));
        url.resize(std::min(url.find('#'), url.size()));
        const bool isWebPage = equalsIgnoringCase(std::string_view(url).substr(0, 7), "http://") ||
                               equalsIgnoringCase(std::string_view(url).substr(0, 8), "https://");
        if (isWebPage && seen.insert(url).second)
            xml += "  <url><loc>" + escaped(url) + "</loc></url>\n";
    }
    return xml + "</urlset>\n";
}

}  // namespace zev
