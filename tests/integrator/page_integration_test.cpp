// SPDX-License-Identifier: MIT
#include "integrator/page_integration.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "platform/fake/fake_file_system.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

const std::string kPage = "<html><head></head><body>text</body></html>";
const std::string kSuccessLines =
    "Success: Menu library references added\r\n"
    "Success: Event handlers added\r\n"
    "Success: Menu creation code added\r\n"
    "Success: Menu integration successful\r\n"
    "\r\n";

using Disk = std::map<std::string, std::string>;

TEST(CalculateURLTest, FullPathsBecomeRelativeAndOthersStay) {
    struct Case {
        const char* pagesFolder;
        const char* definition;
        const char* definitionURL;
        const char* library;
        const char* libraryURL;
    };
    const Case cases[] = {
        {"C:\\web", "C:\\web\\menu.js", "menu.js", "C:\\web\\lib", "lib/"},
        {"C:\\web\\sub", "C:\\web\\js\\menu.js", "../js/menu.js", "C:\\web", "../"},
        {"C:\\web", "  C:\\web\\menu.js ", "menu.js", "C:\\web", ""},
        {"C:\\web", "D:\\menu.js", "D:\\menu.js", "D:\\lib", "D:\\lib\\"},
        {"C:\\web", " js/menu.js ", "js/menu.js", " js ", "js"},
        {"C:\\web", "http://a.example/m.js", "http://a.example/m.js", "js/", "js/"},
        {"c:\\web", "c:\\web\\m.js", "c:\\web\\m.js", "c:\\web\\lib", "c:\\web\\lib"},
        {"C:\\web", "C:m.js", "C:m.js", "C:lib", "C:lib\\"},
        {"C:\\web", "", "", "", ""},
        {"C:\\web", "C:\\web\\menu.js", "menu.js", "C:\\web\\lib\\", "lib//"},
        {"C:\\web", "menu.js", "menu.js", "C:\\web\\lib ", "lib%20/"},
        {"C:\\web", "menu.js", "menu.js", " C:\\web\\lib", " C:\\web\\lib\\"},
        {"/web", "/web/menu.js", "menu.js", "/web/lib", "lib/"},
        {"/web/a/b", " /web/js/menu.js", "../../js/menu.js", "/web", "../../"},
        {"/web", "/web/menu.js", "menu.js", "/web", ""},
        {"/web", "/menu.js", "../menu.js", "/", "../"},
        {"/", "/js/menu.js", "js/menu.js", "/js", "js/"},
        {"/", "/menu.js", "menu.js", "/", ""},
        {"/web", "/web/menu.js", "menu.js", "/web/lib/", "lib/"},
        {"/web", "js\\menu.js", "js\\menu.js", "js", "js"},
        {"/web", "/web/a#b?/100%.js", "a%23b%3F/100%25.js", "/web/men\xC3\xBC \"'",
         "men%C3%BC%20%22%27/"},
        {"/a#b/c", "/a#b/-._~:@!$*+,;=().js", "../-._~:@!$*+,;=().js", "/a#b/<&>", "../%3C%26%3E/"},
        {"C:\\web", "C:\\web\\a#b\\m.js", "a%23b/m.js", "D:\\a#b", "D:\\a#b\\"},
        {"/web", "a#b/men\xC3\xBC.js", "a#b/men\xC3\xBC.js", "it's/ %/", "it's/ %/"},
    };
    for (const Case& c : cases) {
        const IntegrationURLs urls = CalculateURL(c.pagesFolder, c.definition, c.library);
        EXPECT_EQ(urls.definition, c.definitionURL) << c.pagesFolder << " " << c.definition;
        EXPECT_EQ(urls.library, c.libraryURL) << c.pagesFolder << " " << c.library;
    }
}

TEST(PagePathTest, JoinsWithTheFoldersOwnSeparator) {
    EXPECT_EQ(pagePath("C:\\web", "a.htm"), "C:\\web\\a.htm");
    EXPECT_EQ(pagePath("C:\\", "a.htm"), "C:\\\\a.htm");
    EXPECT_EQ(pagePath("/web", "a b\n\\.htm"), "/web/a b\n\\.htm");
    EXPECT_EQ(pagePath("/", "a.htm"), "/a.htm");
}

