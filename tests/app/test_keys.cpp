// SPDX-License-Identifier: MIT
// Keys in the main window: which reach the commands, which the text fields, and what becomes of the
// text that is being typed when a command is given.

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <memory>

#include "imported_products.h"
#include "script/item_lines.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

/// Closes the window that comes next; `shown` receives its name.
void dismissNext(QString& shown) {
    whenShown<QDialog>([&shown](QDialog& dialog) {
        shown = dialog.objectName();
        dialog.reject();
    });
}

}  // namespace

class test_keys : public QObject {
    Q_OBJECT

  private slots:
    // Shortcuts

    void shortcutsWinOverTextFields_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("tree");
        for (const char* field : {"txtCaption", "txtURL", "txtTarget"}) {
            QTest::addRow("Ctrl+A in %s", field) << field << int(Qt::Key_A) << "a\nb\nc\n*Item 3\n";
            QTest::addRow("Ctrl+W in %s", field)
                << field << int(Qt::Key_W) << "a\n*b\n  Item 3\nc\n";
            QTest::addRow("Ctrl+R in %s", field) << field << int(Qt::Key_R) << "a\n  *b\nc\n";
            QTest::addRow("Ctrl+U in %s", field) << field << int(Qt::Key_U) << "*b\na\nc\n";
            QTest::addRow("Ctrl+D in %s", field) << field << int(Qt::Key_D) << "a\nc\n*b\n";
        }
    }
    void shortcutsWinOverTextFields() {
        QFETCH(QString, field);
        QFETCH(int, key);
        QFETCH(QString, tree);
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        desk.click(b);
        desk.field(field).setFocus();
        QTest::keyClick(&desk.field(field), static_cast<Qt::Key>(key), Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), tree);
    }

    void aDisabledShortcutDoesNotEditTheField() {
        WindowDesk desk;
        desk.add("first");
        QVERIFY(!desk.action("mnuEditMoveUp").isEnabled());
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(desk.field("txtCaption").text(), "first");
    }

    void delEditsTextInAField() {
        WindowDesk desk;
        desk.add("Home");
        desk.field("txtCaption").setCursorPosition(0);
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_Delete);
        QCOMPARE(desk.field("txtCaption").text(), "ome");
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_Delete, Qt::KeypadModifier);
        QCOMPARE(desk.field("txtCaption").text(), "me");
        QCOMPARE(desk.shownTree(), "*me\n");
    }

    void delEditsTextInALabelBeingEdited() {
        WindowDesk desk;
        const MenuNode* a = desk.add("Home");
        desk.doubleClick(a);
        desk.labelEditor()->setCursorPosition(0);
        QTest::keyClick(desk.labelEditor(), Qt::Key_Delete);
        QCOMPARE(desk.labelEditor()->text(), "ome");
    }

    void delDeletesNothingWhileTheScriptIsRead() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("JavaScript");
        desk.script().setFocus();
        QTest::keyClick(&desk.script(), Qt::Key_Delete);
        QCOMPARE(desk.shownTree(), "*a\n");
    }

    void delOnAButtonDeletesTheItem() {
        WindowDesk desk;
        desk.add("a");
        desk.button("cmdURL").setFocus();
        QTest::keyClick(&desk.button("cmdURL"), Qt::Key_Delete);
        QCOMPARE(desk.shownTree(), "");
    }

    void aCommandLeavesTheFieldFirst_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("panel");
        QTest::newRow("caption") << "txtCaption"
                                 << "It's"
                                 << "normal|It\\'s||||";
        QTest::newRow("URL") << "txtURL"
                             << "f('a\")"
                             << "normal|a|f(\\'a)|||";
        QTest::newRow("target") << "txtTarget"
                                << "'main\""
                                << "normal|a||main||";
    }
    void aCommandLeavesTheFieldFirst() {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, panel);
        for (const bool byKey : {true, false}) {
            WindowDesk desk;
            desk.add("a");
            desk.document().setFile("/site/menu.js", "/site");
            desk.type(field, typed);
            if (byKey)
                QTest::keyClick(&desk.field(field), Qt::Key_S, Qt::ControlModifier);
            else
                desk.clickToolBar(3);
            QCOMPARE(desk.shownPanel(), panel);
            QVERIFY(desk.disk.allFiles()
                        .at("/site/menu.js")
                        .find(GetText(desk.document().CurNode()->item)) != std::string::npos);
            QVERIFY(!desk.document().bModified());
        }
    }

    void aMenuOpenedByKeyboardRunsItsEntry() {
        WindowDesk desk;
        desk.add("It's");
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_E, Qt::AltModifier);
        auto* menu = desk.window.findChild<QMenu*>("mnuEdit");
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_M);
        QCOMPARE(desk.shownTree(), "It\\'s\n*Item 1\n");
    }

    void everyShortcutWorksInTheTree() {
        WindowDesk desk;
        desk.add("a");
        desk.add("b");
        desk.tree().setFocus();
        const auto press = [&desk](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
            return desk.shownTree();
        };
        QCOMPARE(press(Qt::Key_U), "*b\na\n");
        QCOMPARE(press(Qt::Key_D), "a\n*b\n");
        QCOMPARE(press(Qt::Key_R), "a\n  *b\n");
        QCOMPARE(press(Qt::Key_L), "a\n*b\n");
        QCOMPARE(press(Qt::Key_W), "a\n*b\n  Item 4\n");
        QCOMPARE(press(Qt::Key_A), "a\nb\n  Item 4\n*Item 5\n");
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        press(Qt::Key_S);
        QVERIFY(desk.disk.FileExists("/site/menu.js"));
        desk.dialogs.expectOpenFile("/site/menu.js");
        QCOMPARE(press(Qt::Key_O), "*a\nb\n  Item 4\nItem 5\n");
        QCOMPARE(press(Qt::Key_N), "");
    }

    void otherKeysOfTheTreeChangeNothing_data() {
        QTest::addColumn<QKeyCombination>("key");
        QTest::newRow("Backspace") << QKeyCombination(Qt::Key_Backspace);
        QTest::newRow("Shift+Del") << (Qt::SHIFT | Qt::Key_Delete);
        QTest::newRow("Ctrl+X") << (Qt::CTRL | Qt::Key_X);
        QTest::newRow("Ctrl+V") << (Qt::CTRL | Qt::Key_V);
        QTest::newRow("Ctrl+Shift+A") << (Qt::CTRL | Qt::SHIFT | Qt::Key_A);
        QTest::newRow("Return") << QKeyCombination(Qt::Key_Return);
        QTest::newRow("Escape") << QKeyCombination(Qt::Key_Escape);
    }
    void otherKeysOfTheTreeChangeNothing() {
        QFETCH(QKeyCombination, key);
        WindowDesk desk;
        desk.add("a");
        desk.add("b");
        desk.tree().setFocus();
        desk.forgetChanges();
        QTest::keyClick(&desk.tree(), key.key(), key.keyboardModifiers());
        QCOMPARE(desk.shownTree(), "a\n*b\n");
        QVERIFY(!desk.document().bModified());
        QVERIFY(desk.labelEditor() == nullptr);
    }

    void propertyKeysTakeTheLabelBeingEdited_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("form");
        QTest::newRow("F2") << Qt::Key_F2 << "frmMenuProp";
        QTest::newRow("F8") << Qt::Key_F8 << "frmDefaultProp";
    }
    void propertyKeysTakeTheLabelBeingEdited() {
        QFETCH(Qt::Key, key);
        QFETCH(QString, form);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.startLabel(a, "It's");
        QString shown;
        dismissNext(shown);
        QTest::keyClick(desk.labelEditor(), key);
        QCOMPARE(shown, form);
        QCOMPARE(desk.shownTree(), "*It\\'s\n");
        QCOMPARE(desk.shownPanel(), "normal|It\\'s||||");
        QVERIFY(desk.labelEditor() == nullptr);
    }

    // Commands and the text being typed

    void everyCommandTakesTheLabelBeingEdited_data() { addCommands(); }
    void everyCommandTakesTheLabelBeingEdited() {
        QFETCH(QString, entry);
        WindowDesk desk;
        const MenuNode* b = addThree(desk);
        desk.startLabel(b, "It's");
        QTest::keyClick(desk.labelEditor(), Qt::Key_End);
        run(desk, entry);
        QVERIFY(desk.labelEditor() == nullptr);
        if (entry == "mnuEditDelete")
            QVERIFY(!desk.shownTree().contains("It"));
        else
            QVERIFY2(desk.shownTree().contains("It\\'s\n"), qPrintable(desk.shownTree()));
        // Nobody else's text.
        QCOMPARE(desk.shownTree().count("It\\'s"), entry == "mnuEditDelete" ? 0 : 1);
        QCOMPARE(desk.field("txtCaption").text(),
                 QString::fromStdString(desk.document().CurNode()->text));
    }

    void everyCommandKeepsWhatIsTypedIntoAField_data() { addCommands(); }
    void everyCommandKeepsWhatIsTypedIntoAField() {
        QFETCH(QString, entry);
        WindowDesk desk;
        const MenuNode* b = addThree(desk);
        desk.click(b);
        desk.type("txtURL", "javascript:f('x\")");
        run(desk, entry);
        desk.clickTab("JavaScript");
        int found = 0;
        for (const MenuNode* node = desk.document().tree().firstNode(); node;
             node = desk.document().tree().nextInTreeOrder(*node)) {
            if (node->item.URL == "javascript:f(\\'x)") {
                QCOMPARE(node->item.Caption, "b");
                ++found;
            } else {
                QCOMPARE(node->item.URL, "");
            }
        }
        QCOMPARE(found, entry == "mnuEditDelete" ? 0 : 1);
    }

    // The document that is given up takes the label with it, and nothing reaches the one that
    // comes.
    void aLabelBeingEditedStaysOutOfTheNextMenu_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry : {"mnuFileNew", "mnuFileOpen", "mnuFileImportOrletBar"})
            QTest::newRow(entry) << entry;
    }
    void aLabelBeingEditedStaysOutOfTheNextMenu() {
        QFETCH(QString, entry);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.startLabel(a, "Edited");
        desk.disk.addFile("/site/menu.js",
                          "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('Home', '', '');\r\n");
        desk.disk.addFile("/old/menu.txt", ImportedProducts()[1].file);
        if (entry != "mnuFileOpen")
            desk.messages.expect(WindowDesk::saveChanges, Answer::No);
        if (entry == "mnuFileOpen")
            desk.dialogs.expectOpenFile("/site/menu.js");
        if (entry == "mnuFileImportOrletBar") {
            desk.dialogs.expectOpenFile("/old/menu.txt");
            desk.messages.expect("Finished importing /old/menu.txt. 0 warnings encountered.");
        }
        desk.choose(entry);
        QVERIFY(desk.labelEditor() == nullptr);
        QVERIFY(!desk.shownTree().contains("Edited"));
        QVERIFY(!desk.document().bModified());
        QCOMPARE(desk.field("txtCaption").text(), entry == "mnuFileNew" ? "" : "Home");
    }

    void aLabelBeingEditedIsAChangeThatExitAsksAbout() {
        WindowDesk desk;
        QSignalSpy ended(&desk.window, &frmMain::ended);
        const MenuNode* a = desk.add("a");
        desk.forgetChanges();
        desk.startLabel(a, "Edited");
        desk.messages.expect(WindowDesk::saveChanges, Answer::Yes);
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        desk.window.close();
        QCOMPARE(ended.size(), 1);
        QVERIFY(desk.disk.allFiles().at("/site/menu.js").find("'Edited'") != std::string::npos);
    }

    void saveAsRecalculatesTheFieldBeingTyped() {
        WindowDesk desk;
        desk.document().setFile(desk.document().SaveFile(), "/site");
        desk.disk.addFolder("/site/sub");
        const MenuNode* a = desk.add("a");
        desk.type("txtURL", "it's.html");
        desk.dialogs.expectSaveFile("/site/sub/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::Yes);
        QTest::keyClick(&desk.field("txtURL"), Qt::Key_F, Qt::AltModifier);
        auto* menu = desk.window.findChild<QMenu*>("mnuFile");
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_A);
        QCOMPARE(a->item.URL, "../it\\'s.html");
        QCOMPARE(desk.field("txtURL").text(), "../it\\'s.html");
    }

    // Undo in a field

    void ctrlZUndoesWhatWasTyped() {
        WindowDesk desk;
        desk.add("a");
        QLineEdit& caption = desk.field("txtCaption");
        QTest::mouseClick(&caption, Qt::LeftButton);
        QTest::keyClick(&caption, Qt::Key_End);
        QTest::keyClicks(&caption, "bc");
        QCOMPARE(desk.shownTree(), "*abc\n");
        while (caption.isUndoAvailable())
            QTest::keyClick(&caption, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!desk.shownTree().contains("bc"));
        QCOMPARE(desk.shownTree(), "*" + caption.text() + "\n");
    }

    void ctrlZInAFieldWithNothingTypedIsTheUndoOfTheMenu() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.type("txtURL", "of-a.html");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        desk.click(b);
        QLineEdit& field = desk.field("txtURL");
        QTest::mouseClick(&field, Qt::LeftButton);
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "a\n*Item 1\n");
        QCOMPARE(field.text(), "");
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "*a\n");
        QCOMPARE(field.text(), "of-a.html");
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.text(), "");
    }

    void theFieldsMenuNamesNoKeyThatBelongsToACommand() {
        WindowDesk desk;
        desk.add("a");
        const std::unique_ptr<QMenu> menu(desk.field("txtCaption").createStandardContextMenu());
        QVERIFY(!menu->actions().isEmpty());
        for (const QAction* entry : menu->actions())
            QVERIFY2(!entry->text().contains("Ctrl+A"), qPrintable(entry->text()));
    }

    // Access keys

    void accessKeysOpenTheMenusFromEverywhere_data() {
        QTest::addColumn<QString>("place");
        for (const char* place : {"txtCaption", "TreeView", "cmdURL", "txtJavaScript"})
            QTest::newRow(place) << place;
    }
    void accessKeysOpenTheMenusFromEverywhere() {
        QFETCH(QString, place);
        WindowDesk desk;
        desk.add("a");
        if (place == "txtJavaScript")
            desk.clickTab("JavaScript");
        auto* widget = desk.window.findChild<QWidget*>(place);
        for (const auto& [key, name] : {std::pair{Qt::Key_F, "mnuFile"},
                                        {Qt::Key_E, "mnuEdit"},
                                        {Qt::Key_T, "mnuTools"},
                                        {Qt::Key_H, "mnuHelp"}}) {
            widget->setFocus();
            QTest::keyClick(widget, key, Qt::AltModifier);
            auto* menu = desk.window.findChild<QMenu*>(name);
            QTRY_VERIFY2(menu->isVisible(), name);
            QTest::keyClick(menu, Qt::Key_Escape);
            QTRY_VERIFY(!menu->isVisible());
            QTest::keyClick(desk.window.menuBar(), Qt::Key_Escape);
        }
        QCOMPARE(desk.shownTree(), "*a\n");
    }

    void accessKeysReachTheFields_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("field");
        QTest::addColumn<bool>("isRollover");
        QTest::newRow("caption") << Qt::Key_D << "txtCaption" << false;
        QTest::newRow("URL") << Qt::Key_U << "txtURL" << false;
        QTest::newRow("target") << Qt::Key_G << "txtTarget" << true;
        QTest::newRow("out image") << Qt::Key_O << "txtImgOut" << true;
        QTest::newRow("over image") << Qt::Key_V << "txtImgOver" << true;
        QTest::newRow("disabled") << Qt::Key_O << "TreeView" << false;
    }
    void accessKeysReachTheFields() {
        QFETCH(Qt::Key, key);
        QFETCH(QString, field);
        QFETCH(bool, isRollover);
        WindowDesk desk;
        desk.add("a");
        if (isRollover)
            desk.click(desk.button("optRollover"));
        desk.tree().setFocus();
        QTest::keyClick(&desk.tree(), key, Qt::AltModifier);
        QCOMPARE(desk.window.focusWidget()->objectName(), field);
    }

    void accessKeysChooseTheType() {
        WindowDesk desk;
        desk.add("a");
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_I, Qt::AltModifier);
        // The button is seen going down first.
        QTRY_VERIFY(desk.button("optRollover").isChecked());
        QVERIFY(!desk.field("txtCaption").isEnabled());
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_X, Qt::AltModifier);
        QTRY_VERIFY(desk.button("optNormal").isChecked());
        QVERIFY(desk.field("txtCaption").isEnabled());
    }

  private:
    static void addCommands() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuFileSave", "mnuFileSaveAs", "mnuFileOpen", "mnuEditDefault",
              "mnuEditMenuProperties", "mnuEditAddMenuItem", "mnuEditAddSubmenuItem",
              "mnuEditMoveLeft", "mnuEditMoveRight", "mnuEditMoveUp", "mnuEditMoveDown",
              "mnuEditDelete", "mnuToolsIntegrate", "mnuHelpContents", "mnuHelpSupport"})
            QTest::newRow(entry) << entry;
    }

    /// A parent with three children; all moves are possible for the second one, which is returned.
    static const MenuNode* addThree(WindowDesk& desk) {
        desk.add("parent");
        desk.addChild("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        return b;
    }

    /// Chooses an entry, with the answers that it needs.
    static void run(WindowDesk& desk, const QString& entry) {
        QString shown;
        if (entry == "mnuFileSave" || entry == "mnuFileSaveAs") {
            desk.dialogs.expectSaveFile("/site/menu.js");
            desk.messages.expect(WindowDesk::recalculate, Answer::Yes);
        } else if (entry == "mnuFileOpen") {
            desk.dialogs.expectOpenFile("");
        } else if (entry == "mnuEditDefault" || entry == "mnuEditMenuProperties" ||
                   entry == "mnuToolsIntegrate") {
            dismissNext(shown);
        } else if (entry == "mnuHelpSupport") {
            desk.shell.expectFindExecutable("/usr/bin/browser");
            desk.shell.expectShellExecute("/usr/bin/browser", "https://zevmenu.example/support");
        }
        desk.choose(entry);
    }
};

QTEST_MAIN(test_keys)
#include "test_keys.moc"
