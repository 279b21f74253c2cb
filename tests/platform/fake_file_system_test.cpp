// SPDX-License-Identifier: MIT
#include "platform/fake/fake_file_system.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

constexpr std::uint64_t kNoLimit = UINT64_MAX;

TEST(FakeFileSystemTest, KeepsWhatIsWritten) {
    FakeFileSystem files;
    files.addFolder("/web");
    EXPECT_FALSE(files.writeFile("/web/a.js", "one", Links::Followed));
    EXPECT_TRUE(files.FileExists("/web/a.js"));
    EXPECT_EQ(files.readFile("/web/a.js", kNoLimit).value(), "one");
    EXPECT_FALSE(files.CopyFile("/web/a.js", "/web/b.js", Links::Followed));
    EXPECT_FALSE(files.DeleteFile("/web/a.js"));
    EXPECT_FALSE(files.FileExists("/web/a.js"));
    EXPECT_EQ(files.allFiles().at("/web/b.js"), "one");
}

TEST(FakeFileSystemTest, KnowsDriveLetterPaths) {
    FakeFileSystem files;
    files.addFile("C:\\web\\a.js", "one");
    EXPECT_TRUE(files.isFolder("C:\\web"));
    EXPECT_FALSE(files.writeFile("C:\\web\\b.js", "two", Links::Followed));
    EXPECT_EQ(files.listFolder("C:\\web").value(), (std::vector<std::string>{"a.js", "b.js"}));
}

TEST(FakeFileSystemTest, ALinkIsFollowedOrReplaced) {
    FakeFileSystem files;
    files.addFile("/home/rc", "mine");
    files.addLink("/web/link", "/home/rc");
    EXPECT_EQ(files.readFile("/web/link", kNoLimit).value(), "mine");
    EXPECT_FALSE(files.writeFile("/web/link", "new", Links::Followed));
    EXPECT_EQ(files.allFiles().at("/home/rc"), "new");
    EXPECT_FALSE(files.writeFile("/web/link", "own", Links::Replaced));
    EXPECT_EQ(files.allFiles().at("/home/rc"), "new");
    EXPECT_EQ(files.allFiles().at("/web/link"), "own");
    files.addLink("/web/other", "/home/rc");
    EXPECT_FALSE(files.DeleteFile("/web/other"));
    EXPECT_FALSE(files.FileExists("/web/other"));
    EXPECT_TRUE(files.FileExists("/home/rc"));
}

TEST(FakeFileSystemTest, FailsAsARealDiskDoes) {
    FakeFileSystem files;
    files.addFile("/web/a.js", "four");
    files.addFile("/closed/a.js", "old");
    files.setWritable("/closed", false);
    using Code = FileError::Code;
    EXPECT_EQ(files.readFile("/web", kNoLimit).error().code, Code::IsFolder);
    EXPECT_EQ(files.readFile("/web/b.js", kNoLimit).error().code, Code::NotFound);
    EXPECT_EQ(files.readFile("/web/a.js", 3).error().code, Code::TooLarge);
    EXPECT_TRUE(files.readFile("/web/a.js", 4).isOk());
    EXPECT_EQ(files.writeFile("/web", "", Links::Followed).value().code, Code::IsFolder);
    EXPECT_EQ(files.writeFile("/nowhere/a.js", "", Links::Followed).value().code, Code::NotFound);
    EXPECT_EQ(files.writeFile("/closed/a.js", "new", Links::Followed).value().code,
              Code::NoPermission);
    EXPECT_EQ(files.DeleteFile("/closed/a.js").value().code, Code::NoPermission);
    EXPECT_EQ(files.makeFolder("/closed/sub").value().code, Code::NoPermission);
    EXPECT_EQ(files.CopyFile("/web/b.js", "/web/c.js", Links::Followed).value().path, "/web/b.js");
    EXPECT_EQ(files.CopyFile("/web/a.js", "/closed/a.js", Links::Followed).value().path,
              "/closed/a.js");
    EXPECT_EQ(files.allFiles().at("/closed/a.js"), "old");
}

TEST(FakeFileSystemTest, MakesFoldersWithThoseAbove) {
    FakeFileSystem files;
    EXPECT_FALSE(files.makeFolder("/a/b/c"));
    EXPECT_TRUE(files.isFolder("/a/b"));
    EXPECT_TRUE(files.isWritableFolder("/a/b/c"));
    files.addFile("/a/file", "");
    EXPECT_TRUE(files.makeFolder("/a/file"));
}

TEST(FailingFileSystemTest, BreaksTheOperationWithTheGivenNumber) {
    FakeFileSystem disk;
    disk.addFolder("/web");
    FailingFileSystem files(disk);
    files.failOperation(2, {FileError::Code::NoSpace, "/web/b.js", "No space left on device"});
    EXPECT_FALSE(files.writeFile("/web/a.js", "1", Links::Followed));
    EXPECT_TRUE(files.FileExists("/web/a.js"));  // a question, not counted
    EXPECT_EQ(files.writeFile("/web/b.js", "2", Links::Followed).value().code,
              FileError::Code::NoSpace);
    EXPECT_FALSE(files.writeFile("/web/c.js", "3", Links::Followed));
    EXPECT_FALSE(disk.FileExists("/web/b.js"));
    EXPECT_EQ(files.operationCount(), 3U);
}

TEST(FailingFileSystemTest, BreaksEveryOperationOnAPath) {
    FakeFileSystem disk;
    disk.addFile("/web/a.js", "1");
    disk.addFile("/web/b.js", "2");
    FailingFileSystem files(disk);
    files.failPath("/web/a.js", {FileError::Code::Other, "/web/a.js", "Input/output error"});
    EXPECT_FALSE(files.readFile("/web/a.js", kNoLimit).isOk());
    EXPECT_TRUE(files.writeFile("/web/a.js", "x", Links::Followed));
    EXPECT_TRUE(files.CopyFile("/web/a.js", "/web/b.js", Links::Followed));
    EXPECT_TRUE(files.CopyFile("/web/b.js", "/web/a.js", Links::Followed));
    EXPECT_TRUE(files.DeleteFile("/web/a.js"));
    EXPECT_TRUE(files.readFile("/web/b.js", kNoLimit).isOk());
    EXPECT_EQ(disk.allFiles().at("/web/a.js"), "1");
}

}  // namespace
}  // namespace zev
