// SPDX-License-Identifier: MIT
// What OK and Cancel in the property dialogs mean for the document and for what the main window
// shows.

#include "property_dialogs_hands.h"

using namespace zev;

class test_property_changes : public QObject {
    Q_OBJECT

  private slots:
    // What OK and Cancel mean for the document

    void okMarksTheMenuAsChangedAndCancelDoesNot_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isModified");
        for (const char* entry : {"mnuEditDefault", "mnuEditMenuProperties"}) {
            QTest::addRow("%s, OK", entry) << entry << "cmdOK" << true;
            QTest::addRow("%s, Cancel", entry) << entry << "cmdCancel" << false;
        }
    }
    void okMarksTheMenuAsChangedAndCancelDoesNot() {
        QFETCH(QString, entry);
        QFETCH(QString, button);
        QFETCH(bool, isModified);
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("JavaScript");
        desk.clickTab("Menu");
        desk.forgetChanges();
        const std::string before = GenerateScript(desk.document().content());
        during<QDialog>([&] { desk.choose(entry); },
                        [&](QDialog& form) { press(form, button.toLatin1()); });
        QCOMPARE(desk.document().bModified(), isModified);
        QCOMPARE(desk.action("mnuFileSave").isEnabled(), isModified);
        QCOMPARE(desk.action("tbToolBar_3").isEnabled(), isModified);
        // Nothing was edited.
        QCOMPARE(GenerateScript(desk.document().content()), before);
    }

    void okWithoutTheFontButtonKeepsTheFontsOfTheDefaults() {
        WindowDesk desk;
        desk.disk.addFile("/site/menu.js",
                          "zev_state.fontFamily = 'No Such Font';\r\n"
                          "zev_state.fontSize = '10.5pt';\r\n");
        desk.window.openDefinition("/site/menu.js");
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.document().DefaultProp().FontFamily, "No Such Font");
        QCOMPARE(desk.document().DefaultProp().FontSize, "10.5");
    }

    // The fonts are written from the first use of the button on, in every later menu as well.
    void theFontButtonCountsForAsLongAsTheProgramRuns() {
        WindowDesk desk;
        desk.dialogs.expectChooseFont(FontChoice{"Serif", 12, true, false});
        inDefaults(desk, [](frmDefaultProp& form) {
            press(form, "cmdFont");
            press(form, "cmdCancel");
        });
        desk.disk.addFile("/site/menu.js", "zev_state.fontSize = '10.5pt';\r\n");
        desk.window.openDefinition("/site/menu.js");
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.document().DefaultProp().FontFamily, "Arial");
        QCOMPARE(desk.document().DefaultProp().FontSize, "10");
    }

    void aBackgroundImageIsRelativeToTheMenusFolder_data() {
        QTest::addColumn<QString>("entry");
        QTest::newRow("defaults") << "mnuEditDefault";
        QTest::newRow("menu") << "mnuEditMenuProperties";
    }
    void aBackgroundImageIsRelativeToTheMenusFolder() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("a");
        desk.document().setFile(desk.document().SaveFile(), "/site/menus");
        desk.dialogs.expectOpenFile("/site/images/back.gif");
        during<QDialog>([&] { desk.choose(entry); },
                        [](QDialog& form) {
                            press(form, "cmdBrowseBgImg");
                            QCOMPARE(textOf(form, "txtBgImg"), "../images/back.gif");
                            press(form, "cmdCancel");
                        });
    }

    void advancedOkAndThenCancelStoresButDoesNotMarkTheMenuAsChanged() {
        WindowDesk desk;
        desk.add("a");
        desk.forgetChanges();
        inAdvanced(desk, "cmdCancel", [](frmAdvProp& form) {
            typeInto(form, "txtTarget", "main");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.document().RootMenuProp().Target, "main");
        QVERIFY(!desk.document().bModified());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            QCOMPARE(textOf(form, "txtTarget"), "main");
            press(form, "cmdCancel");
        });
        QCOMPARE(desk.document().RootMenuProp().Target, "main");
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
    }

    // Copy and paste between menus

    void propertiesCopiedInOneMenuArePastedIntoAnother() {
        WindowDesk desk;
        desk.add("a");
        desk.dialogs.expectChooseFont(FontChoice{"Serif", 12, true, true});
        inMenuProperties(desk, [](frmMenuProp& form) {
            choosePosition(form, 3);
            for (const auto& [name, text] : {std::pair{"txtColumns", "4"},
                                             {"txtSpacing", "5"},
                                             {"txtBgImg", "back.gif"},
                                             {"txtHBgColor", "#010203"},
                                             {"txtNBgColor", "#040506"},
                                             {"txtHFtColor", "#070809"},
                                             {"txtNFtColor", "transparent"}})
                typeInto(form, name, text);
            press(form, "cmdFont");
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        const MenuProp root = desk.document().RootMenuProp();
        QCOMPARE(root.Columns, "10");

        // Another menu of another file, while the program runs on.
        desk.forgetChanges();
        desk.choose("mnuFileNew");
        const MenuNode* b = desk.add("b");
        desk.addChild("c");
        inMenuProperties(desk, [](frmMenuProp& form) {
            press(form, "cmdPaste");
            press(form, "cmdOK");
        });
        MenuProp expected = *newItemMenuProp();
        expected.Position = 3;
        expected.Columns = "4";
        expected.Spacing = "5";
        expected.BgImg = "back.gif";
        expected.HBgColor = "#010203";
        expected.NBgColor = "#040506";
        expected.HFtColor = "#070809";
        expected.NFtColor = "transparent";
        expected.FontSet = true;
        expected.FontFamily = "Serif";
        expected.FontSize = "12";
        expected.FontStyle = true;
        expected.FontWeight = true;
        QVERIFY(*b->item.MenuProperty == expected);
        QVERIFY(desk.document().RootMenuProp() == root);
    }

    void advancedPropertiesHaveACopyOfTheirOwn() {
        WindowDesk desk;
        desk.add("a");
        inMenuProperties(desk, [](frmMenuProp& form) {
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            typeInto(form, "txtDivider", "|");
            press(form, "cmdPaste");
            QCOMPARE(textOf(form, "txtDivider"), "|");
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        const MenuNode* b = desk.document().CurNode();
        desk.addChild("b");
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            QCOMPARE(textOf(form, "txtDivider"), "&nbsp;");
            press(form, "cmdPaste");
            press(form, "cmdOK");
        });
        QCOMPARE(b->item.MenuProperty->Divider, "|");
        QCOMPARE(desk.document().RootMenuProp().Divider, "&nbsp;");
    }

    // The tab that is shown

    void theJavaScriptTabFollows() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("JavaScript");
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QVERIFY(desk.script().toPlainText().contains("zev_state.hbgcolor = '#ABCDEF';\n"));
        inMenuProperties(desk, [](frmMenuProp& form) {
            typeInto(form, "txtColumns", "3");
            press(form, "cmdOK");
        });
        QVERIFY(desk.script().toPlainText().contains("zevmenu.columns = 3;\n"));
        inAdvanced(desk, "cmdCancel", [](frmAdvProp& form) {
            typeInto(form, "txtTarget", "main");
            press(form, "cmdOK");
        });
        QVERIFY(desk.script().toPlainText().contains("zevmenu.target = 'main';\n"));
    }

    void theJavaScriptTabShowsTheChangeWhenItIsOpenedLater() {
        WindowDesk desk;
        desk.add("a");
        inMenuProperties(desk, [](frmMenuProp& form) {
            typeInto(form, "txtNBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.script().toPlainText(), "");
        desk.clickTab("JavaScript");
        QVERIFY(desk.script().toPlainText().contains("zevmenu.nbgcolor = '#ABCDEF';\n"));
    }

    void thePreviewTabFollowsAChangeOnly() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
        inDefaults(
            desk,
            [](frmDefaultProp& form) {
                typeInto(form, "txtHBgColor", "#ABCDEF");
                press(form, "cmdCancel");
            });
        inMenuProperties(desk, [](frmMenuProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.browser.recorded().size(), std::size_t(2));
        QVERIFY(desk.disk.allFiles().at("/program/orlet_temp.js").find("#ABCDEF") !=
                std::string::npos);
    }
};

QTEST_MAIN(test_property_changes)
#include "test_property_changes.moc"
