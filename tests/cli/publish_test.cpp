// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

using Names = std::vector<std::string>;

const Names kScripts{"zevmenu_dom.js", "zevmenu_loader.js", "zevmenu_ns4.js"};

class PublishTest : public testing::Test {
  protected:
    void SetUp() override {
        makeFile(folder / "menu.js", kSmallDefinition);
        std::filesystem::create_directory(folder / "site");
    }
    ProgramResult run(const std::vector<std::string>& arguments) {
        return runZevmenu(arguments, folder.path());
    }
    TempFolder folder;
};

TEST_F(PublishTest, WritesTheDefinitionAndTheRunTimeScriptsIntoTheFolder) {
    const ProgramResult result = run({"publish", "menu.js", "site"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.problems, "");
    EXPECT_EQ(contentOf(folder / "site/menu.js"), kSmallDefinition);
    for (const std::string& name : kScripts)
        EXPECT_EQ(contentOf(folder / "site/" + name), contentOf(ZEVMENU_RUNTIME "/" + name));
    EXPECT_EQ(namesIn(folder / "site").size(), 4U);
}

TEST_F(PublishTest, ReplacesOlderFiles) {
    makeFile(folder / "site/menu.js", "old");
    makeFile(folder / "site/zevmenu_dom.js", "old");
    EXPECT_EQ(run({"publish", "menu.js", "site/"}).status, 0);
    EXPECT_EQ(contentOf(folder / "site/menu.js"), kSmallDefinition);
    EXPECT_EQ(contentOf(folder / "site/zevmenu_dom.js"),
              contentOf(ZEVMENU_RUNTIME "/zevmenu_dom.js"));
}

TEST_F(PublishTest, OnlyTheDefinitionIsWrittenThroughALink) {
    for (const char* const name : {"precious", "named"})
        makeFile(folder / name, "mine");
    for (const std::string& name : kScripts)
        std::filesystem::create_symlink("../precious", folder / "site/" + name);
    std::filesystem::create_symlink("../named", folder / "site/menu.js");
    const ProgramResult result = run({"publish", "menu.js", "site"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(contentOf(folder / "precious"), "mine");
    EXPECT_EQ(contentOf(folder / "named"), kSmallDefinition);
    for (const std::string& name : kScripts) {
        EXPECT_FALSE(std::filesystem::is_symlink(folder / "site/" + name)) << name;
        EXPECT_EQ(contentOf(folder / "site/" + name), contentOf(ZEVMENU_RUNTIME "/" + name));
    }
}

TEST_F(PublishTest, IntoItsOwnFolderRewritesTheDefinitionAsTheEditorWould) {
    makeFile(folder / "menu.js", "// mine\n" + kSmallDefinition);
    EXPECT_EQ(run({"publish", "menu.js", "."}).status, 0);
    EXPECT_EQ(contentOf(folder / "menu.js"), kSmallDefinition);
    EXPECT_EQ(namesIn(folder.path()).size(), 5U);
}

TEST_F(PublishTest, AFoldersNameMayHoldABackslash) {
    std::filesystem::create_directory(folder / "odd\\site");
    EXPECT_EQ(run({"publish", "menu.js", "odd\\site"}).status, 0);
    EXPECT_EQ(contentOf(folder / "odd\\site/menu.js"), kSmallDefinition);
}

TEST_F(PublishTest, MakesTheFolderWhenTheOneAboveIsThere) {
    for (const char* const name : {"new", "site/js/", "./dot"}) {
        const ProgramResult result = run({"publish", "menu.js", name});
        EXPECT_EQ(result.status, 0) << name << result.problems;
        EXPECT_EQ(contentOf(folder / name + "/menu.js"), kSmallDefinition) << name;
    }
    EXPECT_EQ(namesIn(folder / "site"), Names{"js"});
}

TEST_F(PublishTest, MakesNoFolderForADefinitionThatCannotBeRead) {
    EXPECT_EQ(run({"publish", "missing.js", "new"}).status, 3);
    EXPECT_EQ(namesIn(folder.path()), (Names{"menu.js", "site"}));
}

TEST_F(PublishTest, NeedsTheFolderAboveItsOwn) {
    struct Case {
        const char* folder;
        const char* problem;
    };
    const Case cases[] = {{"nowhere/site", "zevmenu: nowhere: is not a folder\n"},
                          {"menu.js/site", "zevmenu: menu.js: is not a folder\n"},
                          {"menu.js", "zevmenu: menu.js: is not a folder\n"}};
    for (const Case& c : cases) {
        const ProgramResult result = run({"publish", "menu.js", c.folder});
        EXPECT_EQ(result.status, 3);
        EXPECT_EQ(result.problems, c.problem);
    }
    EXPECT_EQ(namesIn(folder.path()), (Names{"menu.js", "site"}));
}

TEST_F(PublishTest, RefusesADefinitionNamedLikeARunTimeFile) {
    makeFile(folder / "zevmenu_dom.js", kSmallDefinition);
    const ProgramResult result = run({"publish", "zevmenu_dom.js", "site"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.problems,
              "zevmenu: zevmenu_dom.js: has the name of a run-time file that goes beside it\n");
    EXPECT_EQ(namesIn(folder / "site"), Names{});
}

TEST_F(PublishTest, RefusesADefinitionNamedLikeAPreviewFileOrLinkedToAScript) {
    makeFile(folder / "orlet_temp.js", kSmallDefinition);
    EXPECT_EQ(run({"publish", "orlet_temp.js", "site"}).status, 2);
    EXPECT_EQ(namesIn(folder / "site"), Names{});
    ASSERT_EQ(run({"publish", "menu.js", "site"}).status, 0);
    std::filesystem::remove(folder / "site/menu.js");
    std::filesystem::create_symlink("zevmenu_dom.js", folder / "site/menu.js");
    EXPECT_EQ(run({"publish", "menu.js", "site"}).status, 2);
    EXPECT_EQ(contentOf(folder / "site/zevmenu_dom.js"),
              contentOf(ZEVMENU_RUNTIME "/zevmenu_dom.js"));
}

TEST_F(PublishTest, KeepsSomebodysFileByTheNameOfAScript) {
    makeFile(folder / "site/zevmenu_dom.js", "mine");
    makeFile(folder / "site/zevmenu_ns4.js", "(function(){//ZEVMenu\nold");
    EXPECT_EQ(run({"publish", "menu.js", "site"}).status, 0);
    EXPECT_EQ(contentOf(folder / "site/zevmenu_dom.js.bak"), "mine");
    EXPECT_EQ(run({"publish", "menu.js", "site"}).status, 0);
    EXPECT_EQ(namesIn(folder / "site"), (Names{"menu.js", "zevmenu_dom.js", "zevmenu_dom.js.bak",
                                               "zevmenu_loader.js", "zevmenu_ns4.js"}));
}

TEST_F(PublishTest, WritesTheDefinitionThoughAScriptIsMissing) {
    std::filesystem::create_directory(folder / "bin");
    const std::string program = folder / "bin/zevmenu";
    std::filesystem::copy_file(ZEVMENU_PROGRAM, program);
    for (const char* const name : {"zevmenu_loader.js", "zevmenu_dom.js"})
        std::filesystem::copy_file(std::string(ZEVMENU_RUNTIME "/") + name, folder / "bin/" + name);
    const ProgramResult result =
        runProgramAt(program, {"publish", "menu.js", "site"}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems,
              "zevmenu: Error: " + (folder / "bin/zevmenu_ns4.js") + " does not exist\n");
    EXPECT_EQ(namesIn(folder / "site"), (Names{"menu.js", "zevmenu_dom.js", "zevmenu_loader.js"}));
}

TEST_F(PublishTest, FindsTheScriptsOfASystemWideInstallation) {
    std::filesystem::create_directories(folder / "usr/bin");
    std::filesystem::create_directories(folder / "usr/share/zevmenu-creator");
    const std::string program = folder / "usr/bin/zevmenu";
    std::filesystem::copy_file(ZEVMENU_PROGRAM, program);
    for (const std::string& name : kScripts)
        makeFile(folder / "usr/share/zevmenu-creator/" + name, "installed " + name);
    const ProgramResult result =
        runProgramAt(program, {"publish", "menu.js", "site"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(contentOf(folder / "site/zevmenu_ns4.js"), "installed zevmenu_ns4.js");
    EXPECT_EQ(result.problems,
              "zevmenu: " + (folder / "usr/share/zevmenu-creator") +
                  ": not the files this program was built with: zevmenu_loader.js, "
                  "zevmenu_dom.js, zevmenu_ns4.js\n");
}

TEST_F(PublishTest, SaysWhenNothingIsInstalledAndStillWritesTheDefinition) {
    std::filesystem::create_directories(folder / "usr/bin");
    const std::string program = folder / "usr/bin/zevmenu";
    std::filesystem::copy_file(ZEVMENU_PROGRAM, program);
    const ProgramResult result =
        runProgramAt(program, {"publish", "menu.js", "site"}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems,
              "zevmenu: Error: " + (folder / "usr/share/zevmenu-creator/zevmenu_loader.js") +
                  " does not exist\n");
    EXPECT_EQ(contentOf(folder / "site/menu.js"), kSmallDefinition);
}

TEST_F(PublishTest, NamesAScriptThatCouldNotBeReplaced) {
    std::filesystem::create_directory(folder / "site/zevmenu_dom.js");
    const ProgramResult result = run({"publish", "menu.js", "site"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems,
              "zevmenu: Error: site/zevmenu_dom.js not saved. Please check path permissions "
              "(Is a directory)\n");
    EXPECT_EQ(contentOf(folder / "site/menu.js"), kSmallDefinition);
}

TEST_F(PublishTest, CountsErrorsAndPublishesTheRest) {
    makeFile(folder / "menu.js",
             kSmallDefinition + "zevmenu = new ZEVMenu('9');\nzevmenu.x = 1;\n");
    const ProgramResult result = run({"publish", "menu.js", "site"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "1 errors encountered during parsing\n");
    EXPECT_EQ(contentOf(folder / "site/menu.js"), kSmallDefinition);
}

}  // namespace
}  // namespace zev::test
