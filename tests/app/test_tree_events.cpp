// SPDX-License-Identifier: MIT
// What the person does to the tree with mouse and keys: choosing items, and editing labels in
// place.

#include <QSignalSpy>

#include "dialogs/frm_menu_prop.h"
#include "tests/support/document_steps.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

class test_tree_events : public QObject {
    Q_OBJECT

  private slots:
    void theLabelsArePainted() {
        WindowDesk desk;
        const MenuNode* a = desk.add("");
        desk.add("b");
        const auto row = [&desk, a] {
            const int height = desk.tree().visualRect(desk.tree().model()->index(0, 0)).height();
            const QPoint place = desk.placeOf(a);
            const QRect all(0, place.y() - 6, desk.tree().viewport()->width(), height);
            return desk.tree().viewport()->grab(all).toImage();
        };
        const QImage empty = row();
        desk.document().setLabel(*a, "WWW");
        const QImage labelled = row();
        QCOMPARE(labelled.size(), empty.size());
        QVERIFY(labelled != empty);
    }

    // Choosing

    void clickingANodeStoresThePanelAndShowsTheNode() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.type("txtURL", "b.html");
        desk.click(a);
        QCOMPARE(b->item.URL, "b.html");
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.document().selectedNode(), a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QVERIFY(desk.action("mnuEditMoveDown").isEnabled());
    }

    void theArrowKeysChooseNodesLikeClicks() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.type("txtURL", "b.html");
        desk.tree().setFocus();
        QTest::keyClick(&desk.tree(), Qt::Key_Up);
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.document().selectedNode(), a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QCOMPARE(b->item.URL, "b.html");
    }

    void clickingNodesNeverMarksTheMenuAsChanged() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        desk.forgetChanges();
        for (const MenuNode* node : {b, a, b, b, a})
            desk.click(node);
        QVERIFY(!desk.document().bModified());
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        QCOMPARE(desk.shownTree(), "*out.gif\nb\n");
    }

    void clickingANodeKeepsTheChangesMark() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.add("b");
        desk.click(a);
        QVERIFY(desk.document().bModified());
    }

    void aLabelEditedInPlaceBecomesTheCaption() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.forgetChanges();
        desk.editLabel(a, "Home & <b>more</b>", Qt::Key_Return);
        QCOMPARE(desk.shownTree(), "*Home & <b>more</b>\n");
        QCOMPARE(desk.field("txtCaption").text(), "Home & <b>more</b>");
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
    }

    void aLabelEditedInPlaceIsCleanedLikeTheCaption() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.editLabel(a, "It's", Qt::Key_Return);
        QCOMPARE(desk.field("txtCaption").text(), "It\\'s");
        QCOMPARE(desk.shownTree(), "*It\\'s\n");
    }

    void aLabelOfARolloverItemBecomesItsOutImage() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        desk.editLabel(a, "other.gif", Qt::Key_Return);
        QCOMPARE(desk.shownTree(), "*other.gif\n");
        QCOMPARE(desk.shownPanel(), "rollover|a|||other.gif|");
    }

    void escapeLeavesTheLabelAsItWas() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.forgetChanges();
        desk.editLabel(a, "b", Qt::Key_Escape);
        QCOMPARE(desk.shownTree(), "*a\n");
        QVERIFY(!desk.document().bModified());
    }

    void aClickOnTheSelectedLabelEditsIt() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.click(a);
        desk.click(a);
        QTRY_VERIFY(desk.labelEditor() != nullptr);
    }

    void aCommandTakesTheLabelBeingEdited() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.startLabel(a, "Edited");
        QTest::keyClick(desk.labelEditor(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "Edited\n*Item 1\n");
        QCOMPARE(a->item.Caption, "Edited");
    }

    void aTabSwitchTakesTheLabelBeingEdited() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.startLabel(a, "Edited");
        desk.clickTab("JavaScript");
        QCOMPARE(a->item.Caption, "Edited");
        QVERIFY(desk.script().toPlainText().contains("Edited"));
    }

    void f2IsMenuPropertiesAndNotLabelEditing() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.click(a);
        bool isShown = false;
        whenShown<frmMenuProp>([&](frmMenuProp& form) {
            isShown = true;
            form.reject();
        });
        QTest::keyClick(&desk.tree(), Qt::Key_F2);
        QVERIFY(isShown);
        QVERIFY(desk.labelEditor() == nullptr);
    }
    void clickingAnotherNodeTakesTheLabelBeingEdited() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.startLabel(a, "It's");
        desk.click(b);
        QCoreApplication::processEvents();
        QVERIFY(desk.labelEditor() == nullptr);
        QCOMPARE(desk.shownTree(), "It\\'s\n*b\n");
        QCOMPARE(a->item.Caption, "It\\'s");
        QCOMPARE(b->item.Caption, "b");
        QCOMPARE(desk.shownPanel(), "normal|b||||");
    }

    void theTabKeyTakesTheLabelAndEditsTheNextOne() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.startLabel(a, "first");
        QTest::keyClick(desk.labelEditor(), Qt::Key_Tab);
        QTRY_VERIFY(desk.labelEditor() != nullptr && desk.labelEditor()->text() == "b");
        QCOMPARE(desk.document().CurNode(), b);
        WindowDesk::pressKeys(*desk.labelEditor(), "second");
        QTest::keyClick(desk.labelEditor(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(desk.shownTree(), "first\n*second\n");
        QCOMPARE(a->item.Caption, "first");
        QCOMPARE(desk.shownPanel(), "normal|second||||");
    }

    void aLabelThatIsOnlyLookedAtStays_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("unclean") << "It's";
        QTest::newRow("line breaks") << "a\r\nb";
        QTest::newRow("very long") << QString(200'000, 'x');
    }
    void aLabelThatIsOnlyLookedAtStays() {
        QFETCH(QString, caption);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.tree().setFocus();
        test::editItem(desk.document(), *a)->Caption = caption.toStdString();
        desk.forgetChanges();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            desk.doubleClick(a);
            QVERIFY(desk.labelEditor() != nullptr);
            QTest::keyClick(desk.labelEditor(), key);
            QCoreApplication::processEvents();
        }
        desk.doubleClick(a);
        desk.choose("mnuHelpContents");
        QVERIFY(desk.labelEditor() == nullptr);
        desk.clickTab("JavaScript");
        QCOMPARE(QString::fromStdString(a->item.Caption), caption);
        QVERIFY(!desk.document().bModified());
    }

    void aLongLabelIsEditedInFull() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const QString caption(50'000, 'x');
        test::editItem(desk.document(), *a)->Caption = caption.toStdString();
        desk.doubleClick(a);
        QTest::keyClick(desk.labelEditor(), Qt::Key_End);
        WindowDesk::pressKeys(*desk.labelEditor(), "y");
        QTest::keyClick(desk.labelEditor(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(desk.field("txtCaption").text(), caption + "y");
    }

    // The second click waits for a double click; by then the person has gone on.
    void aClickOnTheSelectedLabelEditsNothingOnceThePersonWentOn_data() {
        QTest::addColumn<QString>("next");
        QTest::newRow("into a field") << "txtURL";
        QTest::newRow("to another item by a command") << "mnuEditAddMenuItem";
        QTest::newRow("to another item by key") << "Up";
        QTest::newRow("to another tab") << "JavaScript";
    }
    void aClickOnTheSelectedLabelEditsNothingOnceThePersonWentOn() {
        QFETCH(QString, next);
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(b);
        desk.click(b);
        if (next == "txtURL")
            desk.type(next, "typed");
        else if (next == "Up")
            QTest::keyClick(&desk.tree(), Qt::Key_Up);
        else if (next == "JavaScript")
            desk.clickTab(next);
        else
            desk.choose(next);
        QTest::qWait(2 * QApplication::doubleClickInterval());
        QVERIFY(desk.labelEditor() == nullptr);
        if (next == "txtURL") {
            WindowDesk::pressKeys(*QApplication::focusWidget(), " on");
            QCOMPARE(desk.field(next).text(), "typed on");
        }
    }

    // Choosing by other means than a click

    void draggingTheMouseOverTheTreeChoosesWhereItEnds() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        const MenuNode* c = desk.add("c");
        desk.click(a);
        desk.type("txtURL", "it's");
        QWidget* viewport = desk.tree().viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, desk.placeOf(a));
        for (const MenuNode* node : {b, c, b})
            QTest::mouseMove(viewport, desk.placeOf(node));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, desk.placeOf(b));
        QCOMPARE(desk.document().CurNode(), b);
        QCOMPARE(desk.shownTree(), "a\n*b\nc\n");
        QCOMPARE(desk.shownPanel(), "normal|b||||");
        QCOMPARE(a->item.URL, "it\\'s");
        QCOMPARE(c->item.URL, "");
    }

    void everyButtonOfTheMouseChooses_data() {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }
    void everyButtonOfTheMouseChooses() {
        QFETCH(Qt::MouseButton, button);
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.add("b");
        QTest::mouseClick(desk.tree().viewport(), button, {}, desk.placeOf(a));
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.document().selectedNode(), a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void typedLettersSearchTheTree() {
        WindowDesk desk;
        desk.add("Home");
        const MenuNode* tea = desk.add("Tea");
        desk.add("Boats");
        desk.tree().setFocus();
        QTest::keyClicks(&desk.tree(), "te");
        QCOMPARE(desk.document().CurNode(), tea);
        QCOMPARE(desk.shownPanel(), "normal|Tea||||");
    }

    void theItemStaysCurrentWhenItsBranchIsCollapsed() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* child = desk.addChild("child");
        desk.document().setExpanded(*a, false);
        QCOMPARE(desk.document().CurNode(), child);
        QCOMPARE(desk.document().selectedNode(), child);
        QCOMPARE(desk.shownPanel(), "normal|child||||");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.shownTree(), "a\n  child\n  *Item 2\n");
        QVERIFY(a->isExpanded);
    }

    void foldingTheBranchOfTheSelectedItemChoosesTheFoldedOne() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* child = desk.addChild("child");
        const MenuNode* grandchild = desk.addChild("grandchild");
        desk.add("sibling");
        desk.click(grandchild);
        desk.type("txtURL", "it's.html");
        desk.forgetChanges();
        desk.clickBranchMark(a);
        QVERIFY(!a->isExpanded);
        QVERIFY(child->isExpanded);
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.document().selectedNode(), a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QCOMPARE(grandchild->item.URL, "it\\'s.html");
        QVERIFY(!desk.action("mnuEditMoveLeft").isEnabled());
        QCOMPARE(desk.shownTree(), "*a\n  child\n    grandchild\n    sibling\n");
        desk.clickBranchMark(a);
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.shownTree(), "*a\n  child\n    grandchild\n    sibling\n");
    }

    void foldingNeverMarksTheMenuAsChanged() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("child");
        for (const bool wasModified : {false, true}) {
            desk.click(a->children().front());
            desk.document().apply(SetModified{wasModified});
            desk.clickBranchMark(a);
            QCOMPARE(desk.document().CurNode(), a);
            QCOMPARE(desk.document().bModified(), wasModified);
            desk.clickBranchMark(a);
        }
    }

    void delAfterFoldingDeletesTheItemThatIsShown() {
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.addChild("child");
        desk.clickBranchMark(b);
        QTest::keyClick(&desk.tree(), Qt::Key_Delete);
        QCOMPARE(desk.shownTree(), "*a\n");
        QCOMPARE(desk.shownPanel(), "normal|a||||");
    }

    void foldingAnotherBranchKeepsTheSelectedItem() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("of a");
        desk.click(a);
        const MenuNode* b = desk.add("b");
        const MenuNode* child = desk.addChild("of b");
        QSignalSpy clicked(&desk.tree(), &MenuTreeView::nodeClicked);
        desk.clickBranchMark(a);
        QVERIFY(!a->isExpanded);
        QCOMPARE(desk.document().CurNode(), child);
        QCOMPARE(desk.shownPanel(), "normal|of b||||");
        desk.click(b);
        clicked.clear();
        desk.clickBranchMark(b);
        QVERIFY(!b->isExpanded);
        QCOMPARE(desk.document().CurNode(), b);
        QVERIFY(clicked.isEmpty());
    }

    void aLabelBeingEditedIsTakenWhenItsBranchIsFolded() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* child = desk.addChild("child");
        desk.startLabel(child, "It's");
        desk.clickBranchMark(a);
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.shownTree(), "*a\n  It\\'s\n");
        QCOMPARE(desk.shownPanel(), "normal|a||||");
    }

    void theArrowKeysChooseAfterEveryCommand_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuEditAddMenuItem", "mnuEditAddSubmenuItem", "mnuEditDelete", "mnuEditMoveLeft",
              "mnuEditMoveRight", "mnuEditMoveUp", "mnuEditMoveDown", "mnuFileOpen", "mnuFileNew"})
            QTest::newRow(entry) << entry;
    }
    void theArrowKeysChooseAfterEveryCommand() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("top");
        desk.addChild("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        desk.click(b);
        desk.forgetChanges();
        desk.disk.addFile("/site/menu.js",
                          "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('1', '', '');\r\n"
                          "zevmenu.AddItem('2', '', '');\r\n");
        if (entry == "mnuFileOpen")
            desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose(entry);
        if (entry == "mnuFileNew") {
            desk.choose("mnuEditAddMenuItem");
            desk.choose("mnuEditAddMenuItem");
        }
        const MenuNode* before = desk.document().CurNode();
        desk.tree().setFocus();
        const bool isFirst = desk.document().tree().firstNode() == before;
        QTest::keyClick(&desk.tree(), isFirst ? Qt::Key_Down : Qt::Key_Up);
        QVERIFY(desk.document().CurNode() != before);
        QCOMPARE(desk.document().selectedNode(), desk.document().CurNode());
        QVERIFY(desk.shownTree().contains("*" +
                                          QString::fromStdString(desk.document().CurNode()->text)));
        QCOMPARE(desk.field("txtCaption").text(),
                 QString::fromStdString(desk.document().CurNode()->item.Caption));
    }

    void aDoubleClickLeavesTheBranchAsItIs() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("child");
        QVERIFY(a->isExpanded);
        desk.doubleClick(a);
        QCOMPARE(desk.labelEditor()->accessibleName(), "Item label");
        QVERIFY(a->isExpanded);
    }

    void aThousandLevelsUnfoldByOneKey() {
        WindowDesk desk;
        const MenuNode* node = nullptr;
        for (int level = 0; level < 1000; ++level)
            node = test::appendNode(desk.document(), node, std::to_string(level), "x");
        desk.click(desk.document().tree().firstNode());
        QTest::keyClick(&desk.tree(), Qt::Key_Asterisk);
        QVERIFY(node->parent()->isExpanded);
        QTest::keyClick(&desk.tree(), Qt::Key_End);
        QCOMPARE(desk.document().CurNode(), node);
    }
};

QTEST_MAIN(test_tree_events)
#include "test_tree_events.moc"
