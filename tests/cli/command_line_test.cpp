// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

// What holds for every command: arguments, help, version, exit status.

namespace zev::test {
namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLineTest, WrongUseHasStatusTwoAndWritesNothing) {
    const TempFolder folder;
    makeFile(folder / "in.js", kSmallDefinition);
    const Arguments cases[] = {
        {},
        {"unknown"},
        {"format"},
        {"format", "in.js", "in.js"},
        {"format", "in.js", "--unknown"},
        {"format", "in.js", "-o"},
        {"format", "in.js", "-o", "a.js", "-o", "b.js"},
        {"import"},
        {"import", "in.js"},
        {"import", "--format", "orletbar"},
        {"import", "--format", "in.js"},
        {"import", "--format", "", "in.js"},
        {"import", "--format", "OrletBar", "in.js"},
        {"import", "--format", "1", "in.js"},
        {"import", "--format", "orletbar", "--format", "orletbar", "in.js"},
        {"import", "--format", "orletbar", "in.js", "-o", ""},
        {"rebase", "in.js"},
        {"rebase", "--from", "/a", "in.js"},
        {"rebase", "--from", "/a", "--to", "C:\\a", "in.js"},
        {"rebase", "--from", "C:", "--to", "/a", "in.js"},
        {"rebase", "--from", "a", "--to", "C:", "in.js"},
        {"rebase", "--from", "", "--to", "/a", "in.js"},
        {"rebase", "--from", "/a", "--to", "", "in.js"},
        {"format", "in.js", "-o", ""},
        {"format", ""},
        {"submenus"},
        {"submenus", "in.js", "-o", "a.js"},
        {"publish", "in.js"},
        {"publish", "-", "."},
        {"publish", "in.js", ""},
        {"linkcode"},
        {"linkcode", "--definition", ""},
        {"linkcode", "--definition", "m.js", "in.js"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)"},
        {"linkcode", "--definition", "m.js", "--popup", "A", "--mouse"},
        {"linkcode", "--definition", "m.js", "--popup", "A ()", "--mouse"},
        {"linkcode", "--definition", "m.js", "--mouse"},
        {"linkcode", "--definition", "m.js", "--at", "1,2"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)", "--mouse", "--at", "1,2"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)", "--at", "1"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)", "--at", "1,2,3"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)", "--at", "1,x"},
        {"linkcode", "--definition", "m.js", "--popup", "A (1)", "--at", "1.5,2"},
        {"integrate", "--definition", "m.js", "--library", "lib"},
        {"integrate", "--definition", "m.js", "in.js"},
        {"integrate", "--library", "lib", "in.js"},
        {"integrate", "--definition", "m.js", "--library", "", "in.js"},
        {"integrate", "--definition", "", "--library", "lib", "in.js"},
        {"integrate", "--definition", "m.js", "--library", "lib", "--report", "", "in.js"},
        {"integrate", "--definition", "m.js", "--library", "lib", "in.js", ""},
        {"integrate", "--definition", "m.js", "--library", "lib", "--popup", "A (1)", "in.js"},
        {"-o", "a.js", "format", "in.js"},
    };
    for (const Arguments& arguments : cases) {
        const ProgramResult result = runZevmenu(arguments, folder.path());
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.output, "") << testing::PrintToString(arguments);
        EXPECT_NE(result.problems, "") << testing::PrintToString(arguments);
    }
    EXPECT_EQ(namesIn(folder.path()), Arguments{"in.js"});
}

TEST(CommandLineTest, HelpOfACommandIsWhatItsOptionPrints) {
    const TempFolder folder;
    const auto run = [&folder](const Arguments& words) { return runZevmenu(words, folder.path()); };
    for (const char* const command : {"format", "integrate", "help"})
        EXPECT_EQ(run({"help", command}).output, run({command, "--help"}).output);
    const ProgramResult all = run({"help"});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.output, run({"--help"}).output);
    EXPECT_NE(all.output.find("Subcommands:"), std::string::npos);
    const Arguments wrongUses[] = {{"help", "unknown"}, {"help", "format", "import"}};
    for (const Arguments& wrong : wrongUses) {
        const ProgramResult result = run(wrong);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.problems, "");
    }
}

