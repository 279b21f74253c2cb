// The real message boxes and common dialogs of Qt, answered with real keys.

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextLayout>
#include <algorithm>

#include "platform/qt/fit_screen.h"
#include "platform/qt/plain_button_style.h"
#include "platform/qt/qt_common_dialogs.h"
#include "platform/qt/qt_message_box.h"
#include "when_shown.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;
using Buttons = MessageRequest::Buttons;

void typeName(QFileDialog& dialog, const QString& name) {
    auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
    field->setFocus();
    field->selectAll();
    for (const QChar character : name) {
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, character, Qt::NoModifier);
    }
    QTest::keyClick(field, Qt::Key_Return);
}

/// Puts names in quotes into the box as choosing several files does, and opens them.
void openNames(QFileDialog& dialog, const QStringList& names) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText('"' + names.join("\" \"") + '"');
    QMetaObject::invokeMethod(&dialog, "accept");
}

void makeFile(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

/// The button that shows and hides the details; null when there is none.
QAbstractButton* detailsButton(const QMessageBox& box) {
    for (QAbstractButton* button : box.buttons()) {
        if (box.buttonRole(button) == QMessageBox::ActionRole)
            return button;
    }
    return nullptr;
}

MessageRequest requestWithDetails(int lines) {
    MessageRequest request;
    request.text = "Finished importing /old/menu.txt. 3 warnings encountered.";
    for (int line = 1; line <= lines; ++line)
        request.details += (line > 1 ? "\nline " : "line ") + std::to_string(line) +
                           ": <b>the item goes up past the top level & so on</b>";
    return request;
}

QString textOf(const QMessageBox& box) {
    return box.text().remove(QChar(0x200B));
}

FileDialogRequest saveRequest(const QString& folder, int filterIndex = 2) {
    FileDialogRequest request;
    request.title = "Save As";
    request.filter = "All Files (*.*)|*.*|JavaScript (*.js)|*.js";
    request.filterIndex = filterIndex;
    request.folder = folder.toStdString();
    request.asksBeforeReplacing = true;
    return request;
}

bool hasStyle(const QString& family, bool isItalic, bool isBold) {
    const QStringList styles = QFontDatabase::styles(family);
    return std::any_of(styles.begin(), styles.end(), [&](const QString& style) {
        const QFont font = QFontDatabase::font(family, style, 10);
        return font.italic() == isItalic && font.bold() == isBold;
    });
}

/// A family with a plain, an italic, a bold and a bold italic style.
std::string existingFamily() {
    for (const QString& family : QFontDatabase::families()) {
        if (hasStyle(family, false, false) && hasStyle(family, true, false) &&
            hasStyle(family, false, true) && hasStyle(family, true, true))
            return family.toStdString();
    }
    qFatal("no font family with all styles is installed");
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

class test_qt_services : public QObject {
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
    void aBoxBelongsToTheActiveWindow();
    void buttonsHaveNoPicturesInTheProgramsStyle();
    void aWindowIsNotLargerThanItsScreen();
    void aMessageWithoutDetailsHasOnlyItsButtons();
    void detailsAreShownWhenAskedFor();
    void detailsAreReadWithTheKeyboard();
    void detailsOfManyLinesFitTheScreen();
    void aBoxWithDetailsIsAnsweredAsOneWithout_data();
    void aBoxWithDetailsIsAnsweredAsOneWithout();
    void filtersAreTranslated_data();
    void filtersAreTranslated();
    void aFilterOfOneKindGivesTheExtension_data();
    void aFilterOfOneKindGivesTheExtension();
    void openGivesTheFullPath();
    void openShowsTheRequest();
    void openCancelledGivesNothing();
    void openStartsWhereTheLastFileWasChosen();
    void severalFilesAreGivenAsFolderAndNames_data();
    void severalFilesAreGivenAsFolderAndNames();
    void filesOfSeveralFoldersAreRefused();
    void severalFilesCancelledGivesNothing();
    void saveAddsTheExtensionOfTheFilter_data();
    void saveAddsTheExtensionOfTheFilter();
    void savePresetsNameAndFolder();
    void saveAsksAboutTheFileThatIsReallyReplaced();
    void saveReplacesWhenToldSo();
    void saveReplacesUnaskedWhenNotRequested();
    void saveCancelledGivesNothing();
    void theColorDialogStartsWithTheColorAndRoomToMixOthers();
    void aColorIsChosenByItsNumbers();
    void colorCancelledGivesNothing();
    void theFontDialogStartsWithTheFont_data();
    void theFontDialogStartsWithTheFont();
    void theFontDialogStartsWithTheSystemsFontWhenToldNone();
    void aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay_data();
    void aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay();
    void aFontThatIsMissingStartsWithOneThatExists();
    void aFontIsChosenWithItsStyle();
    void fontCancelledGivesNothing();
    void colorAndFontDialogsBelongToTheActiveWindow();
};

void test_qt_services::initTestCase() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void test_qt_services::eachKeyIsAnAnswer_data() {
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

void test_qt_services::eachKeyIsAnAnswer() {
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

void test_qt_services::closingTheBoxIsTheMildestAnswer_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("ok") << int(Buttons::Ok) << int(Answer::Ok);
    QTest::newRow("ok/cancel") << int(Buttons::OkCancel) << int(Answer::Cancel);
    QTest::newRow("yes/no") << int(Buttons::YesNo) << int(Answer::No);
    QTest::newRow("yes/no/cancel") << int(Buttons::YesNoCancel) << int(Answer::Cancel);
}

void test_qt_services::closingTheBoxIsTheMildestAnswer() {
    QFETCH(int, buttons);
    MessageRequest request;
    request.text = "Text";
    request.buttons = Buttons(buttons);
    whenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
    QtMessageBox messages;
    QTEST(int(messages.show(request)), "answer");
}

void test_qt_services::messagesAreShownAsTheyAre() {
    MessageRequest request;
    request.text = "Could not open /a & b/<b>x</b>.js: Is a directory";
    request.title = "URL Failed";
    request.icon = MessageRequest::Icon::Exclamation;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(textOf(box), QString::fromStdString(request.text));
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.windowTitle(), QString("URL Failed"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_services::aMessageWithoutTitleHasTheProgramsName() {
    MessageRequest request;
    request.text = "Text";
    whenShown<QMessageBox>([](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QString("ZEVMenu Creator"));
        QCOMPARE(box.icon(), QMessageBox::NoIcon);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_services::longPathsWrapInsideTheScreen_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("many folders") << QString("/some/folder").repeated(40) + "/menu.js";
    QTest::newRow("one long name") << "/" + QString(255, 'x');
}

void test_qt_services::longPathsWrapInsideTheScreen() {
    QFETCH(QString, path);
    MessageRequest request;
    request.text = ("Could not open " + path + ": No such file or directory").toStdString();
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(textOf(box), QString::fromStdString(request.text));
        const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
        QVERIFY(label != nullptr);
        const QRect needed = label->fontMetrics().boundingRect(
            QRect(0, 0, label->width(), 10000), Qt::TextWordWrap | Qt::AlignLeft, label->text());
        QVERIFY2(needed.width() <= label->width(), "cut off at the right");
        QVERIFY2(needed.height() <= label->height(), "cut off at the bottom");
        QVERIFY(box.width() <= box.screen()->availableGeometry().width());
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_services::aBoxBelongsToTheActiveWindow() {
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

void test_qt_services::buttonsHaveNoPicturesInTheProgramsStyle() {
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

void test_qt_services::aWindowIsNotLargerThanItsScreen() {
    QWidget window;
    const QSize screen = window.screen()->availableSize();
    window.resize(screen.width() + 100, screen.height() + 100);
    FitScreen(window);
    QVERIFY(window.width() < screen.width() && window.height() < screen.height());
    const QSize fitting = screen / 2;
    window.resize(fitting);
    FitScreen(window);
    QCOMPARE(window.size(), fitting);
}

void test_qt_services::aMessageWithoutDetailsHasOnlyItsButtons() {
    MessageRequest request;
    request.text = "Text";
    whenShown<QMessageBox>([](QMessageBox& box) {
        QCOMPARE(box.buttons().size(), 1);
        QCOMPARE(box.findChild<QTextEdit*>(), nullptr);
        box.close();
    });
    QtMessageBox().show(request);
}

void test_qt_services::detailsAreShownWhenAskedFor() {
    const MessageRequest request = requestWithDetails(3);
    whenShown<QMessageBox>([&](QMessageBox& box) {
        QCOMPARE(textOf(box), QString::fromStdString(request.text));
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

void test_qt_services::detailsAreReadWithTheKeyboard() {
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

void test_qt_services::detailsOfManyLinesFitTheScreen() {
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

void test_qt_services::aBoxWithDetailsIsAnsweredAsOneWithout_data() {
    eachKeyIsAnAnswer_data();
}

void test_qt_services::aBoxWithDetailsIsAnsweredAsOneWithout() {
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

void test_qt_services::filtersAreTranslated_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("definitions") << "All Files (*.*)|*.*|JavaScript (*.js)|*.js"
                                 << QStringList{"All Files (*)", "JavaScript (*.js)"};
    QTest::newRow("images") << "Image Files (*.gif;*.jpg)|*.gif;*.jpg"
                            << QStringList{"Image Files (*.gif *.jpg)"};
    QTest::newRow("no patterns in the description") << "Text|*.txt" << QStringList{"Text (*.txt)"};
    QTest::newRow("none") << "" << QStringList{};
}

void test_qt_services::filtersAreTranslated() {
    QFETCH(QString, filter);
    QTEST(NameFilters(filter.toStdString()), "expected");
}

void test_qt_services::aFilterOfOneKindGivesTheExtension_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("one kind") << "JavaScript (*.js)"
                              << "js";
    QTest::newRow("all files") << "All Files (*)"
                               << "";
    QTest::newRow("two kinds") << "Image Files (*.gif *.jpg)"
                               << "";
}

void test_qt_services::aFilterOfOneKindGivesTheExtension() {
    QFETCH(QString, filter);
    QTEST(DefaultSuffix(filter), "suffix");
}

void test_qt_services::openGivesTheFullPath() {
    QTemporaryDir folder;
    const QString name = QString::fromUtf8("men\xc3\xbc 1.js");
    makeFile(folder.filePath(name));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, name); });
    QCOMPARE(QString::fromStdString(dialogs.openFile(saveRequest(folder.path()))),
             folder.filePath(name));
}

void test_qt_services::openShowsTheRequest() {
    QTemporaryDir folder;
    FileDialogRequest request = saveRequest(folder.path());
    request.title = "Open";
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Open"));
        QCOMPARE(dialog.selectedNameFilter(), QString("JavaScript (*.js)"));
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    QtCommonDialogs().openFile(request);
}

void test_qt_services::openCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().openFile(saveRequest(folder.path())), std::string());
}

void test_qt_services::openStartsWhereTheLastFileWasChosen() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, "menu.js"); });
    dialogs.openFile(saveRequest(folder.path()));
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        dialog.reject();
    });
    dialogs.openFile(saveRequest(QString()));
}

void test_qt_services::severalFilesAreGivenAsFolderAndNames_data() {
    QTest::addColumn<QStringList>("names");
    QTest::newRow("one") << QStringList{"a.js"};
    QTest::newRow("not in the order of the alphabet") << QStringList{"c.js", "a.js", "b.js"};
    QTest::newRow("unusual characters")
        << QStringList{"a b.js", QString::fromUtf8("\xc3\xbc;|'.js"), "#%.js"};
}

void test_qt_services::severalFilesAreGivenAsFolderAndNames() {
    QFETCH(QStringList, names);
    QTemporaryDir folder;
    for (const QString& name : names)
        makeFile(folder.filePath(name));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Save As"));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        openNames(dialog, names);
    });
    const ChosenFiles files = dialogs.openFiles(saveRequest(folder.path()));
    QStringList given;
    for (const std::string& name : files.names)
        given.append(QString::fromStdString(name));
    QCOMPARE(given, names);
    QCOMPARE(QString::fromStdString(files.folder), folder.path());
    // The next dialog starts in that folder.
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        dialog.reject();
    });
    dialogs.openFile(saveRequest(QString()));
}

