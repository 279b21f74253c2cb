// SPDX-License-Identifier: MIT
// Default Menu Properties: its controls, their names and order, its size and its previews.

#include "default_prop_desk.h"
#include "property_tables.h"
#include "tests/app/theme_palettes.h"

using namespace zev;

class test_frm_default_prop_look : public QObject {
    Q_OBJECT

  private slots:
    void theControlsAreNamedLabelledAndExplained_data() {
        addSharedControls();
        QTest::newRow("position")
            << "cboPosition"
            << "FrameMenu"
            << "Menu Position:"
            << "Menu Position"
            << "Roll-out direction of the menu item with respect to the parent node";
        QTest::newRow("close delay")
            << "txtCloseDelay"
            << "FrameMenu"
            << "Close Delay:"
            << "Close Delay"
            << "Sets the menu close delay after mouseout (in milliseconds)";
        QTest::newRow("spacing") << "txtSpacing"
                                 << "FrameMenu"
                                 << "Spacing:"
                                 << "Spacing"
                                 << "Horizontal spacing between menu items";
        QTest::newRow("offset") << "txtMenuOffset"
                                << "FrameMenu"
                                << "Offset:"
                                << "Offset"
                                << "Tweaks the roll-out position of the menu";
        QTest::newRow("marker")
            << "txtMarker"
            << "FrameAdditional"
            << "Submenu Arrow:"
            << "Submenu Arrow"
            << "HTML of the mark at items with a submenu. Empty for an arrow, none for no mark";
        QTest::newRow("label")
            << "txtLabel"
            << "FrameAdditional"
            << "Navigation Name:"
            << "Navigation Name"
            << "Name of the menu for screen readers, and on the button of a folded menu";
        QTest::newRow("open delay")
            << "txtOpenDelay"
            << "FrameAdditional"
            << "Open Delay:"
            << "Open Delay"
            << "Time that the mouse stays on an item before its submenu opens (in milliseconds)";
        QTest::newRow("fold")
            << "txtFold"
            << "FrameAdditional"
            << "Fold Width (pixels):"
            << "Fold Width (pixels)"
            << "Width of the window below which the top menu is one button (in pixels). 0: never";
        QTest::newRow("font") << "cmdFont"
                              << "FrameFont"
                              << "Font:"
                              << "Select Font"
                              << "Default menu item font";
    }
    void theControlsAreNamedLabelledAndExplained() {
        QFETCH(QString, name);
        QFETCH(QString, frame);
        QFETCH(QString, label);
        QFETCH(QString, spoken);
        QFETCH(QString, tooltip);
        DefaultsDesk desk;
        QWidget& control = desk.form.named<QWidget>(name);
        QCOMPARE(control.parentWidget()->objectName(), frame);
        QCOMPARE(control.accessibleName(), spoken);
        QCOMPARE(control.toolTip(), tooltip);
        QCOMPARE(desk.form.labelsOf(control), QStringList{label});
    }