TEST(CommandLineTest, HelpAndVersionAreEverywhereAndGoToStandardOutput) {
    const TempFolder folder;
    for (const char* const command :
         {"", "format", "import", "rebase", "submenus", "publish", "linkcode", "integrate"}) {
        Arguments arguments;
        if (*command != '\0')
            arguments.push_back(command);
        arguments.push_back("--version");
        ProgramResult result = runZevmenu(arguments, folder.path());
        EXPECT_EQ(result.status, 0) << command;
        EXPECT_EQ(result.output, "zevmenu " ZEVMENU_VERSION "\n") << command;
        for (const char* const option : {"--help", "-h"}) {
            arguments.back() = option;
            result = runZevmenu(arguments, folder.path());
            EXPECT_EQ(result.status, 0) << command;
            EXPECT_NE(result.output.find("Usage: zevmenu"), std::string::npos) << command;
            EXPECT_NE(result.output.find("Exit status: 0 done"), std::string::npos) << command;
            EXPECT_EQ(result.problems, "") << command;
        }
    }
}

TEST(CommandLineTest, InputThatCannotBeReadHasStatusThreeAndNamesFileAndReason) {
    const TempFolder folder;
    makeFile(folder / "binary.js", std::string("zevmenu\0", 8));
    makeFile(folder / "zeros.js", "");
    std::filesystem::resize_file(folder / "zeros.js", std::uintmax_t{2} << 30);
    struct Case {
        const char* input;
        const char* problem;
    };
    const Case cases[] = {
        {"missing.js", "zevmenu: missing.js: No such file or directory\n"},
        {".", "zevmenu: .: Is a directory\n"},
        {"binary.js", "zevmenu: binary.js: is not a text file\n"},
        {"zeros.js", "zevmenu: zeros.js: larger than 256 MiB, which no menu definition is\n"},
        {"/dev/zero", "zevmenu: /dev/zero: Is a device\n"},
    };
    for (const Case& c : cases) {
        const Arguments commands[] = {{"format", c.input, "-o", "out.js"},
                                      {"import", "--format", "orletbar", c.input, "-o", "out.js"},
                                      {"rebase", "--from", "/a", "--to", "/b", c.input},
                                      {"submenus", c.input},
                                      {"publish", c.input, "."}};
        for (const Arguments& arguments : commands) {
            const ProgramResult result = runZevmenu(arguments, folder.path());
            EXPECT_EQ(result.status, 3) << testing::PrintToString(arguments);
            EXPECT_EQ(result.problems, c.problem) << testing::PrintToString(arguments);
            EXPECT_EQ(result.output, "");
        }
    }
    EXPECT_EQ(namesIn(folder.path()), (Arguments{"binary.js", "zeros.js"}));
}

TEST(CommandLineTest, InputThatMayNotBeReadIsNamedWithTheReason) {
    const TempFolder folder;
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0755});
    const std::string input = folder / "in.js";
    makeFile(input, kSmallDefinition);
    std::filesystem::permissions(input, std::filesystem::perms::none);
    const ProgramResult result =
        runProgramAt(ZEVMENU_AS_ORDINARY_USER, {ZEVMENU_PROGRAM, "submenus", input}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: " + input + ": Permission denied\n");
}

