// SPDX-License-Identifier: MIT
// What New, Open, Save, Save As, Exit and the preview do when the disk works; what they do when it
// does not is in test_file_failures.cpp.

#include <QTest>

#include "file_commands_desk.h"
#include "script/script_reader.h"
#include "script/script_writer.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

const std::vector<std::string> kSavedBeside = {"zevmenu_loader.js", "zevmenu_ns4.js",
                                               "zevmenu_dom.js", "orlet_temp.html"};

}  // namespace

namespace {

/// A definition with as many items more than a menu can hold.
std::string overfullBytes(int surplus) {
    std::string bytes = "zevmenu = new ZEVMenu('0');\n";
    for (int item = 0; item < kMaxItemCounter + surplus; ++item)
        bytes += "zevmenu.AddItem('', '', '');\n";
    return bytes;
}

/// Opens it as "/site/large.js".
void openOverfull(Desk& desk, int surplus) {
    const std::string count = std::to_string(surplus);
    desk.disk.addFile("/site/large.js", overfullBytes(surplus));
    desk.messages.expect(count + " errors encountered during parsing");
    desk.messages.expect("/site/large.js: " + count + (surplus == 1 ? " item" : " items") +
                         " left out; a menu holds 32767 at most.\n"
                         "Save asks for another name, so that the file keeps them.");
    desk.commands.openDefinition("/site/large.js");
}

}  // namespace

class test_file_commands : public QObject {
    Q_OBJECT

  private slots:
    void noMenuIsSavedByANameThatTheProgramUsesItself_data();
    void noMenuIsSavedByANameThatTheProgramUsesItself();
    void aMenuOpenedByANameThatTheProgramUsesItselfIsNotSavedThere();
    void somebodysFilesByNamesOfTheLibraryAreKept();
    void resetShowsAnEmptyMenu();
    void newWithoutChangesAsksNothing();
    void newAsksAboutChanges_data();
    void newAsksAboutChanges();
    void exitWithoutChangesEndsAtOnce();
    void exitAsksAboutChanges_data();
    void exitAsksAboutChanges();
    void openAsksForAJavaScriptFile();
    void openReplacesTheDocument();
    void openAsksNothingAboutChanges();
    void cancelledOpenClearsTheChangesMark();
    void openCountsLinesThatCouldNotBeApplied();
    void openTellsOfItemsLeftOutAndSaveAsksForAnotherName();
    void aFileWithItemsLeftOutIsNotSavedOver_data();
    void aFileWithItemsLeftOutIsNotSavedOver();
    void anotherMenuMayTakeThePlaceOfAFileWithItemsLeftOut();
    void resetAndOpenShowTheDefaultProperties();
    void openGivesBackWhatWasSaved();
    void saveWritesToTheFileOfTheDocument();
    void saveLeavesTheButtonsAlone();
    void saveOfAMenuNeverSavedAsksForAName();
    void saveAsPresetsTheCurrentFile();
    void saveAsCancelledChangesNothing();
    void saveAsPutsTheRunTimeFilesBesideTheDefinition();
    void saveAsAsksAboutURLsEvenInTheSameFolder();
    void saveAsRecalculatesWhatWasTypedAMomentAgo();
    void saveAsWithoutRecalculationKeepsURLs();
    void saveAsOfAnEmptyMenuRecalculatesNothing();
    void savingIntoTheProgramsFolderCopiesNoLibraryFile();
    void aMissingLibraryFileIsReportedAtEachSave();
    void theDefinitionIsWhatTheWriterMakes_data();
    void theDefinitionIsWhatTheWriterMakes();
    void anEmptyPathMeansThePreviewScript();
    void previewOfAMenuNeverSavedUsesTheProgramsFolder();
    void previewOfASavedMenuWritesBesideIt();
    void onlyTheFileThatThePersonNamedIsWrittenThroughALink();
    void previewCleansAndStoresThePanelFirst();
    void previewChangesNeitherFileNorChangesMark();
    void previewTellsOfEachMissingFileAndIsShownAllTheSame_data();
    void previewTellsOfEachMissingFileAndIsShownAllTheSame();
    void thePreviewFilesStayAfterTheEnd();
};

