// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

const std::string kDefinition =
    "zevmenu = new ZEVMenu('0');\n"
    "zevmenu.AddItem('Home', '../index.html', '');\n"
    "zevmenu.AddItem('More', '', '');\n"
    "zevmenu = new ZEVMenu('2');\n"
    "zevmenu.AddItem('Boats', 'boats.html#top', '');\n";

TEST(OutlineTest, PrintsANestedList) {
    const TempFolder folder;
    const ProgramResult result = runZevmenu({"outline", "--html", "-"}, folder.path(), kDefinition);
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.output,
              "<ul>\n"
              "  <li><a href=\"../index.html\">Home</a></li>\n"
              "  <li>More\n"
              "    <ul>\n"
              "      <li><a href=\"boats.html#top\">Boats</a></li>\n"
              "    </ul>\n"
              "  </li>\n"
              "</ul>\n");
}

TEST(OutlineTest, LinksAreAbsoluteWithABase) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"outline", "--html", "--base", "https://example.org/js/menu.js", "-"},
                   folder.path(), kDefinition);
    EXPECT_NE(result.output.find("\"https://example.org/index.html\""), std::string::npos);
    EXPECT_NE(result.output.find("\"https://example.org/js/boats.html#top\""), std::string::npos);
}

TEST(OutlineTest, PrintsASiteMap) {
    const TempFolder folder;
    const ProgramResult result =
        runZevmenu({"outline", "--sitemap", "--base", "https://example.org/js/menu.js", "-"},
                   folder.path(), kDefinition);
    EXPECT_EQ(result.output,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n"
              "  <url><loc>https://example.org/index.html</loc></url>\n"
              "  <url><loc>https://example.org/js/boats.html</loc></url>\n"
              "</urlset>\n");
}

TEST(OutlineTest, WritesToAFile) {
    const TempFolder folder;
    makeFile(folder / "menu.js", kDefinition);
    const ProgramResult result =
        runZevmenu({"outline", "--html", "menu.js", "-o", "list.html"}, folder.path());
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(contentOf(folder / "list.html"),
              runZevmenu({"outline", "--html", "menu.js"}, folder.path()).output);
    EXPECT_EQ(
        runZevmenu({"outline", "--html", "menu.js", "-o", "none/list.html"}, folder.path()).status,
        3);
}

TEST(OutlineTest, WrongUseIsRefused) {
    const TempFolder folder;
    makeFile(folder / "menu.js", kDefinition);
    const std::vector<std::string> cases[] = {
        {"outline", "menu.js"},
        {"outline", "--sitemap", "menu.js"},
        {"outline", "--html", "--sitemap", "--base", "http://a.example/", "menu.js"},
        {"outline", "--html", "--base", "example.org", "menu.js"},
        {"outline", "--html"},
    };
    for (const auto& arguments : cases)
        EXPECT_EQ(runZevmenu(arguments, folder.path()).status, 2) << arguments[1];
    EXPECT_EQ(runZevmenu({"outline", "--html", "none.js"}, folder.path()).status, 3);
    EXPECT_EQ(
        runZevmenu({"outline", "--html", "-"}, folder.path(),
                   kDefinition + "zevmenu = new ZEVMenu('9');\nzevmenu.AddItem('x', '', '');\n")
            .status,
        1);
}

}  // namespace
}  // namespace zev::test
