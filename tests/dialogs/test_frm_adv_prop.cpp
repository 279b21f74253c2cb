// The Advanced Menu Properties dialog, by its widgets.

#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <memory>

#include "dialog_desk.h"
#include "dialogs/color_swatch.h"
#include "dialogs/frm_adv_prop.h"
#include "platform/qt/qt_message_box.h"
#include "tests/app/when_shown.h"

using namespace zev;

namespace {

struct BoxOf {
    const char* name;
    std::string MenuProp::*member;
};

constexpr BoxOf kBoxes[] = {
    {"txtDivider", &MenuProp::Divider},         {"txtHTMLBefore", &MenuProp::HTMLBefore},
    {"txtHTMLAfter", &MenuProp::HTMLAfter},     {"txtTarget", &MenuProp::Target},
    {"txtItemBorder", &MenuProp::ItemBorder},   {"txtMenuBorder", &MenuProp::MenuBorder},
    {"txtCellPadding", &MenuProp::CellPadding}, {"txtFade", &MenuProp::FilterFade},
    {"txtOpacity", &MenuProp::FilterOpacity},   {"txtShadow", &MenuProp::FilterShadow},
};

constexpr const char* kPaddingRange = "Please enter a value between 0 and 10";
constexpr const char* kFadeRange = "Please enter a value between 0 and 5";
constexpr const char* kOpacityRange = "Please enter a value between 1 and 100";

/// A set in which all that this dialog edits begins with `sign`, the numbers included.
MenuProp signedSet(char sign) {
    MenuProp prop;
    for (const BoxOf& box : kBoxes)
        prop.*box.member = sign + std::string(box.name);
    prop.CellPadding = std::string("0.") + sign;
    prop.FilterFade = std::string("1.") + sign;
    prop.FilterOpacity = std::string("2.") + sign;
    return prop;
}

/// The dialog, filled for the item "a" and shown.
struct AdvDesk : DialogDesk {
    AdvDesk() { open(); }
    /// With another message box than the one that answers from a script.
    explicit AdvDesk(MessageBox& other) {
        dialog = std::make_unique<frmAdvProp>(DialogHost{document, other, dialogs, [] {}}, &window);
        open();
    }

    void open() {
        QVERIFY(form().fill());
        show(form());
    }
    void open(MenuNode* node) {
        document.CurNode = node;
        open();
    }
    frmAdvProp& form() { return *dialog; }
    QLineEdit& box(const QString& name) { return DialogDesk::box(form(), name); }
    QString text(const QString& name) { return box(name).text(); }
    void type(const QString& name, const QString& text) { DialogDesk::type(form(), name, text); }
    void click(const QString& button) { DialogDesk::click(form(), button); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(form().focusWidget(), key, modifiers);
    }
    /// What the ten boxes show.
    QStringList shown() {
        QStringList texts;
        for (const BoxOf& each : kBoxes)
            texts << text(each.name);
        return texts;
    }
    static QStringList textsOf(const MenuProp& prop) {
        QStringList texts;
        for (const BoxOf& each : kBoxes)
            texts << QString::fromStdString(prop.*each.member);
        return texts;
    }

    QWidget window;
    std::unique_ptr<frmAdvProp> dialog = std::make_unique<frmAdvProp>(host(), &window);
};

}  // namespace

class test_frm_adv_prop : public QObject {
    Q_OBJECT

  private slots:
    // What is there

