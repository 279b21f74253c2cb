// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"

namespace zev::test {
namespace {

const std::string kReference = "<script language=\"JavaScript1.2\" src=\"js/menu.js\"></script>\n";

TEST(LinkcodeTest, PrintsReferenceAndLink) {
    struct Case {
        std::vector<std::string> arguments;
        std::string output;
    };
    const Case cases[] = {
        {{}, kReference + "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>\n"},
        {{"--popup", "Products (1i2)", "--mouse"},
         kReference + "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', event)\" "
                      "onmouseout=\"ZEVMenuClose('zev1i1', '2', false)\">Menu</a>\n"},
        {{"--popup", "Products (1i2)", "--at", "100,50"},
         kReference +
             "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', 100, 50)\">Menu</a>\n"},
        {{"--popup", "A (b) (2)", "--at=-5,007"},
         kReference + "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '2', -5, 007)\">Menu</a>\n"},
    };
    const TempFolder folder;
    for (const Case& c : cases) {
        std::vector<std::string> arguments{"linkcode", "--definition", " js/menu.js "};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const ProgramResult result = runZevmenu(arguments, folder.path());
        EXPECT_EQ(result.status, 0) << result.problems;
        EXPECT_EQ(result.output, c.output);
        EXPECT_EQ(result.problems, "");
    }
}

TEST(LinkcodeTest, TakesTheEntriesThatSubmenusPrints) {
    const TempFolder folder;
    const ProgramResult entries = runZevmenu({"submenus", "-"}, folder.path(), kSmallDefinition);
    const std::string entry = entries.output.substr(0, entries.output.find('\n'));
    const ProgramResult result = runZevmenu(
        {"linkcode", "--definition", "js/menu.js", "--popup", entry, "--mouse"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_NE(result.output.find("ZEVMenuOpen('zev1', '2', event)"), std::string::npos)
        << result.output;
}

TEST(LinkcodeTest, RefusesAnEntryThatWouldEndTheLinksAttribute) {
    const TempFolder folder;
    for (const char* const entry :
         {"x (1');alert(1);//)", "x (1\" onclick=\"alert`1`)", "x (1&#39;)", "x (1\\)", "x (1\n2)",
          "x (<b>)", "x (i)", "x ()"}) {
        for (const bool isIntegrate : {false, true}) {
            std::vector<std::string> arguments{"linkcode", "--definition", "menu.js"};
            if (isIntegrate)
                arguments = {"integrate", "--definition", "menu.js", "--library", ".", "a.htm"};
            arguments.insert(arguments.end(), {"--popup", entry, "--mouse"});
            const ProgramResult result = runZevmenu(arguments, folder.path());
            EXPECT_EQ(result.status, 2) << entry;
            EXPECT_EQ(result.output, "");
            EXPECT_NE(result.problems.find("must be an entry"), std::string::npos)
                << result.problems;
        }
    }
}

TEST(LinkcodeTest, ADefinitionsURLStaysWithinItsAttribute) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"linkcode", "--definition", "js/\"><b>\n.js"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_TRUE(result.output.starts_with(
        "<script language=\"JavaScript1.2\" src=\"js/%22%3E%3Cb%3E%0A.js\"></script>\n"))
        << result.output;
}

}  // namespace
}  // namespace zev::test
