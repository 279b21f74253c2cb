// SPDX-License-Identifier: MIT
#include "platform/fake/fake_services.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

using Answer = MessageBox::Answer;
using Buttons = MessageRequest::Buttons;

/// Collects what a fake reports.
class FakeServicesTest : public testing::Test {
  protected:
    FailureHandler collect() {
        return [this](const std::string& problem) { problems.push_back(problem); };
    }
    std::vector<std::string> problems;
};

MessageRequest request(const std::string& text, Buttons buttons = Buttons::Ok) {
    MessageRequest result;
    result.text = text;
    result.buttons = buttons;
    return result;
}

TEST_F(FakeServicesTest, MessageBoxAnswersFromTheScriptInOrderAndRecords) {
    FakeMessageBox box(collect());
    box.expect("Save?", Answer::No);
    box.expect("Done");
    EXPECT_EQ(box.show(request("Save?", Buttons::YesNoCancel)), Answer::No);
    EXPECT_EQ(box.show(request("Done")), Answer::Ok);
    ASSERT_EQ(box.recorded().size(), 2U);
    EXPECT_EQ(box.recorded()[0].text, "Save?");
    EXPECT_TRUE(problems.empty());
}

TEST_F(FakeServicesTest, MessageBoxTakesAMatcher) {
    FakeMessageBox box(collect());
    const auto isQuestion = [](const MessageRequest& r) { return r.text.ends_with('?'); };
    box.expect("a question", isQuestion, Answer::Yes);
    EXPECT_EQ(box.show(request("Really?", Buttons::YesNo)), Answer::Yes);
    box.expect("a question", isQuestion, Answer::Yes);
    EXPECT_EQ(box.show(request("Really!", Buttons::YesNo)), Answer::No);
    EXPECT_EQ(problems.size(), 1U);
}

TEST_F(FakeServicesTest, MessageBoxFailsOnWhatNobodyExpectedAndIsThenClosed) {
    FakeMessageBox box(collect());
    EXPECT_EQ(box.show(request("Surprise")), Answer::Ok);
    EXPECT_EQ(box.show(request("Surprise", Buttons::YesNo)), Answer::No);
    EXPECT_EQ(box.show(request("Surprise", Buttons::OkCancel)), Answer::Cancel);
    EXPECT_EQ(box.show(request("Surprise", Buttons::YesNoCancel)), Answer::Cancel);
    EXPECT_EQ(problems.size(), 4U);
}

TEST_F(FakeServicesTest, MessageBoxFailsOnAnotherTextThanExpected) {
    FakeMessageBox box(collect());
    box.expect("One");
    box.show(request("Two"));
    EXPECT_EQ(problems.size(), 1U);
}

TEST_F(FakeServicesTest, MessageBoxFailsOnAnAnswerThatIsNoButton) {
    FakeMessageBox box(collect());
    box.expect("Save?", Answer::Cancel);
    EXPECT_EQ(box.show(request("Save?", Buttons::YesNo)), Answer::No);
    EXPECT_EQ(problems.size(), 1U);
}

TEST_F(FakeServicesTest, MessageBoxFailsOnAnAnswerThatNobodyUsed) {
    {
        FakeMessageBox box(collect());
        box.expect("Never");
    }
    EXPECT_EQ(problems.size(), 1U);
}

TEST_F(FakeServicesTest, DialogsAnswerInOrderAndRecord) {
    FakeCommonDialogs dialogs(collect());
    dialogs.expectOpenFile("/a.js");
    dialogs.expectSaveFile("");
    FileDialogRequest open;
    open.title = "Open";
    EXPECT_EQ(dialogs.openFile(open), "/a.js");
    EXPECT_EQ(dialogs.saveFile({}), "");
    ASSERT_EQ(dialogs.recorded().size(), 2U);
    EXPECT_EQ(dialogs.recorded()[0].request.title, "Open");
    EXPECT_TRUE(problems.empty());
}

TEST_F(FakeServicesTest, DialogsForSeveralFilesAnswerInOrderAndRecord) {
    const ChosenFiles files{"/site", {"b.htm", "a.htm"}};
    FakeCommonDialogs dialogs(collect());
    dialogs.expectOpenFiles(files);
    dialogs.expectOpenFiles({});
    dialogs.expectOpenFile("/a.js");
    FileDialogRequest request;
    request.filter = "Web Pages|*.htm";
    EXPECT_EQ(dialogs.openFiles(request), files);
    EXPECT_EQ(dialogs.openFiles({}), ChosenFiles());
    EXPECT_TRUE(problems.empty());
    EXPECT_EQ(dialogs.openFiles({}), ChosenFiles());
    EXPECT_EQ(problems.size(), 1U) << "the answer was for another dialog";
    EXPECT_EQ(dialogs.recorded()[0].kind, FakeCommonDialogs::Kind::OpenFiles);
    EXPECT_EQ(dialogs.recorded()[0].request.filter, "Web Pages|*.htm");
}

