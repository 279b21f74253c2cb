// SPDX-License-Identifier: MIT
#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <thread>

#include "platform/posix/posix_descriptor.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::FileSizeLimit;
using test::makeFile;
using test::TempFolder;
using Code = FileError::Code;

constexpr std::uint64_t kLimit = 1024 * 1024;

class PosixFileSystemTest : public testing::Test {
  protected:
    TempFolder folder;
    PosixFileSystem files;
};

TEST_F(PosixFileSystemTest, ReadsBackEveryByteItWrote) {
    std::string bytes(300'000, 'x');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i % 256);
    ASSERT_FALSE(files.writeFile(folder / "a", bytes, Links::Followed));
    EXPECT_EQ(files.readFile(folder / "a", kLimit).value(), bytes);
    ASSERT_FALSE(files.writeFile(folder / "a", "", Links::Followed));
    EXPECT_EQ(files.readFile(folder / "a", kLimit).value(), "");
}

TEST_F(PosixFileSystemTest, ATemporaryFileReplacesWhatBearsItsNameAndIsNobodyElsesToRead) {
    makeFile(folder / "page", "the page");
    makeFile(folder / "old", "x");
    ASSERT_EQ(chmod((folder / "old").c_str(), 0644), 0);
    std::filesystem::create_symlink(folder / "page", folder / "link");
    for (const char* name : {"new", "old", "link"}) {
        const std::string path = folder / name;
        ASSERT_FALSE(files.writeTemporaryFile(path, "bytes")) << name;
        EXPECT_EQ(contentOf(path), "bytes") << name;
        struct stat status {};
        ASSERT_EQ(lstat(path.c_str(), &status), 0) << name;
        EXPECT_EQ(status.st_mode, S_IFREG | 0600u) << name;
    }
    EXPECT_EQ(contentOf(folder / "page"), "the page");
}

TEST_F(PosixFileSystemTest, SaysWhyATemporaryFileCannotBeWrittenAndLeavesNone) {
    const FileOutcome onFolder = files.writeTemporaryFile(folder.path(), "x");
    ASSERT_TRUE(onFolder);
    EXPECT_EQ(onFolder->code, Code::IsFolder);
    const FileOutcome inNoFolder = files.writeTemporaryFile(folder / "missing/a", "x");
    ASSERT_TRUE(inNoFolder);
    EXPECT_EQ(inNoFolder->code, Code::NotFound);
    EXPECT_EQ(inNoFolder->path, folder / "missing/a");

    const FileSizeLimit diskFullHalfWay(10);
    const FileOutcome tooLarge = files.writeTemporaryFile(folder / "a", std::string(11, 'x'));
    ASSERT_TRUE(tooLarge);
    EXPECT_EQ(tooLarge->reason, "File too large");
    EXPECT_FALSE(files.FileExists(folder / "a"));
}

TEST_F(PosixFileSystemTest, SaysWhyAFileCannotBeRead) {
    makeFile(folder / "file", "x");
    struct Case {
        std::string path;
        Code code;
        const char* reason;
    };
    const Case cases[] = {
        {folder / "missing", Code::NotFound, "No such file or directory"},
        {folder / "file/below", Code::NotFound, "Not a directory"},
        {folder.path(), Code::IsFolder, "Is a directory"},
        {"", Code::NotFound, "No such file or directory"},
    };
    for (const Case& c : cases) {
        const auto result = files.readFile(c.path, kLimit);
        ASSERT_FALSE(result.isOk()) << c.path;
        EXPECT_EQ(result.error().code, c.code) << c.path;
        EXPECT_EQ(result.error().path, c.path);
        EXPECT_EQ(result.error().reason, c.reason);
    }
}

TEST_F(PosixFileSystemTest, SaysThatReadingIsNotPermitted) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may read everything; see platform.as_ordinary_user";
    makeFile(folder / "a", "x");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0), 0);
    EXPECT_EQ(files.readFile(folder / "a", kLimit).error().code, Code::NoPermission);
}

TEST_F(PosixFileSystemTest, RefusesFilesAboveTheLimitAndTakesThoseAtIt) {
    makeFile(folder / "a", "12345");
    EXPECT_TRUE(files.readFile(folder / "a", 5).isOk());
    EXPECT_EQ(files.readFile(folder / "a", 4).error().code, Code::TooLarge);
}

