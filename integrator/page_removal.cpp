// SPDX-License-Identifier: MIT
#include "integrator/page_removal.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "html/html_attributes.h"
#include "html/html_characters.h"
#include "html/html_parse.h"
#include "html/server_blocks.h"
#include "integrator/inserted_code.h"
#include "integrator/page_references.h"
#include "integrator/searchable_text.h"
#include "text/ascii.h"

namespace zev {

namespace {

using Kind = PageNote::Kind;

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// True for a tag or script that has to do with a menu; not for those of integration itself.
bool isMenuCode(const HtmlParse& parser) {
    const std::string_view name = parser.TagName();
    if (name == "script")
        return contains(parser.Attribute("src"), "zevmenu_") || contains(parser.Text(), "ZEV") ||
               contains(parser.Text(), "zev_path") || parser.hasAttribute("data-definition");
    return parser.IsTag() && !name.starts_with('!') &&
           (contains(parser.TagText(), "ZEVMenu") || contains(parser.TagText(), "data-zev"));
}

/// Whether the value could have stood without quotes.
bool needsNoQuotes(std::string_view value) {
    return !value.empty() && value.find_first_of(" \t\r\n\f\"'=<>`") == std::string_view::npos;
}

/// The tag of a body while the calls are taken out of it.
class BodyTag {
  public:
    /// `source` with its angle brackets.
    explicit BodyTag(std::string_view source) : m_source(source) {}

    const std::string& source() const { return m_source; }

    enum class Outcome { Nothing, Removed, QuotesStay, Handwritten };

    Outcome removeCall(std::string_view event) {
        HtmlAttribute attribute;
        if (!find(event, attribute))
            return Outcome::Nothing;
        const std::string value =
            m_source.substr(attribute.valueBegin, attribute.valueEnd - attribute.valueBegin);
        if (!value.starts_with(kHandlerCall))
            return contains(value, "ZEVLoadMenu") ? Outcome::Handwritten : Outcome::Nothing;
        if (value == kHandlerCall) {
            removeAttribute(attribute);
            return Outcome::Removed;
        }
        m_source.erase(attribute.valueBegin, kHandlerCall.size());
        return needsNoQuotes(std::string_view(value).substr(kHandlerCall.size()))
                   ? Outcome::QuotesStay
                   : Outcome::Removed;
    }

  private:
    bool find(std::string_view name, HtmlAttribute& attribute) const {
        ServerBlocks blocks(m_source);
        HtmlAttributeReader reader(m_source, blocks, std::string_view("<body").size());
        while (reader.next(attribute))
            if (equalsIgnoringCase(
                    std::string_view(m_source).substr(attribute.nameBegin,
                                                      attribute.nameEnd - attribute.nameBegin),
                    name))
                return true;
        return false;
    }

    /// With the blank before it.
    void removeAttribute(const HtmlAttribute& attribute) {
        const std::size_t end = attribute.valueEnd + (attribute.quote == '\0' ? 0 : 1);
        const std::size_t begin =
            attribute.nameBegin - (m_source[attribute.nameBegin - 1] == ' ' ? 1 : 0);
        m_source.erase(begin, end - begin);
    }

    std::string m_source;
};

class PageRemover {
  public:
    explicit PageRemover(std::string_view page)
        : m_page(page),
          m_lines(page),
          m_menus(findPlacedMenus(page)),
          m_links(findLinkedTexts(page)),
          m_references(findReferences(page, "")),
          m_isIntegrated(hasInsertedCode()) {}

    PageRemoval removal() {
        HtmlParse parser;
        bool isAfterScript = false;
        for (parser.Load(m_page);; parser.Next()) {
            const bool isScript = parser.TagName() == "script";
            handleToken(parser, isAfterScript);
            isAfterScript = isScript;
            if (parser.IsLast())
                return std::move(m_removal);
        }
    }

  private:
    bool hasInsertedCode() const {
        if (!m_menus.empty() || !m_links.empty())
            return true;
        HtmlParse parser;
        for (parser.Load(m_page);; parser.Next()) {
            if (contains(commentText(parser), kMarkerText) || isInsertedScript(parser))
                return true;
            if (parser.IsLast())
                return false;
        }
    }

    void handleToken(const HtmlParse& parser, bool isAfterScript) {
        const std::size_t begin = parser.offset();
        if (begin < m_removedEnd || takeMenu(begin) || takeLink(parser))
            return;
        if (contains(commentText(parser), kMarkerText))
            remove(begin, begin + parser.Source().size());
        else if (isInsertedScript(parser))
            removeScript(parser);
        else if (m_isIntegrated && parser.TagName() == "/script" && !isAfterScript)
            note(Kind::ScriptDropped, begin, "");
        else if (parser.TagName() == "body")
            handleBody(parser);
        else if (isMenuCode(parser) || isReference(begin))
            note(Kind::Handwritten, begin, parser.Source());
    }

