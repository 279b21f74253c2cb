// SPDX-License-Identifier: MIT
#include "integrator/inserted_code.h"

#include <optional>

#include "html/html_characters.h"
#include "text/ascii.h"

namespace zev {

namespace {

std::string_view withoutSpace(std::string_view text) {
    while (!text.empty() && isHtmlSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isHtmlSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The text without the piece it begins with, if that begins and ends so; white space before it
/// goes along.
std::string_view withoutPiece(std::string_view text, std::string_view begin, std::string_view end) {
    const std::string_view rest = withoutSpace(text);
    if (!rest.starts_with(begin))
        return text;
    const std::size_t found = rest.find(end, begin.size());
    return found == std::string_view::npos ? text : rest.substr(found + end.size());
}

bool isPageTag(std::string_view name) {
    return name == "head" || name == "body" || name == "/body";
}

}  // namespace

std::string_view commentText(const HtmlParse& parser) {
    return parser.Source().starts_with("<!--") ? withoutSpace(parser.Text()) : std::string_view();
}

bool loadsLibrary(const HtmlParse& parser) {
    return trimSpaces(parser.Attribute("src")).ends_with("zevmenu_loader.js");
}

bool isInsertedScript(const HtmlParse& parser) {
    if (parser.TagName() != "script" || parser.Attribute("language") != "JavaScript1.2")
        return false;
    const std::string_view script = withoutSpace(parser.Text());
    if (!parser.Attribute("src").empty())
        return loadsLibrary(parser) && script.empty();
    if (script == "ZEVCreateMenu()")
        return true;
    constexpr std::string_view kPathStart = "var zev_path = '";
    return script.starts_with(kPathStart) && script.ends_with("';") &&
           script.find(';') == script.size() - 1;
}

std::vector<MarkedPart> findMarkedParts(std::string_view page, std::string_view name) {
    std::vector<MarkedPart> parts;
    std::optional<MarkedPart> open;
    HtmlParse parser;
    for (parser.Load(page);; parser.Next()) {
        const std::string_view text = commentText(parser);
        const std::size_t end = parser.offset() + parser.Source().size();
        if (text == name) {
            open = MarkedPart{parser.offset(), end, 0, 0};
        } else if (open && text.starts_with('/') && text.substr(1) == name) {
            open->contentEnd = parser.offset();
            open->end = end;
            parts.push_back(*open);
            open.reset();
        } else if (open && isPageTag(parser.TagName())) {
            open.reset();
        }
        if (parser.IsLast())
            return parts;
    }
}

std::vector<MarkedPart> findPlacedMenus(std::string_view page) {
    return findMarkedParts(page, "zevmenu menu");
}

std::vector<MarkedPart> findLinkedTexts(std::string_view page) {
    return findMarkedParts(page, "zevmenu link");
}

std::string_view insteadNote(std::string_view content) {
    const std::string_view rest = withoutPiece(content, kInsteadOpen, kCommentEnd);
    return withoutSpace(content.substr(0, content.size() - rest.size()));
}

std::string_view foreignPart(std::string_view content) {
    content = withoutPiece(content, kInsteadOpen, kCommentEnd);
    content = withoutPiece(content, kSourceStart, kScriptEnd);
    content = withoutPiece(content, kScriptStart, kScriptEnd);
    content = withoutPiece(content, "<a href=\"\" onmouseover=\"ZEVMenuOpen(", "</a>");
    content = withoutPiece(content, "<noscript><nav", "</nav></noscript>");
    return withoutSpace(content);
}

}  // namespace zev
