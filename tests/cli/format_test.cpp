// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

class FormatTest : public testing::Test {
  protected:
    ProgramResult run(const std::vector<std::string>& arguments, const std::string& input = {}) {
        return runZevmenu(arguments, folder.path(), input);
    }
    TempFolder folder;
};

TEST_F(FormatTest, WritesAFileOfTheProgramsOwnAsItIs) {
    makeFile(folder / "in.js", kSmallDefinition);
    const ProgramResult result = run({"format", "in.js"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, kSmallDefinition);
    EXPECT_EQ(result.problems, "");
}

TEST_F(FormatTest, KeepsTheOptionalDefaultsAsTheyAre) {
    std::string definition = kSmallDefinition;
    definition.insert(definition.find("\r\n\r\n") + 2,
                      "zev_state.marker = '<b>+</b>';\r\n"
                      "zev_state.fold = 640;\r\n"
                      "zev_state.opendelay = 0;\r\n"
                      "zev_state.label = 'Bob\\'s shop';\r\n");
    const ProgramResult result = run({"format", "-"}, definition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, definition);
    EXPECT_EQ(result.problems, "");
}

TEST_F(FormatTest, TakesHandWrittenLinesIntoTheProgramsForm) {
    std::string handWritten = kSmallDefinition;
    for (std::size_t at = 0; (at = handWritten.find("\r\n", at)) != std::string::npos;)
        handWritten.replace(at, 2, "\n  ");
    const ProgramResult result = run({"format", "-"}, "// my menu\n" + handWritten);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, kSmallDefinition);
}

TEST_F(FormatTest, WritesToStandardOutputForADashAndToAFileForAName) {
    EXPECT_EQ(run({"format", "-", "-o", "-"}, kSmallDefinition).output, kSmallDefinition);
    const ProgramResult result = run({"format", "-", "--output", "out.js"}, kSmallDefinition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(contentOf(folder / "out.js"), kSmallDefinition);
}

TEST_F(FormatTest, MayReplaceItsOwnInput) {
    makeFile(folder / "in.js", "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\n");
    const std::string expected = run({"format", "in.js"}).output;
    const ProgramResult result = run({"format", "in.js", "-o", "in.js"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(contentOf(folder / "in.js"), expected);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"in.js"});
}

TEST_F(FormatTest, CountsErrorsInTheEditorsWordsAndWritesTheRest) {
    const std::string oneError =
        "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\n"
        "zevmenu = new ZEVMenu('7');\nzevmenu.columns = 2;\n";
    ProgramResult result = run({"format", "-"}, oneError);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "1 errors encountered during parsing\n");
    EXPECT_NE(result.output.find("zevmenu.AddItem('A', '', '');"), std::string::npos);
    result = run({"format", "-", "-o", "out.js"}, oneError + "zevmenu.AddItem('B', '', '');\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "2 errors encountered during parsing\n");
    EXPECT_EQ(contentOf(folder / "out.js"), run({"format", "out.js"}).output);
}

TEST_F(FormatTest, WritesTextOutsideAsciiAsUtf8WithAByteOrderMark) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string head = "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('";
    const std::string tail = "', '', '');\n";
    const std::string utf8 = run({"format", "-"}, head + "K\xC3\xA4se" + tail).output;
    const std::string codePage = run({"format", "-"}, head + "K\xE4se" + tail).output;
    EXPECT_TRUE(utf8.starts_with(mark));
    EXPECT_NE(utf8.find("'K\xC3\xA4se'"), std::string::npos);
    EXPECT_EQ(utf8, codePage);
    EXPECT_EQ(run({"format", "-"}, utf8).output, utf8);
}

TEST_F(FormatTest, AnEmptyInputIsAnEmptyMenu) {
    const ProgramResult result = run({"format", "-"}, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("zev_state.columns = 1;\r\n"));
    EXPECT_EQ(result.output.find("ZEVMenu"), std::string::npos);
}

TEST_F(FormatTest, OutputThatCannotBeWrittenIsNamedAndTheOldFileStays) {
    makeFile(folder / "in.js", kSmallDefinition);
    std::filesystem::create_directory(folder / "sub");
    struct Case {
        const char* output;
        const char* problem;
    };
    const Case cases[] = {
        {"sub", "zevmenu: sub: Is a directory\n"},
        {"no/out.js", "zevmenu: no/out.js: No such file or directory\n"},
        {"/dev/full", "zevmenu: /dev/full: No space left on device\n"},
    };
    for (const Case& c : cases) {
        const ProgramResult result = run({"format", "in.js", "-o", c.output});
        EXPECT_EQ(result.status, 3) << c.output;
        EXPECT_EQ(result.problems, c.problem);
    }
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"in.js", "sub"}));
}

