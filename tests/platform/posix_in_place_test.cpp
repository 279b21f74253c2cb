// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/posix/posix_file_replace.h"
#include "tests/support/acting_as.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/replace_file.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

// Files that a rename would break: they are written in place.

namespace zev {
namespace {

using test::contentOf;
using test::FileSizeLimit;
using test::makeFile;
using test::namesIn;
using test::replaceFile;
using test::TempFolder;
using Names = std::vector<std::string>;

class PosixInPlaceTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(temporary);
        setenv("TMPDIR", temporary.c_str(), 1);
    }
    void TearDown() override {
        if (oldTemporary.empty())
            unsetenv("TMPDIR");
        else
            setenv("TMPDIR", oldTemporary.c_str(), 1);
    }
    static std::string environment(const char* name) {
        const char* const value = std::getenv(name);
        return value == nullptr ? "" : value;
    }
    static ino_t inodeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_ino;
    }

    TempFolder folder;
    std::string temporary = folder / "tmp";
    std::string oldTemporary = environment("TMPDIR");
};

TEST_F(PosixInPlaceTest, AFileWithSeveralHardLinksKeepsThem) {
    makeFile(folder / "a", "a longer old content");
    std::filesystem::create_hard_link(folder / "a", folder / "b");
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    EXPECT_EQ(contentOf(folder / "a"), "new");
    EXPECT_EQ(contentOf(folder / "b"), "new");
    EXPECT_EQ(inodeOf(folder / "a"), inodeOf(folder / "b"));
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b", "tmp"}));
}

TEST_F(PosixInPlaceTest, AFailureHalfWayPutsTheOldContentBack) {
    const std::string old = "old content";
    makeFile(folder / "a", old);
    std::filesystem::create_hard_link(folder / "a", folder / "b");
    FileOutcome error;
    {
        const FileSizeLimit limit(1000);
        error = replaceFile(folder / "a", std::string(2000, 'n'));
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, FileError::Code::TooLarge);
    EXPECT_EQ(contentOf(folder / "a"), old);
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b", "tmp"}));
}

TEST_F(PosixInPlaceTest, AFailureToKeepTheOldContentLeavesItUntouched) {
    const std::string old(3000, 'o');
    makeFile(folder / "a", old);
    std::filesystem::create_hard_link(folder / "a", folder / "b");
    const FileSizeLimit limit(1000);
    EXPECT_TRUE(replaceFile(folder / "a", "short enough"));
    EXPECT_EQ(contentOf(folder / "a"), old);
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b", "tmp"}));
}

TEST_F(PosixInPlaceTest, AFileInAFolderThatForbidsNewOnesIsWrittenAllTheSame) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere; see platform.as_ordinary_user";
    std::filesystem::create_directory(folder / "closed");
    makeFile(folder / "closed/a", "a longer old content");
    ASSERT_EQ(chmod((folder / "closed").c_str(), 0500), 0);
    EXPECT_FALSE(replaceFile(folder / "closed/a", "new"));
    EXPECT_EQ(contentOf(folder / "closed/a"), "new");
    EXPECT_EQ(namesIn(temporary), Names{});
}

TEST_F(PosixInPlaceTest, WithNowhereToKeepTheOldContentTheFileIsNotTouched) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere; see platform.as_ordinary_user";
    std::filesystem::create_directory(folder / "closed");
    makeFile(folder / "closed/a", "old");
    ASSERT_EQ(chmod((folder / "closed").c_str(), 0500), 0);
    ASSERT_EQ(chmod(temporary.c_str(), 0500), 0);
    const FileOutcome error = replaceFile(folder / "closed/a", "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, FileError::Code::NoPermission);
    EXPECT_EQ(error->path, folder / "closed/a");
    EXPECT_EQ(contentOf(folder / "closed/a"), "old");
}

TEST_F(PosixInPlaceTest, AFileOfSomebodyElseInASharedFolderIsWritten) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root to act for two users";
    std::filesystem::create_directory(folder / "shared");
    makeFile(folder / "shared/a", "a longer old content");
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(chmod(temporary.c_str(), 0777), 0);
    ASSERT_EQ(chmod((folder / "shared/a").c_str(), 0666), 0);
    ASSERT_EQ(chmod((folder / "shared").c_str(), 01777), 0);
    const ino_t inode = inodeOf(folder / "shared/a");
    ASSERT_EQ(seteuid(65534), 0);
    const FileOutcome error = replaceFile(folder / "shared/a", "new");
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_FALSE(error) << error->reason;
    EXPECT_EQ(contentOf(folder / "shared/a"), "new");
    EXPECT_EQ(inodeOf(folder / "shared/a"), inode);
    EXPECT_EQ(namesIn(folder / "shared"), Names{"a"});
}

