// What the person does to the tree with mouse and keys: choosing items, and editing labels in
// place.

#include "dialogs/frm_menu_prop.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

class test_tree_events : public QObject {
    Q_OBJECT

  private slots:
    // Choosing

    void clickingANodeStoresThePanelAndShowsTheNode() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        MenuNode* b = desk.add("b");
        desk.type("txtURL", "b.html");
        desk.click(a);
        QCOMPARE(b->item.URL, "b.html");
        QCOMPARE(desk.document().CurNode, a);
        QCOMPARE(desk.document().selectedNode, a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QVERIFY(desk.action("mnuEditMoveDown").isEnabled());
    }

    void theArrowKeysChooseNodesLikeClicks() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        MenuNode* b = desk.add("b");
        desk.type("txtURL", "b.html");
        desk.tree().setFocus();
        QTest::keyClick(&desk.tree(), Qt::Key_Up);
        QCOMPARE(desk.document().CurNode, a);
        QCOMPARE(desk.document().selectedNode, a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
        QCOMPARE(b->item.URL, "b.html");
    }

    void clickingNodesNeverMarksTheMenuAsChanged() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        MenuNode* b = desk.add("b");
        desk.click(a);
        desk.forgetChanges();
        for (MenuNode* node : {b, a, b, b, a})
            desk.click(node);
        QVERIFY(!desk.document().bModified);
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        QCOMPARE(desk.shownTree(), "*out.gif\nb\n");
    }

    void clickingANodeKeepsTheChangesMark() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.add("b");
        desk.click(a);
        QVERIFY(desk.document().bModified);
    }

    void aLabelEditedInPlaceBecomesTheCaption() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.forgetChanges();
        desk.editLabel(a, "Home & <b>more</b>", Qt::Key_Return);
        QCOMPARE(desk.shownTree(), "*Home & <b>more</b>\n");
        QCOMPARE(desk.field("txtCaption").text(), "Home & <b>more</b>");
        QVERIFY(desk.document().bModified);
        QVERIFY(desk.action("mnuFileSave").isEnabled());
    }

    void aLabelEditedInPlaceIsCleanedLikeTheCaption() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.editLabel(a, "It's", Qt::Key_Return);
        QCOMPARE(desk.field("txtCaption").text(), "It\\'s");
        QCOMPARE(desk.shownTree(), "*It\\'s\n");
    }

    void aLabelOfARolloverItemBecomesItsOutImage() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        desk.editLabel(a, "other.gif", Qt::Key_Return);
        QCOMPARE(desk.shownTree(), "*other.gif\n");
        QCOMPARE(desk.shownPanel(), "rollover|a|||other.gif|");
    }

    void escapeLeavesTheLabelAsItWas() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.forgetChanges();
        desk.editLabel(a, "b", Qt::Key_Escape);
        QCOMPARE(desk.shownTree(), "*a\n");
        QVERIFY(!desk.document().bModified);
    }

    void aClickOnTheSelectedLabelEditsIt() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.click(a);
        desk.click(a);
        QTRY_VERIFY(desk.labelEditor() != nullptr);
    }

    void aCommandTakesTheLabelBeingEdited() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.doubleClick(a);
        desk.labelEditor()->selectAll();
        WindowDesk::pressKeys(*desk.labelEditor(), "Edited");
        QTest::keyClick(desk.labelEditor(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "Edited\n*Item 1\n");
        QCOMPARE(a->item.Caption, "Edited");
    }

    void aTabSwitchTakesTheLabelBeingEdited() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
        desk.doubleClick(a);
        desk.labelEditor()->selectAll();
        WindowDesk::pressKeys(*desk.labelEditor(), "Edited");
        desk.clickTab("JavaScript");
        QCOMPARE(a->item.Caption, "Edited");
        QVERIFY(desk.script().toPlainText().contains("Edited"));
    }

    void f2IsMenuPropertiesAndNotLabelEditing() {
        WindowDesk desk;
        MenuNode* a = desk.add("a");
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
};

QTEST_MAIN(test_tree_events)
#include "test_tree_events.moc"