/// A folder "/web" with an integrator over it.
struct Desk {
    explicit Desk(IntegrationOptions options = {{"lib/", false}, false, false})
        : failing(files), integrator(failing, options) {
        files.addFolder("/web");
    }
    void addPage(const std::string& name, const std::string& bytes = kPage) {
        files.addFile("/web/" + name, bytes);
    }
    void integrate(const std::vector<std::string>& names) {
        integrator.IntegratePages({"/web", names});
    }

    FakeFileSystem files;
    FailingFileSystem failing;
    PageIntegrator integrator;
};

const IntegrationOptions kWithBackups = {{"lib/", false}, true, false};

TEST(PageIntegratorTest, ReplacesThePageAndLeavesNoTemporaryFile) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", rewritten(kPage).page}}));
    EXPECT_EQ(desk.integrator.report(), "Processing /web/a.htm\r\n" + kSuccessLines);
    EXPECT_TRUE(desk.integrator.status().bSuccess);
    EXPECT_FALSE(desk.integrator.hasFailed());
}

TEST(PageIntegratorTest, ATemporaryFileOfAnEarlierRunIsReplacedAndGone) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("~qxtmp.htm", "left over");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", rewritten(kPage).page}}));
}

TEST(PageIntegratorTest, BackupIsThePageAsItWasAndReplacesAnOlderOne) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm");
    desk.addPage("a.htm.bak", "older");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(),
              (Disk{{"/web/a.htm", rewritten(kPage).page}, {"/web/a.htm.bak", kPage}}));
}

TEST(PageIntegratorTest, ThePageMayBeALinkButItsBackupAndTemporaryFileTakeThePlaceOfOne) {
    Desk desk(kWithBackups);
    desk.files.addFile("/home/page.htm", kPage);
    desk.files.addFile("/home/rc", "mine");
    desk.files.addLink("/web/a.htm", "/home/page.htm");
    desk.files.addLink("/web/a.htm.bak", "/home/rc");
    desk.files.addLink("/web/~qxtmp.htm", "/home/rc");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/home/page.htm", rewritten(kPage).page},
                                           {"/home/rc", "mine"},
                                           {"/web/a.htm.bak", kPage}}));
}

TEST(PageIntegratorTest, ReportNamesWhatWasNotFoundAndThePageIsReplacedAllTheSame) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm", "<head><p>a</p>");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", "<head>" + kReferences + "<p>a</p>"},
                                           {"/web/a.htm.bak", "<head><p>a</p>"}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\n"
              "Success: Menu library references added\r\n"
              "ERROR: Event handlers NOT added. <BODY> not found.\r\n"
              "ERROR: Menu creation code NOT added. </BODY> not found.\r\n"
              "ERROR: Menu integration failure\r\n"
              "\r\n");
    EXPECT_FALSE(desk.integrator.status().bSuccess);
    EXPECT_TRUE(desk.integrator.hasFailed());
}

TEST(PageIntegratorTest, ReportNamesAMissingHead) {
    Desk desk;
    desk.addPage("a.htm", "<body></body>.");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\n"
              "ERROR: Menu library references NOT added. <HEAD> not found.\r\n"
              "Success: Event handlers added\r\n"
              "Success: Menu creation code added\r\n"
              "ERROR: Menu integration failure\r\n"
              "\r\n");
}

TEST(PageIntegratorTest, ReportBeginsWithThePreviousIntegration) {
    Desk desk;
    desk.addPage("a.htm", rewritten(kPage, {"old/", false}).page);
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nPrevious integration detected!\r\n" + kSuccessLines);
}

TEST(PageIntegratorTest, APageThatIsNotThereIsReportedAndTheNextOneDone) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("c.htm");
    desk.integrate({"a.htm", "b.htm", "c.htm"});
    EXPECT_EQ(desk.integrator.report(), "Processing /web/a.htm\r\n" + kSuccessLines +
                                            "ERROR: /web/b.htm Not Found!\r\n\r\n" +
                                            "Processing /web/c.htm\r\n" + kSuccessLines);
    EXPECT_TRUE(desk.integrator.hasFailed());
    EXPECT_TRUE(desk.integrator.status().bSuccess) << "of the page last processed";
    EXPECT_EQ(desk.files.allFiles().at("/web/c.htm"), rewritten(kPage).page);
}

