// SPDX-License-Identifier: MIT
// The notes above the tree: when each comes, what its buttons do, and when it goes.

#include <QComboBox>
#include <QElapsedTimer>
#include <QMenu>

#include "notes_hands.h"
#include "tests/support/document_steps.h"

using namespace zev;

namespace {

constexpr const char* kMenu = "/site/menu.js";

/// The file of a menu with these items below the top one, as a save writes it.
std::string menuBytes(const std::vector<std::string>& captions) {
    MenuContent content;
    for (const std::string& caption : captions) {
        ItemProp item;
        item.MenuProperty = newItemMenuProp();
        item.Caption = caption;
        content.tree.append(nullptr, std::to_string(content.tree.size()), "", std::move(item));
    }
    return definitionFileBytes(GenerateScript(content));
}

std::string withLine(std::string bytes, const std::string& line) {
    return line + "\r\n" + bytes;
}

std::string replaced(std::string bytes, const std::string& before, const std::string& after) {
    const std::size_t at = bytes.find(before);
    if (at == std::string::npos)
        qFatal("nothing to replace");
    return bytes.replace(at, before.size(), after);
}

/// Moves the menu to another folder, with its URLs.
void moveTo(WindowDesk& desk, const std::string& path) {
    desk.dialogs.expectSaveFile(path);
    desk.messages.expect(desk.recalculate, MessageBox::Answer::Yes);
    desk.choose("mnuFileSaveAs");
}

std::string bytesOf(WindowDesk& desk, const std::string& path) {
    const auto file = desk.disk.allFiles().find(path);
    return file == desk.disk.allFiles().end() ? "(no such file)" : file->second;
}

}  // namespace

class test_notes : public QObject {
    Q_OBJECT

  private slots:
    void nothingIsSaidWhenAllIsWell() {
        WindowDesk desk;
        QVERIFY(!notesBar(desk).isVisible());
        desk.disk.addFile(kMenu, menuBytes({"Tea", "Milk"}));
        open(desk, kMenu);
        desk.add("More");
        desk.choose("mnuFileSave");
        QCOMPARE(notesLine(desk), "");
        QCOMPARE(notesBar(desk).accessibleName(), "Notes");
        QVERIFY(!desk.disk.allFiles().contains("/site/menu.js.bak"));
    }

    void theLineOpensToTheListAndCloses() {
        WindowDesk desk;
        for (int count = 0; count < 3; ++count)
            desk.click(desk.add("Tea"));
        QCOMPARE(notesLine(desk),
                 "2 notes: Tea: caption: an item before it in the menu has the same: \"Tea\"");
        QCOMPARE(noteButtons(desk), "Show Notes");
        QPushButton* show = notesBar(desk).findChild<QPushButton*>();
        show->setFocus(Qt::TabFocusReason);
        QTest::keyClick(show, Qt::Key_Space);
        QCOMPARE(noteRows(desk).size(), 2);
        QVERIFY(notesList(desk).hasFocus());
        pressNote(desk, "Hide Notes");
        QVERIFY(!notesList(desk).isVisible());
        desk.choose("mnuEditDelete");
        desk.choose("mnuEditDelete");
        QCOMPARE(notesLine(desk), "");
    }

    // After Open