TEST_F(FakeServicesTest, DialogsFailWhenUnexpectedOfTheWrongKindOrUnused) {
    {
        FakeCommonDialogs dialogs(collect());
        EXPECT_EQ(dialogs.openFile({}), "");
        dialogs.expectOpenFile("/a.js");
        EXPECT_EQ(dialogs.saveFile({}), "");
        dialogs.expectSaveFile("/b.js");
    }
    EXPECT_EQ(problems.size(), 3U);
}

TEST_F(FakeServicesTest, ColorAndFontDialogsAnswerInOrderAndRecord) {
    const FontChoice serif{"Serif", 10.5F, true, false};
    FakeCommonDialogs dialogs(collect());
    dialogs.expectChooseColor(0x0080FF);
    dialogs.expectChooseFont(serif);
    dialogs.expectChooseColor(std::nullopt);
    dialogs.expectChooseFont(std::nullopt);
    EXPECT_EQ(dialogs.chooseColor(1), 0x0080FF);
    EXPECT_EQ(dialogs.chooseFont({"Sans", 8, false, true}), serif);
    EXPECT_EQ(dialogs.chooseColor(2), std::nullopt);
    EXPECT_EQ(dialogs.chooseFont({}), std::nullopt);
    EXPECT_EQ(dialogs.recordedColors(), (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(dialogs.recordedFonts(),
              (std::vector<FontChoice>{{"Sans", 8, false, true}, FontChoice{}}));
    EXPECT_TRUE(dialogs.recorded().empty());
    EXPECT_TRUE(problems.empty());
}

TEST_F(FakeServicesTest, ColorAndFontDialogsFailWhenUnexpectedOfTheWrongKindOrUnused) {
    {
        FakeCommonDialogs dialogs(collect());
        EXPECT_EQ(dialogs.chooseColor(0), std::nullopt);
        EXPECT_EQ(dialogs.chooseFont({}), std::nullopt);
        dialogs.expectChooseColor(1);
        EXPECT_EQ(dialogs.chooseFont({}), std::nullopt);
        dialogs.expectChooseFont(FontChoice{});
        EXPECT_EQ(dialogs.openFile({}), "");
        dialogs.expectChooseColor(1);
        dialogs.expectChooseFont(FontChoice{});
    }
    EXPECT_EQ(problems.size(), 6U);
}

TEST_F(FakeServicesTest, ShellAnswersAndRecords) {
    FakeShell shell(collect());
    shell.expectFindExecutable("browser");
    shell.expectFindExecutable([](const std::string& file) { return "for " + file; });
    shell.expectShellExecute("browser", "page", false);
    EXPECT_EQ(shell.FindExecutable("a.htm"), "browser");
    EXPECT_EQ(shell.FindExecutable("b.htm"), "for b.htm");
    EXPECT_FALSE(shell.ShellExecute("browser", "page"));
    EXPECT_EQ(shell.recordedFiles(), (std::vector<std::string>{"a.htm", "b.htm"}));
    EXPECT_TRUE(problems.empty());
}

TEST_F(FakeServicesTest, ShellFailsWhenUnexpectedDifferentOrUnused) {
    {
        FakeShell shell(collect());
        EXPECT_EQ(shell.FindExecutable("a.htm"), "");
        EXPECT_FALSE(shell.ShellExecute("browser", "page"));
        shell.expectShellExecute("browser", "page");
        EXPECT_FALSE(shell.ShellExecute("browser", "other page"));
        shell.expectFindExecutable("browser");
        shell.expectShellExecute("browser", "page");
    }
    EXPECT_EQ(problems.size(), 5U);
}

TEST(FakeServicesDeathTest, WithoutAHandlerAFailureEndsTheProgram) {
    EXPECT_DEATH(
        {
            FakeMessageBox box;
            box.show(request("Surprise"));
        },
        "unexpected message box: Surprise");
}

TEST(FakeViewersTest, RecordWhatTheyWereAskedToShow) {
    FakeBrowserView browser;
    FakeHelpViewer help;
    browser.load("/page.html", {});
    help.show("/help/index.html");
    EXPECT_EQ(browser.recorded(), std::vector<std::string>{"/page.html"});
    EXPECT_EQ(help.recorded(), std::vector<std::string>{"/help/index.html"});
}

}  // namespace
}  // namespace zev