void test_file_commands::noMenuIsSavedByANameThatTheProgramUsesItself_data() {
    QTest::addColumn<QString>("name");
    for (const char* const name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js",
                                   "orlet_temp.js", "orlet_temp.html", "zevmenu.html"})
        QTest::newRow(name) << name;
}

void test_file_commands::noMenuIsSavedByANameThatTheProgramUsesItself() {
    QFETCH(QString, name);
    Desk desk;
    desk.addItem("Home", "home.html");
    desk.saveAs("/site/menu.js");
    desk.addItem("News", "news.html");
    const std::map<std::string, std::string> before = desk.disk.allFiles();
    const std::string path = "/site/" + name.toStdString();
    desk.dialogs.expectSaveFile(path);
    // Asked nothing of URLs.
    desk.messages.expect("Could not save " + path +
                         ": the program keeps a file of its own by this name beside every menu. "
                         "Please choose another name.");
    desk.commands.mnuFileSaveAs_Click();
    desk.messages.verify();
    QVERIFY(desk.disk.allFiles() == before);
    QCOMPARE(desk.document.SaveFile(), std::string("/site/menu.js"));
    QVERIFY(desk.document.bModified());
}

void test_file_commands::aMenuOpenedByANameThatTheProgramUsesItselfIsNotSavedThere() {
    Desk desk;
    desk.disk.addFile("/site/orlet_temp.js", "zevmenu = new ZEVMenu('0');");
    desk.commands.openDefinition("/site/orlet_temp.js");
    desk.addItem("Home");
    const std::map<std::string, std::string> before = desk.disk.allFiles();
    desk.messages.expect(
        "Could not save /site/orlet_temp.js: the program keeps a file of its own by this name "
        "beside every menu. Please choose another name.");
    desk.commands.mnuFileSave_Click();
    desk.messages.verify();
    QVERIFY(desk.disk.allFiles() == before);
    QVERIFY(desk.document.bModified());
}

void test_file_commands::somebodysFilesByNamesOfTheLibraryAreKept() {
    Desk desk;
    desk.disk.addFile("/site/zevmenu_dom.js", "mine");
    desk.disk.addLink("/site/zevmenu_ns4.js", "/home/ns4.js");
    desk.disk.addFile("/home/ns4.js", "elsewhere");
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    QCOMPARE(desk.bytesOf("/site/zevmenu_dom.js.bak"), std::string("mine"));
    QVERIFY(desk.disk.entryAt("/site/zevmenu_ns4.js.bak") == DiskEntry::Link);
    QCOMPARE(desk.bytesOf("/home/ns4.js"), std::string("elsewhere"));
    const std::map<std::string, std::string> before = desk.disk.allFiles();
    desk.document.markModified();
    desk.commands.mnuFileSave_Click();
    QVERIFY(desk.disk.allFiles() == before);
}

void test_file_commands::resetShowsAnEmptyMenu() {
    Desk desk;
    desk.addItem("Home");
    desk.view.script = "old";
    desk.document.setFile("/old.js", "/");
    desk.commands.reset();
    QVERIFY(desk.isNewDocument());
    QCOMPARE(desk.view.script, std::string());
    QCOMPARE(desk.view.shownFile, std::string());
    QCOMPARE(desk.view.panelCaption, std::string());
    QVERIFY(!desk.view.isSaveEnabled);
}

void test_file_commands::newWithoutChangesAsksNothing() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    desk.commands.mnuFileNew_Click();
    QVERIFY(desk.isNewDocument());
    QCOMPARE(desk.messages.recorded().size(), std::size_t{1});  // the question of Save As
}

void test_file_commands::newAsksAboutChanges_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("chosenFile");
    QTest::addColumn<bool>("isReset");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("yes, saved") << int(Answer::Yes) << "/site/menu.js" << true << true;
    QTest::newRow("yes, dialog cancelled") << int(Answer::Yes) << "" << true << false;
    QTest::newRow("no") << int(Answer::No) << "" << true << false;
    QTest::newRow("cancel") << int(Answer::Cancel) << "" << false << false;
}

