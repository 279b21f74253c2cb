// SPDX-License-Identifier: MIT
#include "model/menu_tree.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::ExpectSoundTree;
using test::Grow;
using test::TreeText;

/// A, B and C; B has the children B1 and B2; B1 has B11.
class MenuTreeTest : public testing::Test {
  protected:
    void SetUp() override {
        Grow(tree, {{0, "A"}, {0, "B"}, {1, "B1"}, {2, "B11"}, {1, "B2"}, {0, "C"}});
    }
    MenuNode& node(const std::string& key) { return tree.edit(*tree.find(key)); }

    MenuTree tree;
};

TEST_F(MenuTreeTest, AnEmptyTreeHasNothing) {
    const MenuTree empty;
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_EQ(empty.size(), 0u);
    EXPECT_EQ(empty.firstNode(), nullptr);
    EXPECT_EQ(empty.find("A"), nullptr);
}

TEST_F(MenuTreeTest, TreeOrderPutsANodeBeforeItsChildren) {
    EXPECT_EQ(TreeText(tree), "A\nB\n  B1\n    B11\n  B2\nC\n");
    EXPECT_EQ(tree.nextInTreeOrder(node("C")), nullptr);
    EXPECT_EQ(tree.nextInTreeOrder(node("B11")), &node("B2"));
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, NeighboursParentsAndChildren) {
    EXPECT_EQ(tree.firstNode(), &node("A"));
    EXPECT_EQ(tree.nextSibling(node("A")), &node("B"));
    EXPECT_EQ(tree.nextSibling(node("C")), nullptr);
    EXPECT_EQ(tree.previousSibling(node("A")), nullptr);
    EXPECT_EQ(tree.previousSibling(node("B2")), &node("B1"));
    EXPECT_EQ(node("B1").parent(), &node("B"));
    EXPECT_EQ(node("B").parent(), nullptr);
    EXPECT_EQ(tree.childrenOf(nullptr).size(), 3u);
    EXPECT_EQ(tree.childrenOf(&node("B")).size(), 2u);
    EXPECT_EQ(tree.childrenOf(node("B2").parent()).data(), node("B").children().data());
    EXPECT_TRUE(node("B").hasChildren());
    EXPECT_FALSE(node("A").hasChildren());
}

TEST_F(MenuTreeTest, AppendPutsTheNodeBehindTheLastChild) {
    tree.append(&node("B"), "B3", "B3");
    tree.append(&node("A"), "A1", "A1");
    tree.append(nullptr, "D", "D");
    EXPECT_EQ(TreeText(tree), "A\n  A1\nB\n  B1\n    B11\n  B2\n  B3\nC\nD\n");
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, AppendHandsTheItemToTheNode) {
    ItemProp item;
    item.URL = "a.html";
    EXPECT_EQ(tree.append(nullptr, "new", "New", item)->item, item);
}

TEST_F(MenuTreeTest, AKeyThatIsTakenIsRefused) {
    EXPECT_EQ(tree.append(&node("A"), "B11", "twin"), nullptr);
    EXPECT_EQ(TreeText(tree), "A\nB\n  B1\n    B11\n  B2\nC\n");
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, RemoveTakesTheSubtreeAndItsKeysAlong) {
    tree.take(node("B"));
    EXPECT_EQ(TreeText(tree), "A\nC\n");
    EXPECT_EQ(tree.size(), 2u);
    for (const char* key : {"B", "B1", "B11", "B2"})
        EXPECT_EQ(tree.find(key), nullptr) << key;
    ExpectSoundTree(tree);
    EXPECT_NE(tree.append(nullptr, "B11", "again"), nullptr) << "the key is free again";
}

