// SPDX-License-Identifier: MIT
// Runs one saving command of the editor, without its window, on the real disk:
//
//     save_driver save|saveas|preview FOLDER
//
// FOLDER holds "program" (the run-time files), "in.js" (a definition) and "site". The first item of
// the definition gets a new caption; then "save" writes in.js again, "saveas" writes site/menu.js,
// "preview" writes the preview files beside in.js. What the person would be told goes to standard
// error. Exit status: 0 done, 2 wrong use, 3 a definition could not be read or written.

#include <iostream>
#include <string>

#include "app/file_commands.h"
#include "platform/posix/posix_file_system.h"
#include "tests/support/document_steps.h"
#include "text/path.h"

using namespace zev;

namespace {

/// Says yes to every question, and remembers whether a definition was lost.
class PrintedMessages : public MessageBox {
  public:
    bool isFailureShown = false;

    Answer show(const MessageRequest& request) override {
        std::cerr << request.text << '\n';
        // One box tells of all files of a save, each on a line of its own.
        isFailureShown =
            isFailureShown || ("\n" + request.text).find("\nCould not ") != std::string::npos;
        return request.buttons == MessageRequest::Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
};

class OneFile : public CommonDialogs {
  public:
    explicit OneFile(std::string path) : m_path(std::move(path)) {}
    std::string openFile(const FileDialogRequest&) override { return m_path; }
    ChosenFiles openFiles(const FileDialogRequest&) override { return {}; }
    std::string openFolder(const FileDialogRequest&) override { return {}; }
    std::string saveFile(const FileDialogRequest&) override { return m_path; }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&) override { return std::nullopt; }

  private:
    std::string m_path;
};

class NoShell : public Shell {
  public:
    std::string FindExecutable(const std::string&) override { return {}; }
    bool ShellExecute(const std::string&, const std::string&) override { return false; }
};

class NoHelp : public HelpViewer {
  public:
    void show(const std::string&) override {}
};

class NoBrowser : public BrowserView {
  public:
    void load(const std::string&, const std::vector<std::string>&) override {}
    void forgetAllowedPictures() override {}
};

class NoView : public EditorView {
  public:
    void validateFields() override {}
    void StoreItem() override {}
    void showScript(const std::string&) override {}
    void Button_Update() override {}
};

}  // namespace

int main(int argc, char** argv) {
    const std::string command = argc == 3 ? argv[1] : "";
    if (command != "save" && command != "saveas" && command != "preview") {
        std::cerr << "usage: save_driver save|saveas|preview FOLDER\n";
        return 2;
    }
    const std::string folder = argv[2];
    PosixFileSystem files;
    PrintedMessages messages;
    OneFile dialogs(Path(folder).child("site/menu.js"));
    NoShell shell;
    NoHelp help;
    NoBrowser browser;
    NoView view;
    MenuDocument document(Path(folder).child("program"));
    FileCommands commands(document, view, {files, messages, dialogs, shell, help, browser});

    commands.openDefinition(Path(folder).child("in.js"));
    if (document.tree().isEmpty())
        return 3;
    test::editItem(document, *document.tree().firstNode())->Caption = "Changed";
    document.markModified();
    if (command == "save")
        commands.mnuFileSave_Click();
    else if (command == "saveas")
        commands.mnuFileSaveAs_Click();
    else
        commands.showPreview();
    return messages.isFailureShown ? 3 : 0;
}