TEST(PageIntegratorTest, StatusBeginsAnewWithEachPage) {
    Desk desk;
    desk.addPage("a.htm", rewritten(kPage).page);
    desk.addPage("b.htm", "text");
    desk.integrate({"a.htm", "b.htm"});
    const IntegrationStatus& status = desk.integrator.status();
    EXPECT_FALSE(status.bPrevious || status.bHeadDone || status.bBodyDone || status.bEndBodyDone ||
                 status.bSuccess);
}

TEST(PageIntegratorTest, PagesInADriveRootAreFoundByTheirDoubledSeparator) {
    Desk desk;
    desk.files.addFile("C:\\\\a.htm", kPage);
    desk.integrator.IntegratePages({"C:\\", {"a.htm"}});
    EXPECT_EQ(desk.integrator.report(), "Processing C:\\\\a.htm\r\n" + kSuccessLines);
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"C:\\\\a.htm", rewritten(kPage).page}}));
}

TEST(PageIntegratorTest, NoPagesIsNoWork) {
    Desk desk;
    desk.integrator.IntegratePages({"/web", {}});
    desk.integrator.IntegratePages({});
    EXPECT_EQ(desk.integrator.report(), "");
    EXPECT_FALSE(desk.integrator.hasFailed());
}

TEST(PageIntegratorTest, DryRunReportsTheSameAndChangesNothing) {
    Desk real(kWithBackups);
    Desk dry({{"lib/", false}, true, true});
    for (Desk* desk : {&real, &dry}) {
        desk->addPage("a.htm");
        desk->addPage("b.htm", "<head>.");
        desk->addPage("~qxtmp.htm");
    }
    const Disk before = dry.files.allFiles();
    for (Desk* desk : {&real, &dry})
        desk->integrate({"~qxtmp.htm", "a.htm", "b.htm", "c.htm"});
    EXPECT_EQ(dry.files.allFiles(), before);
    EXPECT_EQ(dry.integrator.report(), real.integrator.report());
    EXPECT_TRUE(dry.integrator.hasFailed());
}

TEST(PageIntegratorTest, KeepsOtherScriptsWhenAsked) {
    Desk desk({{"lib/", true}, false, false});
    desk.addPage("a.htm", "<script>own()</script>.");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles().at("/web/a.htm"), "<script>own()</script>.");
}

TEST(PageIntegratorTest, StopsBetweenTwoPagesAndSaysSo) {
    Desk desk;
    for (const char* const name : {"a.htm", "b.htm", "c.htm"})
        desk.addPage(name);
    std::vector<std::size_t> asked;
    const bool isFinished = desk.integrator.IntegratePages(
        {"/web", {"a.htm", "b.htm", "c.htm"}}, [&](std::size_t done, std::size_t total) {
            EXPECT_EQ(total, 3u);
            asked.push_back(done);
            return done < 1;
        });
    EXPECT_FALSE(isFinished);
    EXPECT_EQ(asked, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(desk.integrator.report(), "Processing /web/a.htm\r\n" + kSuccessLines +
                                            "Cancelled: 2 of 3 pages not processed\r\n");
    EXPECT_EQ(desk.files.allFiles().at("/web/b.htm"), kPage);
}

TEST(PageIntegratorTest, APageThatIsAFolderIsReported) {
    Desk desk(kWithBackups);
    desk.files.addFolder("/web/a.htm");
    desk.addPage("b.htm");
    desk.integrate({"a.htm", "b.htm"});
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: Is a directory\r\n\r\n"
              "Processing /web/b.htm\r\n" +
                  kSuccessLines);
}

TEST(PageIntegratorTest, APageWithTheTemporaryFilesNameIsRefusedAndKept) {
    Desk desk;
    desk.addPage("~qxtmp.htm");
    desk.integrate({"~qxtmp.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/~qxtmp.htm", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/~qxtmp.htm\r\nERROR: /web/~qxtmp.htm not saved: This is the name of "
              "the temporary file\r\n\r\n");
    EXPECT_TRUE(desk.integrator.hasFailed());
}

TEST(PageIntegratorTest, AFolderThatCannotBeWrittenLeavesItsPagesAsTheyWere) {
    Desk desk;
    desk.addPage("a.htm");
    desk.files.setWritable("/web", false);
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: Permission denied\r\n\r\n");
}

TEST(PageIntegratorTest, ABackupThatCannotBeMadeIsNamedAndThePageKept) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm");
    desk.files.addFolder("/web/a.htm.bak");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: /web/a.htm.bak: Is a "
              "directory\r\n\r\n");
}

