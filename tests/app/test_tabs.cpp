// SPDX-License-Identifier: MIT
// The three tabs: what switching to one does, and that the one shown follows the menu.

#include <QAction>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>

#include "app/script_view.h"
#include "imported_products.h"
#include "window_desk.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

const char* const kOneItem =
    "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('Opened', 'f(\"x\")', '');\r\n";

/// Puts a definition beside the run-time files.
void addMenuFile(WindowDesk& desk, const std::string& path, const std::string& content = kOneItem) {
    desk.disk.addFile(path, content);
    desk.dialogs.expectOpenFile(path);
}

std::string previewScript(WindowDesk& desk, const std::string& folder) {
    const auto file = desk.disk.allFiles().find(folder + "/orlet_temp.js");
    return file != desk.disk.allFiles().end() ? file->second : "(no such file)";
}

std::string writtenScript(WindowDesk& desk) {
    return definitionFileBytes(GenerateScript(desk.document().content()));
}

}  // namespace

class test_tabs : public QObject {
    Q_OBJECT

  private slots:
    // Switching

    void aScriptToldBeforeTheWindowIsUpIsThereWithIt() {
        ScriptView view;
        view.showScript("zevmenu = 1;\r\n");
        view.show();
        QCOMPARE(view.toPlainText(), "zevmenu = 1;\n");
    }

    void theJavaScriptTabShowsWhatWasTypedAMomentAgo() {
        WindowDesk desk;
        desk.add("It's");
        desk.clickTab("JavaScript");
        QCOMPARE(desk.document().CurNode()->item.Caption, "It\\'s");
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QVERIFY(desk.script().toPlainText().contains("It\\'s"));
    }

    void theJavaScriptTabCannotBeEdited() {
        WindowDesk desk;
        desk.clickTab("JavaScript");
        const QString before = desk.script().toPlainText();
        QTest::keyClicks(&desk.script(), "x");
        QTest::keyClick(&desk.script(), Qt::Key_Delete);
        QCOMPARE(desk.script().toPlainText(), before);
    }

    void theScriptCanBeCopiedWithTheKeyboard() {
        WindowDesk desk;
        desk.clickTab("JavaScript");
        desk.script().setFocus();
        QTest::keyClick(&desk.script(), Qt::Key_Down);
        QTest::keyClick(&desk.script(), Qt::Key_End, Qt::ShiftModifier);
        QTest::keyClick(&desk.script(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), desk.expectedScript().section('\n', 1, 1));
    }

    void theScriptIsShownInTheSystemsFontForPrograms() {
        WindowDesk desk;
        desk.clickTab("JavaScript");
        QCOMPARE(desk.script().font().family(),
                 QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
        QVERIFY(desk.script().font().family() != desk.window.font().family());
        QCOMPARE(desk.script().lineWrapMode(), QPlainTextEdit::NoWrap);
    }

    void switchingToJavaScriptDoesNotMarkTheMenuAsChanged() {
        WindowDesk desk;
        desk.add("a");
        desk.forgetChanges();
        desk.clickTab("JavaScript");
        desk.clickTab("Menu");
        QVERIFY(!desk.document().bModified());
    }

    void thePreviewTabWritesItsFilesAndLoadsThePage() {
        WindowDesk desk;
        desk.add("It's");
        desk.document().setFile(desk.document().SaveFile(), "/site");
        desk.clickTab("Preview");
        QCOMPARE(desk.document().CurNode()->item.Caption, "It\\'s");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
        QCOMPARE(desk.browser.recorded().front(), "/site/orlet_temp.html");
        QVERIFY(desk.disk.FileExists("/site/orlet_temp.js"));
        QVERIFY(desk.disk.FileExists("/site/zevmenu_loader.js"));
        QVERIFY(desk.document().bModified());
    }

    void thePreviewOfAMenuNeverSavedCopiesNoLibraryFile() {
        WindowDesk desk;
        const std::size_t filesBefore = desk.disk.allFiles().size();
        desk.clickTab("Preview");
        QVERIFY(desk.disk.FileExists("/program/orlet_temp.js"));
        // The preview's script and page are all that is new.
        QCOMPARE(desk.disk.allFiles().size(), filesBefore + 2);
    }

    void theMenuTabLoadsAndWritesNothing() {
        WindowDesk desk;
        desk.clickTab("JavaScript");
        desk.clickTab("Menu");
        QVERIFY(desk.browser.recorded().empty());
        QVERIFY(!desk.disk.FileExists("/program/orlet_temp.js"));
    }

    void aTabChosenByKeyLeavesTheFieldFirst() {
        WindowDesk desk;
        desk.add("It's");
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(desk.tabs().currentIndex(), 1);
        QCOMPARE(desk.document().CurNode()->item.Caption, "It\\'s");
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(desk.tabs().currentIndex(), 2);
        QCOMPARE(previewScript(desk, "/program"), writtenScript(desk));
    }

    // The shown tab follows the menu: New

    void theJavaScriptTabShowsTheNewMenu_data() {
        QTest::addColumn<bool>("wasEmpty");
        QTest::newRow("after an item") << false;
        QTest::newRow("after a new menu") << true;
    }
    void theJavaScriptTabShowsTheNewMenu() {
        QFETCH(bool, wasEmpty);
        WindowDesk desk;
        if (!wasEmpty)
            desk.add("a");
        desk.forgetChanges();
        desk.clickTab("JavaScript");
        desk.choose("mnuFileNew");
        QVERIFY(desk.document().tree().isEmpty());
        QVERIFY(desk.script().toPlainText().startsWith("zev_state."));
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
    }

    void thePreviewTabShowsTheNewMenuFromTheProgramsFolder() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        desk.clickTab("Preview");
        const std::string previewOfOld = previewScript(desk, "/site");
        desk.choose("mnuFileNew");
        QCOMPARE(desk.browser.recorded(),
                 (std::vector<std::string>{"/site/orlet_temp.html", "/program/orlet_temp.html"}));
        QCOMPARE(previewScript(desk, "/program"), writtenScript(desk));
        QCOMPARE(previewScript(desk, "/site"), previewOfOld);
        QVERIFY(!desk.document().bModified());
    }

