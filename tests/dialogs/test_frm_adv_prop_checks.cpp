// SPDX-License-Identifier: MIT
// Advanced Menu Properties: what becomes of what is typed and pasted.

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "adv_prop_desk.h"
#include "platform/qt/qt_message_box.h"
#include "tests/app/when_shown.h"

using namespace zev;

class test_frm_adv_prop_checks : public QObject {
    Q_OBJECT

  private slots:
    // Texts

    void apostrophesAreEscapedWhenTheBoxIsLeft_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"txtDivider", "txtHTMLBefore", "txtHTMLAfter", "txtTarget", "txtItemBorder"})
            QTest::newRow(name) << name;
    }
    void apostrophesAreEscapedWhenTheBoxIsLeft() {
        QFETCH(QString, name);
        AdvDesk desk;
        desk.type(name, "It's 'a'");
        QCOMPARE(desk.text(name), QString("It's 'a'"));
        desk.press(Qt::Key_Tab);
        QVERIFY(desk.focused() != name);
        QCOMPARE(desk.text(name), QString("It\\'s \\'a\\'"));
        // Never twice.
        desk.box(name).setFocus();
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text(name), QString("It\\'s \\'a\\'"));
    }

    void inTheMenuBorderApostrophesAreEscapedAsTheyAreTyped() {
        AdvDesk desk;
        desk.type("txtMenuBorder", "It'");
        QCOMPARE(desk.text("txtMenuBorder"), QString("It\\'"));
        QTest::keyClicks(&desk.box("txtMenuBorder"), "s");
        QCOMPARE(desk.text("txtMenuBorder"), QString("It\\'s"));
        // In the midst of the text, the caret stays behind what was typed.
        desk.box("txtMenuBorder").setCursorPosition(1);
        QTest::keyClicks(&desk.box("txtMenuBorder"), "'x");
        QCOMPARE(desk.text("txtMenuBorder"), QString("I\\'xt\\'s"));
        QGuiApplication::clipboard()->setText("a'b'c");
        desk.box("txtMenuBorder").selectAll();
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.text("txtMenuBorder"), QString("a\\'b\\'c"));
    }

    void aStoredMenuBorderIsNotTouchedByLeaving() {
        AdvDesk desk;
        desk.editTopMenu()->MenuBorder = "it's";
        desk.open();
        desk.box("txtMenuBorder").setFocus();
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text("txtMenuBorder"), QString("it's"));
    }

    void theOtherBoxesKeepTheirApostrophes() {
        AdvDesk desk;
        desk.type("txtShadow", "It's");
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text("txtShadow"), QString("It's"));
    }

    void everyWayOutOfABoxLeavesIt_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"Tab", "Shift+Tab", "click into another box", "access key of a box",
                                "cmdCopy", "cmdPaste", "cmdShadow", "Enter", "cmdOK", "Alt+K"})
            QTest::newRow(way) << way;
    }
    void everyWayOutOfABoxLeavesIt() {
        QFETCH(QString, way);
        AdvDesk desk;
        desk.type("txtTarget", "It's");
        if (way == "cmdShadow")
            desk.dialogs.expectChooseColor(std::nullopt);
        if (way == "Tab")
            desk.press(Qt::Key_Tab);
        else if (way == "Shift+Tab")
            desk.press(Qt::Key_Backtab, Qt::ShiftModifier);
        else if (way == "click into another box")
            QTest::mouseClick(&desk.box("txtFade"), Qt::LeftButton);
        else if (way == "access key of a box")
            desk.press(Qt::Key_F, Qt::AltModifier);
        else if (way == "Enter")
            desk.press(Qt::Key_Return);
        else if (way == "Alt+K")
            desk.press(Qt::Key_K, Qt::AltModifier);
        else
            desk.click(way);
        QTRY_COMPARE(desk.text("txtTarget"), QString("It\\'s"));
        const bool isOK = way == "Enter" || way == "cmdOK" || way == "Alt+K";
        QTRY_COMPARE(desk.form().isVisible(), !isOK);
        QCOMPARE(desk.document.RootMenuProp().Target, std::string(isOK ? "It\\'s" : ""));
    }

    void anotherWindowAndAMenuDoNotLeaveTheBox() {
        AdvDesk desk;
        desk.type("txtTarget", "It's");
        QWidget other;
        DialogDesk::show(other);
        QVERIFY(!desk.form().isActiveWindow());
        QCOMPARE(desk.text("txtTarget"), QString("It's"));
        DialogDesk::show(desk.form());
        QCOMPARE(desk.focused(), QString("txtTarget"));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(50, 50));
        QCoreApplication::sendEvent(&desk.box("txtTarget"), &event);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QCOMPARE(desk.text("txtTarget"), QString("It's"));
        QApplication::activePopupWidget()->close();
    }

    // Numbers

    void cellPaddingIsCheckedOnEveryKey_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isRefused");
        for (const char* typed : {"0", "10", "1.5", "0.25", "+3", ""})
            QTest::newRow(typed) << typed << false;
        for (const char* typed : {"11", "x", "-", ".", "10.1", "1e"})
            QTest::newRow(typed) << typed << true;
    }
    void cellPaddingIsCheckedOnEveryKey() {
        QFETCH(QString, typed);
        QFETCH(bool, isRefused);
        AdvDesk desk;
        desk.editTopMenu()->CellPadding = "4";
        desk.open();
        if (isRefused || typed == "+3")
            desk.messages.expect(kPaddingRange);
        desk.type("txtCellPadding", typed);
        // A sign cannot be typed by itself; the rest is a number again.
        QCOMPARE(desk.text("txtCellPadding"), isRefused ? "" : typed == "+3" ? "3" : typed);
        QCOMPARE(desk.focused(), QString("txtCellPadding"));
    }

    void cellPaddingTakesWholePastedNumbers() {
        AdvDesk desk;
        QGuiApplication::clipboard()->setText("+3");
        desk.box("txtCellPadding").setFocus();
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.text("txtCellPadding"), QString("+3"));
        QGuiApplication::clipboard()->setText("12");
        desk.box("txtCellPadding").selectAll();
        desk.messages.expect(kPaddingRange);
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.text("txtCellPadding"), QString());
    }

    void aNumberIsCheckedWhenItsBoxIsLeft_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        const auto row = [](const char* name, const char* typed, const char* message) {
            QTest::addRow("%s '%s'", name, typed) << name << typed << message;
        };
        for (const char* typed : {"0.2", ".2", "5", "0", "5.0", ""})
            row("txtFade", typed, "");
        for (const char* typed : {"5.1", "-1", ".", "fast", " "})
            row("txtFade", typed, kFadeRange);
        for (const char* typed : {"1", "100", "99.5", ""})
            row("txtOpacity", typed, "");
        for (const char* typed : {"0", "101", "0.5", "50%"})
            row("txtOpacity", typed, kOpacityRange);
    }
    void aNumberIsCheckedWhenItsBoxIsLeft() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        AdvDesk desk;
        desk.type(name, typed);
        QCOMPARE(desk.text(name), typed);
        QVERIFY(desk.messages.recorded().empty());
        if (!message.isEmpty())
            desk.messages.expect(message.toStdString());
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text(name), message.isEmpty() ? typed : QString());
        // The focus is not held in the box.
        QCOMPARE(desk.focused(), QString(name == "txtFade" ? "txtOpacity" : "txtShadow"));
    }

    void spacesAroundANumberAreDroppedWhenItsBoxIsLeft() {
        AdvDesk desk;
        desk.type("txtFade", " .2 ");
        QCOMPARE(desk.text("txtFade"), QString(" .2 "));
        desk.press(Qt::Key_Return);
        QCOMPARE(desk.document.RootMenuProp().FilterFade, std::string(".2"));
    }

    void theRangeMessageIsAPlainOneWithTheProgramsTitle() {
        AdvDesk desk;
        desk.messages.expect(kPaddingRange);
        desk.type("txtCellPadding", "x");
        const MessageRequest& request = desk.messages.recorded().front();
        QVERIFY(request.buttons == MessageRequest::Buttons::Ok);
        QVERIFY(request.icon == MessageRequest::Icon::None);
        QCOMPARE(request.title, std::string());
    }

    void okAfterABadNumberStoresItEmpty() {
        AdvDesk desk;
        desk.editTopMenu()->FilterFade = "1";
        desk.open();
        desk.type("txtFade", "5.1");
        desk.messages.expect(kFadeRange);
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.form().isVisible());
        QCOMPARE(desk.document.RootMenuProp().FilterFade, std::string());
    }

    void theRealMessageBoxNeitherHoldsTheFocusNorSwallowsTheClick() {
        QtMessageBox real;
        AdvDesk desk(real);
        const auto answer = [](const char* text) {
            whenShown<QMessageBox>([text](QMessageBox& box) {
                QCOMPARE(box.text(), QString(text));
                QTest::keyClick(&box, Qt::Key_Return);
            });
        };
        answer(kPaddingRange);
        desk.type("txtCellPadding", "11");
        QCOMPARE(desk.text("txtCellPadding"), QString());
        // The platform of the tests gives the focus to no window when one is closed.
        DialogDesk::show(desk.form());
        QCOMPARE(desk.focused(), QString("txtCellPadding"));
        answer(kFadeRange);
        desk.type("txtFade", "5.1");
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.text("txtFade"), QString());
        DialogDesk::show(desk.form());
        QCOMPARE(desk.focused(), QString("txtOpacity"));
        answer(kOpacityRange);
        desk.type("txtOpacity", "0");
        desk.click("cmdOK");
        QVERIFY(!desk.form().isVisible());
        QCOMPARE(desk.document.RootMenuProp().FilterOpacity, std::string());
    }
};

QTEST_MAIN(test_frm_adv_prop_checks)
#include "test_frm_adv_prop_checks.moc"
