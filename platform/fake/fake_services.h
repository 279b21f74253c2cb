// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/browser_view.h"
#include "platform/common_dialogs.h"
#include "platform/help_viewer.h"
#include "platform/message_box.h"
#include "platform/shell.h"

namespace zev {

// Stand-ins for the services that ask a person. Each records what it was asked and answers from a
// script given beforehand, in order. A question that nobody expected, and an answer that nobody
// asked for (looked at by `verify()` and by the destructor), are reported to the failure handler.

/// Told of each failure; makes the running test fail in the test framework's own way.
using FailureHandler = std::function<void(const std::string& problem)>;

/// The usual handler: prints the problem on standard error and ends the program by abort().
void abortOnFailure(const std::string& problem);

class FakeMessageBox : public MessageBox {
  public:
    using Matcher = std::function<bool(const MessageRequest&)>;

    explicit FakeMessageBox(FailureHandler onFailure = abortOnFailure);
    ~FakeMessageBox() override;

    /// The next box must show exactly `text`. `answer` must be one of the box's buttons.
    void expect(const std::string& text, Answer answer = Answer::Ok);
    /// The next box must satisfy `isExpected`; `description` names it in failures.
    void expect(const std::string& description, Matcher isExpected, Answer answer);
    /// Reports answers that nobody asked for, and forgets them.
    void verify();
    const std::vector<MessageRequest>& recorded() const { return m_recorded; }

    /// An unexpected box is answered as if the person had closed it.
    Answer show(const MessageRequest& request) override;

  private:
    struct Expectation {
        std::string description;
        Matcher isExpected;
        Answer answer;
    };

    FailureHandler m_onFailure;
    std::deque<Expectation> m_expected;
    std::vector<MessageRequest> m_recorded;
};

class FakeCommonDialogs : public CommonDialogs {
  public:
    enum class Kind { OpenFile, OpenFiles, OpenFolder, SaveFile, Color, Font };
    struct Recorded {
        Kind kind;
        FileDialogRequest request;
    };

    explicit FakeCommonDialogs(FailureHandler onFailure = abortOnFailure);
    ~FakeCommonDialogs() override;

    /// The next dialog must be an open dialog; it returns `path` (empty: cancelled).
    void expectOpenFile(const std::string& path);
    /// The next dialog must be an open dialog for several files; it returns `files` (no names:
    /// cancelled).
    void expectOpenFiles(ChosenFiles files);
    /// The next dialog must be one for a folder; it returns `path` (empty: cancelled).
    void expectOpenFolder(const std::string& path);
    /// The next dialog must be a save dialog; it returns `path` (empty: cancelled).
    void expectSaveFile(const std::string& path);
    /// The next dialog must be a colour dialog; it returns `color` (nothing: cancelled).
    void expectChooseColor(std::optional<std::int32_t> color);
    /// The next dialog must be a font dialog; it returns `font` (nothing: cancelled).
    void expectChooseFont(std::optional<FontChoice> font);
    /// Reports answers that nobody asked for, and forgets them.
    void verify();
    /// What the file dialogs were asked.
    const std::vector<Recorded>& recorded() const { return m_recorded; }
    /// What the colour dialogs were preselected with.
    const std::vector<std::int32_t>& recordedColors() const { return m_colors; }
    /// What the font dialogs were preselected with.
    const std::vector<FontChoice>& recordedFonts() const { return m_fonts; }

    /// An unexpected dialog is cancelled.
    std::string openFile(const FileDialogRequest& request) override;
    ChosenFiles openFiles(const FileDialogRequest& request) override;
    std::string openFolder(const FileDialogRequest& request) override;
    std::string saveFile(const FileDialogRequest& request) override;
    std::optional<std::int32_t> chooseColor(std::int32_t initial) override;
    std::optional<FontChoice> chooseFont(const FontChoice& initial) override;

  private:
    struct Expectation {
        Kind kind;
        std::string path;
        std::optional<std::int32_t> color;
        std::optional<FontChoice> font;
        ChosenFiles files;
    };

    /// The next answer; an empty one, and a failure, when it is not for a dialog of this kind.
    Expectation answer(Kind kind, const std::string& title);

    FailureHandler m_onFailure;
    std::deque<Expectation> m_expected;
    std::vector<Recorded> m_recorded;
    std::vector<std::int32_t> m_colors;
    std::vector<FontChoice> m_fonts;
};

class FakeShell : public Shell {
  public:
    struct Started {
        std::string program;
        std::string argument;
    };

    explicit FakeShell(FailureHandler onFailure = abortOnFailure);
    ~FakeShell() override;

    /// The next question for a program is answered with `program` (empty: none).
    void expectFindExecutable(const std::string& program);
    /// The same, answered by a function that may look at the world at that moment.
    void expectFindExecutable(std::function<std::string(const std::string& file)> answer);
    /// The next start must be of `program` with `argument`; `isStarted` is what it returns.
    void expectShellExecute(const std::string& program, const std::string& argument,
                            bool isStarted = true);
    /// Reports answers that nobody asked for, and forgets them.
    void verify();
    /// Files whose program was asked for.
    const std::vector<std::string>& recordedFiles() const { return m_files; }
    const std::vector<Started>& recordedStarts() const { return m_starts; }

    std::string FindExecutable(const std::string& file) override;
    bool ShellExecute(const std::string& program, const std::string& argument) override;

  private:
    struct StartExpectation {
        Started start;
        bool isStarted;
    };

    FailureHandler m_onFailure;
    std::deque<std::function<std::string(const std::string&)>> m_expectedFinds;
    std::deque<StartExpectation> m_expectedStarts;
    std::vector<std::string> m_files;
    std::vector<Started> m_starts;
};

/// Records the pages it was asked to load; there is nothing to answer.
class FakeBrowserView : public BrowserView {
  public:
    const std::vector<std::string>& recorded() const { return m_recorded; }
    /// The scripts of the last page.
    const std::vector<std::string>& scripts() const { return m_scripts; }
    /// How often what was allowed had to be forgotten.
    int forgottenCount() const { return m_forgottenCount; }
    void load(const std::string& path, const std::vector<std::string>& scripts) override {
        m_recorded.push_back(path);
        m_scripts = scripts;
    }
    void forgetAllowedPictures() override { ++m_forgottenCount; }

  private:
    std::vector<std::string> m_recorded;
    std::vector<std::string> m_scripts;
    int m_forgottenCount = 0;
};

/// Records the pages it was asked to show; there is nothing to answer.
class FakeHelpViewer : public HelpViewer {
  public:
    const std::vector<std::string>& recorded() const { return m_recorded; }
    void show(const std::string& path) override { m_recorded.push_back(path); }

  private:
    std::vector<std::string> m_recorded;
};

}  // namespace zev
