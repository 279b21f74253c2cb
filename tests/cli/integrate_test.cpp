// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string kPage = "<html><head></head><body>text</body></html>\n";
const std::string kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";

/// `kPage` with the library at `url`.
std::string integrated(const std::string& url) {
    return "<html><head>" + kMarker + "<script language=\"JavaScript1.2\">var zev_path = '" + url +
           "';</script><script language=\"JavaScript1.2\" src=\"" + url +
           "zevmenu_loader.js\"></script></head>"
           "<body onload=\"ZEVLoadMenu();\" onresize=\"ZEVLoadMenu();\">text" +
           kMarker + "<script language=\"JavaScript1.2\">ZEVCreateMenu()</script></body></html>\n";
}

std::string successOf(const std::string& page) {
    return "Processing " + page +
           "\n"
           "Success: Menu library references added\n"
           "Success: Event handlers added\n"
           "Success: Menu creation code added\n"
           "Success: Menu integration successful\n"
           "\n";
}

std::string summaryOf(int doneCount, const Arguments& failedPages = {}) {
    std::string lines;
    for (const std::string& page : failedPages)
        lines += "Failed: " + page + "\n";
    return lines + std::to_string(doneCount) + " done, " + std::to_string(failedPages.size()) +
           " failed\n\n";
}

std::string codeFor(const std::string& folder, const std::string& url) {
    return "Code for the pages in " + folder + "\n\n<script language=\"JavaScript1.2\" src=\"" +
           url +
           "\"></script>\n"
           "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>\n\n";
}

