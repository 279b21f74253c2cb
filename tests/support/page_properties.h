#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "html/html_page.h"
#include "integrator/page_rewriter.h"
#include "platform/fake/fake_file_system.h"

namespace zev {

inline std::string integratedPage(const std::string& page, bool keepsOtherScripts) {
    FakeFileSystem files;
    files.addFile("/page.htm", page);
    HtmlPage parser(files);
    parser.LoadFile("/page.htm");
    IntegrationStatus status;
    return RewritePage(parser, {"lib/", keepsOtherScripts}, status);
}

/// The page without the scripts that go unless other scripts are kept.
inline std::string withoutOtherScripts(const std::string& page) {
    FakeFileSystem files;
    files.addFile("/page.htm", page);
    HtmlPage parser(files);
    parser.LoadFile("/page.htm");
    std::string kept;
    for (; !parser.IsLast(); parser.Next()) {
        const bool isDropped =
            parser.TagName() == "script" &&
            parser.Attribute("language").find("JavaScript") == std::string_view::npos;
        if (!isDropped)
            kept += parser.Source();
    }
    return kept += parser.Source();
}

inline std::string without(std::string text, std::string_view part) {
    std::string rest;
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(part, from)) != std::string::npos; from = at + part.size())
        rest.append(text, from, at - from);
    return rest.append(text, from);
}

/// The page without what integration can insert, quotes and spaces included, so that an integrated
/// page compares equal to the original.
inline std::string withoutInsertions(std::string page) {
    const std::string marker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
    page = without(page, marker +
                             "<script language=\"JavaScript1.2\">var zev_path = 'lib/';</script>"
                             "<script language=\"JavaScript1.2\" src=\"lib/zevmenu_loader.js\">"
                             "</script>");
    page = without(page, marker + "<script language=\"JavaScript1.2\">ZEVCreateMenu()</script>");
    page = without(page, "ZEVLoadMenu();");
    for (const std::string_view reference : {"&quot;", "&#39;"})
        page = without(page, reference);
    page.erase(std::remove_if(page.begin(), page.end(),
                              [](char c) { return c == '"' || c == '\'' || c == ' ' || c == '='; }),
               page.end());
    return without(without(page, "onload"), "onresize");
}

/// What is wrong with the engine's work on a page: "" when nothing is. A page with code of an
/// earlier run loses it, and what stood around it may then become another tag; of such a page only
/// survival is asked.
inline std::string problemOfIntegration(const std::string& page, bool keepsOtherScripts) {
    const std::string once = integratedPage(page, keepsOtherScripts);
    if (page.find("ZEV") != std::string::npos || page.find("zev") != std::string::npos)
        return "";
    const std::string kept = keepsOtherScripts ? page : withoutOtherScripts(page);
    if (withoutInsertions(once) != withoutInsertions(kept))
        return "more than the insertions changed";
    // "<!---" in a tag may begin a server-side comment or be a stray. A handler put in after it can
    // turn one into the other, and is then hidden from the next run.
    if (page.find("<!---") == std::string::npos && integratedPage(once, keepsOtherScripts) != once)
        return "the second run changed the page";
    return "";
}

}  // namespace zev
