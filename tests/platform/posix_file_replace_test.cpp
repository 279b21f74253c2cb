// SPDX-License-Identifier: MIT
#include "platform/posix/posix_file_replace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <thread>

#include "tests/support/replace_file.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::makeFile;
using test::namesIn;
using test::replaceFile;
using test::TempFolder;
using Code = FileError::Code;
using Names = std::vector<std::string>;

class PosixFileReplaceTest : public testing::Test {
  protected:
    struct stat statusOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(lstat((folder / name).c_str(), &status), 0) << name;
        return status;
    }
    TempFolder folder;
};

TEST_F(PosixFileReplaceTest, MakesANewFileWithTheRightsOfTheUmask) {
    const mode_t old = umask(027);
    const FileOutcome error = replaceFile(folder / "a", "new");
    umask(old);
    ASSERT_FALSE(error);
    EXPECT_EQ(contentOf(folder / "a"), "new");
    EXPECT_EQ(statusOf("a").st_mode & 07777, 0640U);
    EXPECT_EQ(namesIn(folder.path()), Names{"a"});
}

TEST_F(PosixFileReplaceTest, ReplacesTheFileByAnotherOneAndLeavesNothingBeside) {
    makeFile(folder / "a", "old");
    const ino_t old = statusOf("a").st_ino;
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    EXPECT_EQ(contentOf(folder / "a"), "new");
    EXPECT_NE(statusOf("a").st_ino, old);
    EXPECT_EQ(namesIn(folder.path()), Names{"a"});
}

TEST_F(PosixFileReplaceTest, TakesAPathWithoutAFolder) {
    const std::filesystem::path old = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const FileOutcome error = replaceFile("bare.js", "new");
    std::filesystem::current_path(old);
    EXPECT_FALSE(error);
    EXPECT_EQ(contentOf(folder / "bare.js"), "new");
}

TEST_F(PosixFileReplaceTest, KeepsTheMode) {
    for (const unsigned mode : {0600U, 0640U, 0755U, 0666U}) {
        makeFile(folder / "a", "old");
        ASSERT_EQ(chmod((folder / "a").c_str(), mode), 0);
        ASSERT_FALSE(replaceFile(folder / "a", "new"));
        EXPECT_EQ(statusOf("a").st_mode & 07777, mode);
    }
}

TEST_F(PosixFileReplaceTest, KeepsTheOwner) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    makeFile(folder / "a", "old");
    ASSERT_EQ(chown((folder / "a").c_str(), 1234, 2345), 0);
    ASSERT_EQ(chmod((folder / "a").c_str(), 04755), 0);
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    EXPECT_EQ(statusOf("a").st_uid, 1234U);
    EXPECT_EQ(statusOf("a").st_gid, 2345U);
    EXPECT_EQ(statusOf("a").st_mode & 07777, 04755U);
}

TEST_F(PosixFileReplaceTest, KeepsExtendedAttributes) {
    makeFile(folder / "a", "old");
    if (setxattr((folder / "a").c_str(), "user.origin", "here", 4, 0) != 0)
        GTEST_SKIP() << "no extended attributes on the disk of " << folder.path();
    ASSERT_EQ(setxattr((folder / "a").c_str(), "user.empty", "", 0, 0), 0);
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    char value[16];
    ASSERT_EQ(getxattr((folder / "a").c_str(), "user.origin", value, sizeof value), 4);
    EXPECT_EQ(std::string(value, 4), "here");
    EXPECT_EQ(getxattr((folder / "a").c_str(), "user.empty", value, sizeof value), 0);
}

/// Access control lists in the kernel's own form: version 2, then tag, rights and id of each entry.
std::string accessControlList(std::uint32_t user) {
    struct Entry {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t id;
    };
    constexpr std::uint32_t kNobody = 0xFFFFFFFF;
    const Entry entries[] = {{0x01, 6, kNobody},   // owner
                             {0x02, 6, user},      // this user
                             {0x04, 4, kNobody},   // owning group
                             {0x10, 6, kNobody},   // mask
                             {0x20, 0, kNobody}};  // others
    std::string list("\2\0\0\0", 4);
    for (const Entry& entry : entries)
        list.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    return list;
}

