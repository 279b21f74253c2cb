// SPDX-License-Identifier: MIT
#include "integrator/page_references.h"

#include <gtest/gtest.h>

#include "integrator/link_code.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

std::string corrected(const std::string& page, const std::string& url = "js/menu.js") {
    return rewritten(page, {"lib/", true, {}, url}).page;
}

TEST(PageReferencesTest, PastedCodeGetsTheNewAddressWhereverItStands) {
    EXPECT_EQ(corrected("<p>" + menuCode("old/menu.js") + "</p>"),
              "<p>" + menuCode("js/menu.js") + "</p>");
    EXPECT_EQ(corrected("<td>" + menuCode("site.js") + "</td>"),
              "<td>" + menuCode("js/menu.js") + "</td>");
    EXPECT_EQ(corrected(definitionReference("../menu.js") + "<p>x</p>."),
              definitionReference("js/menu.js") + "<p>x</p>.");
    EXPECT_EQ(corrected("<p>" + menuCode("js/menu.js")), "<p>" + menuCode("js/menu.js"));
}

TEST(PageReferencesTest, WhatSomebodyWroteStays) {
    const std::string call = "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
    const std::string pages[] = {
        "<script src=\"old/menu.js\"></script>" + call,
        "<script language='JavaScript1.2' src='old/menu.js'></script>" + call,
        "<script language=\"JavaScript1.2\" src=\"old/menu.js\" defer></script>" + call,
        definitionReference("jquery.js") + "<p>x</p>" + call,
        definitionReference("jquery.js") + "x" + call,
        definitionReference("lib/zevmenu_dom.js") + ".",
        "<!-- " + menuCode("old/menu.js") + " -->",
    };
    for (const std::string& page : pages)
        EXPECT_EQ(corrected(page), page);
}

TEST(PageReferencesTest, AreListedWithWhoWroteThem) {
    const std::string page = "<script src='a/menu.js'></script><p>" + menuCode("b.js");
    const std::vector<DefinitionReference> found = findReferences(page, "js/menu.js?v=2");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].url, "a/menu.js");
    EXPECT_FALSE(found[0].isWritten);
    EXPECT_EQ(found[1].url, "b.js");
    EXPECT_TRUE(found[1].isWritten);
    EXPECT_EQ(page.substr(found[1].offset, found[1].length),
              "<script language=\"JavaScript1.2\" src=\"b.js\">");
}

TEST(PageReferencesTest, APlainRunKeepsThem) {
    const std::string page = "<p>" + menuCode("old/menu.js") + "</p>";
    EXPECT_EQ(rewritten(page).page, page);
}

TEST(PageReferencesTest, APlacedMenuIsNotAmongThem) {
    const std::string page = "<!-- zevmenu menu -->" + menuCode("a.js") + "<!-- /zevmenu menu -->" +
                             menuCode("b.js") + ".";
    const std::vector<DefinitionReference> found = findReferences(page, "a.js");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].url, "b.js");
}

}  // namespace
}  // namespace zev::test
