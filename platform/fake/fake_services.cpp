// SPDX-License-Identifier: MIT
#include "platform/fake/fake_services.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace zev {

namespace {

bool hasButton(MessageRequest::Buttons buttons, MessageBox::Answer answer) {
    using Buttons = MessageRequest::Buttons;
    using Answer = MessageBox::Answer;
    switch (buttons) {
        case Buttons::Ok:
            return answer == Answer::Ok;
        case Buttons::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case Buttons::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        case Buttons::YesNoCancel:
            return answer != Answer::Ok;
    }
    return false;
}

MessageBox::Answer closingAnswer(MessageRequest::Buttons buttons) {
    for (const auto answer : {MessageBox::Answer::Cancel, MessageBox::Answer::No})
        if (hasButton(buttons, answer))
            return answer;
    return MessageBox::Answer::Ok;
}

std::string nameOf(FakeCommonDialogs::Kind kind) {
    switch (kind) {
        case FakeCommonDialogs::Kind::OpenFile:
            return "open dialog";
        case FakeCommonDialogs::Kind::OpenFiles:
            return "open dialog for several files";
        case FakeCommonDialogs::Kind::OpenFolder:
            return "folder dialog";
        case FakeCommonDialogs::Kind::SaveFile:
            return "save dialog";
        case FakeCommonDialogs::Kind::Color:
            return "colour dialog";
        case FakeCommonDialogs::Kind::Font:
            break;
    }
    return "font dialog";
}

}  // namespace

void abortOnFailure(const std::string& problem) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::abort();
}

FakeMessageBox::FakeMessageBox(FailureHandler onFailure) : m_onFailure(std::move(onFailure)) {}

FakeMessageBox::~FakeMessageBox() {
    verify();
}

void FakeMessageBox::expect(const std::string& text, Answer answer) {
    expect(
        text, [text](const MessageRequest& request) { return request.text == text; }, answer);
}

void FakeMessageBox::expect(const std::string& description, Matcher isExpected, Answer answer) {
    m_expected.push_back({description, std::move(isExpected), answer});
}

void FakeMessageBox::verify() {
    for (const Expectation& expected : m_expected)
        m_onFailure("message box never shown: " + expected.description);
    m_expected.clear();
}

MessageBox::Answer FakeMessageBox::show(const MessageRequest& request) {
    m_recorded.push_back(request);
    if (m_expected.empty()) {
        m_onFailure("unexpected message box: " + request.text);
        return closingAnswer(request.buttons);
    }
    const Expectation expected = std::move(m_expected.front());
    m_expected.pop_front();
    if (!expected.isExpected(request)) {
        m_onFailure("expected the message box: " + expected.description +
                    "\nbut was shown: " + request.text);
        return closingAnswer(request.buttons);
    }
    if (!hasButton(request.buttons, expected.answer)) {
        m_onFailure("the answer given is no button of the message box: " + request.text);
        return closingAnswer(request.buttons);
    }
    return expected.answer;
}

FakeCommonDialogs::FakeCommonDialogs(FailureHandler onFailure)
    : m_onFailure(std::move(onFailure)) {}

FakeCommonDialogs::~FakeCommonDialogs() {
    verify();
}

void FakeCommonDialogs::expectOpenFile(const std::string& path) {
    m_expected.push_back({Kind::OpenFile, path, {}, {}, {}});
}

void FakeCommonDialogs::expectOpenFiles(ChosenFiles files) {
    m_expected.push_back({Kind::OpenFiles, {}, {}, {}, std::move(files)});
}

void FakeCommonDialogs::expectOpenFolder(const std::string& path) {
    m_expected.push_back({Kind::OpenFolder, path, {}, {}, {}});
}

void FakeCommonDialogs::expectSaveFile(const std::string& path) {
    m_expected.push_back({Kind::SaveFile, path, {}, {}, {}});
}

void FakeCommonDialogs::expectChooseColor(std::optional<std::int32_t> color) {
    m_expected.push_back({Kind::Color, {}, color, {}, {}});
}

void FakeCommonDialogs::expectChooseFont(std::optional<FontChoice> font) {
    m_expected.push_back({Kind::Font, {}, {}, std::move(font), {}});
}