TEST_F(MenuTreeTest, MoveKeepsPointerKeyItemChildrenAndExpansion) {
    MenuNode* const moved = &node("B1");
    moved->item.URL = "kept.html";
    moved->isExpanded = true;
    tree.move(*moved, nullptr, 1);
    EXPECT_EQ(TreeText(tree), "A\nB1\n  B11\nB\n  B2\nC\n");
    EXPECT_EQ(tree.find("B1"), moved);
    EXPECT_EQ(moved->item.URL, "kept.html");
    EXPECT_TRUE(moved->isExpanded);
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, MoveCountsTheRowBeforeTheNodeIsTakenAway) {
    struct {
        const char* key;
        std::size_t row;
        const char* expected;
    } const kCases[] = {
        {"A", 0, "A\nB\n  B1\n    B11\n  B2\nC\n"}, {"A", 1, "A\nB\n  B1\n    B11\n  B2\nC\n"},
        {"A", 2, "B\n  B1\n    B11\n  B2\nA\nC\n"}, {"B", 3, "A\nC\nB\n  B1\n    B11\n  B2\n"},
        {"B", 0, "B\n  B1\n    B11\n  B2\nA\nC\n"}, {"C", 0, "C\nA\nB\n  B1\n    B11\n  B2\n"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(std::string(c.key) + " to row " + std::to_string(c.row));
        MenuTree fresh;
        Grow(fresh, {{0, "A"}, {0, "B"}, {1, "B1"}, {2, "B11"}, {1, "B2"}, {0, "C"}});
        fresh.move(*fresh.find(c.key), nullptr, c.row);
        EXPECT_EQ(TreeText(fresh), c.expected);
        ExpectSoundTree(fresh);
    }
}

TEST_F(MenuTreeTest, MoveUnderAnotherParent) {
    tree.move(node("A"), &node("B1"), 1);
    EXPECT_EQ(TreeText(tree), "B\n  B1\n    B11\n    A\n  B2\nC\n");
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, ANodeIsVisibleWhenAllItsAncestorsAreExpanded) {
    EXPECT_TRUE(tree.isVisible(node("B")));
    EXPECT_FALSE(tree.isVisible(node("B11")));
    node("B1").isExpanded = true;
    EXPECT_FALSE(tree.isVisible(node("B11")));
    node("B").isExpanded = true;
    EXPECT_TRUE(tree.isVisible(node("B11")));
}

TEST_F(MenuTreeTest, TheNodesOfABranchTakenOutAndPutBackAreTheSame) {
    const MenuNode* const b1 = &node("B1");
    const MenuNode* const b11 = &node("B11");
    node("B1").isExpanded = true;
    MenuBranch branch = tree.take(node("B1"));
    EXPECT_EQ(TreeText(tree), "A\nB\n  B2\nC\n");
    EXPECT_EQ(tree.find("B11"), nullptr);
    tree.insert(std::move(branch), nullptr, 1);
    EXPECT_EQ(TreeText(tree), "A\nB1\n  B11\nB\n  B2\nC\n");
    EXPECT_EQ(tree.find("B1"), b1);
    EXPECT_EQ(tree.find("B11"), b11);
    EXPECT_TRUE(b1->isExpanded);
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, ANewBranchIsANodeWithTextAndItem) {
    ItemProp item;
    item.URL = "new.html";
    MenuBranch branch("key", "text", item);
    const MenuNode* const node = branch.top();
    tree.insert(std::move(branch), tree.find("B"), 1);
    EXPECT_EQ(TreeText(tree), "A\nB\n  B1\n    B11\n  text\n  B2\nC\n");
    EXPECT_EQ(tree.find("key"), node);
    EXPECT_EQ(node->item, item);
    ExpectSoundTree(tree);
}

TEST_F(MenuTreeTest, AnEmptyTreeInItsPlaceRemovesEveryNode) {
    tree = MenuTree();
    EXPECT_TRUE(tree.isEmpty());
    EXPECT_EQ(tree.size(), 0u);
    EXPECT_EQ(tree.find("A"), nullptr);
}

TEST_F(MenuTreeTest, MovingATreeMovesTheNodesThemselves) {
    MenuTree target;
    Grow(target, {{0, "old"}});
    MenuNode* const b11 = &node("B11");
    target = std::move(tree);
    EXPECT_EQ(TreeText(target), "A\nB\n  B1\n    B11\n  B2\nC\n");
    EXPECT_EQ(target.find("B11"), b11);
    EXPECT_EQ(target.find("old"), nullptr);
    EXPECT_TRUE(tree.isEmpty());
    EXPECT_EQ(tree.size(), 0u);
    EXPECT_EQ(tree.find("A"), nullptr);
    ExpectSoundTree(target);
    ExpectSoundTree(tree);
    EXPECT_NE(tree.append(nullptr, "A", "A"), nullptr) << "the emptied tree works on";
}

// A call per level would overflow the stack long before.
TEST(MenuTreeSize, AHundredThousandLevelsAreBuiltWalkedMovedAndRemoved) {
    constexpr std::size_t kLevels = 100'000;
    MenuTree tree;
    MenuNode* const top = tree.append(nullptr, "top", "top");
    MenuNode* deepest = top;
    for (std::size_t level = 1; level < kLevels; ++level)
        deepest = tree.append(deepest, std::to_string(level), "");
    ASSERT_NE(deepest, nullptr);
    std::size_t count = 0;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        ++count;
    EXPECT_EQ(count, kLevels);

    EXPECT_FALSE(tree.isVisible(*deepest));
    for (const MenuNode* ancestor = deepest->parent(); ancestor; ancestor = ancestor->parent())
        tree.edit(*ancestor).isExpanded = true;
    EXPECT_TRUE(tree.isVisible(*deepest));
    MenuNode* const other = tree.append(nullptr, "other", "other");
    tree.move(*top, other, 0);
    EXPECT_EQ(tree.topLevel().size(), 1u);

    tree.take(*top);
    EXPECT_EQ(tree.size(), 1u);
}

TEST(MenuTreeSize, ADeepTreeIsDestroyedWithoutRecursion) {
    MenuTree tree;
    MenuNode* deepest = nullptr;
    for (std::size_t level = 0; level < 100'000; ++level)
        deepest = tree.append(deepest, std::to_string(level), "");
    EXPECT_EQ(tree.size(), 100'000u);
}

TEST(MenuTreeSize, TwentyThousandSiblingsAreFoundByKeyAndByRow) {
    constexpr std::size_t kCount = 20'000;
    MenuTree tree;
    for (std::size_t i = 0; i < kCount; ++i)
        tree.append(nullptr, "Key " + std::to_string(i), "");
    ExpectSoundTree(tree);
    EXPECT_EQ(tree.find("Key 12345")->row(), 12345u);
    tree.move(*tree.find("Key 19999"), nullptr, 0);
    tree.take(*tree.find("Key 5"));
    EXPECT_EQ(tree.find("Key 12345")->row(), 12345u);
    ExpectSoundTree(tree);
}

}  // namespace
}  // namespace zev
