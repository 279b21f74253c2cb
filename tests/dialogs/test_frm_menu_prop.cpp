// Menu Properties, driven by mouse and keys.

#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "dialogs/input_rules.h"
#include "form.h"
#include "tests/app/when_shown.h"

using namespace zev;

namespace {

const char* const kColorTooltip =
    "Color in RGB hexadecimal (#FFFFFF). Set the value to transparent for transparency effect";

const FontChoice kDefaultFont = {"DejaVu Sans", 12, true, false};
const FontChoice kOwnFont = {"DejaVu Serif", 15, false, true};

/// The dialog and the two it works with, over defaults with colours and a font.
struct Desk : DialogDesk {
    Desk() {
        MenuProp& prop = document.DefaultProp;
        prop.HBgColor = "#010000";
        prop.HFtColor = "#020000";
        prop.NBgColor = "#030000";
        prop.NFtColor = "#040000";
        prop.FontFamily = kDefaultFont.name;
        prop.FontSize = "12";
        prop.FontStyle = true;
        prop.FontWeight = false;
        defaults.LoadDefaultDialog();
    }

    MenuProp& topMenu() { return document.RootMenuProp; }
    MenuProp& submenuOfA() { return a->item.MenuProperty.edit(); }
    /// Opens the dialog for the menu that `node` stands in.
    void open(MenuNode* node) {
        document.CurNode = node;
        document.selectedNode = node;
        if (!dialog.fill())
            failDialogTest("the dialog was not filled");
        form.show();
    }
    void openTopMenu() { open(a); }
    void openSubmenuOfA() { open(a1); }
    QString text(const QString& name) { return form.field(name).text(); }
    const FontChoice& previewFont() { return form.preview("lblFont").fontChoice(); }
    bool previewsHave(const FontChoice& font) {
        return previewFont() == font && form.preview("lblPreviewNormal").fontChoice() == font;
    }

    frmDefaultProp defaults{host()};
    frmAdvProp advanced{host(), nullptr};
    frmMenuProp dialog{host(), defaults, advanced};
    Form form{dialog};
};

void GiveOwnFont(MenuProp& prop) {
    prop.FontSet = true;
    prop.FontFamily = kOwnFont.name;
    prop.FontSize = "15";
    prop.FontStyle = kOwnFont.isItalic;
    prop.FontWeight = kOwnFont.isBold;
}

/// A set with a value in every member this dialog edits.
MenuProp FilledProp() {
    MenuProp prop;
    prop.Position = 4;
    prop.Columns = "3";
    prop.Spacing = "5";
    prop.BgImg = "images/back.gif";
    prop.HBgColor = "#102030";
    prop.NBgColor = "#405060";
    prop.HFtColor = "#708090";
    prop.NFtColor = "#A0B0C0";
    GiveOwnFont(prop);
    return prop;
}

}  // namespace

class test_frm_menu_prop : public QObject {
    Q_OBJECT