void test_qt_services::filesOfSeveralFoldersAreRefused() {
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("sub");
    makeFile(folder.filePath("a.js"));
    makeFile(folder.filePath("sub/b.js"));
    QString notice;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        whenShown<QMessageBox>([&](QMessageBox& box) {
            notice = textOf(box);
            whenShown<QFileDialog>([&](QFileDialog& again) { again.reject(); });
            QTest::keyClick(&box, Qt::Key_Return);
        });
        openNames(dialog, {folder.filePath("a.js"), folder.filePath("sub/b.js")});
    });
    QCOMPARE(QtCommonDialogs().openFiles(saveRequest(folder.path())), ChosenFiles());
    QCOMPARE(notice, QString("Please choose files of one folder only."));
}

void test_qt_services::severalFilesCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().openFiles(saveRequest(folder.path())), ChosenFiles());
}

void test_qt_services::saveAddsTheExtensionOfTheFilter_data() {
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("no extension") << 2 << "menu"
                                  << "menu.js";
    QTest::newRow("the extension") << 2 << "menu.js"
                                   << "menu.js";
    QTest::newRow("another extension") << 2 << "menu.txt"
                                       << "menu.txt";
    QTest::newRow("all files") << 1 << "menu"
                               << "menu";
}

void test_qt_services::saveAddsTheExtensionOfTheFilter() {
    QFETCH(int, filterIndex);
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QTemporaryDir folder;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, typed); });
    QCOMPARE(
        QString::fromStdString(QtCommonDialogs().saveFile(saveRequest(folder.path(), filterIndex))),
        folder.filePath(name));
}

