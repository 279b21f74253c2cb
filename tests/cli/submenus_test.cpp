// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"

namespace zev::test {
namespace {

TEST(SubmenusTest, ListsEveryItemWithChildrenInTreeOrder) {
    const TempFolder folder;
    const std::string definition =
        "zevmenu = new ZEVMenu('0');\n"
        "zevmenu.AddItem('Home', '', '');\n"
        "zevmenu.AddItem('Products', '', '');\n"
        "zevmenu.AddRollover('', 'out.png', 'over.png', '');\n"
        "zevmenu = new ZEVMenu('2');\n"
        "zevmenu.AddItem('A', '', '');\n"
        "zevmenu.AddItem('It\\'s B', '', '');\n"
        "zevmenu = new ZEVMenu('2i2');\n"
        "zevmenu.AddItem('B1', '', '');\n"
        "zevmenu = new ZEVMenu('3');\n"
        "zevmenu.AddItem('C', '', '');\n";
    const ProgramResult result = runZevmenu({"submenus", "-"}, folder.path(), definition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "Products (2)\nIt\\'s B (2i2)\nout.png (3)\n");
    EXPECT_EQ(result.problems, "");
}

TEST(SubmenusTest, OfAMenuWithoutAnyIsNothing) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"submenus", "-"}, folder.path(),
                   "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A','','');");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
}

TEST(SubmenusTest, CountsErrorsAndListsTheRest) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"submenus", "-"}, folder.path(),
                   kSmallDefinition + "zevmenu = new ZEVMenu('9');\nzevmenu.AddItem('','','');\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "Products (2)\n");
    EXPECT_EQ(result.problems, "1 errors encountered during parsing\n");
}

}  // namespace
}  // namespace zev::test
