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
        {&MenuProp::CellPadding, "nan", false}, {&MenuProp::CellPadding, "1e2", true},
        {&MenuProp::CellPadding, "1e", false},  {&MenuProp::CellPadding, "1e400", false},
        {&MenuProp::CellPadding, "+5", false},  {&MenuProp::CellPadding, " 5", false},
        {&MenuProp::CellPadding, "5,5", false}, {&MenuProp::CellPadding, "0x1", false},
    };
    for (const Case& c : cases) {
        MenuContent content;
        content.RootMenuProp.*c.member = c.value;
        EXPECT_EQ(findBrokenValues(content).empty(), c.isRight) << c.value;
    }
}

TEST(FindBrokenValues, LeavesAloneWhatTheItemsTypeDoesNotWrite) {
    MenuContent content;
    ItemProp item = textItem("Tea");
    item.ImageOut = "it's.gif";
    content.tree.append(nullptr, "1", "", item);
    EXPECT_EQ(textsOf(findBrokenValues(content)), "");
    item.IsRollover = true;
    item.Caption = "It's";
    content.tree.append(nullptr, "2", "", item);
    EXPECT_EQ(textsOf(findBrokenValues(content)),
              "it's.gif: out: an apostrophe without a backslash breaks the script in "
              "\"it's.gif\"\n");
}

TEST(MendedValue, MendsWhateverBreaksTheScript) {
    struct Case {
        const char* field;
        const char* value;
        const char* mended;
    };
    const Case cases[] = {
        {"caption", "It's 'so'", "It\\'s \\'so\\'"},
        {"caption", "It\\'s 'so", "It\\'s \\'so"},
        {"caption", "a\\\\'b", "a\\\\\\'b"},
        {"url", "C:\\", "C:\\\\"},
        {"caption", "a~||~b", "a~&#124;|~b"},
        {"divider", "~||~", "~&#124;|~"},
        {"url", "a~||~b", "a~%7C|~b"},
        {"target", "a~||~b", "ab"},
        {"caption", "a\r\nb\nc\rd", "a b c d"},
        {"caption", "'\n~||~\\", "\\' ~&#124;|~\\\\"},
    };
    for (const Case& c : cases) {
        const MenuProblem problem{.field = c.field, .value = c.value};
        const std::optional<std::string> mended = mendedValue(problem);
        ASSERT_TRUE(mended) << c.value;
        EXPECT_EQ(*mended, c.mended) << c.value;
        EXPECT_FALSE(mendedValue({.field = c.field, .value = *mended})) << c.value;
    }
    EXPECT_FALSE(mendedValue({.field = "nbgcolor", .value = "nvay"}));
}

TEST(LineProblem, TellsPositionsThatThereAreNot) {
    const auto textOf = [](std::string_view property, std::string_view value) {
        const std::optional<MenuProblem> problem =
            lineProblem({.line = 1, .property = property, .value = value});
        return problem ? problemText(*problem) : "";
    };
    for (const char* value : {"right", "bottom", "left", "top", " top "})
        EXPECT_EQ(textOf("position", value), "") << value;
    for (const char* value : {"", "none", "Top", "middle"})
        EXPECT_EQ(textOf("position", value),
                  std::string("the top menu: position: none of right, bottom, left and top: \"") +
                      value + '"');
    EXPECT_EQ(textOf("target", "middle"), "");
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

TEST_F(FindBrokenLinks, LooksIntoTheHtmlAroundItems) {
    MenuContent content = menuOf("A", "");
    content.DefaultProp.marker = "<img src=mark.png alt=\"\">";
    content.RootMenuProp.Divider = "<b>|</b>";
    MenuProp& menu = content.tree.edit(*content.tree.firstNode()).item.MenuProperty.edit();
    menu.HTMLBefore = "<img src=\"index.html\">";
    menu.HTMLAfter = "<img src=\\'after.png\\' alt=x>";
    menu.Divider = "<img src=line.png alt=x>";
    EXPECT_EQ(textsOf(findBrokenLinks(content, files, {"/site"})),
              "the defaults: marker: there is no file \"mark.png\"\n"
              "the menu of A: htmlAfter: there is no file \"after.png\"\n"
              "the menu of A: htmlBefore: the image has no alt text: \"index.html\"\n"
              "the menu of A: divider: there is no file \"line.png\"\n");
}

/// Tells what was asked of the disk.
class WatchedFiles : public FailingFileSystem {
  public:
    using FailingFileSystem::FailingFileSystem;
    bool FileExists(const std::string& path) const override {
        asked += path + "\n";
        return FailingFileSystem::FileExists(path);
    }
    FileResult<std::string> readFile(const std::string& path,
                                     std::uint64_t maxBytes) const override {
        read += path + "\n";
        return FailingFileSystem::readFile(path, maxBytes);
    }
    mutable std::string asked;
    mutable std::string read;
};

TEST_F(FindBrokenLinks, OfAMenuThatNobodyAskedAboutStayNearItsFolder) {
    files.addFile("/page.html", "");
    files.addFile("/srv/page.html", "");
    files.addFile("/srv/site/page.html", "");
    files.addFile("/srv/site/sub/page.html", "");
    files.addFile("/net/host/page.html", "");
    WatchedFiles watched(files);
    MenuContent content;
    for (const char* url :
         {"page.html#a", "sub/../page.html#a", "../page.html#a", "../../page.html#a",
          "../../net/host/page.html#a", "x/../../../net/host/page.html#a", "sub/page.html#a"})
        content.tree.append(nullptr, url, url, textItem(url, url));
    const std::string problems =
        textsOf(findBrokenLinks(content, watched, {.definition = "/srv/site", .isUnasked = true}));
    EXPECT_EQ(watched.asked,
              "/srv/site/page.html\n"
              "/srv/site/sub/../page.html\n"
              "/srv/site/../page.html\n"
              "/srv/site/sub/page.html\n");
    EXPECT_EQ(watched.read,
              "/srv/site/page.html\n"
              "/srv/site/sub/page.html\n");
}

TEST_F(FindBrokenLinks, OfAMenuThatNobodyAskedAboutReadLittle) {
    files.addFile("/srv/site/large.html", std::string(5 << 20, ' '));
    for (const char* name : {"a", "b", "c", "d", "e"})
        files.addFile("/srv/site/" + std::string(name) + ".html", std::string(4 << 20, ' '));
    MenuContent content;
    for (const char* url : {"large.html#x", "large.html#y", "a.html#x", "b.html#x", "c.html#x",
                            "d.html#x", "e.html#x"})
        content.tree.append(nullptr, url, url, textItem(url, url));
    const auto countOf = [&](bool isUnasked) {
        WatchedFiles watched(files);
        const std::size_t count =
            findBrokenLinks(content, watched,
                            {.definition = "/srv/site", .root = "", .isUnasked = isUnasked})
                .size();
        // Each page once.
        EXPECT_EQ(watched.read.size(), std::string("/srv/site/large.html\n").size() +
                                           5 * std::string("/srv/site/a.html\n").size());
        return count;
    };
    EXPECT_EQ(countOf(false), 7U);
    EXPECT_EQ(countOf(true), 3U);
}

}  // namespace
}  // namespace zev
