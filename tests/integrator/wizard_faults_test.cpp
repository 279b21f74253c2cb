// SPDX-License-Identifier: MIT
// What the wizard runs, on a disk that fails once, or from some moment on as for a program that is
// killed. The command line runs over pages by the same function; its calls of the system are broken
// in tests/faults.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "integrator/run_record.h"
#include "integrator/wizard_flow.h"
#include "platform/fake/fake_file_system.h"

namespace zev::test {
namespace {

using Files = std::map<std::string, std::string>;

const std::string kPage =
    "<head><script src=kept.js></script><script>gone()</script></head><body>text</body>\n";
const std::string kFrames = "<head></head><frameset></frameset>\n";
const std::string kRecords = "/me/runs";
const char* const kPages[] = {"/site/a.htm", "/site/sub/b.htm", "/site/c.htm"};

void goOn(std::size_t, std::size_t) {}

/// The wizard over pages of two folders, one of which cannot be integrated and is skipped, with one
/// of their two scripts kept.
struct Desk {
    Desk() {
        for (const char* const page : kPages)
            disk.addFile(page, kPage);
        disk.addFile("/site/frames.htm", kFrames);
        disk.addFolder("/me");
        answers.library = "/site/js";
        answers.definition = "/site/menu.js";
        answers.keptScripts = {"kept.js"};
        answers.skipsFailing = true;
    }
    /// Both runs of the wizard; `between` is called after the first.
    template <typename Between>
    void work(Between between) {
        flow.choosePages({"/site", {"a.htm", "frames.htm", "sub/b.htm", "c.htm"}});
        flow.countScripts([](std::size_t, std::size_t) { return true; });
        flow.IntegratePages(answers, goOn);
        isTold = flow.recordError().has_value();
        between();
        flow.placeMenu(answers, {*parsePlace("body-start"), {}}, goOn);
        isTold = isTold || flow.recordError().has_value();
    }
    void work() {
        work([] {});
    }
    /// The operation with this number from now on fails, and when `isKilled` all after it.
    void fail(std::size_t number, bool isKilled) {
        const std::size_t first = files.operationCount() + number;
        for (std::size_t i = first; i < first + (isKilled ? 200 : 1); ++i)
            files.failOperation(i, {FileError::Code::NoSpace, "", "No space left on device"});
    }

    FakeFileSystem disk;
    FailingFileSystem files{disk};
    WizardFlow flow{files, kRecords};
    WizardAnswers answers;
    bool isTold = false;  ///< that a run cannot be undone, or not all of it
};

/// What an undisturbed wizard leaves.
struct Undisturbed {
    Undisturbed() {
        Desk desk;
        before = desk.disk.allFiles();
        desk.work([&] { integrated = desk.disk.allFiles(); });
        placed = desk.disk.allFiles();
        operationCount = desk.files.operationCount();
        desk.flow.undoRuns(goOn);
        undone = desk.disk.allFiles();
        undoCount = desk.files.operationCount() - operationCount;
    }
    /// What is wrong with the pages and backups: "" when nothing is.
    std::string problemOf(const Files& files) const {
        for (const auto& [path, bytes] : files) {
            const bool isKnown = placed.contains(path) || path.starts_with(kRecords + "/");
            if (!isKnown)
                return "left behind: " + path;
        }
        for (const char* const page : kPages) {
            const std::string& bytes = files.at(page);
            if (bytes != before.at(page) && bytes != integrated.at(page) &&
                bytes != placed.at(page))
                return std::string(page) + " is neither old nor new";
            const auto backup = files.find(std::string(page) + ".bak");
            if (bytes != before.at(page) &&
                (backup == files.end() || backup->second != before.at(page)))
                return std::string(page) + " was touched before its backup was whole";
        }
        return files.at("/site/frames.htm") == kFrames ? "" : "a skipped page was touched";
    }
    static bool isAsBefore(const Files& files) {
        return std::all_of(
            std::begin(kPages), std::end(kPages),
            [&](const char* page) { return files.at(page) == kPage; });
    }

    Files before;
    Files integrated;
    Files placed;
    Files undone;
    std::size_t operationCount = 0;
    std::size_t undoCount = 0;
};

TEST(WizardFaultsTest, UndisturbedItKeepsSkipsPlacesAndUndoes) {
    const Undisturbed run;
    EXPECT_NE(run.placed.at("/site/sub/b.htm").find("src=\"../menu.js\""), std::string::npos);
    EXPECT_NE(run.placed.at("/site/a.htm").find("kept.js"), std::string::npos);
    EXPECT_EQ(run.placed.at("/site/a.htm").find("gone()"), std::string::npos);
    EXPECT_EQ(run.problemOf(run.placed), "");
    EXPECT_TRUE(Undisturbed::isAsBefore(run.undone));
    EXPECT_GT(run.operationCount, 20U);
    EXPECT_GT(run.undoCount, 12U);
}

TEST(WizardFaultsTest, PagesAreOldOrNewAndCanBeUndoneWhateverFails) {
    const Undisturbed run;
    for (const bool isKilled : {false, true}) {
        for (std::size_t number = 1; number <= run.operationCount; ++number) {
            Desk desk;
            desk.fail(number, isKilled);
            desk.work();
            ASSERT_EQ(run.problemOf(desk.disk.allFiles()), "") << number << isKilled;
            for (const std::string& name : listRuns(desk.disk, kRecords))
                EXPECT_TRUE(undoRun(desk.disk, kRecords, name).isOk()) << number << isKilled;
            EXPECT_TRUE(desk.isTold || Undisturbed::isAsBefore(desk.disk.allFiles()))
                << number << isKilled;
        }
    }
}

TEST(WizardFaultsTest, ARecordThatCannotBeWrittenIsToldAndHarmsNoPage) {
    const Undisturbed run;
    for (std::size_t number = 1; number <= 8; ++number) {
        Desk desk;
        desk.disk.failAppend(number);
        desk.work();
        EXPECT_TRUE(desk.isTold);
        EXPECT_EQ(run.problemOf(desk.disk.allFiles()), "") << number;
        for (const char* const page : kPages)
            EXPECT_EQ(desk.disk.allFiles().at(page), run.placed.at(page)) << number;
    }
}

TEST(WizardFaultsTest, AnUndoThatFailsCanBeDoneAgain) {
    const Undisturbed run;
    for (const bool isKilled : {false, true}) {
        for (std::size_t number = 1; number <= run.undoCount; ++number) {
            Desk desk;
            desk.work();
            desk.fail(number, isKilled);
            desk.flow.undoRuns(goOn);
            ASSERT_EQ(run.problemOf(desk.disk.allFiles()), "") << number << isKilled;
            // As the window of earlier runs does, in a program that was started again.
            for (const std::string& name : listRuns(desk.disk, kRecords))
                EXPECT_TRUE(undoRun(desk.disk, kRecords, name).isOk()) << number << isKilled;
            EXPECT_EQ(desk.disk.allFiles(), run.undone) << number << isKilled;
        }
    }
}

}  // namespace
}  // namespace zev::test
