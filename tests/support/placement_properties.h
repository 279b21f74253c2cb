// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "html/html_parse.h"
#include "integrator/page_removal.h"
#include "integrator/page_rewriter.h"
#include "integrator/searchable_text.h"
#include "tests/support/page_properties.h"

namespace zev {

/// The edits that turn the new page into the old one again.
inline std::vector<PageEdit> inverseEdits(std::string_view page,
                                          const std::vector<PageEdit>& edits) {
    std::vector<PageEdit> inverse;
    std::size_t removed = 0;
    std::size_t added = 0;
    for (const PageEdit& edit : edits) {
        inverse.push_back({edit.offset - removed + added, edit.text.size(),
                           std::string(page.substr(edit.offset, edit.length))});
        removed += edit.length;
        added += edit.text.size();
    }
    return inverse;
}

/// The page with its body tags compared as `withoutHandlers` tells.
inline std::string withPlainBodies(std::string_view page) {
    std::string result;
    const SearchableText text(page);
    HtmlParse parser;
    for (parser.Load(text.bytes());; parser.Next()) {
        const std::string source(parser.Source());
        result += parser.TagName() == "body" ? withoutHandlers(source) : source;
        if (parser.IsLast())
            return result;
    }
}

/// What is wrong with a menu placed in a page: "" when nothing is.
inline std::string problemOfPlacement(const std::string& page, const std::string& where,
                                      bool keepsOtherScripts) {
    const PlacedMenu menu{*parsePlace(where), placedMenuCode("menu.js")};
    const RewriteOptions options{"lib/", keepsOtherScripts, menu};
    IntegrationStatus status;
    const std::vector<PageEdit> edits = pageEdits(page, options, status);
    if (status.placeProblem)
        return edits.empty() ? "" : "a page without the place is changed";
    for (std::size_t i = 1; i < edits.size(); ++i)
        if (edits[i].offset < edits[i - 1].offset + edits[i - 1].length)
            return "the edits overlap";
    const std::string once = withEdits(page, edits);
    if (withEdits(once, inverseEdits(page, edits)) != page)
        return "the edits cannot be undone";
    const std::vector<PageEdit> placed = placementIn(page, options).edits;
    if (placed.empty() != (edits == pageEdits(page, {"lib/", keepsOtherScripts}, status)))
        return "placing does not do its edit";
    // Behind the last token, which integration leaves alone, it makes that one like the others.
    const bool isBehindAll = !placed.empty() && placed.front().offset == page.size();
    if (!isBehindAll && (placed.empty() || placed.front().length == 0)) {
        std::vector<PageEdit> others = edits;
        if (!placed.empty()) {
            const auto found = std::find(others.begin(), others.end(), placed.front());
            if (found == others.end())
                return "the menu is not placed";
            others.erase(found);
        }
        if (others != pageEdits(page, {"lib/", keepsOtherScripts}, status))
            return "placing changes what else integration does";
    }
    if (mayDifferAgain(page))
        return "";
    if (rewritePage(once, options, status) != once)
        return "placing again changes the page";
    if (integratedPage(once, keepsOtherScripts) != once)
        return "a plain run changes the page";
    return "";
}

/// What is wrong with taking the menu out of a page where it was placed: "" when nothing is.
inline std::string problemOfRemoval(const std::string& page, const std::string& where,
                                    bool keepsOtherScripts) {
    if (mayDifferAgain(page))
        return "";
    IntegrationStatus status;
    RewriteOptions options{"lib/", keepsOtherScripts};
    std::vector<PageEdit> dropped = pageEdits(page, options, status);
    std::erase_if(dropped, [](const PageEdit& edit) { return !edit.text.empty(); });
    options.menu = PlacedMenu{*parsePlace(where), placedMenuCode("menu.js")};
    const std::string once = rewritePage(page, options, status);
    if (status.placeProblem || options.menu->place.kind == MenuPlace::Kind::Instead)
        return "";
    const std::string removed = withEdits(once, removeIntegration(once).edits);
    if (withPlainBodies(removed) != withPlainBodies(withEdits(page, dropped)))
        return "what was put in does not go, or more than that";
    if (withEdits(removed, removeIntegration(removed).edits) != removed)
        return "removing again changes the page";
    return "";
}

/// All of the above for places that a page can hardly lack all of.
inline std::string problemOfPlacements(const std::string& page) {
    for (const char* const where : {"body-start", "body-end", "marker", "before:p", "after:p",
                                    "start:div", "end:div", "instead:nav", "after:#m"}) {
        for (const bool keepsOtherScripts : {true, false}) {
            for (const auto check : {problemOfPlacement, problemOfRemoval}) {
                const std::string problem = check(page, where, keepsOtherScripts);
                if (!problem.empty())
                    return problem + ": " + where;
            }
        }
    }
    return "";
}

}  // namespace zev
