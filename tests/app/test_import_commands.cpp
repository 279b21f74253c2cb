// SPDX-License-Identifier: MIT
// What the commands of File > Import do and ask. What a line of a file means is tested with the
// importers.

#include <QTest>

#include "file_commands_desk.h"
#include "imported_products.h"
#include "link_tree.h"
#include "messages/import_messages.h"
#include "script/script_writer.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;
using Kind = FakeCommonDialogs::Kind;

/// The file commands' desk with the import commands on it.
struct ImportDesk : Desk {
    /// Imports `path` as the person would; the question of New and the closing message are expected
    /// by the caller.
    void import(const ImportedProduct& product, const std::string& path) {
        dialogs.expectOpenFile(path);
        imports.run(*findImportFormat(product.format));
    }
    /// Imports `bytes` as a file of OrletBar, and gives the closing message.
    MessageRequest closingMessageFor(const std::string& bytes) {
        disk.addFile("/old/menu.txt", bytes);
        messages.expect(
            "the closing message", [](const MessageRequest&) { return true; }, Answer::Ok);
        import(ImportedProducts()[1], "/old/menu.txt");
        return messages.recorded().back();
    }
    std::size_t countDialogs(Kind kind) const {
        std::size_t count = 0;
        for (const FakeCommonDialogs::Recorded& dialog : dialogs.recorded())
            count += dialog.kind == kind ? 1 : 0;
        return count;
    }

    ImportCommands imports{document, commands, messages};
};

/// A file of OrletBar that gives this many warnings: its second item is put one level below the
/// first, so that the others, two levels higher than that one, go up past the top.
std::string fileWithWarnings(std::size_t count) {
    std::string text = ":Home\n:::Boats\n";
    for (std::size_t line = 0; line < count; ++line)
        text += ":Lost\n";
    return text;
}

std::string closingText(const std::string& path, int warnings) {
    return "Finished importing " + path + ". " + std::to_string(warnings) +
           " warnings encountered.";
}

}  // namespace

class test_import_commands : public QObject {
    Q_OBJECT

  private slots:
    void aChangedMenuIsAskedAbout_data();
    void aChangedMenuIsAskedAbout();
    void anUnchangedMenuIsReplacedUnasked_data() { addProducts(); }
    void anUnchangedMenuIsReplacedUnasked();
    void theDialogAsksForFilesOfTheProduct_data() { addProducts(); }
    void theDialogAsksForFilesOfTheProduct();
    void theDialogStartsInTheFolderOfTheMenuThatWasOpen();
    void theDialogOfAMenuNeverSavedStartsWhereItLikes();
    void anImportedMenuIsShown_data() { addProducts(); }
    void anImportedMenuIsShown();
    void theDefaultsOfAnImportedMenuAreShown();
    void whatWasTypedBeforeIsNotCarriedOver();
    void theClosingMessage_data() { addProducts(); }
    void theClosingMessage();
    void theClosingMessageCountsTheWarnings_data();
    void theClosingMessageCountsTheWarnings();
    void eachWarningIsADetailWithItsLine();
    void aThousandWarningsAreListed_data();
    void aThousandWarningsAreListed();
    void aFileWithoutItemsGivesAnEmptyMenu_data() { addProducts(); }
    void aFileWithoutItemsGivesAnEmptyMenu();
    void aFileThatCannotBeReadLeavesANewMenu_data();
    void aFileThatCannotBeReadLeavesANewMenu();
    void saveAfterAnImportAsksForAName_data() { addProducts(); }
    void saveAfterAnImportAsksForAName();
    void exitAfterAnImportAsksNothing_data() { addProducts(); }
    void exitAfterAnImportAsksNothing();

  private:
    static void addProducts();
};

void test_import_commands::addProducts() {
    QTest::addColumn<std::size_t>("product");
    for (std::size_t product = 0; product < ImportedProducts().size(); ++product)
        QTest::newRow(ImportedProducts()[product].name) << product;
}

void test_import_commands::aChangedMenuIsAskedAbout_data() {
    QTest::addColumn<std::size_t>("product");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("savedAs");
    QTest::addColumn<bool>("savingFails");
    QTest::addColumn<bool>("goesOn");
    QTest::addColumn<QString>("chosen");
    for (std::size_t product = 0; product < ImportedProducts().size(); ++product) {
        const char* name = ImportedProducts()[product].name;
        for (const char* chosen : {"", "/old/menu"}) {
            const char* then = *chosen == '\0' ? "dialog cancelled" : "file chosen";
            QTest::addRow("%s: yes, saved, %s", name, then)
                << product << int(Answer::Yes) << "/site/menu.js" << false << true << chosen;
            QTest::addRow("%s: yes, not saved, %s", name, then)
                << product << int(Answer::Yes) << "" << false << true << chosen;
            QTest::addRow("%s: no, %s", name, then)
                << product << int(Answer::No) << "" << false << true << chosen;
        }
        QTest::addRow("%s: yes, the save fails", name)
            << product << int(Answer::Yes) << "/site/menu.js" << true << false << "";
        QTest::addRow("%s: cancel", name)
            << product << int(Answer::Cancel) << "" << false << false << "";
    }
}

