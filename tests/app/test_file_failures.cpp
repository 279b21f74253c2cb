// SPDX-License-Identifier: MIT
// What the file commands leave behind when the disk fails: the document, its marks and the files of
// the person are the old ones or the new ones, and the person is told.

#include <QTest>

#include "file_commands_desk.h"
#include "script/script_writer.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

constexpr std::size_t kMaxDefinitionBytes = std::size_t{256} * 1024 * 1024;

const FileError kDiskFull{FileError::Code::NoSpace, "", "No space left on device"};

/// Everything about the document and the window that a failure must leave alone.
struct Snapshot {
    explicit Snapshot(const Desk& desk)
        : SaveFile(desk.document.SaveFile()),
          SavePath(desk.document.SavePath()),
          bModified(desk.document.bModified()),
          script(GenerateScript(desk.document.content())),
          panelCaption(desk.view.panelCaption),
          panelURL(desk.view.panelURL),
          shownFile(desk.view.shownFile),
          isSaveEnabled(desk.view.isSaveEnabled) {}
    bool operator==(const Snapshot&) const = default;

    std::string SaveFile;
    std::string SavePath;
    bool bModified;
    std::string script;
    std::string panelCaption;
    std::string panelURL;
    std::string shownFile;
    bool isSaveEnabled;
};

/// The copies of one save, in their order, and the definition's write at the end.
const std::vector<std::string> kCopies = {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js",
                                          "orlet_temp.html"};

/// A menu saved as "/site/menu.js", beside an earlier version of the library, and changed since; no
/// item has text that is not stored yet.
void makeChangedMenu(Desk& desk) {
    desk.disk.addFolder("/site/sub");
    desk.addItem("First", "first.html");
    desk.saveAs("/site/menu.js");
    for (const std::string& name : kCopies)
        desk.disk.addFile("/site/" + name, "(function(){//ZEVMenu\nof an earlier version");
    desk.addItem("Second", "https://zevmenu.example/");
    desk.view.StoreItem();
}

/// Operations so far, so that "the n-th from now" can be named.
void failFromNow(Desk& desk, std::size_t number) {
    desk.files.failOperation(desk.files.operationCount() + number, kDiskFull);
}

/// Of a file that is there both are read before it is written.
const std::size_t kOperationsOfANewCopy = 1;
const std::size_t kOperationsOfAnUpdate = 3;

std::string copyProblem(const std::string& path) {
    return "Error: " + path + " not saved. Please check path permissions";
}

/// What one message says when nothing can be saved beside and as `definition` in `folder`.
std::string wholeProblem(const std::string& folder, const std::string& definition,
                         const std::string& reason) {
    std::string text;
    for (const std::string& name : kCopies)
        text += copyProblem(folder + "/" + name) + "\n";
    return text + "Could not save " + folder + "/" + definition + ": " + reason;
}

/// Breaks each operation of one save; `file`: the one at fault, in the order of the copies and then
/// the definition.
void addEachOperation(std::size_t operationsOfACopy) {
    QTest::addColumn<std::size_t>("operation");
    QTest::addColumn<std::size_t>("file");
    for (std::size_t operation = 1; operation <= kCopies.size() * operationsOfACopy + 1;
         ++operation)
        QTest::addRow("operation %zu", operation)
            << operation << (operation - 1) / operationsOfACopy;
}

}  // namespace

class test_file_failures : public QObject {
    Q_OBJECT

  private slots:
    void aFileThatCannotBeOpenedLeavesTheDocument_data();
    void aFileThatCannotBeOpenedLeavesTheDocument();
    void aFailedOpenKeepsTheChangesMark();
    void aFileOf256MebibytesIsStillRead();
    void eachFailureOfASave_data() { addEachOperation(kOperationsOfAnUpdate); }
    void eachFailureOfASave();
    void eachFailureOfASaveAs_data() { addEachOperation(kOperationsOfANewCopy); }
    void eachFailureOfASaveAs();
    void eachFailureOfAPreview_data() { addEachOperation(kOperationsOfAnUpdate); }
    void eachFailureOfAPreview();
    void aFailedSaveAsTakesBackRecalculatedURLs();
    void aFailedSaveAsOfAMenuNeverSavedLeavesItUnnamed();
    void aFolderThatCannotBeWrittenIsReportedForEachFile();
    void aFullDiskIsOneMessageWithTheSystemsReasonOfEachFile();
    void aFailedSaveKeepsNewAndExitFromLosingTheMenu();
};

