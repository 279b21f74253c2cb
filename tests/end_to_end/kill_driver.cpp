// SPDX-License-Identifier: MIT
// The editor for kill_test.py, which ends it in the middle of its work:
//
//     kill_driver edit FOLDER COMMANDS    works on FOLDER/site/menu.js by keys, always the same,
//     and
//                                         says after each command what the menu and the file are
//     kill_driver restore FOLDER          starts again, takes the offer, and says the same
//
// FOLDER holds "program" (the run-time files) and "site/menu.js"; "recovery" is made there. Each
// line is "done MENU FILE saved|changed"; of "restore" there is one, with "offered" or "silent" for
// "done". MENU and FILE are hashes of what a save would write and of what is there.
// Exit status: 0 done, 2 wrong use, 3 a message was shown.

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "app/frm_main.h"
#include "app/menu_tree_view.h"
#include "app/strip_line.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "script/script_writer.h"
#include "text/hash.h"

using namespace zev;

namespace {

void fail(const std::string& problem) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::exit(3);
}

class Editor {
  public:
    explicit Editor(const std::string& folder)
        : m_menuFile(folder + "/site/menu.js"), m_programFolder(folder + "/program") {
        m_window.show();
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window))
            fail("the window does not become active");
        m_window.openDefinition(m_menuFile);
        m_window.keepUnsavedMenus(folder + "/recovery");
    }

    void work(int commands) {
        for (int i = 0; i < commands; ++i) {
            runCommand();
            say("done");
        }
    }

    void takeOffer() {
        auto* const line = m_window.findChild<StripLine*>("Recovery");
        const bool isOffered = line->isVisible();
        if (isOffered)
            QTest::mouseClick(line->findChild<QPushButton*>(), Qt::LeftButton);
        say(isOffered ? "offered" : "silent");
    }

  private:
    void say(const char* what) {
        QFile file(QString::fromStdString(m_menuFile));
        const std::string bytes =
            file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "missing";
        const std::string menu = definitionFileBytes(GenerateScript(m_window.document().content()));
        std::printf("%s %016llx %016llx %s\n", what, static_cast<unsigned long long>(hashOf(menu)),
                    static_cast<unsigned long long>(hashOf(bytes)),
                    m_window.history().isSaved() ? "saved" : "changed");
        std::fflush(stdout);
    }

    unsigned below(unsigned count) { return unsigned(m_random()) % count; }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &m_window, key, modifiers);
    }

    void type(const char* name) {
        auto* const field = m_window.findChild<QLineEdit*>(name);
        if (!field->isEnabled())
            return;
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString("text%1").arg(below(1000)));
        press(Qt::Key_Tab, Qt::NoModifier);
    }

    void runCommand() {
        auto* const tree = m_window.findChild<MenuTreeView*>("TreeView");
        tree->setFocus();
        switch (below(12)) {
            case 0:
            case 1:
                return press(Qt::Key_A);
            case 2:
                return press(Qt::Key_W);
            case 3:
                return press(Qt::Key_D);
            case 4:
                return press(below(2) == 0 ? Qt::Key_R : Qt::Key_L);
            case 5:
                return press(Qt::Key_Delete, Qt::NoModifier);
            case 6:
                return press(Qt::Key_Z);
            case 7:
                return press(Qt::Key_Y);
            case 8:
                return below(4) == 0 ? press(Qt::Key_S) : type("txtTarget");
            case 9:
                return press(below(2) == 0 ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
            case 10:
                return type("txtCaption");
            default:
                return type("txtURL");
        }
    }

    std::string m_menuFile;
    std::string m_programFolder;
    std::mt19937 m_random{1};
    PosixFileSystem m_files;
    FakeMessageBox m_messages{fail};
    FakeCommonDialogs m_dialogs{fail};
    FakeShell m_shell{fail};
    FakeHelpViewer m_help;
    FakeBrowserView m_browser;
    frmMain m_window{
        {m_files, m_messages, m_dialogs, m_shell, m_help, m_browser}, m_programFolder, new QWidget};
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const std::string command = argc > 2 ? argv[1] : "";
    if (command == "edit" && argc == 4)
        Editor(argv[2]).work(std::atoi(argv[3]));
    else if (command == "restore" && argc == 3)
        Editor(argv[2]).takeOffer();
    else
        return 2;
    return 0;
}