// A run on one page asks for these operations in this order.
enum Operation : std::size_t { Read = 1, BackUp, Replace };

class FailingOperation : public testing::TestWithParam<std::size_t> {};

TEST_P(FailingOperation, KeepsThePageLeavesNoTemporaryFileAndGoesOn) {
    const std::size_t broken = GetParam();
    Desk desk(kWithBackups);
    desk.addPage("a.htm");
    desk.addPage("b.htm");
    desk.failing.failOperation(broken, {FileError::Code::NoSpace, "/web/a.htm", "No space left"});
    desk.integrate({"a.htm", "b.htm"});

    Disk expected{
        {"/web/a.htm", kPage}, {"/web/b.htm", rewritten(kPage).page}, {"/web/b.htm.bak", kPage}};
    if (broken > BackUp)
        expected["/web/a.htm.bak"] = kPage;
    EXPECT_EQ(desk.files.allFiles(), expected);
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: No space left\r\n\r\n"
              "Processing /web/b.htm\r\n" +
                  kSuccessLines);
    EXPECT_TRUE(desk.integrator.hasFailed());
}

INSTANTIATE_TEST_SUITE_P(Each, FailingOperation, testing::Values(Read, BackUp, Replace));

TEST(PageIntegratorTest, OperationsAreThoseTheFailuresAreCountedBy) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.failing.operationCount(), Replace);
}

TEST(PageIntegratorTest, PagesThatCannotBeFlushedCountAsFailed) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("b.htm", "<head></head>no body");
    desk.addPage("c.htm");
    desk.integrate({"a.htm", "b.htm", "c.htm"});
    const std::string report = desk.integrator.report();
    EXPECT_EQ(desk.integrator.summary().doneCount, 2u);
    desk.failing.failOperation(desk.failing.operationCount() + 1,
                               {FileError::Code::Other, "/web", "Input/output error"});
    desk.integrator.finish();
    EXPECT_EQ(desk.integrator.report(),
              report +
                  "ERROR: /web/a.htm not saved: Input/output error\r\n\r\n"
                  "ERROR: /web/c.htm not saved: Input/output error\r\n\r\n");
    EXPECT_EQ(desk.integrator.summary().doneCount, 0u);
    EXPECT_EQ(desk.integrator.summary().failedPages,
              (std::vector<std::string>{"/web/b.htm", "/web/a.htm", "/web/c.htm"}));
    EXPECT_FALSE(desk.integrator.status().bSuccess);
}

TEST(PageIntegratorTest, PagesThatWereNotWrittenNeedNoFlushing) {
    IntegrationOptions options;
    options.isRemoval = true;
    Desk desk(options);
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    const std::string report = desk.integrator.report();
    desk.failing.failOperation(desk.failing.operationCount() + 1, {});
    desk.integrator.finish();
    EXPECT_EQ(desk.integrator.report(), report);
    EXPECT_EQ(desk.integrator.summary().doneCount, 1u);
}

TEST(PageIntegratorTest, ScriptsThatAreDroppedAreNamedInABlockOfTheirOwn) {
    Desk desk;
    desk.addPage("a.htm",
                 "<head><script src=\"js/analytics.js\"></script></head><body><script>\n"
                 "startCounting(7);\nmore();</script><script language=JavaScript>own()"
                 "</script></body>.");
    desk.addPage("b.htm");
    desk.integrate({"a.htm", "b.htm"});
    EXPECT_EQ(desk.integrator.report(), "Processing /web/a.htm\r\n" + kSuccessLines +
                                            "Removed: js/analytics.js\r\n"
                                            "Removed: startCounting(7);\xE2\x80\xA6\r\n\r\n"
                                            "Processing /web/b.htm\r\n" +
                                            kSuccessLines);
}

TEST(PageIntegratorTest, ScriptsCanBeKeptByTheirNames) {
    Desk desk({{"lib/", false, {}, {}, {"a.js"}}, false, false});
    desk.addPage("a.htm", "<script src=a.js></script><script src=b.js></script>.");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles().at("/web/a.htm"), "<script src=a.js></script></script>.");
    EXPECT_EQ(desk.integrator.status().removedScripts, std::vector<std::string>{"b.js"});
}