void test_file_failures::aFileThatCannotBeOpenedLeavesTheDocument_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << "/site/none.js"
                             << "Could not open /site/none.js: No such file or directory";
    QTest::newRow("a folder") << "/site/sub"
                              << "Could not open /site/sub: Is a directory";
    QTest::newRow("no permission") << "/site/locked.js"
                                   << "Could not open /site/locked.js: Permission denied";
    QTest::newRow("too large") << "/site/huge.js"
                               << "Could not open /site/huge.js: File too large";
    QTest::newRow("binary") << "/site/picture.js"
                            << "Could not open /site/picture.js: Not a text file";
}

void test_file_failures::aFileThatCannotBeOpenedLeavesTheDocument() {
    QFETCH(QString, path);
    QFETCH(QString, message);
    Desk desk;
    makeChangedMenu(desk);
    desk.disk.addFile("/site/locked.js", "zevmenu = new ZEVMenu('0');");
    desk.files.failPath("/site/locked.js",
                        {FileError::Code::NoPermission, "", "Permission denied"});
    if (path == "/site/huge.js")
        desk.disk.addFile("/site/huge.js", std::string(kMaxDefinitionBytes + 1, ' '));
    desk.disk.addFile("/site/picture.js", std::string("zevmenu\0GIF", 11));
    desk.view.panelCaption = "typed a moment ago";
    const Snapshot before(desk);

    desk.dialogs.expectOpenFile(path.toStdString());
    desk.messages.expect(message.toStdString());
    desk.commands.mnuFileOpen_Click();
    QVERIFY(Snapshot(desk) == before);
    QCOMPARE(desk.messages.recorded().back().buttons, MessageRequest::Buttons::Ok);
}

void test_file_failures::aFailedOpenKeepsTheChangesMark() {
    for (const bool isModified : {false, true}) {
        Desk desk;
        desk.addItem("Home");
        desk.document.apply(SetModified{isModified});
        desk.dialogs.expectOpenFile("/site/none.js");
        desk.messages.expect("Could not open /site/none.js: No such file or directory");
        desk.commands.mnuFileOpen_Click();
        QCOMPARE(desk.document.bModified(), isModified);
    }
}

void test_file_failures::aFileOf256MebibytesIsStillRead() {
    Desk desk;
    desk.disk.addFile("/site/large.js", std::string(kMaxDefinitionBytes, '\0'));
    desk.dialogs.expectOpenFile("/site/large.js");
    desk.messages.expect("Could not open /site/large.js: Not a text file");  // so it was read
    desk.commands.mnuFileOpen_Click();
}

void test_file_failures::eachFailureOfASave() {
    QFETCH(std::size_t, operation);
    QFETCH(std::size_t, file);
    Desk desk;
    makeChangedMenu(desk);
    const std::string oldBytes = desk.bytesOf("/site/menu.js");
    const Snapshot before(desk);
    const bool isDefinition = file == kCopies.size();

    failFromNow(desk, operation);
    desk.messages.expect(isDefinition ? "Could not save /site/menu.js: No space left on device"
                                      : copyProblem("/site/" + kCopies[file]));
    desk.commands.mnuFileSave_Click();
    desk.messages.verify();
    if (isDefinition) {
        QCOMPARE(desk.bytesOf("/site/menu.js"), oldBytes);
        QVERIFY(Snapshot(desk) == before);
        desk.commands.mnuFileSave_Click();  // the disk works again
    }
    QVERIFY(!desk.document.bModified());
    QCOMPARE(desk.bytesOf("/site/menu.js"), definitionFileBytes(before.script));
}