    bool takeMenu(std::size_t begin) {
        while (m_nextMenu < m_menus.size() && m_menus[m_nextMenu].begin < begin)
            ++m_nextMenu;
        if (m_nextMenu == m_menus.size() || m_menus[m_nextMenu].begin != begin)
            return false;
        const MarkedPart& menu = m_menus[m_nextMenu];
        const std::string_view content =
            m_page.substr(menu.contentBegin, menu.contentEnd - menu.contentBegin);
        if (const std::string_view comment = insteadNote(content); !comment.empty()) {
            std::string selector(comment.substr(kInsteadOpen.size()));
            selector.resize(selector.size() - kCommentEnd.size());
            std::erase(selector, ' ');  // they keep its dashes apart
            note(Kind::ElementReplaced, begin, selector);
        }
        if (const std::string_view foreign = foreignPart(content); !foreign.empty())
            note(Kind::LeftOutOfMenu, begin, foreign);
        remove(begin, menu.end);
        return true;
    }

    /// The text of a link stays. True when the token is none to look at any more.
    bool takeLink(const HtmlParse& parser) {
        while (m_nextLink < m_links.size() && m_links[m_nextLink].end <= parser.offset())
            ++m_nextLink;
        if (m_nextLink == m_links.size() || parser.offset() < m_links[m_nextLink].begin)
            return false;
        const MarkedPart& link = m_links[m_nextLink];
        const std::string_view name = parser.TagName();
        const bool isOurs = parser.offset() == link.begin || parser.offset() == link.contentEnd ||
                            name == "/a" || (name == "a" && isMenuCode(parser));
        if (isOurs)
            remove(parser.offset(), parser.offset() + parser.Source().size());
        return isOurs;
    }

    /// True at a reference that was pasted.
    bool isReference(std::size_t begin) {
        while (m_nextReference < m_references.size() &&
               m_references[m_nextReference].offset < begin)
            ++m_nextReference;
        return m_nextReference < m_references.size() &&
               m_references[m_nextReference].offset == begin;
    }

    void removeScript(const HtmlParse& parser) {
        const std::size_t end = parser.offset() + parser.Source().size();
        // The end tag may be spelled otherwise.
        const bool hasEnd = equalsIgnoringCase(m_page.substr(end, 8), "</script");
        const std::size_t close = hasEnd ? m_page.find('>', end) : end - 1;
        remove(parser.offset(), std::min(close, m_page.size() - 1) + 1);
    }

    void handleBody(const HtmlParse& parser) {
        BodyTag tag(parser.Source());
        for (const std::string_view event : {"onload", "onresize"}) {
            const BodyTag::Outcome outcome =
                m_isIntegrated ? tag.removeCall(event) : BodyTag::Outcome::Nothing;
            if (outcome == BodyTag::Outcome::QuotesStay)
                note(Kind::QuotesStay, parser.offset(), event);
            else if (outcome == BodyTag::Outcome::Handwritten)
                note(Kind::Handwritten, parser.offset(), event);
        }
        if (!m_isIntegrated && contains(parser.TagText(), "ZEVLoadMenu"))
            note(Kind::Handwritten, parser.offset(), parser.Source());
        if (tag.source() != parser.Source())
            m_removal.edits.push_back({parser.offset(), parser.Source().size(), tag.source()});
    }

    void remove(std::size_t begin, std::size_t end) {
        m_removal.edits.push_back({begin, end - begin, ""});
        m_removedEnd = end;
    }

    void note(Kind kind, std::size_t offset, std::string_view text) {
        m_removal.notes.push_back({kind, m_lines.lineAt(offset), std::string(text)});
    }

    std::string_view m_page;
    LineCounter m_lines;
    std::vector<MarkedPart> m_menus;
    std::vector<MarkedPart> m_links;
    std::vector<DefinitionReference> m_references;
    bool m_isIntegrated;
    std::size_t m_nextMenu = 0;
    std::size_t m_nextLink = 0;
    std::size_t m_nextReference = 0;
    std::size_t m_removedEnd = 0;
    PageRemoval m_removal;
};

}  // namespace

PageRemoval removeIntegration(std::string_view page) {
    const SearchableText text(page);
    PageRemoval removal = PageRemover(text.bytes()).removal();
    text.restore(removal.edits);
    text.restore(removal.notes);
    return removal;
}

}  // namespace zev