    void aCancelledNewLeavesTheShownTab_data() { addTabs(); }
    void aCancelledNewLeavesTheShownTab() {
        QFETCH(QString, tab);
        WindowDesk desk;
        desk.add("a");
        desk.clickTab(tab);
        const QString script = desk.script().toPlainText();
        const std::size_t loads = desk.browser.recorded().size();
        desk.messages.expect(WindowDesk::saveChanges, Answer::Cancel);
        desk.choose("mnuFileNew");
        QCOMPARE(desk.script().toPlainText(), script);
        QCOMPARE(desk.browser.recorded().size(), loads);
    }

    // Open

    void theJavaScriptTabShowsTheOpenedMenu() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("JavaScript");
        addMenuFile(desk, "/site/menu.js");
        desk.choose("mnuFileOpen");
        QVERIFY(desk.script().toPlainText().contains("Opened"));
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
    }

    // Nobody typed into the fields: what stands in them as it was read is no change.
    void thePreviewTabShowsTheOpenedMenuFromItsFolder() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        const std::string previewOfOld = previewScript(desk, "/program");
        addMenuFile(desk, "/site/menu.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(desk.browser.recorded().back(), "/site/orlet_temp.html");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(2));
        QCOMPARE(previewScript(desk, "/site"), writtenScript(desk));
        QCOMPARE(previewScript(desk, "/program"), previewOfOld);
        QCOMPARE(desk.document().CurNode()->item.URL, "f(\"x\")");
        QVERIFY(!desk.document().bModified());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
    }

    // Its images lie elsewhere.
    void thePreviewTabShowsTheSameMenuOfAnotherFolder() {
        WindowDesk desk;
        addMenuFile(desk, "/site/menu.js");
        desk.choose("mnuFileOpen");
        desk.clickTab("Preview");
        desk.disk.addFolder("/other");
        addMenuFile(desk, "/other/menu.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(desk.browser.recorded().back(), "/other/orlet_temp.html");
    }

    void anOpenThatFailsOrIsCancelledLeavesTheShownPreview() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        desk.dialogs.expectOpenFile("");
        desk.choose("mnuFileOpen");
        desk.dialogs.expectOpenFile("/site/none.js");
        desk.messages.expect(
            "a message about the file",
            [](const MessageRequest& request) {
                return request.text.find("/site/none.js") != std::string::npos;
            },
            Answer::Ok);
        desk.choose("mnuFileOpen");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
    }

    // Import

    void theShownTabFollowsAnImport_data() { addTabs(); }
    void theShownTabFollowsAnImport() {
        QFETCH(QString, tab);
        WindowDesk desk;
        desk.add("mine");
        desk.saveAs("/site/mine.js");
        desk.clickTab(tab);
        const std::string previewOfOld = previewScript(desk, "/site");
        desk.disk.addFile("/old/menu.txt", ImportedProducts()[1].file);
        desk.dialogs.expectOpenFile("/old/menu.txt");
        desk.messages.expect("Finished importing /old/menu.txt. 0 warnings encountered.");
        desk.choose(ImportedProducts()[1].entry);
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QVERIFY(desk.script().toPlainText().contains("Boats"));
        QCOMPARE(previewScript(desk, "/site"), previewOfOld);
        QVERIFY(!desk.document().bModified());
        if (tab == "Preview") {
            QCOMPARE(desk.browser.recorded().back(), "/program/orlet_temp.html");
            QCOMPARE(previewScript(desk, "/program"), writtenScript(desk));
        }
    }

    void theShownTabFollowsANewMenuWhoseImportIsCancelled() {
        WindowDesk desk;
        desk.add("mine");
        desk.forgetChanges();
        desk.clickTab("JavaScript");
        desk.dialogs.expectOpenFile("");
        desk.choose(ImportedProducts()[1].entry);
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
    }

    // Save As

    void theShownTabFollowsRecalculatedLinks_data() { addTabs(); }
    void theShownTabFollowsRecalculatedLinks() {
        QFETCH(QString, tab);
        WindowDesk desk;
        desk.add("a");
        desk.type("txtURL", "page.html");
        desk.saveAs("/site/menu.js");
        desk.clickTab(tab);
        const std::string previewOfOld = previewScript(desk, "/site");
        desk.disk.addFolder("/site/sub");
        desk.dialogs.expectSaveFile("/site/sub/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::Yes);
        desk.choose("mnuFileSaveAs");
        QVERIFY(desk.script().toPlainText().contains("'../page.html'"));
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QCOMPARE(previewScript(desk, "/site"), previewOfOld);
        if (tab == "Preview") {
            QCOMPARE(desk.browser.recorded().back(), "/site/sub/orlet_temp.html");
            QCOMPARE(previewScript(desk, "/site/sub"), writtenScript(desk));
        }
        QVERIFY(!desk.document().bModified());
    }

    void aSaveDoesNotLoadThePreviewAgain() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        desk.clickTab("Preview");
        desk.document().markModified();
        desk.choose("mnuFileSave");
        desk.saveAs("/site/other.js");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
    }

    // Tree commands and dialogs

    void thePreviewTabFollowsATreeCommand() {
        WindowDesk desk;
        desk.add("a");
        desk.add("b");
        desk.clickTab("Preview");
        desk.choose("mnuEditMoveUp");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(2));
        QCOMPARE(previewScript(desk, "/program"), writtenScript(desk));
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(3));
        QCOMPARE(previewScript(desk, "/program"), writtenScript(desk));
        desk.choose("mnuHelpContents");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(3));
    }

    void aHiddenPreviewIsNotLoaded() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        desk.clickTab("Menu");
        desk.choose("mnuEditAddMenuItem");
        desk.clickTab("JavaScript");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
    }

    void aPreviewThatCouldNotBeWrittenIsNotTriedAgainWithoutAChange() {
        WindowDesk desk;
        desk.add("a");
        desk.disk.setWritable("/program", false);
        desk.messages.expect(
            "a message about the page and the script",
            [](const MessageRequest& request) {
                return request.text.starts_with(
                    "Error: /program/orlet_temp.html not saved. Please check path permissions\n"
                    "Could not save /program/orlet_temp.js: ");
            },
            Answer::Ok);
        desk.clickTab("Preview");
        desk.choose("mnuHelpContents");
        QCOMPARE(desk.messages.recorded().size(), std::size_t(1));
    }

    void nothingIsLoadedWhileTheProgramEnds() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        desk.messages.expect(WindowDesk::saveChanges, Answer::Yes);
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        desk.choose("mnuFileExit");
        QVERIFY(desk.disk.FileExists("/site/menu.js"));
        QVERIFY(!desk.disk.FileExists("/site/orlet_temp.js"));
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
    }

    void theScriptStaysWhereItIsReadUntilItChanges() {
        WindowDesk desk;
        for (int i = 0; i < 60; ++i)
            desk.choose("mnuEditAddMenuItem");
        desk.saveAs("/site/menu.js");
        desk.clickTab("JavaScript");
        desk.script().moveCursor(QTextCursor::End);
        const int position = desk.script().textCursor().position();
        QVERIFY(position > 0);
        desk.document().markModified();
        desk.choose("mnuFileSave");
        desk.clickTab("Menu");
        desk.clickTab("JavaScript");
        QCOMPARE(desk.script().textCursor().position(), position);
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.script().textCursor().position(), 0);
    }

  private:
    static void addTabs() {
        QTest::addColumn<QString>("tab");
        QTest::newRow("JavaScript") << "JavaScript";
        QTest::newRow("Preview") << "Preview";
    }
};

QTEST_MAIN(test_tabs)
#include "test_tabs.moc"
