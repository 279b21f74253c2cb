// SPDX-License-Identifier: MIT
// The main window: what the commands of its menus do.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <stdexcept>

#include "app/frm_about.h"
#include "integrator/run_record.h"
#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/undo_window.h"
#include "property_dialogs_hands.h"
#include "script/script_writer.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

}  // namespace

class test_frm_main_commands : public QObject {
    Q_OBJECT

  private slots:
    // File commands in the window

    void theCaptionNamesTheFile() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator (/site/menu.js)");
        desk.choose("mnuFileNew");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator");
    }

    void newWithChangesAsks_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("tree");
        QTest::newRow("yes, saved") << int(Answer::Yes) << "/site/menu.js"
                                    << "";
        QTest::newRow("yes, dialog cancelled") << int(Answer::Yes) << ""
                                               << "";
        QTest::newRow("no") << int(Answer::No) << ""
                            << "";
        QTest::newRow("cancel") << int(Answer::Cancel) << ""
                                << "*It\\'s\n";
    }
    void newWithChangesAsks() {
        QFETCH(int, answer);
        QFETCH(QString, file);
        QFETCH(QString, tree);
        WindowDesk desk;
        desk.add("It's");
        desk.messages.expect(WindowDesk::saveChanges, static_cast<Answer>(answer));
        if (static_cast<Answer>(answer) == Answer::Yes)
            desk.dialogs.expectSaveFile(file.toStdString());
        if (!file.isEmpty())
            desk.messages.expect(WindowDesk::recalculate, Answer::No);
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), tree);
        QCOMPARE(desk.field("txtCaption").text(), tree.isEmpty() ? "" : "It\\'s");
        QCOMPARE(desk.field("txtCaption").isEnabled(), !tree.isEmpty());
        QCOMPARE(desk.document().bModified(), !tree.isEmpty());
        QCOMPARE(desk.disk.FileExists("/site/menu.js"), !file.isEmpty());
        if (!file.isEmpty())
            QVERIFY(desk.disk.allFiles().at("/site/menu.js").find("'It\\'s'") != std::string::npos);
    }

    void aSaveThatFailsLeavesTheMenuAndTheFileAsTheyWere() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        const std::string saved = desk.disk.allFiles().at("/site/menu.js");
        for (const char* const name :
             {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "orlet_temp.html"})
            desk.disk.addFile(std::string("/site/") + name,
                              "(function(){//ZEVMenu\nof an earlier version");
        desk.type("txtURL", "it's");
        desk.disk.setWritable("/site", false);
        desk.messages.expect(
            "a message about the five files in the folder",
            [](const MessageRequest& request) {
                return QString::fromStdString(request.text).count("/site/") == 5 &&
                       request.text.find("\nCould not save /site/menu.js: ") != std::string::npos;
            },
            Answer::Ok);
        QTest::keyClick(&desk.field("txtURL"), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(desk.disk.allFiles().at("/site/menu.js"), saved);
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
        QCOMPARE(desk.shownPanel(), "normal|a|it\\'s|||");
    }

    void anOpenedMenuShowsItsFirstItem() {
        WindowDesk desk;
        desk.add("first");
        desk.type("txtURL", "first.html");
        desk.addChild("child");
        desk.click(desk.document().tree().firstNode());
        desk.add("second");
        desk.saveAs("/site/menu.js");
        desk.choose("mnuFileNew");
        QCOMPARE(desk.shownTree(), "");
        desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(desk.shownTree(), "*first\n  child\nsecond\n");
        QCOMPARE(desk.shownPanel(), "normal|first|first.html|||");
        QCOMPARE(desk.document().CurNode(), desk.document().tree().firstNode());
        QCOMPARE(desk.document().selectedNode(), desk.document().tree().firstNode());
        QVERIFY(!desk.document().bModified());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        QVERIFY(desk.action("mnuEditMoveDown").isEnabled());
        QVERIFY(desk.script().toPlainText().contains("second"));
    }

    void aMenuOpenedAtStartIsUnchanged() {
        WindowDesk desk;
        desk.disk.addFile("/site/menu.js",
                          "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('a', 'u', 't');\r\n"
                          "zevmenu.AddRollover('u', 'o', 'i', 't');\r\n");
        desk.window.openDefinition("/site/menu.js");
        QCOMPARE(desk.shownPanel(), "normal|a|u|t||");
        QVERIFY(!desk.document().bModified());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        desk.document().select(desk.document().tree().nextSibling(*desk.document().CurNode()));
        QCOMPARE(desk.shownPanel(), "rollover||u|t|o|i");
        QVERIFY(!desk.document().bModified());
    }

    void theViewsFollowTheDocument() {
        WindowDesk desk;
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdCancel"); });
        const MenuNode* a = desk.add("a");
        desk.click(a);
        test::editItem(desk.document(), *a)->URL = "new.html";
        QCOMPARE(desk.field("txtURL").text(), "new.html");
        desk.document().setFile("/site/menu.js", "/site");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator (/site/menu.js)");
        test::editMenu(desk.document(), test::kDefaults)->Spacing = "17";
        const auto* defaults = desk.window.findChild<QDialog*>("frmDefaultProp");
        QCOMPARE(defaults->findChild<QLineEdit*>("txtSpacing")->text(), "17");
        desk.document().select(nullptr);
        QCOMPARE(desk.shownTree(), "a\n");
        QCOMPARE(desk.shownPanel(), "normal|||||");
        QVERIFY(!desk.action("mnuEditDelete").isEnabled());
        desk.document().select(a);
        QCOMPARE(desk.shownTree(), "*a\n");
        QCOMPARE(desk.shownPanel(), "normal|a|new.html|||");
        QVERIFY(desk.action("mnuEditDelete").isEnabled());
    }

    void anotherItemThatChangesLeavesThePanelAlone() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.add("b");
        desk.type("txtURL", "typed.html");
        test::editItem(desk.document(), *a)->URL = "new.html";
        QCOMPARE(desk.field("txtURL").text(), "typed.html");
    }

    void savingLeavesTheCursorInTheFieldThatIsTypedIn() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        desk.type("txtURL", "page.html");
        desk.field("txtURL").setCursorPosition(4);
        desk.choose("mnuFileSave");
        QCOMPARE(desk.document().CurNode()->item.URL, "page.html");
        QCOMPARE(desk.field("txtURL").cursorPosition(), 4);
    }

    void openingWhileAnotherMenuIsShownCarriesNothingOver() {
        WindowDesk desk;
        desk.add("saved");
        desk.saveAs("/site/menu.js");
        desk.choose("mnuFileNew");
        desk.add("other");
        desk.type("txtURL", "other.html");
        desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(desk.shownPanel(), "normal|saved||||");
        desk.clickTab("JavaScript");
        QVERIFY(!desk.script().toPlainText().contains("other"));
    }

    void aMenuThatCannotBeOpenedLeavesTheOneShown() {
        WindowDesk desk;
        desk.add("kept");
        desk.messages.expect(
            "a message about the file",
            [](const MessageRequest& request) {
                return request.text.find("/site/none.js") != std::string::npos;
            },
            Answer::Ok);
        desk.window.openDefinition("/site/none.js");
        QCOMPARE(desk.shownTree(), "*kept\n");
        QCOMPARE(desk.shownPanel(), "normal|kept||||");
        QVERIFY(desk.document().bModified());
    }

    void saveAsShowsTheRecalculatedLinks() {
        WindowDesk desk;
        desk.add("a");
        desk.document().setFile(desk.document().SaveFile(), "/site");
        desk.type("txtURL", "page.html");
        desk.disk.addFolder("/site/sub");
        desk.dialogs.expectSaveFile("/site/sub/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::Yes);
        desk.choose("mnuFileSaveAs");
        QCOMPARE(desk.shownPanel(), "normal|a|../page.html|||");
    }

    void saveLeavesTheSaveCommandEnabledUntilTheNextCommand() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        desk.type("txtURL", "x");
        desk.choose("mnuFileSave");
        QVERIFY(!desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
        desk.click(desk.document().CurNode());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
    }

    // Menus beyond the usual size

    void aMenuOfAThousandLevelsCanBeEdited() {
        WindowDesk desk;
        MenuContent deep;
        const MenuNode* node = nullptr;
        for (int level = 0; level < 1000; ++level) {
            ItemProp item;
            item.Caption = "Level " + std::to_string(level);
            node = deep.tree.append(node, "k" + std::to_string(level), item.Caption, item);
        }
        desk.disk.addFile("/site/deep.js", definitionFileBytes(GenerateScript(deep)));
        desk.window.openDefinition("/site/deep.js");
        QCOMPARE(desk.document().tree().size(), std::size_t(1000));
        node = desk.document().tree().firstNode();
        while (node->hasChildren())
            node = node->children().front();
        desk.document().makeVisible(*node);
        desk.click(node);
        QCOMPARE(desk.document().CurNode(), node);
        QCOMPARE(desk.shownPanel(), "normal|Level 999||||");
        desk.choose("mnuEditAddSubmenuItem");
        desk.choose("mnuEditMoveLeft");
        QCOMPARE(desk.document().CurNode(), node);
        QCOMPARE(node->item.Caption, "Level 999");
        desk.clickTab("JavaScript");
        QVERIFY(desk.script().toPlainText().contains("Level 999"));
        desk.clickTab("Menu");
        desk.click(desk.document().tree().firstNode());
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "");
    }

    void aMenuOfTwentyThousandSiblingsCanBeEdited() {
        WindowDesk desk;
        MenuContent wide;
        for (int i = 0; i < 20000; ++i) {
            ItemProp item;
            item.Caption = "Item " + std::to_string(i);
            wide.tree.append(nullptr, "k" + std::to_string(i), item.Caption, item);
        }
        desk.disk.addFile("/site/wide.js", definitionFileBytes(GenerateScript(wide)));
        desk.window.openDefinition("/site/wide.js");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.document().tree().size(), std::size_t(20001));
        QCOMPARE(desk.document().CurNode()->row(), std::size_t(20000));
        desk.choose("mnuEditMoveUp");
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownPanel(), "normal|Item 19999||||");
        desk.clickTab("JavaScript");
        QVERIFY(desk.script().toPlainText().endsWith("\n"));
        QVERIFY(desk.script().toPlainText().contains("Item 19999"));
    }

    // A stall shows as the time-out of the whole test program.
    void aCaptionOfManyMegabytesIsShownWithoutAStall() {
        WindowDesk desk;
        const std::string caption(50'000'000, 'x');
        desk.disk.addFile("/site/long.js", "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('" +
                                               caption +
                                               "', '', '');\r\nzevmenu.AddItem('b', '', '');\r\n");
        desk.window.openDefinition("/site/long.js");
        QCOMPARE(desk.document().tree().size(), std::size_t(2));
        desk.clickTab("JavaScript");
        desk.script().repaint();
        QVERIFY(desk.script().toPlainText().contains(QString(1000, 'x')));
        QVERIFY(desk.script().toPlainText().contains(QChar(0x2026)));
        QVERIFY(desk.script().toPlainText().contains("AddItem('b'"));
        desk.clickTab("Menu");
        const MenuNode* first = desk.document().tree().firstNode();
        desk.click(desk.document().tree().nextSibling(*first));
        desk.click(first);
        desk.tree().repaint();
        QVERIFY(first->item.Caption == caption);
    }

    // Exit

    void exitWithoutChangesEndsAtOnce() {
        WindowDesk desk;
        QSignalSpy ended(&desk.window, &frmMain::ended);
        desk.choose("mnuFileExit");
        QCOMPARE(ended.size(), 1);
        QVERIFY(!desk.window.isVisible());
    }

    void exitWithChangesAsks_data() {
        QTest::addColumn<bool>("byClosing");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("ends");
        for (const bool byClosing : {false, true}) {
            const char* how = byClosing ? "by closing the window" : "by the menu";
            QTest::addRow("no, %s", how) << byClosing << int(Answer::No) << true;
            QTest::addRow("cancel, %s", how) << byClosing << int(Answer::Cancel) << false;
            QTest::addRow("yes and cancelled dialog, %s", how)
                << byClosing << int(Answer::Yes) << true;
        }
    }
    void exitWithChangesAsks() {
        QFETCH(bool, byClosing);
        QFETCH(int, answer);
        QFETCH(bool, ends);
        WindowDesk desk;
        QSignalSpy ended(&desk.window, &frmMain::ended);
        desk.add("It's");
        desk.messages.expect(WindowDesk::saveChanges, static_cast<Answer>(answer));
        if (static_cast<Answer>(answer) == Answer::Yes)
            desk.dialogs.expectSaveFile("");
        if (byClosing)
            desk.window.close();
        else
            desk.choose("mnuFileExit");
        QCOMPARE(ended.size(), ends ? 1 : 0);
        QCOMPARE(desk.window.isVisible(), !ends);
        QVERIFY(desk.document().bModified());
        // It counts as leaving the field.
        QCOMPARE(desk.field("txtCaption").text(), "It\\'s");
    }

    void exitAnsweredYesSaves() {
        WindowDesk desk;
        QSignalSpy ended(&desk.window, &frmMain::ended);
        desk.add("a");
        desk.messages.expect(WindowDesk::saveChanges, Answer::Yes);
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        desk.window.close();
        QCOMPARE(ended.size(), 1);
        QVERIFY(desk.disk.FileExists("/site/menu.js"));
    }

    void exitAfterACancelledOpenAsksNothing() {
        WindowDesk desk;
        QSignalSpy ended(&desk.window, &frmMain::ended);
        desk.add("a");
        desk.dialogs.expectOpenFile("");
        desk.choose("mnuFileOpen");
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        desk.choose("mnuFileExit");
        QCOMPARE(ended.size(), 1);
    }

    // Other entries

    void theWizardKnowsTheDefinitionAndTheSubmenus() {
        WindowDesk desk;
        desk.add("Tea");
        desk.addChild("Green");
        desk.document().setFile("/site/menu_def.js", desk.document().SavePath());
        QStringList entries;
        QString definition;
        whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
            definition = wizard.findChild<QLineEdit*>("txtMenuDef")->text();
            auto* list = wizard.findChild<QComboBox*>("cboMenuList");
            for (int index = 0; index < list->count(); ++index)
                entries.append(list->itemText(index));
            QCOMPARE(list->currentIndex(), -1);
            wizard.reject();
        });
        desk.choose("mnuToolsIntegrate");
        QCOMPARE(definition, QString("/site/menu_def.js"));
        QCOMPARE(entries, QStringList{"Tea (1)"});
    }

    void theWizardOpensWithWhatWasEnteredLast() {
        WindowDesk desk("/me");
        desk.disk.addFile("/site/a.htm", "<head></head><body></body>\n");
        desk.document().setFile("/site/menu_def.js", desk.document().SavePath());
        whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
            desk.dialogs.expectOpenFiles({"/site", {"a.htm"}});
            wizard.findChild<QPushButton*>("BtnInputFile")->click();
            wizard.reject();
        });
        desk.choose("mnuToolsIntegrate");
        QString page;
        whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
            page = wizard.findChild<QComboBox*>("comboFiles")->currentText();
            wizard.reject();
        });
        desk.choose("mnuToolsIntegrate");
        QCOMPARE(page, QString("a.htm"));
    }

    void theWizardSaysThatTheMenuIsNotSaved_data() {
        QTest::addColumn<bool>("isModified");
        QTest::newRow("saved") << false;
        QTest::newRow("modified") << true;
    }
    void theWizardSaysThatTheMenuIsNotSaved() {
        QFETCH(bool, isModified);
        WindowDesk desk;
        if (isModified)
            desk.add("Tea");
        bool isSaid = false;
        whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
            isSaid = wizard.findChild<QLabel*>("lblUnsaved")->isVisible();
            wizard.reject();
        });
        desk.choose("mnuToolsIntegrate");
        QCOMPARE(isSaid, isModified);
    }

    void earlierRunsAreOfferedToBeUndone() {
        WindowDesk desk("/me");
        desk.disk.addFile("/site/a.htm", "old");
        RunRecord(desk.disk, "/me/runs", 0).append("/site/a.htm", "old", "new", {{0, 3, "new"}});
        desk.disk.addFile("/site/a.htm", "new");
        whenShown<UndoWindow>([&](UndoWindow& window) {
            desk.messages.expect("1 page is as before the run.");
            window.findChild<QPushButton*>("btnUndo")->click();
            window.reject();
        });
        desk.choose("mnuToolsUndoIntegration");
        QCOMPARE(desk.disk.allFiles().at("/site/a.htm"), std::string("old"));
    }

    void theWizardOfANewDocumentKnowsNothing() {
        WindowDesk desk;
        bool isEmpty = false;
        whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
            isEmpty = wizard.findChild<QLineEdit*>("txtMenuDef")->text().isEmpty() &&
                      wizard.findChild<QComboBox*>("cboMenuList")->count() == 0;
            wizard.reject();
        });
        desk.choose("mnuToolsIntegrate");
        QVERIFY(isEmpty);
    }

    void contentsShowsTheManual() {
        WindowDesk desk;
        QTest::keyClick(&desk.tree(), Qt::Key_F1);
        QCOMPARE(desk.help.recorded().size(), std::size_t(1));
        QCOMPARE(desk.help.recorded().front(), "/program/help/index.html");
    }

    void supportOpensItsPageInTheBrowser() {
        WindowDesk desk;
        desk.shell.expectFindExecutable("/usr/bin/browser");
        desk.shell.expectShellExecute("/usr/bin/browser", "https://zevmenu.example/support");
        desk.choose("mnuHelpSupport");
        desk.shell.verify();
    }

    void supportOpensTheManualWhereTheProgramIsOfNoSite() {
        WindowDesk desk("", VendorAddresses{});
        desk.choose("mnuHelpSupport");
        QCOMPARE(desk.help.recorded(), std::vector<std::string>{"/program/help/support.html"});
    }

    void aboutOpensTheManualWhereTheProgramIsOfNoSite() {
        WindowDesk desk("", VendorAddresses{});
        whenShown<frmAbout>(
            [](frmAbout& about) { about.findChild<QPushButton*>("cmdEMail")->click(); });
        desk.choose("mnuHelpAbout");
        QCOMPARE(desk.help.recorded(), std::vector<std::string>{"/program/help/support.html"});
    }

    void aboutShowsTheAboutBox() {
        WindowDesk desk;
        bool wasShown = false;
        whenShown<frmAbout>([&wasShown](frmAbout& about) {
            wasShown = true;
            about.reject();
        });
        desk.choose("mnuHelpAbout");
        QVERIFY(wasShown);
    }

    void anExceptionInACommandIsReportedAndTheProgramGoesOn() {
        WindowDesk desk;
        desk.add("a");
        desk.messages.expect(
            WindowDesk::saveChanges,
            [](const MessageRequest&) -> bool { throw std::runtime_error("broken"); }, Answer::No);
        desk.messages.expect("The command could not be finished: broken");
        desk.choose("mnuFileNew");
        QCOMPARE(desk.shownTree(), "*a\n");
    }
};

QTEST_MAIN(test_frm_main_commands)
#include "test_frm_main_commands.moc"