TEST(PageIntegratorTest, TheSummaryNamesFailedPagesFirst) {
    Desk desk;
    for (const char* const name : {"a.htm", "c.htm"})
        desk.addPage(name);
    desk.addPage("b.htm", "text");
    desk.integrate({"a.htm", "b.htm", "c.htm", "d.htm"});
    EXPECT_EQ(desk.integrator.summary().text(),
              "Failed: /web/b.htm\r\nFailed: /web/d.htm\r\n2 done, 2 failed\r\n\r\n");
    RunSummary all = desk.integrator.summary();
    all.add({1, {"/e.htm"}, {"/f.htm"}});
    EXPECT_EQ(all.text(),
              "Failed: /web/b.htm\r\nFailed: /web/d.htm\r\nFailed: /e.htm\r\n"
              "Skipped: /f.htm\r\n3 done, 3 failed, 1 skipped\r\n\r\n");
}

TEST(PageIntegratorTest, PagesThatCannotBeIntegratedAreSkippedWhenAsked) {
    IntegrationOptions options = kWithBackups;
    options.skipsFailing = true;
    Desk desk(options);
    const std::string frames = "<head><script>a</script></head><frameset></frameset>.";
    desk.addPage("a.htm", frames);
    desk.addPage("b.htm");
    desk.integrate({"a.htm", "b.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", frames},
                                           {"/web/b.htm", rewritten(kPage).page},
                                           {"/web/b.htm.bak", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\n"
              "Skipped: <BODY> not found.\r\n"
              "Skipped: </BODY> not found.\r\n\r\n"
              "Processing /web/b.htm\r\n" +
                  kSuccessLines);
    EXPECT_FALSE(desk.integrator.hasFailed());
    EXPECT_EQ(desk.integrator.summary().skippedPages, std::vector<std::string>{"/web/a.htm"});
}

TEST(PageIntegratorTest, ABackupWithoutTheMenuIsKeptBeforeOneWithItTakesItsPlace) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm");
    for (int run = 0; run < 3; ++run)
        desk.integrate({"a.htm"});
    const std::string page = rewritten(kPage).page;
    const Disk expected{
        {"/web/a.htm", page}, {"/web/a.htm.bak", page}, {"/web/a.htm.bak.original", kPage}};
    EXPECT_EQ(desk.files.allFiles(), expected);
    // The page is made anew and integrated twice: the first original stays.
    desk.addPage("a.htm", kPage + "new");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles().at("/web/a.htm.bak"), kPage + "new");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles().at("/web/a.htm.bak.original"), kPage);
    EXPECT_EQ(desk.files.allFiles().at("/web/a.htm.bak.original.2"), kPage + "new");
    // One that is kept already is not kept twice.
    desk.addPage("a.htm.bak", kPage);
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles().size(), 4u);
}

TEST(PageIntegratorTest, ABackupThatIsALinkIsNoOriginalToBeKept) {
    Desk desk(kWithBackups);
    desk.addPage("a.htm", rewritten(kPage).page);
    desk.files.addFile("/home/secret", "mine");
    desk.files.addLink("/web/a.htm.bak", "/home/secret");
    desk.integrate({"a.htm"});
    EXPECT_FALSE(desk.files.FileExists("/web/a.htm.bak.original"));
    EXPECT_EQ(desk.files.allFiles().at("/home/secret"), "mine");
}

TEST(PageIntegratorTest, AnOriginalThatCannotBeKeptKeepsPageAndBackup) {
    Desk desk(kWithBackups);
    const std::string page = rewritten(kPage).page;
    desk.addPage("a.htm", page);
    desk.addPage("a.htm.bak", kPage);
    desk.failing.failPath("/web/a.htm.bak.original",
                          {FileError::Code::NoSpace, "/web/a.htm.bak.original", "No space left"});
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", page}, {"/web/a.htm.bak", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: "
              "/web/a.htm.bak.original: No space left\r\n\r\n");
}

