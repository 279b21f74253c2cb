// SPDX-License-Identifier: MIT
// Default Menu Properties: what becomes of what is typed, pasted and picked.

#include "default_prop_desk.h"
#include "property_tables.h"

using namespace zev;

class test_frm_default_prop_input : public QObject {
    Q_OBJECT

  private slots:
    void numbersAreCheckedAtEveryKey_data() {
        addSharedNumbers();
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
        QTest::newRow("open delay 0") << "txtOpenDelay"
                                      << "0"
                                      << ""
                                      << "0";
        QTest::newRow("open delay 10000") << "txtOpenDelay"
                                          << "10000"
                                          << ""
                                          << "10000";
        QTest::newRow("open delay 10001") << "txtOpenDelay"
                                          << "10001"
                                          << "0 and 10000"
                                          << "";
        QTest::newRow("fold 10000") << "txtFold"
                                    << "10000"
                                    << ""
                                    << "10000";
        QTest::newRow("fold 10001") << "txtFold"
                                    << "10001"
                                    << "0 and 10000"
                                    << "";
        QTest::newRow("fold, letter") << "txtFold"
                                      << "x"
                                      << "0 and 10000"
                                      << "";
    }
    void numbersAreCheckedAtEveryKey() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        DefaultsDesk desk;
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
        QTest::newRow("leading point") << "txtSpacing"
                                       << ".5"
                                       << ""
                                       << ".5";
        QTest::newRow("spaces around") << "txtColumns"
                                       << " 1 "
                                       << ""
                                       << "1";
        QTest::newRow("spaces around, outside") << "txtColumns"
                                                << " 101 "
                                                << "1 and 100"
                                                << "";
        QTest::newRow("line break") << "txtColumns"
                                    << "1\n"
                                    << ""
                                    << "1";
    }
    void aPastedNumberIsCheckedAsAWhole() {
        QFETCH(QString, name);
        QFETCH(QString, pasted);
        QFETCH(QString, bounds);
        QFETCH(QString, shown);
        DefaultsDesk desk;
        if (!bounds.isEmpty())
            desk.messages.expect("Please enter a value between " + bounds.toStdString());
        desk.form.paste(name, pasted);
        QCOMPARE(desk.form.field(name).text(), shown);
        desk.messages.verify();
    }

    void aFractionOfAPixelOrAMillisecondIsRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("open delay") << "txtOpenDelay";
        QTest::newRow("fold") << "txtFold";
    }
    void aFractionOfAPixelOrAMillisecondIsRefused() {
        QFETCH(QString, name);
        DefaultsDesk desk;
        desk.messages.expect("Please enter a whole number between 0 and 10000");
        desk.form.type(name, "2.5");
        QCOMPARE(desk.form.field(name).text(), "");
        desk.messages.verify();
    }

    void apostrophesAreEscapedWhenATextIsLeft_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("marker") << "txtMarker";
        QTest::newRow("label") << "txtLabel";
    }
    void apostrophesAreEscapedWhenATextIsLeft() {
        QFETCH(QString, name);
        DefaultsDesk desk;
        desk.form.type(name, "Bob's");
        QCOMPARE(desk.form.field(name).text(), "Bob's");
        desk.form.press(Qt::Key_Tab);
        QCOMPARE(desk.form.field(name).text(), "Bob\\'s");
        desk.form.click("cmdOK");
        QCOMPARE(name == "txtMarker" ? desk.prop().marker : desk.prop().label, "Bob\\'s");
    }

    void apostrophesAreEscapedByEnterToo() {
        DefaultsDesk desk;
        desk.form.type("txtLabel", "Bob's");
        desk.form.press(Qt::Key_Return);
        QCOMPARE(desk.prop().label, "Bob\\'s");
    }

    void aSpaceTypedBesideANumberLeavesTheCaretWhereItWas() {
        DefaultsDesk desk;
        QLineEdit& spacing = desk.form.field("txtSpacing");
        desk.form.type("txtSpacing", "25 ");
        QCOMPARE(spacing.text(), "25");
        QCOMPARE(spacing.cursorPosition(), 2);
        spacing.setCursorPosition(0);
        desk.form.press(Qt::Key_Space);
        QCOMPARE(spacing.text(), "25");
        QCOMPARE(spacing.cursorPosition(), 0);
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().Spacing, "25");
    }

    void theWheelChangesTheListOnlyWhileItHasTheFocus() {
        DefaultsDesk desk;
        QComboBox& list = desk.form.list("cboPosition");
        const auto roll = [&list] { rollWheel(list); };
        desk.form.click("txtColumns");
        roll();
        QCOMPARE(list.currentIndex(), 1);
        QVERIFY(desk.form.field("txtColumns").hasFocus());
        list.setFocus();
        roll();
        QCOMPARE(list.currentIndex(), 2);
    }

    void theRangeMessageHasAnOKButtonAndTheProgramsTitle() {
        DefaultsDesk desk;
        desk.messages.expect("Please enter a value between 1 and 100");
        desk.form.type("txtColumns", "0");
        const MessageRequest& request = desk.messages.recorded().back();
        QVERIFY(request.buttons == MessageRequest::Buttons::Ok);
        QCOMPARE(request.title, "");
    }

    void aClearedBoxKeepsTheFocusAndTakesTheNextKeys() {
        DefaultsDesk desk;
        desk.messages.expect("Please enter a value between 1 and 100");
        desk.form.type("txtColumns", "0");
        QVERIFY(desk.form.field("txtColumns").hasFocus());
        desk.form.press(Qt::Key_7);
        QCOMPARE(desk.form.field("txtColumns").text(), "7");
    }

    void emptyNumbersAreStoredEmpty() {
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
        for (const char* name : {"txtCloseDelay", "txtSpacing", "txtColumns", "txtMenuOffset",
                                 "txtOpenDelay", "txtFold"})
            desk.form.type(name, "");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().CloseDelay, "");
        QCOMPARE(desk.prop().Spacing, "");
        QCOMPARE(desk.prop().Columns, "");
        QCOMPARE(desk.prop().MenuOffset, "");
        QCOMPARE(desk.prop().openDelay, "");
        QCOMPARE(desk.prop().fold, "");
        QVERIFY(desk.messages.recorded().empty());
    }

    void leavingAColourBoxRepaintsItsPreview_data() { addColors(); }
    void leavingAColourBoxRepaintsItsPreview() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
        const Form::Colors before = desk.form.previewColors();
        desk.form.type("txt" + name, "#010203");
        QCOMPARE(desk.form.previewColors(), before);
        desk.form.press(Qt::Key_Tab);
        Form::Colors expected = before;
        expected[changed] = 0x030201;
        QCOMPARE(desk.form.previewColors(), expected);
        QCOMPARE(desk.form.field("txt" + name).text(), "#010203");
    }

    void aColourBoxIsLeftInMoreThanOneWay_data() {
        QTest::addColumn<QString>("way");
        for (const char* way :
             {"Tab", "Shift+Tab", "mouse", "access key", "button", "button's access key"})
            QTest::newRow(way) << way;
    }
    void aColourBoxIsLeftInMoreThanOneWay() {
        QFETCH(QString, way);
        DefaultsDesk desk;
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
        DefaultsDesk desk;
        const std::int32_t before = desk.form.preview("lblFont").backColor();
        desk.form.type("txtHBgColor", "#010203");
        for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            QFocusEvent event(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&desk.form.field("txtHBgColor"), &event);
        }
        QCOMPARE(desk.form.preview("lblFont").backColor(), before);
    }

    void transparentStaysAndIsBlackInThePreview() {
        DefaultsDesk desk;
        desk.form.type("txtNBgColor", "transparent");
        desk.form.press(Qt::Key_Tab);
        QCOMPARE(desk.form.preview("lblPreviewNormal").backColor(), 0);
        QCOMPARE(desk.form.field("txtNBgColor").text(), "transparent");
        desk.form.click("cmdOK");
        QCOMPARE(desk.prop().NBgColor, "transparent");
    }

    void anEmptyColourIsBlackInThePreview() {
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
        desk.form.type("txtHFtColor", "");
        desk.form.press(Qt::Key_Tab);
        QCOMPARE(desk.form.preview("lblFont").foreColor(), 0);
    }

    void theColourButtonTakesAndGivesTheTextOfItsBox_data() { addColors(); }
    void theColourButtonTakesAndGivesTheTextOfItsBox() {
        QFETCH(QString, name);
        QFETCH(QString, changed);
        DefaultsDesk desk([](MenuProp& prop) { prop = FilledProp(); });
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
        DefaultsDesk desk;
        desk.form.type("txtHBgColor", "#ff8");
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.form.click("cmdHBgColor");
        QCOMPARE(desk.form.field("txtHBgColor").text(), "#ff8");
        QCOMPARE(desk.form.preview("lblFont").backColor(), 0x0080FF);
    }

    void browseTakesThePathRelativeToTheDocumentsFolder() {
        DefaultsDesk desk;
        desk.document.setFile(desk.document.SaveFile(), "/site");
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
        DefaultsDesk desk;
        desk.form.type("txtBgImg", "old.gif");
        desk.dialogs.expectOpenFile("");
        desk.form.click("cmdBrowseBgImg");
        QCOMPARE(desk.form.field("txtBgImg").text(), "old.gif");
    }
};

QTEST_MAIN(test_frm_default_prop_input)
#include "test_frm_default_prop_input.moc"
