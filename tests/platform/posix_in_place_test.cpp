#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/posix/posix_file_replace.h"
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
