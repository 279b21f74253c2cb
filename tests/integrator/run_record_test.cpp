// SPDX-License-Identifier: MIT
#include "integrator/run_record.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "integrator/run_undo.h"
#include "platform/fake/fake_file_system.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

constexpr std::time_t kNow = 1795313707;  // 2026-11-22T02:15:07 UTC
const std::string kFolder = "/home/data/runs";
const std::string kName = "2026-11-22T02:15:07-1";
const std::string kPage = "<head><script>own()</script></head><body onload='x()'>text</body>.";
using Names = std::vector<std::string>;

/// A disk with pages in "/web" and runs over them.
struct Desk {
    void addPage(const std::string& name, const std::string& bytes = kPage) {
        files.addFile("/web/" + name, bytes);
    }
    std::string page(const std::string& name) { return files.allFiles().at("/web/" + name); }
    /// Gives the run's name.
    std::string integrate(const Names& names, const std::string& library = "lib/",
                          bool isDryRun = false) {
        RunRecord record(files, kFolder, kNow);
        IntegrationOptions options{{library, false}, false, isDryRun};
        options.record = &record;
        PageIntegrator integrator(files, options);
        integrator.IntegratePages({"/web", names});
        error = record.error();
        return record.name();
    }
    UndoneRun undo(const std::string& run = kName) {
        FileResult<UndoneRun> undone = undoRun(files, kFolder, run);
        return undone.isOk() ? undone.take() : UndoneRun{{}, {}, {undone.error()}};
    }
    Names runs() { return listRuns(files, kFolder); }

    FakeFileSystem files;
    FileOutcome error;
};

TEST(RunRecordTest, IsAFileForTheUserAloneWithWhatEachPageLost) {
    Desk desk;
    desk.addPage("a.htm");
    ASSERT_EQ(desk.integrate({"a.htm"}), kName);
    EXPECT_FALSE(desk.error);
    EXPECT_EQ(desk.runs(), Names{kName});
    EXPECT_EQ(desk.files.modeOf(kFolder + "/" + kName).value(), 0600u);
    const FileResult<std::vector<RecordedPage>> run = readRun(desk.files, kFolder, kName);
    ASSERT_TRUE(run.isOk());
    ASSERT_EQ(run.value().size(), 1u);
    const RecordedPage& page = run.value().front();
    EXPECT_EQ(page.path, "/web/a.htm");
    EXPECT_EQ(page.mode, 0644u);
    EXPECT_EQ(page.before, PageMark::of(kPage));
    EXPECT_EQ(page.after, PageMark::of(desk.page("a.htm")));
    EXPECT_EQ(withEdits(desk.page("a.htm"), page.edits), kPage);
}

TEST(RunRecordTest, NoneIsMadeWhereNoPageChanges) {
    Desk desk;
    desk.addPage("a.htm");
    EXPECT_EQ(desk.integrate({"none.htm"}), "");
    EXPECT_EQ(desk.integrate({"a.htm"}, "lib/", true), "") << "a dry run";
    EXPECT_EQ(desk.runs(), Names{});
    desk.integrate({"a.htm"});
    EXPECT_EQ(desk.integrate({"a.htm"}), "") << "the page is integrated so already";
    EXPECT_EQ(desk.runs(), Names{kName});
}

TEST(RunRecordTest, RunsOfOneSecondAreNumberedAndListedNewestFirst) {
    Desk desk;
    desk.addPage("a.htm");
    Names expected;
    for (int run = 1; run <= 11; ++run) {
        const std::string name = desk.integrate({"a.htm"}, std::to_string(run) + "/");
        EXPECT_EQ(name, "2026-11-22T02:15:07-" + std::to_string(run));
        expected.insert(expected.begin(), name);
    }
    for (const char* const other :
         {"2026-11-22T02:15:06-9", "2026-11-22T02:15:08-1", "note.txt", "2026-11-22T02:15:07-",
          "2026-11-22T02:15:07-x", "2026-11-22T02:15:07-0"})
        desk.files.addFile(kFolder + "/" + other, "");
    expected.insert(expected.begin(), "2026-11-22T02:15:08-1");
    expected.push_back("2026-11-22T02:15:06-9");
    EXPECT_EQ(desk.runs(), expected);
}

TEST(RunRecordTest, WhereNoneCanBeWrittenTheRunGoesOn) {
    Desk desk;
    desk.addPage("a.htm");
    desk.files.addFolder("/home");
    desk.files.setWritable("/home", false);
    EXPECT_EQ(desk.integrate({"a.htm"}), "");
    ASSERT_TRUE(desk.error);
    EXPECT_EQ(desk.error->reason, "Permission denied");
    EXPECT_NE(desk.page("a.htm"), kPage);
}

