// Default Menu Properties, driven by mouse and keys.

#include "dialogs/frm_default_prop.h"
#include "dialogs/input_rules.h"
#include "form.h"
#include "tests/app/theme_palettes.h"

using namespace zev;

namespace {

const char* const kColorTooltip =
    "Color in RGB hexadecimal (#FFFFFF). Set the value to transparent for transparency effect";

/// The dialog, filled from the factory defaults and shown.
struct Desk : DialogDesk {
    explicit Desk(const std::function<void(MenuProp&)>& prepare = [](MenuProp&) {}) {
        prepare(document.DefaultProp);
        dialog.LoadDefaultDialog();
        form.show();
    }
    MenuProp& prop() { return document.DefaultProp; }

    frmDefaultProp dialog{host()};
    Form form{dialog};
};

MenuProp FilledProp() {
    MenuProp prop;
    prop.Position = 3;
    prop.CloseDelay = "750";
    prop.Spacing = "2";
    prop.Columns = "4";
    prop.MenuOffset = "-7";
    prop.BgImg = "images/back.gif";
    prop.HBgColor = "#102030";
    prop.NBgColor = "#405060";
    prop.HFtColor = "#708090";
    prop.NFtColor = "#A0B0C0";
    prop.FontFamily = "DejaVu Sans";
    prop.FontSize = "13";
    prop.FontStyle = true;
    prop.FontWeight = true;
    return prop;
}

}  // namespace

class test_frm_default_prop : public QObject {
    Q_OBJECT

  private slots:
    void theControlsAreNamedLabelledAndExplained_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("spoken");
        QTest::addColumn<QString>("tooltip");
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
        QTest::newRow("columns") << "txtColumns"
                                 << "FrameMenu"
                                 << "Columns:"
                                 << "Columns"
                                 << "Number of menu columns. Set to 1 for vertical menus and a "
                                    "large number for horizontal menus";
        QTest::newRow("offset") << "txtMenuOffset"
                                << "FrameMenu"
                                << "Offset:"
                                << "Offset"
                                << "Tweaks the roll-out position of the menu";
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
                              << "Default menu item font";
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

