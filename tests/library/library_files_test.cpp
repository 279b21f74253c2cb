// SPDX-License-Identifier: MIT
#include "library/library_files.h"

#include <gtest/gtest.h>

#include "messages/library_messages.h"
#include "platform/fake/fake_file_system.h"

namespace zev {
namespace {

const FileError kNoPermission{FileError::Code::NoPermission, "/site/a.js", "Permission denied"};

TEST(CopyLibraryFileTest, MakesTheDestinationACopyOfTheSource) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "run-time");
    files.addFolder("/site");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "run-time");
}

TEST(CopyLibraryFileTest, ReplacesAnOlderDestination) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "new");
    files.addFile("/site/a.js", "old");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "new");
}

TEST(CopyLibraryFileTest, TakesThePlaceOfALink) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "new");
    files.addFile("/home/rc", "mine");
    files.addLink("/site/a.js", "/home/rc");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "new");
    EXPECT_EQ(files.allFiles().at("/home/rc"), "mine");
}

TEST(CopyLibraryFileTest, ContentThatIsThereIsNotWrittenAgain) {
    FakeFileSystem disk;
    disk.addFile("/program/a.js", "same");
    disk.addFile("/site/a.js", "same");
    disk.setWritable("/site", false);
    EXPECT_EQ(CopyLibraryFile(disk, "/program/a.js", "/site/a.js").result,
              CopyResult::AlreadyThere);
    EXPECT_EQ(disk.allFiles().size(), 2U);
}

TEST(CopyLibraryFileTest, SomebodysFileIsKeptAndAnEarlierVersionIsNot) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "(function(){//ZEVMenu\nnew");
    files.addFile("/site/a.js", "(function(){//ZEVMenu\nold");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.allFiles().size(), 2U);
    files.addFile("/site/a.js", "mine");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "(function(){//ZEVMenu\nnew");
    EXPECT_EQ(files.allFiles().at("/site/a.js.bak"), "mine");
}

TEST(CopyLibraryFileTest, ALinkIsKeptUnderAnotherName) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "new");
    files.addFile("/shared/a.js", "new");
    files.addLink("/site/a.js", "/shared/a.js");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::Copied);
    EXPECT_EQ(files.entryAt("/site/a.js"), DiskEntry::File);
    EXPECT_EQ(files.entryAt("/site/a.js.bak"), DiskEntry::Link);
    EXPECT_EQ(files.allFiles().at("/shared/a.js"), "new");
}

TEST(CopyLibraryFileTest, WhatCannotBeKeptIsNotReplaced) {
    FakeFileSystem disk;
    disk.addFile("/program/a.js", "new");
    disk.addFile("/site/a.js", "mine");
    FailingFileSystem files(disk);
    files.failPath("/site/a.js.bak", kNoPermission);
    const CopyOutcome outcome = CopyLibraryFile(files, "/program/a.js", "/site/a.js");
    EXPECT_EQ(outcome.result, CopyResult::NotSaved);
    EXPECT_EQ(outcome.path, "/site/a.js");
    EXPECT_EQ(disk.allFiles().at("/site/a.js"), "mine");
}

TEST(CopyLibraryFileTest, ALinkIsBackUnderItsNameWhenTheCopyFails) {
    FakeFileSystem disk;
    disk.addFile("/program/a.js", "new");
    disk.addLink("/site/a.js", "/shared/a.js");
    FailingFileSystem files(disk);
    files.failPath("/program/a.js", kNoPermission);
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js").result, CopyResult::NotSaved);
    EXPECT_EQ(disk.entryAt("/site/a.js"), DiskEntry::Link);
    EXPECT_EQ(disk.entryAt("/site/a.js.bak"), DiskEntry::Nothing);
}

TEST(CopyLibraryFileTest, DoesNothingWhenBothPathsNameOneFileOfTheDisk) {
    FakeFileSystem disk;
    disk.addFile("/Program/A.js", "one");
    disk.addFolderAlias("/Program", "/program");
    disk.addFolderAlias("/Program", "/link");
    FailingFileSystem files(disk);
    for (const char* const destination : {"/Program/A.js", "/program/A.js", "/link/A.js"}) {
        EXPECT_EQ(CopyLibraryFile(files, "/Program/A.js", destination).result,
                  CopyResult::SamePlace)
            << destination;
    }
    EXPECT_EQ(files.operationCount(), 0U);
}

