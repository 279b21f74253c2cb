// SPDX-License-Identifier: MIT
// The panel that edits the current item, in the real window.

#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>

#include "tests/support/document_steps.h"
#include "theme_palettes.h"
#include "window_desk.h"

using namespace zev;

namespace {

const QStringList kFields = {"txtCaption", "txtURL", "txtTarget", "txtImgOut", "txtImgOver"};
const char* const kImageFilter = "All Files (*.*)|*.*|Image Files (*.gif;*.jpg)|*.gif;*.jpg";
const char* const kPageFilter =
    "All Files (*.*)|*.*|Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
    "Preprocessed HTML (*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|"
    "Image Files (*.gif;*.jpg)|*.gif;*.jpg";

/// The panel's controls that cannot be used, without their prefixes.
QString disabledControls(WindowDesk& desk) {
    QStringList names;
    for (const QString& name : kFields)
        if (!desk.field(name).isEnabled())
            names.append(name);
    for (const char* name :
         {"cmdCaptionImg", "cmdURL", "cmdImgOut", "cmdImgOver", "optNormal", "optRollover"})
        if (!desk.button(name).isEnabled())
            names.append(name);
    return names.join(' ');
}

/// The colour of a field's background as it is painted.
QColor paintedColour(QLineEdit& field) {
    const QImage image = field.grab().toImage();
    return image.pixelColor(image.width() - 8, image.height() / 2);
}

}  // namespace

class test_item_panel : public QObject {
    Q_OBJECT

  private slots:
    void theModesEnableTheirControls() {
        WindowDesk desk;
        // Cleared; the image-tag button keeps the state it had.
        QCOMPARE(disabledControls(desk),
                 "txtCaption txtURL txtTarget txtImgOut txtImgOver cmdURL cmdImgOut cmdImgOver "
                 "optNormal optRollover");
        desk.add("a");
        QCOMPARE(disabledControls(desk), "txtImgOut txtImgOver cmdImgOut cmdImgOver");
        desk.click(desk.button("optRollover"));
        QCOMPARE(disabledControls(desk), "txtCaption cmdCaptionImg");
        desk.click(desk.button("optNormal"));
        QCOMPARE(disabledControls(desk), "txtImgOut txtImgOver cmdImgOut cmdImgOver");
    }

    void clearingLeavesTheImageTagButtonAsItIs() {
        WindowDesk desk;
        desk.add("a");
        desk.click(desk.button("optRollover"));
        QVERIFY(!desk.button("cmdCaptionImg").isEnabled());
        desk.choose("mnuEditDelete");
        QVERIFY(!desk.button("cmdCaptionImg").isEnabled());
        desk.add("b");
        desk.choose("mnuEditDelete");
        QVERIFY(desk.button("cmdCaptionImg").isEnabled());
    }

