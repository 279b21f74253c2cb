// SPDX-License-Identifier: MIT
#include "integrator/page_rewriter.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "html/html_parse.h"
#include "integrator/inserted_code.h"
#include "integrator/page_references.h"
#include "integrator/script_name.h"
#include "integrator/searchable_text.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr std::string_view kLoaderName = "zevmenu_loader.js";
constexpr std::string_view kDisplayName = "ZEVDisplayMenu(";

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

/// Whether a script goes as one that an earlier run may have written, unless its name is kept.
bool isOfEarlierRun(const HtmlParse& parser) {
    return loadsLibrary(parser) || isOldScript(parser);
}

/// Whether it goes as one that does not name JavaScript.
bool isForeign(const HtmlParse& parser, const RewriteOptions& options) {
    return !options.keepsOtherScripts && !namesJavaScript(parser);
}

std::string nameOf(const HtmlParse& parser) {
    return scriptName(parser.Attribute("src"), parser.Text());
}

/// Whether integration drops a script of which that is known.
bool isDropped(const HtmlParse& parser, const RewriteOptions& options, bool isForeignScript) {
    if (!isForeignScript && !isOfEarlierRun(parser))
        return false;
    const std::vector<std::string>& kept = options.keptScripts;
    return kept.empty() || isOwnScript(parser) ||
           std::find(kept.begin(), kept.end(), nameOf(parser)) == kept.end();
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
        const bool isForeignScript = isForeign(m_parser, m_options);
        if (!isDropped(m_parser, m_options, isForeignScript))
            return;
        if (!isOwnScript(m_parser))
            m_status.removedScripts.push_back(nameOf(m_parser));
        replaceToken({});
        // Without its start tag a script's end tag means nothing to a browser; it stays.
        if (isForeignScript)
            return;
        if (loadsLibrary(m_parser))
            m_status.bPrevious = true;
        m_parser.Next();
        // Now on the end tag, which goes too, unless it is the page's last token.
        if (!m_parser.IsLast())
            m_edits.back().length += m_parser.Source().size();
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

/// Whether the script names a definition or is one; any file that is not the library's may be.
bool mayDefineMenu(const HtmlParse& parser) {
    return (!parser.Attribute("src").empty() && !loadsLibrary(parser)) ||
           contains(parser.Text(), "new ZEVMenu(");
}

/// The first call that is not dropped, behind what may be a definition: without one it draws
/// nothing.
std::optional<PageNote> findOwnCall(std::string_view page, const RewriteOptions& options) {
    if (!contains(page, kDisplayName))
        return {};
    bool hasDefinition = false;
    HtmlParse parser;
    for (parser.Load(page, HtmlTokens::Notable);; parser.Next()) {
        if (parser.TagName() == "script" &&
            !isDropped(parser, options, isForeign(parser, options))) {
            hasDefinition = hasDefinition || mayDefineMenu(parser);
            if (hasDefinition && contains(parser.Text(), kDisplayName))
                return PageNote{PageNote::Kind::OwnCall, LineCounter(page).lineAt(parser.offset()),
                                std::string(parser.Source())};
        }
        if (parser.IsLast())
            return {};
    }
}

Placement placementInText(const SearchableText& text, const RewriteOptions& options) {
    const PlacedMenu& menu = *options.menu;
    // Nobody can type words of such a page as it spells them.
    if (text.isEscaped() && menu.link && !isAscii(menu.link->text))
        return {PlaceProblem::TextNotFound, {}, {}, false};
    // Of popup menus a page may have any number.
    if (contains(menu.code, kDisplayName) && findPlacedMenus(text.bytes()).empty())
        if (std::optional<PageNote> call = findOwnCall(text.bytes(), options))
            return {{}, {}, {std::move(*call)}, true};
    return placeMenu(text.bytes(), menu);
}

}  // namespace

Placement placementIn(std::string_view page, const RewriteOptions& options) {
    const SearchableText text(page);
    Placement placement = placementInText(text, options);
    text.restore(placement.edits);
    text.restore(placement.notes);
    return placement;
}

std::vector<PageEdit> pageEdits(std::string_view page, const RewriteOptions& options,
                                IntegrationStatus& status) {
    status = {};
    const SearchableText text(page);
    std::vector<PageEdit> placed;
    if (options.menu) {
        Placement placement = placementInText(text, options);
        status.placeProblem = placement.problem;
        status.isMenuPlaced = !placement.problem && !placement.hasOwnCall;
        status.notes = std::move(placement.notes);
        text.restore(status.notes);
        if (placement.problem)
            return {};
        placed = std::move(placement.edits);
    }
    if (!options.newDefinitionURL.empty())
        addReferenceEdits(text.bytes(), options.newDefinitionURL, placed);
    std::vector<PageEdit> edits =
        PageRewriter(text.bytes(), options, status, std::move(placed)).edits();
    text.restore(edits);
    return edits;
}

std::string rewritePage(std::string_view page, const RewriteOptions& options,
                        IntegrationStatus& status) {
    return withEdits(page, pageEdits(page, options, status));
}

bool isIntegrated(std::string_view page) {
    if (!contains(page, kMarkerText) && !contains(page, kLoaderName))
        return false;
    const SearchableText text(page);
    HtmlParse parser;
    for (parser.Load(text.bytes(), HtmlTokens::Notable);; parser.Next()) {
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
    const SearchableText text(page);
    HtmlParse parser;
    for (parser.Load(text.bytes(), HtmlTokens::Notable); !parser.IsLast(); parser.Next())
        if (parser.TagName() == "script" && !namesJavaScript(parser))
            ++count;
    return count;
}

}  // namespace zev
