// SPDX-License-Identifier: MIT
#include "model/tree_editing.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::editItem;
using test::editMenu;
using test::ExpectSoundTree;
using test::Grow;
using test::kDefaults;
using test::kTopMenu;
using test::TreeText;
using test::TreeTextWithKeys;

using Command = EditResult (*)(MenuDocument&);

class TreeEditing : public testing::Test {
  protected:
    /// A, B and C; B has the children B1 and B2; B1 has B11. Nothing is selected.
    void growSample() {
        Grow(document, {{0, "A"}, {0, "B"}, {1, "B1"}, {2, "B11"}, {1, "B2"}, {0, "C"}});
    }
    const MenuNode* node(const std::string& key) { return document.tree().find(key); }
    void select(const std::string& key) {
        document.select(node(key));
        ASSERT_NE(document.CurNode(), nullptr) << key;
    }
    void expectSelected(const MenuNode* expected) {
        EXPECT_EQ(document.selectedNode(), expected);
        EXPECT_EQ(document.CurNode(), expected);
    }
    /// Runs a command that must change nothing at all.
    void expectRefused(Command command, EditResult result) {
        const std::string before = TreeTextWithKeys(document.tree());
        const auto counter = document.ItemCounter();
        const MenuNode* const current = document.CurNode();
        const MenuNode* const selected = document.selectedNode();
        document.markSaved();
        EXPECT_EQ(command(document), result);
        EXPECT_EQ(TreeTextWithKeys(document.tree()), before);
        EXPECT_EQ(document.ItemCounter(), counter);
        EXPECT_EQ(document.CurNode(), current);
        EXPECT_EQ(document.selectedNode(), selected);
        EXPECT_FALSE(document.bModified());
        for (const MenuNode* n = document.tree().firstNode(); n;
             n = document.tree().nextInTreeOrder(*n))
            EXPECT_FALSE(n->isExpanded) << n->text;
    }

    MenuDocument document{"/program"};
};

using AddMenuItemTest = TreeEditing;
using AddSubmenuItemTest = TreeEditing;
using DeleteItemTest = TreeEditing;
using MoveTest = TreeEditing;

TEST_F(AddMenuItemTest, TheFirstItemOfANewDocument) {
    EXPECT_EQ(addMenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(document.tree()), "Item 0 [Key 0]\n");
    const MenuNode& added = *document.tree().firstNode();
    expectSelected(&added);
    EXPECT_TRUE(document.bModified());
    EXPECT_EQ(document.ItemCounter(), 1);

    ItemProp expected;
    expected.Caption = "Item 0";
    expected.MenuProperty = newItemMenuProp();
    expected.MenuProperty.edit().Position = 2;
    EXPECT_EQ(added.item, expected);
}