    void everyBoxHasItsLabelTooltipAndFrame_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("tooltip");
        QTest::addColumn<QString>("frame");
        const auto row = [](const char* name, const char* label, const char* tooltip,
                            const char* frame) {
            QTest::newRow(name) << QString(label) << QString(tooltip) << QString(frame);
        };
        row("Divider", "Menu Divider:",
            "Horizontal menu divider. Set Spacing to at least 1 if divider is specified",
            "FrameAdvanced");
        row("HTMLBefore", "HTML Before:", "HTML code added before each menu item", "FrameAdvanced");
        row("HTMLAfter", "HTML After:", "HTML code added after each menu item", "FrameAdvanced");
        row("Target", "Target Frame:", "Default target frame or window of child menu hyperlinks",
            "FrameAdvanced");
        row("ItemBorder",
            "Item Border:", "Menu item border settings in CSS syntax (1px solid #FFFFFF)",
            "FrameAdvanced");
        row("MenuBorder", "Menu Border:", "Menu border settings in CSS syntax (1px solid #FFFFFF)",
            "FrameAdvanced");
        row("CellPadding", "Cell Padding:", "Padding around each menu item", "FrameAdvanced");
        row("Fade", "Fade Duration (0 - 5):",
            "Menu fade effect. 0: Fast. 5: Slow. decimal values allowed, e.g. 0.2", "FrameIE");
        row("Opacity", "Opacity (1 - 100):", "Menu opacity. 1: Transparent. 100: Opaque",
            "FrameIE");
        row("Shadow", "Shadow Color:", "Menu shadow color", "FrameIE");
    }
    void everyBoxHasItsLabelTooltipAndFrame() {
        QFETCH(QString, label);
        QFETCH(QString, tooltip);
        QFETCH(QString, frame);
        AdvDesk desk;
        const QString name = QTest::currentDataTag();
        auto& shownLabel = desk.find<QLabel>(desk.form(), "lbl" + name);
        QLineEdit& box = desk.box("txt" + name);
        QCOMPARE(shownLabel.text().remove('&'), label);
        QCOMPARE(shownLabel.buddy(), &box);
        QCOMPARE(box.toolTip(), tooltip);
        QCOMPARE(box.accessibleName(), label.chopped(1));
        QCOMPARE(box.parentWidget()->objectName(), frame);
    }

    void titleFramesAndButtonsAreNamed() {
        AdvDesk desk;
        QCOMPARE(desk.form().objectName(), QString("frmAdvProp"));
        QCOMPARE(desk.form().windowTitle(), QString("Advanced Menu Properties"));
        QCOMPARE(desk.find<QGroupBox>(desk.form(), "FrameAdvanced").title(),
                 QString("Advanced Menu Settings"));
        QCOMPARE(desk.find<QGroupBox>(desk.form(), "FrameIE").title(),
                 QString("IE Filter Effects"));
        const std::pair<const char*, const char*> buttons[] = {
            {"cmdShadow", "Select Color"},
            {"cmdCopy", "Copy Menu Properties"},
            {"cmdPaste", "Paste Menu Properties"},
            {"cmdOK", "OK"},
            {"cmdCancel", "Cancel"}};
        for (const auto& [name, caption] : buttons)
            QCOMPARE(desk.find<QPushButton>(desk.form(), name).text().remove('&'),
                     QString(caption));
    }

    void everyLabelAndButtonHasAnAccessKeyOfItsOwn() {
        AdvDesk desk;
        QStringList captions;
        for (const QLabel* label : desk.form().findChildren<QLabel*>())
            captions << label->text();
        for (const auto* button : desk.form().findChildren<QPushButton*>())
            captions << button->text();
        QCOMPARE(captions.size(), 15);
        QSet<QString> keys;
        for (const QString& caption : captions) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            QVERIFY2(!key.isEmpty(), qPrintable(caption));
            QVERIFY2(!keys.contains(key.toString()), qPrintable(caption));
            keys.insert(key.toString());
        }
    }

    void everyControlHasANameOfItsOwnForAssistiveTechnology() {
        AdvDesk desk;
        QSet<QString> names;
        for (const QWidget* widget : desk.form().findChildren<QWidget*>()) {
            if (qobject_cast<const QLabel*>(widget) != nullptr ||
                qobject_cast<const QGroupBox*>(widget) != nullptr)
                continue;
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
            QVERIFY2(!names.contains(widget->accessibleName()),
                     qPrintable(widget->accessibleName()));
            names.insert(widget->accessibleName());
        }
        QCOMPARE(names.size(), 16);
    }

    void tabGoesThroughTheControlsAsTheyAreRead() {
        AdvDesk desk;
        const QStringList order = {"txtDivider",    "txtHTMLBefore", "txtHTMLAfter",   "txtTarget",
                                   "txtItemBorder", "txtMenuBorder", "txtCellPadding", "txtFade",
                                   "txtOpacity",    "txtShadow",     "cmdShadow",      "cmdCopy",
                                   "cmdPaste",      "cmdOK",         "cmdCancel"};
        for (const QString& name : order) {
            QCOMPARE(desk.focused(), name);
            desk.press(Qt::Key_Tab);
        }
        QCOMPARE(desk.focused(), order.front());
    }

    void itFitsASmallScreenAndShowsLongBorders() {
        AdvDesk desk;
        const QSize size = desk.form().sizeHint();
        QVERIFY2(size.width() <= 1024 && size.height() <= 768 - 40,
                 qPrintable(QString("%1 x %2").arg(size.width()).arg(size.height())));
        const int needed =
            desk.form().fontMetrics().horizontalAdvance("1px solid #FFFFFF &nbsp;&nbsp;");
        QVERIFY(desk.box("txtItemBorder").width() > needed);
        QVERIFY(desk.box("txtShadow").width() >
                desk.form().fontMetrics().horizontalAdvance("transparent"));
    }

    // Filling

    void fillingShowsTheStoredTexts() {
        AdvDesk desk;
        desk.document.RootMenuProp = signedSet('7');
        desk.open();
        QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('7')));
    }

    void aTopLevelItemStandsForTheTopMenuAndOthersForTheirParentsSubmenu() {
        AdvDesk desk;
        desk.document.RootMenuProp = signedSet('1');
        desk.a->item.MenuProperty.edit() = signedSet('2');
        desk.a1->item.MenuProperty.edit() = signedSet('3');
        desk.b->item.MenuProperty.edit() = signedSet('4');
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
        desk.document.CurNode = nullptr;
        desk.document.RootMenuProp = signedSet('1');
        QVERIFY(!desk.form().fill());
        QCOMPARE(desk.text("txtTarget"), QString("edited"));
    }

    void openingTwiceWithoutOKShowsTheStoredTextsEachTime() {
        AdvDesk desk;
        desk.document.RootMenuProp = signedSet('1');
        for (int times = 0; times < 2; ++times) {
            desk.open();
            QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('1')));
            desk.type("txtTarget", "edited");
            desk.click("cmdCancel");
        }
    }

    void storedTextsAreShownWithoutAMessageWhateverTheyAre() {
        AdvDesk desk;
        MenuProp& root = desk.document.RootMenuProp;
        root.CellPadding = "11";
        root.FilterFade = "x";
        root.FilterOpacity = "0";
        root.MenuBorder = "it's";
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
        desk.document.RootMenuProp = signedSet('1');
        desk.open();
        desk.type(QTest::currentDataTag(), typed);
        desk.click("cmdOK");
        MenuProp expected = signedSet('1');
        for (const BoxOf& box : kBoxes) {
            if (QString(box.name) == QTest::currentDataTag())
                expected.*box.member = typed.toStdString();
        }
        QVERIFY(!desk.form().isVisible());
        QVERIFY(desk.document.RootMenuProp == expected);
    }

    void emptyTextIsStoredEverywhere() {
        AdvDesk desk;
        desk.document.RootMenuProp = signedSet('1');
        desk.open();
        for (const BoxOf& box : kBoxes)
            desk.type(box.name, "");
        desk.click("cmdOK");
        QVERIFY(desk.document.RootMenuProp == MenuProp());
        QVERIFY(desk.messages.recorded().empty());
    }

    void okWritesToTheMenuOfTheItemThatIsCurrentThen() {
        AdvDesk desk;
        const MenuProp before = desk.document.RootMenuProp;
        desk.type("txtTarget", "frame");
        desk.document.CurNode = desk.a1;
        desk.click("cmdOK");
        QCOMPARE(desk.a->item.MenuProperty->Target, std::string("frame"));
        QVERIFY(desk.document.RootMenuProp == before);
    }

    void okNeitherMarksTheDocumentNorUpdatesTheWindow() {
        AdvDesk desk;
        desk.type("txtTarget", "frame");
        desk.click("cmdOK");
        QCOMPARE(desk.document.RootMenuProp.Target, std::string("frame"));
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
    }

    void textsThatABoxCannotShowSurviveOKAndPaste() {
        const std::string breaks = "<b>\r\nlong\n</b>" + std::string(100'001, 'x');
        AdvDesk desk;
        desk.document.RootMenuProp.HTMLBefore = breaks;
        desk.open();
        QVERIFY(!desk.text("txtHTMLBefore").contains('\n'));
        desk.click("cmdCopy");
        desk.type("txtTarget", "frame");
        desk.click("cmdOK");
        QVERIFY(desk.document.RootMenuProp.HTMLBefore == breaks);
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
        const MenuProp before = desk.document.RootMenuProp;
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
        QVERIFY(desk.document.RootMenuProp == before);
        QVERIFY(!desk.document.bModified);
        QCOMPARE(desk.updates, 0);
    }

    void enterIsOKInEveryBox_data() { addBoxes(); }
    void enterIsOKInEveryBox() {
        AdvDesk desk;
        desk.type("txtTarget", "frame");
        desk.box(QTest::currentDataTag()).setFocus();
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.form().isVisible());
        QCOMPARE(desk.document.RootMenuProp.Target, std::string("frame"));
    }

    // Text checks

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
        desk.document.RootMenuProp.MenuBorder = "it's";
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
        QCOMPARE(desk.document.RootMenuProp.Target, std::string(isOK ? "It\\'s" : ""));
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

    // Numeric checks

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
        desk.document.RootMenuProp.CellPadding = "4";
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
        for (const char* typed : {"0.2", "5", "0", "5.0", ""})
            row("txtFade", typed, "");
        for (const char* typed : {"5.1", "-1", ".2", "fast", " "})
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
        desk.document.RootMenuProp.FilterFade = "1";
        desk.open();
        desk.type("txtFade", "5.1");
        desk.messages.expect(kFadeRange);
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.form().isVisible());
        QCOMPARE(desk.document.RootMenuProp.FilterFade, std::string());
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
        QCOMPARE(desk.document.RootMenuProp.FilterOpacity, std::string());
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
        QCOMPARE(desk.document.RootMenuProp.FilterShadow, std::string("#ABCDEF"));
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
        desk.document.RootMenuProp.FilterShadow = "#123456";
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
        const MenuProp root = desk.document.RootMenuProp = signedSet('1');
        const MenuProp submenu = signedSet('2');
        desk.a->item.MenuProperty.edit() = submenu;
        desk.open();
        desk.type("txtTarget", "not confirmed");
        desk.click("cmdCopy");
        const QStringList copied = desk.shown();
        desk.type("txtTarget", "typed after copying");
        desk.click("cmdCancel");
        QVERIFY(desk.document.RootMenuProp == root);

        desk.open(desk.a1);
        QCOMPARE(desk.shown(), AdvDesk::textsOf(submenu));
        desk.click("cmdPaste");
        QCOMPARE(desk.shown(), copied);
        QVERIFY(*desk.a->item.MenuProperty == submenu);
        desk.click("cmdOK");
        MenuProp expected = root;
        expected.Target = "not confirmed";
        QVERIFY(*desk.a->item.MenuProperty == expected);
        QVERIFY(!desk.document.bModified);
    }

    void theCopyIsKeptForFurtherPastes() {
        AdvDesk desk;
        desk.document.RootMenuProp = signedSet('1');
        desk.open();
        desk.click("cmdCopy");
        for (MenuNode* node : {desk.a1, desk.b}) {
            desk.open(node);
            desk.type("txtTarget", "x");
            desk.click("cmdPaste");
            QCOMPARE(desk.shown(), AdvDesk::textsOf(signedSet('1')));
            desk.click("cmdOK");
        }
    }

    void pastedTextIsCheckedOnlyWhenItsBoxIsChangedOrLeft() {
        AdvDesk desk;
        MenuProp& root = desk.document.RootMenuProp;
        root.CellPadding = "11";
        root.FilterFade = "9";
        root.MenuBorder = "it's";
        root.Divider = "it's";
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
