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
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js"), CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "run-time");
}

TEST(CopyLibraryFileTest, ReplacesAnOlderDestination) {
    FakeFileSystem files;
    files.addFile("/program/a.js", "new");
    files.addFile("/site/a.js", "old");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js"), CopyResult::Copied);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "new");
}

TEST(CopyLibraryFileTest, DoesNothingWhenBothPathsAreEqualButForCase) {
    FakeFileSystem disk;
    disk.addFile("/Program/A.js", "one");
    FailingFileSystem files(disk);
    for (const char* const destination : {"/Program/A.js", "/program/a.JS"}) {
        EXPECT_EQ(CopyLibraryFile(files, "/Program/A.js", destination), CopyResult::SamePlace)
            << destination;
    }
    EXPECT_EQ(files.operationCount(), 0U);
}

TEST(CopyLibraryFileTest, OnlyAsciiLettersAreEqualButForCase) {
    FakeFileSystem files;
    files.addFile("/[/a.js", "one");
    files.addFolder("/{");  // "[" and "{" are as far apart as "A" and "a"
    EXPECT_EQ(CopyLibraryFile(files, "/[/a.js", "/{/a.js"), CopyResult::Copied);
}

TEST(CopyLibraryFileTest, SaysThatTheSourceIsMissingAndLeavesTheDestination) {
    FakeFileSystem files;
    files.addFile("/site/a.js", "old");
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js"), CopyResult::SourceMissing);
    EXPECT_EQ(files.allFiles().at("/site/a.js"), "old");
}

TEST(CopyLibraryFileTest, SaysThatTheDestinationWasNotSavedAndLeavesIt) {
    FakeFileSystem disk;
    disk.addFile("/program/a.js", "new");
    disk.addFile("/site/a.js", "old");
    FailingFileSystem files(disk);
    files.failPath("/site/a.js", kNoPermission);
    EXPECT_EQ(CopyLibraryFile(files, "/program/a.js", "/site/a.js"), CopyResult::NotSaved);
    EXPECT_EQ(disk.allFiles().at("/site/a.js"), "old");
}

TEST(CopyProblemTextTest, NamesTheFileAtFault) {
    struct Case {
        CopyResult result;
        const char* text;
    };
    const Case cases[] = {
        {CopyResult::Copied, ""},
        {CopyResult::SamePlace, ""},
        {CopyResult::SourceMissing, "Error: /from does not exist"},
        {CopyResult::NotSaved, "Error: /to not saved. Please check path permissions"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CopyProblemText(c.result, "/from", "/to"), c.text);
}

}  // namespace
}  // namespace zev
