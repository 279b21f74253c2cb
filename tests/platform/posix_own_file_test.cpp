// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <memory>
#include <thread>

#include "platform/locked_file.h"
#include "platform/posix/posix_file_system.h"
#include "tests/support/acting_as.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

// Files whose names the program chose itself, and backups.

namespace zev {
namespace {

using test::ActingAs;
using test::contentOf;
using test::makeFile;
using test::namesIn;
using test::TempFolder;
using Names = std::vector<std::string>;

class PosixOwnFileTest : public testing::Test {
  protected:
    struct stat statusOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(lstat((folder / name).c_str(), &status), 0) << name;
        return status;
    }
    unsigned modeOf(const std::string& name) const { return statusOf(name).st_mode & 07777; }
    void setMode(const std::string& name, unsigned mode) const {
        ASSERT_EQ(chmod((folder / name).c_str(), mode), 0) << name;
    }
    /// Everybody may make files in the folder.
    void openFolder() const { ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0); }

    TempFolder folder;
    PosixFileSystem files;
};

TEST_F(PosixOwnFileTest, TakesThePlaceOfALinkAndLeavesWhatItLedTo) {
    std::filesystem::create_directory(folder / "home");
    makeFile(folder / "home/rc", "mine");
    std::filesystem::create_symlink("home/rc", folder / "to file");
    std::filesystem::create_symlink(folder / "to file", folder / "to link");
    std::filesystem::create_symlink("home/new", folder / "to nothing");
    std::filesystem::create_symlink("home", folder / "to folder");
    std::filesystem::create_symlink("/dev/full", folder / "to device");
    std::filesystem::create_symlink("/dev/stdout", folder / "to output");
    std::filesystem::create_hard_link(folder / "home/rc", folder / "hard");
    for (const char* const name :
         {"to file", "to link", "to nothing", "to folder", "to device", "to output", "hard"}) {
        const FileOutcome error = files.writeFile(folder / name, "new", Links::Replaced);
        ASSERT_FALSE(error) << name << ": " << error->reason;
        EXPECT_TRUE(S_ISREG(statusOf(name).st_mode)) << name;
        EXPECT_EQ(contentOf(folder / name), "new") << name;
    }
    EXPECT_EQ(contentOf(folder / "home/rc"), "mine");
    EXPECT_EQ(namesIn(folder / "home"), Names{"rc"});
}

TEST_F(PosixOwnFileTest, KeepsTheModeOfTheFileItReplaces) {
    makeFile(folder / "a", "old");
    setMode("a", 0640);
    ASSERT_FALSE(files.writeFile(folder / "a", "new", Links::Replaced));
    EXPECT_EQ(contentOf(folder / "a"), "new");
    EXPECT_EQ(modeOf("a"), 0640U);
}

TEST_F(PosixOwnFileTest, RefusesADevice) {
    const std::string device = folder / "device";
    if (mknod(device.c_str(), S_IFCHR | 0600, makedev(1, 3)) != 0)
        GTEST_SKIP() << "devices cannot be made here";
    const FileOutcome error = files.writeFile(device, "x", Links::Replaced);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "Is a device");
    EXPECT_TRUE(S_ISCHR(statusOf("device").st_mode));
}

TEST_F(PosixOwnFileTest, IsNeverWrittenThroughALinkThatComesMeanwhile) {
    makeFile(folder / "precious", "mine");
    const std::string path = folder / "own";
    std::atomic<bool> isOver = false;
    std::thread other([&] {
        while (!isOver) {
            std::filesystem::create_symlink("precious", folder / "link");
            std::filesystem::rename(folder / "link", path);
            makeFile(folder / "file", "");
            std::filesystem::rename(folder / "file", path);
        }
    });
    for (int i = 0; i < 50; ++i) {
        files.writeFile(path, "new", Links::Replaced);
        files.writeTemporaryFile(path, "new");
        files.backUpFile(folder / "precious", path, "mine");
    }
    isOver = true;
    other.join();
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
}

TEST_F(PosixOwnFileTest, ABackupHasTheModeOfItsFileWhateverAnOlderOneHas) {
    makeFile(folder / "page", "secret");
    makeFile(folder / "page.bak", "older");
    for (const unsigned mode : {0600U, 0640U, 0666U}) {
        setMode("page", mode);
        setMode("page.bak", 0644);
        ASSERT_FALSE(files.backUpFile(folder / "page", folder / "page.bak", "secret"));
        EXPECT_EQ(contentOf(folder / "page.bak"), "secret");
        EXPECT_EQ(modeOf("page.bak"), mode);
    }
    EXPECT_EQ(namesIn(folder.path()), (Names{"page", "page.bak"}));
}