TEST_F(FormatTest, RefusesAPipeOrDeviceAtOnce) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("pipe", folder / "link.js");
    struct Case {
        const char* input;
        const char* problem;
    };
    const Case cases[] = {
        {"pipe", "zevmenu: pipe: Is a pipe\n"},
        {"link.js", "zevmenu: link.js: Is a pipe\n"},
        {"/dev/zero", "zevmenu: /dev/zero: Is a device\n"},
    };
    for (const Case& c : cases) {
        const ProgramResult result = run({"format", c.input});
        EXPECT_EQ(result.status, 3) << c.input;
        EXPECT_EQ(result.problems, c.problem);
    }
}

TEST_F(FormatTest, ReadsThePipesThatTheShellHandsOver) {
    makeFile(folder / "in.js", kSmallDefinition);
    for (const char* const path : {"-", "/dev/stdin", "/dev/fd/0", "/dev/fd/7"}) {
        const std::string script = "cat in.js | { exec 7<&0; exec " + std::string(ZEVMENU_PROGRAM) +
                                   " format " + path + "; }";
        const ProgramResult result = runProgramAt("/bin/sh", {"-c", script}, folder.path());
        EXPECT_EQ(result.status, 0) << path << ": " << result.problems;
        EXPECT_EQ(result.output, kSmallDefinition) << path;
    }
}

TEST_F(FormatTest, AFileBeyondTheUsersLimitIsAnErrorAndNotTheEnd) {
    makeFile(folder / "in.js", kSmallDefinition);
    makeFile(folder / "old.js", "old");
    for (const char* const output : {"new.js", "old.js"}) {
        const std::string script =
            "ulimit -f 1; exec " + std::string(ZEVMENU_PROGRAM) + " format in.js -o " + output;
        const ProgramResult result = runProgramAt("/bin/sh", {"-c", script}, folder.path());
        EXPECT_EQ(result.status, 3);
        EXPECT_EQ(result.problems, "zevmenu: " + std::string(output) + ": File too large\n");
    }
    EXPECT_EQ(contentOf(folder / "old.js"), "old");
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"in.js", "old.js"}));
}

TEST_F(FormatTest, WritesToThePlaceOfAnOpenStandardOutput) {
    const ProgramResult result = run({"format", "-", "-o", "/dev/stdout"}, kSmallDefinition);
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.output, kSmallDefinition);
}

TEST_F(FormatTest, TakesAVeryLongLineAndAVeryDeepMenu) {
    std::string longLine = "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('" +
                           std::string(50'000'000, 'x') + "', '', '');\n";
    makeFile(folder / "long.js", longLine);
    std::string deep = "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\n";
    std::string id = "1";
    for (int level = 0; level < 1000; ++level) {
        deep += "zevmenu = new ZEVMenu('" + id + "');\nzevmenu.AddItem('A', '', '');\n";
        id += "i1";
    }
    makeFile(folder / "deep.js", deep);
    EXPECT_EQ(run({"format", "long.js", "-o", "out.js"}).status, 0);
    EXPECT_GT(std::filesystem::file_size(folder / "out.js"), 50'000'000U);
    EXPECT_EQ(run({"format", "deep.js", "-o", "out.js"}).status, 0);
    EXPECT_NE(contentOf(folder / "out.js").find("ZEVMenu('" + id.substr(0, id.size() - 2) + "')"),
              std::string::npos);
}

/// With three items more than a menu can hold, the last in a menu that one of them opens.
std::string overfullDefinition() {
    std::string text = "zevmenu = new ZEVMenu('0');\n";
    for (int item = 0; item < 32769; ++item)
        text += "zevmenu.AddItem('', '', '');\n";
    return text + "zevmenu = new ZEVMenu('32768');\nzevmenu.AddItem('', '', '');\n";
}

TEST_F(FormatTest, DoesNotWriteAMenuThatLostItemsOntoItsInput) {
    const std::string overfull = overfullDefinition();
    makeFile(folder / "in.js", overfull);
    std::filesystem::create_symlink("in.js", folder / "link.js");
    std::filesystem::create_hard_link(folder / "in.js", folder / "hard.js");
    const std::string counted =
        "3 errors encountered during parsing\n"
        "zevmenu: in.js: 3 items left out; a menu holds 32767 at most\n";
    for (const std::string output : {"in.js", "./in.js", "link.js", "hard.js"}) {
        for (std::vector<std::string> arguments :
             {std::vector<std::string>{"format"},
              {"format", "--force"},
              {"rebase", "--from", "/site", "--to", "/site/sub"}}) {
            arguments.insert(arguments.end(), {"in.js", "-o", output});
            const ProgramResult result = run(arguments);
            EXPECT_EQ(result.status, 3);
            EXPECT_EQ(result.problems,
                      counted + "zevmenu: " + output +
                          ": not written, as it would lose the 3 items left out\n");
        }
    }
    EXPECT_EQ(run({"publish", "in.js", "."}).status, 3);
    EXPECT_EQ(contentOf(folder / "in.js"), overfull);
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"hard.js", "in.js", "link.js"}));
}