void test_qt_services::savePresetsNameAndFolder() {
    QTemporaryDir folder;
    FileDialogRequest request = saveRequest("/");
    request.fileName = folder.filePath("menu.js").toStdString();
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        QCOMPARE(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), QString("menu.js"));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    QtCommonDialogs().saveFile(request);
}

void test_qt_services::saveAsksAboutTheFileThatIsReallyReplaced() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    bool isAsked = false;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        whenShown<QMessageBox>([&](QMessageBox& box) {
            isAsked = true;
            QCOMPARE(textOf(box), QString("menu.js already exists.\nDo you want to replace it?"));
            // After No the dialog is there again, for another name.
            whenShown<QFileDialog>([](QFileDialog& again) { typeName(again, "other"); });
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        typeName(dialog, "menu");
    });
    const std::string chosen = QtCommonDialogs().saveFile(saveRequest(folder.path()));
    QVERIFY(isAsked);
    QCOMPARE(QString::fromStdString(chosen), folder.filePath("other.js"));
}

void test_qt_services::saveReplacesWhenToldSo() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    whenShown<QFileDialog>([](QFileDialog& dialog) {
        whenShown<QMessageBox>(
            [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier); });
        typeName(dialog, "menu.js");
    });
    QCOMPARE(QString::fromStdString(QtCommonDialogs().saveFile(saveRequest(folder.path()))),
             folder.filePath("menu.js"));
}

