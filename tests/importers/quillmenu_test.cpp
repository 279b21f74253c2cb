// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "model/tree_editing.h"
#include "tests/importers/import_test.h"

namespace zev::test {
namespace {

class QuillmenuTest : public ImportTest {
  protected:
    Warnings read(std::initializer_list<std::string_view> lines) {
        return importMenu("quillmenu", Lines(lines));
    }
    const MenuProp& submenu(const std::string& key) { return *itemAt(key).MenuProperty; }
};

constexpr std::string_view kMain = "qlmenu1 = new mainMenu('vertical');";

TEST_F(QuillmenuTest, AFileWithoutMenuLinesGivesAnEmptyDocument) {
    for (const char* const bytes : {"", "\n", "// a script\nvar menu = 1;\n", ":Home|a.html\n"}) {
        EXPECT_EQ(importMenu("quillmenu", bytes), none);
        EXPECT_EQ(DocumentText(document), DocumentText(newDocument));
        EXPECT_TRUE(document.tree.isEmpty());
    }
}

TEST_F(QuillmenuTest, TheFirstNodeIsCurrentAndSelectedAndNothingIsModified) {
    MenuDocument modified("/program");
    modified.markModified();
    read({kMain, "qlmenu1.addItems('A');", "qlmenu1.addItems('B');"});
    modified.open(std::move(document));
    EXPECT_EQ(modified.CurNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.selectedNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.CurNode()->text, "A");
    EXPECT_FALSE(modified.bModified());
    EXPECT_EQ(modified.SaveFile(), "");
}

TEST_F(QuillmenuTest, StateLinesSetTheDefaults) {
    EXPECT_EQ(read({"qlm_state.columns = 4;", "qlm_state.bgimage = 'bg.gif';",
                    "qlm_state.position = 'top';", "qlm_state.fontSize = \"12pt\";",
                    "qlm_state.nosuchname = 5;", "qlm_state.menuoffset = 9;"}),
              none);
    MenuProp expected;
    expected.SetDefault();
    expected.Columns = "4";
    expected.BgImg = "bg.gif";
    expected.Position = 4;
    expected.FontSize = "12";
    expected.FontSet = true;
    EXPECT_EQ(document.DefaultProp, expected);
    EXPECT_EQ(document.RootMenuProp, newDocument.RootMenuProp);
}

TEST_F(QuillmenuTest, OnlyTheExactWordHorizontalMakesTwentyColumns) {
    struct {
        const char* orientation;
        const char* columns;
    } const kCases[] = {{"horizontal", "20"}, {"vertical", "1"},    {"Horizontal", "1"}, {"", "1"},
                        {" horizontal", "1"}, {"horizontally", "1"}};
    for (const auto& c : kCases) {
        const std::string line = "qlmenu1 = new mainMenu('" + std::string(c.orientation) + "');";
        EXPECT_EQ(read({line}), none);
        EXPECT_EQ(document.RootMenuProp.Columns, c.columns) << c.orientation;
    }
}

TEST_F(QuillmenuTest, TheMainMenusArgumentsAreItsColoursAndItsImage) {
    EXPECT_EQ(read({"qlmenu1 = new mainMenu('horizontal', '#111111', '#222222', '#333333', "
                    "'#444444', 'bg.gif', 'more', 'and more');"}),
              none);
    MenuProp expected = newDocument.RootMenuProp;
    expected.Columns = "20";
    expected.NBgColor = "#111111";
    expected.HBgColor = "#222222";
    expected.NFtColor = "#333333";
    expected.HFtColor = "#444444";
    expected.BgImg = "bg.gif";
    EXPECT_EQ(document.RootMenuProp, expected);
    EXPECT_EQ(document.DefaultProp, newDocument.DefaultProp);
}

TEST_F(QuillmenuTest, FromTheFirstMissingArgumentOnACreationLineChangesNothing) {
    EXPECT_EQ(read({"qlmenu1 = new mainMenu('vertical', '#1', '#2', '#3', '#4', 'bg.gif');",
                    "qlmenu1 = new mainMenu('horizontal', '#5', '#6');"}),
              none);
    EXPECT_EQ(document.RootMenuProp.Columns, "20");
    EXPECT_EQ(document.RootMenuProp.NBgColor, "#5");
    EXPECT_EQ(document.RootMenuProp.HBgColor, "#6");
    EXPECT_EQ(document.RootMenuProp.NFtColor, "#3");
    EXPECT_EQ(document.RootMenuProp.HFtColor, "#4");
    EXPECT_EQ(document.RootMenuProp.BgImg, "bg.gif");
}

TEST_F(QuillmenuTest, AnApostropheInACreationLineShiftsItsArguments) {
    // Escaped or not; the argument that nothing closes runs to the end of the line.
    EXPECT_EQ(read({"qlmenu1 = new mainMenu('horizontal', 'it\\'s', '#2');"}), none);
    EXPECT_EQ(document.RootMenuProp.NBgColor, "it\\");
    EXPECT_EQ(document.RootMenuProp.HBgColor, ", ");
    EXPECT_EQ(document.RootMenuProp.NFtColor, ");");
    EXPECT_EQ(document.RootMenuProp.HFtColor, "");
}

TEST_F(QuillmenuTest, ASubmenusArgumentsGoToTheItemWhosePositionsItsIdSpells) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1.addItems('B');",
                    "qlmenu1 = new subMenu('2', '#111111', '#222222', '#333333', '#444444', "
                    "'bg.gif', 'more');",
                    "qlmenu1.addItems('B1');", "qlmenu1.addItems('B2');",
                    "qlmenu1 = new subMenu('2i1', '#5');", "qlmenu1.addItems('B11');",
                    "qlmenu1 = new subMenu('1');", "qlmenu1.addItems('A1');"}),
              none);
    EXPECT_EQ(keys(),
              "A [KeyLoad 1]\n  A1 [KeyLoad 1i1]\nB [KeyLoad 2]\n  B1 [KeyLoad 2i1]\n"
              "    B11 [KeyLoad 2i1i1]\n  B2 [KeyLoad 2i2]\n");
    MenuProp expected = *newItemMenuProp();
    expected.Columns = "1";
    EXPECT_EQ(submenu("KeyLoad 1"), expected);
    expected.NBgColor = "#5";
    EXPECT_EQ(submenu("KeyLoad 2i1"), expected);
    expected.NBgColor = "#111111";
    expected.HBgColor = "#222222";
    expected.NFtColor = "#333333";
    expected.HFtColor = "#444444";
    expected.BgImg = "bg.gif";
    EXPECT_EQ(submenu("KeyLoad 2"), expected);
    EXPECT_EQ(submenu("KeyLoad 2i2"), *newItemMenuProp());
    EXPECT_EQ(document.RootMenuProp.NBgColor, "");
}