TEST_F(PosixFileSystemTest, RefusesAHugeFileWithoutReadingIt) {
    makeFile(folder / "a", "");
    std::filesystem::resize_file(folder / "a", std::uintmax_t{1} << 40);
    EXPECT_EQ(files.readFile(folder / "a", kLimit).error().code, Code::TooLarge);
}

TEST_F(PosixFileSystemTest, StopsReadingAFileThatHasNoSizeAtTheLimit) {
    PosixDescriptor zeros;
    ASSERT_EQ(openDescriptor("/dev/zero", O_RDONLY, 0, zeros), 0);
    std::string bytes;
    EXPECT_EQ(readAll(zeros.get(), kLimit, bytes), EFBIG);
    const auto status = files.readFile("/proc/self/status", kLimit);
    ASSERT_TRUE(status.isOk());
    EXPECT_FALSE(status.value().empty());
    EXPECT_EQ(files.readFile("/proc/self/status", 10).error().code, Code::TooLarge);
}

TEST_F(PosixFileSystemTest, ReadsAPipeToItsEnd) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::thread writer([&] {
        const int pipe = open((folder / "pipe").c_str(), O_WRONLY);
        for (const char* const part : {"one ", "two ", "three"}) {
            EXPECT_GT(write(pipe, part, strlen(part)), 0);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        close(pipe);
    });
    PosixDescriptor pipe;
    std::string bytes;
    EXPECT_EQ(openDescriptor(folder / "pipe", O_RDONLY, 0, pipe), 0);
    EXPECT_EQ(readAll(pipe.get(), kLimit, bytes), 0);
    EXPECT_EQ(bytes, "one two three");
    writer.join();
}

void makeSocket(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    const PosixDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
}

TEST_F(PosixFileSystemTest, RefusesAtOnceToReadWhatIsNoFile) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    makeSocket(folder / "socket");
    for (const char* const name : {"pipe", "socket"})
        std::filesystem::create_symlink(name, folder / ("link to " + std::string(name)));
    std::filesystem::create_symlink("/dev/zero", folder / "link to device");
    struct Case {
        std::string path;
        const char* reason;
    };
    const Case cases[] = {
        {folder / "pipe", "Is a pipe"},     {folder / "link to pipe", "Is a pipe"},
        {folder / "socket", "Is a socket"}, {folder / "link to socket", "Is a socket"},
        {"/dev/zero", "Is a device"},       {folder / "link to device", "Is a device"},
    };
    for (const Case& c : cases) {
        const auto result = files.readFile(c.path, kLimit);
        ASSERT_FALSE(result.isOk()) << c.path;
        EXPECT_EQ(result.error().path, c.path);
        EXPECT_EQ(result.error().reason, c.reason) << c.path;
        const FileOutcome copied = files.CopyFile(c.path, folder / "copy", Links::Followed);
        ASSERT_TRUE(copied) << c.path;
        EXPECT_EQ(copied->reason, c.reason) << c.path;
    }
}

TEST_F(PosixFileSystemTest, PutsNoFileOfItsOwnInThePlaceOfAPipeOrSocket) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    makeSocket(folder / "socket");
    makeFile(folder / "page", "the page");
    std::filesystem::create_directory(folder / "folder");
    struct Case {
        const char* name;
        const char* reason;
    };
    const Case cases[] = {
        {"pipe", "Is a pipe"}, {"socket", "Is a socket"}, {"folder", "Is a directory"}};
    for (const Case& c : cases) {
        const std::string path = folder / c.name;
        const auto before = std::filesystem::status(path).type();
        for (const FileOutcome& error :
             {files.writeFile(path, "x", Links::Replaced), files.writeTemporaryFile(path, "x"),
              files.backUpFile(folder / "page", path, "text")}) {
            ASSERT_TRUE(error) << c.name;
            EXPECT_EQ(error->path, path);
            EXPECT_EQ(error->reason, c.reason);
        }
        EXPECT_EQ(std::filesystem::status(path).type(), before) << c.name;
    }
    EXPECT_EQ(test::namesIn(folder.path()),
              (std::vector<std::string>{"folder", "page", "pipe", "socket"}));
}

TEST_F(PosixFileSystemTest, TellsFilesFromFolders) {
    makeFile(folder / "a", "x");
    std::filesystem::create_symlink("a", folder / "link");
    std::filesystem::create_symlink("nowhere", folder / "dangling");
    EXPECT_TRUE(files.FileExists(folder / "a"));
    EXPECT_TRUE(files.FileExists(folder / "link"));
    EXPECT_TRUE(files.FileExists("/dev/null"));
    EXPECT_FALSE(files.FileExists(folder / "dangling"));
    EXPECT_FALSE(files.FileExists(folder.path()));
    EXPECT_TRUE(files.isFolder(folder.path()));
    EXPECT_FALSE(files.isFolder(folder / "a"));
    EXPECT_TRUE(files.isWritableFolder(folder.path()));
    EXPECT_FALSE(files.isWritableFolder(folder / "a"));
    EXPECT_FALSE(files.isWritableFolder(folder / "missing"));
}