    void theButtonsHaveTheirCaptions_data() { addSharedButtons(); }
    void theButtonsHaveTheirCaptions() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        DefaultsDesk desk;
        QCOMPARE(desk.form.button(name).text().remove('&'), caption);
    }

    void theTitlesAreTheProgramsOwn() {
        DefaultsDesk desk;
        QCOMPARE(desk.dialog.objectName(), "frmDefaultProp");
        QCOMPARE(desk.dialog.windowTitle(), "Default Menu Properties");
        QCOMPARE(desk.form.named<QGroupBox>("FrameMenu").title(), "Menu Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameBackground").title(), "Background Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameFont").title(), "Font Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameAdditional").title(), "Additional");
        QCOMPARE(desk.form.named<QLabel>("lblFontDisplay").text().remove('&'), "Font:");
        QCOMPARE(desk.form.preview("lblPreviewNormal").text(), "Normal");
        QCOMPARE(desk.form.preview("lblFont").text(), "Highlighted");
    }

    void thePositionsAreFiveWithAnEmptyOneFirst() {
        DefaultsDesk desk;
        QCOMPARE(desk.form.entries("cboPosition"),
                 (QStringList{"", "Right", "Bottom", "Left", "Top"}));
        QVERIFY(!desk.form.list("cboPosition").isEditable());
        // A screen reader has something to say.
        QCOMPARE(desk.form.list("cboPosition").itemData(0, Qt::AccessibleTextRole).toString(),
                 "Not set");
    }

    void theDescriptionOfAFontNamesItsStyles_data() {
        QTest::addColumn<float>("points");
        QTest::addColumn<bool>("isItalic");
        QTest::addColumn<bool>("isBold");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << 10.0F << false << false << "Arial 10pt";
        QTest::newRow("italic") << 10.0F << true << false << "Arial 10pt italic";
        QTest::newRow("bold") << 10.5F << false << true << "Arial 10pt bold";
        QTest::newRow("both") << 11.5F << true << true << "Arial 12pt italic bold";
    }
    void theDescriptionOfAFontNamesItsStyles() {
        QFETCH(float, points);
        QFETCH(bool, isItalic);
        QFETCH(bool, isBold);
        QFETCH(QString, text);
        DefaultsDesk desk;
        desk.dialogs.expectChooseFont(FontChoice{"Arial", points, isItalic, isBold});
        desk.form.click("cmdFont");
        desk.dialog.Font_Set();
        QCOMPARE(desk.form.preview("lblFont").text(), text);
        QCOMPARE(desk.form.preview("lblPreviewNormal").text(), "Normal");
    }

    void everythingIsReachedAndNamedWithoutAMouse() {
        DefaultsDesk desk;
        QCOMPARE(desk.form.obstacles(), QStringList());
    }

    void tabGoesThroughTheFramesAsTheyAreRead() {
        DefaultsDesk desk;
        QCOMPARE(desk.form.tabOrder(),
                 (QStringList{"cboPosition",   "txtCloseDelay", "txtSpacing",     "txtColumns",
                              "txtMenuOffset", "txtBgImg",      "cmdBrowseBgImg", "txtHBgColor",
                              "cmdHBgColor",   "txtNBgColor",   "cmdNBgColor",    "cmdFont",
                              "txtHFtColor",   "cmdHFtColor",   "txtNFtColor",    "cmdNFtColor",
                              "txtMarker",     "txtLabel",      "txtOpenDelay",   "txtFold",
                              "cmdOK",         "cmdCancel"}));
    }

    void theDialogOpensInItsFirstFieldEachTime() {
        DefaultsDesk desk;
        QVERIFY(desk.form.list("cboPosition").hasFocus());
        desk.form.click("txtNFtColor");
        desk.form.press(Qt::Key_Escape);
        desk.form.show();
        QVERIFY(desk.form.list("cboPosition").hasFocus());
    }

    void theDialogFitsASmallScreenAndCutsNothingOff() {
        DefaultsDesk desk;
        QVERIFY(desk.dialog.width() <= 1000);
        QVERIFY(desk.dialog.height() <= 700);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }

    void theDialogAndItsTitleBarFitAScreenOf640By480() {
        constexpr int kTitleBarPx = 40;
        DefaultsDesk desk;
        desk.dialog.resize(desk.dialog.minimumSizeHint());
        QVERIFY(desk.dialog.width() <= 640);
        QVERIFY(desk.dialog.height() <= 480 - kTitleBarPx);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }

    void whatIsAdditionalStandsBelowAllElse() {
        DefaultsDesk desk;
        const QWidget& additional = desk.form.named<QGroupBox>("FrameAdditional");
        for (const char* name : {"FrameMenu", "FrameBackground", "FrameFont"})
            QVERIFY(desk.form.named<QGroupBox>(name).geometry().bottom() < additional.y());
        QVERIFY(additional.geometry().bottom() < desk.form.button("cmdOK").y());
    }

    void aHugeFontLeavesTheDialogsSizeAsItIs() {
        const QSize usual = DefaultsDesk().dialog.size();
        DefaultsDesk desk([](MenuProp& prop) { prop.FontSize = "500"; });
        QCOMPARE(desk.dialog.size(), usual);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }

    void thePreviewsShowTheirColoursInEveryTheme_data() {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void thePreviewsShowTheirColoursInEveryTheme() {
        QFETCH(bool, isDark);
        const QPalette before = QApplication::palette();
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
        // The theme changes while the dialog is open.
        QApplication::setPalette(isDark ? darkPalette() : lightPalette());
        QCoreApplication::processEvents();
        QCOMPARE(paintedBackground(desk.form.preview("lblFont")), QColor("#102030"));
        QCOMPARE(paintedBackground(desk.form.preview("lblPreviewNormal")), QColor("#405060"));
        QApplication::setPalette(before);
    }

    void thePreviewsShowAStyleSheetsListOfFonts() {
        DefaultsDesk desk(
            [](MenuProp& prop) { prop.FontFamily = "No Such Font, \\'DejaVu Serif\\'"; });
        const PreviewLabel& preview = desk.form.preview("lblFont");
        QCOMPARE(preview.font().families(), (QStringList{"No Such Font", "DejaVu Serif"}));
        QCOMPARE(preview.fontChoice().name, "No Such Font, \\'DejaVu Serif\\'");
    }
};

QTEST_MAIN(test_frm_default_prop_look)
#include "test_frm_default_prop_look.moc"