void test_import_commands::aChangedMenuIsAskedAbout() {
    QFETCH(std::size_t, product);
    QFETCH(int, answer);
    QFETCH(QString, savedAs);
    QFETCH(bool, savingFails);
    QFETCH(bool, goesOn);
    QFETCH(QString, chosen);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", ImportedProducts()[product].file);
    desk.addItem("Mine", "mine.html");
    desk.view.StoreItem();
    const std::string script = GenerateScript(desk.document.content());
    desk.messages.expect(
        "Yes, No, Cancel without icon and title",
        [](const MessageRequest& request) {
            return request.text == Desk::saveChanges && request.title.empty() &&
                   request.buttons == MessageRequest::Buttons::YesNoCancel &&
                   request.icon == MessageRequest::Icon::None && request.details.empty();
        },
        Answer(answer));
    if (Answer(answer) == Answer::Yes)
        desk.dialogs.expectSaveFile(savedAs.toStdString());
    if (!savedAs.isEmpty())
        desk.messages.expect(Desk::recalculate, Answer::No);
    if (savingFails) {
        desk.files.failPath("/site/menu.js",
                            {FileError::Code::NoSpace, "", "No space left on device"});
        desk.messages.expect("Could not save /site/menu.js: No space left on device");
    }
    if (goesOn)
        desk.dialogs.expectOpenFile(chosen.toStdString());
    if (!chosen.isEmpty())
        desk.messages.expect(closingText("/old/menu", 0));

    desk.imports.run(*findImportFormat(ImportedProducts()[product].format));
    desk.dialogs.verify();
    desk.messages.verify();
    QCOMPARE(desk.countDialogs(Kind::OpenFile), std::size_t(goesOn ? 1 : 0));
    QCOMPARE(desk.isOnDisk("/site/menu.js"), !savedAs.isEmpty() && !savingFails);
    QCOMPARE(desk.document.bModified(), !goesOn);
    QCOMPARE(desk.view.isSaveEnabled, !goesOn);
    QCOMPARE(desk.document.SaveFile(), std::string());
    if (!goesOn) {
        QCOMPARE(GenerateScript(desk.document.content()), script);
        QCOMPARE(desk.view.panelCaption, std::string("Mine"));
    } else if (chosen.isEmpty()) {
        QVERIFY(desk.isNewDocument());
        QCOMPARE(desk.view.panelCaption, std::string());
    } else {
        QCOMPARE(linkTree(desk.document), QString(kImportedTree));
    }
}

void test_import_commands::anUnchangedMenuIsReplacedUnasked() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", ImportedProducts()[product].file);
    desk.addItem("Saved");
    desk.saveAs("/site/menu.js");
    const std::string saved = desk.bytesOf("/site/menu.js");
    desk.messages.expect(closingText("/old/menu", 0));
    desk.import(ImportedProducts()[product], "/old/menu");
    QCOMPARE(linkTree(desk.document), QString(kImportedTree));
    QCOMPARE(desk.bytesOf("/site/menu.js"), saved);
}

void test_import_commands::theDialogAsksForFilesOfTheProduct() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.import(ImportedProducts()[product], "");
    QCOMPARE(desk.dialogs.recorded().size(), std::size_t{1});
    const FileDialogRequest& request = desk.dialogs.recorded().front().request;
    QCOMPARE(request.title, std::string("Open"));
    QCOMPARE(request.fileName, std::string());
    QCOMPARE(request.filter, std::string(ImportedProducts()[product].filter));
    QCOMPARE(request.filterIndex, 2);
    QVERIFY(desk.isNewDocument());
    QVERIFY(desk.messages.recorded().empty());
}

void test_import_commands::theDialogStartsInTheFolderOfTheMenuThatWasOpen() {
    ImportDesk desk;
    desk.addItem("Saved");
    desk.saveAs("/site/menu.js");
    desk.import(ImportedProducts()[0], "");
    QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string("/site"));
}

void test_import_commands::theDialogOfAMenuNeverSavedStartsWhereItLikes() {
    ImportDesk desk;
    desk.import(ImportedProducts()[0], "");
    QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string());
}