  private slots:
    void theControlsAreNamedLabelledAndExplained_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("spoken");
        QTest::addColumn<QString>("tooltip");
        QTest::newRow("position") << "cboPosition"
                                  << "FrameMenu"
                                  << "Menu Position:"
                                  << "Menu Position"
                                  << "";
        QTest::newRow("columns") << "txtColumns"
                                 << "FrameMenu"
                                 << "Columns:"
                                 << "Columns"
                                 << "Number of menu columns. Set to 1 for vertical menus and a "
                                    "large number for horizontal menus";
        QTest::newRow("spacing") << "txtSpacing"
                                 << "FrameMenu"
                                 << "Spacing:"
                                 << "Spacing"
                                 << "Spacing between menu items";
        QTest::newRow("image") << "txtBgImg"
                               << "FrameBackground"
                               << "Image:"
                               << "Image"
                               << "Menu background image";
        QTest::newRow("highlighted background") << "txtHBgColor"
                                                << "FrameBackground"
                                                << "Highlight Color:"
                                                << "Background highlight color" << kColorTooltip;
        QTest::newRow("normal background") << "txtNBgColor"
                                           << "FrameBackground"
                                           << "Normal Color:"
                                           << "Background normal color" << kColorTooltip;
        QTest::newRow("highlighted text") << "txtHFtColor"
                                          << "FrameFont"
                                          << "Highlight Color:"
                                          << "Font highlight color" << kColorTooltip;
        QTest::newRow("normal text") << "txtNFtColor"
                                     << "FrameFont"
                                     << "Normal Color:"
                                     << "Font normal color" << kColorTooltip;
        QTest::newRow("font") << "cmdFont"
                              << "FrameFont"
                              << "Font:"
                              << "Select Font"
                              << "Menu item font";
    }
    void theControlsAreNamedLabelledAndExplained() {
        QFETCH(QString, name);
        QFETCH(QString, frame);
        QFETCH(QString, label);
        QFETCH(QString, spoken);
        QFETCH(QString, tooltip);
        Desk desk;
        QWidget& control = desk.form.named<QWidget>(name);
        QCOMPARE(control.parentWidget()->objectName(), frame);
        QCOMPARE(control.accessibleName(), spoken);
        QCOMPARE(control.toolTip(), tooltip);
        QCOMPARE(desk.form.labelsOf(control), QStringList{label});
    }

    void theButtonsHaveTheirCaptions_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::newRow("browse") << "cmdBrowseBgImg"
                                << "Browse";
        QTest::newRow("highlighted background") << "cmdHBgColor"
                                                << "Select Color";
        QTest::newRow("normal background") << "cmdNBgColor"
                                           << "Select Color";
        QTest::newRow("highlighted text") << "cmdHFtColor"
                                          << "Select Color";
        QTest::newRow("normal text") << "cmdNFtColor"
                                     << "Select Color";
        QTest::newRow("font") << "cmdFont"
                              << "Select Font";
        QTest::newRow("clear") << "cmdFontClear"
                               << "Clear Font (Use font in default properties)";
        QTest::newRow("copy") << "cmdCopy"
                              << "Copy Menu Properties";
        QTest::newRow("paste") << "cmdPaste"
                               << "Paste Menu Properties";
        QTest::newRow("advanced") << "cmdAdvanced"
                                  << "Advanced";
        QTest::newRow("OK") << "cmdOK"
                            << "OK";
        QTest::newRow("Cancel") << "cmdCancel"
                                << "Cancel";
    }
    void theButtonsHaveTheirCaptions() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        Desk desk;
        QCOMPARE(desk.form.button(name).text().remove('&'), caption);
    }

    void theTitlesAreTheProgramsOwn() {
        Desk desk;
        QCOMPARE(desk.dialog.objectName(), "frmMenuProp");
        QCOMPARE(desk.dialog.windowTitle(), "Menu Properties");
        QCOMPARE(desk.form.named<QGroupBox>("FrameMenu").title(), "Menu Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameBackground").title(), "Background Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameFont").title(), "Font Settings");
        QCOMPARE(desk.form.preview("lblPreviewNormal").text(), "Normal");
        QCOMPARE(desk.form.preview("lblFont").text(), "Highlighted");
        QCOMPARE(desk.form.button("cmdAdvanced").toolTip(), "Advanced menu configuration options");
    }

    void thePositionsAreFiveWithAnEmptyOneFirst() {
        Desk desk;
        QCOMPARE(desk.form.entries("cboPosition"),
                 (QStringList{"", "Right", "Bottom", "Left", "Top"}));
    }

    void aTopLevelItemsMenuIsTheTopMenu() {
        Desk desk;
        desk.topMenu().BgImg = "top.gif";
        desk.submenuOfA().BgImg = "a.gif";
        desk.open(desk.b);
        QCOMPARE(desk.text("txtBgImg"), "top.gif");
        desk.form.type("txtBgImg", "new.gif");
        desk.form.click("cmdOK");
        QCOMPARE(desk.topMenu().BgImg, "new.gif");
        QCOMPARE(desk.submenuOfA().BgImg, "a.gif");
    }

    void anItemOfASubmenuEditsItsParentsSet() {
        Desk desk;
        desk.topMenu().BgImg = "top.gif";
        desk.submenuOfA().BgImg = "a.gif";
        desk.a1->item.MenuProperty.edit().BgImg = "a1.gif";
        desk.openSubmenuOfA();
        QCOMPARE(desk.text("txtBgImg"), "a.gif");
        desk.form.type("txtBgImg", "new.gif");
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().BgImg, "new.gif");
        QCOMPARE(desk.topMenu().BgImg, "top.gif");
        QCOMPARE(desk.a1->item.MenuProperty->BgImg, "a1.gif");
    }

    void withoutACurrentItemNothingIsFilled() {
        Desk desk;
        desk.topMenu().BgImg = "top.gif";
        desk.document.CurNode = nullptr;
        QVERIFY(!desk.dialog.fill());
        QCOMPARE(desk.text("txtBgImg"), "");
    }

    void okFindsTheMenuAfresh() {
        Desk desk;
        desk.openTopMenu();
        const MenuProp top = desk.topMenu();
        desk.form.type("txtBgImg", "new.gif");
        desk.document.CurNode = desk.a1;
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().BgImg, "new.gif");
        QVERIFY(desk.topMenu() == top);
    }

    void fillingShowsWhatIsStored() {
        Desk desk;
        desk.topMenu() = FilledProp();
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
        QVERIFY(!desk.document.bModified);
    }

    void fillingShowsTheDefaultsColoursWhereTheMenuHasNone() {
        Desk desk;
        // Not what the boxes of the other dialog show.
        DialogDesk::type(desk.defaults, "txtHBgColor", "#FFFFFF");
        desk.openTopMenu();
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 1},
                                                          {"lblFont fore", 2},
                                                          {"lblPreviewNormal back", 3},
                                                          {"lblPreviewNormal fore", 4}}));
    }

    void storedValuesThatNoCheckWouldPassAreShownWithoutAMessage() {
        Desk desk;
        desk.topMenu().Columns = "many";
        desk.topMenu().Spacing = "-1";
        desk.openTopMenu();
        QCOMPARE(desk.text("txtColumns"), "many");
        QCOMPARE(desk.text("txtSpacing"), "-1");
        desk.form.tabOrder();
        desk.form.click("cmdOK");
        QCOMPARE(desk.topMenu().Columns, "many");
        QVERIFY(desk.messages.recorded().empty());
    }

    void aMenuWithoutAFontShowsTheDefaultsFont() {
        Desk desk;
        GiveOwnFont(desk.topMenu());
        desk.topMenu().FontSet = false;
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
        Desk desk;
        GiveOwnFont(desk.topMenu());
        desk.topMenu().FontFamily = family.toStdString();
        desk.topMenu().FontSize = size.toStdString();
        desk.openTopMenu();
        QVERIFY(desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave({shownFamily.toStdString(), shownPoints, false, true}));
    }

    void okWritesEveryBoxAndTheList() {
        Desk desk;
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
        QVERIFY(desk.document.bModified);
        QCOMPARE(desk.updates, 1);
        QVERIFY(!desk.dialog.isVisible());
    }

    void emptyBoxesAreStoredEmpty() {
        Desk desk;
        desk.topMenu() = FilledProp();
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
        Desk desk;
        desk.topMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.document.bModified);
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
        Desk desk;
        desk.topMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.click("cmdFontClear");
        desk.form.type("txtSpacing", "9");
        if (byKey)
            desk.form.press(Qt::Key_Escape);
        else
            desk.form.click("cmdCancel");
        QVERIFY(!desk.dialog.isVisible());
        QVERIFY(desk.topMenu() == FilledProp());
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
    }

    void numbersAreCheckedAtEveryKey_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("bounds");  // of the message; empty: none
        QTest::addColumn<QString>("shown");
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
        QTest::newRow("spacing 1000") << "txtSpacing"
                                      << "1000"
                                      << ""
                                      << "1000";
        QTest::newRow("spacing 1001") << "txtSpacing"
                                      << "1001"
                                      << "0 and 1000"
                                      << "";
    }
    void numbersAreCheckedAtEveryKey() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        Desk desk;
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
        Desk desk;
        desk.topMenu() = FilledProp();
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
        Desk desk;
        desk.topMenu() = FilledProp();
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
        Desk desk;
        desk.topMenu() = FilledProp();
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
        Desk desk;
        desk.openTopMenu();
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.click("cmdHBgColor");
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{0});
        QCOMPARE(desk.text("txtHBgColor"), "");
        QCOMPARE(desk.form.preview("lblFont").backColor(), 1);
    }

    void browseTakesThePathRelativeToTheDocumentsFolder() {
        Desk desk;
        desk.document.SavePath = "/site";
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
        Desk desk;
        const FontChoice first = {"DejaVu Sans Mono", 9.5F, true, true};
        desk.openTopMenu();
        desk.dialogs.expectChooseFont(first);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == FontChoice());
        // Without one, the font dialog opens with what it last held.
        desk.form.click("cmdFontClear");
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.dialogs.recordedFonts().back() == first);
        desk.form.click("cmdCancel");
        // A menu with a font of its own.
        GiveOwnFont(desk.submenuOfA());
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

    void aChosenFontIsTheMenusOwnFromThenOn() {
        Desk desk;
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
        Desk desk;
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
        Desk desk;
        desk.topMenu() = FilledProp();
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
        Desk desk;
        desk.topMenu() = FilledProp();
        desk.openTopMenu();
        desk.form.click("cmdFontClear");
        desk.form.click("cmdCancel");
        QVERIFY(desk.topMenu() == FilledProp());
        desk.openTopMenu();
        QVERIFY(desk.dialog.bFontSet);
        QVERIFY(desk.previewsHave(kOwnFont));
    }

    void pasteBeforeAnyCopyChangesNothing() {
        Desk desk;
        desk.topMenu() = FilledProp();
        desk.openTopMenu();
        const Form::Colors colors = desk.form.previewColors();
        QVERIFY(desk.form.button("cmdPaste").isEnabled());
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.previewColors(), colors);
        desk.form.click("cmdOK");
        QVERIFY(desk.topMenu() == FilledProp());
    }

    void whatIsCopiedInOneMenuIsPastedInAnother() {
        Desk desk;
        desk.topMenu() = FilledProp();
        desk.submenuOfA() = MenuProp();
        desk.submenuOfA().Target = "its own";
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
        Desk desk;
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
        Desk desk;
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
        Desk desk;
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        for (const char* name : {"txtHBgColor", "txtHFtColor", "txtNBgColor", "txtNFtColor"})
            desk.defaults.findChild<QLineEdit*>(name)->setText("#0A0B0C");
        desk.submenuOfA() = FilledProp();
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.previewColors(), (Form::Colors{{"lblFont back", 0x0C0B0A},
                                                          {"lblFont fore", 0x0C0B0A},
                                                          {"lblPreviewNormal back", 0x0C0B0A},
                                                          {"lblPreviewNormal fore", 0x0C0B0A}}));
    }

    void aCopyWithoutAFontTakesTheTargetsFontAway() {
        Desk desk;
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        desk.submenuOfA() = FilledProp();
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
        Desk desk;
        desk.topMenu().Target = "top";
        desk.topMenu().ItemBorder = "1px";
        desk.openTopMenu();
        desk.form.click("cmdCopy");
        desk.form.click("cmdCancel");
        desk.submenuOfA() = MenuProp();
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        desk.form.click("cmdOK");
        QCOMPARE(desk.submenuOfA().Target, "");
        QCOMPARE(desk.submenuOfA().ItemBorder, "");
    }

    void aCopiedMissingPositionIsPastedAsMissing() {
        Desk desk;
        desk.topMenu().Position = 9;
        desk.openTopMenu();
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), -1);
        desk.form.click("cmdCopy");
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.topMenu().Position), -1);
        desk.submenuOfA().Position = 2;
        desk.openSubmenuOfA();
        desk.form.click("cmdPaste");
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), -1);
    }

    void advancedShowsTheSameMenusStoredProperties() {
        Desk desk;
        desk.submenuOfA().Target = "frame";
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
        Desk desk;
        desk.openTopMenu();
        whenShown<frmAdvProp>([&](frmAdvProp& advanced) {
            DialogDesk::type(advanced, "txtTarget", "frame");
            DialogDesk::click(advanced, "cmdOK");
        });
        desk.form.click("cmdAdvanced");
        desk.form.click("cmdCancel");
        QCOMPARE(desk.topMenu().Target, "frame");
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
    }

    void advancedWithoutACurrentItemDoesNothing() {
        Desk desk;
        desk.openTopMenu();
        desk.document.CurNode = nullptr;
        desk.form.click("cmdAdvanced");
        QVERIFY(!desk.advanced.isVisible());
    }

    void textsABoxCannotShowSurviveOKAndCopying() {
        const std::string text = "a\r\nb";
        Desk desk;
        desk.topMenu().BgImg = text;
        desk.topMenu().HFtColor = text;
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

    void everythingIsReachedAndNamedWithoutAMouse() {
        Desk desk;
        QCOMPARE(desk.form.obstacles(), QStringList());
    }

    void tabGoesThroughTheDialogAsItIsRead() {
        Desk desk;
        desk.openTopMenu();
        QCOMPARE(desk.form.tabOrder(),
                 (QStringList{"cboPosition",    "txtColumns",  "txtSpacing",   "txtBgImg",
                              "cmdBrowseBgImg", "txtHBgColor", "cmdHBgColor",  "txtNBgColor",
                              "cmdNBgColor",    "cmdFont",     "cmdFontClear", "txtHFtColor",
                              "cmdHFtColor",    "txtNFtColor", "cmdNFtColor",  "cmdCopy",
                              "cmdPaste",       "cmdAdvanced", "cmdOK",        "cmdCancel"}));
    }

    void theDialogFitsASmallScreenAndCutsNothingOff() {
        Desk desk;
        desk.openTopMenu();
        QVERIFY(desk.dialog.width() <= 1000);
        QVERIFY(desk.dialog.height() <= 700);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }

  private:
    static void addColors() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("changed");
        QTest::newRow("highlighted background") << "HBgColor"
                                                << "lblFont back";
        QTest::newRow("highlighted text") << "HFtColor"
                                          << "lblFont fore";
        QTest::newRow("normal background") << "NBgColor"
                                           << "lblPreviewNormal back";
        QTest::newRow("normal text") << "NFtColor"
                                     << "lblPreviewNormal fore";
    }
    static std::string MenuProp::*memberOf(const QString& name) {
        if (name == "HBgColor")
            return &MenuProp::HBgColor;
        if (name == "HFtColor")
            return &MenuProp::HFtColor;
        return name == "NBgColor" ? &MenuProp::NBgColor : &MenuProp::NFtColor;
    }
};

QTEST_MAIN(test_frm_menu_prop)
#include "test_frm_menu_prop.moc"
