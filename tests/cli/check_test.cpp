// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

class CheckTest : public testing::Test {
  protected:
    ProgramResult check(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "check");
        return runZevmenu(arguments, folder.path());
    }
    TempFolder folder;
};

constexpr const char* kBroken =
    "zev_state.nbgcolor = 'nvay';\n"
    "zevmenu = new ZEVMenu('0');\n"
    "zevmenu.AddItem('Tea', 'tea.html', '');\n"
    "zevmenu.AddItem('It's', '', '');\n"
    "zevmenu = new ZEVMenu('1');\n"
    "zevmenu.columns = many;\n"
    "zevmenu.AddItem('Green', '', '');\n"
    "zevmenu = new ZEVMenu('7');\n"
    "zevmenu.columns = 2;\n";

TEST_F(CheckTest, NamesTheLineOfWhatIsWrong) {
    makeFile(folder / "menu.js", kBroken);
    const ProgramResult result = check({"menu.js"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              "menu.js:1: the defaults: nbgcolor: no colour that a browser understands: \"nvay\"\n"
              "menu.js:3: Tea: url: there is no file \"tea.html\"\n"
              "menu.js:4: it is not a line that a menu has\n"
              "menu.js:6: the menu of Tea: columns: not a number that makes sense here: \"many\"\n"
              "menu.js:9: no item opens the menu it belongs to\n");
    EXPECT_EQ(result.problems, "");
}

TEST_F(CheckTest, PrintsJsonForOtherPrograms) {
    makeFile(folder / "menu.js", kBroken);
    const ProgramResult result = check({"--json", "menu.js"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.starts_with(
        "[\n{\"file\": \"menu.js\", \"line\": 1, \"item\": [], \"field\": \"nbgcolor\", "
        "\"kind\": \"colour\", \"message\": \"the defaults: nbgcolor: "))
        << result.output;
    EXPECT_NE(result.output.find("\"line\": 3, \"item\": [\"Tea\"], \"field\": \"url\", "
                                 "\"kind\": \"link\""),
              std::string::npos);
    EXPECT_NE(result.output.find("\"kind\": \"id\""), std::string::npos);
    EXPECT_NE(result.output.find("\"kind\": \"syntax\""), std::string::npos);
    EXPECT_TRUE(result.output.ends_with("}\n]\n"));
}

TEST_F(CheckTest, IsSilentWhenNothingIsWrong) {
    makeFile(folder / "menu.js", "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\n");
    ProgramResult result = check({"menu.js"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.problems, "");
    result = check({"--json", "menu.js"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "[]\n");
}

TEST_F(CheckTest, LooksForFilesBesideTheDefinition) {
    std::filesystem::create_directory(folder / "js");
    makeFile(folder / "tea.html", "");
    makeFile(folder / "js/menu.js",
             "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '../tea.html', '');\n"
             "zevmenu.AddItem('B', '/tea.html', '');\nzevmenu.AddItem('C', 'tea.html', '');\n");
    EXPECT_EQ(check({"--root", ".", "js/menu.js"}).output,
              "js/menu.js:4: C: url: there is no file \"tea.html\"\n");
}

TEST_F(CheckTest, LooksIntoTheHtmlAroundItemsAndAtPositions) {
    makeFile(folder / "menu.js",
             "zev_state.position = 'middle';\n"
             "zev_state.marker = '<img src=mark.png alt=x>';\n"
             "zevmenu = new ZEVMenu('0');\n"
             "zevmenu.position = 'top';\n"
             "zevmenu.AddItem('A', '', '');\n"
             "zevmenu = new ZEVMenu('1');\n"
             "zevmenu.htmlBefore = '<img src=menu.js>';\n"
             "zevmenu.position = 'Top';\n"
             "zevmenu.divider = '<img src=line.png alt=x>';\n"
             "zevmenu.AddItem('B', '', '');\n");
    EXPECT_EQ(check({"menu.js"}).output,
              "menu.js:1: the defaults: position: none of right, bottom, left and top: "
              "\"middle\"\n"
              "menu.js:2: the defaults: marker: there is no file \"mark.png\"\n"
              "menu.js:7: the menu of A: htmlBefore: the image has no alt text: \"menu.js\"\n"
              "menu.js:8: the menu of A: position: none of right, bottom, left and top: \"Top\"\n"
              "menu.js:9: the menu of A: divider: there is no file \"line.png\"\n");
}

TEST_F(CheckTest, ChecksTheOthersWhenOneCannotBeRead) {
    makeFile(folder / "page.html", "<html></html>\n");
    const ProgramResult result = check({"missing.js", "page.html"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "page.html:1: nothing of a menu was found in the file\n");
    EXPECT_EQ(result.problems, "zevmenu: missing.js: No such file or directory\n");
}

}  // namespace
}  // namespace zev::test
