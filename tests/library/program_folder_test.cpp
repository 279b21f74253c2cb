// SPDX-License-Identifier: MIT
#include "library/program_folder.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_file_system.h"

namespace zev {
namespace {

const std::string kUserFolder = "/home/anna/.local/share/zevmenu-creator";

/// A system-wide installation, which nobody may write.
FakeFileSystem systemWide() {
    FakeFileSystem files;
    files.addFile("/usr/bin/zevmenu", "program");
    for (const char* const name :
         {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js", "zevmenu.html"})
        files.addFile(std::string("/usr/share/zevmenu-creator/") + name, name);
    files.addFile("/usr/share/zevmenu-creator/help/index.html", "manual");
    files.addFile("/usr/share/zevmenu-creator/help/images/a.svg", "picture");
    files.setWritable("/usr/bin", false);
    files.setWritable("/usr/share/zevmenu-creator", false);
    files.addFolder("/home/anna");
    return files;
}

TEST(ProgramFolderTest, IsTheExecutablesFolderWhenThatHoldsTheRunTimeFilesAndIsWritable) {
    FakeFileSystem files;
    files.addFile("/build/bin/zevmenu_loader.js", "");
    files.addFile("/build/share/zevmenu-creator/zevmenu_loader.js", "");
    const auto folder = findProgramFolder(files, "/build/bin/zevmenu", kUserFolder);
    ASSERT_TRUE(folder.isOk());
    EXPECT_EQ(folder.value(), "/build/bin");
    EXPECT_FALSE(files.isFolder(kUserFolder));
}

TEST(ProgramFolderTest, OfAnInstallationIsTheUsersAlsoWhereTheUserMayWriteIt) {
    FakeFileSystem files;
    files.addFile("/opt/zev/share/zevmenu-creator/zevmenu_loader.js", "loader");
    const std::size_t fileCount = files.allFiles().size();
    const auto folder = findProgramFolder(files, "/opt/zev/bin/zevmenu", kUserFolder);
    ASSERT_TRUE(folder.isOk());
    EXPECT_EQ(folder.value(), kUserFolder);
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/zevmenu_loader.js"), "loader");
    EXPECT_EQ(files.allFiles().size(), fileCount + 1);
}

TEST(ProgramFolderTest, OfASystemWideInstallationIsTheUsersAndFilledFromIt) {
    FakeFileSystem files = systemWide();
    const auto folder = findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder);
    ASSERT_TRUE(folder.isOk()) << folder.error().path << folder.error().reason;
    EXPECT_EQ(folder.value(), kUserFolder);
    for (const char* const name : {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js",
                                   "zevmenu.html", "help/index.html", "help/images/a.svg"}) {
        const std::string bytes =
            files.allFiles().at("/usr/share/zevmenu-creator/" + std::string(name));
        EXPECT_EQ(files.allFiles().at(kUserFolder + "/" + name), bytes) << name;
    }
    EXPECT_FALSE(files.FileExists(kUserFolder + "/zevmenu"));
}

TEST(ProgramFolderTest, TheUsersCopiesTakeThePlaceOfLinks) {
    FakeFileSystem files = systemWide();
    files.addFile("/home/anna/rc", "mine");
    files.addLink(kUserFolder + "/zevmenu.html", "/home/anna/rc");
    ASSERT_TRUE(findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder).isOk());
    EXPECT_EQ(files.allFiles().at("/home/anna/rc"), "mine");
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/zevmenu.html"), "zevmenu.html");
}

TEST(ProgramFolderTest, BringsFilesUpToDateThatDifferFromTheInstalledOnes) {
    FakeFileSystem files = systemWide();
    ASSERT_TRUE(findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder).isOk());
    files.addFile("/usr/share/zevmenu-creator/zevmenu_dom.js", "the next version");
    files.addFile("/usr/share/zevmenu-creator/help/index.html", "the next manual");
    ASSERT_TRUE(findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder).isOk());
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/zevmenu_dom.js"), "the next version");
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/help/index.html"), "the next manual");
}

TEST(ProgramFolderTest, LeavesFilesAloneThatAreUpToDateAndThoseThatAreTheUsersOwn) {
    FakeFileSystem files = systemWide();
    ASSERT_TRUE(findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder).isOk());
    files.addFile(kUserFolder + "/orlet_temp.js", "preview");
    for (const char* const folder : {"", "/help", "/help/images"})
        files.setWritable(kUserFolder + folder, false);  // any write would fail
    EXPECT_TRUE(findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder).isOk());
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/orlet_temp.js"), "preview");
}

TEST(ProgramFolderTest, DoesWithoutAnInstalledTemplateAndManual) {
    FakeFileSystem files;
    files.addFile("/usr/share/zevmenu-creator/zevmenu_loader.js", "loader");
    files.setWritable("/usr/share/zevmenu-creator", false);
    const auto folder = findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder);
    ASSERT_TRUE(folder.isOk());
    EXPECT_EQ(files.allFiles().at(kUserFolder + "/zevmenu_loader.js"), "loader");
}

TEST(ProgramFolderTest, NamesTheFileThatIsMissingWhenNothingIsInstalled) {
    FakeFileSystem files;
    const auto folder = findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder);
    ASSERT_FALSE(folder.isOk());
    EXPECT_EQ(folder.error().code, FileError::Code::NotFound);
    EXPECT_EQ(folder.error().path, "/usr/share/zevmenu-creator/zevmenu_loader.js");
}

TEST(ProgramFolderTest, ReportsEveryFailureToFillTheUsersFolder) {
    FakeFileSystem complete = systemWide();
    FailingFileSystem counting(complete);
    ASSERT_TRUE(findProgramFolder(counting, "/usr/bin/zevmenu", kUserFolder).isOk());
    std::size_t failures = 0;
    for (std::size_t i = 1; i <= counting.operationCount(); ++i) {
        FakeFileSystem disk = systemWide();
        FailingFileSystem files(disk);
        files.failOperation(i, {FileError::Code::NoSpace, "disk", "No space left on device"});
        const auto folder = findProgramFolder(files, "/usr/bin/zevmenu", kUserFolder);
        // A user's file that cannot be read is replaced; every other failure is reported.
        if (!folder.isOk())
            ++failures;
        else
            EXPECT_EQ(disk.allFiles().size(), complete.allFiles().size()) << i;
    }
    constexpr std::size_t kReadsOfUsersFiles = 6;
    EXPECT_EQ(failures, counting.operationCount() - kReadsOfUsersFiles);
}

TEST(InstalledFolderTest, MayBeReadOnlyAndIsNotCopied) {
    const FakeFileSystem files = systemWide();
    const auto folder = findInstalledFolder(files, "/usr/bin/zevmenu");
    ASSERT_TRUE(folder.isOk());
    EXPECT_EQ(folder.value(), "/usr/share/zevmenu-creator");
}

TEST(InstalledFolderTest, OfAProgramInTheRootFolderIsTheRoot) {
    FakeFileSystem files;
    files.addFile("/zevmenu_loader.js", "");
    EXPECT_EQ(findInstalledFolder(files, "/zevmenu").value(), "/");
}

}  // namespace
}  // namespace zev
