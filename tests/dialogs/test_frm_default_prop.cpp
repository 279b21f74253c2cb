// SPDX-License-Identifier: MIT
// Default Menu Properties: what is filled in, and what OK and Cancel do with it.

#include "default_prop_desk.h"
#include "model/input_rules.h"

using namespace zev;

class test_frm_default_prop : public QObject {
    Q_OBJECT

  private slots:
    void fillingShowsWhatIsStored() {
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
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
        QCOMPARE(desk.form.field("txtMarker").text(), "<b>+</b>");
        QCOMPARE(desk.form.field("txtLabel").text(), "Shop");
        QCOMPARE(desk.form.field("txtOpenDelay").text(), "120");
        QCOMPARE(desk.form.field("txtFold").text(), "640");
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
        DefaultsDesk desk;
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
    }

    void storedValuesThatNoCheckWouldPassAreShownWithoutAMessage() {
        DefaultsDesk desk([](MenuProp& prop) {
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
        DefaultsDesk desk;
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
        desk.form.type("txtMarker", "none");
        desk.form.type("txtLabel", "Our shop");
        desk.form.type("txtOpenDelay", "0");
        desk.form.type("txtFold", "10000");
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
        expected.marker = "none";
        expected.label = "Our shop";
        expected.openDelay = "0";
        expected.fold = "10000";
        QVERIFY(desk.prop() == expected);
        QVERIFY(!desk.dialog.isVisible());
    }

    void okWithNothingChangedMarksTheDocumentAsModified() {
        DefaultsDesk desk;
        const MenuProp before = desk.prop();
        desk.form.click("cmdOK");
        QVERIFY(desk.document.bModified());
        QCOMPARE(desk.updates, 1);
        QVERIFY(desk.prop() == before);
        QVERIFY(!desk.dialog.isVisible());
    }

    void theWindowIsBroughtUpToDateWhenTheDocumentIsMarked() {
        DefaultsDesk desk;
        desk.form.click("cmdOK");
        QVERIFY(desk.wasModified);
    }

    void enterInAnyFieldIsOK_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"cboPosition", "txtCloseDelay", "txtSpacing", "txtColumns", "txtMenuOffset",
              "txtBgImg", "txtHBgColor", "txtNBgColor", "txtHFtColor", "txtNFtColor", "txtMarker",
              "txtLabel", "txtOpenDelay", "txtFold", "cmdOK"})
            QTest::newRow(name) << name;
    }
    void enterInAnyFieldIsOK() {
        QFETCH(QString, name);
        DefaultsDesk desk;
        desk.form.named<QWidget>(name).setFocus();
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.document.bModified());
        QVERIFY(!desk.dialog.isVisible());
    }

    void cancelWritesNothing_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Cancel") << 0;
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }
    void cancelWritesNothing() {
        QFETCH(int, key);
        DefaultsDesk desk;
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
        QVERIFY(!desk.document.bModified());
        QCOMPARE(desk.updates, 0);
        // Menu Properties takes its preview colours from these boxes.
        QCOMPARE(desk.form.field("txtHBgColor").text(), "#123456");
    }

    void afterCancelTheDialogOpensWithTheStoredValues() {
        DefaultsDesk desk;
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

    void theFontDialogStartsWithThePreviewsFontEveryTime() {
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
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
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
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
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
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
        DefaultsDesk desk;
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Sans", points, false, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontSize, stored.toStdString());
    }

    void fontsStayAsTheyAreUntilTheFontButtonWasUsed() {
        DefaultsDesk desk([](MenuProp& prop) {
            prop.FontFamily = "Verdana,Arial";
            prop.FontSize = "10.5";
            prop.FontStyle = true;
        });
        const MenuProp before = desk.prop();
        desk.form.click("cmdOK");
        QVERIFY(desk.prop() == before);
    }

    void onceTheFontButtonWasUsedOKWritesTheFontAlsoInLaterShowings() {
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
        desk.dialogs.expectChooseFont(std::nullopt);
        desk.form.click("cmdFont");
        desk.form.click("cmdCancel");
        QCOMPARE(desk.prop().FontSize, "13");
        desk.editProp()->FontSize = "10.5";
        desk.dialog.LoadDefaultDialog();
        desk.form.show();
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontSize, "10");
        QCOMPARE(desk.prop().FontFamily, "DejaVu Sans");
    }

    void aCancelledFontDialogWithoutAFontNameDoesNotCountAsUsed() {
        DefaultsDesk desk([](MenuProp& prop) {
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
        DefaultsDesk desk([](MenuProp& prop) { prop.FontFamily = ""; });
        desk.dialogs.expectChooseFont(FontChoice{"DejaVu Sans", 9, false, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontFamily, "DejaVu Sans");
        QCOMPARE(desk.prop().FontSize, "9");
    }

    void aSizeChosenWhereThereIsNoFamilyIsStoredAlone() {
        DefaultsDesk desk([](MenuProp& prop) { prop.FontFamily = ""; });
        desk.dialogs.expectChooseFont(FontChoice{"", 20, false, false});
        desk.form.click("cmdFont");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().FontFamily, "");
        QCOMPARE(desk.prop().FontSize, "20");
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
        DefaultsDesk desk([&](MenuProp& prop) { prop.FontSize = stored.toStdString(); });
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
        DefaultsDesk desk(
            [&](MenuProp& prop) { prop.Position = static_cast<std::int16_t>(stored); });
        QCOMPARE(desk.form.list("cboPosition").currentIndex(), afterOK);
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.prop().Position), afterOK);
    }

    void choosingTheEmptyEntryStoresZero() {
        DefaultsDesk desk([](MenuProp& prop) { prop.Position = 3; });
        desk.form.choose("cboPosition", 0);
        desk.form.click("cmdOK");
        QCOMPARE(int(desk.prop().Position), 0);
    }

    void textsABoxCannotShowSurviveOK() {
        const std::string text = "a\r\nb\nc" + std::string(200'000, 'x');
        DefaultsDesk desk([&](MenuProp& prop) {
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
        DefaultsDesk desk;
        desk.form.paste("txtBgImg", QString::fromUtf8("bild \u00fc.gif"));
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().BgImg, "bild \xc3\xbc.gif");
    }

    void enterOnAButtonThatHasTheFocusUsesThatButton() {
        DefaultsDesk desk;
        desk.form.button("cmdHBgColor").setFocus();
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.press(Qt::Key_Return);
        QVERIFY(desk.dialog.isVisible());
        desk.dialogs.verify();
    }
};

QTEST_MAIN(test_frm_default_prop)
#include "test_frm_default_prop.moc"