TEST_F(AddMenuItemTest, GoesAfterTheLastSiblingOfTheSelectedNode) {
    Grow(document, {{0, "A"}, {0, "B"}, {0, "C"}});
    select("B");
    EXPECT_EQ(addMenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\nC\nItem 0\n");
    expectSelected(node("Key 0"));
}

TEST_F(AddMenuItemTest, InASubmenuGoesToItsEndAndIsMadeVisible) {
    growSample();
    select("B1");
    EXPECT_EQ(addMenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\n  Item 0\nC\n");
    EXPECT_TRUE(document.tree().isVisible(*node("Key 0")));
    EXPECT_FALSE(node("B1")->isExpanded);
    EXPECT_EQ(node("Key 0")->item.MenuProperty->Position, 0);
    expectSelected(node("Key 0"));
}

TEST_F(AddMenuItemTest, WithoutASelectionGoesToTheEndOfTheTopLevelAndIsSelected) {
    growSample();
    document.apply(SetSelection{{nullptr, node("B11")}});
    EXPECT_EQ(addMenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\nC\nItem 0\n");
    expectSelected(node("Key 0"));
}

TEST_F(AddMenuItemTest, NumbersRunOnAndAreNotUsedAgainAfterADeletion) {
    addMenuItem(document);
    addMenuItem(document);
    deleteItem(document);
    addMenuItem(document);
    EXPECT_EQ(TreeTextWithKeys(document.tree()), "Item 0 [Key 0]\nItem 2 [Key 2]\n");
}

TEST_F(AddMenuItemTest, ATopLevelItemOpensItsSubmenuBelowWhenTheTopLevelIsHorizontal) {
    struct {
        const char* rootColumns;
        const char* defaultColumns;
        std::int16_t position;
    } const kCases[] = {
        {"10", "1", 2}, {"2", "5", 2}, {"10", "", 2}, {"1", "1", 0}, {"1", "5", 0},
        {"1", "", 0},   {"", "1", 0},  {"", "5", 2},  {"", "", 2},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(std::string("root columns '") + c.rootColumns + "', default columns '" +
                     c.defaultColumns + "'");
        document.NewDocument();
        editMenu(document, kTopMenu)->Columns = c.rootColumns;
        editMenu(document, kDefaults)->Columns = c.defaultColumns;
        addMenuItem(document);
        EXPECT_EQ(document.CurNode()->item.MenuProperty->Position, c.position);
        document.apply(SetSelection{{nullptr, document.CurNode()}});
        addSubmenuItem(document);
        EXPECT_EQ(document.CurNode()->item.MenuProperty->Position, c.position);
    }
}

TEST_F(AddSubmenuItemTest, GoesAfterTheLastChildOfTheSelectedNodeWhichStaysSelected) {
    growSample();
    select("B");
    EXPECT_EQ(addSubmenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\n  Item 0\nC\n");
    expectSelected(node("B"));
    EXPECT_TRUE(document.bModified());
    EXPECT_EQ(document.ItemCounter(), 1);
}

TEST_F(AddSubmenuItemTest, TheNewChildIsMadeVisibleAndKeepsPositionZero) {
    growSample();
    select("B11");
    EXPECT_EQ(addSubmenuItem(document), EditResult::Done);
    const MenuNode& child = *node("Key 0");
    EXPECT_EQ(child.parent(), node("B11"));
    EXPECT_TRUE(document.tree().isVisible(child));
    EXPECT_EQ(child.item.Caption, "Item 0");
    EXPECT_EQ(child.item.MenuProperty, newItemMenuProp());
    expectSelected(node("B11"));
}

TEST_F(AddSubmenuItemTest, WithoutASelectionBecomesCurrentButNotSelected) {
    growSample();
    EXPECT_EQ(addSubmenuItem(document), EditResult::Done);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\nC\nItem 0\n");
    EXPECT_EQ(document.CurNode(), node("Key 0"));
    EXPECT_EQ(document.selectedNode(), nullptr);
    EXPECT_TRUE(document.bModified());
}

TEST_F(DeleteItemTest, WithoutASelectionDoesNothing) {
    growSample();
    document.apply(SetSelection{{nullptr, node("A")}});
    expectRefused(deleteItem, EditResult::NothingToDo);
}

TEST_F(DeleteItemTest, TheNextSiblingElseThePreviousElseTheParentIsSelected) {
    struct {
        const char* key;
        const char* heir;
        const char* tree;
    } const kCases[] = {
        {"A", "B", "B\n  B1\n    B11\n  B2\nC\n"}, {"B", "C", "A\nC\n"},
        {"C", "B", "A\nB\n  B1\n    B11\n  B2\n"}, {"B1", "B2", "A\nB\n  B2\nC\n"},
        {"B2", "B1", "A\nB\n  B1\n    B11\nC\n"},  {"B11", "B1", "A\nB\n  B1\n  B2\nC\n"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.key);
        document.NewDocument();
        growSample();
        select(c.key);
        EXPECT_EQ(deleteItem(document), EditResult::Done);
        EXPECT_EQ(TreeText(document.tree()), c.tree);
        expectSelected(node(c.heir));
        EXPECT_TRUE(document.bModified());
        EXPECT_EQ(document.ItemCounter(), 0);
        ExpectSoundTree(document.tree());
    }
}

TEST_F(DeleteItemTest, TheLastNodeLeavesNoCurrentNode) {
    addMenuItem(document);
    EXPECT_EQ(deleteItem(document), EditResult::Done);
    EXPECT_TRUE(document.tree().isEmpty());
    expectSelected(nullptr);
    EXPECT_TRUE(document.bModified());
}

TEST_F(MoveTest, WithoutACurrentNodeNothingMoves) {
    growSample();
    for (const Command move : {moveLeft, moveRight, moveUp, moveDown})
        expectRefused(move, EditResult::NothingToDo);
}

TEST_F(MoveTest, AtTheEndOfItsWayNothingMoves) {
    growSample();
    struct {
        Command move;
        const char* key;
    } const kCases[] = {{moveLeft, "A"},   {moveLeft, "B"},  {moveRight, "A"},
                        {moveRight, "B1"}, {moveUp, "A"},    {moveUp, "B1"},
                        {moveDown, "C"},   {moveDown, "B2"}, {moveDown, "B11"}};
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.key);
        select(c.key);
        expectRefused(c.move, EditResult::NothingToDo);
    }
}

TEST_F(MoveTest, LeftPutsTheNodeDirectlyAfterItsParentWithItsSubtree) {
    growSample();
    select("B1");
    EXPECT_EQ(moveLeft(document), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(document.tree()),
              "A [A]\nB [B]\n  B2 [B2]\nB1 [B1]\n  B11 [B11]\nC [C]\n");
    expectSelected(node("B1"));
    EXPECT_TRUE(document.bModified());
    ExpectSoundTree(document.tree());
}

TEST_F(MoveTest, LeftKeepsItemsAndUsesUpOneNumber) {
    growSample();
    editItem(document, *node("B1"))->URL = "b1.html";
    editItem(document, *node("B11"))->Caption = "b11";
    select("B1");
    moveLeft(document);
    EXPECT_EQ(node("B1")->item.URL, "b1.html");
    EXPECT_EQ(node("B11")->item.Caption, "b11");
    EXPECT_EQ(document.ItemCounter(), 1);
    addMenuItem(document);
    EXPECT_NE(node("Key 1"), nullptr) << "number 0 is used up";
    EXPECT_EQ(node("Key 0"), nullptr);
}

TEST_F(MoveTest, LeftToTheTopLevelKeepsTheSubmenusPosition) {
    addMenuItem(document);
    addSubmenuItem(document);
    select("Key 1");
    moveLeft(document);
    EXPECT_EQ(TreeText(document.tree()), "Item 0\nItem 1\n");
    EXPECT_EQ(node("Key 1")->item.MenuProperty->Position, 0);
}

TEST_F(MoveTest, LeftFromTheThirdLevelStaysUnderTheGrandparent) {
    growSample();
    select("B11");
    moveLeft(document);
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n  B11\n  B2\nC\n");
}

TEST_F(MoveTest, RightPutsTheNodeAfterTheLastChildOfItsPreviousSibling) {
    growSample();
    select("C");
    EXPECT_EQ(moveRight(document), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(document.tree()),
              "A [A]\nB [B]\n  B1 [B1]\n    B11 [B11]\n  B2 [B2]\n  C [C]\n");
    expectSelected(node("C"));
    EXPECT_EQ(document.ItemCounter(), 1);
    EXPECT_TRUE(document.bModified());
    ExpectSoundTree(document.tree());
}

TEST_F(MoveTest, RightTakesTheSubtreeAlong) {
    growSample();
    select("B");
    moveRight(document);
    EXPECT_EQ(TreeText(document.tree()), "A\n  B\n    B1\n      B11\n    B2\nC\n");
}

TEST_F(MoveTest, RightKeepsAVisibleNodeVisible) {
    growSample();
    select("C");
    moveRight(document);
    EXPECT_TRUE(document.tree().isVisible(*node("C")));
    EXPECT_TRUE(node("B")->isExpanded);
}

TEST_F(MoveTest, RightAndLeftLeaveAHiddenNodeHidden) {
    growSample();
    select("B2");
    moveRight(document);
    EXPECT_FALSE(document.tree().isVisible(*node("B2")));
    moveLeft(document);
    EXPECT_FALSE(document.tree().isVisible(*node("B2")));
}

TEST_F(MoveTest, UpExchangesTheNodeWithItsPreviousSibling) {
    growSample();
    select("B");
    EXPECT_EQ(moveUp(document), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(document.tree()),
              "B [B]\n  B1 [B1]\n    B11 [B11]\n  B2 [B2]\nA [A]\nC [C]\n");
    expectSelected(node("B"));
    EXPECT_EQ(document.ItemCounter(), 0);
    EXPECT_TRUE(document.bModified());
    ExpectSoundTree(document.tree());
}

TEST_F(MoveTest, DownExchangesTheNodeWithItsNextSibling) {
    growSample();
    select("A");
    EXPECT_EQ(moveDown(document), EditResult::Done);
    EXPECT_EQ(TreeTextWithKeys(document.tree()),
              "B [B]\n  B1 [B1]\n    B11 [B11]\n  B2 [B2]\nA [A]\nC [C]\n");
    expectSelected(node("A"));
    EXPECT_EQ(document.ItemCounter(), 0);
    EXPECT_TRUE(document.bModified());
    ExpectSoundTree(document.tree());
}

TEST_F(MoveTest, DownMakesTheNodeVisible) {
    growSample();
    select("B1");
    moveDown(document);
    EXPECT_TRUE(document.tree().isVisible(*node("B1")));
}

TEST_F(MoveTest, UpAndThenDownRestoreTheOrderWithTheSameNodeSelected) {
    growSample();
    for (const char* key : {"B", "C", "B2"}) {
        SCOPED_TRACE(key);
        select(key);
        EXPECT_EQ(moveUp(document), EditResult::Done);
        EXPECT_EQ(moveDown(document), EditResult::Done);
        EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\nC\n");
        expectSelected(node(key));
    }
}

TEST_F(MoveTest, ExpansionOfTheMovedSubtreeStays) {
    growSample();
    document.makeVisible(*node("B11"));
    for (const Command move : {moveUp, moveDown}) {
        select("B");
        move(document);
        EXPECT_TRUE(document.tree().isVisible(*node("B11")));
    }
    moveRight(document);
    EXPECT_TRUE(document.tree().isVisible(*node("B11")));
}

TEST_F(TreeEditing, ACounterUsedUpRefusesNewPlacesAndChangesNothing) {
    growSample();
    document.apply(SetItemCounter{kMaxItemCounter});
    for (const char* key : {"B1", "B2"}) {
        SCOPED_TRACE(key);
        select(key);
        expectRefused(addMenuItem, EditResult::CounterExhausted);
        expectRefused(addSubmenuItem, EditResult::CounterExhausted);
        expectRefused(moveLeft, EditResult::CounterExhausted);
    }
    expectRefused(moveRight, EditResult::CounterExhausted);
    document.apply(SetSelection{{nullptr, document.CurNode()}});
    expectRefused(addMenuItem, EditResult::CounterExhausted);
    expectRefused(addSubmenuItem, EditResult::CounterExhausted);
}

TEST_F(TreeEditing, ACounterUsedUpStillAllowsVerticalMovesAndDeletion) {
    growSample();
    document.apply(SetItemCounter{kMaxItemCounter});
    select("B");
    EXPECT_EQ(moveUp(document), EditResult::Done);
    EXPECT_EQ(moveDown(document), EditResult::Done);
    EXPECT_EQ(deleteItem(document), EditResult::Done);
    EXPECT_EQ(document.ItemCounter(), kMaxItemCounter);
}

TEST_F(TreeEditing, TheLastNumberIsStillUsed) {
    document.apply(SetItemCounter{kMaxItemCounter - 1});
    EXPECT_EQ(addMenuItem(document), EditResult::Done);
    EXPECT_EQ(document.CurNode()->key(), "Key 32766");
    EXPECT_EQ(document.ItemCounter(), kMaxItemCounter);
    EXPECT_EQ(addMenuItem(document), EditResult::CounterExhausted);
    EXPECT_EQ(document.tree().size(), 1u);
}

/// Looks at the document's nodes while it is told of a removal.
class RemovalWatcher : public DocumentObserver {
  public:
    explicit RemovalWatcher(const MenuDocument& document) : m_document(document) {}
    void removed() override {
        ++m_removals;
        for (const MenuNode* node : {m_document.CurNode(), m_document.selectedNode()}) {
            ASSERT_NE(node, nullptr);
            EXPECT_EQ(m_document.tree().find(node->key()), node);
        }
    }

    int removals() const { return m_removals; }

  private:
    const MenuDocument& m_document;
    int m_removals = 0;
};

TEST_F(DeleteItemTest, AnObserverNeverMeetsADeadCurrentNode) {
    growSample();
    RemovalWatcher watcher(document);
    document.addObserver(watcher);
    select("B");
    deleteItem(document);
    EXPECT_EQ(watcher.removals(), 1);
    document.removeObserver(watcher);
}

}  // namespace
}  // namespace zev
