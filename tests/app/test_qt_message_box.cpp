// SPDX-License-Identifier: MIT
// The real message boxes of Qt, answered with real keys, and the size of windows.

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>

#include "platform/qt/fit_screen.h"
#include "platform/qt/plain_button_style.h"
#include "platform/qt/qt_message_box.h"
#include "when_shown.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;
using Buttons = MessageRequest::Buttons;

/// The button that shows and hides the details; null when there is none.
QAbstractButton* detailsButton(const QMessageBox& box) {
    for (QAbstractButton* button : box.buttons())
        if (box.buttonRole(button) == QMessageBox::ActionRole)
            return button;
    return nullptr;
}

/// The label that the person sees.
QLabel* shownLabel(const QMessageBox& box) {
    for (QLabel* label : box.findChildren<QLabel*>())
        if (label->isVisible() && label->text() == box.text())
            return label;
    return nullptr;
}

/// True when a part of a picture is not of one colour.
bool hasInk(const QImage& picture, const QRect& part) {
    const QRect inside = part.intersected(picture.rect());
    const QRgb background = picture.pixel(inside.topLeft());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            if (picture.pixel(x, y) != background)
                return true;
    }
    return false;
}

MessageRequest requestWithDetails(int lines) {
    MessageRequest request;
    request.text = "Finished importing /old/menu.txt. 3 warnings encountered.";
    for (int line = 1; line <= lines; ++line)
        request.details += (line > 1 ? "\nline " : "line ") + std::to_string(line) +
                           ": <b>the item goes up past the top level & so on</b>";
    return request;
}

/// As desktops have it that show pictures on buttons.
class PicturedButtonStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

}  // namespace

class test_qt_message_box : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void eachKeyIsAnAnswer_data();
    void eachKeyIsAnAnswer();
    void closingTheBoxIsTheMildestAnswer_data();
    void closingTheBoxIsTheMildestAnswer();
    void messagesAreShownAsTheyAre();
    void aMessageWithoutTitleHasTheProgramsName();
    void longPathsWrapInsideTheScreen_data();
    void longPathsWrapInsideTheScreen();
    void theTextIsCopiedAsItIs();
    void aShortTextStaysOnOneLine();
    void aBoxBelongsToTheActiveWindow();
    void buttonsHaveNoPicturesInTheProgramsStyle();
    void aToolbarsMarkForWhatHasNoRoomIsThatOfTheDesktop();
    void theFrameOfAGroupLooksLikeTheStylesOwn_data();
    void theFrameOfAGroupLooksLikeTheStylesOwn();
    void aWindowIsNotLargerThanItsScreen();
    void aMessageWithoutDetailsHasOnlyItsButtons();
    void detailsAreShownWhenAskedFor();
    void detailsAreReadWithTheKeyboard();
    void detailsOfManyLinesFitTheScreen();
    void aBoxWithDetailsIsAnsweredAsOneWithout_data();
    void aBoxWithDetailsIsAnsweredAsOneWithout();
};

void test_qt_message_box::initTestCase() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void test_qt_message_box::eachKeyIsAnAnswer_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("answer");
    QTest::newRow("ok, Enter") << int(Buttons::Ok) << int(Qt::Key_Return) << int(Answer::Ok);
    QTest::newRow("ok, Escape") << int(Buttons::Ok) << int(Qt::Key_Escape) << int(Answer::Ok);
    QTest::newRow("ok/cancel, Enter")
        << int(Buttons::OkCancel) << int(Qt::Key_Return) << int(Answer::Ok);
    QTest::newRow("ok/cancel, Escape")
        << int(Buttons::OkCancel) << int(Qt::Key_Escape) << int(Answer::Cancel);
    QTest::newRow("yes/no, Enter")
        << int(Buttons::YesNo) << int(Qt::Key_Return) << int(Answer::Yes);
    QTest::newRow("yes/no, Escape")
        << int(Buttons::YesNo) << int(Qt::Key_Escape) << int(Answer::No);
    QTest::newRow("yes/no, N") << int(Buttons::YesNo) << int(Qt::Key_N) << int(Answer::No);
    QTest::newRow("yes/no/cancel, Y")
        << int(Buttons::YesNoCancel) << int(Qt::Key_Y) << int(Answer::Yes);
    QTest::newRow("yes/no/cancel, N")
        << int(Buttons::YesNoCancel) << int(Qt::Key_N) << int(Answer::No);
    QTest::newRow("yes/no/cancel, Escape")
        << int(Buttons::YesNoCancel) << int(Qt::Key_Escape) << int(Answer::Cancel);
}