void test_import_commands::anImportedMenuIsShown() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", ImportedProducts()[product].file);
    desk.addItem("Saved");
    desk.saveAs("/site/menu.js");
    desk.messages.expect(
        "the closing message, with the menu shown already",
        [&desk](const MessageRequest&) { return desk.view.panelCaption == "Home"; }, Answer::Ok);
    desk.import(ImportedProducts()[product], "/old/menu");
    const MenuDocument& document = desk.document;
    QCOMPARE(linkTree(document), QString(kImportedTree));
    QCOMPARE(document.CurNode(), document.tree().firstNode());
    QCOMPARE(document.selectedNode(), document.tree().firstNode());
    QCOMPARE(document.RootMenuProp().Columns, std::string(ImportedProducts()[product].columns));
    QCOMPARE(document.SaveFile(), std::string());
    QCOMPARE(document.SavePath(), std::string("/program"));
    QVERIFY(!document.bModified());
    QCOMPARE(desk.view.panelCaption, std::string("Home"));
    QCOMPARE(desk.view.panelURL, std::string("home.html"));
    QCOMPARE(desk.view.script, GenerateScript(document.content()));
    QCOMPARE(desk.view.shownFile, std::string());
    QVERIFY(!desk.view.isSaveEnabled);
}

void test_import_commands::theDefaultsOfAnImportedMenuAreShown() {
    ImportDesk desk;
    desk.disk.addFile("/old/menu.js", ImportedProducts()[0].file);
    desk.messages.expect(closingText("/old/menu.js", 0));
    desk.import(ImportedProducts()[0], "/old/menu.js");
    QCOMPARE(desk.view.shownDefaults.NBgColor, std::string("#112233"));
}

void test_import_commands::whatWasTypedBeforeIsNotCarriedOver() {
    ImportDesk desk;
    desk.disk.addFile("/old/menu.txt", ImportedProducts()[1].file);
    desk.addItem("Old");
    desk.view.panelURL = "typed a moment ago";
    desk.messages.expect(Desk::saveChanges, Answer::No);
    desk.messages.expect(closingText("/old/menu.txt", 0));
    desk.import(ImportedProducts()[1], "/old/menu.txt");
    desk.view.StoreItem();
    QCOMPARE(linkTree(desk.document), QString(kImportedTree));
}

void test_import_commands::theClosingMessage() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", ImportedProducts()[product].file);
    desk.messages.expect(closingText("/old/menu", 0));
    desk.import(ImportedProducts()[product], "/old/menu");
    QCOMPARE(desk.messages.recorded().size(), std::size_t{1});
    const MessageRequest& message = desk.messages.recorded().front();
    QCOMPARE(message.buttons, MessageRequest::Buttons::Ok);
    QCOMPARE(message.icon, MessageRequest::Icon::None);
    QCOMPARE(message.title, std::string());
    QCOMPARE(message.details, std::string());
}

void test_import_commands::theClosingMessageCountsTheWarnings_data() {
    QTest::addColumn<std::size_t>("warnings");
    QTest::addColumn<QString>("message");
    QTest::newRow("none") << std::size_t{0}
                          << "Finished importing /old/menu.txt. 0 warnings encountered.";
    QTest::newRow("one") << std::size_t{1}
                         << "Finished importing /old/menu.txt. 1 warnings encountered.";
    QTest::newRow("many") << std::size_t{40000}
                          << "Finished importing /old/menu.txt. 40000 warnings encountered.";
}

void test_import_commands::theClosingMessageCountsTheWarnings() {
    QFETCH(std::size_t, warnings);
    ImportDesk desk;
    const MessageRequest message = desk.closingMessageFor(fileWithWarnings(warnings));
    QTEST(QString::fromStdString(message.text), "message");
    QVERIFY(!desk.document.bModified());
}

void test_import_commands::eachWarningIsADetailWithItsLine() {
    ImportDesk desk;
    const MessageRequest message = desk.closingMessageFor("a remark\n::Home\n::::Boats\n\n:Lost\n");
    QCOMPARE(message.details,
             "line 2: " + std::string(reasonText(LineWarning::Reason::StartsDeep)) +
                 "\nline 5: " + std::string(reasonText(LineWarning::Reason::AboveTop)));
}

void test_import_commands::aThousandWarningsAreListed_data() {
    QTest::addColumn<std::size_t>("warnings");
    QTest::addColumn<std::size_t>("listedLines");
    QTest::addColumn<QString>("lastLine");
    const QString reason =
        QString::fromUtf8(reasonText(LineWarning::Reason::AboveTop).data(),
                          qsizetype(reasonText(LineWarning::Reason::AboveTop).size()));
    QTest::newRow("as many as are listed")
        << std::size_t{1000} << std::size_t{1000} << "line 1002: " + reason;
    QTest::newRow("one more") << std::size_t{1001} << std::size_t{1001} << "and 1 more";
    QTest::newRow("many more") << std::size_t{25000} << std::size_t{1001} << "and 24000 more";
}

