#include "integrator/page_rewriter.h"

#include <deque>
#include <utility>
#include <vector>

#include "model/text_rules.h"

namespace zev {

namespace {

constexpr std::string_view kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
constexpr std::string_view kMarkerPattern = "*Added by ZEVMenu Creator*";
constexpr std::string_view kScriptStart = "<script language=\"JavaScript1.2\">";
constexpr std::string_view kLoaderStart = "<script language=\"JavaScript1.2\" src=\"";
constexpr std::string_view kHandlerCall = "ZEVLoadMenu();";

/// The new page as pieces: runs of the old page and inserted texts, all views of bytes that must
/// stay in memory. Neighbouring unchanged tokens become one run, so that the bytes are moved once,
/// by `joined`.
class PageOutput {
  public:
    void keep(std::string_view source) {
        if (m_run.data() + m_run.size() == source.data()) {
            m_run = {m_run.data(), m_run.size() + source.size()};
            return;
        }
        endRun();
        m_run = source;
    }

    void insert(std::string_view text) {
        endRun();
        m_pieces.push_back(text);
    }

    /// Inserts a text and keeps it in memory.
    void insertOwned(std::string text) { insert(m_owned.emplace_back(std::move(text))); }

    std::string joined() {
        endRun();
        std::size_t size = 0;
        for (const std::string_view piece : m_pieces)
            size += piece.size();
        std::string bytes;
        bytes.reserve(size);
        for (const std::string_view piece : m_pieces)
            bytes += piece;
        return bytes;
    }

  private:
    void endRun() {
        if (!m_run.empty())
            m_pieces.push_back(m_run);
        m_run = {};
    }

    std::string_view m_run;
    std::vector<std::string_view> m_pieces;
    std::deque<std::string> m_owned;  // its strings stay where they are when it grows
};

bool NamesJavaScript(const HtmlParse& parser) {
    return MatchesPattern(parser.Attribute("language"), "*JavaScript*");
}

bool LoadsLibrary(const HtmlParse& parser) {
    return MatchesPattern(TrimSpaces(parser.Attribute("src")), "*zevmenu_loader.js");
}

bool IsOldScript(const HtmlParse& parser) {
    const std::string_view script = TrimSpaces(parser.Text());
    return MatchesPattern(script, "*ZEVCreateMenu()*") || MatchesPattern(script, "*var zev_path*");
}

std::string LibraryReferences(const std::string& libraryURL) {
    std::string code(kMarker);
    code += kScriptStart;
    code += "var zev_path = '" + libraryURL + "';</script>";
    code += kLoaderStart;
    return code + libraryURL + "zevmenu_loader.js\"></script>";
}

std::string MenuCreation() {
    std::string code(kMarker);
    code += kScriptStart;
    return code + "ZEVCreateMenu()</script>";
}

/// The call goes before what the page does at the event. True when it was not there yet.
bool AddHandler(HtmlParse& parser, std::string_view event) {
    const std::string_view old = parser.Attribute(event);
    if (MatchesPattern(old, "*ZEVLoadMenu()*"))
        return false;
    std::string handler(kHandlerCall);
    handler += old;
    parser.SetAttribute(event, handler);
    return true;
}

class PageRewriter {
  public:
    PageRewriter(HtmlParse& parser, const RewriteOptions& options, IntegrationStatus& status)
        : m_parser(parser),
          m_keepsOtherScripts(options.keepsOtherScripts),
          m_references(LibraryReferences(options.libraryURL)),
          m_status(status) {}

    std::string rewrite() {
        for (; !m_parser.IsLast(); m_parser.Next())
            handleToken();
        // The last token stays as it is, even if it is the body's end tag.
        keep();
        return m_output.joined();
    }

  private:
    void keep() { m_output.keep(m_parser.Source()); }

    void handleToken() {
        const std::string_view name = m_parser.IsTag() ? m_parser.TagName() : std::string_view();
        if (name == "!")
            handleComment();
        else if (name == "head")
            handleHead();
        else if (name == "body")
            handleBody();
        else if (name == "/body")
            handleBodyEnd();
        else if (name == "script")
            handleScript();
        else
            keep();
    }

    void handleComment() {
        if (!MatchesPattern(m_parser.Text(), kMarkerPattern))
            keep();
    }

    void handleHead() {
        keep();
        m_output.insert(m_references);
        m_status.bHeadDone = true;
    }

    void handleBody() {
        const bool isLoadNew = AddHandler(m_parser, "onload");
        const bool isResizeNew = AddHandler(m_parser, "onresize");
        if (isLoadNew || isResizeNew)
            m_output.insertOwned("<" + std::string(m_parser.TagText()) + ">");
        else
            keep();
        m_status.bBodyDone = true;
    }

    void handleBodyEnd() {
        m_output.insert(m_creation);
        keep();
        m_status.bEndBodyDone = true;
    }

    void handleScript() {
        // Without its start tag a script's end tag means nothing to a browser; it stays.
        if (!m_keepsOtherScripts && !NamesJavaScript(m_parser))
            return;
        const bool isPrevious = LoadsLibrary(m_parser);
        if (!isPrevious && !IsOldScript(m_parser)) {
            keep();
            return;
        }
        if (isPrevious)
            m_status.bPrevious = true;
        // Now on the end tag, which goes too.
        m_parser.Next();
    }

    HtmlParse& m_parser;
    const bool m_keepsOtherScripts;
    const std::string m_references;
    const std::string m_creation = MenuCreation();
    IntegrationStatus& m_status;
    PageOutput m_output;
};

}  // namespace

std::string RewritePage(HtmlParse& parser, const RewriteOptions& options,
                        IntegrationStatus& status) {
    status = {};
    return PageRewriter(parser, options, status).rewrite();
}

std::size_t CountDroppedScripts(HtmlParse& parser) {
    std::size_t count = 0;
    for (; !parser.IsLast(); parser.Next()) {
        if (parser.IsTag() && parser.TagName() == "script" && !NamesJavaScript(parser))
            ++count;
    }
    return count;
}

}  // namespace zev