    void openTellsTheLinesThatSavingWillChange() {
        WindowDesk desk;
        const std::string bytes =
            withLine(replaced(menuBytes({"Tea"}), "nbgcolor = '#000000'", "nbgcolor= '#000000'"),
                     "// made by hand");
        desk.disk.addFile(kMenu, bytes);
        open(desk, kMenu);
        const QStringList rows = noteRows(desk);
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows[0], "1 line of this file is no menu: saving drops it");
        QCOMPARE(rows[1], "Saving will change 2 lines");
        QCOMPARE(rows[2].trimmed(), "line 1: \"// made by hand\" goes");
        QCOMPARE(rows[3].trimmed(),
                 "line 5: \"zev_state.nbgcolor= '#000000';\" becomes \"zev_state.nbgcolor = "
                 "'#000000';\"");
        desk.add("Milk");
        desk.choose("mnuFileSave");
        QCOMPARE(notesLine(desk), "");
        QCOMPARE(bytesOf(desk, "/site/menu.js.bak"), bytes);
        desk.add("Honey");
        desk.choose("mnuFileSave");
        QVERIFY2(!desk.disk.allFiles().contains("/site/menu.js.bak.2"), "it is kept once");
    }

    void openTellsLinesThatWereNotUnderstood() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, withLine(menuBytes({"Tea"}), "zev_state.colour = 'red';"));
        open(desk, kMenu);
        const QStringList rows = noteRows(desk);
        QCOMPARE(rows[0], "1 line was not understood");
        QCOMPARE(rows[1].trimmed(), "line 1: it is not a line that a menu has");
        desk.add("Milk");
        desk.choose("mnuFileSave");
        QVERIFY(bytesOf(desk, "/site/menu.js.bak").starts_with("zev_state.colour"));
    }

    void aFileThatIsNoMenuIsKeptWhole() {
        WindowDesk desk;
        std::string script;
        for (int line = 0; line < 142; ++line)
            script += "$.fn.menu" + std::to_string(line) + " = function () {};\n";
        desk.disk.addFile(kMenu, script);
        desk.disk.addFile("/site/menu.js.bak", "something else");
        open(desk, kMenu);
        QCOMPARE(noteRows(desk)[0], "142 lines of this file are no menu: saving drops them");
        // Undone and done again, it is still the same file.
        desk.choose("mnuEditUndo");
        QCOMPARE(notesLine(desk), "");
        desk.choose("mnuEditRedo");
        desk.add("Tea");
        desk.choose("mnuFileSave");
        QCOMPARE(bytesOf(desk, "/site/menu.js.bak"), std::string("something else"));
        QCOMPARE(bytesOf(desk, "/site/menu.js.bak.2"), script);
    }

    void aFileThatCannotBeKeptIsNotSavedOver() {
        WindowDesk desk;
        FailingFileSystem files(desk.disk);
        desk.disk.addFile(kMenu, "a page\n");
        files.failPath("/site/menu.js.bak", {FileError::Code::NoSpace, "", "No space left"});
        MenuDocument document("/program");
        PlainView view(document);
        FileCommands commands(
            document, view,
            {files, desk.messages, desk.dialogs, desk.shell, desk.help, desk.browser});
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            desk.disk.addFile(std::string("/site/") + name, name);
        commands.openDefinition(kMenu);
        document.markModified();
        desk.messages.expect("Could not save /site/menu.js: No space left");
        commands.mnuFileSave_Click();
        QCOMPARE(bytesOf(desk, kMenu), std::string("a page\n"));
        QVERIFY(document.bModified());
    }

    void anotherEncodingIsTold() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes({"Caf\xE9"}));
        open(desk, kMenu);
        QCOMPARE(notesLine(desk),
                 "Saving will change the encoding: the file is Windows-1252, and becomes UTF-8");
    }

    void closeDelayAndOffsetAreKeptWithOneClick() {
        WindowDesk desk;
        desk.disk.addFile(
            kMenu, replaced(replaced(menuBytes({"Tea"}), "closedelay = 500", "closedelay = 1200"),
                            "menuoffset = 1", "menuoffset = 3"));
        open(desk, kMenu);
        QCOMPARE(notesLine(desk),
                 "2 notes: Close Delay 1200 and Offset 3 of the file did not come back");
        pressNote(desk, "Keep Close Delay 1200 and Offset 3");
        QCOMPARE(desk.document().DefaultProp().CloseDelay, std::string("1200"));
        QCOMPARE(desk.document().DefaultProp().MenuOffset, std::string("3"));
        QVERIFY(desk.document().bModified());
        QCOMPARE(noteRows(desk).filter("did not come back").size(), 0);
        desk.choose("mnuEditUndo");
        QCOMPARE(noteRows(desk).filter("did not come back").size(), 1);
        desk.choose("mnuEditRedo");
        desk.choose("mnuFileSave");
        QVERIFY(bytesOf(desk, kMenu).find("closedelay = 1200") != std::string::npos);
        QCOMPARE(notesLine(desk), "");
    }

    // While editing

    void aValueThatBreaksTheScriptIsMended() {
        WindowDesk desk;
        const MenuNode* item = desk.add("Tea");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "it's.gif");
        desk.type("txtImgOver", "C:\\");
        desk.click(item);
        QCOMPARE(noteRows(desk),
                 QStringList({"it's.gif: out: an apostrophe without a backslash breaks the script "
                              "in \"it's.gif\"",
                              "it's.gif: over: a backslash at the end breaks the script in "
                              "\"C:\\\""}));
        clickNote(desk, "over:");
        QCOMPARE(noteButtons(desk), "Hide Notes|Mend|Go to Field");
        pressNote(desk, "Mend");
        clickNote(desk, "out:");
        pressNote(desk, "Mend");
        QCOMPARE(notesLine(desk), "");
        QCOMPARE(item->item.ImageOut, std::string("it\\'s.gif"));
        QCOMPARE(item->item.ImageOver, std::string("C:\\\\"));
        QCOMPARE(desk.field("txtImgOut").text(), "it\\'s.gif");
        QCOMPARE(desk.shownTree(), "*it\\'s.gif\n");
        QCOMPARE(desk.action("mnuEditUndo").text().remove('&'), "Undo Mend");
    }

    void aColourThatNoBrowserUnderstandsLeadsToItsBox() {
        WindowDesk desk;
        desk.add("Tea");
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtNBgColor", "nvay");
            press(form, "cmdOK");
        });
        clickNote(desk, "no colour that a browser understands: \"nvay\"");
        QString focused;
        during<frmDefaultProp>([&] { pressNote(desk, "Go to Field"); },
                               [&](frmDefaultProp& form) {
                                   QTRY_VERIFY(fieldOf(form, "txtNBgColor").hasFocus());
                                   typeInto(form, "txtNBgColor", "navy");
                                   press(form, "cmdOK");
                               });
        QCOMPARE(notesLine(desk), "");
    }

    void aBorderLeadsToTheAdvancedPropertiesOfItsMenu() {
        WindowDesk desk;
        const MenuNode* top = desk.add("Tea");
        desk.addChild("Green");
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            typeInto(form, "txtItemBorder", "1px sold red");
            press(form, "cmdOK");
        });
        desk.click(top);
        clickNote(desk, "the menu of Tea: itemborder: no border");
        bool wasFocused = false;
        auto* menuForm = desk.window.findChild<frmMenuProp*>();
        whenShown<frmAdvProp>([&](frmAdvProp& form) {
            QTRY_VERIFY(fieldOf(form, "txtItemBorder").hasFocus());
            wasFocused = true;
            typeInto(form, "txtItemBorder", "");
            press(form, "cmdOK");
            QTimer::singleShot(0, menuForm, [menuForm] { press(*menuForm, "cmdOK"); });
        });
        pressNote(desk, "Go to Field");
        QVERIFY(wasFocused);
        QCOMPARE(desk.document().CurNode()->parent(), top);
        QCOMPARE(notesLine(desk), "");
    }

    void emptyAndRepeatedCaptionsAreToldAsTheyCome() {
        WindowDesk desk;
        desk.add("Tea");
        const MenuNode* second = desk.add("Tea");
        desk.add("");
        desk.click(second);
        QCOMPARE(noteRows(desk), QStringList({"Tea: caption: an item before it in the menu has the "
                                              "same: \"Tea\"",
                                              "?: caption: is empty"}));
        // An item without a link or a submenu is no problem.
        desk.choose("mnuEditMoveRight");
        QCOMPARE(noteRows(desk), QStringList({"?: caption: is empty"}));
        desk.choose("mnuEditUndo");
        QCOMPARE(noteRows(desk).size(), 2);
    }

    void aNoteLeadsToItsItemAndField() {
        WindowDesk desk;
        const MenuNode* top = desk.add("Tea");
        const MenuNode* child = desk.addChild("");
        desk.click(top);
        desk.clickBranchMark(top);
        desk.clickTab("JavaScript");
        desk.clickTab("Menu");
        noteRows(desk);
        notesList(desk).setFocus();
        QTest::keyClick(&notesList(desk), Qt::Key_Return);
        QCOMPARE(desk.document().CurNode(), child);
        QCOMPARE(desk.document().selectedNode(), child);
        QVERIFY(desk.field("txtCaption").hasFocus());
        QVERIFY(desk.document().tree().isVisible(*child));
    }

    // Links and images

    void linksAreLookedAtAfterOpenAndSaveAndWhenAskedFor() {
        WindowDesk desk;
        desk.disk.addFile("/site/page.html", "<h1 id=top>A</h1>");
        desk.disk.addFile(kMenu,
                          "zevmenu = new ZEVMenu('0');\r\n"
                          "zevmenu.AddItem('Tea', 'tea.html', '');\r\n"
                          "zevmenu.AddItem('Milk', 'page.html#milk', '');\r\n");
        open(desk, kMenu);
        const auto links = [&] {
            return noteRows(desk).filter("url:") + noteRows(desk).filter("caption:");
        };
        QCOMPARE(links(),
                 QStringList({"Tea: url: there is no file \"tea.html\"",
                              "Milk: url: the page has no such place: \"page.html#milk\""}));
        desk.type("txtURL", "none.html");
        desk.click(desk.document().tree().firstNode());
        QVERIFY2(links() == QStringList({"Milk: url: the page has no such place: "
                                         "\"page.html#milk\""}),
                 "nothing is looked for while typing, and what was found there is over");
        desk.choose("mnuFileSave");
        QCOMPARE(links().first(), "Tea: url: there is no file \"none.html\"");
        desk.disk.addFile("/site/none.html", "");
        desk.disk.addFile("/site/page.html", "<a name=milk>");
        desk.choose("mnuToolsCheck");
        QCOMPARE(notesLine(desk), "Nothing was found wrong");
        desk.type("txtCaption", "<img src=\"cup.gif\">");
        desk.click(desk.document().tree().firstNode());
        QCOMPARE(notesLine(desk), "");
        desk.choose("mnuToolsCheck");
        QVERIFY(notesList(desk).isVisible());
        QCOMPARE(links(), QStringList({"?: caption: there is no file \"cup.gif\"",
                                       "?: caption: the image has no alt text: \"cup.gif\""}));
    }

    void checkMenuStandsBehindWhatStoodInItsMenu() {
        WindowDesk desk;
        const auto entries = desk.window.findChild<QMenu*>("mnuTools")->actions();
        QVERIFY(entries.size() >= 3);
        QCOMPARE(entries.first()->objectName(), "mnuToolsIntegrate");
        QVERIFY(entries[1]->isSeparator());
        QCOMPARE(entries[2]->text(), "&Check Menu");
    }

    // After Save As

    void recalculatedUrlsCanBeTakenBackOneByOne() {
        WindowDesk desk;
        desk.disk.addFolder("/site/js");
        const MenuNode* tea = desk.add("Tea");
        desk.type("txtURL", "tea.html");
        const MenuNode* call = desk.add("Call");
        desk.type("txtURL", "tel:123");
        MenuProp defaults = desk.document().DefaultProp();
        defaults.BgImg = "wood.gif";
        desk.document().setMenu({MenuPropOwner::Kind::Defaults}, defaults);
        desk.saveAs(kMenu);
        QCOMPARE(noteRows(desk).filter("became").size(), 0);
        moveTo(desk, "/site/js/menu.js");
        QCOMPARE(noteRows(desk).filter("became") + noteRows(desk).filter("not recalculated"),
                 QStringList({"Call: url: \"tel:123\" became \"../tel:123\", which is doubtful",
                              "Tea: url: \"tea.html\" became \"../tea.html\"",
                              "the defaults: bgimage: \"wood.gif\" was not recalculated to "
                              "\"../wood.gif\""}));
        clickNote(desk, "Call: url:");
        pressNote(desk, "Keep Old");
        QCOMPARE(call->item.URL, std::string("tel:123"));
        QCOMPARE(desk.field("txtURL").text(), "tel:123");
        QCOMPARE(noteRows(desk).filter("Call: url:").size(), 0);
        clickNote(desk, "not recalculated");
        pressNote(desk, "Recalculate");
        QCOMPARE(desk.document().DefaultProp().BgImg, std::string("../wood.gif"));
        QCOMPARE(tea->item.URL, std::string("../tea.html"));
        QVERIFY(desk.document().bModified());
        QCOMPARE(noteRows(desk).filter("became").size(), 1);
        desk.choose("mnuFileSave");
        QCOMPARE(noteRows(desk).filter("became").size(), 0);
    }

    // What cannot come back

    void valuesThatNoFileKeepsAreToldWhenTheyAreSet() {
        WindowDesk desk;
        desk.add("Tea");
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "");
            choosePosition(form, 0);
            press(form, "cmdOK");
        });
        QCOMPARE(noteRows(desk),
                 QStringList({"the defaults: hbgcolor: that it is empty is not in the saved file; "
                              "the next Open shows \"#888888\"",
                              "the defaults: position: \"none\" is not in the saved file; the next "
                              "Open shows \"right\""}));
        desk.choose("mnuEditUndo");
        QCOMPARE(notesLine(desk), "");
        inMenuProperties(desk, [](frmMenuProp& form) {
            choosePosition(form, 1);
            press(form, "cmdOK");
        });
        QCOMPARE(notesLine(desk),
                 "the top menu: position: \"right\" is not in the saved file; the "
                 "next Open shows \"bottom\"");
    }

    // After an import

    void anImportThatFindsNothingAsksWhetherItIsTheRightFormat() {
        WindowDesk desk;
        desk.disk.addFile("/site/page.html", "<html></html>\n");
        desk.dialogs.expectOpenFile("/site/page.html");
        desk.messages.expect("Finished importing /site/page.html. 0 warnings encountered.");
        desk.choose("mnuFileImportOrletBar");
        QCOMPARE(notesLine(desk), "Nothing was found in this file. Is it an OrletBar menu?");
        desk.choose("mnuFileNew");
        QCOMPARE(notesLine(desk), "");
    }

    void theLinesThatAnImportRefusedAreListed() {
        WindowDesk desk;
        desk.disk.addFile("/site/bar.txt", "::Deep\n");
        desk.dialogs.expectOpenFile("/site/bar.txt");
        desk.messages.expect("Finished importing /site/bar.txt. 1 warnings encountered.");
        desk.choose("mnuFileImportOrletBar");
        const QStringList rows = noteRows(desk);
        QCOMPARE(rows.value(0), "1 line was not imported as it stands");
        QCOMPARE(rows.value(1).trimmed(),
                 "line 1: the first item is deeper than the top level; it was put there");
    }

    // The file changed on disk

    void anotherProgramsChangeIsSeenWhenTheWindowBecomesActive() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes({"Tea"}));
        open(desk, kMenu);
        desk.add("Milk");
        lookElsewhere(desk);
        QVERIFY2(notesLine(desk).isEmpty(), "nothing has changed");
        desk.disk.addFile(kMenu, menuBytes({"Tea", "Honey"}));
        QCOMPARE(notesLine(desk), "");
        lookElsewhere(desk);
        QCOMPARE(notesLine(desk), "Another program has changed menu.js");
        QCOMPARE(noteButtons(desk), "Reload|Keep Mine|Show Differences|Show Notes");
        pressNote(desk, "Show Differences");
        QStringList rows = noteRows(desk);
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows[1].trimmed(), "its version: added Honey");
        QCOMPARE(rows[2].trimmed(), "its version: removed Milk");
        pressNote(desk, "Reload");
        QCOMPARE(desk.shownTree(), "*Tea\nHoney\n");
        QVERIFY(!desk.document().bModified());
        QCOMPARE(notesLine(desk), "");
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.shownTree(), "Tea\n*Milk\n");
    }

    void whatIsKeptAgainstAnotherProgramIsNoNewsButItsVersionIsKeptToo() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes({"Tea"}));
        open(desk, kMenu);
        desk.add("Milk");
        desk.disk.addFile(kMenu, menuBytes({"Honey"}));
        lookElsewhere(desk);
        pressNote(desk, "Keep Mine");
        QCOMPARE(notesLine(desk), "");
        lookElsewhere(desk);
        QCOMPARE(notesLine(desk), "");
        desk.choose("mnuFileSave");
        QCOMPARE(bytesOf(desk, "/site/menu.js.bak"), menuBytes({"Honey"}));
        QCOMPARE(bytesOf(desk, kMenu), menuBytes({"Tea", "Milk"}));
    }

    void saveKeepsWhatAnotherProgramWroteAndOffersIt() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes({"Tea"}));
        open(desk, kMenu);
        desk.add("Milk");
        desk.disk.addFile(kMenu, menuBytes({"Honey"}));
        desk.choose("mnuFileSave");
        QCOMPARE(bytesOf(desk, "/site/menu.js.bak"), menuBytes({"Honey"}));
        QCOMPARE(notesLine(desk),
                 "Another program had changed menu.js; its version is kept as menu.js.bak");
        lookElsewhere(desk);
        pressNote(desk, "Reload");
        QCOMPARE(desk.shownTree(), "*Honey\n");
        QVERIFY2(desk.document().bModified(), "the file holds the other menu");
        QCOMPARE(desk.document().SaveFile(), std::string(kMenu));
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.shownTree(), "Tea\n*Milk\n");
        QVERIFY(!desk.document().bModified());
    }

    void aFileThatIsOnlyTouchedIsTheSame() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes({"Tea"}));
        open(desk, kMenu);
        desk.disk.addFile(kMenu, menuBytes({"Tea"}));
        lookElsewhere(desk);
        QCOMPARE(notesLine(desk), "");
        desk.add("Milk");
        desk.choose("mnuFileSave");
        QVERIFY(!desk.disk.allFiles().contains("/site/menu.js.bak"));
    }

    // The preview

    void anErrorOfTheScriptLeadsToItsItem() {
        WindowDesk desk;
        desk.add("Tea");
        const MenuNode* bad = desk.add("Milk");
        desk.clickTab("Preview");
        const QStringList lines = desk.expectedScript().split('\n');
        const auto line = lines.indexOf("zevmenu.AddItem('Milk', '', '');") + 1;
        desk.browser.scriptFailed({std::size_t(line), "SyntaxError: Unexpected identifier"});
        desk.clickTab("Menu");
        desk.click(desk.document().tree().firstNode());
        QCOMPARE(notesLine(desk), QString("The menu's script has an error in line %1 (Milk): "
                                          "\"SyntaxError: Unexpected identifier\"")
                                      .arg(line));
        clickNote(desk, "script has an error");
        pressNote(desk, "Go to Field");
        QCOMPARE(desk.document().CurNode(), bad);
        desk.clickTab("Preview");
        desk.clickTab("Menu");
        QCOMPARE(notesLine(desk), "");
    }

    // Large menus

    void theListShowsAThousandRowsAndSaysHowManyMore() {
        WindowDesk desk;
        desk.disk.addFile(kMenu, menuBytes(std::vector<std::string>(1500)));
        open(desk, kMenu);
        const QStringList rows = noteRows(desk);
        QCOMPARE(rows.size(), 1001);
        QCOMPARE(rows.last(), "and 500 more");
    }

    void theLinesOfOneNoteLeaveRoomForTheOthers() {
        WindowDesk desk;
        std::string bytes;
        for (int line = 0; line < 3000; ++line)
            bytes += "// " + std::to_string(line) + "\n";
        desk.disk.addFile(kMenu, bytes + menuBytes({"Tea", ""}));
        open(desk, kMenu);
        const QStringList rows = noteRows(desk);
        QCOMPARE(rows[1], "Saving will change 3000 lines");
        QCOMPARE(rows.filter("goes").size(), 200);
        QCOMPARE(rows.filter("2800 more").size(), 1);
        QCOMPARE(rows.last(), "?: caption: is empty");
    }

    /// The time limit, of a machine that is busy and a build that is slow, is far below what
    /// looking at all items at every edit takes.
    void anEditAmongTwentyThousandItemsCostsNoLookAtAllOfThem() {
        MenuDocument document("/program");
        MenuContent content;
        for (int item = 0; item < 20'000; ++item) {
            ItemProp properties;
            properties.MenuProperty = newItemMenuProp();
            properties.Caption = "Item number " + std::to_string(item);
            content.tree.append(nullptr, std::to_string(item), "", std::move(properties));
        }
        document.open(std::move(content));
        MenuProblemNotes notes(document, [](const NotePlace&, const std::string&) {});
        const MenuNode* node = document.tree().topLevel()[10'000];
        QElapsedTimer timer;
        timer.start();
        constexpr int kEdits = 2000;
        for (int edit = 0; edit < kEdits; ++edit) {
            ItemProp item = node->item;
            item.Caption = edit % 2 == 0 ? "Item number 7" : "Another";
            document.setItem(*node, std::move(item));
            QCOMPARE(notes.valueNotes(1).count, std::size_t(edit % 2 == 0));
        }
        const qint64 elapsedMs = timer.elapsed();
        qInfo("%d edits took %lld ms", kEdits, static_cast<long long>(elapsedMs));
        QVERIFY2(elapsedMs < 4000, qPrintable(QString::number(elapsedMs)));
    }
};

QTEST_MAIN(test_notes)
#include "test_notes.moc"