TEST(CopyLibraryFileTest, CopiesWhereFoldersOrNamesAreOnlyEqualButForCase) {
    FakeFileSystem files;
    files.addFile("/Program/A.js", "one");
    files.addFolder("/program");
    for (const char* const destination : {"/program/A.js", "/Program/a.js"}) {
        EXPECT_EQ(CopyLibraryFile(files, "/Program/A.js", destination).result, CopyResult::Copied)
            << destination;
        EXPECT_EQ(files.allFiles().at(destination), "one");
    }
}

TEST(CopyLibraryFileTest, SaysThatTheSourceIsMissingAndLeavesTheDestination) {
    FakeFileSystem files;
    files.addFile("/site/a.js", "old");
    const CopyOutcome outcome = CopyLibraryFile(files, "/program/a.js", "/site/a.js");
    EXPECT_EQ(outcome.result, CopyResult::SourceMissing);
    EXPECT_EQ(outcome.path, "/program/a.js");
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "old");
}

TEST(CopyLibraryFileTest, SaysThatTheDestinationWasNotSavedAndLeavesIt) {
    FakeFileSystem disk;
    disk.addFile("/program/a.js", "new");
    disk.addFile("/site/a.js", "old");
    FailingFileSystem files(disk);
    files.failPath("/site/a.js", kNoPermission);
    const CopyOutcome outcome = CopyLibraryFile(files, "/program/a.js", "/site/a.js");
    EXPECT_EQ(outcome.result, CopyResult::NotSaved);
    EXPECT_EQ(outcome.path, "/site/a.js");
    EXPECT_EQ(outcome.reason, "Permission denied");
    EXPECT_EQ(disk.allFiles().at("/site/a.js"), "old");
}

/// The run-time files but "zevmenu_ns4.js" in "/program", and an empty folder "/site".
FakeFileSystem programWithoutOneScript() {
    FakeFileSystem files;
    for (const char* const name : {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu.html"})
        files.addFile(std::string("/program/") + name, name);
    files.addFolder("/site");
    return files;
}

TEST(CopyLibraryTest, CopiesEveryFileAndTellsOfThoseItCouldNot) {
    FakeFileSystem disk = programWithoutOneScript();
    FailingFileSystem files(disk);
    files.failPath("/site/zevmenu_loader.js", kNoPermission);
    const std::vector<CopyOutcome> problems =
        copyLibrary(files, Path("/program"), Path("/site"), CopiedFiles::ScriptsAndPreviewPage);
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_EQ(problems[0].result, CopyResult::NotSaved);
    EXPECT_EQ(problems[0].path, "/site/zevmenu_loader.js");
    EXPECT_EQ(problems[1].result, CopyResult::SourceMissing);
    EXPECT_EQ(problems[1].path, "/program/zevmenu_ns4.js");
    EXPECT_EQ(disk.allFiles().at("/site/zevmenu_dom.js"), "zevmenu_dom.js");
    EXPECT_EQ(disk.allFiles().at("/site/orlet_temp.html"), "zevmenu.html");
}

TEST(CopyLibraryTest, ThePreviewPageIsCopiedOnlyWhenAskedFor) {
    FakeFileSystem files = programWithoutOneScript();
    const std::vector<CopyOutcome> problems =
        copyLibrary(files, Path("/program"), Path("/site"), CopiedFiles::Scripts);
    EXPECT_EQ(problems.size(), 1U);
    EXPECT_FALSE(files.FileExists("/site/orlet_temp.html"));
}

TEST(CopyLibraryTest, IntoItsOwnFolderItCopiesOnlyThePreviewPage) {
    FakeFileSystem disk = programWithoutOneScript();
    FailingFileSystem files(disk);
    EXPECT_TRUE(
        copyLibrary(files, Path("/program"), Path("/program"), CopiedFiles::ScriptsAndPreviewPage)
            .empty());
    EXPECT_EQ(files.operationCount(), 1U);
    EXPECT_EQ(disk.allFiles().at("/program/orlet_temp.html"), "zevmenu.html");
}

TEST(CopyProblemTextTest, NamesTheFileAtFault) {
    struct Case {
        CopyOutcome outcome;
        const char* text;
    };
    const Case cases[] = {
        {{CopyResult::Copied, "", ""}, ""},
        {{CopyResult::SamePlace, "", ""}, ""},
        {{CopyResult::SourceMissing, "/from", ""}, "Error: /from does not exist"},
        {{CopyResult::NotSaved, "/to", "No space left on device"},
         "Error: /to not saved. Please check path permissions"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(copyProblemText(c.outcome), c.text);
}

}  // namespace
}  // namespace zev
