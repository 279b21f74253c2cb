// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <string>

#include "app/frm_main.h"
#include "app/menu_tree_view.h"
#include "file_commands_desk.h"
#include "script/script_writer.h"

namespace zev {

/// The real window over a disk in memory, with the run-time files in "/program", an empty folder
/// "/site", and services that answer from a script. Opens with a new document, shown and active.
struct WindowDesk {
    /// `userFolder`: for what the program remembers; empty: it remembers nothing.
    explicit WindowDesk(const std::string& userFolder = {},
                        const VendorAddresses& vendor = vendorAddresses("zevmenu.example"))
        : services{disk, messages, dialogs, shell, help, browser, userFolder, {}, vendor} {
        for (const char* name :
             {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
            disk.addFile(std::string("/program/") + name, name);
        disk.addFolder("/site");
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            failQtTest("the window does not become active");
    }

    MenuDocument& document() { return window.document(); }
    MenuTreeView& tree() { return *window.findChild<MenuTreeView*>("TreeView"); }
    QAction& action(const QString& name) { return named<QAction>(name); }
    QLineEdit& field(const QString& name) { return named<QLineEdit>(name); }
    QAbstractButton& button(const QString& name) { return named<QAbstractButton>(name); }
    QPlainTextEdit& script() { return named<QPlainTextEdit>("txtJavaScript"); }
    QTabWidget& tabs() { return named<QTabWidget>("MenuTab"); }

    /// Chooses a menu entry, as the menu does.
    void choose(const QString& name) { action(name).trigger(); }
    /// Saves the menu as `path`, without recalculating its URLs.
    void saveAs(const std::string& path) {
        dialogs.expectSaveFile(path);
        messages.expect(recalculate, MessageBox::Answer::No);
        choose("mnuFileSaveAs");
    }
    /// Adds an item with the keyboard and gives it a caption.
    const MenuNode* add(const QString& caption) { return addBy("mnuEditAddMenuItem", caption); }
    /// Adds a child to the selected item, goes to it and gives it a caption.
    const MenuNode* addChild(const QString& caption) {
        choose("mnuEditAddSubmenuItem");
        click(document().selectedNode()->children().back());
        type("txtCaption", caption);
        return document().CurNode();
    }

    void click(QAbstractButton& target) {
        // Near the left edge: an option button takes clicks on its mark and caption alone.
        QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(10, target.height() / 2));
    }
    void click(const MenuNode* node) {
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, placeOf(node));
    }
    void doubleClick(const MenuNode* node) {
        click(node);
        QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, placeOf(node));
    }
    /// Folds the branch of a node, or unfolds it, by its mark before the label.
    void clickBranchMark(const MenuNode* node) {
        const QPoint label = placeOf(node);
        const int indentation = tree().indentation();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                          QPoint(label.x() - 6 - indentation / 2, label.y()));
    }
    /// A point on the label of a node, in the tree's viewport, which is scrolled to it.
    QPoint placeOf(const MenuNode* node) {
        const QModelIndex index = indexOf(node);
        tree().scrollTo(index);
        return tree().visualRect(index).topLeft() + QPoint(6, 6);
    }
    /// Clicks the toolbar's button with this index.
    void clickToolBar(int index) {
        auto& bar = named<QToolBar>("tbToolBar");
        QTest::mouseClick(bar.widgetForAction(bar.actions().at(index - 1)), Qt::LeftButton);
    }
    void clickTab(const QString& caption) {
        QTabBar* bar = tabs().tabBar();
        for (int tab = 0; tab < bar->count(); ++tab)
            if (bar->tabText(tab) == caption)
                QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
    }
    /// Clicks into a field and replaces its text, key by key. The field keeps the focus.
    void type(const QString& name, const QString& text) {
        QLineEdit& target = field(name);
        QTest::mouseClick(&target, Qt::LeftButton);
        target.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&target, Qt::Key_Backspace);
        pressKeys(target, text);
    }
    /// Types key by key. Characters beyond ASCII come as from an input method.
    static void pressKeys(QWidget& target, const QString& text) {
        for (const char32_t codePoint : text.toUcs4()) {
            if (codePoint < 128) {
                QTest::keyClick(&target, static_cast<char>(codePoint));
                continue;
            }
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&codePoint, 1));
            QCoreApplication::sendEvent(&target, &press);
        }
    }
    /// The in-place editor of the tree; null when none is open.
    QLineEdit* labelEditor() {
        for (auto* editor : tree().viewport()->findChildren<QLineEdit*>())
            if (!editor->isHidden())
                return editor;
        return nullptr;
    }
    /// Opens the in-place editor of a node and types `text` over the label. It stays open.
    void startLabel(const MenuNode* node, const QString& text) {
        doubleClick(node);
        if (labelEditor() == nullptr)
            qFatal("no in-place editor");
        labelEditor()->selectAll();
        pressKeys(*labelEditor(), text);
    }
    /// Edits the label of a node in place; `closingKey` ends it.
    void editLabel(const MenuNode* node, const QString& text, Qt::Key closingKey) {
        startLabel(node, text);
        QTest::keyClick(labelEditor(), closingKey);
        // The delegate closes its editor from the event loop.
        QCoreApplication::processEvents();
    }

    /// What the tree shows: one line a node, two spaces a level, "*" before the selected one.
    QString shownTree() { return shownBranch(QModelIndex(), QString()); }
    /// The menu's script as the JavaScript tab is to show it.
    QString expectedScript() {
        return QString::fromStdString(GenerateScript(document().content())).replace("\r\n", "\n");
    }
    /// What the panel's fields show.
    QString shownPanel() {
        return QString("%1|%2|%3|%4|%5|%6")
            .arg(button("optRollover").isChecked() ? "rollover" : "normal",
                 field("txtCaption").text(), field("txtURL").text(), field("txtTarget").text(),
                 field("txtImgOut").text(), field("txtImgOver").text());
    }
    /// Clears the mark as a save does, and brings the commands up to date.
    void forgetChanges() {
        document().markSaved();
        window.Button_Update();
    }

    static constexpr const char* recalculate = Desk::recalculate;
    static constexpr const char* saveChanges = Desk::saveChanges;

    FakeFileSystem disk;
    FakeMessageBox messages{failQtTest};
    FakeCommonDialogs dialogs{failQtTest};
    FakeShell shell{failQtTest};
    FakeHelpViewer help;
    FakeBrowserView browser;
    EditorServices services;
    frmMain window{services, "/program", new QWidget};

  private:
    template <typename Object>
    Object& named(const QString& name) {
        auto* object = window.findChild<Object*>(name);
        if (object == nullptr)
            qFatal("no object named %s", qPrintable(name));
        return *object;
    }
    const MenuNode* addBy(const QString& entry, const QString& caption) {
        choose(entry);
        type("txtCaption", caption);
        return document().CurNode();
    }
    QModelIndex indexOf(const MenuNode* node) {
        return static_cast<TreeViewModel*>(tree().model())->indexOf(node);
    }
    QString shownBranch(const QModelIndex& parent, const QString& indent) {
        QString text;
        const QAbstractItemModel& model = *tree().model();
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            const bool isSelected = tree().selectionModel()->isSelected(index);
            text += indent + (isSelected ? "*" : "") + index.data().toString() + "\n";
            text += shownBranch(index, indent + "  ");
        }
        return text;
    }
};

}  // namespace zev
