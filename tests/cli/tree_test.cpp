// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"

namespace zev::test {
namespace {

TEST(TreeTest, PrintsALineForEachItemIndentedByItsLevel) {
    const TempFolder folder;
    const ProgramResult result = runZevmenu({"tree", "-"}, folder.path(), kSmallDefinition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "Home\tindex.html\n"
              "Products\tproducts/index.html\n"
              "  News\thttp://example.org/news\n"
              "img/out.png\tshop.html\n");
    EXPECT_EQ(result.problems, "");
}

TEST(TreeTest, PrintsJsonForOtherPrograms) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"tree", "--json", "-"}, folder.path(), kSmallDefinition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              R"([
{"caption": "Home", "url": "index.html", "target": "", "items": []},
{"caption": "Products", "url": "products/index.html", "target": "main", "items": [
{"caption": "News", "url": "http://example.org/news", "target": "", "items": []}]},
{"caption": "img/out.png", "url": "shop.html", "target": "", "items": []}
]
)");
}

TEST(TreeTest, CountsErrorsAndPrintsTheRest) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"tree", "-"}, folder.path(),
                   kSmallDefinition + "zevmenu = new ZEVMenu('9');\nzevmenu.AddItem('','','');\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.starts_with("Home\t"));
    EXPECT_EQ(result.problems, "1 errors encountered during parsing\n");
}

TEST(TreeTest, SaysWhatCannotBeRead) {
    const TempFolder folder;
    const ProgramResult result = runZevmenu({"tree", "missing.js"}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.problems, "zevmenu: missing.js: No such file or directory\n");
}

}  // namespace
}  // namespace zev::test