    void theButtonsAndFramesHaveTheirCaptions_data() {
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
        QTest::newRow("OK") << "cmdOK"
                            << "OK";
        QTest::newRow("Cancel") << "cmdCancel"
                                << "Cancel";
    }
    void theButtonsAndFramesHaveTheirCaptions() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        Desk desk;
        QCOMPARE(desk.form.button(name).text().remove('&'), caption);
    }

    void theTitlesAreTheProgramsOwn() {
        Desk desk;
        QCOMPARE(desk.dialog.objectName(), "frmDefaultProp");
        QCOMPARE(desk.dialog.windowTitle(), "Default Menu Properties");
        QCOMPARE(desk.form.named<QGroupBox>("FrameMenu").title(), "Menu Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameBackground").title(), "Background Settings");
        QCOMPARE(desk.form.named<QGroupBox>("FrameFont").title(), "Font Settings");
        QCOMPARE(desk.form.named<QLabel>("lblFontDisplay").text().remove('&'), "Font:");
        QCOMPARE(desk.form.preview("lblPreviewNormal").text(), "Normal");
        QCOMPARE(desk.form.preview("lblFont").text(), "Highlighted");
    }

    void thePositionsAreFiveWithAnEmptyOneFirst() {
        Desk desk;
        QCOMPARE(desk.form.entries("cboPosition"),
                 (QStringList{"", "Right", "Bottom", "Left", "Top"}));
        QVERIFY(!desk.form.list("cboPosition").isEditable());
        // A screen reader has something to say.
        QCOMPARE(desk.form.list("cboPosition").itemData(0, Qt::AccessibleTextRole).toString(),
                 "Not set");
    }

    void fillingShowsWhatIsStored() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), 3);
        QCOMPARE(desk.form.field("txtCloseDelay").text(), "750");
        QCOMPARE(desk.form.field("txtSpacing").text(), "2");
        QCOMPARE(desk.form.field("txtColumns").text(), "4");
        QCOMPARE(desk.form.field("txtMenuOffset").text(), "-7");
        QCOMPARE(desk.form.field("txtBgImg").text(), "images/back.gif");
        QCOMPARE(desk.form.field("txtHBgColor").text(), "#102030");
        QCOMPARE(desk.form.field("txtNBgColor").text(), "#405060");
        QCOMPARE(desk.form.field("txtHFtColor").text(), "#708090");
        QCOMPARE(desk.form.field("txtNFtColor").text(), "#A0B0C0");
        const FontChoice font = {"DejaVu Sans", 13, true, true};
        const PreviewLabel& highlighted = desk.form.preview("lblFont");
        QCOMPARE(highlighted.backColor(), 0x302010);
        QCOMPARE(highlighted.foreColor(), 0x908070);
        QVERIFY(highlighted.fontChoice() == font);
        const PreviewLabel& normal = desk.form.preview("lblPreviewNormal");
        QCOMPARE(normal.backColor(), 0x605040);
        QCOMPARE(normal.foreColor(), 0xC0B0A0);
        QVERIFY(normal.fontChoice() == font);
    }

    void fillingLeavesTheDocumentAsItIs() {
        Desk desk;
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
    }

    void storedValuesThatNoCheckWouldPassAreShownWithoutAMessage() {
        Desk desk([](MenuProp& prop) {
            prop.CloseDelay = "-1";
            prop.Columns = "many";
            prop.MenuOffset = "51";
            prop.Spacing = " 2";
        });
        QCOMPARE(desk.form.field("txtCloseDelay").text(), "-1");
        QCOMPARE(desk.form.field("txtColumns").text(), "many");
        QCOMPARE(desk.form.field("txtMenuOffset").text(), "51");
        QCOMPARE(desk.form.field("txtSpacing").text(), " 2");
        desk.form.tabOrder();
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().Columns, "many");
        QVERIFY(desk.messages.recorded().empty());
    }

    void okWritesEveryBoxAndTheList() {
        Desk desk;
        MenuProp expected = desk.prop();
        desk.form.choose("cboPosition", 4);
        desk.form.type("txtCloseDelay", "10000");
        desk.form.type("txtSpacing", "0");
        desk.form.type("txtColumns", "100");
        desk.form.paste("txtMenuOffset", "-50");
        desk.form.type("txtBgImg", "b.gif");
        desk.form.type("txtHBgColor", "#abc");
        desk.form.type("txtNBgColor", "transparent");
        desk.form.type("txtHFtColor", "red");
        desk.form.type("txtNFtColor", "");
        QVERIFY(desk.prop() == expected);
        desk.form.click("cmdOK");
        expected.Position = 4;
        expected.CloseDelay = "10000";
        expected.Spacing = "0";
        expected.Columns = "100";
        expected.MenuOffset = "-50";
        expected.BgImg = "b.gif";
        expected.HBgColor = "#abc";
        expected.NBgColor = "transparent";
        expected.HFtColor = "red";
        expected.NFtColor = "";
        QVERIFY(desk.prop() == expected);
        QVERIFY(!desk.dialog.isVisible());
    }

    void okWithNothingChangedMarksTheDocumentAsModified() {
        Desk desk;
        const MenuProp before = desk.prop();
        desk.form.click("cmdOK");
        QVERIFY(desk.document.bModified);
        QCOMPARE(desk.updates, 1);
        QVERIFY(desk.prop() == before);
        QVERIFY(!desk.dialog.isVisible());
    }

    void theWindowIsBroughtUpToDateWhenTheDocumentIsMarked() {
        Desk desk;
        bool wasModified = false;
        frmDefaultProp dialog({desk.document, desk.messages, desk.dialogs,
                               [&] { wasModified = desk.document.bModified; }});
        dialog.LoadDefaultDialog();
        Form form(dialog);
        form.show();
        form.click("cmdOK");
        QVERIFY(wasModified);
    }

    void enterInAnyFieldIsOK_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"cboPosition", "txtCloseDelay", "txtSpacing", "txtColumns", "txtMenuOffset",
              "txtBgImg", "txtHBgColor", "txtNBgColor", "txtHFtColor", "txtNFtColor", "cmdOK"})
            QTest::newRow(name) << name;
    }
    void enterInAnyFieldIsOK() {
        QFETCH(QString, name);
        Desk desk;
        desk.form.named<QWidget>(name).setFocus();
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.document.bModified);
        QVERIFY(!desk.dialog.isVisible());
    }

    void cancelWritesNothing_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Cancel") << 0;
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }
    void cancelWritesNothing() {
        QFETCH(int, key);
        Desk desk;
        const MenuProp before = desk.prop();
        desk.form.type("txtSpacing", "9");
        desk.form.type("txtHBgColor", "#123456");
        desk.form.choose("cboPosition", 2);
        if (key == 0)
            desk.form.click("cmdCancel");
        else
            desk.form.press(Qt::Key(key));
        QVERIFY(!desk.dialog.isVisible());
        QVERIFY(desk.prop() == before);
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
        // Menu Properties takes its preview colours from these boxes.
        QCOMPARE(desk.form.field("txtHBgColor").text(), "#123456");
    }

    void afterCancelTheDialogOpensWithTheStoredValues() {
        Desk desk;
        desk.form.type("txtSpacing", "9");
        desk.form.type("txtHBgColor", "#123456");
        desk.form.press(Qt::Key_Tab);
        desk.form.click("cmdCancel");
        desk.dialog.LoadDefaultDialog();
        desk.form.show();
        QCOMPARE(desk.form.field("txtSpacing").text(), QString::fromStdString(desk.prop().Spacing));
        QCOMPARE(desk.form.field("txtHBgColor").text(),
                 QString::fromStdString(desk.prop().HBgColor));
        QCOMPARE(desk.form.preview("lblFont").backColor(), HexToColor(desk.prop().HBgColor));
    }

    void numbersAreCheckedAtEveryKey_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("bounds");  // of the message; empty: none
        QTest::addColumn<QString>("shown");
        QTest::newRow("delay 0") << "txtCloseDelay"
                                 << "0"
                                 << ""
                                 << "0";
        QTest::newRow("delay 10000") << "txtCloseDelay"
                                     << "10000"
                                     << ""
                                     << "10000";
        QTest::newRow("delay 10001") << "txtCloseDelay"
                                     << "10001"
                                     << "0 and 10000"
                                     << "";
        QTest::newRow("columns 0") << "txtColumns"
                                   << "0"
                                   << "1 and 100"
                                   << "";
        QTest::newRow("columns 1") << "txtColumns"
                                   << "1"
                                   << ""
                                   << "1";
        QTest::newRow("columns 100") << "txtColumns"
                                     << "100"
                                     << ""
                                     << "100";
        QTest::newRow("columns 101") << "txtColumns"
                                     << "101"
                                     << "1 and 100"
                                     << "";
        QTest::newRow("offset 50") << "txtMenuOffset"
                                   << "50"
                                   << ""
                                   << "50";
        QTest::newRow("offset 51") << "txtMenuOffset"
                                   << "51"
                                   << "-50 and 50"
                                   << "";
        QTest::newRow("offset -") << "txtMenuOffset"
                                  << "-"
                                  << "-50 and 50"
                                  << "";
        QTest::newRow("offset -5, key by key") << "txtMenuOffset"
                                               << "-5"
                                               << "-50 and 50"
                                               << "5";
        QTest::newRow("spacing 1000") << "txtSpacing"
                                      << "1000"
                                      << ""
                                      << "1000";
        QTest::newRow("spacing 1001") << "txtSpacing"
                                      << "1001"
                                      << "0 and 1000"
                                      << "";
        QTest::newRow("leading point") << "txtSpacing"
                                       << "."
                                       << "0 and 1000"
                                       << "";
        QTest::newRow("fraction") << "txtSpacing"
                                  << "2.5"
                                  << ""
                                  << "2.5";
        QTest::newRow("letter") << "txtSpacing"
                                << "x"
                                << "0 and 1000"
                                << "";
        QTest::newRow("not reformatted") << "txtSpacing"
                                         << "007"
                                         << ""
                                         << "007";
    }
    void numbersAreCheckedAtEveryKey() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        Desk desk;
        if (!bounds.isEmpty())
            desk.messages.expect("Please enter a value between " + bounds.toStdString());
        desk.form.type(name, typed);
        QCOMPARE(desk.form.field(name).text(), shown);
        desk.messages.verify();
    }

    void aPastedNumberIsCheckedAsAWhole_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("bounds");
        QTest::addColumn<QString>("shown");
        QTest::newRow("-50") << "txtMenuOffset"
                             << "-50"
                             << ""
                             << "-50";
        QTest::newRow("-51") << "txtMenuOffset"
                             << "-51"
                             << "-50 and 50"
                             << "";
        QTest::newRow("exponent") << "txtCloseDelay"
                                  << "1e3"
                                  << ""
                                  << "1e3";
        QTest::newRow("spaces around") << "txtColumns"
                                       << " 1 "
                                       << "1 and 100"
                                       << "";
        QTest::newRow("line break") << "txtColumns"
                                    << "1\n"
                                    << "1 and 100"
                                    << "";
    }
    void aPastedNumberIsCheckedAsAWhole() {
        QFETCH(QString, name);
        QFETCH(QString, pasted);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        Desk desk;
        if (!bounds.isEmpty())
            desk.messages.expect("Please enter a value between " + bounds.toStdString());
        desk.form.paste(name, pasted);
        QCOMPARE(desk.form.field(name).text(), shown);
        desk.messages.verify();
    }

    void theRangeMessageHasAnOKButtonAndTheProgramsTitle() {
        Desk desk;
        desk.messages.expect("Please enter a value between 1 and 100");
        desk.form.type("txtColumns", "0");
        const MessageRequest& request = desk.messages.recorded().back();
        QVERIFY(request.buttons == MessageRequest::Buttons::Ok);
        QCOMPARE(request.title, "");
    }

    void aClearedBoxKeepsTheFocusAndTakesTheNextKeys() {
        Desk desk;
        desk.messages.expect("Please enter a value between 1 and 100");
        desk.form.type("txtColumns", "0");
        QVERIFY(desk.form.field("txtColumns").hasFocus());
        desk.form.press(Qt::Key_7);
        QCOMPARE(desk.form.field("txtColumns").text(), "7");
    }

    void emptyNumbersAreStoredEmpty() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        for (const char* name : {"txtCloseDelay", "txtSpacing", "txtColumns", "txtMenuOffset"})
            desk.form.type(name, "");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().CloseDelay, "");
        QCOMPARE(desk.prop().Spacing, "");
        QCOMPARE(desk.prop().Columns, "");
        QCOMPARE(desk.prop().MenuOffset, "");
        QVERIFY(desk.messages.recorded().empty());
    }

    void leavingAColourBoxRepaintsItsPreview_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("changed");
        QTest::newRow("highlighted background") << "txtHBgColor"
                                                << "lblFont back";
        QTest::newRow("highlighted text") << "txtHFtColor"
                                          << "lblFont fore";
        QTest::newRow("normal background") << "txtNBgColor"
                                           << "lblPreviewNormal back";
        QTest::newRow("normal text") << "txtNFtColor"
                                     << "lblPreviewNormal fore";
    }
    void leavingAColourBoxRepaintsItsPreview() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        const Form::Colors before = desk.form.previewColors();
        desk.form.type(name, "#010203");
        QCOMPARE(desk.form.previewColors(), before);
        desk.form.press(Qt::Key_Tab);
        Form::Colors expected = before;
        expected[changed] = 0x030201;
        QCOMPARE(desk.form.previewColors(), expected);
        QCOMPARE(desk.form.field(name).text(), "#010203");
    }

    void aColourBoxIsLeftInMoreThanOneWay_data() {
        QTest::addColumn<QString>("way");
        for (const char* way :
             {"Tab", "Shift+Tab", "mouse", "access key", "button", "button's access key"})
            QTest::newRow(way) << way;
    }
    void aColourBoxIsLeftInMoreThanOneWay() {
        QFETCH(QString, way);
        Desk desk;
        desk.form.type("txtHBgColor", "#010203");
        if (way == "Tab") {
            desk.form.press(Qt::Key_Tab);
        } else if (way == "Shift+Tab") {
            desk.form.press(Qt::Key_Backtab, Qt::ShiftModifier);
        } else if (way == "mouse") {
            desk.form.click("txtSpacing");
        } else if (way == "access key") {
            desk.form.pressAccessKey(desk.form.named<QLabel>("lblSpacing").text());
            QVERIFY(desk.form.field("txtSpacing").hasFocus());
        } else {
            desk.dialogs.expectOpenFile("");
            if (way == "button")
                desk.form.click("cmdBrowseBgImg");
            else
                desk.form.pressAccessKey(desk.form.button("cmdBrowseBgImg").text());
            QTRY_VERIFY(!desk.dialogs.recorded().empty());
        }
        QCOMPARE(desk.form.preview("lblFont").backColor(), 0x030201);
    }

    void openingAMenuOrAnotherWindowDoesNotLeaveAColourBox() {
        Desk desk;
        const std::int32_t before = desk.form.preview("lblFont").backColor();
        desk.form.type("txtHBgColor", "#010203");
        for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            QFocusEvent event(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&desk.form.field("txtHBgColor"), &event);
        }
        QCOMPARE(desk.form.preview("lblFont").backColor(), before);
    }

    void transparentStaysAndIsBlackInThePreview() {
        Desk desk;
        desk.form.type("txtNBgColor", "transparent");
        desk.form.press(Qt::Key_Tab);
        QCOMPARE(desk.form.preview("lblPreviewNormal").backColor(), 0);
        QCOMPARE(desk.form.field("txtNBgColor").text(), "transparent");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().NBgColor, "transparent");
    }

    void anEmptyColourIsBlackInThePreview() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        desk.form.type("txtHFtColor", "");
        desk.form.press(Qt::Key_Tab);
        QCOMPARE(desk.form.preview("lblFont").foreColor(), 0);
    }

    void theColourButtonTakesAndGivesTheTextOfItsBox_data() {
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
    void theColourButtonTakesAndGivesTheTextOfItsBox() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        Form::Colors colors = desk.form.previewColors();
        desk.form.type("txt" + name, "#FF8000");
        desk.dialogs.expectChooseColor(0x0a0bfc);
        desk.form.click("cmd" + name);
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{0x0080FF});
        QCOMPARE(desk.form.field("txt" + name).text(), "#FC0B0A");
        colors[changed] = 0x0a0bfc;
        QCOMPARE(desk.form.previewColors(), colors);
    }

    void aCancelledColourDialogLeavesTheText() {
        Desk desk;
        desk.form.type("txtHBgColor", "#ff8");
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.click("cmdHBgColor");
        QCOMPARE(desk.form.field("txtHBgColor").text(), "#ff8");
        QCOMPARE(desk.form.preview("lblFont").backColor(), 0x0080FF);
    }

    void browseTakesThePathRelativeToTheDocumentsFolder() {
        Desk desk;
        desk.document.SavePath = "/site";
        desk.form.type("txtBgImg", "old.gif");
        desk.dialogs.expectOpenFile("/site/images/back.gif");
        desk.form.click("cmdBrowseBgImg");
        QCOMPARE(desk.form.field("txtBgImg").text(), "images/back.gif");
        const FileDialogRequest& request = desk.dialogs.recorded().back().request;
        QCOMPARE(request.title, "Browse");
        QCOMPARE(request.fileName, "");
        QCOMPARE(request.filter, "All Files (*.*)|*.*|GIF (*.gif)|*.gif|JPG (*.jpg)|*.jpg");
        QCOMPARE(request.filterIndex, 2);
        QCOMPARE(request.folder, "/site");
        QCOMPARE(desk.prop().BgImg, "");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().BgImg, "images/back.gif");
    }

    void aCancelledBrowseLeavesTheBox() {
        Desk desk;
        desk.form.type("txtBgImg", "old.gif");
        desk.dialogs.expectOpenFile("");
        desk.form.click("cmdBrowseBgImg");
        QCOMPARE(desk.form.field("txtBgImg").text(), "old.gif");
    }

    void theFontDialogStartsWithThePreviewsFontEveryTime() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        const FontChoice stored = {"DejaVu Sans", 13, true, true};
        const FontChoice chosen = {"DejaVu Serif", 10.5F, false, true};
        desk.dialogs.expectChooseFont(chosen);
        desk.form.click("cmdFont");
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        // A dialog filled anew has another font to start with.
        desk.dialog.LoadDefaultDialog();
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QCOMPARE(desk.dialogs.recordedFonts().size(), 3U);
        QVERIFY(desk.dialogs.recordedFonts()[0] == stored);
        QVERIFY(desk.dialogs.recordedFonts()[1] == chosen);
        QVERIFY(desk.dialogs.recordedFonts()[2] == stored);
    }

    void aChosenFontGoesToBothPreviewsAndToTheDefaultsOnlyByOK() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        const MenuProp before = desk.prop();
        const FontChoice chosen = {"DejaVu Serif", 20, false, true};
        desk.dialogs.expectChooseFont(chosen);
        desk.form.click("cmdFont");
        QVERIFY(desk.form.preview("lblFont").fontChoice() == chosen);
        QVERIFY(desk.form.preview("lblPreviewNormal").fontChoice() == chosen);
        QCOMPARE(desk.form.preview("lblFont").text(), "Highlighted");
        QVERIFY(desk.prop() == before);
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontFamily, "DejaVu Serif");
        QCOMPARE(desk.prop().FontSize, "20");
        QCOMPARE(desk.prop().FontStyle, false);
        QCOMPARE(desk.prop().FontWeight, true);
    }

    void aCancelledFontDialogLeavesThePreviews() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        QVERIFY(desk.form.preview("lblFont").fontChoice() ==
                (FontChoice{"DejaVu Sans", 13, true, true}));
    }

    void sizesAreStoredRoundedHalfToEven_data() {
        QTest::addColumn<float>("points");
        QTest::addColumn<QString>("stored");
        QTest::newRow("10.5") << 10.5F << "10";
        QTest::newRow("11.5") << 11.5F << "12";
        QTest::newRow("10.6") << 10.6F << "11";
    }
    void sizesAreStoredRoundedHalfToEven() {
        QFETCH(float, points);
        QFETCH(QString, stored);
        Desk desk;
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Sans", points, false, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontSize, stored.toStdString());
    }

    void fontsStayAsTheyAreUntilTheFontButtonWasUsed() {
        Desk desk([](MenuProp& prop) {
            prop.FontFamily = "Verdana,Arial";
            prop.FontSize = "10.5";
            prop.FontStyle = true;
        });
        const MenuProp before = desk.prop();
        desk.form.click("cmdOK");
        QVERIFY(desk.prop() == before);
    }

    void onceTheFontButtonWasUsedOKWritesTheFontAlsoInLaterShowings() {
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        desk.form.click("cmdCancel");
        QCOMPARE(desk.prop().FontSize, "13");
        desk.prop().FontSize = "10.5";
        desk.dialog.LoadDefaultDialog();
        desk.form.show();
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontSize, "10");
        QCOMPARE(desk.prop().FontFamily, "DejaVu Sans");
    }

    void aCancelledFontDialogWithoutAFontNameDoesNotCountAsUsed() {
        Desk desk([](MenuProp& prop) {
            prop.FontFamily = "";
            prop.FontSize = "";
        });
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontFamily, "");
        QCOMPARE(desk.prop().FontSize, "");
    }

    void aFontChosenWhereThereWasNoneIsStored() {
        Desk desk([](MenuProp& prop) { prop.FontFamily = ""; });
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Sans", 9, false, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontFamily, "DejaVu Sans");
        QCOMPARE(desk.prop().FontSize, "9");
    }

    void aSizeThatNoFontHasIsShownAsTenPoints_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<float>("points");
        QTest::newRow("empty") << "" << 10.0F;
        QTest::newRow("word") << "large" << 10.0F;
        QTest::newRow("zero") << "0" << 10.0F;
        QTest::newRow("negative") << "-12" << 10.0F;
        QTest::newRow("a number") << "12" << 12.0F;
        QTest::newRow("fraction") << "10.5" << 10.5F;
        QTest::newRow("with a unit") << "12pt" << 12.0F;
        QTest::newRow("beyond any font") << "1e300" << 32767.0F;
    }
    void aSizeThatNoFontHasIsShownAsTenPoints() {
        QFETCH(QString, stored);
        QFETCH(float, points);
        Desk desk([&](MenuProp& prop) { prop.FontSize = stored.toStdString(); });
        QCOMPARE(desk.form.preview("lblFont").fontChoice().points, points);
    }

    void positionsOutsideTheListAreShownAsNoneAndStoredAsMinusOne_data() {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("afterOK");
        QTest::newRow("-5") << -5 << -1;
        QTest::newRow("-1") << -1 << -1;
        QTest::newRow("0") << 0 << 0;
        QTest::newRow("4") << 4 << 4;
        QTest::newRow("5") << 5 << -1;
        QTest::newRow("32767") << 32767 << -1;
    }
    void positionsOutsideTheListAreShownAsNoneAndStoredAsMinusOne() {
        QFETCH(int, stored);
        QFETCH(int, afterOK);
        Desk desk([&](MenuProp& prop) { prop.Position = static_cast<std::int16_t>(stored); });
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), afterOK);
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.prop().Position), afterOK);
    }

    void choosingTheEmptyEntryStoresZero() {
        Desk desk([](MenuProp& prop) { prop.Position = 3; });
        desk.form.choose("cboPosition", 0);
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.prop().Position), 0);
    }

    void textsABoxCannotShowSurviveOK() {
        const std::string text = "a\r\nb\nc" + std::string(200'000, 'x');
        Desk desk([&](MenuProp& prop) {
            prop.BgImg = text;
            prop.HBgColor = text;
            prop.Columns = text;
            prop.CloseDelay = text;
        });
        const MenuProp before = desk.prop();
        desk.form.click("cmdOK");
        QVERIFY(desk.prop() == before);
    }

    void textBeyondAsciiIsStoredAsUtf8() {
        Desk desk;
        desk.form.paste("txtBgImg", QString::fromUtf8("bild \u00fc.gif"));
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().BgImg, "bild \xc3\xbc.gif");
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
        Desk desk;
        desk.dialogs.expectChooseFont(FontChoice{"Arial", points, isItalic, isBold});
        desk.form.click("cmdFont");
        desk.dialog.Font_Set();
        QCOMPARE(desk.form.preview("lblFont").text(), text);
        QCOMPARE(desk.form.preview("lblPreviewNormal").text(), "Normal");
    }

    void everythingIsReachedAndNamedWithoutAMouse() {
        Desk desk;
        QCOMPARE(desk.form.obstacles(), QStringList());
    }

    void tabGoesThroughTheFramesAsTheyAreRead() {
        Desk desk;
        QCOMPARE(desk.form.tabOrder(),
                 (QStringList{"cboPosition", "txtCloseDelay", "txtSpacing", "txtColumns",
                              "txtMenuOffset", "txtBgImg", "cmdBrowseBgImg", "txtHBgColor",
                              "cmdHBgColor", "txtNBgColor", "cmdNBgColor", "cmdFont", "txtHFtColor",
                              "cmdHFtColor", "txtNFtColor", "cmdNFtColor", "cmdOK", "cmdCancel"}));
    }

    void theDialogOpensInItsFirstFieldEachTime() {
        Desk desk;
        QVERIFY(desk.form.list("cboPosition").hasFocus());
        desk.form.click("txtNFtColor");
        desk.form.press(Qt::Key_Escape);
        desk.form.show();
        QVERIFY(desk.form.list("cboPosition").hasFocus());
    }

    void enterOnAButtonThatHasTheFocusUsesThatButton() {
        Desk desk;
        desk.form.button("cmdHBgColor").setFocus();
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.dialog.isVisible());
        desk.dialogs.verify();
    }

    void theDialogFitsASmallScreenAndCutsNothingOff() {
        Desk desk;
        QVERIFY(desk.dialog.width() <= 1000);
        QVERIFY(desk.dialog.height() <= 700);
        QCOMPARE(desk.form.cutOff(), QStringList());
    }

    void aHugeFontLeavesTheDialogsSizeAsItIs() {
        const QSize usual = Desk().dialog.size();
        Desk desk([](MenuProp& prop) { prop.FontSize = "500"; });
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
        Desk desk([](MenuProp& prop) { prop = FilledProp(); });
        // The theme changes while the dialog is open.
        QApplication::setPalette(isDark ? darkPalette() : lightPalette());
        QCoreApplication::processEvents();
        QCOMPARE(paintedBackground(desk.form.preview("lblFont")), QColor("#102030"));
        QCOMPARE(paintedBackground(desk.form.preview("lblPreviewNormal")), QColor("#405060"));
        QApplication::setPalette(before);
    }

    void thePreviewsShowAStyleSheetsListOfFonts() {
        Desk desk([](MenuProp& prop) { prop.FontFamily = "No Such Font, \\'DejaVu Serif\\'"; });
        const PreviewLabel& preview = desk.form.preview("lblFont");
        QCOMPARE(preview.font().families(), (QStringList{"No Such Font", "DejaVu Serif"}));
        QCOMPARE(preview.fontChoice().name, "No Such Font, \\'DejaVu Serif\\'");
    }
};

QTEST_MAIN(test_frm_default_prop)
#include "test_frm_default_prop.moc"