void test_qt_message_box::eachKeyIsAnAnswer() {
    QFETCH(int, buttons);
    QFETCH(int, key);
    MessageRequest request;
    request.text = "Save changes to project?";
    request.buttons = Buttons(buttons);
    whenShown<QMessageBox>([key](QMessageBox& box) {
        const bool isLetter = key == Qt::Key_Y || key == Qt::Key_N;
        QTest::keyClick(&box, Qt::Key(key), isLetter ? Qt::AltModifier : Qt::NoModifier);
    });
    QtMessageBox messages;
    QTEST(int(messages.show(request)), "answer");
}

void test_qt_message_box::closingTheBoxIsTheMildestAnswer_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("ok") << int(Buttons::Ok) << int(Answer::Ok);
    QTest::newRow("ok/cancel") << int(Buttons::OkCancel) << int(Answer::Cancel);
    QTest::newRow("yes/no") << int(Buttons::YesNo) << int(Answer::No);
    QTest::newRow("yes/no/cancel") << int(Buttons::YesNoCancel) << int(Answer::Cancel);
}

void test_qt_message_box::closingTheBoxIsTheMildestAnswer() {
    QFETCH(int, buttons);
    MessageRequest request;
    request.text = "Text";
    request.buttons = Buttons(buttons);
    whenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
    QtMessageBox messages;
    QTEST(int(messages.show(request)), "answer");
}