TEST(CommandLineTest, ARelativePathNeedsACurrentFolder) {
    struct Case {
        Arguments arguments;
        const char* path;
    };
    const Case cases[] = {
        {{"rebase", "--from", "a", "--to", "/b", "-"}, "a"},
        {{"rebase", "--from", "/a", "--to", "b", "-"}, "b"},
        {{"integrate", "--definition", "m.js", "--library", "/lib", "/p.htm"}, "m.js"},
        {{"integrate", "--definition", "/m.js", "--library", "lib", "/p.htm"}, "lib"},
        {{"integrate", "--definition", "/m.js", "--library", "/lib", "p.htm"}, "p.htm"},
    };
    for (const Case& c : cases) {
        const TempFolder folder;
        Arguments arguments{"-c", "mkdir gone && cd gone && rmdir ../gone && exec \"$0\" \"$@\"",
                            ZEVMENU_PROGRAM};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const ProgramResult result =
            runProgramAt("/bin/sh", arguments, folder.path(), kSmallDefinition);
        EXPECT_EQ(result.status, 3) << c.path;
        EXPECT_EQ(result.problems,
                  "zevmenu: " + std::string(c.path) + ": No such file or directory\n");
        EXPECT_EQ(result.output, "");
    }
}

TEST(CommandLineTest, StandardInputThatCannotBeReadIsNamed) {
    const TempFolder folder;
    const ProgramResult result = runZevmenu({"format", "-"}, folder.path(), std::string("a\0b", 3));
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: standard input: is not a text file\n");
}

TEST(CommandLineTest, EndlessStandardInputIsReadToALimit) {
    const TempFolder folder;
    const std::string script = "exec " ZEVMENU_PROGRAM " format - </dev/zero";
    const ProgramResult result = runProgramAt("/bin/sh", {"-c", script}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems,
              "zevmenu: standard input: larger than 256 MiB, which no menu definition is\n");
}

TEST(CommandLineTest, OutputThatCannotBeWrittenHasStatusThree) {
    const TempFolder folder;
    makeFile(folder / "in.js", kSmallDefinition);
    struct Case {
        OutputTo outputTo;
        const char* problem;
    };
    const Case cases[] = {
        {OutputTo::FullDisk, "zevmenu: standard output: No space left on device\n"},
        {OutputTo::ClosedPipe, "zevmenu: standard output: Broken pipe\n"},
        {OutputTo::Nothing, "zevmenu: standard output: Bad file descriptor\n"},
    };
    const Arguments commands[] = {{"format", "in.js"},
                                  {"import", "--format", "orletbar", "in.js"},
                                  {"rebase", "--from", "/a", "--to", "/b", "in.js"},
                                  {"submenus", "in.js"},
                                  {"linkcode", "--definition", "m.js"},
                                  {"--version"},
                                  {"format", "--help"}};
    for (const Case& c : cases) {
        for (const Arguments& arguments : commands) {
            const ProgramResult result = runZevmenu(arguments, folder.path(), "", c.outputTo);
            EXPECT_EQ(result.status, 3) << testing::PrintToString(arguments);
            EXPECT_EQ(result.problems, c.problem) << testing::PrintToString(arguments);
        }
    }
}

// As on a network drive, which may tell only then that there is no room.
TEST(CommandLineTest, OutputThatFailsWhenItIsClosedHasStatusThree) {
    const TempFolder folder;
    const std::string command =
        "export ASAN_OPTIONS=detect_leaks=0; exec strace -qq -o trace -P \"$PWD/out\" "
        "-e trace=close -e inject=close:error=EIO \"$0\" format - > out";
    const ProgramResult result =
        runProgramAt("/bin/sh", {"-c", command, ZEVMENU_PROGRAM}, folder.path(), kSmallDefinition);
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: standard output: Input/output error\n");
    EXPECT_EQ(contentOf(folder / "out"), kSmallDefinition);
}

TEST(CommandLineTest, NamesThatLookLikeOptionsFollowADoubleDash) {
    const TempFolder folder;
    makeFile(folder / "-o", kSmallDefinition);
    const ProgramResult result = runZevmenu({"submenus", "--", "-o"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.output, "Products (2)\n");
}

TEST(CommandLineTest, AFileMayBeNamedLikeACommand) {
    const TempFolder folder;
    makeFile(folder / "publish", kSmallDefinition);
    const ProgramResult result = runZevmenu({"submenus", "publish"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
}

}  // namespace
}  // namespace zev::test