std::string attributeOf(const std::string& path, const char* name) {
    char value[256];
    const ssize_t length = getxattr(path.c_str(), name, value, sizeof value);
    return length < 0 ? "(none)" : std::string(value, static_cast<std::size_t>(length));
}

TEST_F(PosixFileReplaceTest, KeepsTheAccessControlList) {
    makeFile(folder / "a", "old");
    const std::string list = accessControlList(4321);
    if (setxattr((folder / "a").c_str(), "system.posix_acl_access", list.data(), list.size(), 0))
        GTEST_SKIP() << "no access control lists on the disk of " << folder.path();
    const mode_t mode = statusOf("a").st_mode;
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    EXPECT_EQ(attributeOf(folder / "a", "system.posix_acl_access"), list);
    EXPECT_EQ(statusOf("a").st_mode, mode);
}

TEST_F(PosixFileReplaceTest, GivesAFileWithoutAccessControlListNoneOfItsFolder) {
    makeFile(folder / "a", "old");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0640), 0);
    const std::string list = accessControlList(4321);
    if (setxattr(folder.path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0))
        GTEST_SKIP() << "no access control lists on the disk of " << folder.path();
    ASSERT_FALSE(replaceFile(folder / "a", "new"));
    EXPECT_EQ(attributeOf(folder / "a", "system.posix_acl_access"), "(none)");
    EXPECT_EQ(statusOf("a").st_mode & 07777, 0640U);
    ASSERT_FALSE(replaceFile(folder / "b", "a new file takes the folder's"));
    EXPECT_EQ(attributeOf(folder / "b", "system.posix_acl_access"), list);
}

TEST_F(PosixFileReplaceTest, FollowsLinksAndLeavesThemLinks) {
    std::filesystem::create_directory(folder / "sub");
    makeFile(folder / "sub/a", "old");
    std::filesystem::create_symlink("sub/a", folder / "relative");
    std::filesystem::create_symlink(folder / "relative", folder / "absolute");
    ASSERT_FALSE(replaceFile(folder / "absolute", "new"));
    EXPECT_EQ(contentOf(folder / "sub/a"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "absolute"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "relative"));
    EXPECT_EQ(namesIn(folder.path()), (Names{"absolute", "relative", "sub"}));
    EXPECT_EQ(namesIn(folder / "sub"), Names{"a"});
}

TEST_F(PosixFileReplaceTest, MakesTheFileThatADanglingLinkNames) {
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::create_symlink("sub/a", folder / "link");
    ASSERT_FALSE(replaceFile(folder / "link", "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(contentOf(folder / "sub/a"), "new");
}

TEST_F(PosixFileReplaceTest, RefusesLinksThatGoInCircles) {
    std::filesystem::create_symlink("b", folder / "a");
    std::filesystem::create_symlink("a", folder / "b");
    const FileOutcome error = replaceFile(folder / "a", "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path, folder / "a");
    EXPECT_EQ(error->reason, "Too many levels of symbolic links");
}

TEST_F(PosixFileReplaceTest, RefusesWhatCannotBeWrittenAndNamesIt) {
    makeFile(folder / "file", "old");
    struct Case {
        std::string path;
        Code code;
    };
    const Case cases[] = {
        {folder.path(), Code::IsFolder},
        {folder / "missing/", Code::IsFolder},
        {folder / "no/file", Code::NotFound},
        {folder / "file/below", Code::NotFound},
        {"", Code::NotFound},
        {folder / std::string(300, 'n'), Code::Other},
        {"/proc/version", Code::NoPermission},
    };
    for (const Case& c : cases) {
        if (c.code == Code::NoPermission && geteuid() == 0)
            continue;
        const FileOutcome error = replaceFile(c.path, "new");
        ASSERT_TRUE(error) << c.path;
        EXPECT_EQ(error->code, c.code) << c.path << ": " << error->reason;
        EXPECT_EQ(error->path, c.path);
    }
    EXPECT_EQ(namesIn(folder.path()), Names{"file"});
}

TEST_F(PosixFileReplaceTest, RefusesAFileWithoutWritePermission) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything; see platform.as_ordinary_user";
    makeFile(folder / "a", "old");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0400), 0);
    EXPECT_EQ(replaceFile(folder / "a", "new").value().code, Code::NoPermission);
    EXPECT_EQ(contentOf(folder / "a"), "old");
}

