// SPDX-License-Identifier: MIT
// Menu Properties: its controls, their names and order, and its size.

#include "menu_prop_desk.h"
#include "property_tables.h"

using namespace zev;

class test_frm_menu_prop_look : public QObject {
    Q_OBJECT

  private slots:
    void theControlsAreNamedLabelledAndExplained_data() {
        addSharedControls();
        QTest::newRow("position") << "cboPosition"
                                  << "FrameMenu"
                                  << "Menu Position:"
                                  << "Menu Position"
                                  << "";
        QTest::newRow("spacing") << "txtSpacing"
                                 << "FrameMenu"
                                 << "Spacing:"
                                 << "Spacing"
                                 << "Spacing between menu items";
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
        MenuDesk desk;
        QWidget& control = desk.form.named<QWidget>(name);
        QCOMPARE(control.parentWidget()->objectName(), frame);
        QCOMPARE(control.accessibleName(), spoken);
        QCOMPARE(control.toolTip(), tooltip);
        QCOMPARE(desk.form.labelsOf(control), QStringList{label});
    }

    void theButtonsHaveTheirCaptions_data() {
        addSharedButtons();
        QTest::newRow("clear") << "cmdFontClear"
                               << "Clear Font (Use font in default properties)";
        QTest::newRow("copy") << "cmdCopy"
                              << "Copy Menu Properties";
        QTest::newRow("paste") << "cmdPaste"
                               << "Paste Menu Properties";
        QTest::newRow("advanced") << "cmdAdvanced"
                                  << "Advanced";
    }
    void theButtonsHaveTheirCaptions() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        MenuDesk desk;
        QCOMPARE(desk.form.button(name).text().remove('&'), caption);
    }

    void theTitlesAreTheProgramsOwn() {
        MenuDesk desk;
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
        MenuDesk desk;
        QCOMPARE(desk.form.entries("cboPosition"),
                 (QStringList{"", "Right", "Bottom", "Left", "Top"}));
    }

    void everythingIsReachedAndNamedWithoutAMouse() {
        MenuDesk desk;
        QCOMPARE(desk.form.obstacles(), QStringList());
    }

    void tabGoesThroughTheDialogAsItIsRead() {
        MenuDesk desk;
        desk.openTopMenu();
        QCOMPARE(desk.form.tabOrder(),
                 (QStringList{"cboPosition",    "txtColumns",  "txtSpacing",   "txtBgImg",
                              "cmdBrowseBgImg", "txtHBgColor", "cmdHBgColor",  "txtNBgColor",
                              "cmdNBgColor",    "cmdFont",     "cmdFontClear", "txtHFtColor",
                              "cmdHFtColor",    "txtNFtColor", "cmdNFtColor",  "cmdCopy",
                              "cmdPaste",       "cmdAdvanced", "cmdOK",        "cmdCancel"}));
    }

    void theDialogFitsASmallScreenAndCutsNothingOff() {
        MenuDesk desk;
        desk.openTopMenu();
        QVERIFY(desk.dialog.width() <= 1000);
        QVERIFY(desk.dialog.height() <= 700);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }
};

QTEST_MAIN(test_frm_menu_prop_look)
#include "test_frm_menu_prop_look.moc"