TEST_F(PosixOwnFileTest, ABackupHasTheAttributesOfTheFileALinkLeadsTo) {
    makeFile(folder / "real", "text");
    setMode("real", 0600);
    const bool hasAttributes =
        setxattr((folder / "real").c_str(), "user.origin", "here", 4, 0) == 0;
    std::filesystem::create_symlink("real", folder / "page");
    ASSERT_FALSE(files.backUpFile(folder / "page", folder / "page.bak", "text"));
    EXPECT_EQ(modeOf("page.bak"), 0600U);
    if (!hasAttributes)
        GTEST_SKIP() << "no extended attributes on the disk of " << folder.path();
    char value[16];
    EXPECT_EQ(getxattr((folder / "page.bak").c_str(), "user.origin", value, sizeof value), 4);
}

TEST_F(PosixOwnFileTest, ABackupTakesThePlaceOfALink) {
    makeFile(folder / "page", "text");
    makeFile(folder / "precious", "mine");
    std::filesystem::create_symlink("precious", folder / "page.bak");
    ASSERT_FALSE(files.backUpFile(folder / "page", folder / "page.bak", "text"));
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
    EXPECT_EQ(contentOf(folder / "page.bak"), "text");
    EXPECT_TRUE(S_ISREG(statusOf("page.bak").st_mode));
}

TEST_F(PosixOwnFileTest, AFileThatCannotBeWrittenGetsNoBackup) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything; see platform.as_ordinary_user";
    makeFile(folder / "page", "text");
    setMode("page", 0444);
    const FileOutcome error = files.backUpFile(folder / "page", folder / "page.bak", "text");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path, folder / "page");
    EXPECT_EQ(error->code, FileError::Code::NoPermission);
    EXPECT_EQ(namesIn(folder.path()), Names{"page"});
}

constexpr uid_t kAlice = 61001;
constexpr uid_t kBob = 61002;
constexpr gid_t kWeb = 62001;

TEST_F(PosixOwnFileTest, ABackupIsNoMoreOpenThanAFileOfSomebodyElse) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root to act for two users";
    struct Case {
        unsigned mode;
        std::vector<gid_t> bobsGroups;
        gid_t group;
        unsigned backupMode;
    };
    const Case cases[] = {
        {0664, {kWeb}, kWeb, 0664},   // all but the owner
        {04775, {kWeb}, kWeb, 0775},  // nobody may run it as somebody else
        {0646, {}, kBob, 0600},       // the group is not bob's to give
    };
    openFolder();
    for (const Case& c : cases) {
        makeFile(folder / "page", "text");
        ASSERT_EQ(chown((folder / "page").c_str(), kAlice, kWeb), 0);
        setMode("page", c.mode);
        {
            const ActingAs bob(kBob, kBob, c.bobsGroups);
            ASSERT_TRUE(bob.isDone());
            const FileOutcome error =
                files.backUpFile(folder / "page", folder / "page.bak", "text");
            ASSERT_FALSE(error) << error->reason;
        }
        EXPECT_EQ(modeOf("page.bak"), c.backupMode);
        EXPECT_EQ(statusOf("page.bak").st_uid, kBob);
        EXPECT_EQ(statusOf("page.bak").st_gid, c.group);
        std::filesystem::remove(folder / "page.bak");
    }
}

TEST_F(PosixOwnFileTest, RootsBackupKeepsOwnerAndGroup) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    makeFile(folder / "page", "text");
    ASSERT_EQ(chown((folder / "page").c_str(), kAlice, kWeb), 0);
    ASSERT_FALSE(files.backUpFile(folder / "page", folder / "page.bak", "text"));
    EXPECT_EQ(statusOf("page.bak").st_uid, kAlice);
    EXPECT_EQ(statusOf("page.bak").st_gid, kWeb);
}

TEST_F(PosixOwnFileTest, ANamedTemporaryFileIsReplacedAndGoneWithTheFileThatIsWritten) {
    makeFile(folder / "precious", "mine");
    for (const bool isLink : {false, true}) {
        makeFile(folder / "page", "old");
        setMode("page", 0640);
        if (isLink)
            std::filesystem::create_symlink("precious", folder / "~tmp.htm");
        else
            makeFile(folder / "~tmp.htm", "left over");
        const FileOutcome error = files.writeFileThrough("~tmp.htm", folder / "page", "new");
        ASSERT_FALSE(error) << error->reason;
        EXPECT_EQ(contentOf(folder / "page"), "new");
        EXPECT_EQ(modeOf("page"), 0640U);
        EXPECT_EQ(namesIn(folder.path()), (Names{"page", "precious"}));
    }
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
}

TEST_F(PosixOwnFileTest, ANamedTemporaryFileLiesBesideWhatALinkLeadsTo) {
    std::filesystem::create_directory(folder / "home");
    makeFile(folder / "home/real", "old");
    makeFile(folder / "home/~tmp.htm", "left over");
    std::filesystem::create_symlink("home/real", folder / "page");
    ASSERT_FALSE(files.writeFileThrough("~tmp.htm", folder / "page", "new"));
    EXPECT_TRUE(S_ISLNK(statusOf("page").st_mode));
    EXPECT_EQ(contentOf(folder / "home/real"), "new");
    EXPECT_EQ(namesIn(folder / "home"), Names{"real"});
}