ProgramResult integrate(const TempFolder& folder, const Arguments& more) {
    Arguments arguments{"integrate", "--definition", "menu.js", "--library", "lib"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runZevmenu(arguments, folder.path());
}

TEST(IntegrateTest, IntegratesThePageKeepsABackupAndPrintsReportAndCode) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    const ProgramResult result = integrate(folder, {"a.htm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              successOf(folder / "a.htm") + summaryOf(1) + codeFor(folder.path(), "menu.js"));
    EXPECT_TRUE(std::regex_match(
        result.problems, std::regex("zevmenu: run \\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d-1\n")))
        << result.problems;
    EXPECT_EQ(contentOf(folder / "a.htm"), integrated("lib/"));
    EXPECT_EQ(contentOf(folder / "a.htm.bak"), kPage);
    EXPECT_EQ(namesIn(folder.path()), (Arguments{"a.htm", "a.htm.bak"}));
}

TEST(IntegrateTest, URLsAreRelativeToEachPagesFolder) {
    const TempFolder folder;
    fs::create_directories(folder / "sub/deep");
    for (const char* const name : {"a.htm", "sub/b.htm", "sub/deep/c.htm", "d.htm"})
        makeFile(folder / name, kPage);
    const ProgramResult result = integrate(
        folder, {"--no-backup", "a.htm", "sub/b.htm", "sub/../sub/deep/./c.htm", folder / "d.htm"});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_EQ(contentOf(folder / "a.htm"), integrated("lib/"));
    EXPECT_EQ(contentOf(folder / "sub/b.htm"), integrated("../lib/"));
    EXPECT_EQ(contentOf(folder / "sub/deep/c.htm"), integrated("../../lib/"));
    EXPECT_EQ(contentOf(folder / "d.htm"), integrated("lib/"));
    EXPECT_EQ(result.output,
              successOf(folder / "a.htm") + successOf(folder / "sub/b.htm") +
                  successOf(folder / "sub/deep/c.htm") + successOf(folder / "d.htm") +
                  summaryOf(4) + codeFor(folder / "sub/deep", "../../menu.js") +
                  codeFor(folder / "sub", "../menu.js") + codeFor(folder.path(), "menu.js"));
}

TEST(IntegrateTest, TheLibraryMayBeAnyFolderOrAnAddress) {
    struct Case {
        const char* library;
        const char* url;
    };
    const Case cases[] = {
        {".", ""},
        {"lib/", "lib/"},
        {"../lib", "../lib/"},
        {"http://example.org/js/", "http://example.org/js/"},
        {"d:\\lib", "d:\\lib"},
    };
    for (const Case& c : cases) {
        const TempFolder folder;
        makeFile(folder / "a.htm", kPage);
        const ProgramResult result =
            runZevmenu({"integrate", "--definition", "menu.js", "--library", c.library, "a.htm"},
                       folder.path());
        EXPECT_EQ(result.status, 0) << result.problems;
        EXPECT_EQ(contentOf(folder / "a.htm"), integrated(c.url)) << c.library;
    }
}

TEST(IntegrateTest, HasStatusOneWhenAnyPageFailedAndDoesTheOthers) {
    const TempFolder folder;
    makeFile(folder / "a.htm", "text");
    makeFile(folder / "c.htm", kPage);
    const ProgramResult result = integrate(folder, {"a.htm", "b.htm", "c.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "Processing " + (folder / "a.htm") +
                                 "\n"
                                 "ERROR: Menu library references NOT added. <HEAD> not found.\n"
                                 "ERROR: Event handlers NOT added. <BODY> not found.\n"
                                 "ERROR: Menu creation code NOT added. </BODY> not found.\n"
                                 "ERROR: Menu integration failure\n"
                                 "\n"
                                 "ERROR: " +
                                 (folder / "b.htm") + " Not Found!\n\n" +
                                 successOf(folder / "c.htm") +
                                 summaryOf(1, {folder / "a.htm", folder / "b.htm"}) +
                                 codeFor(folder.path(), "menu.js"));
    EXPECT_EQ(contentOf(folder / "c.htm"), integrated("lib/"));
}

TEST(IntegrateTest, DryRunPrintsTheReportAndChangesNothing) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    const ProgramResult dry = integrate(folder, {"--dry-run", "a.htm"});
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
    EXPECT_EQ(namesIn(folder.path()), Arguments{"a.htm"});
    const ProgramResult real = integrate(folder, {"a.htm"});
    EXPECT_EQ(dry.output, real.output);
    EXPECT_EQ(dry.status, 0);
}

TEST(IntegrateTest, KeepsOtherScriptsWhenAsked) {
    const TempFolder folder;
    makeFile(folder / "a.htm", "<script>own()</script>\n");
    integrate(folder, {"--keep-scripts", "a.htm"});
    EXPECT_EQ(contentOf(folder / "a.htm"), "<script>own()</script>\n");
    integrate(folder, {"a.htm"});
    EXPECT_EQ(contentOf(folder / "a.htm"), "</script>\n");
}

TEST(IntegrateTest, ReportGoesToAFileAsTheEditorSavesIt) {
    const TempFolder folder;
    const ProgramResult result = integrate(folder, {"--report", "report.txt", "a.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(contentOf(folder / "report.txt"),
              "ERROR: " + (folder / "a.htm") + " Not Found!\r\n\r\nFailed: " + (folder / "a.htm") +
                  "\r\n0 done, 1 failed\r\n\r\n\r\n");
    EXPECT_EQ(result.output, codeFor(folder.path(), "menu.js"));
}

TEST(IntegrateTest, WithTheReportInAFileEachPageThatFailedIsNamed) {
    const TempFolder folder;
    makeFile(folder / "a.htm", "text");
    makeFile(folder / "b.htm", kPage);
    const ProgramResult result =
        integrate(folder, {"--report", "report.txt", "a.htm", "b.htm", "none.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(withoutRun(result.problems),
              "zevmenu: " + (folder / "a.htm") + ": failed; see the report\nzevmenu: " +
                  (folder / "none.htm") + ": failed; see the report\n");
    EXPECT_EQ(withoutRun(integrate(folder, {"--report", "report.txt", "b.htm"}).problems), "");
    EXPECT_EQ(withoutRun(integrate(folder, {"a.htm"}).problems), "");  // the report itself is shown
}

TEST(IntegrateTest, AReportThatCannotBeWrittenHasStatusThree) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    const ProgramResult result = integrate(folder, {"--report", "none/report.txt", "a.htm"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(withoutRun(result.problems), "zevmenu: none/report.txt: No such file or directory\n");
}

TEST(IntegrateTest, PrintsTheCodeOfAPopupMenu) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    const ProgramResult result =
        integrate(folder, {"--popup", "Products (2)", "--at", "10,20", "a.htm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              successOf(folder / "a.htm") + summaryOf(1) + "Code for the pages in " +
                  folder.path() +
                  "\n\n<script language=\"JavaScript1.2\" src=\"menu.js\"></script>\n"
                  "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '2', 10, 20)\">Menu</a>\n\n");
}

TEST(IntegrateTest, ThePageKeepsItsModeAndALinkStaysALink) {
    const TempFolder folder;
    makeFile(folder / "real.htm", kPage);
    fs::permissions(folder / "real.htm", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.htm", folder / "a.htm");
    const ProgramResult result = integrate(folder, {"--no-backup", "a.htm"});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_TRUE(fs::is_symlink(folder / "a.htm"));
    EXPECT_EQ(contentOf(folder / "real.htm"), integrated("lib/"));
    EXPECT_EQ(fs::status(folder / "real.htm").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(IntegrateTest, AFolderAmongThePagesIsReported) {
    const TempFolder folder;
    fs::create_directory(folder / "a.htm");
    const ProgramResult result = integrate(folder, {"a.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output.substr(0, result.output.find("Code for")),
              "Processing " + (folder / "a.htm") + "\nERROR: " + (folder / "a.htm") +
                  " not saved: Is a directory\n\n" + summaryOf(0, {folder / "a.htm"}));
}

TEST(IntegrateTest, NamesWithAnyCharactersWork) {
    const TempFolder folder;
    const std::string name = "a b\\c'\"\n\xC3\xA4\xFF.htm";
    makeFile(folder / name, kPage);
    const ProgramResult result = integrate(folder, {name});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_EQ(contentOf(folder / name), integrated("lib/"));
    EXPECT_EQ(contentOf(folder / (name + ".bak")), kPage);
}

TEST(IntegrateTest, PathsBecomeAddressesAndWhatWasTypedAsOneStays) {
    const TempFolder folder;
    const std::string site = "a#b/men\xC3\xBC";
    fs::create_directories(folder / site);
    makeFile(folder / "a.htm", kPage);
    ProgramResult result = runZevmenu(
        {"integrate", "--definition", site + "/m 1.js", "--library", site, "a.htm"}, folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(contentOf(folder / "a.htm"), integrated("a%23b/men%C3%BC/"));
    EXPECT_NE(result.output.find("src=\"a%23b/men%C3%BC/m%201.js\""), std::string::npos);
    result = runZevmenu({"integrate", "--definition", "http://x.example/m 1.js", "--library",
                         "http://x.example/a b/", "a.htm"},
                        folder.path());
    EXPECT_EQ(contentOf(folder / "a.htm"), integrated("http://x.example/a b/"));
}

TEST(IntegrateTest, RemovedScriptsAreNamedAndPagesOfFramesSkippedWhenAsked) {
    const TempFolder folder;
    const std::string frames = "<head><script>own()</script></head><frameset></frameset>\n";
    makeFile(folder / "a.htm", frames);
    ProgramResult result = integrate(folder, {"--skip-failing", "a.htm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(contentOf(folder / "a.htm"), frames);
    EXPECT_EQ(namesIn(folder.path()), Arguments{"a.htm"});
    EXPECT_NE(result.output.find("0 done, 0 failed, 1 skipped\n"), std::string::npos);
    EXPECT_EQ(result.problems, "") << "no page was changed, so there is no run";
    result = integrate(folder, {"a.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("\n\nRemoved: own()\n\nFailed: "), std::string::npos)
        << result.output;
}

}  // namespace
}  // namespace zev::test
