// SPDX-License-Identifier: MIT
#include "integrator/placement.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "html/html_parse.h"
#include "html/html_tokenizer.h"
#include "integrator/inserted_code.h"
#include "text/ascii.h"
#include "text/pattern.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

/// Tells what the menu stands instead of.
std::string insteadComment(const MenuPlace& place) {
    std::string comment(kInsteadOpen);
    for (const char character : place.text.substr(place.text.find(':') + 1)) {
        // Two dashes would be an error in the comment of an XML page.
        if (character == '-' && comment.back() == '-')
            comment += ' ';
        comment += character;
    }
    return comment.append(kCommentEnd);
}

/// Puts new code between the marks that are there.
void replacePlacedMenu(std::string_view page, const std::vector<MarkedPart>& menus,
                       const std::string& code, Placement& placement) {
    const MarkedPart& menu = menus.front();
    const std::string_view old =
        page.substr(menu.contentBegin, menu.contentEnd - menu.contentBegin);
    std::string content = std::string(insteadNote(old)) + code;
    LineCounter lines(page);
    if (const std::string_view foreign = foreignPart(old); !foreign.empty())
        placement.notes.push_back(
            {PageNote::Kind::LeftOutOfMenu, lines.lineAt(menu.begin), std::string(foreign)});
    if (menus.size() > 1)
        placement.notes.push_back({PageNote::Kind::SeveralMenus, lines.lineAt(menus[1].begin), ""});
    if (content != old)
        placement.edits.push_back({menu.contentBegin, old.size(), std::move(content)});
}

void insertMenu(std::string_view page, const PlacedMenu& menu, Placement& placement) {
    const FoundPlace place = findPlace(page, menu.place);
    placement.problem = place.problem;
    if (place.problem)
        return;
    std::string text(kMenuOpen);
    if (menu.place.kind == MenuPlace::Kind::Instead)
        text += insteadComment(menu.place);
    text += menu.code;
    text += kMenuClose;
    placement.edits.push_back({place.offset, place.length, std::move(text)});
}

/// Puts the edits of the link among those of the menu; false when they touch each other.
bool addLinkEdits(std::vector<PageEdit> linkEdits, std::vector<PageEdit>& edits) {
    edits.insert(edits.end(), std::make_move_iterator(linkEdits.begin()),
                 std::make_move_iterator(linkEdits.end()));
    std::stable_sort(
        edits.begin(), edits.end(),
        [](const PageEdit& a, const PageEdit& b) { return a.offset < b.offset; });
    return std::adjacent_find(edits.begin(), edits.end(), [](const PageEdit& a, const PageEdit& b) {
               return a.offset + a.length > b.offset;
           }) == edits.end();
}

/// Follows which elements a text stands in.
class TextWalk {
  public:
    explicit TextWalk(std::string_view page) { m_parser.Load(page); }

    const HtmlParse& token() const { return m_parser; }

    /// True at a text that can become a link.
    bool isAtLinkableText() const {
        return !m_parser.IsTag() && !m_isRaw &&
               std::all_of(
                   m_levels.begin(), m_levels.end(), [](int level) { return level == 0; });
    }

    bool next() {
        if (m_parser.IsLast())
            return false;
        const std::string_view name = m_parser.TagName();
        m_isRaw = hasRawContent(name);
        for (std::size_t i = 0; i < kClosed.size(); ++i)
            if (name == kClosed[i] && (name != "a" || m_parser.hasAttribute("href")))
                m_levels[i] = 1;
            else if (name.starts_with('/') && name.substr(1) == kClosed[i])
                m_levels[i] = 0;
        m_parser.Next();
        return true;
    }

  private:
    /// No link can stand in these; none of them can stand in itself.
    static constexpr std::array<std::string_view, 6> kClosed = {"a",   "button",   "select",
                                                                "svg", "noscript", "template"};
    HtmlParse m_parser;
    bool m_isRaw = false;
    std::array<int, kClosed.size()> m_levels{};
};

bool isWordByte(char character) {
    return isAsciiLetter(character) || isAsciiDigit(character);
}

/// Whether a text that stands at an offset begins and ends as words do. In encodings of two bytes a
/// character, the second can look like a letter: there nothing may stand before the text that could
/// be a first one.
bool isWhole(std::string_view content, std::size_t at, std::size_t length, bool isUtf8) {
    const std::size_t end = at + length;
    if (at > 0) {
        const char before = content[at - 1];
        if (isWordByte(before) && isWordByte(content[at]))
            return false;
        if (static_cast<unsigned char>(before) >= 0x80 && !isUtf8)
            return false;
    }
    return end == content.size() || !isWordByte(content[end]) || !isWordByte(content[end - 1]);
}

/// The offset in a text token's content, or npos.
std::size_t findWhole(std::string_view content, std::string_view text) {
    std::size_t at = content.find(text);
    if (at == std::string_view::npos)
        return at;
    const bool isUtf8 = isValidUtf8(content);
    while (at != std::string_view::npos && !isWhole(content, at, text.size(), isUtf8))
        at = content.find(text, at + 1);
    return at;
}

/// The linked text between marks.
std::string linkedText(const LinkedText& link) {
    return std::string(kLinkOpen) + popupLinkTag(link.submenuId, link.placement) + link.text +
           "</a>" + std::string(kLinkClose);
}

}  // namespace

Placement placeMenu(std::string_view page, const PlacedMenu& menu) {
    Placement placement;
    const std::vector<MarkedPart> menus = findPlacedMenus(page);
    if (menus.empty())
        insertMenu(page, menu, placement);
    else
        replacePlacedMenu(page, menus, menu.code, placement);
    if (!menu.link || placement.problem)
        return placement;
    std::optional<std::vector<PageEdit>> linkEdits = linkTextEdits(page, *menu.link);
    if (linkEdits && addLinkEdits(std::move(*linkEdits), placement.edits))
        return placement;
    return {PlaceProblem::TextNotFound, {}, {}, false};
}

std::string placedMenuCode(const std::string& definitionURL) {
    return replaceAll(menuCode(definitionURL), "\r\n", "");
}

std::optional<std::vector<PageEdit>> linkTextEdits(std::string_view page, const LinkedText& link) {
    if (link.text.empty())
        return {};
    const std::string linked = linkedText(link);
    for (const MarkedPart& part : findLinkedTexts(page)) {
        const std::string_view old = page.substr(part.begin, part.end - part.begin);
        if (!old.ends_with(">" + link.text + "</a>" + std::string(kLinkClose)))
            continue;
        if (old == linked)
            return std::vector<PageEdit>();
        return std::vector<PageEdit>{{part.begin, old.size(), linked}};
    }
    TextWalk walk(page);
    do {
        if (!walk.isAtLinkableText())
            continue;
        const std::size_t at = findWhole(walk.token().Text(), link.text);
        if (at != std::string_view::npos)
            return std::vector<PageEdit>{{walk.token().offset() + at, link.text.size(), linked}};
    } while (walk.next());
    return {};
}

}  // namespace zev