void test_file_failures::eachFailureOfASaveAs() {
    QFETCH(std::size_t, operation);
    QFETCH(std::size_t, file);
    Desk desk;
    makeChangedMenu(desk);
    desk.disk.addFile("/site/sub/menu.js", "somebody's file");
    const Snapshot before(desk);
    const bool isDefinition = file == kCopies.size();

    failFromNow(desk, operation);
    desk.dialogs.expectSaveFile("/site/sub/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::Yes);
    desk.messages.expect(isDefinition ? "Could not save /site/sub/menu.js: No space left on device"
                                      : copyProblem("/site/sub/" + kCopies[file]));
    desk.commands.mnuFileSaveAs_Click();
    desk.messages.verify();
    if (isDefinition) {
        QCOMPARE(desk.bytesOf("/site/sub/menu.js"), std::string("somebody's file"));
        QVERIFY(Snapshot(desk) == before);
        QCOMPARE(desk.view.script, before.script);
    } else {
        QCOMPARE(desk.document.SaveFile(), std::string("/site/sub/menu.js"));
        QVERIFY(!desk.document.bModified());
        QVERIFY(desk.bytesOf("/site/sub/menu.js").find("../first.html") != std::string::npos);
    }
}

void test_file_failures::eachFailureOfAPreview() {
    QFETCH(std::size_t, operation);
    QFETCH(std::size_t, file);
    Desk desk;
    makeChangedMenu(desk);
    const Snapshot before(desk);
    const std::string saved = desk.bytesOf("/site/menu.js");

    failFromNow(desk, operation);
    desk.messages.expect(file == kCopies.size()
                             ? "Could not save /site/orlet_temp.js: No space left on device"
                             : copyProblem("/site/" + kCopies[file]));
    desk.commands.showPreview();
    desk.messages.verify();
    QVERIFY(Snapshot(desk) == before);
    QCOMPARE(desk.bytesOf("/site/menu.js"), saved);
    // The preview shows whatever is there.
    QCOMPARE(desk.browser.recorded(), std::vector<std::string>{"/site/orlet_temp.html"});
}

void test_file_failures::aFailedSaveAsTakesBackRecalculatedURLs() {
    Desk desk;
    desk.disk.addFolder("/other");
    makeChangedMenu(desk);
    const MenuNode& first = *desk.document.tree().firstNode();
    test::editItem(desk.document, first)->MenuProperty.edit().BgImg = "img/back.gif";
    test::editItem(desk.document, first)->ImageOut = "../out.gif";
    test::editItem(desk.document, first)->ImageOver = "over.gif";
    const ItemProp before = first.item;
    const ItemProp current = desk.document.CurNode()->item;

    desk.disk.setWritable("/other", false);
    desk.dialogs.expectSaveFile("/other/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::Yes);
    desk.messages.expect(wholeProblem("/other", "menu.js", "Permission denied"));
    desk.commands.mnuFileSaveAs_Click();
    QVERIFY(first.item == before);
    // An address such as this would not come back unchanged from being recalculated twice.
    QVERIFY(desk.document.CurNode()->item == current);
    QCOMPARE(desk.view.panelURL, std::string("https://zevmenu.example/"));
    QCOMPARE(desk.document.SavePath(), std::string("/site"));
    QVERIFY(desk.document.bModified());
}

void test_file_failures::aFailedSaveAsOfAMenuNeverSavedLeavesItUnnamed() {
    Desk desk;
    desk.addItem("Home");
    desk.files.failPath("/site/menu.js", kDiskFull);
    desk.dialogs.expectSaveFile("/site/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::No);
    desk.messages.expect("Could not save /site/menu.js: No space left on device");
    desk.commands.mnuFileSave_Click();
    QCOMPARE(desk.document.SaveFile(), std::string());
    QCOMPARE(desk.document.SavePath(), std::string("/program"));
    QCOMPARE(desk.view.shownFile, std::string());
    QVERIFY(desk.document.bModified());
    QVERIFY(desk.view.isSaveEnabled);
    QVERIFY(!desk.isOnDisk("/site/menu.js"));
}

void test_file_failures::aFolderThatCannotBeWrittenIsReportedForEachFile() {
    Desk desk;
    makeChangedMenu(desk);
    desk.disk.setWritable("/site", false);
    desk.messages.expect(wholeProblem("/site", "menu.js", "Permission denied"));
    desk.commands.mnuFileSave_Click();
    QVERIFY(desk.document.bModified());
}

void test_file_failures::aFullDiskIsOneMessageWithTheSystemsReasonOfEachFile() {
    Desk desk;
    makeChangedMenu(desk);
    std::string details;
    for (const std::string& name : kCopies) {
        desk.files.failPath("/site/" + name, kDiskFull);
        details += details.empty() ? "" : "\n";
        details += "/site/" + name + ": No space left on device";
    }
    desk.files.failPath("/site/menu.js", kDiskFull);
    desk.messages.expect(wholeProblem("/site", "menu.js", "No space left on device"));
    desk.commands.mnuFileSave_Click();
    QCOMPARE(desk.messages.recorded().back().details, details);
    QCOMPARE(desk.messages.recorded().back().buttons, MessageRequest::Buttons::Ok);
}

void test_file_failures::aFailedSaveKeepsNewAndExitFromLosingTheMenu() {
    for (const bool isExit : {false, true}) {
        Desk desk;
        makeChangedMenu(desk);
        const Snapshot before(desk);
        desk.files.failPath("/site/menu.js", kDiskFull);
        desk.messages.expect(Desk::saveChanges, Answer::Yes);
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(Desk::recalculate, Answer::No);
        desk.messages.expect("Could not save /site/menu.js: No space left on device");
        if (isExit)
            QVERIFY(!desk.commands.mnuFileExit_Click());
        else
            desk.commands.mnuFileNew_Click();
        QVERIFY(Snapshot(desk) == before);
        QCOMPARE(desk.document.tree().size(), std::size_t{2});
    }
}

QTEST_GUILESS_MAIN(test_file_failures)
#include "test_file_failures.moc"
