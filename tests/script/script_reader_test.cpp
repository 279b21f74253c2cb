// SPDX-License-Identifier: MIT
#include "script/script_reader.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "model/tree_editing.h"
#include "script/script_writer.h"
#include "tests/script/document_text.h"

namespace zev {
namespace {

using test::Lines;
using test::TreeText;
using test::TreeTextWithKeys;

class ReadScriptTest : public testing::Test {
  protected:
    std::size_t read(std::string_view bytes) {
        document = MenuContent();
        const std::size_t errorCount = ReadScript(std::string(bytes), document).errorCount;
        test::ExpectSoundTree(document.tree);
        return errorCount;
    }
    std::size_t read(std::initializer_list<std::string_view> lines) { return read(Lines(lines)); }
    const MenuProp& submenu(const std::string& key) {
        return *document.tree.find(key)->item.MenuProperty;
    }

    MenuContent document;
    const MenuContent newDocument;
};

TEST_F(ReadScriptTest, AnEmptyFileGivesAnEmptyDocument) {
    EXPECT_EQ(read(""), 0u);
    EXPECT_EQ(test::DocumentText(document), test::DocumentText(newDocument));
    EXPECT_TRUE(document.tree.isEmpty());
}

TEST_F(ReadScriptTest, TheFirstNodeIsCurrentAndSelectedAndNothingIsModified) {
    MenuDocument modified("/program");
    modified.markModified();
    read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
          "zevmenu.AddItem('B', '', '');"});
    modified.open(std::move(document));
    EXPECT_EQ(modified.CurNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.selectedNode(), modified.tree().firstNode());
    EXPECT_EQ(modified.CurNode()->text, "A");
    EXPECT_FALSE(modified.bModified());
}

TEST_F(ReadScriptTest, DefaultLinesSetTheDefaults) {
    EXPECT_EQ(read({"zev_state.columns = 4;", "zev_state.bgimage = 'bg.gif';",
                    "zev_state.position = 'top';", "zev_state.fontSize = '12pt';",
                    "zev_state.fontStyle = 'italic';"}),
              0u);
    MenuProp expected;
    expected.SetDefault();
    expected.Columns = "4";
    expected.BgImg = "bg.gif";
    expected.Position = 4;
    expected.FontSize = "12";
    expected.FontStyle = true;
    expected.FontSet = true;
    EXPECT_EQ(document.DefaultProp, expected);
    EXPECT_EQ(document.RootMenuProp, newDocument.RootMenuProp);
}

TEST_F(ReadScriptTest, OffsetAndDelayOfTheDefaultsAreNotRestored) {
    EXPECT_EQ(read({"zev_state.menuoffset = 9;", "zev_state.closedelay = 900;"}), 0u);
    EXPECT_EQ(document.DefaultProp.MenuOffset, "1");
    EXPECT_EQ(document.DefaultProp.CloseDelay, "500");
}

TEST_F(ReadScriptTest, OnlyACreationLineAndItemsGiveAFlatMenuWithTheRootOfANewDocument) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', 'a.html', '_top');",
                    "zevmenu.AddRollover('b.html', 'o.gif', 'v.gif', '');"}),
              0u);
    EXPECT_EQ(TreeTextWithKeys(document.tree), "A [KeyLoad 1]\no.gif [KeyLoad 2]\n");
    EXPECT_EQ(document.RootMenuProp, newDocument.RootMenuProp);
    EXPECT_EQ(document.ItemCounter, 2);

    ItemProp text;
    text.Caption = "A";
    text.URL = "a.html";
    text.Target = "_top";
    text.MenuProperty = newItemMenuProp();
    EXPECT_EQ(document.tree.find("KeyLoad 1")->item, text);
    ItemProp rollover;
    rollover.IsRollover = true;
    rollover.URL = "b.html";
    rollover.ImageOut = "o.gif";
    rollover.ImageOver = "v.gif";
    rollover.MenuProperty = newItemMenuProp();
    EXPECT_EQ(document.tree.find("KeyLoad 2")->item, rollover);
}