TEST(RunRecordTest, ARecordThatEndsInTheMiddleTellsOfAllPagesBefore) {
    Desk desk;
    for (const char* const name : {"a.htm", "b.htm", "c.htm"})
        desk.addPage(name);
    desk.files.failAppend(3);  // the first line, the first page
    desk.integrate({"a.htm", "b.htm", "c.htm"});
    ASSERT_TRUE(desk.error);
    EXPECT_NE(desk.page("c.htm"), kPage);
    EXPECT_EQ(desk.undo().restoredPages, Names{"/web/a.htm"});
    EXPECT_EQ(desk.page("a.htm"), kPage);
    EXPECT_NE(desk.page("b.htm"), kPage);
}

TEST(RunRecordTest, CutAnywhereItGivesOnlyWholePages) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("b.htm");
    desk.integrate({"a.htm", "b.htm"});
    const std::string record = desk.files.allFiles().at(kFolder + "/" + kName);
    std::size_t pageCount = 0;
    for (std::size_t size = 0; size <= record.size(); ++size) {
        desk.files.addFile(kFolder + "/" + kName, record.substr(0, size));
        const auto run = readRun(desk.files, kFolder, kName);
        ASSERT_TRUE(run.isOk()) << size;
        ASSERT_TRUE(run.value().size() == pageCount || run.value().size() == pageCount + 1) << size;
        pageCount = run.value().size();
        for (const RecordedPage& page : run.value())
            ASSERT_EQ(withEdits(desk.page("a.htm"), page.edits), kPage) << size;
    }
    EXPECT_EQ(pageCount, 2u);
    desk.files.addFile(kFolder + "/" + kName, "something else");
    EXPECT_FALSE(readRun(desk.files, kFolder, kName).isOk());
}

TEST(UndoRunTest, EveryPageIsAgainWhatItWasAndTheRecordGone) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("b.htm", std::string("\xFF\0<body>\r\n</body>.", 17));
    const std::map<std::string, std::string> before = desk.files.allFiles();
    desk.integrate({"a.htm", "b.htm"});
    ASSERT_FALSE(desk.files.setMode("/web/b.htm", 0600));
    const UndoneRun undone = desk.undo();
    EXPECT_TRUE(undone.isWhole());
    EXPECT_EQ(undone.restoredPages, (Names{"/web/a.htm", "/web/b.htm"}));
    EXPECT_EQ(desk.files.allFiles(), before);
    EXPECT_EQ(desk.files.modeOf("/web/b.htm").value(), 0644u);
}

TEST(UndoRunTest, PagesChangedSinceStayAndCanBeUndoneLater) {
    Desk desk;
    for (const char* const name : {"a.htm", "b.htm", "c.htm"})
        desk.addPage(name);
    desk.integrate({"a.htm", "b.htm", "c.htm"});
    const std::string integrated = desk.page("b.htm");
    desk.addPage("b.htm", integrated + " edited");
    desk.files.DeleteFile("/web/c.htm");
    const UndoneRun undone = desk.undo();
    EXPECT_EQ(undone.restoredPages, Names{"/web/a.htm"});
    EXPECT_EQ(undone.changedPages, (Names{"/web/b.htm", "/web/c.htm"}));
    EXPECT_EQ(desk.page("b.htm"), integrated + " edited");
    EXPECT_EQ(desk.runs(), Names{kName});
    desk.addPage("b.htm", integrated);
    desk.addPage("c.htm");
    EXPECT_TRUE(desk.undo().isWhole());
    EXPECT_EQ(desk.page("b.htm"), kPage);
    EXPECT_EQ(desk.runs(), Names{});
}

TEST(UndoRunTest, RunsAreUndoneInTheirOrder) {
    Desk desk;
    desk.addPage("a.htm");
    const std::string first = desk.integrate({"a.htm"}, "one/");
    const std::string between = desk.page("a.htm");
    const std::string second = desk.integrate({"a.htm"}, "two/");
    EXPECT_EQ(desk.undo(first).changedPages, Names{"/web/a.htm"});
    EXPECT_TRUE(desk.undo(second).isWhole());
    EXPECT_EQ(desk.page("a.htm"), between);
    EXPECT_TRUE(desk.undo(first).isWhole());
    EXPECT_EQ(desk.page("a.htm"), kPage);
}

TEST(UndoRunTest, ARunThatCameByAPageTwiceIsUndoneToItsBeginning) {
    Desk desk;
    desk.addPage("a.htm");
    auto record = std::make_optional<RunRecord>(desk.files, kFolder, kNow);
    for (const char* const library : {"one/", "two/", "three/"}) {
        IntegrationOptions options{{library, false}, false, false};
        options.record = &*record;
        PageIntegrator(desk.files, options).IntegratePages({"/web", {"a.htm"}});
    }
    record.reset();
    EXPECT_EQ(desk.undo().restoredPages, Names{"/web/a.htm"});
    EXPECT_EQ(desk.page("a.htm"), kPage);
}

