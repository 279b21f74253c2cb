// SPDX-License-Identifier: MIT
#include "platform/locked_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/posix/posix_file_system.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::makeFile;
using test::namesIn;
using test::TempFolder;
using Names = std::vector<std::string>;

unsigned modeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

TEST(LockedFileTest, BelongsToOneAtATime) {
    const TempFolder folder;
    PosixFileSystem files;
    auto made = files.makeLockedFile(folder / "a", "one");
    ASSERT_TRUE(made.isOk());
    EXPECT_EQ(modeOf(folder / "a"), 0600U);
    EXPECT_EQ(contentOf(folder / "a"), "one");
    EXPECT_EQ(files.lockFile(folder / "a"), nullptr);
    ASSERT_FALSE(made.value()->append(" two"));
    EXPECT_EQ(contentOf(folder / "a"), "one two");
    ASSERT_FALSE(made.value()->rewrite("three"));
    EXPECT_EQ(files.lockFile(folder / "a"), nullptr);
    ASSERT_FALSE(made.value()->append(" four"));
    ASSERT_FALSE(made.value()->sync());
    EXPECT_EQ(contentOf(folder / "a"), "three four");
    made.take().reset();
    EXPECT_NE(files.lockFile(folder / "a"), nullptr);
    EXPECT_EQ(namesIn(folder.path()), Names{"a"});
}

TEST(LockedFileTest, IsFreeWhenItsProgramIsKilled) {
    const TempFolder folder;
    PosixFileSystem files;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        auto held = files.makeLockedFile(folder / "a", "one");
        if (write(ready[1], "x", 1) == 1)
            pause();
        _exit(1);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_EQ(files.lockFile(folder / "a"), nullptr);
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_NE(files.lockFile(folder / "a"), nullptr);
    close(ready[0]);
    close(ready[1]);
}

TEST(LockedFileTest, NothingThatIsThereIsReplaced) {
    const TempFolder folder;
    PosixFileSystem files;
    makeFile(folder / "a", "mine");
    EXPECT_FALSE(files.makeLockedFile(folder / "a", "one").isOk());
    EXPECT_EQ(contentOf(folder / "a"), "mine");
    EXPECT_TRUE(files.makePrivateFolder(folder / "a"));
    EXPECT_EQ(files.lockFile(folder / "none"), nullptr);
    EXPECT_FALSE(files.makeLockedFile(folder / "none/a", "one").isOk());
}

TEST(LockedFileTest, APrivateFolderIsTheUsersAlone) {
    const TempFolder folder;
    PosixFileSystem files;
    ASSERT_FALSE(files.makePrivateFolder(folder / "p"));
    EXPECT_EQ(modeOf(folder / "p"), 0700U);
    EXPECT_TRUE(files.makePrivateFolder(folder / "p"));
    makeFile(folder / "p/a", "");
    EXPECT_TRUE(files.deleteFolder(folder / "p"));
    ASSERT_FALSE(files.DeleteFile(folder / "p/a"));
    EXPECT_FALSE(files.deleteFolder(folder / "p"));
    EXPECT_EQ(namesIn(folder.path()), Names{});
}

}  // namespace
}  // namespace zev