TEST_F(PosixOwnFileTest, AFileIsNotWrittenThroughItself) {
    makeFile(folder / "~tmp.htm", "old");
    std::filesystem::create_symlink("~tmp.htm", folder / "page");
    EXPECT_TRUE(files.writeFileThrough("~tmp.htm", folder / "page", "new"));
    EXPECT_EQ(contentOf(folder / "~tmp.htm"), "old");
    std::filesystem::remove(folder / "~tmp.htm");
    std::filesystem::create_directory(folder / "~tmp.htm");
    makeFile(folder / "other", "old");
    const FileOutcome error = files.writeFileThrough("~tmp.htm", folder / "other", "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, FileError::Code::IsFolder);
    EXPECT_EQ(contentOf(folder / "other"), "old");
}

TEST_F(PosixOwnFileTest, TwoRunsThatShareATemporaryNameMixNothing) {
    const std::string left(100000, 'l');
    const std::string right(120000, 'r');
    makeFile(folder / "left", left);
    makeFile(folder / "right", right);
    int failedCount = 0;
    const auto write = [this](const char* name, const std::string& bytes, int& failed) {
        PosixFileSystem own;
        for (int i = 0; i < 100; ++i)
            failed += own.writeFileThrough("~tmp.htm", folder / name, bytes) ? 1 : 0;
    };
    int failedThere = 0;
    std::thread other([&] { write("right", right, failedThere); });
    write("left", left, failedCount);
    other.join();
    EXPECT_EQ(failedCount + failedThere, 0);
    EXPECT_EQ(contentOf(folder / "left"), left);
    EXPECT_EQ(contentOf(folder / "right"), right);
    EXPECT_EQ(namesIn(folder.path()), (Names{"left", "right"}));
}

TEST_F(PosixOwnFileTest, APrivateFileGrowsAndIsForTheUserAlone) {
    std::filesystem::create_directories(folder / "data/runs");
    setMode("data/runs", 0755);
    for (const char* const runs : {"data/runs", "data/new/runs"}) {
        const std::string path = folder / (std::string(runs) + "/one");
        FileResult<std::unique_ptr<GrowingFile>> file = files.makePrivateFile(path);
        ASSERT_TRUE(file.isOk()) << file.error().reason;
        ASSERT_FALSE(file.value()->append("one\n"));
        EXPECT_EQ(contentOf(path), "one\n") << "at once";
        ASSERT_FALSE(file.value()->append("two\n"));
        ASSERT_FALSE(file.value()->flush());
        EXPECT_EQ(contentOf(path), "one\ntwo\n");
        EXPECT_EQ(modeOf(std::string(runs) + "/one"), 0600U);
        EXPECT_EQ(modeOf(runs), 0700U);
        EXPECT_FALSE(files.makePrivateFile(path).isOk()) << "it is there";
        EXPECT_EQ(files.lockFile(path), nullptr);
        file.take().reset();
        EXPECT_NE(files.lockFile(path), nullptr) << "it is closed";
        EXPECT_EQ(contentOf(path), "one\ntwo\n");
    }
    makeFile(folder / "file", "x");
    const auto inAFile = files.makePrivateFile(folder / "file/runs/one");
    ASSERT_FALSE(inAFile.isOk());
}

TEST_F(PosixOwnFileTest, ModesAndLinksAreKnown) {
    makeFile(folder / "a", "x");
    setMode("a", 0640);
    std::filesystem::create_symlink("a", folder / "link");
    std::filesystem::create_symlink("none", folder / "dangling");
    EXPECT_EQ(files.modeOf(folder / "link").value(), 0640U);
    EXPECT_EQ(files.modeOf(folder / "dangling").error().code, FileError::Code::NotFound);
    ASSERT_FALSE(files.setMode(folder / "link", 0600));
    EXPECT_EQ(modeOf("a"), 0600U);
    EXPECT_TRUE(files.setMode(folder / "dangling", 0600));
    EXPECT_EQ(files.entryAt(folder / "link"), DiskEntry::Link);
    EXPECT_EQ(files.entryAt(folder / "dangling"), DiskEntry::Link);
    EXPECT_EQ(files.entryAt(folder / "a"), DiskEntry::File);
    EXPECT_EQ(files.entryAt(folder / "none"), DiskEntry::Nothing);
    EXPECT_TRUE(files.isWritableFile(folder / "link"));
    EXPECT_FALSE(files.isWritableFile(folder / "dangling"));
    EXPECT_FALSE(files.isWritableFile(folder.path()));
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything; see platform.as_ordinary_user";
    setMode("a", 0400);
    EXPECT_FALSE(files.isWritableFile(folder / "link"));
}

}  // namespace
}  // namespace zev
