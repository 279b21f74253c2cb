// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "model/tree_editing.h"
#include "tests/importers/import_test.h"

namespace zev::test {
namespace {

constexpr std::string_view kFormats[] = {"orletbar", "orletmenu", "orletbutton"};

/// What the three formats have in common.
class OrletTest : public ImportTest, public testing::WithParamInterface<std::string_view> {
  protected:
    Warnings read(std::initializer_list<std::string_view> lines) {
        return importMenu(GetParam(), Lines(lines));
    }
};

INSTANTIATE_TEST_SUITE_P(Format, OrletTest, testing::ValuesIn(kFormats), [](const auto& parameter) {
    return std::string(findImportFormat(parameter.param)->title);
});

TEST_P(OrletTest, AFileWithoutItemLinesGivesAnEmptyDocument) {
    for (const char* const bytes : {"", "\n", "Home|a.html\nx :Home\n\t:Home\n|:Home\n"}) {
        EXPECT_EQ(importMenu(GetParam(), bytes), none);
        EXPECT_TRUE(document.tree.isEmpty());
        EXPECT_EQ(document.ItemCounter, 0);
    }
}

TEST_P(OrletTest, TheFirstNodeIsCurrentAndSelectedAndNothingIsModified) {
    MenuDocument modified("/program");
    modified.markModified();
    importMenu(GetParam(), ":A\n::A1\n:B\n");
    modified.open(std::move(document));
    EXPECT_EQ(modified.CurNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.selectedNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.CurNode()->text, "A");
    EXPECT_FALSE(modified.bModified());
    EXPECT_EQ(modified.SaveFile(), "");
}

TEST_P(OrletTest, OnlyFormatOrletMenuMakesTheTopLevelOneColumn) {
    MenuProp expected = newDocument.RootMenuProp;
    if (GetParam() == "orletmenu")
        expected.Columns = "1";
    for (const char* const bytes : {"", ":A\n"}) {
        importMenu(GetParam(), bytes);
        EXPECT_EQ(document.RootMenuProp, expected);
        EXPECT_EQ(document.DefaultProp, newDocument.DefaultProp);
    }
}

TEST_P(OrletTest, ColonsNestTheItems) {
    struct {
        const char* name;
        const char* bytes;
        const char* tree;
        Warnings warnings;
    } const kCases[] = {
        {"the same level is the next sibling", ":A\n:B\n:C\n", "A\nB\nC\n", {}},
        {"one deeper is a child", ":A\n::B\n:::C\n", "A\n  B\n    C\n", {}},
        {"siblings below", ":A\n::B\n::C\n", "A\n  B\n  C\n", {}},
        {"one up", ":A\n::B\n:C\n::D\n", "A\n  B\nC\n  D\n", {}},
        {"two up at once", ":A\n::B\n:::C\n:D\n", "A\n  B\n    C\nD\n", {}},
        {"down again after going up",
         ":A\n::B\n:::C\n::D\n:::E\n",
         "A\n  B\n    C\n  D\n    E\n",
         {}},
        {"however much deeper, one level deeper", ":A\n:::::B\n", "A\n  B\n", {}},
        {"the same number of colons after a jump is a sibling",
         ":A\n::::B\n::::C\n",
         "A\n  B\n  C\n",
         {}},
        {"back up by one after a jump of three is past the jump",
         ":A\n::::B\n:::C\n",
         "A\n  B\nC\n",
         {}},
        {"back up by more after a jump is past the top",
         ":A\n::::B\n::C\n:D\n",
         "A\n  B\n",
         {{3, Reason::AboveTop}, {4, Reason::AboveTop}}},
        {"the line after a refused one counts from the item before both",
         ":A\n::::B\n:C\n::::D\n:::::E\n",
         "A\n  B\n  D\n    E\n",
         {{3, Reason::AboveTop}}},
        {"a first line that is deeper goes to the top level",
         "::A\n",
         "A\n",
         {{1, Reason::StartsDeep}}},
        {"however deep it is", ":::::A\n", "A\n", {{1, Reason::StartsDeep}}},
        {"the next ones count from its colons",
         "::A\n::B\n:::C\n:D\n",
         "A\nB\n  C\n",
         {{1, Reason::StartsDeep}, {4, Reason::AboveTop}}},
        {"only the first item can start deep", "text\n\n:A\n::B\n", "A\n  B\n", {}},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(importMenu(GetParam(), c.bytes), c.warnings);
        EXPECT_EQ(tree(), c.tree);
    }
}

TEST_P(OrletTest, OtherLinesBetweenItemsChangeNothingButTheLineNumbers) {
    EXPECT_EQ(read({"# menu", "::A", "", "text", ":B", "  ::C|c.html  "}),
              (Warnings{{2, Reason::StartsDeep}, {5, Reason::AboveTop}}));
    EXPECT_EQ(tree(), "A\nC\n");
}

TEST_P(OrletTest, KeysAreNumberedInTheOrderOfTheItemsAdded) {
    EXPECT_EQ(read({":A", "::::A1", ":refused", "::::A2", ":::B"}),
              (Warnings{{3, Reason::AboveTop}}));
    EXPECT_EQ(keys(), "A [KeyLoad 1]\n  A1 [KeyLoad 2]\n  A2 [KeyLoad 3]\nB [KeyLoad 4]\n");
    EXPECT_EQ(document.ItemCounter, 4);
}

TEST_P(OrletTest, ItemsMadeAfterwardsHaveKeysOfTheirOwn) {
    EXPECT_EQ(read({":A", ":B"}), none);
    MenuDocument edited("/program");
    edited.open(std::move(document));
    EXPECT_EQ(addMenuItem(edited), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(edited.tree()), "A [KeyLoad 1]\nB [KeyLoad 2]\nItem 2 [Key 2]\n");
}

TEST_P(OrletTest, EveryItemIsATextItemWithTheUsualSpacing) {
    EXPECT_EQ(read({":A", "::B|b.html|main"}), none);
    EXPECT_FALSE(itemAt("KeyLoad 1").IsRollover);
    EXPECT_FALSE(itemAt("KeyLoad 2").IsRollover);
    EXPECT_EQ(itemAt("KeyLoad 1").MenuProperty, newItemMenuProp());
    EXPECT_EQ(itemAt("KeyLoad 2").MenuProperty, newItemMenuProp());
}

/// One line's fields and what becomes of them.
struct FieldCase {
    const char* line;
    const char* caption;
    const char* url;
    const char* target;
};

/// Cases for items with a caption, a link and a target, the colons left out.
constexpr FieldCase kLinkItems[] = {
    {"Home", "Home", "", ""},
    {"Home|~|~", "Home", "", ""},
    {"Home|a.html", "Home", "a.html", ""},
    {"Home|a.html|main", "Home", "a.html", "main"},
    {"Home|~|main", "Home", "", "main"},
    {"Home|a.html|~", "Home", "a.html", ""},
    {"Home||", "Home", "", ""},
    {"Home|||main", "Home", "", ""},
    {"Home|a.html|main|more|and more", "Home", "a.html", "main"},
    {"", "", "", ""},
    {"|a.html", "", "a.html", ""},
    {"~|a.html", "~", "a.html", ""},
    {"Home|~~|~ ~", "Home", "~~", "~ ~"},
    {"Home | a.html | main", "Home ", " a.html ", " main"},
    {" : b", " : b", "", ""},
    {"<b>Bold</b> &amp; \"quoted\"", "<b>Bold</b> &amp; \"quoted\"", "", ""},
    // Apostrophes are escaped once; double quotes go from links and targets only.
    {"It's|x('a')|it's", "It\\'s", "x(\\'a\\')", "it\\'s"},
    {"It\\'s|x(\\'a\\')|it\\'s", "It\\'s", "x(\\'a\\')", "it\\'s"},
    {"A|\"a\".html|\"main\"", "A", "a.html", "main"},
    {"A|a=b;c|d=e;", "A", "a=b;c", "d=e;"},
};

TEST_P(OrletTest, BelowTheTopLevelAnItemHasCaptionLinkAndTarget) {
    for (const FieldCase& c : kLinkItems) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(read({":Top", "::" + std::string(c.line)}), none);
        EXPECT_EQ(ItemText(itemAt("KeyLoad 2")), "text [" + std::string(c.caption) + "] [" + c.url +
                                                     "] [" + c.target + "] [] []" +
                                                     PropText(*newItemMenuProp()));
        EXPECT_EQ(tree(), "Top\n  " + std::string(c.caption) + "\n");
    }
}

class OrletLinkItemsTest : public ImportTest,
                           public testing::WithParamInterface<std::string_view> {};

INSTANTIATE_TEST_SUITE_P(BarAndMenu, OrletLinkItemsTest, testing::Values("orletbar", "orletmenu"));

TEST_P(OrletLinkItemsTest, AtTheTopLevelAnItemHasCaptionLinkAndTarget) {
    for (const FieldCase& c : kLinkItems) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(importMenu(GetParam(), ":" + std::string(c.line) + "\n"), none);
        EXPECT_EQ(ItemText(itemAt("KeyLoad 1")), "text [" + std::string(c.caption) + "] [" + c.url +
                                                     "] [" + c.target + "] [] []" +
                                                     PropText(*newItemMenuProp()));
        EXPECT_EQ(tree(), std::string(c.caption) + "\n");
    }
}

