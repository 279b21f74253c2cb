// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

class RebaseTest : public testing::Test {
  protected:
    void SetUp() override { makeFile(folder / "in.js", kSmallDefinition); }

    /// URL of the first item after rebasing; what went wrong when it did.
    std::string firstUrl(const std::string& from, const std::string& to) {
        const ProgramResult result =
            runZevmenu({"rebase", "--from", from, "--to", to, "in.js"}, folder.path());
        if (result.status != 0)
            return "(status " + std::to_string(result.status) + ": " + result.problems + ")";
        const std::string before = "zevmenu.AddItem('Home', '";
        const std::size_t start = result.output.find(before) + before.size();
        return result.output.substr(start, result.output.find('\'', start) - start);
    }

    TempFolder folder;
};

TEST_F(RebaseTest, MakesTheUrlsOfAllItemsRelativeToTheNewFolder) {
    const ProgramResult result =
        runZevmenu({"rebase", "--from", "/web", "--to", "/web/menu", "in.js"}, folder.path());
    EXPECT_EQ(result.status, 0);
    std::string expected = kSmallDefinition;
    for (const std::string url :
         {"'index.html'", "'products/", "'shop.html'", "'img/out.png'", "'img/over.png'"})
        expected.insert(expected.find(url) + 1, "../");
    EXPECT_EQ(result.output, expected);
}

TEST_F(RebaseTest, ThereAndBackIsTheSame) {
    const auto rebase = [&](const char* from, const char* to, const std::string& text) {
        return runZevmenu({"rebase", "--from", from, "--to", to, "-"}, folder.path(), text).output;
    };
    const std::string there = rebase("/web/a", "/other/b", kSmallDefinition);
    EXPECT_NE(there, kSmallDefinition);
    EXPECT_EQ(rebase("/other/b", "/web/a", there), kSmallDefinition);
}

TEST_F(RebaseTest, TakesFoldersInEveryForm) {
    const std::string here = folder.path();
    const std::string name = std::filesystem::path(here).filename().string();
    struct Case {
        std::string from;
        std::string to;
        std::string url;
    };
    const Case cases[] = {
        {"/web", "/web", "index.html"},
        {"/web/", "/web/new///", "../index.html"},
        {"/web/./a/..", "/web/new", "../index.html"},
        {"/", "/new", "../index.html"},
        {"/web", "/", "web/index.html"},
        {".", "new", "../index.html"},
        {"sub/..", here + "/new", "../index.html"},
        {here, "..", name + "/index.html"},
        {"C:\\web", "C:\\web\\new", "../index.html"},
        {"C:\\web\\", "C:\\", "web/index.html"},
        {"C:\\", "C:\\new\\", "../index.html"},
        {"C:\\web", "D:\\web", "C:\\web\\index.html"},
        {"C:", "C:\\new", "../index.html"},
        {"C:\\web", "C:", "web/index.html"},
        {"C:", "C:\\", "index.html"},
        {"C:", "D:", "C:\\index.html"},
        {"c:", "c:\\new", "../index.html"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(firstUrl(c.from, c.to), c.url) << c.from << " to " << c.to;
}

TEST_F(RebaseTest, TheSameFolderInTwoSpellingsChangesNothing) {
    // A step above the root is lost as soon as a URL is recalculated at all.
    std::string definition = kSmallDefinition;
    definition.insert(definition.find("index.html"), "../../../");
    makeFile(folder / "in.js", definition);
    for (const char* const from : {"/web/", "/web/.", "/x/../web", "/web"})
        EXPECT_EQ(firstUrl(from, "/web"), "../../../index.html") << from;
    EXPECT_EQ(firstUrl("C:\\web\\", "C:\\web"), "../../../index.html");
    EXPECT_EQ(firstUrl("/web", "/x"), "../index.html");
}

TEST_F(RebaseTest, MayReplaceItsOwnInput) {
    const ProgramResult result = runZevmenu(
        {"rebase", "--from", "/web", "--to", "/web/menu", "in.js", "-o", "in.js"}, folder.path());
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(contentOf(folder / "in.js").find("'../index.html'"), std::string::npos);
}

TEST_F(RebaseTest, CountsErrorsAndWritesTheRest) {
    makeFile(folder / "in.js", kSmallDefinition + "zevmenu = new ZEVMenu('9');\nzevmenu.x = 1;\n");
    const ProgramResult result =
        runZevmenu({"rebase", "--from", "/web", "--to", "/web", "in.js"}, folder.path());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, kSmallDefinition);
    EXPECT_EQ(result.problems, "1 errors encountered during parsing\n");
}

}  // namespace
}  // namespace zev::test