TEST_F(PosixFileReplaceTest, RefusesANewFileInAFolderThatForbidsIt) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere; see platform.as_ordinary_user";
    ASSERT_EQ(chmod(folder.path().c_str(), 0500), 0);
    EXPECT_EQ(replaceFile(folder / "a", "new").value().code, Code::NoPermission);
    ASSERT_EQ(chmod(folder.path().c_str(), 0700), 0);
    EXPECT_EQ(namesIn(folder.path()), Names{});
}

TEST_F(PosixFileReplaceTest, WritesInAFolderThatMayNotBeListed) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may list everything; see platform.as_ordinary_user";
    makeFile(folder / "a", "old");
    ASSERT_EQ(chmod(folder.path().c_str(), 0300), 0);
    EXPECT_FALSE(replaceFile(folder / "a", "new"));
    ASSERT_EQ(chmod(folder.path().c_str(), 0700), 0);
    EXPECT_EQ(contentOf(folder / "a"), "new");
}

TEST_F(PosixFileReplaceTest, TakesNamesAsLongAsTheDiskAllows) {
    std::string name;
    while (name.size() + 2 <= 254)
        name += "\xC3\xA4";
    for (const char* const content : {"one", "two"}) {
        ASSERT_FALSE(replaceFile(folder / name, content));
        EXPECT_EQ(contentOf(folder / name), content);
    }
    EXPECT_EQ(namesIn(folder.path()), Names{name});
}

TEST_F(PosixFileReplaceTest, RemovesWhatAKilledRunLeftOfTheSameTargetOnly) {
    const Names others{".menu.js.zev-short~", ".menu.js.zev-abcdef",  ".other.js.zev-abcdef~",
                       "menu.js.zev-a_cdef~", "menu.js.zev-abcdefg~", "xmenu.js.zev-abcdef~"};
    for (const std::string& name : others)
        makeFile(folder / name, "somebody's");
    makeFile(folder / ".menu.js.zev-abcdef~", "half");
    makeFile(folder / "menu.js.zev-Zz09aA~", "old");
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new"));
    Names expected = others;
    expected.push_back("menu.js");
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(namesIn(folder.path()), expected);
}

TEST_F(PosixFileReplaceTest, LeavesTheFilesOfALiveRunAlone) {
    const std::string live = folder / ".menu.js.zev-abcdef~";
    makeFile(live, "half");
    const int file = open(live.c_str(), O_RDWR);
    ASSERT_EQ(flock(file, LOCK_EX), 0);
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new"));
    EXPECT_TRUE(std::filesystem::exists(live));
    close(file);
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new"));
    EXPECT_FALSE(std::filesystem::exists(live));
}

TEST_F(PosixFileReplaceTest, WhatIsLeftDuringARunWaitsUntilItsFolderIsListedAgain) {
    std::filesystem::create_directory(folder / "other");
    FolderLeftovers leftovers;
    ASSERT_FALSE(replaceFile(folder / "first.htm", "new", Links::Followed, leftovers));
    const std::string left = folder / ".second.htm.zev-abcdef~";
    makeFile(left, "half");
    ASSERT_FALSE(replaceFile(folder / "second.htm", "new", Links::Followed, leftovers));
    EXPECT_TRUE(std::filesystem::exists(left));
    ASSERT_FALSE(replaceFile(folder / "other/page.htm", "new", Links::Followed, leftovers));
    ASSERT_FALSE(replaceFile(folder / "second.htm", "new", Links::Followed, leftovers));
    EXPECT_FALSE(std::filesystem::exists(left));
}

