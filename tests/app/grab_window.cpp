// SPDX-License-Identifier: MIT
// Takes a picture of each tab of the editor's window, of the opened list of notes and of each
// property dialog, to be looked at by a person:
//
//     grab_window DEFINITION.js FOLDER [--dark] [--size WIDTHxHEIGHT] [--unsaved FOLDER]
//
// "--unsaved": where an editor has left unsaved menus, for the line that offers them.
// QT_SCALE_FACTOR=2 gives the pictures of a 200 % display; a virtual display (Xvfb) does. The
// definition's folder receives the preview's files.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

#include "app/frm_main.h"
#include "platform/posix/posix_file_system.h"
#include "platform/qt/plain_button_style.h"
#include "platform/qt/qt_browser_view.h"
#include "platform/qt/qt_common_dialogs.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_shell.h"
#include "theme_palettes.h"
#include "when_shown.h"

using namespace zev;

namespace {

/// From the screen, so that the browser's picture is the real one.
void grab(QWidget& window, const QString& name, const QString& folder, bool isDark) {
    const QString file = QString("%1_%2_%3.png")
                             .arg(name, isDark ? "dark" : "light")
                             .arg(qRound(window.devicePixelRatio() * 100));
    if (!window.screen()->grabWindow(window.winId()).save(QDir(folder).filePath(file)))
        qFatal("The picture could not be written.");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3)
        qFatal(
            "grab_window DEFINITION.js FOLDER [--dark] [--size WIDTHxHEIGHT] [--unsaved FOLDER]");
    const bool isDark = arguments.contains("--dark");
    QApplication::setStyle(new PlainButtonStyle(QStyleFactory::create("Fusion")));
    QApplication::setPalette(isDark ? darkPalette() : lightPalette());

    PosixFileSystem files;
    QtShell shell;
    QtMessageBox messages;
    QtCommonDialogs dialogs;
    QtHelpViewer help;
    auto* browser = new QtBrowserView;
    frmMain window({files, messages, dialogs, shell, help, *browser},
                   QApplication::applicationDirPath().toStdString(), browser);
    const qsizetype size = arguments.indexOf("--size");
    if (size > 0) {
        const QStringList sides = arguments.at(size + 1).split('x');
        window.resize(sides.at(0).toInt(), sides.at(1).toInt());
    }
    window.move(0, 0);
    window.show();
    window.openDefinition(QFileInfo(arguments.at(1)).absoluteFilePath().toStdString());

    const qsizetype unsaved = arguments.indexOf("--unsaved");
    if (unsaved > 0)
        window.keepUnsavedMenus(arguments.at(unsaved + 1).toStdString());

    auto* tabs = window.findChild<QTabWidget*>("MenuTab");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QTest::qWait(tabs->tabText(tab) == "Preview" ? 4000 : 300);
        grab(window, tabs->tabText(tab).toLower(), arguments.at(2), isDark);
    }

    tabs->setCurrentIndex(0);
    for (auto* button : window.findChild<QWidget*>("Notes")->findChildren<QAbstractButton*>())
        if (button->isVisible() && button->text() == "Show Notes")
            button->click();
    QTest::qWait(300);
    grab(window, "notes", arguments.at(2), isDark);

    const auto grabDialog = [&](QDialog& dialog) {
        dialog.move(0, 0);
        QTest::qWait(300);
        grab(dialog, dialog.objectName(), arguments.at(2), isDark);
    };
    tabs->setCurrentIndex(0);
    for (auto* button : window.findChild<QWidget*>("Recovery")->findChildren<QAbstractButton*>()) {
        if (button->text() != "Show Changes")
            continue;
        whenShown<QDialog>([&](QDialog& changes) {
            grabDialog(changes);
            changes.reject();
        });
        button->click();
    }
    whenShown<QDialog>([&](QDialog& defaults) {
        grabDialog(defaults);
        defaults.reject();
    });
    window.mnuEditDefault_Click();
    whenShown<QDialog>([&](QDialog& menu) {
        grabDialog(menu);
        whenShown<QDialog>([&](QDialog& advanced) {
            if (&advanced == &menu)
                qFatal("The advanced properties are not shown.");
            grabDialog(advanced);
            advanced.reject();
        });
        menu.findChild<QAbstractButton*>("cmdAdvanced")->click();
        menu.reject();
    });
    window.mnuEditMenuProperties_Click();
    return 0;
}