TEST_F(FormatTest, WritesAMenuThatLostItemsElsewhere) {
    makeFile(folder / "in.js", overfullDefinition());
    makeFile(folder / "out.js", "");
    const ProgramResult result = run({"format", "in.js", "-o", "out.js"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(run({"format", "in.js"}).output, contentOf(folder / "out.js"));
    EXPECT_EQ(run({"format", "out.js", "-o", "out.js"}).status, 0);
}

TEST_F(FormatTest, KnowsItsInputAlsoAsStandardInput) {
    makeFile(folder / "in.js", overfullDefinition());
    const std::string program = ZEVMENU_PROGRAM;
    const ProgramResult result = runProgramAt(
        "/bin/sh", {"-c", "'" + program + "' format - -o in.js < in.js"}, folder.path());
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.problems.find("zevmenu: standard input: 3 items left out"), std::string::npos)
        << result.problems;
    EXPECT_EQ(contentOf(folder / "in.js"), overfullDefinition());
}

constexpr const char* kLosesALine =
    "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('A', '', '');\nzevmenu.AddItem('It's', '', "
    "'');\n";

TEST_F(FormatTest, NamesLinesThatAreNotUnderstoodAndWritesTheRest) {
    makeFile(folder / "in.js", kLosesALine);
    const ProgramResult result = run({"format", "in.js", "-o", "out.js"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "in.js:3: it is not a line that a menu has\n");
    EXPECT_NE(contentOf(folder / "out.js").find("AddItem('A'"), std::string::npos);
}

TEST_F(FormatTest, DoesNotLoseLinesFromItsInputWithoutForce) {
    const std::string countsAnError =
        "zevmenu = new ZEVMenu('0');\nzevmenu = new ZEVMenu('7');\nzevmenu.columns = 2;\n";
    const std::string page = "<html>\n<body>no menu</body>\n</html>\n";
    struct Case {
        std::string text;
        std::string problems;
    };
    const Case cases[] = {
        {kLosesALine, "in.js:3: it is not a line that a menu has\n"},
        {countsAnError,
         "1 errors encountered during parsing\nin.js:3: no item opens the menu it belongs to\n"},
        {page, "zevmenu: in.js: nothing of a menu was found in it\n"}};
    for (const Case& c : cases) {
        makeFile(folder / "in.js", c.text);
        const ProgramResult result = run({"format", "in.js", "-o", "./in.js"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(
            result.problems,
            c.problems +
                "zevmenu: ./in.js: not written, as it would lose these lines; --force does\n");
        EXPECT_EQ(contentOf(folder / "in.js"), c.text);
        EXPECT_EQ(run({"format", "--force", "in.js", "-o", "in.js"}).status, 1);
        EXPECT_EQ(run({"format", "--check", "in.js"}).status, 0) << contentOf(folder / "in.js");
    }
}

TEST_F(FormatTest, AFileOfDefaultsOnlyIsAMenuAndOneOfCommentsIsNone) {
    EXPECT_EQ(run({"format", "-"}, "zev_state.columns = 2;\n").status, 0);
    EXPECT_EQ(run({"format", "-"}, "// zev_state.columns = 2;\n").status, 1);
    EXPECT_EQ(run({"format", "-"}, "zevmenu.AddItem('A');\n").status, 1);
}

TEST_F(FormatTest, CheckPrintsTheLinesThatWouldChangeAndWritesNothing) {
    std::string definition = kSmallDefinition;
    definition.replace(definition.find("= 500"), 5, "= 1200");
    definition.insert(0, "// my menu\r\n");
    makeFile(folder / "in.js", definition);
    const ProgramResult result = run({"format", "--check", "in.js"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              "in.js:1: -// my menu\n"
              "in.js:8: -zev_state.closedelay = 1200;\n"
              "in.js:8: +zev_state.closedelay = 500;\n");
    EXPECT_EQ(contentOf(folder / "in.js"), definition);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"in.js"});
}

TEST_F(FormatTest, CheckIsSilentWhenNothingWouldChange) {
    const ProgramResult result = run({"format", "--check", "-"}, kSmallDefinition);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.problems, "");
}

TEST_F(FormatTest, CheckSeesLineEndsToo) {
    std::string unixLines = kSmallDefinition;
    std::erase(unixLines, '\r');
    const ProgramResult result = run({"format", "--check", "-"}, unixLines);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "-: only spaces, line ends or the encoding would change\n");
}

TEST_F(FormatTest, CheckGoesWithNeitherOutputNorForce) {
    EXPECT_EQ(run({"format", "--check", "-", "-o", "out.js"}).status, 2);
    EXPECT_EQ(run({"format", "--check", "--force", "-"}).status, 2);
}

}  // namespace
}  // namespace zev::test