void FakeCommonDialogs::verify() {
    for (const Expectation& expected : m_expected)
        m_onFailure(nameOf(expected.kind) + " never shown" +
                    (expected.path.empty() ? "" : ", its answer was to be: " + expected.path));
    m_expected.clear();
}

std::string FakeCommonDialogs::openFile(const FileDialogRequest& request) {
    m_recorded.push_back({Kind::OpenFile, request});
    return answer(Kind::OpenFile, request.title).path;
}

ChosenFiles FakeCommonDialogs::openFiles(const FileDialogRequest& request) {
    m_recorded.push_back({Kind::OpenFiles, request});
    return answer(Kind::OpenFiles, request.title).files;
}

std::string FakeCommonDialogs::openFolder(const FileDialogRequest& request) {
    m_recorded.push_back({Kind::OpenFolder, request});
    return answer(Kind::OpenFolder, request.title).path;
}

std::string FakeCommonDialogs::saveFile(const FileDialogRequest& request) {
    m_recorded.push_back({Kind::SaveFile, request});
    return answer(Kind::SaveFile, request.title).path;
}

std::optional<std::int32_t> FakeCommonDialogs::chooseColor(std::int32_t initial) {
    m_colors.push_back(initial);
    return answer(Kind::Color, {}).color;
}

std::optional<FontChoice> FakeCommonDialogs::chooseFont(const FontChoice& initial) {
    m_fonts.push_back(initial);
    return answer(Kind::Font, {}).font;
}

FakeCommonDialogs::Expectation FakeCommonDialogs::answer(Kind kind, const std::string& title) {
    if (m_expected.empty()) {
        m_onFailure("unexpected " + nameOf(kind) + ": " + title);
        return {kind, {}, {}, {}, {}};
    }
    Expectation expected = std::move(m_expected.front());
    m_expected.pop_front();
    if (expected.kind != kind) {
        m_onFailure("expected the " + nameOf(expected.kind) + "\nbut was shown the " +
                    nameOf(kind) + ": " + title);
        return {kind, {}, {}, {}, {}};
    }
    return expected;
}

FakeShell::FakeShell(FailureHandler onFailure) : m_onFailure(std::move(onFailure)) {}

FakeShell::~FakeShell() {
    verify();
}

void FakeShell::expectFindExecutable(const std::string& program) {
    m_expectedFinds.push_back([program](const std::string&) { return program; });
}

void FakeShell::expectFindExecutable(std::function<std::string(const std::string& file)> answer) {
    m_expectedFinds.push_back(std::move(answer));
}

void FakeShell::expectShellExecute(const std::string& program, const std::string& argument,
                                   bool isStarted) {
    m_expectedStarts.push_back({{program, argument}, isStarted});
}

void FakeShell::verify() {
    if (!m_expectedFinds.empty())
        m_onFailure("nobody asked for the associated program");
    for (const StartExpectation& expected : m_expectedStarts)
        m_onFailure("never started: " + expected.start.program + " " + expected.start.argument);
    m_expectedFinds.clear();
    m_expectedStarts.clear();
}

std::string FakeShell::FindExecutable(const std::string& file) {
    m_files.push_back(file);
    if (m_expectedFinds.empty()) {
        m_onFailure("unexpected question for the program of " + file);
        return {};
    }
    const auto answer = std::move(m_expectedFinds.front());
    m_expectedFinds.pop_front();
    return answer(file);
}

bool FakeShell::ShellExecute(const std::string& program, const std::string& argument) {
    m_starts.push_back({program, argument});
    if (m_expectedStarts.empty()) {
        m_onFailure("unexpected start of " + program + " " + argument);
        return false;
    }
    const StartExpectation expected = std::move(m_expectedStarts.front());
    m_expectedStarts.pop_front();
    if (expected.start.program != program || expected.start.argument != argument) {
        m_onFailure("expected the start of " + expected.start.program + " " +
                    expected.start.argument + "\nbut was asked for " + program + " " + argument);
        return false;
    }
    return expected.isStarted;
}

}  // namespace zev
