// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "html/html_parse.h"
#include "integrator/page_rewriter.h"
#include "integrator/searchable_text.h"
#include "text/text_encoding.h"

namespace zev {

inline std::string integratedPage(const std::string& page, bool keepsOtherScripts) {
    IntegrationStatus status;
    return rewritePage(page, {"lib/", keepsOtherScripts}, status);
}

inline std::string without(std::string text, std::string_view part) {
    std::string rest;
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(part, from)) != std::string::npos; from = at + part.size())
        rest.append(text, from, at - from);
    return rest.append(text, from);
}

/// A body tag without what integration can put into it, quotes and spaces included, so that the
/// changed tag compares equal to the old one.
inline std::string withoutHandlers(std::string tag) {
    tag = without(tag, "ZEVLoadMenu();");
    for (const std::string_view reference : {"&quot;", "&#39;"})
        tag = without(tag, reference);
    tag.erase(std::remove_if(tag.begin(), tag.end(),
                             [](char c) { return c == '"' || c == '\'' || c == ' ' || c == '='; }),
              tag.end());
    return without(without(tag, "onload"), "onresize");
}

/// Goes through a page by itself and holds the engine's edits against it: one at each place where
/// the rules want one, and no other.
class EditCheck {
  public:
    /// What is referred to must outlive this object.
    EditCheck(const std::string& page, bool keepsOtherScripts, const std::vector<PageEdit>& edits)
        : m_keepsOtherScripts(keepsOtherScripts), m_edits(edits) {
        m_parser.Load(page);
    }

    /// What is wrong with the edits: "" when nothing is.
    std::string problem() {
        for (; m_problem.empty() && !m_parser.IsLast(); m_parser.Next()) {
            const std::string_view name = m_parser.TagName();
            if (name == "!" && holds(m_parser.Text(), "Added by ZEVMenu Creator"))
                expect(m_parser.offset(), m_parser.Source().size(), "");
            else if (name == "head")
                expect(m_parser.offset() + m_parser.Source().size(), 0, kReferences);
            else if (name == "/body")
                expect(m_parser.offset(), 0, kCreation);
            else if (name == "body")
                expectHandlers();
            else if (name == "script")
                expectDroppedScript();
        }
        if (m_problem.empty() && m_next < m_edits.size())
            return "an edit that no rule wants" + placeOf(m_edits[m_next].offset);
        return m_problem;
    }

  private:
    inline static const std::string kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
    inline static const std::string kScript = "<script language=\"JavaScript1.2\"";
    inline static const std::string kReferences = kMarker + kScript +
                                                  ">var zev_path = 'lib/';</script>" + kScript +
                                                  " src=\"lib/zevmenu_loader.js\"></script>";
    inline static const std::string kCreation = kMarker + kScript + ">ZEVCreateMenu()</script>";

    static bool holds(std::string_view text, std::string_view part) {
        return text.find(part) != std::string_view::npos;
    }

    static bool hasHandlers(const HtmlParse& tag) {
        return holds(tag.Attribute("onload"), "ZEVLoadMenu()") &&
               holds(tag.Attribute("onresize"), "ZEVLoadMenu()");
    }

    static std::string placeOf(std::size_t offset) { return " at " + std::to_string(offset); }

    void expect(std::size_t offset, std::size_t length, const std::string& text) {
        if (m_next == m_edits.size() || m_edits[m_next] != PageEdit{offset, length, text})
            m_problem = "not the edit that the rules want" + placeOf(offset);
        ++m_next;
    }

    void expectHandlers() {
        if (hasHandlers(m_parser))
            return;
        const std::string tag(m_parser.Source());
        const std::string changed = m_next < m_edits.size() ? m_edits[m_next].text : "";
        expect(m_parser.offset(), tag.size(), changed);
        HtmlParse alone;
        alone.Load(changed);
        if (alone.TagName() != "body" || !hasHandlers(alone) ||
            withoutHandlers(changed) != withoutHandlers(tag))
            m_problem = "more or less of the body tag changed" + placeOf(m_parser.offset());
    }

    void expectDroppedScript() {
        const std::size_t offset = m_parser.offset();
        const std::size_t length = m_parser.Source().size();
        if (!m_keepsOtherScripts && !holds(m_parser.Attribute("language"), "JavaScript")) {
            expect(offset, length, "");
            return;
        }
        std::string source(m_parser.Attribute("src"));
        source.erase(source.find_last_not_of(' ') + 1);
        if (!source.ends_with("zevmenu_loader.js") && !holds(m_parser.Text(), "ZEVCreateMenu()") &&
            !holds(m_parser.Text(), "var zev_path"))
            return;
        m_parser.Next();
        expect(offset, length + (m_parser.IsLast() ? 0 : m_parser.Source().size()), "");
    }

    HtmlParse m_parser;
    const bool m_keepsOtherScripts;
    const std::vector<PageEdit>& m_edits;
    std::size_t m_next = 0;
    std::string m_problem;
};

/// The page with the edits done one by one, from its end.
inline std::string editedFromTheEnd(std::string page, const std::vector<PageEdit>& edits) {
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
        page.replace(edit->offset, edit->length, edit->text);
    return page;
}

/// True for a page whose second run may differ from the first.
///
/// A page with code of an earlier run loses it, and what stood around it may then become another
/// tag. "<!---" in a tag may begin a server-side comment or be a stray; what is put in after it can
/// turn one into the other, and is then hidden from the next run. Bytes outside of ASCII tell that
/// escapes are none; a script that goes may take them along.
inline bool mayDifferAgain(const std::string& page) {
    return page.find("ZEV") != std::string::npos || page.find("zev") != std::string::npos ||
           page.find("<!---") != std::string::npos ||
           (page.find('\x1B') != std::string::npos && !isAscii(page));
}

/// What is wrong with the engine's work on a page: "" when nothing is.
inline std::string problemOfIntegration(const std::string& page, bool keepsOtherScripts) {
    IntegrationStatus status;
    const std::vector<PageEdit> edits = pageEdits(page, {"lib/", keepsOtherScripts}, status);
    std::size_t done = 0;
    for (const PageEdit& edit : edits) {
        if (edit.offset < done || edit.offset + edit.length > page.size())
            return "the edits overlap or leave the page";
        done = edit.offset + edit.length;
    }
    const std::string searched(SearchableText(page).bytes());
    const std::vector<PageEdit> found = pageEdits(searched, {"lib/", keepsOtherScripts}, status);
    if (const std::string problem = EditCheck(searched, keepsOtherScripts, found).problem();
        !problem.empty())
        return problem;
    const std::string once = integratedPage(page, keepsOtherScripts);
    if (once != editedFromTheEnd(page, edits))
        return "the new page is not the old one with its edits";
    if (!mayDifferAgain(page) && integratedPage(once, keepsOtherScripts) != once)
        return "the second run changed the page";
    return "";
}

}  // namespace zev
