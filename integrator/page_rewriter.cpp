// SPDX-License-Identifier: MIT
#include "integrator/page_rewriter.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "html/html_parse.h"
#include "integrator/inserted_code.h"
#include "integrator/page_references.h"
#include "integrator/script_name.h"

namespace zev {

namespace {

constexpr std::string_view kLoaderName = "zevmenu_loader.js";

std::string joined(std::initializer_list<std::string_view> parts) {
    std::size_t size = 0;
    for (const std::string_view part : parts)
        size += part.size();
    std::string text;
    text.reserve(size);
    for (const std::string_view part : parts)
        text += part;
    return text;
}

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool namesJavaScript(const HtmlParse& parser) {
    return contains(parser.Attribute("language"), "JavaScript");
}

bool isOldScript(const HtmlParse& parser) {
    const std::string_view script = parser.Text();
    return contains(script, "ZEVCreateMenu()") || contains(script, "var zev_path");
}

/// Whether an earlier run wrote the script, and nobody anything into it.
bool isOwnScript(const HtmlParse& parser) {
    if (loadsLibrary(parser))
        return true;
    std::string_view script = parser.Text();
    while (!script.empty() && isHtmlSpace(script.front()))
        script.remove_prefix(1);
    while (!script.empty() && (isHtmlSpace(script.back()) || script.back() == ';'))
        script.remove_suffix(1);
    return script == "ZEVCreateMenu()" ||
           (script.starts_with("var zev_path") && !contains(script, ";"));
}

/// The call goes before what the page does at the event. True when it was not there yet.
bool addHandler(HtmlParse& parser, std::string_view event) {
    const std::string_view old = parser.Attribute(event);
    if (contains(old, "ZEVLoadMenu()"))
        return false;
    parser.SetAttribute(event, joined({kHandlerCall, old}));
    return true;
}

class PageRewriter {
  public:
    /// `placed` is what else changes: in the order of the page, without overlap, never within a tag
    /// that integration changes.
    PageRewriter(std::string_view page, const RewriteOptions& options, IntegrationStatus& status,
                 std::vector<PageEdit> placed)
        : m_options(options), m_status(status), m_placed(std::move(placed)) {
        m_parser.Load(page, HtmlTokens::Notable);
        m_edits.reserve(8);  // most pages need no more
    }

    std::vector<PageEdit> edits() {
        // The last token stays as it is, even if it is the body's end tag.
        for (; !m_parser.IsLast(); m_parser.Next()) {
            takePlaced(m_parser.offset());
            if (m_parser.offset() >= m_replacedEnd)
                handleToken();
        }
        takePlaced(m_parser.offset());
        // With something placed behind it, it is the last one no more.
        if (m_nextPlaced < m_placed.size() && m_parser.offset() >= m_replacedEnd)
            handleToken();
        takePlaced(std::string_view::npos);
        return std::move(m_edits);
    }

  private:
    /// What is placed at the end of a head tag comes after the references, and what is placed at
    /// the end of the body before the call.
    void takePlaced(std::size_t offset) {
        for (; m_nextPlaced < m_placed.size() && m_placed[m_nextPlaced].offset <= offset;
             ++m_nextPlaced) {
            PageEdit& edit = m_placed[m_nextPlaced];
            m_replacedEnd = edit.offset + edit.length;
            m_edits.push_back(std::move(edit));
        }
    }

    /// Looks at the name's length first: that rules most tokens out.
    void handleToken() {
        const std::string_view name = m_parser.TagName();
        switch (name.size()) {
            case 1:
                if (name == "!")
                    handleComment();
                break;
            case 4:
                if (name == "head")
                    handleHead();
                else if (name == "body")
                    handleBody();
                break;
            case 5:
                if (name == "/body")
                    handleBodyEnd();
                break;
            case 6:
                if (name == "script")
                    handleScript();
                break;
            default:
                break;
        }
    }

    void handleComment() {
        if (contains(m_parser.Text(), kMarkerText))
            replaceToken({});
    }

