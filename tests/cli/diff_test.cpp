// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

class DiffTest : public testing::Test {
  protected:
    DiffTest() { makeFile(folder / "old.js", kSmallDefinition); }

    /// Compares the small definition with itself after a replacement in its text.
    ProgramResult diff(const std::string& from, const std::string& to,
                       std::vector<std::string> options = {}) {
        std::string text = kSmallDefinition;
        text.replace(text.find(from), from.size(), to);
        options.insert(options.begin(), "diff");
        options.insert(options.end(), {"old.js", "-"});
        return runZevmenu(options, folder.path(), text);
    }

    TempFolder folder;
};

TEST_F(DiffTest, OfEqualMenusPrintsNothing) {
    for (const std::string end : {"\r\n", "\n// the end\n"}) {
        const ProgramResult result = diff("\r\n", end);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output + result.problems, "");
    }
    EXPECT_EQ(diff("\r\n", "\n", {"--json"}).output, "[]\n");
}

TEST_F(DiffTest, PrintsALineForEachDifference) {
    const ProgramResult result = diff("'index.html'", "'home.html'");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "changed Home: url \"index.html\" to \"home.html\"\n");
    EXPECT_EQ(result.problems, "");
}

TEST_F(DiffTest, PrintsJsonForOtherPrograms) {
    const ProgramResult result = diff("'http://example.org/news'", "''", {"--json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              "[\n{\"kind\": \"removed\", \"owner\": \"item\", \"item\": [\"Products\", \"News\"], "
              "\"field\": \"url\", \"old\": \"http://example.org/news\", \"new\": \"\"}\n]\n");
}

TEST_F(DiffTest, SeesTheDefaultsThatTheEditorDoesNotKeep) {
    EXPECT_EQ(diff("closedelay = 500", "closedelay = 1200").output,
              "changed the defaults: closedelay \"500\" to \"1200\"\n");
}

TEST_F(DiffTest, SaysWhatCannotBeRead) {
    const ProgramResult result = runZevmenu({"diff", "old.js", "missing.js"}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: missing.js: No such file or directory\n");
}

}  // namespace
}  // namespace zev::test