TEST(UndoRunTest, ARunThatIsGoingOnIsRefusedUntilItHasEnded) {
    Desk desk;
    desk.addPage("a.htm");
    auto record = std::make_optional<RunRecord>(desk.files, kFolder, kNow);
    IntegrationOptions options{{"lib/", false}, false, false};
    options.record = &*record;
    PageIntegrator(desk.files, options).IntegratePages({"/web", {"a.htm"}});
    const std::map<std::string, std::string> before = desk.files.allFiles();
    const UndoneRun refused = desk.undo();
    EXPECT_TRUE(refused.isGoingOn);
    EXPECT_FALSE(refused.isWhole());
    EXPECT_EQ(desk.files.allFiles(), before);
    record.reset();
    EXPECT_TRUE(desk.undo().isWhole());
    EXPECT_EQ(desk.page("a.htm"), kPage);
}

TEST(UndoRunTest, ARunIsUndoneByOneAtATime) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    undoRun(desk.files, kFolder, kName, [&](std::size_t, std::size_t) {
        EXPECT_TRUE(desk.undo().isGoingOn);
        return true;
    });
    EXPECT_EQ(desk.page("a.htm"), kPage);
    EXPECT_EQ(desk.runs(), Names{});
}

TEST(UndoRunTest, APageThatTheRunHadNotReachedIsAsItWasAndItsTemporaryFileGone) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    desk.addPage("a.htm");
    desk.addPage("~qxtmp.htm", "half a pa");
    EXPECT_TRUE(desk.undo().isWhole());
    EXPECT_EQ(desk.files.allFiles(), (std::map<std::string, std::string>{{"/web/a.htm", kPage}}));
}

TEST(UndoRunTest, ADamagedRecordDamagesNoPage) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    const std::string record = desk.files.allFiles().at(kFolder + "/" + kName);
    const std::string integrated = desk.page("a.htm");
    for (std::size_t at = 0; at < record.size(); ++at) {
        std::string damaged = record;
        damaged[at] = damaged[at] == '9' ? '8' : '9';
        desk.files.addFile(kFolder + "/" + kName, damaged);
        desk.undo();
        ASSERT_TRUE(desk.page("a.htm") == integrated || desk.page("a.htm") == kPage) << at;
        desk.addPage("a.htm", integrated);
    }
}

TEST(UndoRunTest, CanBeStoppedAndDoneAgainAndTellsOfErrors) {
    Desk desk;
    desk.addPage("a.htm");
    desk.addPage("b.htm");
    desk.integrate({"a.htm", "b.htm"});
    FileResult<UndoneRun> undone =
        undoRun(desk.files, kFolder, kName, [](std::size_t done, std::size_t total) {
            EXPECT_EQ(total, 2u);
            return done < 1;
        });
    ASSERT_TRUE(undone.isOk());
    EXPECT_FALSE(undone.value().isFinished);
    EXPECT_EQ(desk.page("a.htm"), kPage);
    EXPECT_EQ(desk.runs(), Names{kName});
    desk.files.setWritable("/web", false);
    const UndoneRun failed = desk.undo();
    EXPECT_EQ(failed.restoredPages, Names{"/web/a.htm"});
    ASSERT_EQ(failed.errors.size(), 1u);
    EXPECT_EQ(failed.errors.front().path, "/web/b.htm");
    desk.files.setWritable("/web", true);
    EXPECT_TRUE(desk.undo().isWhole());
    EXPECT_EQ(desk.page("b.htm"), kPage);
    EXPECT_FALSE(undoRun(desk.files, kFolder, "2000-01-01T00:00:00-1").isOk());
}

TEST(RunUndoTest, TheRecordStaysUntilThePagesAreFlushed) {
    Desk desk;
    desk.addPage("a.htm");
    desk.integrate({"a.htm"});
    FailingFileSystem failing(desk.files);
    failing.failPath("", {FileError::Code::Other, "/web", "Input/output error"});
    FileResult<UndoneRun> undone = undoRun(failing, kFolder, kName);
    ASSERT_TRUE(undone.isOk());
    EXPECT_FALSE(undone.value().isWhole());
    EXPECT_EQ(desk.page("a.htm"), kPage);
    EXPECT_EQ(desk.runs(), Names{kName});
    EXPECT_TRUE(desk.undo().isWhole());
    EXPECT_EQ(desk.runs(), Names{});
}

}  // namespace
}  // namespace zev::test