    void handleHead() {
        insert(
            m_parser.offset() + m_parser.Source().size(),
            joined({kMarker, kScriptStart, "var zev_path = '", m_options.libraryURL, "';</script>",
                    kSourceStart, m_options.libraryURL, kLoaderName, "\"></script>"}));
        m_status.bHeadDone = true;
    }

    void handleBody() {
        const bool isLoadNew = addHandler(m_parser, "onload");
        const bool isResizeNew = addHandler(m_parser, "onresize");
        if (isLoadNew || isResizeNew)
            replaceToken(joined({"<", m_parser.TagText(), ">"}));
        m_status.bBodyDone = true;
    }

    void handleBodyEnd() {
        insert(m_parser.offset(), joined({kMarker, kScriptStart, "ZEVCreateMenu()</script>"}));
        m_status.bEndBodyDone = true;
    }

    void handleScript() {
        if (!m_options.keepsOtherScripts && !namesJavaScript(m_parser)) {
            // Without its start tag a script's end tag means nothing to a browser; it stays.
            if (!staysByName())
                replaceToken({});
            return;
        }
        const bool isPrevious = loadsLibrary(m_parser);
        if ((!isPrevious && !isOldScript(m_parser)) || staysByName())
            return;
        if (isPrevious)
            m_status.bPrevious = true;
        replaceToken({});
        m_parser.Next();
        // Now on the end tag, which goes too, unless it is the page's last token.
        if (!m_parser.IsLast())
            m_edits.back().length += m_parser.Source().size();
    }

    /// Whether a script that would go was asked to stay. One that goes is noted.
    bool staysByName() {
        if (isOwnScript(m_parser))
            return false;
        std::string name = scriptName(m_parser.Attribute("src"), m_parser.Text());
        const std::vector<std::string>& kept = m_options.keptScripts;
        if (std::find(kept.begin(), kept.end(), name) != kept.end())
            return true;
        m_status.removedScripts.push_back(std::move(name));
        return false;
    }

    void insert(std::size_t offset, std::string text) {
        m_edits.push_back({offset, 0, std::move(text)});
    }

    void replaceToken(std::string text) {
        m_edits.push_back({m_parser.offset(), m_parser.Source().size(), std::move(text)});
    }

    HtmlParse m_parser;
    const RewriteOptions& m_options;
    IntegrationStatus& m_status;
    std::vector<PageEdit> m_placed;
    std::size_t m_nextPlaced = 0;
    std::size_t m_replacedEnd = 0;  // of the last one taken
    std::vector<PageEdit> m_edits;
};

}  // namespace

std::vector<PageEdit> pageEdits(std::string_view page, const RewriteOptions& options,
                                IntegrationStatus& status) {
    status = {};
    std::vector<PageEdit> placed;
    if (options.menu) {
        Placement placement = placeMenu(page, *options.menu);
        status.placeProblem = placement.problem;
        status.notes = std::move(placement.notes);
        if (placement.problem)
            return {};
        placed = std::move(placement.edits);
    }
    if (!options.newDefinitionURL.empty())
        addReferenceEdits(page, options.newDefinitionURL, placed);
    return PageRewriter(page, options, status, std::move(placed)).edits();
}

std::string rewritePage(std::string_view page, const RewriteOptions& options,
                        IntegrationStatus& status) {
    return withEdits(page, pageEdits(page, options, status));
}

bool isIntegrated(std::string_view page) {
    if (!contains(page, kMarkerText) && !contains(page, kLoaderName))
        return false;
    HtmlParse parser;
    for (parser.Load(page, HtmlTokens::Notable);; parser.Next()) {
        const std::string_view name = parser.TagName();
        if ((name == "!" && contains(parser.Text(), kMarkerText)) ||
            (name == "script" && loadsLibrary(parser)))
            return true;
        if (parser.IsLast())
            return false;
    }
}

std::size_t countDroppedScripts(std::string_view page) {
    std::size_t count = 0;
    HtmlParse parser;
    for (parser.Load(page, HtmlTokens::Notable); !parser.IsLast(); parser.Next())
        if (parser.TagName() == "script" && !namesJavaScript(parser))
            ++count;
    return count;
}

}  // namespace zev