void test_file_commands::newAsksAboutChanges() {
    QFETCH(int, answer);
    QFETCH(QString, chosenFile);
    Desk desk;
    desk.addItem("Home");
    desk.messages.expect(
        "Yes, No, Cancel without icon and title",
        [](const MessageRequest& request) {
            return request.text == Desk::saveChanges && request.title.empty() &&
                   request.buttons == MessageRequest::Buttons::YesNoCancel &&
                   request.icon == MessageRequest::Icon::None;
        },
        Answer(answer));
    if (Answer(answer) == Answer::Yes) {
        desk.dialogs.expectSaveFile(chosenFile.toStdString());
        if (!chosenFile.isEmpty())
            desk.messages.expect(Desk::recalculate, Answer::No);
    }
    desk.commands.mnuFileNew_Click();
    QTEST(desk.isNewDocument(), "isReset");
    QTEST(desk.isOnDisk("/site/menu.js"), "isSaved");
    QCOMPARE(desk.document.bModified(), Answer(answer) == Answer::Cancel);
}

void test_file_commands::exitWithoutChangesEndsAtOnce() {
    Desk desk;
    QVERIFY(desk.commands.mnuFileExit_Click());
}

void test_file_commands::exitAsksAboutChanges_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("chosenFile");
    QTest::addColumn<bool>("isEnding");
    QTest::newRow("yes, saved") << int(Answer::Yes) << "/site/menu.js" << true;
    QTest::newRow("yes, dialog cancelled") << int(Answer::Yes) << "" << true;
    QTest::newRow("no") << int(Answer::No) << "" << true;
    QTest::newRow("cancel") << int(Answer::Cancel) << "" << false;
}

void test_file_commands::exitAsksAboutChanges() {
    QFETCH(int, answer);
    QFETCH(QString, chosenFile);
    Desk desk;
    desk.addItem("Home");
    desk.messages.expect(Desk::saveChanges, Answer(answer));
    if (Answer(answer) == Answer::Yes) {
        desk.dialogs.expectSaveFile(chosenFile.toStdString());
        if (!chosenFile.isEmpty())
            desk.messages.expect(Desk::recalculate, Answer::No);
    }
    QTEST(desk.commands.mnuFileExit_Click(), "isEnding");
    QCOMPARE(desk.isOnDisk("/site/menu.js"), !chosenFile.isEmpty());
    QCOMPARE(desk.document.tree().size(), std::size_t{1});  // the document itself is left alone
}

void test_file_commands::openAsksForAJavaScriptFile() {
    Desk desk;
    desk.dialogs.expectOpenFile("");
    desk.commands.mnuFileOpen_Click();
    const FileDialogRequest& request = desk.dialogs.recorded().front().request;
    QCOMPARE(request.title, std::string("Open"));
    QCOMPARE(request.fileName, std::string());
    QCOMPARE(request.filter, std::string("All Files (*.*)|*.*|JavaScript (*.js)|*.js"));
    QCOMPARE(request.filterIndex, 2);
}

void test_file_commands::openReplacesTheDocument() {
    Desk desk;
    desk.disk.addFile("/site/bar.js",
                      "zev_state.nbgcolor = '#112233';\r\n"
                      "zevmenu = new ZEVMenu('0');\r\nzevmenu.columns = 3;\r\n"
                      "zevmenu.AddItem('One', 'one.html', '');\r\n"
                      "zevmenu.AddItem('Two', 'two.html', '');\r\n");
    desk.addItem("Old");
    desk.dialogs.expectOpenFile("/site/bar.js");
    desk.commands.mnuFileOpen_Click();
    QCOMPARE(desk.document.SaveFile(), std::string("/site/bar.js"));
    QCOMPARE(desk.document.SavePath(), std::string("/site"));
    QCOMPARE(desk.document.tree().size(), std::size_t{2});
    QCOMPARE(desk.document.CurNode(), desk.document.tree().firstNode());
    QCOMPARE(desk.document.selectedNode(), desk.document.tree().firstNode());
    QCOMPARE(desk.document.DefaultProp().NBgColor, std::string("#112233"));
    QCOMPARE(desk.document.RootMenuProp().Columns, std::string("3"));
    QCOMPARE(desk.view.shownFile, std::string("/site/bar.js"));
    QCOMPARE(desk.view.panelCaption, std::string("One"));
    QCOMPARE(desk.view.panelURL, std::string("one.html"));
    QCOMPARE(desk.view.script, GenerateScript(desk.document.content()));
    QVERIFY(!desk.document.bModified());
    QVERIFY(!desk.view.isSaveEnabled);
}

