// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <memory>

#include "app/frm_main.h"
#include "app/menu_tree_view.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "platform/qt/qt_browser_view.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_shell.h"
#include "when_shown.h"

namespace zev {

/// The editor's window on a display, with the real disk, browser engine and message boxes. Only the
/// system's common dialogs are answered from a script. The folder "program" holds the run-time
/// files, the folder "site" is empty.
class EditorOnDisk {
  protected:
    void start() {
        QVERIFY(m_folder.isValid());
        QDir folder(m_folder.path());
        QVERIFY(folder.mkdir("program"));
        QVERIFY(folder.mkdir("site"));
        for (const QString name :
             {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
            QVERIFY(QFile::copy(ZEV_RUNTIME_FOLDER "/" + name, folder.filePath("program/" + name)));
        m_menuFile = folder.filePath("site/menu.js");

        auto* browser = new QtBrowserView;
        m_window = std::make_unique<frmMain>(
            EditorServices{m_files, m_messages, m_dialogs, m_shell, m_help, *browser},
            folder.filePath("program").toStdString(), browser);
        m_window->show();
        activate(*m_window);
    }

    /// There is no window manager that would make a window active: neither a new one, nor an old
    /// one again after a message box.
    static void activate(QWidget& window) {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    template <typename T>
    T* find(const char* name) const {
        return findIn<T>(*m_window, name);
    }
    template <typename T>
    static T* findIn(QWidget& window, const char* name) {
        auto* object = window.findChild<T*>(name);
        if (object == nullptr)
            qFatal("no object named %s", name);
        return object;
    }

    void type(const char* field, const QString& text) { typeInto(*m_window, field, text); }
    static void typeInto(QWidget& window, const char* field, const QString& text) {
        auto* edit = findIn<QLineEdit>(window, field);
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::keyClick(edit, Qt::Key_Home);
        QTest::keyClick(edit, Qt::Key_End, Qt::ShiftModifier);
        QTest::keyClicks(edit, text);
    }

    /// Clicks the toolbar's button with this key.
    void clickButton(const QString& key) {
        auto* bar = find<QToolBar>("tbToolBar");
        for (QAction* action : bar->actions()) {
            if (action->toolTip() == key) {
                QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
                return;
            }
        }
        QFAIL("no such button");
    }

    void clickNode(const MenuNode* node) {
        auto* tree = find<MenuTreeView>("TreeView");
        const auto* model = static_cast<TreeViewModel*>(tree->model());
        const QRect place = tree->visualRect(model->indexOf(node));
        QVERIFY(!place.isEmpty());
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place.center());
    }

    void clickTab(const QString& caption) {
        const auto* tabs = find<QTabWidget>("MenuTab");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->tabText(tab) == caption) {
                const QPoint place = tabs->tabBar()->tabRect(tab).center();
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, place);
                QCOMPARE(tabs->currentIndex(), tab);
                return;
            }
        }
        QFAIL("no such tab");
    }

    /// Opens a menu by mouse and chooses the entry with this access key.
    void chooseEntry(const char* menu, Qt::Key entry) {
        auto* popup = find<QMenu>(menu);
        QMenuBar* bar = m_window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          bar->actionGeometry(popup->menuAction()).center());
        QTRY_VERIFY(popup->isVisible());
        QTest::keyClick(popup, entry);
    }

    /// Presses `key` where the focus is.
    void pressShortcut(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        activate(*m_window);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    /// Runs `choose`, which is to begin a Save As, saves as `m_menuFile`, and leaves links alone.
    void saveAs(const std::function<void()>& choose) {
        m_dialogs.expectSaveFile(m_menuFile.toStdString());
        bool isAsked = false;
        whenShown<QMessageBox>([&](QMessageBox& box) {
            isAsked = true;
            QCOMPARE(box.text(), QString("Recalculate relative URLs for hyperlinks and images?"));
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        choose();
        QVERIFY(isAsked);
        m_dialogs.verify();
    }

    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    QTemporaryDir m_folder;
    PosixFileSystem m_files;
    QtShell m_shell;
    QtMessageBox m_messages;
    FakeCommonDialogs m_dialogs{
        [](const std::string& problem) { QTest::qFail(problem.c_str(), __FILE__, __LINE__); }};
    QtHelpViewer m_help;
    std::unique_ptr<frmMain> m_window;
    QString m_menuFile;
};

}  // namespace zev