TEST_F(ReadScriptTest, ASubmenusLinesGoToTheItemWhosePositionsItsIdSpells) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.columns = 3;",
                    "zevmenu.AddItem('A', '', '');", "zevmenu.AddItem('B', '', '');",
                    "zevmenu = new ZEVMenu('2');", "zevmenu.columns = 4;",
                    "zevmenu.AddItem('B1', '', '');", "zevmenu.AddItem('B2', '', '');",
                    "zevmenu = new ZEVMenu('2i1');", "zevmenu.columns = 5;",
                    "zevmenu.AddItem('B11', '', '');"}),
              0u);
    EXPECT_EQ(TreeTextWithKeys(document.tree),
              "A [KeyLoad 1]\nB [KeyLoad 2]\n  B1 [KeyLoad 2i1]\n    B11 [KeyLoad 2i1i1]\n"
              "  B2 [KeyLoad 2i2]\n");
    EXPECT_EQ(document.RootMenuProp.Columns, "3");
    EXPECT_EQ(submenu("KeyLoad 2").Columns, "4");
    EXPECT_EQ(submenu("KeyLoad 2i1").Columns, "5");
    EXPECT_EQ(submenu("KeyLoad 1").Columns, "");
    EXPECT_EQ(document.ItemCounter, 5);
}

TEST_F(ReadScriptTest, ASubmenusOwnLinesOverwriteTheStartingValues) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
                    "zevmenu = new ZEVMenu('1');", "zevmenu.divider = '';",
                    "zevmenu.htmlAfter = ' > ';"}),
              0u);
    EXPECT_EQ(submenu("KeyLoad 1").Divider, "");
    EXPECT_EQ(submenu("KeyLoad 1").HTMLAfter, ">");
    EXPECT_EQ(submenu("KeyLoad 1").HTMLBefore, "&nbsp;&nbsp;");
}

TEST_F(ReadScriptTest, ACreationLineWithoutItemsStillNamesTheMenuOfThePropertyLines) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
                    "zevmenu = new ZEVMenu('1');", "zevmenu.columns = 7;"}),
              0u);
    EXPECT_EQ(submenu("KeyLoad 1").Columns, "7");
    EXPECT_EQ(document.RootMenuProp.Columns, "10");
}

TEST_F(ReadScriptTest, EachLineOfAMissingMenuCountsOneError) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
                    "zevmenu.AddItem('B', '', '');", "zevmenu.AddItem('C', '', '');",
                    "zevmenu = new ZEVMenu('7');", "zevmenu.columns = 3;", "zevmenu.divider = '';",
                    "zevmenu.AddItem('X', '', '');", "zevmenu.AddRollover('', '', '', '');"}),
              4u);
    EXPECT_EQ(TreeText(document.tree), "A\nB\nC\n");
    EXPECT_EQ(document.ItemCounter, 3);
}

TEST_F(ReadScriptTest, AnItemWithAnEqualsSignInAMissingMenuCountsTwice) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('7');", "zevmenu.AddItem('a=b', '', '');"}), 2u);
}

TEST_F(ReadScriptTest, BeforeAnyCreationLineEachMenuLineIsAnError) {
    EXPECT_EQ(read({"zevmenu.columns = 3;", "zevmenu.AddItem('A', '', '');",
                    "zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('B', '', '');"}),
              2u);
    EXPECT_EQ(TreeText(document.tree), "B\n");
    EXPECT_EQ(document.RootMenuProp.Columns, "10");
}

TEST_F(ReadScriptTest, AnEmptyMenuIdNamesNoMenu) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('');", "zevmenu.columns = 3;",
                    "zevmenu.AddItem('A', '', '');"}),
              2u);
    EXPECT_TRUE(document.tree.isEmpty());
}

TEST_F(ReadScriptTest, AfterAnErrorTheRestIsStillRead) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
                    "zevmenu = new ZEVMenu('9');", "zevmenu.AddItem('lost', '', '');",
                    "zevmenu = new ZEVMenu('1');", "zevmenu.AddItem('A1', '', '');",
                    "zev_state.columns = 6;"}),
              1u);
    EXPECT_EQ(TreeText(document.tree), "A\n  A1\n");
    EXPECT_EQ(document.DefaultProp.Columns, "6");
}

TEST_F(ReadScriptTest, ItemsOfAMenuCreatedTwiceAreErrorsUntilTheirNumbersAreFree) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
                    "zevmenu.AddItem('B', '', '');", "zevmenu = new ZEVMenu('0');",
                    "zevmenu.AddItem('C', '', '');", "zevmenu.AddItem('D', '', '');",
                    "zevmenu.AddItem('E', '', '');"}),
              2u);
    EXPECT_EQ(TreeTextWithKeys(document.tree), "A [KeyLoad 1]\nB [KeyLoad 2]\nE [KeyLoad 3]\n");
}