void test_file_commands::openAsksNothingAboutChanges() {
    Desk desk;
    desk.disk.addFile("/site/empty.js", "");
    desk.addItem("Unsaved");
    desk.dialogs.expectOpenFile("/site/empty.js");
    desk.commands.mnuFileOpen_Click();
    QVERIFY(desk.messages.recorded().empty());
    QVERIFY(desk.document.tree().isEmpty());
}

void test_file_commands::cancelledOpenClearsTheChangesMark() {
    Desk desk;
    desk.addItem("Home");
    desk.dialogs.expectOpenFile("");
    desk.commands.mnuFileOpen_Click();
    QVERIFY(!desk.document.bModified());
    QVERIFY(!desk.view.isSaveEnabled);
    QCOMPARE(desk.document.tree().size(), std::size_t{1});
    QCOMPARE(desk.view.panelCaption, std::string("Home"));
    QVERIFY(desk.commands.mnuFileExit_Click());  // and nothing is asked
}

void test_file_commands::openCountsLinesThatCouldNotBeApplied() {
    Desk desk;
    desk.disk.addFile("/site/odd.js",
                      "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('One', '', '');\n"
                      "zevmenu = new ZEVMenu('7');\nzevmenu.columns = 1;\n"
                      "zevmenu.AddItem('Lost', '', '');\n");
    desk.dialogs.expectOpenFile("/site/odd.js");
    desk.messages.expect("2 errors encountered during parsing");
    desk.commands.mnuFileOpen_Click();
    QCOMPARE(desk.messages.recorded().front().buttons, MessageRequest::Buttons::Ok);
    QCOMPARE(desk.document.tree().size(), std::size_t{1});
    QVERIFY(!desk.document.bModified());
}

void test_file_commands::openTellsOfItemsLeftOutAndSaveAsksForAnotherName() {
    Desk desk;
    openOverfull(desk, 3);
    desk.disk.addFolder("/other");
    desk.dialogs.expectSaveFile("/other/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::No);
    desk.commands.mnuFileSave_Click();
    desk.dialogs.verify();
    QCOMPARE(desk.bytesOf("/site/large.js"), overfullBytes(3));
    QCOMPARE(desk.document.SaveFile(), std::string("/other/menu.js"));
    // The file of its own is saved as any other.
    desk.addItem("");
    desk.commands.mnuFileSave_Click();
    QVERIFY(!desk.document.bModified());
}

void test_file_commands::aFileWithItemsLeftOutIsNotSavedOver_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("as it was opened") << "/site/large.js";
    QTest::newRow("by another path") << "/link/large.js";
}

void test_file_commands::aFileWithItemsLeftOutIsNotSavedOver() {
    QFETCH(QString, path);
    Desk desk;
    openOverfull(desk, 1);
    desk.disk.addFolderAlias("/site", "/link");
    desk.document.markModified();
    desk.dialogs.expectSaveFile(path.toStdString());
    desk.messages.expect("Could not save " + path.toStdString() +
                         ": it holds items that were left out when it was opened, and would lose "
                         "them. Please choose another name.");
    desk.commands.mnuFileSaveAs_Click();
    QCOMPARE(desk.bytesOf("/site/large.js"), overfullBytes(1));
    QVERIFY(desk.document.bModified());
    QCOMPARE(desk.document.SaveFile(), std::string("/site/large.js"));

    // As a save that failed, that keeps the menu.
    desk.messages.expect(Desk::saveChanges, Answer::Yes);
    desk.dialogs.expectSaveFile(path.toStdString());
    desk.messages.expect(
        "the refusal", [](const MessageRequest&) { return true; }, Answer::Ok);
    QVERIFY(!desk.commands.mnuFileExit_Click());
}

