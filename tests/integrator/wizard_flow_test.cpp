// SPDX-License-Identifier: MIT
#include "integrator/wizard_flow.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "messages/integration_messages.h"
#include "platform/fake/fake_file_system.h"

namespace zev::test {
namespace {

using Action = NextOutcome::Action;
using Kind = PathHint::Kind;

const std::string kPage = "<html><head></head><body>text</body></html>";

/// The wizard over the pages "/site/a.htm" and "/site/b.htm", with the answers of a person.
struct Flow {
    Flow() {
        for (const char* const name : {"a.htm", "b.htm"})
            files.addFile(std::string("/site/") + name, kPage);
        answers.library = "/site/js";
        answers.definition = "/site/menu_def.js";
    }
    NextOutcome next() { return flow.NextStep(answers); }
    /// From the welcome to step 3, with these pages.
    void goToMenuStep(const std::vector<std::string>& names = {"a.htm"}) {
        flow.choosePages({"/site", names});
        for (int i = 0; i < 3; ++i)
            next();
    }
    /// From step 3 to the report.
    void run() {
        EXPECT_EQ(next().action, Action::Integrate);
        flow.IntegratePages(answers, [](std::size_t, std::size_t) {});
    }
    void choosePopup() {
        flow.setSubmenus({{"Products", "1i2"}});
        answers.isPopup = true;
        answers.submenuId = "1i2";
    }
    std::string page(const std::string& name) { return files.allFiles().at("/site/" + name); }