TEST_F(QuillmenuTest, TheArgumentsOfASubmenuThatNoItemOpensAreDroppedWithoutAWarning) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1 = new subMenu('7', '#1', '#2');"}),
              none);
    EXPECT_EQ(submenu("KeyLoad 1"), *newItemMenuProp());
    EXPECT_EQ(document.RootMenuProp.NBgColor, "");
    EXPECT_EQ(tree(), "A\n");
}

TEST_F(QuillmenuTest, EachLineOfAMenuThatNoItemOpensIsAWarning) {
    EXPECT_EQ(
        read({kMain, "qlmenu1.addItems('A');", "qlmenu1 = new subMenu('7');",
              "qlmenu1.columns = 3;", "", "qlmenu1.addItems('X');",
              "qlmenu1.addImages('x.html', 'x.gif');", "qlmenu1 = new subMenu('1');",
              "qlmenu1.addItems('A1');"}),
        (Warnings{{4, Reason::UnknownMenu}, {6, Reason::UnknownMenu}, {7, Reason::UnknownMenu}}));
    EXPECT_EQ(tree(), "A\n  A1\n");
}

TEST_F(QuillmenuTest, AnItemWithAnEqualsSignInAMenuThatNoItemOpensGivesTwoWarnings) {
    EXPECT_EQ(read({"qlmenu1 = new subMenu('7');", "qlmenu1.addItems('A', 'a.asp?b=c');"}),
              (Warnings{{2, Reason::UnknownMenu}, {2, Reason::UnknownMenu}}));
}

