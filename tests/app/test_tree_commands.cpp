// SPDX-License-Identifier: MIT
// The tree editing commands as the person uses them: through menu entries, keys and the tree.

#include <QTest>

#include "tests/support/document_steps.h"
#include "window_desk.h"

using namespace zev;

namespace {

/// Keys in tree order, two spaces a level.
QString keys(const MenuTree& tree) {
    QString text;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        for (const MenuNode* up = node->parent(); up; up = up->parent())
            text += "  ";
        text += QString::fromStdString(node->key()) + "\n";
    }
    return text;
}

QString panelOf(const ItemProp& item) {
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    return QString("%1|%2|%3|%4|%5|%6")
        .arg(item.IsRollover ? "rollover" : "normal", text(item.Caption), text(item.URL),
             text(item.Target), text(item.ImageOut), text(item.ImageOver));
}

}  // namespace

class test_tree_commands : public QObject {
    Q_OBJECT

  private slots:
    void theFirstItemOfAnEmptyTree() {
        WindowDesk desk;
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.shownTree(), "*Item 0\n");
        const MenuNode* node = desk.document().CurNode();
        QCOMPARE(node, desk.document().selectedNode());
        QCOMPARE(node->key(), "Key 0");
        QCOMPARE(node->text, "Item 0");
        QCOMPARE(node->item.Caption, "Item 0");
        QCOMPARE(node->item.MenuProperty->Position, 2);
        QCOMPARE(desk.shownPanel(), "normal|Item 0||||");
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
        QCOMPARE(desk.document().ItemCounter(), 1);
    }

    void anEmptyTreeSaysHowToBegin() {
        WindowDesk desk;
        const auto hasHint = [&] {
            const QImage picture = desk.tree().viewport()->grab().toImage();
            const QRgb back = picture.pixel(0, picture.height() - 1);
            for (int y = picture.height() / 3; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixel(x, y) != back)
                        return true;
            }
            return false;
        };
        QVERIFY(hasHint());
        desk.choose("mnuEditAddMenuItem");
        QVERIFY(!hasHint());
        desk.choose("mnuEditDelete");
        QVERIFY(hasHint());
    }

    void addMenuItemGoesAfterAllSiblings() {
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        desk.click(b);
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.shownTree(), "a\nb\nc\n*Item 3\n");
    }

    void addMenuItemInASubmenuStaysInIt() {
        WindowDesk desk;
        desk.add("a");
        desk.addChild("a1");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.shownTree(), "a\n  a1\n  *Item 2\n");
        QCOMPARE(desk.document().CurNode()->item.MenuProperty->Position, 0);
    }

    void addMenuItemStoresThePanelIntoTheItemShownBefore() {
        WindowDesk desk;
        const MenuNode* first = desk.add("First");
        desk.type("txtURL", "first.html");
        desk.type("txtTarget", "main");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(panelOf(first->item), "normal|First|first.html|main||");
        QCOMPARE(desk.shownPanel(), "normal|Item 1||||");
    }

    void addMenuItemAfterARolloverItemShowsATextItem() {
        WindowDesk desk;
        const MenuNode* first = desk.add("First");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(panelOf(first->item), "rollover|First|||out.gif|");
        QCOMPARE(desk.shownPanel(), "normal|Item 1||||");
        QVERIFY(desk.field("txtCaption").isEnabled());
        QVERIFY(!desk.field("txtImgOut").isEnabled());
        QCOMPARE(desk.shownTree(), "out.gif\n*Item 1\n");
    }

    void addSubmenuItemLeavesThePanelOnTheParent() {
        WindowDesk desk;
        const MenuNode* parent = desk.add("Parent");
        desk.type("txtURL", "typed.html");
        desk.choose("mnuEditAddSubmenuItem");
        QCOMPARE(desk.document().CurNode(), parent);
        QCOMPARE(desk.shownTree(), "*Parent\n  Item 1\n");
        QCOMPARE(desk.shownPanel(), "normal|Parent|typed.html|||");
        QVERIFY(desk.tree().isExpanded(desk.tree().model()->index(0, 0)));
        QVERIFY(desk.document().bModified());
    }

    void addSubmenuItemKeepsTheModeOfARolloverParent() {
        WindowDesk desk;
        desk.add("Parent");
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        desk.choose("mnuEditAddSubmenuItem");
        QCOMPARE(desk.shownPanel(), "rollover|Parent|||out.gif|");
        QVERIFY(desk.field("txtImgOut").isEnabled());
        QVERIFY(!desk.field("txtCaption").isEnabled());
        QCOMPARE(desk.shownTree(), "*out.gif\n  Item 1\n");
    }

    void addSubmenuItemWithoutASelectionIsCurrentButNotSelected() {
        WindowDesk desk;
        const MenuNode* first = desk.add("First");
        desk.type("txtURL", "first.html");
        desk.document().apply(SetSelection{{nullptr, desk.document().CurNode()}});
        desk.window.mnuEditAddSubmenuItem_Click();
        QCOMPARE(desk.shownTree(), "First\nItem 1\n");
        QCOMPARE(desk.document().selectedNode(), nullptr);
        QCOMPARE(desk.document().CurNode(), desk.document().tree().nextSibling(*first));
        QCOMPARE(desk.shownPanel(), "normal|Item 1||||");
        QCOMPARE(first->item.URL, "first.html");
    }

    void withoutASelectionNoLabelFollowsThePanel() {
        WindowDesk desk;
        desk.window.mnuEditAddSubmenuItem_Click();
        QCOMPARE(desk.document().selectedNode(), nullptr);
        desk.type("txtCaption", "Typed");
        QCOMPARE(desk.shownTree(), "Item 0\n");
        desk.clickTab("JavaScript");
        QCOMPARE(desk.document().CurNode()->item.Caption, "Typed");
        desk.clickTab("Menu");
        desk.click(desk.document().CurNode());
        QCOMPARE(desk.shownTree(), "*Typed\n");
    }

    void deleteWithoutASelectionDoesNothing() {
        WindowDesk desk;
        desk.window.mnuEditAddSubmenuItem_Click();
        desk.window.mnuEditDelete_Click();
        QCOMPARE(desk.shownTree(), "Item 0\n");
    }

    void deleteTakesTheWholeBranch() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("a1");
        desk.addChild("a11");
        desk.click(a);
        desk.choose("mnuEditAddMenuItem");
        desk.click(a);
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "*Item 3\n");
        QCOMPARE(desk.document().tree().size(), std::size_t(1));
    }

    void deleteSelectsNextElsePreviousElseParent() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("a1");
        desk.add("a2");
        const MenuNode* a2 = desk.document().CurNode();
        desk.add("a3");
        desk.click(a2);
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "a\n  a1\n  *a3\n");
        QCOMPARE(desk.shownPanel(), "normal|a3||||");
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "a\n  *a1\n");
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "*a\n");
        QCOMPARE(desk.document().CurNode(), a);
        QCOMPARE(desk.shownPanel(), "normal|a||||");
    }

    void deleteDoesNotCarryTheDeletedItemsTextIntoTheNextOne() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(a);
        desk.type("txtURL", "of-a.html");
        desk.choose("mnuEditDelete");
        QCOMPARE(panelOf(b->item), "normal|b||||");
        QCOMPARE(desk.shownPanel(), "normal|b||||");
    }

    void deletingTheLastItemEmptiesThePanel() {
        WindowDesk desk;
        desk.add("a");
        desk.type("txtURL", "a.html");
        desk.choose("mnuEditDelete");
        QCOMPARE(desk.shownTree(), "");
        QCOMPARE(desk.document().CurNode(), nullptr);
        QCOMPARE(desk.shownPanel(), "normal|||||");
        QVERIFY(!desk.field("txtCaption").isEnabled());
        for (const char* name : {"mnuEditMenuProperties", "mnuEditAddSubmenuItem", "mnuEditDelete",
                                 "mnuEditMoveUp", "mnuEditMoveDown"})
            QVERIFY2(!desk.action(name).isEnabled(), name);
        QVERIFY(desk.document().bModified());
    }

    void delDeletesTheSelectedItem() {
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.click(b);
        QTest::keyClick(&desk.tree(), Qt::Key_Delete);
        QCOMPARE(desk.shownTree(), "*a\n");
    }

    void movesThatCannotMoveChangeNothing_data() {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("entry");
        QTest::newRow("left at the top level") << "b"
                                               << "mnuEditMoveLeft";
        QTest::newRow("right of a first sibling") << "a"
                                                  << "mnuEditMoveRight";
        QTest::newRow("up of a first sibling") << "a"
                                               << "mnuEditMoveUp";
        QTest::newRow("down of a last sibling") << "b"
                                                << "mnuEditMoveDown";
        QTest::newRow("right of a first child") << "b1"
                                                << "mnuEditMoveRight";
        QTest::newRow("up of a first child") << "b1"
                                             << "mnuEditMoveUp";
    }
    void movesThatCannotMoveChangeNothing() {
        QFETCH(QString, node);
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("a");
        desk.add("b");
        desk.addChild("b1");
        for (const MenuNode* at = desk.document().tree().firstNode(); at;
             at = desk.document().tree().nextInTreeOrder(*at)) {
            if (at->text == node.toStdString()) {
                desk.click(at);
                break;
            }
        }
        desk.forgetChanges();
        const QString before = desk.shownTree();
        QVERIFY(!desk.action(entry).isEnabled());
        // Also when it is run all the same.
        call(desk.window, entry);
        QCOMPARE(desk.shownTree(), before);
        QCOMPARE(desk.document().ItemCounter(), 3);
        QVERIFY(!desk.document().bModified());
    }

    void movesWithoutACurrentItemDoNothing_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuEditMoveLeft", "mnuEditMoveRight", "mnuEditMoveUp", "mnuEditMoveDown"})
            QTest::newRow(entry) << entry;
    }
    void movesWithoutACurrentItemDoNothing() {
        QFETCH(QString, entry);
        WindowDesk desk;
        call(desk.window, entry);
        QCOMPARE(desk.shownTree(), "");
        QVERIFY(!desk.document().bModified());
        QCOMPARE(desk.document().ItemCounter(), 0);
    }

    void moveLeftKeepsTheBranch() {
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.addChild("b");
        desk.addChild("b1");
        desk.addChild("b11");
        desk.click(b);
        test::editItem(desk.document(), *b)->MenuProperty.edit().Position = 0;
        desk.choose("mnuEditMoveLeft");
        QCOMPARE(desk.shownTree(), "a\n*b\n  b1\n    b11\n");
        QCOMPARE(keys(desk.document().tree()), "Key 0\nKey 1\n  Key 2\n    Key 3\n");
        QCOMPARE(desk.document().CurNode()->text, "b");
        QCOMPARE(desk.document().ItemCounter(), 5);
        QCOMPARE(desk.document().CurNode()->item.MenuProperty->Position, 0);
        QVERIFY(desk.document().bModified());
    }

    void moveLeftGoesRightAfterTheParent() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("a1");
        desk.click(a);
        desk.add("z");
        desk.click(a->children().front());
        desk.choose("mnuEditMoveLeft");
        QCOMPARE(desk.shownTree(), "a\n*a1\nz\n");
    }

    void moveRightBecomesTheLastChildOfThePreviousSibling() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        desk.addChild("a1");
        desk.click(a);
        desk.add("b");
        desk.choose("mnuEditMoveRight");
        QCOMPARE(desk.shownTree(), "a\n  a1\n  *b\n");
        QCOMPARE(desk.document().ItemCounter(), 4);
    }

    void aMovedItemStaysInSight() {
        WindowDesk desk;
        desk.add("a");
        desk.add("b");
        desk.choose("mnuEditMoveRight");
        QVERIFY(desk.tree().isExpanded(desk.tree().model()->index(0, 0)));
    }

    void moveUpThenDownRestoresTheOrder() {
        WindowDesk desk;
        desk.add("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        desk.click(b);
        const QString before = desk.shownTree();
        QTest::keyClick(&desk.tree(), Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "*b\na\nc\n");
        QTest::keyClick(&desk.tree(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), before);
        QCOMPARE(desk.document().CurNode()->text, "b");
        QCOMPARE(desk.document().selectedNode(), desk.document().CurNode());
        QCOMPARE(desk.document().ItemCounter(), 3);
    }

    void movesKeepWhatWasTypedInThePanel_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuEditMoveLeft", "mnuEditMoveRight", "mnuEditMoveUp", "mnuEditMoveDown"})
            QTest::newRow(entry) << entry;
    }
    void movesKeepWhatWasTypedInThePanel() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("a");
        desk.addChild("a1");
        desk.add("a2");
        const MenuNode* a2 = desk.document().CurNode();
        desk.add("a3");
        desk.click(a2);
        desk.click(desk.button("optRollover"));
        desk.type("txtImgOut", "out.gif");
        desk.type("txtURL", "it's");
        desk.choose(entry);
        QCOMPARE(desk.shownPanel(), "rollover|a2|it\\'s||out.gif|");
        QVERIFY(desk.field("txtImgOut").isEnabled());
        QCOMPARE(desk.document().CurNode()->item.URL, "it\\'s");
        desk.clickTab("JavaScript");
        QCOMPARE(panelOf(desk.document().CurNode()->item), "rollover|a2|it\\'s||out.gif|");
        QCOMPARE(desk.document().CurNode()->text, "out.gif");
    }

    void everyChangeOfTheTreeCanBeSaved_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuEditAddMenuItem", "mnuEditAddSubmenuItem", "mnuEditDelete", "mnuEditMoveLeft",
              "mnuEditMoveRight", "mnuEditMoveUp", "mnuEditMoveDown"})
            QTest::newRow(entry) << entry;
    }
    void everyChangeOfTheTreeCanBeSaved() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("top");
        desk.addChild("a");
        const MenuNode* b = desk.add("b");
        desk.add("c");
        desk.click(b);
        desk.forgetChanges();
        desk.choose(entry);
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
        QVERIFY(desk.action("tbToolBar_3").isEnabled());
    }

    void aUsedUpCounterIsSaidAndChangesNothing_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry :
             {"mnuEditAddMenuItem", "mnuEditAddSubmenuItem", "mnuEditMoveLeft", "mnuEditMoveRight"})
            QTest::newRow(entry) << entry;
    }
    void aUsedUpCounterIsSaidAndChangesNothing() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("a");
        desk.addChild("a1");
        desk.add("a2");
        desk.document().apply(SetItemCounter{kMaxItemCounter});
        desk.forgetChanges();
        const QString before = desk.shownTree();
        desk.messages.expect(
            "The menu has used all its 32767 item numbers. Save it and open it "
            "again to add more items.");
        desk.choose(entry);
        QCOMPARE(desk.shownTree(), before);
        QCOMPARE(desk.document().ItemCounter(), kMaxItemCounter);
        QVERIFY(!desk.document().bModified());
    }

    void openingAgainIsOfferedOnlyWhereItHelps_data() {
        QTest::addColumn<int>("items");
        QTest::addColumn<QString>("notice");
        QTest::newRow("room for one more")
            << kMaxItemCounter - 1
            << "The menu has used all its 32767 item numbers. Save it and open it again to add "
               "more items.";
        QTest::newRow("as many items as numbers")
            << int(kMaxItemCounter) << "The menu has used all its 32767 item numbers.";
    }
    void openingAgainIsOfferedOnlyWhereItHelps() {
        QFETCH(int, items);
        QFETCH(QString, notice);
        WindowDesk desk;
        MenuContent full;
        for (int i = 0; i < items; ++i)
            full.tree.append(nullptr, std::to_string(i), "x");
        full.ItemCounter = kMaxItemCounter;
        desk.document().open(std::move(full));
        desk.messages.expect(notice.toStdString());
        desk.choose("mnuEditAddSubmenuItem");
        QCOMPARE(desk.document().tree().size(), std::size_t(items));
    }

    void whatOpeningAgainOffersIsTrue() {
        WindowDesk desk;
        desk.add("a");
        desk.document().apply(SetItemCounter{kMaxItemCounter});
        desk.saveAs("/site/menu.js");
        desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose("mnuFileOpen");
        desk.choose("mnuEditAddMenuItem");
        QCOMPARE(desk.shownTree(), "a\n*Item 1\n");
    }

    void theShownScriptFollowsACommand() {
        WindowDesk desk;
        desk.add("First");
        desk.clickTab("JavaScript");
        QTest::keyClick(&desk.script(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "First\n*Item 1\n");
        QVERIFY(desk.script().toPlainText().contains("Item 1"));
    }

    void itemsAreAddedAtTheEndOfAWideMenu();

  private:
    static void call(frmMain& window, const QString& entry) {
        if (entry == "mnuEditMoveLeft")
            window.mnuEditMoveLeft_Click();
        else if (entry == "mnuEditMoveRight")
            window.mnuEditMoveRight_Click();
        else if (entry == "mnuEditMoveUp")
            window.mnuEditMoveUp_Click();
        else if (entry == "mnuEditMoveDown")
            window.mnuEditMoveDown_Click();
        else
            QFAIL("no such move");
    }
};

void test_tree_commands::itemsAreAddedAtTheEndOfAWideMenu() {
    WindowDesk desk;
    MenuContent wide;
    for (int i = 0; i < 20000; ++i)
        wide.tree.append(nullptr, "k" + std::to_string(i), "Item of a wide menu");
    desk.document().open(std::move(wide));
    desk.choose("mnuEditAddMenuItem");
    QCOMPARE(desk.document().tree().size(), std::size_t(20001));
    QCOMPARE(desk.document().CurNode(), desk.document().tree().topLevel().back());
    QVERIFY(desk.tree().viewport()->rect().contains(
        desk.tree().visualRect(desk.tree().currentIndex()).center()));
}

QTEST_MAIN(test_tree_commands)
#include "test_tree_commands.moc"