    FakeFileSystem files;
    WizardFlow flow{files};
    WizardAnswers answers;
};

void expectStays(Flow& desk, WizardNotice notice) {
    const std::int16_t step = desk.flow.step();
    const NextOutcome outcome = desk.next();
    EXPECT_EQ(outcome.action, Action::ShowStep);
    EXPECT_EQ(outcome.notice, notice);
    EXPECT_EQ(desk.flow.step(), step);
}

// Steps

TEST(WizardFlowTest, NextGoesThroughTheStepsAndThenCloses) {
    Flow desk;
    desk.flow.choosePages({"/site", {"a.htm"}});
    EXPECT_EQ(desk.flow.step(), 0);
    for (const int step : {1, 2, 3, 4, 5}) {
        const NextOutcome outcome = desk.next();
        EXPECT_EQ(outcome.action, step == 4 ? Action::Integrate : Action::ShowStep) << step;
        EXPECT_FALSE(outcome.notice.has_value()) << step;
        EXPECT_EQ(desk.flow.step(), step);
    }
    EXPECT_EQ(desk.next().action, Action::Close);
    EXPECT_EQ(desk.flow.step(), WizardFlow::kLastStep);
}

TEST(WizardFlowTest, GoingBackEndsOnlyWithAPressAtTheWelcome) {
    Flow desk;
    EXPECT_FALSE(desk.flow.canGoBack());
    desk.goToMenuStep();
    for (const int step : {2, 1, 0}) {
        desk.flow.goBack();
        EXPECT_EQ(desk.flow.step(), step);
        EXPECT_TRUE(desk.flow.canGoBack());
    }
    desk.flow.goBack();
    EXPECT_EQ(desk.flow.step(), 0);
    EXPECT_FALSE(desk.flow.canGoBack());
    desk.next();
    EXPECT_TRUE(desk.flow.canGoBack());
}

TEST(WizardFlowTest, WithoutPagesStep1Stays) {
    Flow desk;
    desk.next();
    expectStays(desk, WizardNotice::PagesMissing);
    desk.flow.choosePages({"/site", {"a.htm"}});
    desk.next();
    EXPECT_EQ(desk.flow.step(), 2);
}

TEST(WizardFlowTest, WithoutADefinitionStep2StaysButTheLibraryNeedNotBeGiven) {
    Flow desk;
    desk.answers.definition = "";
    desk.answers.library = "";
    desk.flow.choosePages({"/site", {"a.htm"}});
    desk.next();
    desk.next();
    expectStays(desk, WizardNotice::DefinitionMissing);
    desk.answers.definition = " ";
    desk.next();
    EXPECT_EQ(desk.flow.step(), 3);
}

TEST(WizardFlowTest, APopupMenuWithoutAChoiceStaysAtStep3) {
    Flow desk;
    desk.goToMenuStep();
    desk.choosePopup();
    desk.answers.submenuId = "";
    expectStays(desk, WizardNotice::SubmenuMissing);
    desk.answers.isPopup = false;
    EXPECT_EQ(desk.next().action, Action::Integrate);
}

TEST(WizardFlowTest, APositionThatIsNotWholeStaysAtStep3) {
    for (const auto& [x, y] : {std::pair("", ""), std::pair("5", ""), std::pair("", "5")}) {
        Flow desk;
        desk.goToMenuStep();
        desk.choosePopup();
        desk.answers.placement = {false, x, y};
        expectStays(desk, WizardNotice::PositionMissing);
        desk.answers.placement.isAtMouse = true;
        EXPECT_EQ(desk.next().action, Action::Integrate) << "beside the mouse none is needed";
    }
}

TEST(WizardFlowTest, APositionBelongsToAPopupThatIsNotAtTheMouse) {
    WizardAnswers answers;
    EXPECT_FALSE(answers.needsPosition());
    answers.placement.isAtMouse = false;
    EXPECT_FALSE(answers.needsPosition());
    answers.isPopup = true;
    EXPECT_TRUE(answers.needsPosition());
    answers.placement.isAtMouse = true;
    EXPECT_FALSE(answers.needsPosition());
}

TEST(WizardFlowTest, OnlyAMenuWithSubmenusCanBeAPopup) {
    Flow desk;
    EXPECT_FALSE(desk.flow.checkKind(desk.answers).has_value());
    desk.answers.isPopup = true;
    EXPECT_EQ(desk.flow.checkKind(desk.answers), WizardNotice::NoSubmenus);
    desk.flow.setSubmenus({{"Tea", "1"}});
    EXPECT_FALSE(desk.flow.checkKind(desk.answers).has_value());
}

TEST(WizardFlowTest, EachNoticeHasItsSentence) {
    const std::pair<WizardNotice, const char*> sentences[] = {
        {WizardNotice::PagesMissing, "Please select at least one file to continue"},
        {WizardNotice::DefinitionMissing, "Please enter menu definition filename"},
        {WizardNotice::NoSubmenus, "No dropdown menu found! Popup menu options disabled"},
        {WizardNotice::SubmenuMissing, "Please select a popup menu"},
        {WizardNotice::PositionMissing, "Please enter the position of the menu"}};
    for (const auto& [notice, sentence] : sentences)
        EXPECT_EQ(noticeText(notice), sentence);
}

// Pages

TEST(WizardFlowTest, OtherPagesReplaceTheChosenOnesAndCancelKeepsThem) {
    Flow desk;
    EXPECT_FALSE(desk.flow.choosePages({}));
    const ChosenFiles both{"/site", {"b.htm", "a.htm"}};
    EXPECT_TRUE(desk.flow.choosePages(both));
    EXPECT_EQ(desk.flow.pages(), both);
    EXPECT_FALSE(desk.flow.choosePages({}));
    EXPECT_EQ(desk.flow.pages(), both);
    const ChosenFiles other{"/other", {"c.htm"}};
    EXPECT_TRUE(desk.flow.choosePages(other));
    EXPECT_EQ(desk.flow.pages(), other);
}

TEST(WizardFlowTest, PagesAreLookedForBesideTheMenuAndThenWhereTheLastOnesWere) {
    Flow desk;
    EXPECT_EQ(desk.flow.pagesFolder(), "");
    desk.flow.setDefinition("/site/js/menu.js");
    EXPECT_EQ(desk.flow.pagesFolder(), "/site/js");
    desk.flow.choosePages({"/site", {"a.htm"}});
    EXPECT_EQ(desk.flow.pagesFolder(), "/site");
    desk.flow.setDefinition("C:\\web\\menu.js");
    EXPECT_EQ(desk.flow.pagesFolder(), "/site");
}

TEST(WizardFlowTest, ScriptsAreCountedInThePagesThatCanBeRead) {
    Flow desk;
    desk.files.addFile("/site/s.htm", "<script>a</script><script>b</script>.");
    desk.flow.choosePages({"/site", {"s.htm", "gone.htm", "s.htm"}});
    std::vector<std::size_t> asked;
    desk.flow.countScripts([&](std::size_t doneCount, std::size_t totalCount) {
        EXPECT_EQ(totalCount, 3u);
        asked.push_back(doneCount);
        return true;
    });
    EXPECT_EQ(asked, (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(desk.flow.scriptCount(false).scriptCount, 4u);
    EXPECT_EQ(desk.flow.scriptCount(false).pageCount, 3u);
    EXPECT_EQ(desk.flow.scriptCount(true).scriptCount, 0u);
    EXPECT_EQ(desk.flow.scriptCount(true).pageCount, 3u);
}

TEST(WizardFlowTest, CountingThatIsSkippedTellsInHowManyPages) {
    Flow desk;
    desk.files.addFile("/site/s.htm", "<script>a</script>.");
    desk.flow.choosePages({"/site", {"s.htm", "s.htm", "s.htm"}});
    desk.flow.countScripts([](std::size_t doneCount, std::size_t) { return doneCount < 2; });
    EXPECT_EQ(desk.flow.scriptCount(false).scriptCount, 2u);
    EXPECT_EQ(desk.flow.scriptCount(false).pageCount, 2u);
    EXPECT_EQ(desk.flow.scriptCount(true).pageCount, 3u) << "none is removed from any page";
    desk.flow.countScripts([](std::size_t, std::size_t) { return true; });
    EXPECT_EQ(desk.flow.scriptCount(false).scriptCount, 3u) << "counted anew";
}

// Paths

TEST(WizardFlowTest, HintsNameWhatAPageCannotReach) {
    using Hints = std::vector<PathHint>;
    struct Case {
        const char* library;
        const char* definition;
        Hints libraryHints;
        Hints definitionHints;
    };
    const Case cases[] = {
        {"/site/js", "/site/m.js", {}, {}},
        {"js/", "http://zevmenu.example/m.js", {}, {}},
        {"", "", {}, {}},
        {" ", "m.js", {}, {}},
        {"", "/site/m.js", {}, {}},
        {"", "/site/js/m.js", {{Kind::NotGiven, ""}}, {}},
        {"/site", "/site/js/m.js", {}, {}},
        {"js", "m.js", {{Kind::NoLastSlash, "js"}}, {}},
        {"d:\\lib", "d:\\m.js", {{Kind::OnADrive, "d:\\lib"}}, {{Kind::OnADrive, "d:\\m.js"}}},
        {"D:\\it's", "m.js", {{Kind::OnADrive, "D:\\it's\\"}}, {}},
        {"/site/it's", "/site/it's/m.js", {}, {}},
        {"it's/", "it's/m.js", {{Kind::Quote, "it%27s/"}}, {}},
        {"a\"b/", "a\"b/m.js", {{Kind::Quote, "a%22b/"}}, {{Kind::Quote, "a%22b/m.js"}}},
        {"it's", "m.js", {{Kind::NoLastSlash, "it's"}, {Kind::Quote, "it%27s"}}, {}},
    };
    for (const Case& c : cases) {
        Flow desk;
        desk.flow.choosePages({"/site", {"a.htm"}});
        desk.answers.library = c.library;
        desk.answers.definition = c.definition;
        EXPECT_EQ(desk.flow.libraryHints(desk.answers), c.libraryHints) << c.library;
        EXPECT_EQ(desk.flow.definitionHints(desk.answers), c.definitionHints) << c.definition;
    }
}

// The run

TEST(WizardFlowTest, ARunDoesWhatWasAnswered) {
    for (const bool isTicked : {true, false}) {
        Flow desk;
        desk.files.addFile("/site/s.htm", "<head></head><body><script>own()</script></body>.");
        desk.answers.hasBackups = isTicked;
        desk.answers.keepsOtherScripts = isTicked;
        desk.goToMenuStep({"s.htm"});
        desk.run();
        EXPECT_EQ(desk.files.FileExists("/site/s.htm.bak"), isTicked);
        EXPECT_EQ(desk.page("s.htm").find("own()") != std::string::npos, isTicked);
        EXPECT_NE(desk.page("s.htm").find("src=\"js/zevmenu_loader.js\""), std::string::npos);
        EXPECT_TRUE(desk.flow.hasSucceeded());
        EXPECT_TRUE(desk.flow.report().starts_with("Processing /site/s.htm\r\n"));
    }
}

TEST(WizardFlowTest, ProgressIsToldBeforeEachPage) {
    Flow desk;
    desk.goToMenuStep({"a.htm", "b.htm"});
    desk.next();
    std::vector<std::pair<std::size_t, std::size_t>> told;
    desk.flow.IntegratePages(desk.answers, [&](std::size_t doneCount, std::size_t totalCount) {
        told.emplace_back(doneCount, totalCount);
        EXPECT_EQ(desk.page("a.htm") == kPage, doneCount == 0);
        EXPECT_EQ(desk.page("b.htm"), kPage);
    });
    EXPECT_EQ(told, (std::vector<std::pair<std::size_t, std::size_t>>{{0, 2}, {1, 2}}));
}

TEST(WizardFlowTest, CancelAndClosingStopARunAndTheNextOneStartsAfresh) {
    for (const bool isClosing : {true, false}) {
        Flow desk;
        desk.goToMenuStep({"a.htm", "b.htm"});
        desk.next();
        EXPECT_TRUE(desk.flow.mayClose());
        desk.flow.IntegratePages(desk.answers, [&](std::size_t doneCount, std::size_t) {
            if (doneCount != 1)
                return;
            if (!isClosing)
                desk.flow.cancel();
            EXPECT_FALSE(isClosing && desk.flow.mayClose());
        });
        EXPECT_TRUE(desk.flow.mayClose());
        EXPECT_NE(desk.page("a.htm"), kPage);
        EXPECT_EQ(desk.page("b.htm"), kPage);
        EXPECT_TRUE(desk.flow.report().ends_with(
            "Cancelled: 1 of 2 pages not processed\r\n1 done, 0 failed\r\n\r\n"));
        desk.flow.goBack();
        desk.run();
        EXPECT_NE(desk.page("b.htm"), kPage);
    }
}

TEST(WizardFlowTest, TheReportIsOfOneRunAndGoneWithTheNextPress) {
    Flow desk;
    desk.goToMenuStep({"gone.htm"});
    desk.run();
    const std::string report = desk.flow.report();
    EXPECT_EQ(report,
              "ERROR: /site/gone.htm Not Found!\r\n\r\n"
              "Failed: /site/gone.htm\r\n0 done, 1 failed\r\n\r\n");
    desk.flow.goBack();
    EXPECT_EQ(desk.flow.report(), report);
    desk.run();
    EXPECT_EQ(desk.flow.report(), report);
    desk.next();
    EXPECT_EQ(desk.flow.report(), "");
}

TEST(WizardFlowTest, TheReportIsSavedWithOneMoreLineBreakOrTheErrorGiven) {
    Flow desk;
    desk.goToMenuStep({"gone.htm"});
    desk.run();
    EXPECT_FALSE(desk.flow.saveReport("/site/report.txt").has_value());
    EXPECT_EQ(desk.page("report.txt"),
              "ERROR: /site/gone.htm Not Found!\r\n\r\n"
              "Failed: /site/gone.htm\r\n0 done, 1 failed\r\n\r\n\r\n");
    desk.files.setWritable("/site", false);
    const FileOutcome error = desk.flow.saveReport("/site/other.txt");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->code, FileError::Code::NoPermission);
}

TEST(WizardFlowTest, SuccessIsThatOfTheWholeRun) {
    struct Case {
        std::vector<std::string> names;
        bool isSuccess;
    };
    for (const Case& c : {Case{{"a.htm", "bad.htm"}, false}, Case{{"bad.htm", "a.htm"}, false},
                          Case{{"a.htm", "gone.htm"}, false}, Case{{"gone.htm"}, false},
                          Case{{"a.htm", "b.htm"}, true}}) {
        Flow desk;
        desk.files.addFile("/site/bad.htm", "no page at all");
        desk.goToMenuStep(c.names);
        desk.run();
        EXPECT_EQ(desk.flow.hasSucceeded(), c.isSuccess) << c.names.front();
    }
}

TEST(WizardFlowTest, ThePageInADrivesRootIsIntegrated) {
    Flow desk;
    desk.files.addFile("C:\\\\a.htm", kPage);
    desk.answers.library = "C:\\js";
    desk.answers.definition = "C:\\menu.js";
    desk.flow.choosePages({"C:\\", {"a.htm"}});
    for (int i = 0; i < 3; ++i)
        desk.next();
    desk.run();
    EXPECT_TRUE(desk.flow.hasSucceeded());
    EXPECT_TRUE(desk.flow.report().starts_with("Processing C:\\\\a.htm\r\n")) << desk.flow.report();
    EXPECT_NE(desk.files.allFiles().at("C:\\\\a.htm"), kPage);
}

// Code to paste

TEST(WizardFlowTest, TheCodeIsThatOfTheAnswersAtTheRun) {
    const std::string reference =
        "<script language=\"JavaScript1.2\" src=\"menu_def.js\"></script>";
    Flow desk;
    desk.goToMenuStep();
    desk.run();
    EXPECT_EQ(desk.flow.code(), menuCode("menu_def.js"));
    EXPECT_EQ(desk.flow.linkCode(), "");

    desk.flow.goBack();
    desk.choosePopup();
    desk.run();
    EXPECT_EQ(desk.flow.code(), reference);
    EXPECT_EQ(desk.flow.linkCode(), popupLinkCode("1i2", {}));

    desk.flow.goBack();
    desk.answers.placement = {false, "100", "50"};
    desk.run();
    EXPECT_EQ(desk.flow.linkCode(), popupLinkCode("1i2", {false, "100", "50"}));

    desk.flow.goBack();
    desk.answers.isPopup = false;
    desk.answers.definition = " ../My Menu.js ";
    desk.run();
    EXPECT_EQ(desk.flow.code(), menuCode("../My Menu.js"));
    EXPECT_EQ(desk.flow.linkCode(), "");
}

TEST(WizardFlowTest, FurtherRunsLeavePagesAloneThatTheFirstHasNotDone) {
    Flow desk;
    desk.files.addFile("/site/c.htm", "<head></head><frameset></frameset>.");
    desk.answers.skipsFailing = true;
    desk.goToMenuStep({"c.htm", "a.htm", "b.htm"});
    desk.next();
    desk.flow.IntegratePages(desk.answers, [&](std::size_t doneCount, std::size_t) {
        if (doneCount == 2)
            desk.flow.cancel();
    });
    EXPECT_EQ(desk.flow.integratedPages(), (ChosenFiles{"/site", {"a.htm"}}));
    desk.flow.placeMenu(desk.answers, {*parsePlace("body-start"), {}},
                        [](std::size_t, std::size_t) {});
    EXPECT_NE(desk.page("a.htm").find("<!-- zevmenu menu -->"), std::string::npos);
    EXPECT_EQ(desk.page("b.htm"), kPage);
    desk.flow.replaceReferences(desk.answers, [](std::size_t, std::size_t) {});
    EXPECT_EQ(desk.page("b.htm"), kPage);
    EXPECT_EQ(desk.flow.summary().doneCount, 1U);
}

}  // namespace
}  // namespace zev::test