/// Writes the file as somebody else in a folder where everybody may make files.
struct SharedFileCase {
    const char* name;
    uid_t owner;
    gid_t group;
    unsigned mode;
    uid_t writer;
    std::vector<gid_t> writersGroups;
};

TEST_F(PosixInPlaceTest, OwnerGroupAndModeStayWhoeverWrites) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root to act for others";
    constexpr uid_t kAlice = 61001;
    constexpr uid_t kBob = 61002;
    constexpr gid_t kWeb = 62001;
    const SharedFileCase cases[] = {
        {"not the owner", kAlice, kWeb, 0664, kBob, {kWeb}},
        {"neither owner nor in the group", kAlice, kWeb, 0646, kBob, {}},
        {"the owner, not in the group", kAlice, kWeb, 0640, kAlice, {}},
    };
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    ASSERT_EQ(chmod(temporary.c_str(), 0777), 0);
    for (const SharedFileCase& c : cases) {
        const std::string path = folder / c.name;
        makeFile(path, "a longer old content");
        ASSERT_EQ(chown(path.c_str(), c.owner, c.group), 0);
        ASSERT_EQ(chmod(path.c_str(), c.mode), 0);
        FileOutcome error;
        {
            const test::ActingAs writer(c.writer, c.writer, c.writersGroups);
            ASSERT_TRUE(writer.isDone());
            error = replaceFile(path, "new");
        }
        ASSERT_FALSE(error) << c.name << ": " << error->reason;
        EXPECT_EQ(contentOf(path), "new") << c.name;
        struct stat status {};
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, c.owner) << c.name;
        EXPECT_EQ(status.st_gid, c.group) << c.name;
        EXPECT_EQ(status.st_mode & 07777, c.mode) << c.name;
        std::filesystem::remove(path);
    }
    EXPECT_EQ(namesIn(folder.path()), Names{"tmp"});
}

TEST_F(PosixInPlaceTest, AnAttributeThatOnlyRootMaySetStays) {
    const std::string path = folder / "a";
    makeFile(path, "old");
    if (geteuid() != 0 || setxattr(path.c_str(), "security.zev", "label", 5, 0) != 0)
        GTEST_SKIP() << "such attributes cannot be set here";
    ASSERT_EQ(chown(path.c_str(), 61001, 61001), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    {
        const test::ActingAs owner(61001, 61001, {});
        ASSERT_TRUE(owner.isDone());
        const FileOutcome error = replaceFile(path, "new");
        EXPECT_FALSE(error) << error->reason;
    }
    EXPECT_EQ(contentOf(path), "new");
    char value[16];
    EXPECT_EQ(getxattr(path.c_str(), "security.zev", value, sizeof value), 5);
}

TEST_F(PosixInPlaceTest, AFileThatIsABindMountIsWritten) {
    if (geteuid() != 0 || unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "mounting is not allowed here";
    makeFile(folder / "source", "a longer old content");
    makeFile(folder / "a", "");
    ASSERT_EQ(mount((folder / "source").c_str(), (folder / "a").c_str(), nullptr, MS_BIND, nullptr),
              0);
    const FileOutcome error = replaceFile(folder / "a", "new");
    EXPECT_EQ(umount((folder / "a").c_str()), 0);
    EXPECT_FALSE(error) << error->reason;
    EXPECT_EQ(contentOf(folder / "source"), "new");
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "source", "tmp"}));
}

TEST_F(PosixInPlaceTest, AKeptCopyInTheTemporaryFolderIsRemovedForItsOwnTargetOnly) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere; see platform.as_ordinary_user";
    std::filesystem::create_directory(folder / "closed");
    makeFile(folder / "closed/a", "old");
    makeFile(temporary + "/a-0123456789abcdef.zev-abcdef~", "of another file called a");
    ASSERT_EQ(chmod((folder / "closed").c_str(), 0500), 0);
    EXPECT_FALSE(replaceFile(folder / "closed/a", "new"));
    EXPECT_EQ(namesIn(temporary), Names{"a-0123456789abcdef.zev-abcdef~"});
}

}  // namespace
}  // namespace zev