TEST_F(QuillmenuTest, LinesBeforeTheFirstCreationLineBelongToNoMenu) {
    EXPECT_EQ(read({"qlmenu1.columns = 3;", "qlmenu1.addItems('A');"}),
              (Warnings{{1, Reason::UnknownMenu}, {2, Reason::UnknownMenu}}));
    EXPECT_EQ(document.RootMenuProp, newDocument.RootMenuProp);
    EXPECT_TRUE(document.tree.isEmpty());
    EXPECT_TRUE(document.tree.isEmpty());
}

TEST_F(QuillmenuTest, AnEmptySubmenuIdIsAMenuThatNoItemOpens) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1 = new subMenu('');",
                    "qlmenu1.addItems('B');"}),
              (Warnings{{4, Reason::UnknownMenu}}));
}

TEST_F(QuillmenuTest, TheSubmenuIdZeroIsTheTopLevelMenu) {
    // Its creation line finds no item and changes nothing, but starts the numbers again.
    EXPECT_EQ(read({"qlmenu1 = new subMenu('0', '#1');", "qlmenu1.columns = 3;",
                    "qlmenu1.addItems('A');", kMain, "qlmenu1.addItems('B');"}),
              (Warnings{{5, Reason::DuplicateKey}}));
    EXPECT_EQ(keys(), "A [KeyLoad 1]\n");
    EXPECT_EQ(document.RootMenuProp.NBgColor, "");
}

TEST_F(QuillmenuTest, PropertyLinesGoToTheMenuCreatedLast) {
    EXPECT_EQ(read({"qlmenu1 = new mainMenu('horizontal', '#1');", "qlmenu1.columns = 3;",
                    "qlmenu1.addItems('A');", "qlmenu1.position = 'top';",
                    "qlmenu1 = new subMenu('1', '#2');", "qlmenu1.columns = 4;",
                    "qlmenu1.divider = \"it's\";", "qlmenu1.htmlAfter = '';",
                    "qlmenu1.fontStyle = 'italic';", "qlmenu1.nosuchname = 1;",
                    "qlmenu1.Columns = 9;", "qlmenu1.hspacing=5;"}),
              none);
    EXPECT_EQ(document.RootMenuProp.Columns, "3");
    EXPECT_EQ(document.RootMenuProp.Position, 4);
    EXPECT_EQ(document.RootMenuProp.NBgColor, "#1");
    MenuProp expected = *newItemMenuProp();
    expected.Columns = "4";
    expected.NBgColor = "#2";
    expected.Divider = "it's";
    expected.HTMLAfter = "";
    expected.FontStyle = true;
    expected.FontSet = true;
    expected.Spacing = "5";
    EXPECT_EQ(submenu("KeyLoad 1"), expected);
}

TEST_F(QuillmenuTest, ATextItemHasCaptionLinkAndTarget) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('It\\'s <b>new</b>', 'a.html', '_top', 'more');"}),
              none);
    ItemProp expected;
    expected.Caption = "It\\'s <b>new</b>";
    expected.URL = "a.html";
    expected.Target = "_top";
    expected.MenuProperty = newItemMenuProp();
    EXPECT_EQ(itemAt("KeyLoad 1"), expected);
    EXPECT_EQ(tree(), "It\\'s <b>new</b>\n");
}

TEST_F(QuillmenuTest, AnImageItemHasLinkImagesAndTargetAndIsShownUnderItsMouseOutImage) {
    EXPECT_EQ(read({kMain, "qlmenu1.addImages('a.html', 'out.gif', 'over.gif', 'main');"}), none);
    ItemProp expected;
    expected.IsRollover = true;
    expected.URL = "a.html";
    expected.ImageOut = "out.gif";
    expected.ImageOver = "over.gif";
    expected.Target = "main";
    expected.MenuProperty = newItemMenuProp();
    EXPECT_EQ(itemAt("KeyLoad 1"), expected);
    EXPECT_EQ(tree(), "out.gif\n");
}