void test_file_commands::anotherMenuMayTakeThePlaceOfAFileWithItemsLeftOut() {
    for (const bool isOpened : {false, true}) {
        Desk desk;
        openOverfull(desk, 1);
        desk.disk.addFile("/site/small.js", definitionFileBytes("zevmenu = new ZEVMenu('0');"));
        if (isOpened)
            desk.commands.openDefinition("/site/small.js");
        else
            QVERIFY(desk.commands.mnuFileNew_Click());
        desk.saveAs("/site/large.js");
        QVERIFY(desk.bytesOf("/site/large.js") != overfullBytes(1));
    }
}

void test_file_commands::resetAndOpenShowTheDefaultProperties() {
    Desk desk;
    QCOMPARE(desk.view.shownDefaults.HBgColor, std::string("#888888"));
    desk.disk.addFile("/site/menu.js", "zev_state.hbgcolor = '#123456';\r\n");
    desk.dialogs.expectOpenFile("/site/menu.js");
    desk.commands.mnuFileOpen_Click();
    QCOMPARE(desk.view.shownDefaults.HBgColor, std::string("#123456"));
    desk.commands.mnuFileNew_Click();
    QCOMPARE(desk.view.shownDefaults.HBgColor, std::string("#888888"));
}

void test_file_commands::openGivesBackWhatWasSaved() {
    Desk desk;
    desk.addItem("It\\'s \xc3\xa9", "a.html");
    desk.addItem("Two");
    desk.saveAs("/site/menu.js");
    const std::string written = desk.bytesOf("/site/menu.js");
    desk.commands.reset();
    desk.dialogs.expectOpenFile("/site/menu.js");
    desk.commands.mnuFileOpen_Click();
    QCOMPARE(desk.document.tree().size(), std::size_t{2});
    QCOMPARE(desk.view.panelCaption, std::string("It\\'s \xc3\xa9"));
    desk.commands.mnuFileSave_Click();
    QCOMPARE(desk.bytesOf("/site/menu.js"), written);
}

void test_file_commands::saveWritesToTheFileOfTheDocument() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    desk.addItem("Added");
    desk.commands.mnuFileSave_Click();
    QVERIFY(!desk.document.bModified());
    QVERIFY(desk.bytesOf("/site/menu.js").find("'Added'") != std::string::npos);
    QCOMPARE(desk.dialogs.recorded().size(), std::size_t{1});  // only that of Save As
}

void test_file_commands::saveLeavesTheButtonsAlone() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    QVERIFY(!desk.view.isSaveEnabled);
    desk.addItem("Added");
    desk.commands.mnuFileSave_Click();
    QVERIFY(desk.view.isSaveEnabled);  // until the next command updates the buttons
}

void test_file_commands::saveOfAMenuNeverSavedAsksForAName() {
    Desk desk;
    desk.addItem("Home");
    desk.dialogs.expectSaveFile("/site/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::Yes);
    desk.commands.mnuFileSave_Click();
    QCOMPARE(desk.document.SaveFile(), std::string("/site/menu.js"));
    QVERIFY(desk.isOnDisk("/site/menu.js"));
    QVERIFY(!desk.document.bModified());
}

void test_file_commands::saveAsPresetsTheCurrentFile() {
    Desk desk;
    desk.saveAs("/site/menu.js");
    desk.saveAs("/site/other.js");
    const FileDialogRequest& first = desk.dialogs.recorded()[0].request;
    const FileDialogRequest& second = desk.dialogs.recorded()[1].request;
    QCOMPARE(first.fileName, std::string());
    QCOMPARE(second.fileName, std::string("/site/menu.js"));
    QCOMPARE(second.title, std::string("Save As"));
    QCOMPARE(second.filter, std::string("All Files (*.*)|*.*|JavaScript (*.js)|*.js"));
    QCOMPARE(second.filterIndex, 2);
    QVERIFY(second.asksBeforeReplacing);
}

void test_file_commands::saveAsCancelledChangesNothing() {
    Desk desk;
    desk.addItem("Home");
    const auto before = desk.disk.allFiles();
    desk.dialogs.expectSaveFile("");
    desk.commands.mnuFileSaveAs_Click();
    QVERIFY(desk.document.bModified());
    QCOMPARE(desk.document.SaveFile(), std::string());
    QCOMPARE(desk.document.SavePath(), std::string("/program"));
    QVERIFY(desk.disk.allFiles() == before);
    QVERIFY(desk.messages.recorded().empty());
}

void test_file_commands::saveAsPutsTheRunTimeFilesBesideTheDefinition() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
        QCOMPARE(desk.bytesOf(std::string("/site/") + name), std::string("content of ") + name);
    QCOMPARE(desk.bytesOf("/site/orlet_temp.html"), std::string("content of zevmenu.html"));
    QVERIFY(!desk.isOnDisk("/site/zevmenu.html"));
    QCOMPARE(desk.document.SavePath(), std::string("/site"));
    QCOMPARE(desk.view.shownFile, std::string("/site/menu.js"));
    QVERIFY(!desk.view.isSaveEnabled);
}

