#include "integrator/page_rewriter.h"

#include <forward_list>
#include <initializer_list>
#include <utility>
#include <vector>

#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::string_view kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
constexpr std::string_view kMarkerText = "Added by ZEVMenu Creator";
constexpr std::string_view kScriptStart = "<script language=\"JavaScript1.2\">";
constexpr std::string_view kLoaderStart = "<script language=\"JavaScript1.2\" src=\"";
constexpr std::string_view kHandlerCall = "ZEVLoadMenu();";

/// The new page as pieces: runs of the old page and inserted texts, all views of bytes that must
/// stay in memory. What stays as it is costs nothing: it is in the run up to the next change.
class PageOutput {
  public:
    /// `page` is where the old page begins. Changes follow in its order.
    explicit PageOutput(const char* page) : m_keptUntil(page) { m_pieces.reserve(32); }

    /// Inserts a text before this place of the old page.
    void insert(const char* place, std::string_view text) {
        keepUntil(place);
        m_pieces.push_back(text);
    }

    void drop(std::string_view part) {
        keepUntil(part.data());
        m_keptUntil = part.data() + part.size();
    }

    /// Puts a text in place of a part of the old page, and keeps it in memory.
    void replace(std::string_view part, std::string text) {
        drop(part);
        m_pieces.push_back(m_owned.emplace_front(std::move(text)));
    }

    std::string joined(const char* pageEnd) {
        keepUntil(pageEnd);
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
    void keepUntil(const char* place) {
        if (place != m_keptUntil)
            m_pieces.emplace_back(m_keptUntil, static_cast<std::size_t>(place - m_keptUntil));
        m_keptUntil = place;
    }

    const char* m_keptUntil;
    std::vector<std::string_view> m_pieces;
    std::forward_list<std::string> m_owned;  // its strings stay where they are when it grows
};

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool NamesJavaScript(const HtmlParse& parser) {
    return Contains(parser.Attribute("language"), "JavaScript");
}

bool LoadsLibrary(const HtmlParse& parser) {
    return trimSpaces(parser.Attribute("src")).ends_with("zevmenu_loader.js");
}

bool IsOldScript(const HtmlParse& parser) {
    const std::string_view script = parser.Text();
    return Contains(script, "ZEVCreateMenu()") || Contains(script, "var zev_path");
}

/// The call goes before what the page does at the event. True when it was not there yet.
bool AddHandler(HtmlParse& parser, std::string_view event) {
    const std::string_view old = parser.Attribute(event);
    if (Contains(old, "ZEVLoadMenu()"))
        return false;
    std::string handler(kHandlerCall);
    handler += old;
    parser.SetAttribute(event, handler);
    return true;
}

class PageRewriter {
  public:
    PageRewriter(HtmlParse& parser, const RewriteOptions& options, IntegrationStatus& status)
        : m_parser(parser), m_options(options), m_status(status), m_output(tokenBegin()) {}

    std::string rewrite() {
        for (; !m_parser.IsLast(); m_parser.Next())
            handleToken();
        // The last token stays as it is, even if it is the body's end tag.
        return m_output.joined(tokenEnd());
    }

  private:
    const char* tokenBegin() const { return m_parser.Source().data(); }
    const char* tokenEnd() const { return tokenBegin() + m_parser.Source().size(); }

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
        if (Contains(m_parser.Text(), kMarkerText))
            m_output.drop(m_parser.Source());
    }

    void handleHead() {
        insert(tokenEnd(),
               {kMarker, kScriptStart, "var zev_path = '", m_options.libraryURL, "';</script>",
                kLoaderStart, m_options.libraryURL, "zevmenu_loader.js\"></script>"});
        m_status.bHeadDone = true;
    }

    void handleBody() {
        const bool isLoadNew = AddHandler(m_parser, "onload");
        const bool isResizeNew = AddHandler(m_parser, "onresize");
        if (isLoadNew || isResizeNew)
            m_output.replace(m_parser.Source(), "<" + std::string(m_parser.TagText()) + ">");
        m_status.bBodyDone = true;
    }

    void handleBodyEnd() {
        insert(tokenBegin(), {kMarker, kScriptStart, "ZEVCreateMenu()</script>"});
        m_status.bEndBodyDone = true;
    }

    void handleScript() {
        if (!m_options.keepsOtherScripts && !NamesJavaScript(m_parser)) {
            // Without its start tag a script's end tag means nothing to a browser; it stays.
            m_output.drop(m_parser.Source());
            return;
        }
        const bool isPrevious = LoadsLibrary(m_parser);
        if (!isPrevious && !IsOldScript(m_parser))
            return;
        if (isPrevious)
            m_status.bPrevious = true;
        m_output.drop(m_parser.Source());
        m_parser.Next();
        // Now on the end tag, which goes too, unless it is the page's last token.
        if (!m_parser.IsLast())
            m_output.drop(m_parser.Source());
    }

    void insert(const char* place, std::initializer_list<std::string_view> texts) {
        for (const std::string_view text : texts)
            m_output.insert(place, text);
    }

    HtmlParse& m_parser;
    const RewriteOptions& m_options;
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
