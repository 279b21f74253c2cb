// SPDX-License-Identifier: MIT
#include "integrator/link_code.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(LinkCodeTest, EntryBecomesTheArgumentsOfTheCalls) {
    struct Case {
        const char* entry;
        const char* arguments;
    };
    const Case cases[] = {
        {"Menu (1)", "'zev1', '1'"},
        {"Products (1i2)", "'zev1i1', '2'"},
        {"Deep (1i2i3)", "'zev1i1', '2i3'"},
        {"Wide (12i34i56)", "'zev1i12', '34i56'"},
        {"Prices (in EUR) (1i2)", "'zev1i1', '2'"},
        {"Odd ) and ( (2)", "'zev1', '2'"},
        {"(3)", "'zev1', '3'"},
        {"Capital (1I2)", "'zev1', '1I2'"},
        {"Empty ()", "'zev1', ''"},
        {"Letter first (i2)", "'zev1i', '2'"},
        {"Letter last (1i)", "'zev1i1', ''"},
        {"\xC3\x84pfel (2i1)", "'zev1i2', '1'"},
        {"After the pair (2) x", "'zev1', '2'"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(MenuList_GetString(c.entry), c.arguments) << c.entry;
}

TEST(LinkCodeTest, EntryWithoutAPairOfParenthesesCountsAsEmpty) {
    for (const char* const entry : {"", "Menu", "Menu (1", "Menu 1)", ")1(", ")("})
        EXPECT_EQ(MenuList_GetString(entry), "'zev1', ''") << entry;
}

TEST(LinkCodeTest, MenuInPlaceIsReferenceAndCallOnTwoLines) {
    EXPECT_EQ(menuCode("js/menu_def.js"),
              "<script language=\"JavaScript1.2\" src=\"js/menu_def.js\"></script>\r\n"
              "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>");
}

TEST(LinkCodeTest, ReferenceTakesTheURLAsItIs) {
    EXPECT_EQ(definitionReference("My Menu.js"),
              "<script language=\"JavaScript1.2\" src=\"My Menu.js\"></script>");
}

TEST(LinkCodeTest, NothingInTheURLEndsTheAttributeOrItsLine) {
    struct Case {
        std::string url;
        std::string written;
    };
    const Case cases[] = {
        {"a\" onload=\"x().js", "a%22 onload=%22x().js"},
        {"a></script><script>x()", "a%3E%3C/script%3E%3Cscript%3Ex()"},
        {std::string("a\r\n\t\0\x7F.js", 9), "a%0D%0A%09%00%7F.js"},
        {"D:\\it's & K\xC3\xA4se?a=1&amp;b.js", "D:\\it's & K\xC3\xA4se?a=1&amp;b.js"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(definitionReference(c.url),
                  "<script language=\"JavaScript1.2\" src=\"" + c.written + "\"></script>");
}

TEST(LinkCodeTest, PopupAtTheMouseOpensAndCloses) {
    EXPECT_EQ(popupLinkCode("1i2", {}),
              "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', event)\" "
              "onmouseout=\"ZEVMenuClose('zev1i1', '2', false)\">Menu</a>");
}

TEST(LinkCodeTest, PopupAtAPositionOnlyOpensAndTakesTheCoordinatesAsTyped) {
    EXPECT_EQ(popupLinkCode("1i2", {false, "100", "50"}),
              "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', 100, 50)\">Menu</a>");
    EXPECT_EQ(popupLinkCode("1", {false, "-07", ""}),
              "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '1', -07, )\">Menu</a>");
}

}  // namespace
}  // namespace zev
