// SPDX-License-Identifier: MIT
// Menu Properties: which menu is filled in, what OK and Cancel do with it, copying and the advanced
// properties.

#include "menu_prop_desk.h"
#include "tests/app/when_shown.h"

using namespace zev;

class test_frm_menu_prop : public QObject {
    Q_OBJECT

  private slots:
    void aTopLevelItemsMenuIsTheTopMenu() {
        MenuDesk desk;
        desk.editTopMenu()->BgImg = "top.gif";
        desk.editSubmenuOfA()->BgImg = "a.gif";
        desk.open(desk.b);
        QCOMPARE(desk.text("txtBgImg"), "top.gif");
        desk.form.type("txtBgImg", "new.gif");
        desk.form.click("cmdOK");
        QCOMPARE(desk.topMenu().BgImg, "new.gif");
        QCOMPARE(desk.submenuOfA().BgImg, "a.gif");
    }

    void anItemOfASubmenuEditsItsParentsSet() {
        MenuDesk desk;
        desk.editTopMenu()->BgImg = "top.gif";
        desk.editSubmenuOfA()->BgImg = "a.gif";
        desk.editSubmenuOf(desk.a1)->BgImg = "a1.gif";
        desk.openSubmenuOfA();
        QCOMPARE(desk.text("txtBgImg"), "a.gif");
        desk.form.type("txtBgImg", "new.gif");
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().BgImg, "new.gif");
        QCOMPARE(desk.topMenu().BgImg, "top.gif");
        QCOMPARE(desk.a1->item.MenuProperty->BgImg, "a1.gif");
    }

    void withoutACurrentItemNothingIsFilled() {
        MenuDesk desk;
        desk.editTopMenu()->BgImg = "top.gif";
        desk.document.apply(SetSelection{{desk.document.selectedNode(), nullptr}});
        QVERIFY(!desk.dialog.fill());
        QCOMPARE(desk.text("txtBgImg"), "");
    }

    void okFindsTheMenuAfresh() {
        MenuDesk desk;
        desk.openTopMenu();
        const MenuProp top = desk.topMenu();
        desk.form.type("txtBgImg", "new.gif");
        desk.document.apply(SetSelection{{desk.document.selectedNode(), desk.a1}});
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().BgImg, "new.gif");
        QVERIFY(desk.topMenu() == top);
    }

    void fillingShowsWhatIsStored() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), 4);
        QCOMPARE(desk.text("txtColumns"), "3");
        QCOMPARE(desk.text("txtSpacing"), "5");
        QCOMPARE(desk.text("txtBgImg"), "images/back.gif");
        QCOMPARE(desk.text("txtHBgColor"), "#102030");
        QCOMPARE(desk.text("txtNBgColor"), "#405060");
        QCOMPARE(desk.text("txtHFtColor"), "#708090");
        QCOMPARE(desk.text("txtNFtColor"), "#A0B0C0");
        QVERIFY(desk.dialog.bFontSet);
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 0x302010},
                                                          {"lblFont fore", 0x908070},
                                                          {"lblPreviewNormal back", 0x605040},
                                                          {"lblPreviewNormal fore", 0xC0B0A0}}));
        QVERIFY(!desk.document.bModified());
    }

    void fillingShowsTheDefaultsColoursWhereTheMenuHasNone() {
        MenuDesk desk;
        // Not what the boxes of the other dialog show.
        DialogDesk::type(desk.defaults, "txtHBgColor", "#FFFFFF");
        desk.openTopMenu();
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 1},
                                                          {"lblFont fore", 2},
                                                          {"lblPreviewNormal back", 3},
                                                          {"lblPreviewNormal fore", 4}}));
    }

    void storedValuesThatNoCheckWouldPassAreShownWithoutAMessage() {
        MenuDesk desk;
        desk.editTopMenu()->Columns = "many";
        desk.editTopMenu()->Spacing = "-1";
        desk.openTopMenu();
        QCOMPARE(desk.text("txtColumns"), "many");
        QCOMPARE(desk.text("txtSpacing"), "-1");
        desk.form.tabOrder();
        desk.form.click("cmdOK");
        QCOMPARE(desk.topMenu().Columns, "many");
        QVERIFY(desk.messages.recorded().empty());
    }

    void aMenuWithoutAFontShowsTheDefaultsFont() {
        MenuDesk desk;
        GiveOwnFont(*desk.editTopMenu());
        desk.editTopMenu()->FontSet = false;
        desk.openTopMenu();
        QVERIFY(!desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave(kDefaultFont));
    }

    void aMenusOwnFontWinsWhereItSaysSomething_data() {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("shownFamily");
        QTest::addColumn<float>("shownPoints");
        QTest::newRow("both") << "DejaVu Serif"
                              << "15"
                              << "DejaVu Serif" << 15.0F;
        QTest::newRow("no family") << ""
                                   << "15"
                                   << "DejaVu Sans" << 15.0F;
        QTest::newRow("blank family") << "  "
                                      << "15"
                                      << "DejaVu Sans" << 15.0F;
        QTest::newRow("no size") << "DejaVu Serif"
                                 << ""
                                 << "DejaVu Serif" << 12.0F;
        QTest::newRow("size is no number") << "DejaVu Serif"
                                           << "big"
                                           << "DejaVu Serif" << 10.0F;
    }
    void aMenusOwnFontWinsWhereItSaysSomething() {
        QFETCH(QString, family);
        QFETCH(QString, size);
        QFETCH(QString, shownFamily);
        QFETCH(float, shownPoints);
        MenuDesk desk;
        GiveOwnFont(*desk.editTopMenu());
        desk.editTopMenu()->FontFamily = family.toStdString();
        desk.editTopMenu()->FontSize = size.toStdString();
        desk.openTopMenu();
        QVERIFY(desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave({shownFamily.toStdString(), shownPoints, false, true}));
    }

    void okWritesEveryBoxAndTheList() {
        MenuDesk desk;
        desk.openTopMenu();
        MenuProp expected = desk.topMenu();
        desk.form.choose("cboPosition", 3);
        desk.form.type("txtColumns", "100");
        desk.form.type("txtSpacing", "1000");
        desk.form.type("txtBgImg", "b.gif");
        desk.form.type("txtHBgColor", "#abc");
        desk.form.type("txtNBgColor", "transparent");
        desk.form.type("txtHFtColor", "red");
        desk.form.type("txtNFtColor", "x");
        QVERIFY(desk.topMenu() == expected);
        desk.form.click("cmdOK");
        expected.Position = 3;
        expected.Columns = "100";
        expected.Spacing = "1000";
        expected.BgImg = "b.gif";
        expected.HBgColor = "#abc";
        expected.NBgColor = "transparent";
        expected.HFtColor = "red";
        expected.NFtColor = "x";
        QVERIFY(desk.topMenu() == expected);
        QVERIFY(desk.document.bModified());
        QCOMPARE(desk.updates, 1);
        QVERIFY(!desk.dialog.isVisible());
    }

    void emptyBoxesAreStoredEmpty() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        for (const char* name : {"txtColumns", "txtSpacing", "txtBgImg", "txtHBgColor",
                                 "txtNBgColor", "txtHFtColor", "txtNFtColor"})
            desk.form.type(name, "");
        desk.form.click("cmdOK");
        MenuProp expected;
        GiveOwnFont(expected);
        expected.Position = 4;
        QVERIFY(desk.topMenu() == expected);
        QVERIFY(desk.messages.recorded().empty());
    }

    void okWithNothingChangedMarksTheDocumentAsModified() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.document.bModified());
        QCOMPARE(desk.updates, 1);
        QVERIFY(desk.topMenu() == FilledProp());
        QVERIFY(!desk.dialog.isVisible());
    }

    void cancelWritesNothing_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Escape") << true;
    }
    void cancelWritesNothing() {
        QFETCH(bool, byKey);
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.click("cmdFontClear");
        desk.form.type("txtSpacing", "9");
        if (byKey)
            desk.form.press(Qt::Key_Escape);
        else
            desk.form.click("cmdCancel");
        QVERIFY(!desk.dialog.isVisible());
        QVERIFY(desk.topMenu() == FilledProp());
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
    }

    void pasteBeforeAnyCopyChangesNothing() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        const Form::Colors colors = desk.form.previewColors();
        QVERIFY(desk.form.button("cmdPaste").isEnabled());
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.previewColors(), colors);
        desk.form.click("cmdOK");
        QVERIFY(desk.topMenu() == FilledProp());
    }

    void whatIsCopiedInOneMenuIsPastedInAnother() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        *desk.editSubmenuOfA() = MenuProp();
        desk.editSubmenuOfA()->Target = "its own";
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        QVERIFY(desk.topMenu() == FilledProp());
        desk.form.click("cmdCancel");
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.text("txtBgImg"), "images/back.gif");
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 0x302010},
                                                          {"lblFont fore", 0x908070},
                                                          {"lblPreviewNormal back", 0x605040},
                                                          {"lblPreviewNormal fore", 0xC0B0A0}}));
        QVERIFY(desk.previewsHave(kOwnFont));
        QCOMPARE(desk.submenuOfA().BgImg, "");
        desk.form.click("cmdOK");
        MenuProp expected = FilledProp();
        expected.Target = "its own";
        QVERIFY(desk.submenuOfA() == expected);
    }

    void copyTakesWhatTheControlsShow() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.form.type("txtBgImg", "unconfirmed.gif");
        desk.form.choose("cboPosition", 1);
        desk.form.type("txtSpacing", "8");
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Serif", 10.5F, true, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.text("txtBgImg"), "unconfirmed.gif");
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), 1);
        QCOMPARE(desk.text("txtSpacing"), "8");
        // Copied sizes are whole numbers.
        QVERIFY(desk.previewsHave({"DejaVu Serif", 10, true, false}));
    }

    void aCopyIsNotChangedByLaterEdits() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.form.type("txtBgImg", "copied.gif");
        desk.form.click("cmdCopy");
        desk.form.type("txtBgImg", "later.gif");
        desk.form.click("cmdPaste");
        QCOMPARE(desk.text("txtBgImg"), "copied.gif");
        desk.form.type("txtBgImg", "again.gif");
        desk.form.click("cmdCopy");
        desk.form.type("txtBgImg", "");
        desk.form.click("cmdPaste");
        QCOMPARE(desk.text("txtBgImg"), "again.gif");
    }

    void pastedEmptyColoursShowTheOtherDialogsBoxes() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        for (const char* name : {"txtHBgColor", "txtHFtColor", "txtNBgColor", "txtNFtColor"})
            desk.defaults.findChild<QLineEdit*>(name)->setText("#0A0B0C");
        *desk.editSubmenuOfA() = FilledProp();
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 0x0C0B0A},
                                                          {"lblFont fore", 0x0C0B0A},
                                                          {"lblPreviewNormal back", 0x0C0B0A},
                                                          {"lblPreviewNormal fore", 0x0C0B0A}}));
    }

    void aCopyWithoutAFontTakesTheTargetsFontAway() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        *desk.editSubmenuOfA() = FilledProp();
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QVERIFY(desk.previewsHave(kDefaultFont));
        desk.form.click("cmdOK");
        QVERIFY(!desk.submenuOfA().FontSet);
        QCOMPARE(desk.submenuOfA().FontFamily, kOwnFont.name);
        QCOMPARE(desk.submenuOfA().FontSize, "15");
        QVERIFY(desk.submenuOfA().FontWeight);
    }

    void advancedPropertiesAreNotCopied() {
        MenuDesk desk;
        desk.editTopMenu()->Target = "top";
        desk.editTopMenu()->ItemBorder = "1px";
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        *desk.editSubmenuOfA() = MenuProp();
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().Target, "");
        QCOMPARE(desk.submenuOfA().ItemBorder, "");
    }

    void aCopiedMissingPositionIsPastedAsMissing() {
        MenuDesk desk;
        desk.editTopMenu()->Position = 9;
        desk.openTopMenu();
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), -1);
        desk.form.click("cmdCopy");
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.topMenu().Position), -1);
        desk.editSubmenuOfA()->Position = 2;
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), -1);
    }

    void advancedShowsTheSameMenusStoredProperties() {
        MenuDesk desk;
        desk.editSubmenuOfA()->Target = "frame";
        desk.openSubmenuOfA();
        QString shown;
        whenShown<frmAdvProp>([&](frmAdvProp& advanced) {
            shown = advanced.findChild<QLineEdit*>("txtTarget")->text();
            advanced.reject();
        });
        desk.form.click("cmdAdvanced");
        QCOMPARE(shown, "frame");
        QVERIFY(desk.dialog.isVisible());
    }

    void advancedValuesStayWhenThisDialogIsCancelled() {
        MenuDesk desk;
        desk.openTopMenu();
        whenShown<frmAdvProp>([&](frmAdvProp& advanced) {
            DialogDesk::type(advanced, "txtTarget", "frame");
            DialogDesk::click(advanced, "cmdOK");
        });
        desk.form.click("cmdAdvanced");
        desk.form.click("cmdCancel");
        QCOMPARE(desk.topMenu().Target, "frame");
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
    }

    void advancedWithoutACurrentItemDoesNothing() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.document.apply(SetSelection{{desk.document.selectedNode(), nullptr}});
        desk.form.click("cmdAdvanced");
        QVERIFY(!desk.advanced.isVisible());
    }

    void textsABoxCannotShowSurviveOKAndCopying() {
        const std::string text = "a\r\nb";
        MenuDesk desk;
        desk.editTopMenu()->BgImg = text;
        desk.editTopMenu()->HFtColor = text;
        const MenuProp before = desk.topMenu();
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdOK");
        QVERIFY(desk.topMenu() == before);
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().BgImg, text);
        QCOMPARE(desk.submenuOfA().HFtColor, text);
    }
};

QTEST_MAIN(test_frm_menu_prop)
#include "test_frm_menu_prop.moc"