class OrletButtonTest : public ImportTest {};

TEST_F(OrletButtonTest, AtTheTopLevelAnItemHasAnImageInItsCaptionBeforeLinkAndTarget) {
    constexpr FieldCase kCases[] = {
        {"Products|img/prod.gif|products.html|~",
         "Products <img src=\"img/prod.gif\" border=\"0\">", "products.html", ""},
        {"Home", "Home", "", ""},
        {"Home|~", "Home", "", ""},
        {"Home|~|a.html|main", "Home", "a.html", "main"},
        {"Home|~|~|main", "Home", "", "main"},
        {"Home|a.gif", "Home <img src=\"a.gif\" border=\"0\">", "", ""},
        {"Home|a.gif|a.html|main|more", "Home <img src=\"a.gif\" border=\"0\">", "a.html", "main"},
        {"|a.gif", " <img src=\"a.gif\" border=\"0\">", "", ""},
        {"Home||a.html", "Home <img src=\"\" border=\"0\">", "a.html", ""},
        {"It's|it's.gif|it's.html|it's", "It\\'s <img src=\"it\\'s.gif\" border=\"0\">",
         "it\\'s.html", "it\\'s"},
        {"A|~|\"a\".html|\"main\"", "A", "a.html", "main"},
    };
    for (const FieldCase& c : kCases) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(importMenu("orletbutton", ":" + std::string(c.line) + "\n"), none);
        EXPECT_EQ(ItemText(itemAt("KeyLoad 1")), "text [" + std::string(c.caption) + "] [" + c.url +
                                                     "] [" + c.target + "] [] []" +
                                                     PropText(*newItemMenuProp()));
        EXPECT_EQ(tree(), std::string(c.caption) + "\n");
    }
}

TEST_F(OrletButtonTest, TheColonsSayWhatTheFieldsAreWhereverTheItemIsPlaced) {
    // The first item is at the top level for lack of another; its line is that of a deeper one.
    EXPECT_EQ(importMenu("orletbutton", "::A|a.html|main\n"), (Warnings{{1, Reason::StartsDeep}}));
    EXPECT_EQ(itemAt("KeyLoad 1").Caption, "A");
    EXPECT_EQ(itemAt("KeyLoad 1").URL, "a.html");
    EXPECT_EQ(itemAt("KeyLoad 1").Target, "main");
}

}  // namespace
}  // namespace zev::test
