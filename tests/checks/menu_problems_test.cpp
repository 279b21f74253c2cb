// SPDX-License-Identifier: MIT
#include "checks/menu_problems.h"

#include <gtest/gtest.h>

#include "checks/css_values.h"
#include "checks/link_problems.h"
#include "messages/problem_messages.h"
#include "model/menu_content.h"
#include "platform/fake/fake_file_system.h"

namespace zev {
namespace {

std::string textsOf(const std::vector<MenuProblem>& problems) {
    std::string text;
    for (const MenuProblem& problem : problems)
        text += problemText(problem) + "\n";
    return text;
}

ItemProp textItem(const std::string& caption, const std::string& url = {}) {
    ItemProp item;
    item.MenuProperty = newItemMenuProp();
    item.Caption = caption;
    item.URL = url;
    return item;
}

/// A menu of one item with this caption and link.
MenuContent menuOf(const std::string& caption, const std::string& url) {
    MenuContent content;
    content.tree.append(nullptr, "1", caption, textItem(caption, url));
    return content;
}

TEST(FindBrokenValues, ANewMenuHasNone) {
    EXPECT_EQ(textsOf(findBrokenValues(MenuContent())), "");
    EXPECT_EQ(textsOf(findBrokenValues(menuOf("It\\'s", "javascript:go(\\'x\\')"))), "");
}

TEST(FindBrokenValues, TellsWhatBreaksTheScript) {
    struct Case {
        const char* caption;
        const char* problem;
    };
    const Case cases[] = {
        {"It's", "an apostrophe without a backslash breaks the script in \"It's\""},
        {"It\\\\'s", "an apostrophe without a backslash breaks the script in \"It\\\\'s\""},
        {"C:\\", "a backslash at the end breaks the script in \"C:\\\""},
        {"a~||~b", "~||~ is read back as an apostrophe in \"a~||~b\""},
        {"a\nb", "a line break breaks the script"},
    };
    for (const Case& c : cases) {
        const MenuContent content = menuOf(c.caption, "");
        const std::vector<MenuProblem> problems = findBrokenValues(content);
        ASSERT_EQ(problems.size(), 1U) << c.caption;
        EXPECT_TRUE(problemText(problems[0]).ends_with(std::string(": caption: ") + c.problem))
            << problemText(problems[0]);
    }
    EXPECT_EQ(findBrokenValues(menuOf("C:\\\\", "")).size(), 0U);
}

TEST(FindBrokenValues, TellsValuesThatNoBrowserUnderstands) {
    MenuContent content = menuOf("A", "");
    content.DefaultProp.NBgColor = "nvay";
    content.DefaultProp.FontSize = "big";
    content.RootMenuProp.MenuBorder = "1px sold red";
    content.tree.edit(*content.tree.firstNode()).item.MenuProperty.edit().Columns = "two";
    EXPECT_EQ(textsOf(findBrokenValues(content)),
              "the defaults: nbgcolor: no colour that a browser understands: \"nvay\"\n"
              "the defaults: fontSize: not a number that makes sense here: \"big\"\n"
              "the top menu: menuborder: no border that a browser understands: \"1px sold red\"\n"
              "the menu of A: columns: not a number that makes sense here: \"two\"\n");
}

TEST(FindBrokenValues, HoldsNumbersToWhatTheLibraryTakes) {
    struct Case {
        std::string MenuProp::*member;
        const char* value;
        bool isRight;
    };
    const Case cases[] = {
        {&MenuProp::Columns, "3", true},        {&MenuProp::Columns, "0", false},
        {&MenuProp::Columns, "1.5", false},     {&MenuProp::FilterOpacity, "100", true},
        {&MenuProp::FilterOpacity, "0", false}, {&MenuProp::FilterFade, "0.5", true},
        {&MenuProp::FilterFade, "6", false},    {&MenuProp::MenuOffset, "-3", true},
        {&MenuProp::CloseDelay, "-1", false},   {&MenuProp::Spacing, "2px", false},
        {&MenuProp::CellPadding, "nan", false},
    };
    for (const Case& c : cases) {
        MenuContent content;
        content.RootMenuProp.*c.member = c.value;
        EXPECT_EQ(findBrokenValues(content).empty(), c.isRight) << c.value;
    }
}

TEST(FindBrokenValues, TellsEmptyAndRepeatedCaptions) {
    MenuContent content = menuOf("Tea", "");
    for (const char* caption : {"<b>Tea</b>", "&nbsp;", "<img src=x alt=>", "Milk"})
        content.tree.append(nullptr, caption, caption, textItem(caption));
    content.tree.append(content.tree.firstNode(), "below", "Tea", textItem("Tea"));
    EXPECT_EQ(textsOf(findBrokenValues(content)),
              "Tea: caption: an item before it in the menu has the same: \"Tea\"\n"
              "?: caption: is empty\n");
}

TEST(IsCssColour, KnowsDigitsNamesAndFunctions) {
    for (const char* text :
         {"#abc", "#ABCD", "#123456", "#12345678", "navy", "NAVY", "transparent", "aliceblue",
          "yellowgreen", "currentColor", "rgb(0, 0, 128)", "hsla(120deg 75% 25% / 60%)", " red "})
        EXPECT_TRUE(isCssColour(text)) << text;
    for (const char* text : {"", "#", "#12", "#12345", "#ggg", "nvay", "navy'", "123456", "rgb(1",
                             "url(x)", "red blue"})
        EXPECT_FALSE(isCssColour(text)) << text;
}

TEST(IsCssBorder, IsWidthStyleAndColourInAnyOrder) {
    for (const char* text : {"1px solid red", "solid", "0", "none", "red 2px dashed", "thin groove",
                             "1.5em double rgb(1, 2, 3)", ".5px solid #000", "0.0"})
        EXPECT_TRUE(isCssBorder(text)) << text;
    for (const char* text : {"", "1", "1px 2px", "solid dashed", "red blue", "1px sold",
                             "-1px solid", "1px solid red x", "1..5px", "px"})
        EXPECT_FALSE(isCssBorder(text)) << text;
}

class FindBrokenLinks : public testing::Test {
  protected:
    FindBrokenLinks() {
        files.addFile("/site/js/menu.js", "");
        files.addFile("/site/index.html", "<h1 id=start>A</h1><A NAME='two&amp;3'>B</A>");
        files.addFile("/site/with blank.html", "");
        files.addFile("/site/shop.php", "");
        files.addFolder("/site/about");
    }
    std::string problemsOf(const std::string& caption, const std::string& url,
                           const std::string& root = {}) {
        const MenuContent content = menuOf(caption, url);
        return textsOf(findBrokenLinks(content, files, {"/site", root}));
    }
    FakeFileSystem files;
};

TEST_F(FindBrokenLinks, LooksFilesUpFromTheDefinitionsFolder) {
    for (const char* url :
         {"index.html", "about", "js/menu.js", "with%20blank.html", "index.html?page=2",
          "index.html?a#start", "index.html#two%263", "index.html#top", "shop.php#anything"})
        EXPECT_EQ(problemsOf("A", url), "") << url;
    EXPECT_EQ(problemsOf("A", "no.html"), "A: url: there is no file \"no.html\"\n");
    EXPECT_EQ(problemsOf("A", "no.html?x#y"), "A: url: there is no file \"no.html?x#y\"\n");
    EXPECT_EQ(problemsOf("A", "index.html#end"),
              "A: url: the page has no such place: \"index.html#end\"\n");
}

TEST_F(FindBrokenLinks, LeavesAddressesOfOtherPlacesAlone) {
    for (const char* url : {"", "#", "#x", "?x", "http://example.org/a", "//example.org/a",
                            "javascript:go()", "mailto:a@example.org", "/no.html"})
        EXPECT_EQ(problemsOf("A", url), "") << url;
}

TEST_F(FindBrokenLinks, LooksUpFromTheRootWhenItIsKnown) {
    EXPECT_EQ(problemsOf("A", "/index.html", "/site"), "");
    EXPECT_EQ(problemsOf("A", "/no.html", "/site"), "A: url: there is no file \"/no.html\"\n");
}

TEST_F(FindBrokenLinks, TellsMissingImagesAndThoseWithoutAlt) {
    EXPECT_EQ(problemsOf("<img src=\"a.png\" ALT=\"\">A", ""),
              "A: caption: there is no file \"a.png\"\n");
    EXPECT_EQ(problemsOf("<IMG src=\"index.html\">A", ""),
              "A: caption: the image has no alt text: \"index.html\"\n");
    MenuContent content;
    content.DefaultProp.BgImg = "bg.png";
    ItemProp rollover;
    rollover.IsRollover = true;
    rollover.ImageOut = "out.png";
    rollover.ImageOver = "index.html";
    content.tree.append(nullptr, "1", "", rollover);
    EXPECT_EQ(textsOf(findBrokenLinks(content, files, {"/site"})),
              "the defaults: bgimage: there is no file \"bg.png\"\n"
              "out.png: out: there is no file \"out.png\"\n");
}

}  // namespace
}  // namespace zev
