// SPDX-License-Identifier: MIT
// Goes through the Menu Integrator, without a display, over the real disk:
//
//     wizard_driver integrate|report FOLDER
//
// Integrates the page FOLDER/site/page.htm, with the menu and the library in FOLDER/site; "report"
// then saves the report as FOLDER/site/report.txt, "integrate" prints it. What the person would be
// told goes to standard error. Exit status: 0 done, 1 the report tells of an error, 2 wrong use,
// 3 the report could not be written.

#include <QAbstractButton>
#include <QApplication>
#include <QPlainTextEdit>
#include <iostream>
#include <string>

#include "integrator/wizard/frm_integrator.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"
#include "platform/posix/posix_file_system.h"

using namespace zev;

namespace {

class PrintedMessages : public MessageBox {
  public:
    bool isShown = false;

    Answer show(const MessageRequest& request) override {
        std::cerr << request.text << '\n';
        isShown = true;
        return Answer::Ok;
    }
};

class SiteDialogs : public CommonDialogs {
  public:
    explicit SiteDialogs(std::string site) : m_site(std::move(site)) {}
    std::string openFile(const FileDialogRequest&) override { return {}; }
    ChosenFiles openFiles(const FileDialogRequest&) override { return {m_site, {"page.htm"}}; }
    std::string openFolder(const FileDialogRequest&) override { return {}; }
    std::string saveFile(const FileDialogRequest&) override { return m_site + "/report.txt"; }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&) override { return std::nullopt; }

  private:
    std::string m_site;
};

}  // namespace

int main(int argc, char** argv) {
    const std::string command = argc == 3 ? argv[1] : "";
    if (command != "integrate" && command != "report") {
        std::cerr << "usage: wizard_driver integrate|report FOLDER\n";
        return 2;
    }
    const QApplication application(argc, argv);
    const std::string site = std::string(argv[2]) + "/site";
    PosixFileSystem files;
    PrintedMessages messages;
    SiteDialogs dialogs(site);
    frmIntegrator wizard({files, messages, dialogs}, {"/"}, nullptr);
    wizard.setDefinition(site + "/menu.js");
    wizard.show();

    const auto press = [&](const char* button) {
        wizard.findChild<QAbstractButton*>(button)->click();
    };
    press("btnNext");
    press("BtnInputFile");
    for (int step = 1; step < 4; ++step)
        press("btnNext");
    if (command == "report") {
        press("btnSaveReport");
        return messages.isShown ? 3 : 0;
    }
    const QString report = wizard.findChild<QPlainTextEdit*>("txtReport")->toPlainText();
    std::cout << report.toStdString();
    return report.contains("ERROR: ") ? 1 : 0;
}
