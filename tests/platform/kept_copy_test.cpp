// SPDX-License-Identifier: MIT
#include "platform/kept_copy.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/fake/fake_file_system.h"
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

class KeptCopyTest : public testing::Test {
  protected:
    /// What was kept has this name; the reason when nothing was.
    std::string nameOf(const FileResult<std::string>& kept) const {
        if (!kept.isOk())
            return kept.error().reason;
        return kept.value().substr(folder.path().size() + 1);
    }

    TempFolder folder;
    PosixFileSystem files;
};

TEST_F(KeptCopyTest, EachContentIsKeptOnceUnderTheNextNumber) {
    const std::string path = folder / "x.js";
    for (const auto& [content, name] : {std::pair{"one", "x.js.bak"},
                                        {"two", "x.js.bak.2"},
                                        {"three", "x.js.bak.3"},
                                        {"two", "x.js.bak.2"},
                                        {"one", "x.js.bak"}}) {
        makeFile(path, content);
        EXPECT_EQ(nameOf(keepCopy(files, path)), name) << content;
        EXPECT_EQ(contentOf(folder / name), content);
        EXPECT_EQ(contentOf(path), content);
    }
    EXPECT_EQ(namesIn(folder.path()), (Names{"x.js", "x.js.bak", "x.js.bak.2", "x.js.bak.3"}));
}

TEST_F(KeptCopyTest, ContentThatOnlyBeginsLikeAnotherIsKept) {
    makeFile(folder / "x.js.bak", "one and more");
    makeFile(folder / "x.js", "one");
    EXPECT_EQ(nameOf(keepCopy(files, folder / "x.js")), "x.js.bak.2");
    makeFile(folder / "x.js", "");
    EXPECT_EQ(nameOf(keepCopy(files, folder / "x.js")), "x.js.bak.3");
    EXPECT_EQ(contentOf(folder / "x.js.bak"), "one and more");
    EXPECT_EQ(contentOf(folder / "x.js.bak.3"), "");
}

TEST_F(KeptCopyTest, NothingIsWrittenThroughWhatHasTheName) {
    makeFile(folder / "x.js", "one");
    makeFile(folder / "same", "one");
    std::filesystem::create_symlink("same", folder / "x.js.bak");
    std::filesystem::create_directory(folder / "x.js.bak.2");
    std::filesystem::create_symlink("nowhere", folder / "x.js.bak.3");
    EXPECT_EQ(nameOf(keepCopy(files, folder / "x.js")), "x.js.bak.4");
    EXPECT_EQ(contentOf(folder / "x.js.bak.4"), "one");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "x.js.bak"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "x.js.bak.3"));
    EXPECT_FALSE(std::filesystem::exists(folder / "nowhere"));
}

TEST_F(KeptCopyTest, ACopyHasTheRightsOfTheFile) {
    makeFile(folder / "x.js", "one");
    ASSERT_EQ(chmod((folder / "x.js").c_str(), 0640), 0);
    ASSERT_EQ(nameOf(keepCopy(files, folder / "x.js")), "x.js.bak");
    struct stat status {};
    ASSERT_EQ(stat((folder / "x.js.bak").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(KeptCopyTest, ALinkIsRenamedAndWhatItLedToStays) {
    makeFile(folder / "precious", "mine");
    std::filesystem::create_symlink("precious", folder / "x.js");
    EXPECT_EQ(nameOf(setAside(files, folder / "x.js")), "x.js.bak");
    std::filesystem::create_symlink("nowhere", folder / "x.js");
    EXPECT_EQ(nameOf(setAside(files, folder / "x.js")), "x.js.bak.2");
    makeFile(folder / "x.js", "own");
    EXPECT_EQ(nameOf(setAside(files, folder / "x.js")), "x.js.bak.3");
    EXPECT_EQ(std::filesystem::read_symlink(folder / "x.js.bak"), "precious");
    EXPECT_EQ(std::filesystem::read_symlink(folder / "x.js.bak.2"), "nowhere");
    EXPECT_EQ(contentOf(folder / "x.js.bak.3"), "own");
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
    EXPECT_FALSE(std::filesystem::exists(folder / "x.js"));
}

TEST_F(KeptCopyTest, ARenameReplacesNothing) {
    makeFile(folder / "x.js", "one");
    makeFile(folder / "y.js", "other");
    const FileOutcome error = files.renameFile(folder / "x.js", folder / "y.js");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "File exists");
    EXPECT_EQ(contentOf(folder / "x.js"), "one");
    EXPECT_EQ(contentOf(folder / "y.js"), "other");
}

TEST(KeptCopyFailureTest, WhatCannotBeKeptIsAnError) {
    FakeFileSystem files;
    files.addFile("/web/x.js", "one");
    EXPECT_EQ(keepCopy(files, "/web/y.js").error().code, FileError::Code::NotFound);
    EXPECT_EQ(setAside(files, "/web/y.js").error().code, FileError::Code::NotFound);
    files.setWritable("/web", false);
    EXPECT_EQ(keepCopy(files, "/web/x.js").error().code, FileError::Code::NoPermission);
    EXPECT_EQ(setAside(files, "/web/x.js").error().code, FileError::Code::NoPermission);
    EXPECT_EQ(files.allFiles().size(), 1U);
}

}  // namespace
}  // namespace zev
