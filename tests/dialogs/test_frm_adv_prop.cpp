// SPDX-License-Identifier: MIT
// Advanced Menu Properties: what is filled in, what OK and Cancel do with it, the shadow and
// copying.

#include "adv_prop_desk.h"
#include "dialogs/color_swatch.h"

using namespace zev;

class test_frm_adv_prop : public QObject {
    Q_OBJECT

  private slots:
    // Filling

    void fillingShowsTheStoredTexts() {
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('7');
        desk.open();
        QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('7')));
    }

    void aTopLevelItemStandsForTheTopMenuAndOthersForTheirParentsSubmenu() {
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('1');
        *desk.editSubmenuOf(desk.a) = signedSet('2');
        *desk.editSubmenuOf(desk.a1) = signedSet('3');
        *desk.editSubmenuOf(desk.b) = signedSet('4');
        desk.open(desk.a);
        QCOMPARE(desk.text("txtTarget"), QString("1txtTarget"));
        desk.open(desk.b);
        QCOMPARE(desk.text("txtTarget"), QString("1txtTarget"));
        desk.open(desk.a1);
        QCOMPARE(desk.text("txtTarget"), QString("2txtTarget"));
    }

    void withoutACurrentItemNothingHappens() {
        AdvDesk desk;
        desk.type("txtTarget", "edited");
        desk.document.apply(SetSelection{{desk.document.selectedNode(), nullptr}});
        *desk.editTopMenu() = signedSet('1');
        QVERIFY(!desk.form().fill());
        QCOMPARE(desk.text("txtTarget"), QString("edited"));
    }

    void openingTwiceWithoutOKShowsTheStoredTextsEachTime() {
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('1');
        for (int times = 0; times < 2; ++times) {
            desk.open();
            QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('1')));
            desk.type("txtTarget", "edited");
            desk.click("cmdCancel");
        }
    }

    void storedTextsAreShownWithoutAMessageWhateverTheyAre() {
        AdvDesk desk;
        desk.editTopMenu()->CellPadding = "11";
        desk.editTopMenu()->FilterFade = "x";
        desk.editTopMenu()->FilterOpacity = "0";
        desk.editTopMenu()->MenuBorder = "it's";
        desk.open();
        QCOMPARE(desk.text("txtCellPadding"), QString("11"));
        QCOMPARE(desk.text("txtFade"), QString("x"));
        QCOMPARE(desk.text("txtOpacity"), QString("0"));
        QCOMPARE(desk.text("txtMenuBorder"), QString("it's"));
        QVERIFY(desk.messages.recorded().empty());
    }

    void itOpensWithTheFirstBoxWhereverItWasLeft() {
        AdvDesk desk;
        desk.type("txtShadow", "#123456");
        desk.press(Qt::Key_Return);
        desk.open();
        QCOMPARE(desk.focused(), QString("txtDivider"));
    }

    // OK and Cancel

    void okWritesEachBoxIntoItsMember_data() {
        QTest::addColumn<QString>("typed");
        for (const BoxOf& box : kBoxes) {
            const bool isNumber = box.member == &MenuProp::CellPadding ||
                                  box.member == &MenuProp::FilterFade ||
                                  box.member == &MenuProp::FilterOpacity;
            QTest::newRow(box.name) << QString(isNumber ? "3" : "<b>new</b>");
        }
    }
    void okWritesEachBoxIntoItsMember() {
        QFETCH(QString, typed);
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('1');
        desk.open();
        desk.type(QTest::currentDataTag(), typed);
        desk.click("cmdOK");
        MenuProp expected = signedSet('1');
        for (const BoxOf& box : kBoxes)
            if (QString(box.name) == QTest::currentDataTag())
                expected.*box.member = typed.toStdString();
        QVERIFY(!desk.form().isVisible());
        QVERIFY(desk.document.RootMenuProp() == expected);
    }

    void emptyTextIsStoredEverywhere() {
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('1');
        desk.open();
        for (const BoxOf& box : kBoxes)
            desk.type(box.name, "");
        desk.click("cmdOK");
        QVERIFY(desk.document.RootMenuProp() == MenuProp());
        QVERIFY(desk.messages.recorded().empty());
    }

    void okWritesToTheMenuOfTheItemThatIsCurrentThen() {
        AdvDesk desk;
        const MenuProp before = desk.document.RootMenuProp();
        desk.type("txtTarget", "frame");
        desk.document.apply(SetSelection{{desk.document.selectedNode(), desk.a1}});
        desk.click("cmdOK");
        QCOMPARE(desk.a->item.MenuProperty->Target, std::string("frame"));
        QVERIFY(desk.document.RootMenuProp() == before);
    }

    void okNeitherMarksTheDocumentNorUpdatesTheWindow() {
        AdvDesk desk;
        desk.type("txtTarget", "frame");
        desk.click("cmdOK");
        QCOMPARE(desk.document.RootMenuProp().Target, std::string("frame"));
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
    }

    void textsThatABoxCannotShowSurviveOKAndPaste() {
        const std::string breaks = "<b>\r\nlong\n</b>" + std::string(100'001, 'x');
        AdvDesk desk;
        desk.editTopMenu()->HTMLBefore = breaks;
        desk.open();
        QVERIFY(!desk.text("txtHTMLBefore").contains('\n'));
        desk.click("cmdCopy");
        desk.type("txtTarget", "frame");
        desk.click("cmdOK");
        QVERIFY(desk.document.RootMenuProp().HTMLBefore == breaks);
        desk.open(desk.a1);
        desk.click("cmdPaste");
        desk.click("cmdOK");
        QVERIFY(desk.a->item.MenuProperty->HTMLBefore == breaks);
    }

    void cancelHidesAndWritesNothing_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"the button", "Escape", "Alt+C", "the window's frame"})
            QTest::newRow(way) << way;
    }
    void cancelHidesAndWritesNothing() {
        QFETCH(QString, way);
        AdvDesk desk;
        const MenuProp before = desk.document.RootMenuProp();
        desk.type("txtTarget", "frame");
        desk.type("txtShadow", "#123456");
        // Would bring a message if the box were left.
        desk.type("txtFade", "9");
        if (way == "the button")
            desk.click("cmdCancel");
        else if (way == "Escape")
            desk.press(Qt::Key_Escape);
        else if (way == "Alt+C")
            desk.press(Qt::Key_C, Qt::AltModifier);
        else
            desk.form().close();
        QTRY_VERIFY(!desk.form().isVisible());
        QVERIFY(desk.document.RootMenuProp() == before);
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
    }

    void enterIsOKInEveryBox_data() { addBoxes(); }
    void enterIsOKInEveryBox() {
        AdvDesk desk;
        desk.type("txtTarget", "frame");
        desk.box(QTest::currentDataTag()).setFocus();
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.form().isVisible());
        QCOMPARE(desk.document.RootMenuProp().Target, std::string("frame"));
    }

    // Shadow colour

    void theShadowColorIsPickedFromTheBoxesColor() {
        AdvDesk desk;
        desk.type("txtShadow", "#FF8000");
        desk.dialogs.expectChooseColor(0xEFCDAB);
        desk.click("cmdShadow");
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{0x0080FF});
        QCOMPARE(desk.text("txtShadow"), QString("#ABCDEF"));
        desk.click("cmdOK");
        QCOMPARE(desk.document.RootMenuProp().FilterShadow, std::string("#ABCDEF"));
    }

    void aCancelledColorDialogLeavesTheShadowAsItIs() {
        AdvDesk desk;
        desk.type("txtShadow", "gray");
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.click("cmdShadow");
        QCOMPARE(desk.text("txtShadow"), QString("gray"));
    }

    void theSwatchShowsTheShadowOfEachMenu() {
        AdvDesk desk;
        auto& swatch = *desk.form().findChild<ColorSwatch*>();
        desk.editTopMenu()->FilterShadow = "#123456";
        desk.open();
        QCOMPARE(swatch.accessibleDescription(), QString("#123456"));
        desk.open(desk.a1);
        QCOMPARE(swatch.accessibleDescription(), QString("none"));
    }

    // Copy and paste

    void pasteBeforeAnyCopyChangesNothing() {
        AdvDesk desk;
        desk.type("txtTarget", "frame");
        const QStringList before = desk.shown();
        desk.click("cmdPaste");
        QCOMPARE(desk.shown(), before);
        QVERIFY(desk.messages.recorded().empty());
    }

    void copyTakesWhatTheBoxesShowIntoAnyMenu() {
        AdvDesk desk;
        const MenuProp root = signedSet('1');
        *desk.editTopMenu() = root;
        const MenuProp submenu = signedSet('2');
        *desk.editSubmenuOf(desk.a) = submenu;
        desk.open();
        desk.type("txtTarget", "not confirmed");
        desk.click("cmdCopy");
        const QStringList copied = desk.shown();
        desk.type("txtTarget", "typed after copying");
        desk.click("cmdCancel");
        QVERIFY(desk.document.RootMenuProp() == root);

        desk.open(desk.a1);
        QCOMPARE(desk.shown(), AdvDesk::textsOf(submenu));
        desk.click("cmdPaste");
        QCOMPARE(desk.shown(), copied);
        QVERIFY(*desk.a->item.MenuProperty == submenu);
        desk.click("cmdOK");
        MenuProp expected = root;
        expected.Target = "not confirmed";
        QVERIFY(*desk.a->item.MenuProperty == expected);
        QVERIFY(!desk.document.bModified());
    }

    void theCopyIsKeptForFurtherPastes() {
        AdvDesk desk;
        *desk.editTopMenu() = signedSet('1');
        desk.open();
        desk.click("cmdCopy");
        for (const MenuNode* node : {desk.a1, desk.b}) {
            desk.open(node);
            desk.type("txtTarget", "x");
            desk.click("cmdPaste");
            QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('1')));
            desk.click("cmdOK");
        }
    }

    void pastedTextIsCheckedOnlyWhenItsBoxIsChangedOrLeft() {
        AdvDesk desk;
        desk.editTopMenu()->CellPadding = "11";
        desk.editTopMenu()->FilterFade = "9";
        desk.editTopMenu()->MenuBorder = "it's";
        desk.editTopMenu()->Divider = "it's";
        desk.open();
        desk.box("txtShadow").setFocus();
        desk.click("cmdCopy");
        desk.open(desk.a1);
        desk.box("txtShadow").setFocus();
        desk.click("cmdPaste");
        QCOMPARE(desk.text("txtCellPadding"), QString("11"));
        QCOMPARE(desk.text("txtFade"), QString("9"));
        QCOMPARE(desk.text("txtMenuBorder"), QString("it's"));
        QVERIFY(desk.messages.recorded().empty());
        desk.messages.expect(kPaddingRange);
        desk.box("txtCellPadding").setFocus();
        desk.press(Qt::Key_End);
        QTest::keyClick(&desk.box("txtCellPadding"), '0');
        QCOMPARE(desk.text("txtCellPadding"), QString());
        desk.box("txtFade").setFocus();
        desk.messages.expect(kFadeRange);
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text("txtFade"), QString());
    }

  private:
    static void addBoxes() {
        QTest::addColumn<int>("unused");
        for (const BoxOf& box : kBoxes)
            QTest::newRow(box.name) << 0;
    }
};

QTEST_MAIN(test_frm_adv_prop)
#include "test_frm_adv_prop.moc"
