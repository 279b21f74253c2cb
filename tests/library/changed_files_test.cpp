// SPDX-License-Identifier: MIT
#include "library/changed_files.h"

#include <gtest/gtest.h>

#include "messages/library_messages.h"
#include "platform/fake/fake_file_system.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using Names = std::vector<std::string_view>;

/// A folder "/program" with the run-time files as the build made them.
FakeFileSystem programAsBuilt() {
    FakeFileSystem files;
    for (const char* const name :
         {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js", "zevmenu.html"})
        files.addFile(std::string("/program/") + name,
                      test::contentOf(std::string(ZEVMENU_RUNTIME "/") + name));
    return files;
}

Names changedIn(const FakeFileSystem& files, CopiedFiles copied) {
    return changedRunTimeFiles(files, Path("/program"), copied);
}

TEST(ChangedRunTimeFilesTest, AreNoneOfThoseOfTheBuild) {
    EXPECT_EQ(changedIn(programAsBuilt(), CopiedFiles::ScriptsAndPreviewPage), Names{});
}

TEST(ChangedRunTimeFilesTest, AreNamedWhenOneByteOrTheSizeDiffers) {
    FakeFileSystem files = programAsBuilt();
    std::string loader = files.allFiles().at("/program/zevmenu_loader.js");
    loader[loader.size() / 2] ^= 1;
    files.addFile("/program/zevmenu_loader.js", loader);
    files.addFile("/program/zevmenu_ns4.js", "");
    EXPECT_EQ(changedIn(files, CopiedFiles::Scripts),
              (Names{"zevmenu_loader.js", "zevmenu_ns4.js"}));
}

TEST(ChangedRunTimeFilesTest, ThePageTemplateCountsOnlyWhereItIsCopied) {
    FakeFileSystem files = programAsBuilt();
    files.addFile("/program/zevmenu.html", "mine");
    EXPECT_EQ(changedIn(files, CopiedFiles::Scripts), Names{});
    EXPECT_EQ(changedIn(files, CopiedFiles::ScriptsAndPreviewPage), Names{"zevmenu.html"});
}

TEST(ChangedRunTimeFilesTest, MissingFilesAreLeftToTheCopy) {
    FakeFileSystem files = programAsBuilt();
    ASSERT_FALSE(files.DeleteFile("/program/zevmenu_dom.js"));
    EXPECT_EQ(changedIn(files, CopiedFiles::Scripts), Names{});
}

TEST(ChangedFilesTextTest, NamesFolderAndFiles) {
    EXPECT_EQ(changedFilesText("/program", {}), "");
    EXPECT_EQ(changedFilesText("/program", {"zevmenu_dom.js"}),
              "/program: not the files this program was built with: zevmenu_dom.js");
    EXPECT_EQ(changedFilesText("/program", {"a.js", "b.js"}),
              "/program: not the files this program was built with: a.js, b.js");
}

}  // namespace
}  // namespace zev
