// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

/// The definition of a new document with the given top-level menu.
std::string definition(const std::string& menu) {
    return kSmallDefinition.substr(0, kSmallDefinition.find("zevmenu = new")) + menu;
}

class ImportCommandTest : public testing::Test {
  protected:
    ProgramResult run(const std::vector<std::string>& arguments, const std::string& input = {}) {
        std::vector<std::string> all{"import"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return runZevmenu(all, folder.path(), input);
    }
    TempFolder folder;
};

TEST_F(ImportCommandTest, EachFormatIsReadByItsOwnRules) {
    struct Case {
        const char* format;
        const char* input;
        const char* menu;
    };
    const char* const links = ":A|a.gif|a.html\n";
    const Case cases[] = {
        {"quillmenu",
         "qlmenu1 = new mainMenu('horizontal', '#111111');\nqlmenu1.addItems('A', 'a.html');\n",
         "zevmenu.columns = 20;\r\nzevmenu.nbgcolor = '#111111';\r\nzevmenu.position = "
         "'bottom';\r\n\r\nzevmenu.AddItem('A', 'a.html', '');\r\n\r\n\r\n"},
        {"orletbar", links,
         "zevmenu.columns = 10;\r\nzevmenu.position = 'bottom';\r\n\r\nzevmenu.AddItem('A', "
         "'a.gif', 'a.html');\r\n\r\n\r\n"},
        {"orletmenu", links,
         "zevmenu.columns = 1;\r\nzevmenu.position = 'bottom';\r\n\r\nzevmenu.AddItem('A', "
         "'a.gif', 'a.html');\r\n\r\n\r\n"},
        {"orletbutton", links,
         "zevmenu.columns = 10;\r\nzevmenu.position = 'bottom';\r\n\r\nzevmenu.AddItem('A <img "
         "src=\"a.gif\" border=\"0\">', 'a.html', '');\r\n\r\n\r\n"},
    };
    for (const Case& c : cases) {
        const ProgramResult result = run({"--format", c.format, "-"}, c.input);
        EXPECT_EQ(result.status, 0) << c.format;
        EXPECT_EQ(result.output,
                  definition("zevmenu = new ZEVMenu('0');\r\n" + std::string(c.menu)));
        EXPECT_EQ(result.problems, "Finished importing -. 0 warnings encountered.\n");
    }
}

TEST_F(ImportCommandTest, TheClosingLineNamesTheFileAsItWasGiven) {
    makeFile(folder / "old menu.txt", ":A\n");
    for (const std::string& name :
         {std::string("old menu.txt"), std::string("./old menu.txt"), folder / "old menu.txt"}) {
        const ProgramResult result = run({"--format", "orletbar", name});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.problems, "Finished importing " + name + ". 0 warnings encountered.\n");
    }
}

const std::string kTwoWarnings = "::A\n:lost\n::B|b.html\n";

TEST_F(ImportCommandTest, WarningsAreCountedAndTheRestIsWritten) {
    const ProgramResult result = run({"--format", "orletbar", "-", "-o", "out.js"}, kTwoWarnings);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.problems, "Finished importing -. 2 warnings encountered.\n");
    EXPECT_EQ(contentOf(folder / "out.js"),
              definition("zevmenu = new ZEVMenu('0');\r\nzevmenu.columns = 10;\r\n"
                         "zevmenu.position = 'bottom';\r\n\r\nzevmenu.AddItem('A', '', '');\r\n"
                         "zevmenu.AddItem('B', 'b.html', '');\r\n\r\n\r\n"));
}

TEST_F(ImportCommandTest, VerbosePrintsLineAndReasonOfEachWarningBeforeTheClosingLine) {
    ProgramResult result = run({"--format", "orletbar", "--verbose", "-"}, kTwoWarnings);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "line 1: the first item is deeper than the top level; it was put there\n"
              "line 2: the item goes up past the top level\n"
              "Finished importing -. 2 warnings encountered.\n");
    result = run({"--format", "quillmenu", "--verbose", "-"},
                 "qlmenu1 = new mainMenu('');\nqlmenu1.addItems('A');\n"
                 "qlmenu1 = new mainMenu('');\nqlmenu1.addItems('B');\n"
                 "qlmenu1 = new subMenu('7');\nqlmenu1.addItems('C', 'c.asp?d=e');\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "line 4: an earlier item has its place\n"
              "line 6: no item opens the menu it belongs to\n"
              "line 6: no item opens the menu it belongs to\n"
              "Finished importing -. 3 warnings encountered.\n");
    result = run({"--format", "orletbar", "--verbose", "-"}, ":A\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "Finished importing -. 0 warnings encountered.\n");
}

TEST_F(ImportCommandTest, ItemsBeyondWhatAMenuHoldsAreWarningsWithAReason) {
    std::string input;
    for (int i = 0; i < 32'768; ++i)
        input += ":A\n";
    const ProgramResult result =
        run({"--format", "orletbar", "--verbose", "-", "-o", "out.js"}, input);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "line 32768: the menu holds as many items as it can\n"
              "Finished importing -. 1 warnings encountered.\n");
    // What was written can be read again without a loss.
    EXPECT_EQ(runZevmenu({"format", "out.js", "-o", "again.js"}, folder.path()).status, 0);
    EXPECT_EQ(contentOf(folder / "again.js"), contentOf(folder / "out.js"));
}

TEST_F(ImportCommandTest, AnInputWithoutAMenuIsAnEmptyMenu) {
    for (const char* const format : {"quillmenu", "orletbar", "orletmenu", "orletbutton"}) {
        const ProgramResult result = run({"--format", format, "-"}, "no menu\n");
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, definition("\r\n"));
        EXPECT_EQ(result.problems, "Finished importing -. 0 warnings encountered.\n");
    }
}

TEST_F(ImportCommandTest, MayReplaceItsOwnInput) {
    makeFile(folder / "menu.js", "qlmenu1 = new mainMenu('');\nqlmenu1.addItems('A');\n");
    const std::string expected = run({"--format", "quillmenu", "menu.js"}).output;
    EXPECT_EQ(run({"--format", "quillmenu", "menu.js", "-o", "menu.js"}).status, 0);
    EXPECT_EQ(contentOf(folder / "menu.js"), expected);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"menu.js"});
}

TEST_F(ImportCommandTest, WhatCannotBeWrittenIsNotFinished) {
    const ProgramResult result =
        run({"--format", "orletbar", "--verbose", "-", "-o", "no/out.js"}, kTwoWarnings);
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: no/out.js: No such file or directory\n");
}

TEST_F(ImportCommandTest, OldTextOutsideAsciiBecomesUtf8WithAByteOrderMark) {
    const ProgramResult result = run({"--format", "orletbar", "-"}, ":K\xE4se|k\xE4se.html\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("\xEF\xBB\xBFzev_state"));
    EXPECT_NE(result.output.find("zevmenu.AddItem('K\xC3\xA4se', 'k\xC3\xA4se.html', '');"),
              std::string::npos);
}

}  // namespace
}  // namespace zev::test