void test_file_commands::saveAsAsksAboutURLsEvenInTheSameFolder() {
    Desk desk;
    desk.addItem("Home", "a.html");
    desk.saveAs("/site/menu.js");
    desk.dialogs.expectSaveFile("/site/menu2.js");
    desk.messages.expect(
        "Yes and No",
        [](const MessageRequest& request) {
            return request.text == Desk::recalculate &&
                   request.buttons == MessageRequest::Buttons::YesNo;
        },
        Answer::Yes);
    desk.commands.mnuFileSaveAs_Click();
    QCOMPARE(desk.view.panelURL, std::string("a.html"));
}

void test_file_commands::saveAsRecalculatesWhatWasTypedAMomentAgo() {
    Desk desk;
    desk.disk.addFolder("/site/sub");
    desk.addItem("First", "first.html");
    desk.saveAs("/site/menu.js");
    desk.addItem("Second", "img/second.html");  // typed, not stored
    desk.dialogs.expectSaveFile("/site/sub/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::Yes);
    desk.commands.mnuFileSaveAs_Click();
    QCOMPARE(desk.document.tree().firstNode()->item.URL, std::string("../first.html"));
    QCOMPARE(desk.document.CurNode()->item.URL, std::string("../img/second.html"));
    QCOMPARE(desk.document.CurNode()->item.Caption, std::string("Second"));
    QCOMPARE(desk.view.panelURL, std::string("../img/second.html"));
    const std::string written = desk.bytesOf("/site/sub/menu.js");
    QVERIFY(written.find("'../first.html'") != std::string::npos);
    QVERIFY(written.find("'../img/second.html'") != std::string::npos);
}

void test_file_commands::saveAsWithoutRecalculationKeepsURLs() {
    Desk desk;
    desk.disk.addFolder("/site/sub");
    desk.addItem("First", "first.html");
    desk.saveAs("/site/menu.js");
    desk.saveAs("/site/sub/menu.js");
    QCOMPARE(desk.document.CurNode()->item.URL, std::string("first.html"));
    QVERIFY(desk.bytesOf("/site/sub/menu.js").find("'first.html'") != std::string::npos);
}

void test_file_commands::saveAsOfAnEmptyMenuRecalculatesNothing() {
    Desk desk;
    test::editMenu(desk.document, test::kTopMenu)->BgImg = "menu.gif";
    test::editMenu(desk.document, test::kDefaults)->BgImg = "all.gif";
    desk.document.markModified();
    const MenuProp root = desk.document.RootMenuProp();
    const MenuProp defaults = desk.document.DefaultProp();
    desk.dialogs.expectSaveFile("/site/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::Yes);
    desk.commands.mnuFileSaveAs_Click();
    QVERIFY(desk.document.RootMenuProp() == root);
    QVERIFY(desk.document.DefaultProp() == defaults);
    QVERIFY(desk.document.tree().isEmpty());
    QVERIFY(desk.document.CurNode() == nullptr);
    QCOMPARE(desk.document.SaveFile(), std::string("/site/menu.js"));
    QVERIFY(!desk.document.bModified());
    QCOMPARE(desk.bytesOf("/site/menu.js"), GenerateScript(desk.document.content()) + "\r\n");
}

void test_file_commands::savingIntoTheProgramsFolderCopiesNoLibraryFile() {
    Desk desk;
    desk.addItem("Home");
    desk.disk.setWritable("/site", false);
    const std::string loader = desk.bytesOf("/program/zevmenu_loader.js");
    desk.saveAs("/program/menu.js");
    QCOMPARE(desk.messages.recorded().size(), std::size_t{1});  // the question, no problem
    QCOMPARE(desk.bytesOf("/program/zevmenu_loader.js"), loader);
    // One write: the definition; one copy: the preview page, which has a name of its own.
    QCOMPARE(desk.files.operationCount(), std::size_t{2});
}

void test_file_commands::aMissingLibraryFileIsReportedAtEachSave() {
    Desk desk;
    desk.addItem("Home");
    desk.disk.DeleteFile("/program/zevmenu_ns4.js");
    const std::string problem = "Error: /program/zevmenu_ns4.js does not exist";
    desk.dialogs.expectSaveFile("/site/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::No);
    desk.messages.expect(problem);
    desk.commands.mnuFileSaveAs_Click();
    QVERIFY(desk.isOnDisk("/site/menu.js"));
    QVERIFY(!desk.document.bModified());
    desk.messages.expect(problem);
    desk.commands.mnuFileSave_Click();
    const MessageRequest& notice = desk.messages.recorded().back();
    QCOMPARE(notice.buttons, MessageRequest::Buttons::Ok);
    QCOMPARE(notice.icon, MessageRequest::Icon::None);
    QVERIFY(desk.isOnDisk("/site/zevmenu_dom.js"));
}

void test_file_commands::theDefinitionIsWhatTheWriterMakes_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("hasByteOrderMark");
    QTest::newRow("ASCII") << "Home" << false;
    QTest::newRow("accents") << QString::fromUtf8("Pr\xc3\xa9nom") << true;
}

void test_file_commands::theDefinitionIsWhatTheWriterMakes() {
    QFETCH(QString, caption);
    QFETCH(bool, hasByteOrderMark);
    Desk desk;
    desk.addItem(caption.toStdString());
    desk.saveAs("/site/menu.js");
    const std::string script = GenerateScript(desk.document.content());
    QCOMPARE(desk.view.script, script);
    QCOMPARE(desk.bytesOf("/site/menu.js"),
             (hasByteOrderMark ? "\xEF\xBB\xBF" : "") + script + "\r\n");
}

void test_file_commands::anEmptyPathMeansThePreviewScript() {
    Desk desk;
    desk.addItem("Home");
    QVERIFY(desk.commands.SaveDefinition(""));
    QCOMPARE(desk.bytesOf("/program/orlet_temp.js"),
             definitionFileBytes(GenerateScript(desk.document.content())));
}

void test_file_commands::previewOfAMenuNeverSavedUsesTheProgramsFolder() {
    Desk desk;
    desk.addItem("Home");
    const std::size_t filesBefore = desk.disk.allFiles().size();
    desk.commands.showPreview();
    QVERIFY(desk.messages.recorded().empty());
    QCOMPARE(desk.bytesOf("/program/orlet_temp.js"),
             definitionFileBytes(GenerateScript(desk.document.content())));
    QCOMPARE(desk.bytesOf("/program/orlet_temp.html"), std::string("content of zevmenu.html"));
    QCOMPARE(desk.disk.allFiles().size(), filesBefore + 2);
    QCOMPARE(desk.browser.recorded(), std::vector<std::string>{"/program/orlet_temp.html"});
}

void test_file_commands::previewOfASavedMenuWritesBesideIt() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    for (const std::string& name : kSavedBeside)
        desk.disk.DeleteFile("/site/" + name);
    const std::string saved = desk.bytesOf("/site/menu.js");
    desk.addItem("Not saved yet");
    desk.commands.showPreview();
    for (const std::string& name : kSavedBeside)
        QVERIFY2(desk.isOnDisk("/site/" + name), name.c_str());
    QVERIFY(desk.bytesOf("/site/orlet_temp.js").find("Not saved yet") != std::string::npos);
    QCOMPARE(desk.bytesOf("/site/menu.js"), saved);
    QVERIFY(!desk.isOnDisk("/program/orlet_temp.js"));
    QCOMPARE(desk.browser.recorded(), std::vector<std::string>{"/site/orlet_temp.html"});
}

void test_file_commands::onlyTheFileThatThePersonNamedIsWrittenThroughALink() {
    Desk desk;
    desk.disk.addFile("/home/menu.js", "old");
    desk.disk.addLink("/site/menu.js", "/home/menu.js");
    std::vector<std::string> ownFiles = kSavedBeside;
    ownFiles.push_back("orlet_temp.js");
    for (const std::string& name : ownFiles) {
        desk.disk.addFile("/home/" + name, "mine");
        desk.disk.addLink("/site/" + name, "/home/" + name);
    }
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    desk.commands.showPreview();
    QVERIFY(desk.bytesOf("/home/menu.js").find("Home") != std::string::npos);
    QVERIFY(!desk.isOnDisk("/site/menu.js"));
    for (const std::string& name : ownFiles) {
        QCOMPARE(desk.bytesOf("/home/" + name), std::string("mine"));
        QVERIFY(desk.isOnDisk("/site/" + name));
    }
}

void test_file_commands::previewCleansAndStoresThePanelFirst() {
    Desk desk;
    desk.addItem("It's");
    desk.view.calls.clear();
    desk.commands.showPreview();
    QCOMPARE(desk.view.calls.at(0), std::string("validateFields"));
    QCOMPARE(desk.view.calls.at(1), std::string("StoreItem"));
    QCOMPARE(desk.document.CurNode()->item.Caption, std::string("It\\'s"));
    QVERIFY(desk.bytesOf("/program/orlet_temp.js").find("It\\'s") != std::string::npos);
}

void test_file_commands::previewChangesNeitherFileNorChangesMark() {
    for (const bool isModified : {false, true}) {
        Desk desk;
        desk.addItem("Home");
        desk.saveAs("/site/menu.js");
        desk.document.apply(SetModified{isModified});
        desk.commands.showPreview();
        QCOMPARE(desk.document.bModified(), isModified);
        QCOMPARE(desk.document.SaveFile(), std::string("/site/menu.js"));
        QCOMPARE(desk.view.shownFile, std::string("/site/menu.js"));
    }
}

void test_file_commands::previewTellsOfEachMissingFileAndIsShownAllTheSame_data() {
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("a script") << QStringList{"zevmenu_dom.js"};
    QTest::newRow("the template") << QStringList{"zevmenu.html"};
    QTest::newRow("all") << QStringList{"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js",
                                        "zevmenu.html"};
}

void test_file_commands::previewTellsOfEachMissingFileAndIsShownAllTheSame() {
    QFETCH(QStringList, missing);
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    std::string problems;
    for (const QString& name : missing) {
        const std::string path = "/program/" + name.toStdString();
        desk.disk.DeleteFile(path);
        problems += (problems.empty() ? "" : "\n") + ("Error: " + path + " does not exist");
    }
    desk.messages.expect(problems);
    desk.commands.showPreview();
    QCOMPARE(desk.bytesOf("/site/orlet_temp.js"), desk.bytesOf("/site/menu.js"));
    QCOMPARE(desk.browser.recorded(), std::vector<std::string>{"/site/orlet_temp.html"});
    // What an earlier preview or save left there is still there to be shown.
    for (const std::string& name : kSavedBeside)
        QVERIFY2(desk.isOnDisk("/site/" + name), name.c_str());
}

void test_file_commands::thePreviewFilesStayAfterTheEnd() {
    Desk desk;
    desk.addItem("Home");
    desk.saveAs("/site/menu.js");
    std::map<std::string, std::string> filesAtTheEnd;
    {
        FileCommands commands(desk.document, desk.view, desk.services);
        commands.showPreview();
        filesAtTheEnd = desk.disk.allFiles();
        QVERIFY(commands.mnuFileExit_Click());
    }
    QVERIFY(filesAtTheEnd.contains("/site/orlet_temp.js"));
    QVERIFY(filesAtTheEnd.contains("/site/orlet_temp.html"));
    QCOMPARE(desk.disk.allFiles(), filesAtTheEnd);
}

QTEST_GUILESS_MAIN(test_file_commands)
#include "test_file_commands.moc"