TEST_F(QuillmenuTest, ItemsKeepTheOrderOfTheirLinesAndWhatTheyLackIsEmpty) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1.addImages('b.html', 'b.gif');",
                    "qlmenu1.addItems();", "qlmenu1.addItems('C', 'c.html');"}),
              none);
    EXPECT_EQ(keys(), "A [KeyLoad 1]\nb.gif [KeyLoad 2]\n [KeyLoad 3]\nC [KeyLoad 4]\n");
    EXPECT_EQ(itemAt("KeyLoad 1").URL, "");
    EXPECT_EQ(itemAt("KeyLoad 2").ImageOver, "");
    EXPECT_EQ(itemAt("KeyLoad 4").Target, "");
}

TEST_F(QuillmenuTest, AnItemWithAnEqualsSignIsAlsoAPropertyWithoutEffect) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A', 'a.asp?columns=5');"}), none);
    EXPECT_EQ(itemAt("KeyLoad 1").URL, "a.asp?columns=5");
    EXPECT_EQ(document.RootMenuProp.Columns, "1");
}

TEST_F(QuillmenuTest, LinesThatMatchNoPatternAreSkipped) {
    EXPECT_EQ(read({kMain, "\tqlmenu1.addItems('tab');", "qlmenu1.addItems('no semicolon')",
                    "qlmenu1.AddItems('case');", "QLMENU1.addItems('case');",
                    "qlmenu2.addItems('other menu');", "qlmenu1.addItem('other name');",
                    "qlmenu1 .addItems('space');", "x qlmenu1.addItems('not at the start');",
                    "qlmenu1 = new MainMenu('horizontal');", "qlmenu1=new mainMenu('horizontal');",
                    "qlmenu1 = new mainMenu(\"horizontal\");", "qlmenu1 = new mainMenu();",
                    "qlm_state.columns = 7", "qlm_state columns = 7;", "Qlm_state.columns = 7;",
                    "qlmenu1.columns = 7", "zevmenu.AddItem('X', '', '');",
                    "qlmenu1.addItems('comment'); // no match"}),
              none);
    EXPECT_TRUE(document.tree.isEmpty());
    EXPECT_EQ(document.RootMenuProp.Columns, "1");
    EXPECT_EQ(document.DefaultProp, newDocument.DefaultProp);
}

TEST_F(QuillmenuTest, SpacesAroundALineDoNotMatter) {
    EXPECT_EQ(importMenu("quillmenu",
                         "   qlmenu1 = new mainMenu('horizontal');  \r\n  qlmenu1.addItems('A');"),
              none);
    EXPECT_EQ(document.RootMenuProp.Columns, "20");
    EXPECT_EQ(tree(), "A\n");
}

TEST_F(QuillmenuTest, TheItemsOfAMenuCreatedTwiceAreRefusedWhereTheirPlaceIsTaken) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1 = new subMenu('1', '#1');",
                    "qlmenu1.addItems('A1');", "qlmenu1 = new subMenu('1', '#2');",
                    "qlmenu1.addItems('again');", "qlmenu1.addItems('A2');"}),
              (Warnings{{6, Reason::DuplicateKey}}));
    EXPECT_EQ(keys(), "A [KeyLoad 1]\n  A1 [KeyLoad 1i1]\n  A2 [KeyLoad 1i2]\n");
    EXPECT_EQ(submenu("KeyLoad 1").NBgColor, "#2");
}

TEST_F(QuillmenuTest, ARefusedItemCountsAllTheSame) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", kMain, "qlmenu1.addItems('again');",
                    "qlmenu1.addItems('B');", "qlmenu1 = new subMenu('9');",
                    "qlmenu1.addItems('lost');"}),
              (Warnings{{4, Reason::DuplicateKey}, {7, Reason::UnknownMenu}}));
    EXPECT_EQ(keys(), "A [KeyLoad 1]\nB [KeyLoad 2]\n");
    EXPECT_EQ(document.ItemCounter, 4);
}

TEST_F(QuillmenuTest, ItemsMadeAfterwardsHaveKeysOfTheirOwn) {
    EXPECT_EQ(read({kMain, "qlmenu1.addItems('A');", "qlmenu1.addItems('B');"}), none);
    MenuDocument edited("/program");
    edited.open(std::move(document));
    EXPECT_EQ(addMenuItem(edited), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(edited.tree()), "A [KeyLoad 1]\nB [KeyLoad 2]\nItem 2 [Key 2]\n");
}

}  // namespace
}  // namespace zev::test