TEST_F(PosixFileReplaceTest, AfterAFailureTheFolderIsListedAgain) {
    std::filesystem::create_directory(folder / "sub");
    FolderLeftovers leftovers;
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new", Links::Followed, leftovers));
    const std::string left = folder / "menu.js.zev-abcdef~";
    makeFile(left, "old");
    ASSERT_TRUE(replaceFile(folder / "sub", "a folder is no file", Links::Followed, leftovers));
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new", Links::Followed, leftovers));
    EXPECT_FALSE(std::filesystem::exists(left));
}

TEST_F(PosixFileReplaceTest, OneListOfAFolderServesAllItsFiles) {
    const Names pages{"first.htm", "second.htm"};
    for (const std::string& page : pages)
        makeFile(folder / ("." + page + ".zev-abcdef~"), "half");
    FolderLeftovers leftovers;
    for (const std::string& page : pages)
        ASSERT_FALSE(replaceFile(folder / page, "new", Links::Followed, leftovers));
    EXPECT_EQ(namesIn(folder.path()), pages);
}

TEST_F(PosixFileReplaceTest, RemovesNoLinkOfALeftoversName) {
    makeFile(folder / "precious", "mine");
    std::filesystem::create_symlink("precious", folder / ".menu.js.zev-abcdef~");
    ASSERT_FALSE(replaceFile(folder / "menu.js", "new"));
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / ".menu.js.zev-abcdef~"));
}

TEST_F(PosixFileReplaceTest, WritesThroughTwoRunsAtOnceLeaveOneWholeFile) {
    const std::string contents[] = {std::string(50'000, 'a'), std::string(70'000, 'b')};
    const auto write = [&](const std::string& content) {
        for (int i = 0; i < 50; ++i)
            EXPECT_FALSE(replaceFile(folder / "menu.js", content));
    };
    std::thread other(write, contents[0]);
    write(contents[1]);
    other.join();
    const std::string content = contentOf(folder / "menu.js");
    EXPECT_TRUE(content == contents[0] || content == contents[1]);
    EXPECT_EQ(namesIn(folder.path()), Names{"menu.js"});
}

TEST_F(PosixFileReplaceTest, WritesDevicesStraight) {
    EXPECT_FALSE(replaceFile("/dev/null", "gone"));
    struct stat status {};
    ASSERT_EQ(stat("/dev/null", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
    const FileOutcome error = replaceFile("/dev/full", "no room");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, Code::NoSpace);
    EXPECT_EQ(error->reason, "No space left on device");
}

TEST_F(PosixFileReplaceTest, WritesPipesStraight) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = contentOf(folder / "pipe"); });
    EXPECT_FALSE(replaceFile(folder / "pipe", std::string(200'000, 'x')));
    reader.join();
    EXPECT_EQ(read, std::string(200'000, 'x'));
    EXPECT_TRUE(S_ISFIFO(statusOf("pipe").st_mode));
}

TEST_F(PosixFileReplaceTest, APipeThatNobodyReadsIsAnErrorAndNotTheEnd) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    const FileOutcome error = replaceFile("/proc/self/fd/" + std::to_string(ends[1]), "x");
    close(ends[1]);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "Broken pipe");
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
}

TEST_F(PosixFileReplaceTest, GoesOnWhereAnOpenDescriptorStands) {
    const int file = open((folder / "a").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(write(file, "before ", 7), 7);
    ASSERT_FALSE(replaceFile("/proc/self/fd/" + std::to_string(file), "new"));
    ASSERT_EQ(write(file, " after", 6), 6);
    close(file);
    EXPECT_EQ(contentOf(folder / "a"), "before new after");
}

}  // namespace
}  // namespace zev
