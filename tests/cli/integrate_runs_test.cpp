// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

// Runs over pages, and what undoes them.

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string kPage = "<html><head><script>own()</script></head><body>text</body></html>\n";

class IntegrateRunsTest : public testing::Test {
  protected:
    IntegrateRunsTest() {
        for (const char* const name : {"a.htm", "b.htm"})
            makeFile(folder / name, kPage);
    }
    ProgramResult run(const Arguments& arguments) const {
        Arguments all{"integrate"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return runZevmenu(all, folder.path());
    }
    /// Gives the run's name.
    std::string integrate(const std::string& library, const Arguments& pages) const {
        Arguments all{"--definition", "menu.js", "--library", library, "--no-backup"};
        all.insert(all.end(), pages.begin(), pages.end());
        const std::string problems = run(all).problems;
        const std::string before = "zevmenu: run ";
        EXPECT_TRUE(problems.starts_with(before) && problems.ends_with("\n")) << problems;
        return problems.substr(before.size(), problems.size() - before.size() - 1);
    }
    static unsigned modeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    const TempFolder folder;
    const UserData data;
};

TEST_F(IntegrateRunsTest, TheLastRunIsUndoneByteForByteWithoutBackups) {
    fs::permissions(folder / "a.htm", fs::perms::owner_read | fs::perms::owner_write);
    const std::string name = integrate("lib", {"a.htm", "b.htm"});
    EXPECT_NE(contentOf(folder / "a.htm"), kPage);
    const std::string records = data / "zevmenu-creator/runs";
    EXPECT_EQ(namesIn(records), Arguments{name});
    EXPECT_EQ(modeOf(records), 0700u);
    EXPECT_EQ(modeOf(records + "/" + name), 0600u);
    ProgramResult result = run({"--undo", "last"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.output, "Run " + name + "\nRestored: " + (folder / "a.htm") + "\nRestored: " +
                                 (folder / "b.htm") + "\n2 restored, 0 not restored\n");
    EXPECT_EQ(result.problems, "");
    for (const char* const page : {"a.htm", "b.htm"})
        EXPECT_EQ(contentOf(folder / page), kPage);
    EXPECT_EQ(modeOf(folder / "a.htm"), 0600u);
    EXPECT_EQ(namesIn(records), Arguments{});
    result = run({"--undo", "last"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "zevmenu: nothing to undo\n");
}

TEST_F(IntegrateRunsTest, RunsAreListedAndUndoneByTheirNames) {
    EXPECT_EQ(run({"--list-runs"}).output, "");
    const std::string first = integrate("one", {"a.htm", "b.htm"});
    const std::string second = integrate("two", {"b.htm"});
    ProgramResult result = run({"--list-runs"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, second + ": 1 page, " + (folder / "b.htm") + "\n" + first +
                                 ": 2 pages, " + (folder / "a.htm") + "\n");
    result = run({"--undo", first});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "zevmenu: " + (folder / "b.htm") + ": changed since the run, so it stays as it is\n");
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
    EXPECT_EQ(run({"--undo", second}).status, 0);
    EXPECT_EQ(run({"--undo", first}).status, 0);
    EXPECT_EQ(contentOf(folder / "b.htm"), kPage);
    for (const std::string& name : {first, std::string("../runs/" + first), std::string("x")}) {
        result = run({"--undo", name});
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_EQ(result.problems, "zevmenu: " + name + ": there is no such run\n");
    }
}

TEST_F(IntegrateRunsTest, ARunThatIsStillGoingOnIsNotUndone) {
    const std::string name = integrate("lib", {"a.htm"});
    const std::string page = contentOf(folder / "a.htm");
    const std::string record = data / ("zevmenu-creator/runs/" + name);
    const int held = open(record.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(held, LOCK_EX | LOCK_NB), 0) << "the run has ended";
    for (const std::string& run : {std::string("last"), name}) {
        const ProgramResult result = this->run({"--undo", run});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "zevmenu: " + name +
                                       ": this run is still going on, or being undone; nothing "
                                       "was changed\n");
        EXPECT_EQ(result.output, "");
    }
    EXPECT_EQ(contentOf(folder / "a.htm"), page);
    close(held);
    EXPECT_EQ(run({"--undo", "last"}).status, 0);
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
}

TEST_F(IntegrateRunsTest, ADryRunIsNoRun) {
    const ProgramResult result =
        run({"--definition", "menu.js", "--library", "lib", "--dry-run", "a.htm"});
    EXPECT_EQ(result.problems, "");
    EXPECT_FALSE(fs::exists(data / "zevmenu-creator"));
}

TEST_F(IntegrateRunsTest, WithoutARecordThereIsALineAndTheRunGoesOn) {
    makeFile(data / "zevmenu-creator", "no folder");
    const ProgramResult result =
        run({"--definition", "menu.js", "--library", "lib", "--no-backup", "a.htm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.problems.ends_with("; this run cannot be undone\n")) << result.problems;
    EXPECT_EQ(std::count(result.problems.begin(), result.problems.end(), '\n'), 1);
    EXPECT_NE(contentOf(folder / "a.htm"), kPage);
}

TEST_F(IntegrateRunsTest, AListOfRunsAndAnUndoneRunExcludeEachOther) {
    EXPECT_EQ(run({"--list-runs", "--undo", "last"}).status, 2);
    EXPECT_EQ(run({"--undo", ""}).status, 2);
    EXPECT_EQ(run({"--undo"}).status, 2);
}

TEST_F(IntegrateRunsTest, APageInTwoFoldersOfDifferentDepthIsUndone) {
    fs::create_directories(folder / "sub/deep");
    makeFile(folder / "sub/deep/c.htm", kPage);
    integrate("lib", {"a.htm", "sub/deep/c.htm", "b.htm"});
    EXPECT_EQ(run({"--undo", "last"}).status, 0);
    for (const char* const page : {"a.htm", "b.htm", "sub/deep/c.htm"})
        EXPECT_EQ(contentOf(folder / page), kPage);
}

}  // namespace
}  // namespace zev::test
