// SPDX-License-Identifier: MIT
#include "library/own_files.h"

#include <gtest/gtest.h>

#include "library/library_files.h"
#include "platform/fake/fake_file_system.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

TEST(IsOwnFileTest, KnowsTheFilesOfTheBuildByTheirFirstLine) {
    for (const char* const name :
         {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js", "zevmenu.html"}) {
        std::string bytes = test::contentOf(std::string(ZEVMENU_RUNTIME "/") + name);
        EXPECT_TRUE(isOwnFile(bytes)) << name;
        EXPECT_TRUE(isOwnFile(bytes + "of another version")) << name;
        EXPECT_FALSE(isOwnFile("\n" + bytes)) << name;
        EXPECT_FALSE(isOwnFile(bytes.substr(bytes.find('\n')))) << name;
    }
}

TEST(IsOwnFileTest, KnowsTheFilesGivenOutWithoutThatLine) {
    const std::string bytes = test::contentOf(ZEVMENU_TEST_DATA "/library/unmarked_ns4.js");
    EXPECT_TRUE(isOwnFile(bytes));
    EXPECT_FALSE(isOwnFile(bytes + " "));
    EXPECT_FALSE(isOwnFile(bytes.substr(1)));
}

TEST(IsOwnFileTest, ALineEndOfAnotherSystemIsNoDifference) {
    EXPECT_TRUE(isOwnFile("(function(){//ZEVMenu\r\nold"));
    EXPECT_TRUE(isOwnFile("(function(){//ZEVMenu"));
}

TEST(IsOwnFileTest, AnythingElseIsSomebodys) {
    for (const char* const bytes :
         {"", "old", "(function(){//ZEVMenu, mine\n", "<!DOCTYPE html>\n"})
        EXPECT_FALSE(isOwnFile(bytes)) << bytes;
}

bool isReserved(const FakeFileSystem& files, const char* path) {
    return hasReservedName(files, Path(path));
}

TEST(HasReservedNameTest, KnowsTheNamesOfRunTimeAndPreviewFiles) {
    FakeFileSystem files;
    files.addFolder("/site");
    for (const char* const path :
         {"/site/zevmenu_loader.js", "/site/zevmenu_ns4.js", "/site/zevmenu_dom.js",
          "/site/zevmenu.html", "/site/orlet_temp.html", "/site/orlet_temp.js", "zevmenu_dom.js",
          "C:\\site\\zevmenu_dom.js"})
        EXPECT_TRUE(isReserved(files, path)) << path;
    for (const char* const path : {"/site/menu.js", "/site/zevmenu.js", "/site/zevmenu_dom.js.bak",
                                   "/zevmenu_dom.js/menu.js", "/site/ZEVMENU_DOM.JS"})
        EXPECT_FALSE(isReserved(files, path)) << path;
}

TEST(HasReservedNameTest, KnowsThemInAnyCaseWhereTheDiskDoesNotTellCasesApart) {
    FakeFileSystem files;
    files.addFile("/site/Page1.htm", "");
    EXPECT_FALSE(isReserved(files, "/site/Zevmenu_DOM.js"));
    files.addFileAlias("/site/Page1.htm", "/site/pAGE1.HTM");
    EXPECT_TRUE(isReserved(files, "/site/Zevmenu_DOM.js"));
    EXPECT_FALSE(isReserved(files, "/site/Menu.js"));
}

TEST(HasReservedNameTest, KnowsALinkToSuchAFile) {
    FakeFileSystem files;
    files.addFile("/site/zevmenu_dom.js", "library");
    files.addFile("/site/menu.js", "mine");
    files.addFileAlias("/site/zevmenu_dom.js", "/site/link.js");
    EXPECT_TRUE(isReserved(files, "/site/link.js"));
    EXPECT_FALSE(isReserved(files, "/site/menu.js"));
}

}  // namespace
}  // namespace zev