TEST_F(ReadScriptTest, AnItemLineWithAnEqualsSignAddsAnItemAndChangesNoProperty) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('a=b', 'x.html', '');",
                    "zevmenu = new ZEVMenu('1');", "zevmenu.AddItem('columns=2;', '', '');"}),
              0u);
    EXPECT_EQ(TreeText(document.tree), "a=b\n  columns=2;\n");
    EXPECT_EQ(document.RootMenuProp, newDocument.RootMenuProp);
    EXPECT_EQ(submenu("KeyLoad 1"), *newItemMenuProp());
}

TEST_F(ReadScriptTest, UnknownLinesAreSkippedSilently) {
    EXPECT_EQ(
        read({"// a comment", "function f() { return 1; }", "", "zevmenu", "zevmenu.",
              "zevmenu.columns", "zevmenu.columns = 3", "ZEVMENU.columns = 3;", "zev_state = 1;",
              "var zevmenu = new ZEVMenu('0');", "zevmenu = new ZEVMenu(\"0\");",
              "zevmenu=new ZEVMenu('0');", "zevmenu.AddItem('A', '', '')",
              "zevmenu.additem('A', '', '');", "x zevmenu.AddItem('A', '', '');"}),
        0u);
    EXPECT_EQ(test::DocumentText(document), test::DocumentText(newDocument));
}

TEST_F(ReadScriptTest, SpacesAroundALineAreTrimmedButNotTabs) {
    EXPECT_EQ(read("   zevmenu = new ZEVMenu('0');  \r\n   zevmenu.columns = 3; \r\n"
                   "\tzevmenu.columns = 4;\r\nzevmenu.columns = 5;\t\r\n"),
              0u);
    EXPECT_EQ(document.RootMenuProp.Columns, "3");
}

TEST_F(ReadScriptTest, LinesEndAtLfWithOrWithoutACrBeforeIt) {
    const char* const kTexts[] = {
        "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\n",
        "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('A', '', '');\r\n",
        "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('A', '', '');",
        "zevmenu = new ZEVMenu('0');\n\n\r\n  \r\nzevmenu.AddItem('A', '', '');\n",
    };
    for (const char* text : kTexts) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(read(text), 0u);
        EXPECT_EQ(TreeText(document.tree), "A\n");
    }
}

TEST_F(ReadScriptTest, OnlyOneCrIsDroppedAndALoneCrEndsNoLine) {
    EXPECT_EQ(read("zevmenu = new ZEVMenu('0');\r\nzevmenu.columns = 3;\r\r\n"), 0u);
    EXPECT_EQ(document.RootMenuProp.Columns, "10");
    EXPECT_EQ(read("zevmenu = new ZEVMenu('0');\rzevmenu.AddItem('A', '', '');\r"), 0u);
    EXPECT_TRUE(document.tree.isEmpty());
}

TEST_F(ReadScriptTest, AByteOrderMarkIsSkipped) {
    EXPECT_EQ(read("\xEF\xBB\xBFzev_state.columns = 3;\r\n"), 0u);
    EXPECT_EQ(document.DefaultProp.Columns, "3");
}

TEST_F(ReadScriptTest, TextThatIsNotUtf8IsTakenForWindows1252) {
    EXPECT_EQ(read("zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('Caf\xE9 \x80', '', '');\r\n"),
              0u);
    EXPECT_EQ(TreeText(document.tree), "Caf\xC3\xA9 \xE2\x82\xAC\n");
}

TEST_F(ReadScriptTest, MissingArgumentsLeaveTheMembersEmpty) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('Only');", "zevmenu.AddItem();",
                    "zevmenu.AddRollover('r.html');"}),
              0u);
    EXPECT_EQ(test::ItemLines(document.tree),
              "Only: zevmenu.AddItem('Only', '', '');\n"
              ": zevmenu.AddItem('', '', '');\n"
              ": zevmenu.AddRollover('r.html', '', '', '');\n");
}

TEST_F(ReadScriptTest, ALineMayBeADefaultLineOnlyAtItsBeginning) {
    EXPECT_EQ(read({"zevmenu = new ZEVMenu('0');", "zevmenu.divider = 'zev_state.columns = 9;';"}),
              0u);
    EXPECT_EQ(document.DefaultProp.Columns, "1");
    EXPECT_EQ(document.RootMenuProp.Divider, "zev_state.columns = 9;");
}

TEST_F(ReadScriptTest, ItemsMadeAfterwardsGetNumbersBehindThoseRead) {
    read({"zevmenu = new ZEVMenu('0');", "zevmenu.AddItem('A', '', '');",
          "zevmenu.AddItem('B', '', '');"});
    MenuDocument edited("/program");
    edited.open(std::move(document));
    EXPECT_EQ(addMenuItem(edited), EditResult::Done);
    EXPECT_EQ(edited.CurNode()->key(), "Key 2");
}