void test_import_commands::aThousandWarningsAreListed() {
    QFETCH(std::size_t, warnings);
    QFETCH(std::size_t, listedLines);
    ImportDesk desk;
    const MessageRequest message = desk.closingMessageFor(fileWithWarnings(warnings));
    QCOMPARE(message.text, closingText("/old/menu.txt", int(warnings)));
    const QStringList lines = QString::fromStdString(message.details).split('\n');
    QCOMPARE(std::size_t(lines.size()), listedLines);
    QTEST(lines.last(), "lastLine");
}

void test_import_commands::aFileWithoutItemsGivesAnEmptyMenu() {
    QFETCH(std::size_t, product);
    for (const char* content : {"", "no item\r\n\r\n"}) {
        ImportDesk desk;
        desk.disk.addFile("/old/menu", content);
        desk.messages.expect(closingText("/old/menu", 0));
        desk.import(ImportedProducts()[product], "/old/menu");
        QVERIFY(desk.document.tree().isEmpty());
        QCOMPARE(desk.document.CurNode(), nullptr);
        QCOMPARE(desk.view.panelCaption, std::string());
        QVERIFY(!desk.document.bModified());
    }
}

void test_import_commands::aFileThatCannotBeReadLeavesANewMenu_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << "/old/none.txt"
                             << "Could not open /old/none.txt: No such file or directory";
    QTest::newRow("a folder") << "/old"
                              << "Could not open /old: Is a directory";
    QTest::newRow("no permission") << "/old/locked.txt"
                                   << "Could not open /old/locked.txt: Permission denied";
    QTest::newRow("too large") << "/old/huge.txt"
                               << "Could not open /old/huge.txt: File too large";
    QTest::newRow("binary") << "/old/picture.txt"
                            << "Could not open /old/picture.txt: Not a text file";
}

void test_import_commands::aFileThatCannotBeReadLeavesANewMenu() {
    QFETCH(QString, path);
    QFETCH(QString, message);
    ImportDesk desk;
    desk.disk.addFile("/old/locked.txt", ":Home");
    desk.files.failPath("/old/locked.txt",
                        {FileError::Code::NoPermission, "", "Permission denied"});
    if (path == "/old/huge.txt")
        desk.disk.addFile("/old/huge.txt", std::string((std::size_t{256} << 20) + 1, ' '));
    desk.disk.addFile("/old/picture.txt", std::string(":Home\0GIF", 9));
    desk.addItem("Saved");
    desk.saveAs("/site/menu.js");
    const std::string saved = desk.bytesOf("/site/menu.js");

    desk.messages.expect(message.toStdString());
    desk.import(ImportedProducts()[1], path.toStdString());
    QCOMPARE(desk.messages.recorded().back().buttons, MessageRequest::Buttons::Ok);
    QVERIFY(desk.isNewDocument());
    QCOMPARE(desk.bytesOf("/site/menu.js"), saved);
}

void test_import_commands::saveAfterAnImportAsksForAName() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", ImportedProducts()[product].file);
    desk.messages.expect(closingText("/old/menu", 0));
    desk.import(ImportedProducts()[product], "/old/menu");
    desk.dialogs.expectSaveFile("/site/menu.js");
    desk.messages.expect(Desk::recalculate, Answer::No);
    desk.commands.mnuFileSave_Click();
    QCOMPARE(desk.dialogs.recorded().back().request.fileName, std::string());
    QCOMPARE(desk.bytesOf("/site/menu.js"),
             definitionFileBytes(GenerateScript(desk.document.content())));
    QCOMPARE(desk.bytesOf("/old/menu"), ImportedProducts()[product].file);
}

void test_import_commands::exitAfterAnImportAsksNothing() {
    QFETCH(std::size_t, product);
    ImportDesk desk;
    desk.disk.addFile("/old/menu", "::Home\n" + ImportedProducts()[product].file);
    desk.messages.expect(
        "the closing message", [](const MessageRequest&) { return true; }, Answer::Ok);
    desk.import(ImportedProducts()[product], "/old/menu");
    QVERIFY(!desk.document.tree().isEmpty());
    QVERIFY(desk.commands.mnuFileExit_Click());
}

QTEST_GUILESS_MAIN(test_import_commands)
#include "test_import_commands.moc"
