#include "integrator/page_rewriter.h"

#include <algorithm>
#include <cassert>
#include <initializer_list>
#include <utility>

#include "html/html_parse.h"
#include "integrator/script_name.h"
#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::string_view kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
constexpr std::string_view kMarkerText = "Added by ZEVMenu Creator";
constexpr std::string_view kScriptStart = "<script language=\"JavaScript1.2\">";
constexpr std::string_view kLoaderStart = "<script language=\"JavaScript1.2\" src=\"";
constexpr std::string_view kLoaderName = "zevmenu_loader.js";
constexpr std::string_view kHandlerCall = "ZEVLoadMenu();";

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

bool loadsLibrary(const HtmlParse& parser) {
    return trimSpaces(parser.Attribute("src")).ends_with(kLoaderName);
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
    PageRewriter(std::string_view page, const RewriteOptions& options, IntegrationStatus& status)
        : m_options(options), m_status(status) {
        m_parser.Load(page);
        m_edits.reserve(8);  // most pages need no more
    }

    std::vector<PageEdit> edits() {
        // The last token stays as it is, even if it is the body's end tag.
        for (; !m_parser.IsLast(); m_parser.Next())
            handleToken();
        return std::move(m_edits);
    }

  private:
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
                    kLoaderStart, m_options.libraryURL, kLoaderName, "\"></script>"}));
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
    std::vector<PageEdit> m_edits;
};

}  // namespace

std::vector<PageEdit> pageEdits(std::string_view page, const RewriteOptions& options,
                                IntegrationStatus& status) {
    status = {};
    return PageRewriter(page, options, status).edits();
}

std::string withEdits(std::string_view page, const std::vector<PageEdit>& edits) {
    std::size_t size = page.size();
    for (const PageEdit& edit : edits)
        size += edit.text.size() - edit.length;
    std::string bytes;
    bytes.reserve(size);
    std::size_t done = 0;
    for (const PageEdit& edit : edits) {
        assert(edit.offset >= done && edit.offset + edit.length <= page.size());
        bytes += page.substr(done, edit.offset - done);
        bytes += edit.text;
        done = edit.offset + edit.length;
    }
    bytes += page.substr(done);
    return bytes;
}

std::string rewritePage(std::string_view page, const RewriteOptions& options,
                        IntegrationStatus& status) {
    return withEdits(page, pageEdits(page, options, status));
}

bool isIntegrated(std::string_view page) {
    if (!contains(page, kMarkerText) && !contains(page, kLoaderName))
        return false;
    HtmlParse parser;
    for (parser.Load(page);; parser.Next()) {
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
    for (parser.Load(page); !parser.IsLast(); parser.Next())
        if (parser.TagName() == "script" && !namesJavaScript(parser))
            ++count;
    return count;
}

}  // namespace zev