/// "3 UnknownMenu" for each warning.
std::vector<std::string> WarningsOf(std::initializer_list<std::string_view> lines) {
    using Reason = LineWarning::Reason;
    MenuContent document;
    std::vector<std::string> texts;
    for (const LineWarning& warning : ReadScript(Lines(lines), document).warnings) {
        const char* const reason = warning.reason == Reason::UnknownMenu     ? " UnknownMenu"
                                   : warning.reason == Reason::DuplicateKey  ? " DuplicateKey"
                                   : warning.reason == Reason::NotUnderstood ? " NotUnderstood"
                                                                             : " another";
        texts.push_back(std::to_string(warning.line) + reason);
    }
    return texts;
}

TEST(ReadScriptWarnings, EachErrorHasItsLineAndReason) {
    EXPECT_EQ(WarningsOf({"zevmenu.columns = 3;", "zevmenu = new ZEVMenu('0');",
                          "zevmenu.AddItem('A', '', '');", "", "zevmenu = new ZEVMenu('0');",
                          "zevmenu.AddItem('B', '', '');", "zevmenu = new ZEVMenu('7');",
                          "zevmenu.AddItem('a=b', '', '');"}),
              (std::vector<std::string>{"1 UnknownMenu", "6 DuplicateKey", "8 UnknownMenu",
                                        "8 UnknownMenu"}));
}

TEST(ReadScriptWarnings, ALineThatBeginsAsThoseOfAMenuAndSaysNothingIsToldButNotCounted) {
    for (const char* line : {"zev",
                             "zevmenu",
                             "zevmenu.",
                             "zevmenu.columns",
                             "  zevmenu.columns = 3  ",
                             "zevmenu.columns = 3;\t",
                             "zevmenu.colums = 3;",
                             "zevmenu.Columns = 3;",
                             "zev_state.colums = 3;",
                             "zev_state = 1;",
                             "zevmenu = new ZEVMenu(\"0\");",
                             "zevmenu=new ZEVMenu('0');",
                             "zevmenu.additem('A', '', '');",
                             "zevmenu.AddItem('A', '', '')",
                             "zevmenu.AddItem();",
                             "zevmenu.AddItem('A', '');",
                             "zevmenu.AddItem('A', '', \"\");",
                             "zevmenu.AddItem('A', '', '', '');",
                             "zevmenu.AddItem('It's', 'a.html', '');",
                             "zevmenu.AddItem('A', '', 'a);",
                             "zevmenu.AddItem('a=b', '');",
                             "zevmenu.AddRollover('', '', '');",
                             "zevmenu.AddRollover('', '', '', '', '');",
                             "zevmenu_dom.js"}) {
        SCOPED_TRACE(line);
        EXPECT_EQ(WarningsOf({"zevmenu = new ZEVMenu('0');", line}),
                  std::vector<std::string>{"2 NotUnderstood"});
        MenuContent document;
        EXPECT_EQ(ReadScript(Lines({"zevmenu = new ZEVMenu('0');", line}), document).errorCount,
                  0u);
    }
}

TEST(ReadScriptWarnings, OtherLinesAndThoseThatAreAppliedWholeAreNotTold) {
    EXPECT_EQ(WarningsOf({"// zevmenu", "\tzevmenu", "ZEVMENU.columns = 3;", "x", "",
                          "zev_state.menuoffset = 9;", "zev_state.divider = '|';",
                          "zevmenu = new ZEVMenu('0');", "zevmenu.closedelay = 3;",
                          "  zevmenu.columns=3;", "zevmenu.AddItem('It\\'s', 'a=b', '');",
                          "zevmenu.AddRollover('','','','');"}),
              std::vector<std::string>());
}

TEST(ReadScriptWarnings, ALineOfAMissingMenuThatSaysNothingIsToldTwice) {
    EXPECT_EQ(WarningsOf({"zevmenu.colums = 3;", "zevmenu.AddItem('A');"}),
              (std::vector<std::string>{"1 UnknownMenu", "1 NotUnderstood", "2 UnknownMenu",
                                        "2 NotUnderstood"}));
}

TEST(IsBinary, AFileWithANulByteIsNoText) {
    EXPECT_FALSE(isBinary(""));
    EXPECT_FALSE(isBinary("zevmenu\r\n\xFF\x01"));
    EXPECT_TRUE(isBinary(std::string_view("\0", 1)));
    EXPECT_TRUE(isBinary(std::string_view("text\0", 5)));
}

}  // namespace
}  // namespace zev