    void clearingEmptiesAllFields() {
        WindowDesk desk;
        desk.add("a");
        desk.type("txtURL", "u");
        desk.type("txtTarget", "t");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "o");
        desk.type("txtImgOver", "i");
        desk.choose("mnuEditDelete");
        for (const QString& name : kFields)
            QCOMPARE(desk.field(name).text(), "");
    }

    void disabledFieldsHaveTheColourOfButtons_data() {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void disabledFieldsHaveTheColourOfButtons() {
        QFETCH(bool, isDark);
        const QPalette before = QApplication::palette();
        WindowDesk desk;
        desk.add("a");
        // The theme changes while the program runs.
        QApplication::setPalette(isDark ? darkPalette() : lightPalette());
        QCoreApplication::processEvents();
        const QPalette now = QApplication::palette();
        QCOMPARE(paintedColour(desk.field("txtImgOut")), now.color(QPalette::Button));
        QCOMPARE(paintedColour(desk.field("txtImgOver")), now.color(QPalette::Button));
        QCOMPARE(paintedColour(desk.field("txtURL")), now.color(QPalette::Base));
        desk.click(desk.button("optRollover"));
        QCOMPARE(paintedColour(desk.field("txtCaption")), now.color(QPalette::Button));
        QCOMPARE(paintedColour(desk.field("txtImgOut")), now.color(QPalette::Base));
        QApplication::setPalette(before);
    }

    void disabledFieldsHaveTheColourOfButtonsFromTheStart() {
        WindowDesk desk;
        const QPalette palette = QApplication::palette();
        QVERIFY(palette.color(QPalette::Button) != palette.color(QPalette::Base));
        for (const QString& name : kFields)
            QCOMPARE(paintedColour(desk.field(name)), palette.color(QPalette::Button));
    }

    void theLabelFollowsTheCaptionAtOnce() {
        WindowDesk desk;
        desk.choose("mnuEditAddMenuItem");
        desk.type("txtCaption", "Ho");
        QCOMPARE(desk.shownTree(), "*Ho\n");
        QCOMPARE(desk.document().CurNode()->item.Caption, "Item 0");
        QTest::keyClicks(&desk.field("txtCaption"), "me");
        QCOMPARE(desk.shownTree(), "*Home\n");
    }

    void theLabelOfARolloverItemFollowsItsOutImage() {
        WindowDesk desk;
        desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        QCOMPARE(desk.shownTree(), "*out.gif\n");
        desk.type("txtImgOver", "over.gif");
        QCOMPARE(desk.shownTree(), "*out.gif\n");
    }

    void switchingToRolloverWithoutAnImageEmptiesTheLabel() {
        WindowDesk desk;
        desk.add("Home");
        desk.forgetChanges();
        desk.click(desk.button("optRollover"));
        QCOMPARE(desk.shownTree(), "*\n");
        QVERIFY(!desk.document().bModified());
        desk.click(desk.button("optNormal"));
        QCOMPARE(desk.shownTree(), "*Home\n");
        QVERIFY(!desk.document().bModified());
    }

    void theTypeReachesTheItemOnlyWhenThePanelIsStored() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.click(desk.button("optRollover"));
        QVERIFY(!a->item.IsRollover);
        desk.click(a);
        QVERIFY(a->item.IsRollover);
    }

    void theTypeCanBeChangedWithTheArrowKeys() {
        WindowDesk desk;
        desk.add("a");
        QAbstractButton& normal = desk.button("optNormal");
        normal.setFocus();
        QTest::keyClick(&normal, Qt::Key_Up);
        QVERIFY(desk.button("optRollover").isChecked());
        QCOMPARE(disabledControls(desk), "txtCaption cmdCaptionImg");
        QCOMPARE(desk.shownTree(), "*\n");
    }

    void theTabKeyEntersTheTypeAtTheOptionThatIsSet_data() {
        QTest::addColumn<bool>("isRollover");
        QTest::newRow("text") << false;
        QTest::newRow("rollover") << true;
    }
    void theTabKeyEntersTheTypeAtTheOptionThatIsSet() {
        QFETCH(bool, isRollover);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        test::editItem(desk.document(), *b)->IsRollover = isRollover;
        // The option of the other item has the focus last.
        desk.click(desk.button(isRollover ? "optNormal" : "optRollover"));
        desk.click(b);
        const QString set = isRollover ? "optRollover" : "optNormal";
        const QString other = isRollover ? "optNormal" : "optRollover";
        // Round the window with the Tab key.
        QStringList reached;
        desk.tree().setFocus();
        do {
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
            reached.append(desk.window.focusWidget()->objectName());
        } while (!desk.tree().hasFocus() && reached.size() < 50);
        QCOMPARE(reached.count(set), 1);
        QCOMPARE(reached.count(other), 0);
        desk.field("txtURL").setFocus();
        for (int i = 0; i < 5 && !desk.window.focusWidget()->objectName().startsWith("opt"); ++i)
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.window.focusWidget()->objectName(), set);
        QCOMPARE(a->item.IsRollover, !isRollover);
        QCOMPARE(b->item.IsRollover, isRollover);
    }

    void theFirstTabIntoTheTypeGoesToTheOptionThatIsSet() {
        WindowDesk desk;
        desk.add("a");
        desk.tree().setFocus();
        QStringList reached;
        do {
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
            reached.append(desk.window.focusWidget()->objectName());
        } while (!desk.tree().hasFocus() && reached.size() < 50);
        QVERIFY2(reached.contains("optNormal"), qPrintable(reached.join(' ')));
        QVERIFY2(!reached.contains("optRollover"), qPrintable(reached.join(' ')));
    }

    void everyFieldMarksTheMenuAsChanged_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isRollover");
        QTest::newRow("txtCaption") << "txtCaption" << false;
        QTest::newRow("txtURL") << "txtURL" << false;
        QTest::newRow("txtTarget") << "txtTarget" << true;
        QTest::newRow("txtImgOut") << "txtImgOut" << true;
        QTest::newRow("txtImgOver") << "txtImgOver" << true;
    }
    void everyFieldMarksTheMenuAsChanged() {
        QFETCH(QString, name);
        QFETCH(bool, isRollover);
        WindowDesk desk;
        desk.add("a");
        if (isRollover)
            desk.click(desk.button("optRollover"));
        desk.forgetChanges();
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        desk.type(name, "x");
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
        QVERIFY(desk.action("tbToolBar_3").isEnabled());
    }

    void leavingAFieldCleansItsText_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("cleaned");
        QTest::newRow("caption, apostrophe") << "txtCaption"
                                             << "It's"
                                             << "It\\'s";
        QTest::newRow("caption, escaped") << "txtCaption"
                                          << "It\\'s"
                                          << "It\\'s";
        QTest::newRow("caption, quotes stay") << "txtCaption"
                                              << "<a b=\"c\">"
                                              << "<a b=\"c\">";
        QTest::newRow("target, both quotes") << "txtTarget"
                                             << "'a\"b'"
                                             << "ab";
        QTest::newRow("URL, both") << "txtURL"
                                   << "javascript:f('a',\"b\")"
                                   << "javascript:f(\\'a\\',b)";
        QTest::newRow("beyond ASCII") << "txtCaption" << QString::fromUtf8("l'\u00e9t\u00e9")
                                      << QString::fromUtf8("l\\'\u00e9t\u00e9");
    }
    void leavingAFieldCleansItsText() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, cleaned);
        WindowDesk desk;
        desk.add("a");
        desk.type(name, typed);
        QCOMPARE(desk.field(name).text(), typed);
        QTest::keyClick(&desk.field(name), Qt::Key_Tab);
        QCOMPARE(desk.field(name).text(), cleaned);
        QVERIFY(!desk.field(name).hasFocus());
    }

    void imagesAreNotCleaned_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("txtImgOut") << "txtImgOut";
        QTest::newRow("txtImgOver") << "txtImgOver";
    }
    void imagesAreNotCleaned() {
        QFETCH(QString, name);
        WindowDesk desk;
        desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type(name, "a\"b'c.gif");
        QTest::keyClick(&desk.field(name), Qt::Key_Tab);
        QCOMPARE(desk.field(name).text(), "a\"b'c.gif");
    }

    void cleaningKeepsTheCaretBetweenTheSameCharacters() {
        WindowDesk desk;
        desk.add("a'b'c");
        QLineEdit& caption = desk.field("txtCaption");
        caption.setCursorPosition(3);
        QTest::keyClick(&caption, Qt::Key_Tab);
        QCOMPARE(caption.text(), "a\\'b\\'c");
        QCOMPARE(caption.cursorPosition(), 4);
    }

    void openingAMenuDoesNotLeaveTheField() {
        WindowDesk desk;
        desk.add("It's");
        QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(&desk.field("txtCaption"), &popup);
        QFocusEvent otherWindow(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(&desk.field("txtCaption"), &otherWindow);
        QCOMPARE(desk.field("txtCaption").text(), "It's");
    }

    void theImageTagGoesToTheCaret() {
        WindowDesk desk;
        desk.add("Home");
        desk.field("txtCaption").setCursorPosition(2);
        desk.click(desk.button("cmdCaptionImg"));
        QCOMPARE(desk.field("txtCaption").text(),
                 "Ho<img src=\"\" width=\"\" height=\"\" border=\"0\">me");
        QVERIFY(desk.document().bModified());
        QCOMPARE(desk.shownTree(), "*Ho<img src=\"\" width=\"\" height=\"\" border=\"0\">me\n");
    }

    void theImageTagReplacesTheSelection_data() {
        QTest::addColumn<bool>("byKeyboard");
        QTest::newRow("by mouse") << false;
        QTest::newRow("by keyboard") << true;
    }
    void theImageTagReplacesTheSelection() {
        QFETCH(bool, byKeyboard);
        WindowDesk desk;
        desk.add(QString::fromUtf8("\u017b\u00f3\u0142w Home"));
        desk.field("txtCaption").setSelection(1, 4);
        if (byKeyboard) {
            QTest::keyClick(&desk.field("txtCaption"), Qt::Key_Tab);
            QVERIFY(desk.button("cmdCaptionImg").hasFocus());
            QTest::keyClick(&desk.button("cmdCaptionImg"), Qt::Key_Space);
        } else {
            desk.click(desk.button("cmdCaptionImg"));
        }
        QCOMPARE(desk.field("txtCaption").text(),
                 QString::fromUtf8("\u017b<img src=\"\" width=\"\" height=\"\" border=\"0\">Home"));
    }

    void theImageTagsTooltipIsShownAsText() {
        WindowDesk desk;
        desk.add("a");
        QAbstractButton& button = desk.button("cmdCaptionImg");
        QCOMPARE(button.toolTip(), "Add <img> tag to menu description");
        QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), button.mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(&button, &event);
        QCOMPARE(QToolTip::text(), "Add &lt;img&gt; tag to menu description");
        QToolTip::hideText();
    }

    void browseTakesThePathRelativeToTheDocumentsFolder_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("shown");
        QTest::newRow("link") << "cmdURL"
                              << "txtURL" << kPageFilter << "/site/pages/a.html"
                              << "pages/a.html";
        QTest::newRow("link, apostrophe") << "cmdURL"
                                          << "txtURL" << kPageFilter << "/site/it's.html"
                                          << "it\\'s.html";
        QTest::newRow("out image") << "cmdImgOut"
                                   << "txtImgOut" << kImageFilter << "/site/images/a.gif"
                                   << "images/a.gif";
        QTest::newRow("over image") << "cmdImgOver"
                                    << "txtImgOver" << kImageFilter << "/other/a.gif"
                                    << "../other/a.gif";
    }
    void browseTakesThePathRelativeToTheDocumentsFolder() {
        QFETCH(QString, button);
        QFETCH(QString, field);
        QFETCH(QString, filter);
        QFETCH(QString, chosen);
        QFETCH(QString, shown);
        WindowDesk desk;
        desk.document().setFile(desk.document().SaveFile(), "/site");
        desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.forgetChanges();
        desk.dialogs.expectOpenFile(chosen.toStdString());
        desk.click(desk.button(button));
        QCOMPARE(desk.field(field).text(), shown);
        QVERIFY(desk.document().bModified());
        const FileDialogRequest& request = desk.dialogs.recorded().back().request;
        QCOMPARE(request.title, "Browse");
        QCOMPARE(request.fileName, "");
        QCOMPARE(request.filterIndex, 1);
        QCOMPARE(QString::fromStdString(request.filter), filter);
    }

    void aCancelledBrowseLeavesTheFieldAsItIs_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("field");
        QTest::newRow("link") << "cmdURL"
                              << "txtURL";
        QTest::newRow("out image") << "cmdImgOut"
                                   << "txtImgOut";
        QTest::newRow("over image") << "cmdImgOver"
                                    << "txtImgOver";
    }
    void aCancelledBrowseLeavesTheFieldAsItIs() {
        QFETCH(QString, button);
        QFETCH(QString, field);
        WindowDesk desk;
        desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type(field, "it's");
        desk.forgetChanges();
        desk.dialogs.expectOpenFile("");
        desk.click(desk.button(button));
        QCOMPARE(desk.field(field).text(), "it's");
        QVERIFY(!desk.document().bModified());
    }

    void storedAndShownItemsAreTheSame_data() {
        QTest::addColumn<bool>("isRollover");
        QTest::newRow("text") << false;
        QTest::newRow("rollover") << true;
    }
    void storedAndShownItemsAreTheSame() {
        QFETCH(bool, isRollover);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        desk.document().setItem(
            *b, {"out.gif", "over.gif", "main", "page.html", isRollover, MenuProp(), "<i>B</i>"});
        const ItemProp before = b->item;
        desk.click(b);
        QCOMPARE(desk.shownPanel(), QString(isRollover ? "rollover" : "normal") +
                                        "|<i>B</i>|page.html|main|out.gif|over.gif");
        desk.click(a);
        QVERIFY(b->item == before);
    }

    void lookingAtAnItemChangesNothingInIt_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("line breaks") << "a\r\nb\nc";
        QTest::newRow("very long") << QString(200'000, 'x');
    }
    void lookingAtAnItemChangesNothingInIt() {
        QFETCH(QString, caption);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        test::editItem(desk.document(), *b)->Caption = caption.toStdString();
        desk.click(b);
        desk.click(a);
        QCOMPARE(QString::fromStdString(b->item.Caption), caption);
    }

    void pastedLineBreaksBecomeSpaces_data() {
        QTest::addColumn<QString>("name");
        for (const QString& name : kFields)
            QTest::addRow("%s", qPrintable(name)) << name;
    }
    void pastedLineBreaksBecomeSpaces() {
        QFETCH(QString, name);
        WindowDesk desk;
        desk.add("a");
        if (name.startsWith("txtImg"))
            desk.click(desk.button("optRollover"));
        desk.type(name, "<>");
        desk.field(name).setCursorPosition(1);
        QGuiApplication::clipboard()->setText("one\r\ntwo\nthree\rfour");
        QTest::keyClick(&desk.field(name), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.field(name).text(), "<one two three four>");
        QCOMPARE(desk.field(name).cursorPosition(), 19);
    }

    void pastedCharactersThatBreakAScriptBecomeSpaces_data() {
        QTest::addColumn<QChar>("character");
        QTest::newRow("NUL") << QChar(u'\0');
        QTest::newRow("line separator") << QChar(QChar::LineSeparator);
        QTest::newRow("paragraph separator") << QChar(QChar::ParagraphSeparator);
    }
    void pastedCharactersThatBreakAScriptBecomeSpaces() {
        QFETCH(QChar, character);
        WindowDesk desk;
        desk.add("");
        QGuiApplication::clipboard()->setText(QString("a") + character + "b");
        QTest::keyClick(&desk.field("txtCaption"), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.field("txtCaption").text(), "a b");
    }

    void pastedLineBreaksDoNotReachALabelBeingEdited() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.doubleClick(a);
        QVERIFY(desk.labelEditor() != nullptr);
        desk.labelEditor()->selectAll();
        QGuiApplication::clipboard()->setText("one\ntwo");
        QTest::keyClick(desk.labelEditor(), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(desk.labelEditor(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(desk.field("txtCaption").text(), "one two");
    }
};

QTEST_MAIN(test_item_panel)
#include "test_item_panel.moc"