TEST_F(PosixFileSystemTest, KnowsOneFolderByAllItsPaths) {
    std::filesystem::create_directories(folder / "site/sub");
    std::filesystem::create_directory(folder / "Site");
    std::filesystem::create_directory_symlink("site", folder / "link");
    makeFile(folder / "file", "x");
    const std::string site = folder / "site";
    for (const char* const same : {"site", "site/", "link", "site/sub/..", "./site"})
        EXPECT_TRUE(files.isSameFolder(site, folder / same)) << same;
    for (const char* const other : {"Site", "site/sub", "missing", "file"})
        EXPECT_FALSE(files.isSameFolder(site, folder / other)) << other;
    EXPECT_FALSE(files.isSameFolder(folder / "missing", folder / "missing"));
    EXPECT_FALSE(files.isSameFolder(folder / "file", folder / "file"));
}

TEST_F(PosixFileSystemTest, KnowsAFileByEveryPath) {
    makeFile(folder / "file", "x");
    makeFile(folder / "other", "x");
    std::filesystem::create_symlink("file", folder / "link");
    std::filesystem::create_hard_link(folder / "file", folder / "hard");
    std::filesystem::create_directory(folder / "sub");
    for (const char* const same : {"file", "link", "hard", "./file", "sub/../file"})
        EXPECT_TRUE(files.isSameFile(folder / "file", folder / same)) << same;
    for (const char* const other : {"other", "File", "missing", "sub"})
        EXPECT_FALSE(files.isSameFile(folder / "file", folder / other)) << other;
    EXPECT_FALSE(files.isSameFile(folder / "missing", folder / "missing"));
    EXPECT_FALSE(files.isSameFile(folder / "sub", folder / "sub"));
    EXPECT_FALSE(files.isSameFile("/dev/null", "/dev/null"));
}

TEST_F(PosixFileSystemTest, KnowsAFolderThatForbidsNewFiles) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere; see platform.as_ordinary_user";
    ASSERT_EQ(chmod(folder.path().c_str(), 0500), 0);
    EXPECT_FALSE(files.isWritableFolder(folder.path()));
    ASSERT_EQ(chmod(folder.path().c_str(), 0700), 0);
}

TEST_F(PosixFileSystemTest, CopiesBytesAndNamesTheFileAtFault) {
    makeFile(folder / "a", "content");
    makeFile(folder / "b", "a much longer old content");
    EXPECT_FALSE(files.CopyFile(folder / "a", folder / "b", Links::Followed));
    EXPECT_EQ(contentOf(folder / "b"), "content");
    EXPECT_EQ(files.CopyFile(folder / "missing", folder / "b", Links::Followed).value().path,
              folder / "missing");
    EXPECT_EQ(files.CopyFile(folder / "a", folder / "no/b", Links::Followed).value().path,
              folder / "no/b");
    EXPECT_EQ(contentOf(folder / "b"), "content");
}

TEST_F(PosixFileSystemTest, DeletesFilesAndNothingElse) {
    makeFile(folder / "a", "x");
    EXPECT_FALSE(files.DeleteFile(folder / "a"));
    EXPECT_FALSE(files.FileExists(folder / "a"));
    EXPECT_EQ(files.DeleteFile(folder / "a").value().code, Code::NotFound);
    EXPECT_EQ(files.DeleteFile(folder.path()).value().code, Code::IsFolder);
}

TEST_F(PosixFileSystemTest, MakesFoldersWithThoseAboveAndListsThem) {
    EXPECT_FALSE(files.makeFolder(folder / "a/b"));
    EXPECT_FALSE(files.makeFolder(folder / "a/b"));
    makeFile(folder / "a/file", "x");
    EXPECT_EQ(files.listFolder(folder / "a").value(), (std::vector<std::string>{"b", "file"}));
    EXPECT_TRUE(files.makeFolder(folder / "a/file"));
    EXPECT_EQ(files.listFolder(folder / "missing").error().code, Code::NotFound);
}

}  // namespace
}  // namespace zev