TEST(PageIntegratorTest, StatusOfAPageThatCouldNotBeReadOrSavedIsAllFalse) {
    for (const bool isFolder : {true, false}) {
        Desk desk;
        desk.addPage("a.htm", rewritten(kPage).page);
        desk.integrate({"a.htm"});
        ASSERT_TRUE(desk.integrator.status().bSuccess);
        desk.files.addFolder("/web/b.htm");
        desk.files.setWritable("/web", false);
        desk.integrate({isFolder ? "b.htm" : "a.htm"});
        const IntegrationStatus& status = desk.integrator.status();
        EXPECT_FALSE(status.bPrevious || status.bHeadDone || status.bBodyDone ||
                     status.bEndBodyDone || status.bSuccess);
    }
}

TEST(PageIntegratorTest, APageThatIsNotThereLeavesTheStatusOfTheOneBefore) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm", "b.htm"});
    EXPECT_TRUE(desk.integrator.status().bSuccess);
}

TEST(PageIntegratorTest, AnErrorSaysWhatFailedOnWhichFileAndWhy) {
    struct Case {
        std::size_t broken;
        PageError::Code code;
    };
    const FileError noSpace{FileError::Code::NoSpace, "/web/x", "No space left"};
    for (const Case& c :
         {Case{Read, PageError::Code::NotRead}, Case{BackUp, PageError::Code::NotBackedUp},
          Case{Replace, PageError::Code::NotSaved}}) {
        Desk desk(kWithBackups);
        desk.addPage("a.htm");
        desk.failing.failOperation(c.broken, noSpace);
        const std::optional<PageError> error = desk.integrator.IntegrateFile("/web/a.htm");
        ASSERT_TRUE(error.has_value()) << c.broken;
        EXPECT_EQ(error->code, c.code) << c.broken;
        EXPECT_EQ(error->file.code, noSpace.code) << c.broken;
        EXPECT_EQ(error->file.path, noSpace.path) << c.broken;
        EXPECT_EQ(error->file.reason, noSpace.reason) << c.broken;
    }
    Desk desk;
    const std::optional<PageError> error = desk.integrator.IntegrateFile("/web/~qxtmp.htm");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->code, PageError::Code::IsTemporaryFile);
    EXPECT_EQ(error->file.path, "/web/~qxtmp.htm");
}

TEST(PageIntegratorTest, RemovalWritesOnlyWhereThereIsSomethingToTakeOut) {
    Desk desk({{}, true, false, true});
    desk.addPage("a.htm");
    desk.addPage("b.htm", rewritten(kPage).page);
    desk.addPage("~qxtmp.htm", "left by a killed run");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(),
              (Disk{{"/web/a.htm", kPage}, {"/web/b.htm", rewritten(kPage).page}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nNo menu integration found\r\n\r\n");
    desk.integrate({"b.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", kPage},
                                           {"/web/b.htm", kPage},
                                           {"/web/b.htm.bak", rewritten(kPage).page}}));
    EXPECT_FALSE(desk.integrator.hasFailed());
}

TEST(PageIntegratorTest, WithoutThePlaceNothingIsWritten) {
    IntegrationOptions options = kWithBackups;
    options.rewrite.menu = PlacedMenu{*parsePlace("marker"), "code"};
    Desk desk(options);
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.files.allFiles(), (Disk{{"/web/a.htm", kPage}}));
    EXPECT_EQ(desk.integrator.report(),
              "Processing /web/a.htm\r\nERROR: /web/a.htm not saved: There is no place "
              "\"marker\"\r\n\r\n");
    EXPECT_TRUE(desk.integrator.hasFailed());
    EXPECT_FALSE(desk.integrator.status().bSuccess);
}

TEST(CountDroppedScriptsTest, CountsInAFileOrTellsWhyNot) {
    Desk desk;
    desk.addPage("a.htm", "<script>a</script><script language=JavaScript></script>.");
    const FileResult<std::size_t> count = countDroppedScripts(desk.failing, "/web/a.htm");
    ASSERT_TRUE(count.isOk());
    EXPECT_EQ(count.value(), 1u);
    const FileResult<std::size_t> missing = countDroppedScripts(desk.failing, "/web/none.htm");
    ASSERT_FALSE(missing.isOk());
    EXPECT_EQ(missing.error().code, FileError::Code::NotFound);
    EXPECT_EQ(missing.error().path, "/web/none.htm");
}

}  // namespace
}  // namespace zev::test