void test_qt_message_box::messagesAreShownAsTheyAre() {
    MessageRequest request;
    request.text = "Could not open /a & b/<b>x</b>.js: Is a directory";
    request.title = "URL Failed";
    request.icon = MessageRequest::Icon::Exclamation;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(box.text(), QString::fromStdString(request.text));
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.windowTitle(), QString("URL Failed"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::aMessageWithoutTitleHasTheProgramsName() {
    MessageRequest request;
    request.text = "Text";
    whenShown<QMessageBox>([](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QString("ZEVMenu Creator"));
        QCOMPARE(box.icon(), QMessageBox::NoIcon);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::longPathsWrapInsideTheScreen_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("many folders") << QString("/some/folder").repeated(40) + "/menu.js";
    QTest::newRow("one long name") << "/" + QString(255, 'x');
    QTest::newRow("a long name among short ones")
        << "/home/anna/" + QString(120, 'x') + "/sub folder/menu.js";
    QTest::newRow("backslashes") << "C:" + QString("\\folder").repeated(40);
}

void test_qt_message_box::longPathsWrapInsideTheScreen() {
    QFETCH(QString, path);
    MessageRequest request;
    request.text = ("Could not open " + path + ": No such file or directory").toStdString();
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(box.text(), QString::fromStdString(request.text));
        QLabel* label = shownLabel(box);
        QVERIFY(label != nullptr);
        // The same text, laid out in the label's width.
        QTextDocument wanted(label->text());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        wanted.setDefaultTextOption(option);
        wanted.setDefaultFont(label->font());
        wanted.setDocumentMargin(0);
        wanted.setTextWidth(label->width() - label->indent());
        QVERIFY2(wanted.idealWidth() <= label->width() - label->indent(), "cut off at the right");
        QVERIFY2(wanted.size().height() <= label->height(), "cut off at the bottom");
        // And painted so.
        QVERIFY(wanted.firstBlock().layout()->lineCount() > 1);
        const QImage picture = label->grab().toImage();
        const qreal scale = picture.devicePixelRatio();
        const int lineHeight = qRound(label->fontMetrics().lineSpacing() * scale);
        const QRect contents(0, 0, picture.width(), qRound(wanted.size().height() * scale));
        QVERIFY2(hasInk(picture, contents.adjusted(0, contents.height() - lineHeight, 0, 0)),
                 "the last line is not painted");
        QVERIFY2(!hasInk(picture, QRect(picture.width() - 1, 0, 1, picture.height())),
                 "painted up to the edge");
        QVERIFY(box.width() <= box.screen()->availableGeometry().width());
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::theTextIsCopiedAsItIs() {
    MessageRequest request;
    request.text = "Could not open /home/anna/" + std::string(200, 'x') + "/menu.js: No such file";
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QLabel* label = shownLabel(box);
        QVERIFY(label != nullptr);
        // A drag over all of it, then the copy key.
        QTest::mousePress(label, Qt::LeftButton, {}, QPoint(1, 1));
        const QPoint end(label->width() - 1, label->height() - 1);
        QMouseEvent move(QEvent::MouseMove, end, label->mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(label, &move);
        QTest::mouseRelease(label, Qt::LeftButton, {}, end);
        QCOMPARE(label->selectedText(), QString::fromStdString(request.text));
        QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString::fromStdString(request.text));
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::aShortTextStaysOnOneLine() {
    MessageRequest request;
    request.text = "Save changes to project?";
    request.buttons = Buttons::YesNoCancel;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        const QLabel* label = shownLabel(box);
        QVERIFY(label != nullptr);
        QVERIFY(label->height() < 2 * label->fontMetrics().lineSpacing());
        QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::aBoxBelongsToTheActiveWindow() {
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    MessageRequest request;
    request.text = "Text";
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(box.parentWidget(), &window);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::buttonsHaveNoPicturesInTheProgramsStyle() {
    MessageRequest request;
    request.text = "Save changes to project?";
    request.buttons = Buttons::YesNoCancel;
    const auto picturesIn = [&](QStyle* style) {
        QApplication::setStyle(style);
        qsizetype count = 0;
        whenShown<QMessageBox>([&](QMessageBox& box) {
            for (const QAbstractButton* button : box.buttons())
                count += button->icon().isNull() ? 0 : 1;
            box.reject();
        });
        QtMessageBox().show(request);
        return count;
    };
    QCOMPARE(picturesIn(new PicturedButtonStyle), 3);
    QCOMPARE(picturesIn(new PlainButtonStyle(new PicturedButtonStyle)), 0);
    QApplication::setStyle("Fusion");
}

void test_qt_message_box::aToolbarsMarkForWhatHasNoRoomIsThatOfTheDesktop() {
    QStyle* desktop = QStyleFactory::create("Fusion");
    const PlainButtonStyle style(desktop);
    for (const QStyle::StandardPixmap mark :
         {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton}) {
        const QImage expected = desktop->standardIcon(mark).pixmap(16).toImage();
        QVERIFY(!expected.isNull());
        QCOMPARE(style.standardIcon(mark, nullptr, nullptr).pixmap(16).toImage(), expected);
    }
}

void test_qt_message_box::theFrameOfAGroupLooksLikeTheStylesOwn_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isCheckable");
    QTest::addColumn<QColor>("background");
    for (const QColor& background : {QColor(239, 239, 239), QColor(40, 40, 44)})
        for (const bool isCheckable : {false, true})
            for (const char* title : {"Type", ""})
                QTest::addRow("\"%s\", %scheckable, on %s", title, isCheckable ? "" : "not ",
                              qPrintable(background.name()))
                    << QString(title) << isCheckable << background;
}

void test_qt_message_box::theFrameOfAGroupLooksLikeTheStylesOwn() {
    QFETCH(QString, title);
    QFETCH(bool, isCheckable);
    QFETCH(QColor, background);
    const auto picture = [&](QStyle* style) {
        QGroupBox group(title);
        style->setParent(&group);
        group.setStyle(style);
        group.setCheckable(isCheckable);
        group.setPalette(QPalette(background));
        group.resize(200, 150);
        return group.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage expected = picture(QStyleFactory::create("Fusion"));
    const QImage found = picture(new PlainButtonStyle(QStyleFactory::create("Fusion")));
    QCOMPARE(found.size(), expected.size());
    int framed = 0;
    int corners = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x) {
            const int here = expected.pixelColor(x, y).red();
            const int difference = std::abs(here - found.pixelColor(x, y).red());
            framed += here == background.red() ? 0 : 1;
            corners += difference > 1 ? 1 : 0;
            QVERIFY2(difference <= 20, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
        }
    QVERIFY(framed > 600);
    // The style's own are a little rounder.
    QVERIFY2(corners <= 32, qPrintable(QString::number(corners)));
}

void test_qt_message_box::aWindowIsNotLargerThanItsScreen() {
    QWidget window;
    const QSize screen = window.screen()->availableSize();
    window.resize(screen.width() + 100, screen.height() + 100);
    fitScreen(window);
    QVERIFY(window.width() < screen.width() && window.height() < screen.height());
    const QSize fitting = screen / 2;
    window.resize(fitting);
    fitScreen(window);
    QCOMPARE(window.size(), fitting);
}

void test_qt_message_box::aMessageWithoutDetailsHasOnlyItsButtons() {
    MessageRequest request;
    request.text = "Text";
    whenShown<QMessageBox>([](QMessageBox& box) {
        QCOMPARE(box.buttons().size(), 1);
        QCOMPARE(box.findChild<QTextEdit*>(), nullptr);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::detailsAreShownWhenAskedFor() {
    const MessageRequest request = requestWithDetails(3);
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(box.text(), QString::fromStdString(request.text));
        auto* details = box.findChild<QTextEdit*>();
        QVERIFY(details != nullptr && !details->isVisible());
        QCOMPARE(details->accessibleName(), QString("Details"));
        QAbstractButton* button = detailsButton(box);
        QVERIFY(button != nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(details->isVisible());
        QCOMPARE(details->toPlainText(), QString::fromStdString(request.details));
        QVERIFY(details->isReadOnly());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!details->isVisible());
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::detailsAreReadWithTheKeyboard() {
    const MessageRequest request = requestWithDetails(100);
    const auto pressTabUntilOn = [](const QWidget* target) {
        for (int presses = 0; QApplication::focusWidget() != target; ++presses) {
            QVERIFY2(presses < 5, "the Tab key does not come there");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    };
    bool isClosed = false;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QAbstractButton* button = detailsButton(box);
        pressTabUntilOn(button);
        QTest::keyClick(button, Qt::Key_Space);
        auto* details = box.findChild<QTextEdit*>();
        pressTabUntilOn(details);
        QTest::keyClick(details, Qt::Key_PageDown);
        QVERIFY(details->verticalScrollBar()->value() > 0);
        QTest::keyClick(details, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(details->textCursor().hasSelection());
        QTest::keyClick(details, Qt::Key_X);
        QTest::keyClick(details, Qt::Key_Delete);
        QCOMPARE(details->toPlainText(), QString::fromStdString(request.details));
        pressTabUntilOn(box.button(QMessageBox::Ok));
        pressTabUntilOn(details);
        QTest::keyClick(details, Qt::Key_Escape);
        isClosed = !box.isVisible();
    });
    QCOMPARE(QtMessageBox().show(request), Answer::Ok);
    QVERIFY(isClosed);
}

void test_qt_message_box::detailsOfManyLinesFitTheScreen() {
    const MessageRequest request = requestWithDetails(5000);
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QTest::mouseClick(detailsButton(box), Qt::LeftButton);
        auto* details = box.findChild<QTextEdit*>();
        QVERIFY(box.frameGeometry().height() <= box.screen()->availableGeometry().height());
        QVERIFY(box.frameGeometry().width() <= box.screen()->availableGeometry().width());
        const QFontMetrics metrics(details->font());
        QVERIFY(details->viewport()->height() >= 8 * metrics.lineSpacing());
        // No line of a usual length is broken. The layout follows from the event loop.
        const QTextBlock last = details->document()->lastBlock();
        QCOMPARE(last.blockNumber(), 4999);
        QTRY_COMPARE(last.layout()->lineCount(), 1);
        QTest::keyClick(details, Qt::Key_End, Qt::ControlModifier);
        QTRY_VERIFY(details->viewport()->rect().contains(details->cursorRect(QTextCursor(last))));
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_message_box::aBoxWithDetailsIsAnsweredAsOneWithout_data() {
    eachKeyIsAnAnswer_data();
}

void test_qt_message_box::aBoxWithDetailsIsAnsweredAsOneWithout() {
    QFETCH(int, buttons);
    QFETCH(int, key);
    MessageRequest request = requestWithDetails(3);
    request.buttons = Buttons(buttons);
    whenShown<QMessageBox>([key](QMessageBox& box) {
        QVERIFY(detailsButton(box) != nullptr);
        const bool isLetter = key == Qt::Key_Y || key == Qt::Key_N;
        QTest::keyClick(&box, Qt::Key(key), isLetter ? Qt::AltModifier : Qt::NoModifier);
    });
    QTEST(int(QtMessageBox().show(request)), "answer");
}

QTEST_MAIN(test_qt_message_box)
#include "test_qt_message_box.moc"
