// SPDX-License-Identifier: MIT
// Menu Properties: what becomes of what is typed and picked.

#include "menu_prop_desk.h"
#include "property_tables.h"
#include "script/property_lines.h"

using namespace zev;

class test_frm_menu_prop_input : public QObject {
    Q_OBJECT

  private slots:
    void numbersAreCheckedAtEveryKey_data() {
        addSharedNumbers();
        QTest::newRow("columns 0") << "txtColumns"
                                   << "0"
                                   << ""
                                   << "0";
        QTest::newRow("columns 100") << "txtColumns"
                                     << "100"
                                     << ""
                                     << "100";
        QTest::newRow("columns 101") << "txtColumns"
                                     << "101"
                                     << "0 and 100"
                                     << "";
        QTest::newRow("columns -") << "txtColumns"
                                   << "-"
                                   << "0 and 100"
                                   << "";
        QTest::newRow("spacing 0") << "txtSpacing"
                                   << "0"
                                   << ""
                                   << "0";
    }
    void numbersAreCheckedAtEveryKey() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        MenuDesk desk;
        desk.openTopMenu();
        if (!bounds.isEmpty())
            desk.messages.expect("Please enter a value between " + bounds.toStdString());
        desk.form.type(name, typed);
        QCOMPARE(desk.text(name), shown);
        desk.messages.verify();
    }

    void leavingAColourBoxRepaintsItsPreview_data() { addColors(); }
    void leavingAColourBoxRepaintsItsPreview() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        Form::Colors colors = desk.form.previewColors();
        desk.form.type("txt" + name, "#010203");
        QCOMPARE(desk.form.previewColors(), colors);
        desk.form.press(Qt::Key_Tab);
        colors[changed] = 0x030201;
        QCOMPARE(desk.form.previewColors(), colors);
    }

    void leavingAnEmptyColourBoxShowsTheOtherDialogsBox_data() { addColors(); }
    void leavingAnEmptyColourBoxShowsTheOtherDialogsBox() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        // What the other dialog's box holds counts, confirmed there or not.
        desk.defaults.findChild<QLineEdit*>("txt" + name)->setText("#0A0B0C");
        Form::Colors colors = desk.form.previewColors();
        desk.form.type("txt" + name, "");
        desk.form.press(Qt::Key_Tab);
        colors[changed] = 0x0C0B0A;
        QCOMPARE(desk.form.previewColors(), colors);
        desk.form.click("cmdOK");
        QCOMPARE(desk.topMenu().*memberOf(name), "");
    }

    void theColourButtonTakesAndGivesTheTextOfItsBox_data() { addColors(); }
    void theColourButtonTakesAndGivesTheTextOfItsBox() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        Form::Colors colors = desk.form.previewColors();
        desk.form.type("txt" + name, "#FF8000");
        desk.dialogs.expectChooseColor(0x0a0bfc);
        desk.form.click("cmd" + name);
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{0x0080FF});
        QCOMPARE(desk.text("txt" + name), "#FC0B0A");
        colors[changed] = 0x0a0bfc;
        QCOMPARE(desk.form.previewColors(), colors);
    }

    void theColourButtonOfAnEmptyBoxStartsWithBlack() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.click("cmdHBgColor");
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{0});
        QCOMPARE(desk.text("txtHBgColor"), "");
        QCOMPARE(desk.form.preview("lblFont").backColor(), 1);
    }

    void browseTakesThePathRelativeToTheDocumentsFolder() {
        MenuDesk desk;
        desk.document.setFile(desk.document.SaveFile(), "/site");
        desk.openTopMenu();
        desk.dialogs.expectOpenFile("/other/back.gif");
        desk.form.click("cmdBrowseBgImg");
        QCOMPARE(desk.text("txtBgImg"), "../other/back.gif");
        const FileDialogRequest& request = desk.dialogs.recorded().back().request;
        QCOMPARE(request.title, "Browse");
        QCOMPARE(request.fileName, "");
        QCOMPARE(request.filter, "All Files (*.*)|*.*|GIF (*.gif)|*.gif|JPG (*.jpg)|*.jpg");
        QCOMPARE(request.filterIndex, 2);
        desk.dialogs.expectOpenFile("");
        desk.form.click("cmdBrowseBgImg");
        QCOMPARE(desk.text("txtBgImg"), "../other/back.gif");
    }

    void theFontDialogStartsWithTheMenusFontOnlyWhileItHasOne() {
        MenuDesk desk;
        const FontChoice first = {"DejaVu Sans Mono", 9.5F, true, true};
        desk.openTopMenu();
        desk.dialogs.expectChooseFont(first);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == kDefaultFont);
        // Without one, the font dialog opens with what it last held.
        desk.form.click("cmdFontClear");
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == first);
        desk.form.click("cmdCancel");
        // A menu with a font of its own.
        GiveOwnFont(*desk.editSubmenuOfA());
        desk.openSubmenuOfA();
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == kOwnFont);
        desk.form.click("cmdFontClear");
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == kOwnFont);
        QVERIFY(!desk.dialog.bFontSet);
    }

    void theFontDialogStartsWithTheInheritedFontUntilOneWasChosen() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == kDefaultFont);
        desk.form.click("cmdCancel");
        // A cancelled dialog holds nothing that could hide a later change of the defaults.
        test::editMenu(desk.document, test::kDefaults)->FontFamily = "Georgia, serif";
        desk.openTopMenu();
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QCOMPARE(desk.dialogs.recordedFonts().back().name, "Georgia, serif");
    }

    void aNewSizeWritesNoLineForTheInheritedFamily() {
        MenuDesk desk;
        test::editMenu(desk.document, test::kDefaults)->FontFamily = "Georgia, serif";
        desk.openTopMenu();
        FontChoice larger = kDefaultFont;
        larger.name = "Georgia, serif";
        larger.points = 20;
        desk.dialogs.expectChooseFont(larger);
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        const std::string lines = GetText(desk.topMenu(), desk.document.DefaultProp());
        QVERIFY(lines.find("zevmenu.fontSize = '20pt';") != std::string::npos);
        for (const char* name : {"fontFamily", "fontStyle", "fontWeight"})
            QVERIFY2(lines.find(name) == std::string::npos, lines.c_str());
    }

    void aChosenFontIsTheMenusOwnFromThenOn() {
        MenuDesk desk;
        desk.openTopMenu();
        const MenuProp before = desk.topMenu();
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Serif", 11.5F, false, true});
        desk.form.click("cmdFont");
        QVERIFY(desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave({"DejaVu Serif", 11.5F, false, true}));
        QVERIFY(desk.topMenu() == before);
        desk.form.click("cmdOK");
        QVERIFY(desk.topMenu().FontSet);
        QCOMPARE(desk.topMenu().FontFamily, "DejaVu Serif");
        QCOMPARE(desk.topMenu().FontSize, "12");
        QVERIFY(!desk.topMenu().FontStyle);
        QVERIFY(desk.topMenu().FontWeight);
    }

    void aCancelledFontDialogGivesTheMenuNoFont() {
        MenuDesk desk;
        desk.openTopMenu();
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(!desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave(kDefaultFont));
        desk.form.click("cmdOK");
        QVERIFY(!desk.topMenu().FontSet);
        QCOMPARE(desk.topMenu().FontFamily, "");
    }

    void clearFontShowsTheDefaultsFontAndKeepsTheStoredOne() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        QVERIFY(desk.previewsHave(kOwnFont));
        desk.form.click("cmdFontClear");
        QVERIFY(!desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave(kDefaultFont));
        desk.form.click("cmdOK");
        MenuProp expected = FilledProp();
        expected.FontSet = false;
        QVERIFY(desk.topMenu() == expected);
    }

    void clearFontAndCancelLeaveTheMenusFont() {
        MenuDesk desk;
        *desk.editTopMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.click("cmdFontClear");
        desk.form.click("cmdCancel");
        QVERIFY(desk.topMenu() == FilledProp());
        desk.openTopMenu();
        QVERIFY(desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave(kOwnFont));
    }

  private:
    static std::string MenuProp::*memberOf(const QString& name) {
        if (name == "HBgColor")
            return &MenuProp::HBgColor;
        if (name == "HFtColor")
            return &MenuProp::HFtColor;
        return name == "NBgColor" ? &MenuProp::NBgColor : &MenuProp::NFtColor;
    }
};

QTEST_MAIN(test_frm_menu_prop_input)
#include "test_frm_menu_prop_input.moc"