void test_qt_services::saveReplacesUnaskedWhenNotRequested() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    FileDialogRequest request = saveRequest(folder.path());
    request.asksBeforeReplacing = false;
    whenShown<QFileDialog>([](QFileDialog& dialog) { typeName(dialog, "menu.js"); });
    QCOMPARE(QString::fromStdString(QtCommonDialogs().saveFile(request)),
             folder.filePath("menu.js"));
}

void test_qt_services::saveCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().saveFile(saveRequest(folder.path())), std::string());
}

void test_qt_services::theColorDialogStartsWithTheColorAndRoomToMixOthers() {
    whenShown<QColorDialog>([](QColorDialog& dialog) {
        QCOMPARE(dialog.currentColor(), QColor(0xFF, 0x80, 0x00));
        QVERIFY(!dialog.testOption(QColorDialog::ShowAlphaChannel));
        const auto numbers = dialog.findChildren<QSpinBox*>();
        QVERIFY(std::count_if(numbers.begin(), numbers.end(), [](const QSpinBox* number) {
                    return number->isVisible() && number->isEnabled();
                }) >= 3);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(QtCommonDialogs().chooseColor(0x0080FF), std::optional<std::int32_t>(0x0080FF));
}

void test_qt_services::aColorIsChosenByItsNumbers() {
    whenShown<QColorDialog>([](QColorDialog& dialog) {
        const auto texts = dialog.findChildren<QLineEdit*>();
        const auto text = std::find_if(texts.begin(), texts.end(), [](const QLineEdit* each) {
            return each->text().startsWith('#');
        });
        QVERIFY(text != texts.end());
        (*text)->selectAll();
        QTest::keyClicks(*text, "#abcdef");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(QtCommonDialogs().chooseColor(0), std::optional<std::int32_t>(0xEFCDAB));
}

void test_qt_services::colorCancelledGivesNothing() {
    whenShown<QColorDialog>([](QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().chooseColor(0x0080FF), std::optional<std::int32_t>());
}

void test_qt_services::theFontDialogStartsWithTheFont_data() {
    QTest::addColumn<bool>("isItalic");
    QTest::addColumn<bool>("isBold");
    QTest::newRow("plain") << false << false;
    QTest::newRow("italic") << true << false;
    QTest::newRow("bold") << false << true;
    QTest::newRow("bold italic") << true << true;
}

void test_qt_services::theFontDialogStartsWithTheFont() {
    QFETCH(bool, isItalic);
    QFETCH(bool, isBold);
    const FontChoice initial{existingFamily(), 14, isItalic, isBold};
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().family().toStdString(), initial.name);
        QCOMPARE(dialog.currentFont().pointSize(), 14);
        QCOMPARE(dialog.currentFont().italic(), isItalic);
        QCOMPARE(dialog.currentFont().bold(), isBold);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QVERIFY(QtCommonDialogs().chooseFont(initial) == initial);
}

void test_qt_services::theFontDialogStartsWithTheSystemsFontWhenToldNone() {
    const QFontInfo system{QFont()};
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().pointSize(), system.pointSize());
        QVERIFY(QFontDatabase::families().contains(dialog.currentFont().family()));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont({});
    QVERIFY(chosen.has_value());
    QVERIFY(!chosen->isItalic);
    QVERIFY(!chosen->isBold);
}

void test_qt_services::aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay_data() {
    QTest::addColumn<QString>("family");
    for (const QString& family : QFontDatabase::families()) {
        if (hasStyle(family, false, false))
            QTest::newRow(qPrintable(family)) << family;
    }
}

void test_qt_services::aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay() {
    QFETCH(QString, family);
    const FontChoice initial{family.toStdString(), 12, false, false};
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == initial);
}

void test_qt_services::aFontThatIsMissingStartsWithOneThatExists() {
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    const std::optional<FontChoice> chosen =
        QtCommonDialogs().chooseFont({"No Such Family", 9, false, false});
    QVERIFY(chosen.has_value());
    QVERIFY2(QFontDatabase::families().contains(QString::fromStdString(chosen->name)),
             chosen->name.c_str());
    QCOMPARE(chosen->points, 9.0F);
}

void test_qt_services::aFontIsChosenWithItsStyle() {
    FontChoice expected;
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        const auto lists = dialog.findChildren<QListView*>();
        const auto edits = dialog.findChildren<QLineEdit*>();
        QVERIFY(lists.size() == 3 && !edits.isEmpty());
        // Family, style and size, each by the keyboard.
        for (QListView* list : lists.first(2)) {
            list->setFocus();
            QTest::keyClick(list, Qt::Key_End);
        }
        lists[2]->setFocus();
        QTest::keyClick(lists[2], Qt::Key_Home);
        const QFont shown = dialog.currentFont();
        expected = {shown.family().toStdString(), static_cast<float>(shown.pointSizeF()),
                    shown.italic(), shown.bold()};
        QCOMPARE(expected.name, lists[0]->currentIndex().data().toString().toStdString());
        QCOMPARE(shown.pointSize(), lists[2]->currentIndex().data().toString().toInt());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const FontChoice initial{existingFamily(), 20, false, false};
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == expected);
    QVERIFY(*chosen != initial);
}

void test_qt_services::fontCancelledGivesNothing() {
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(!QtCommonDialogs().chooseFont({}).has_value());
}

void test_qt_services::colorAndFontDialogsBelongToTheActiveWindow() {
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whenShown<QColorDialog>([&](QColorDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &window);
        dialog.reject();
    });
    QtCommonDialogs().chooseColor(0);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &window);
        dialog.reject();
    });
    QtCommonDialogs().chooseFont({});
}

QTEST_MAIN(test_qt_services)
#include "test_qt_services.moc"
