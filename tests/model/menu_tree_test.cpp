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
    MenuNode& node(const std::string& key) { return *tree.find(key); }

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
    EXPECT_EQ(&tree.siblingsOf(node("B2")), &node("B").children());
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
    tree.remove(node("B"));
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
    tree.setExpanded(*moved, true);
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
    tree.setExpanded(node("B1"), true);
    EXPECT_FALSE(tree.isVisible(node("B11")));
    tree.setExpanded(node("B"), true);
    EXPECT_TRUE(tree.isVisible(node("B11")));
}

TEST_F(MenuTreeTest, MakeVisibleExpandsTheAncestorsButNotTheNode) {
    tree.makeVisible(node("B1"));
    EXPECT_TRUE(node("B").isExpanded);
    EXPECT_FALSE(node("B1").isExpanded);
    EXPECT_FALSE(node("A").isExpanded);
}

TEST_F(MenuTreeTest, ClearRemovesEveryNode) {
    tree.clear();
    EXPECT_TRUE(tree.isEmpty());
    EXPECT_EQ(tree.size(), 0u);
    EXPECT_EQ(tree.find("A"), nullptr);
}

TEST_F(MenuTreeTest, TakeFromMovesTheNodesThemselves) {
    MenuTree target;
    Grow(target, {{0, "old"}});
    MenuNode* const b11 = &node("B11");
    target.takeFrom(tree);
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

/// Writes down what it is told, together with what the tree looks like at that moment.
class RecordingObserver : public MenuTreeObserver {
  public:
    explicit RecordingObserver(const MenuTree& tree) : m_tree(tree) {}

    void aboutToInsert(const MenuNode* parent, std::size_t row) override {
        begin("insert", place(parent, row));
    }
    void inserted() override { end("inserted"); }
    void aboutToRemove(const MenuNode* parent, std::size_t row) override {
        begin("remove", place(parent, row));
    }
    void removed() override { end("removed"); }
    void aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) override {
        begin("move", node.text + " to " + place(parent, row));
    }
    void moved() override { end("moved"); }
    void aboutToReset() override { begin("reset", ""); }
    void wasReset() override { end("was reset"); }
    void textChanged(const MenuNode& node) override { note("text " + node.text); }
    void expansionChanged(const MenuNode& node) override {
        note((node.isExpanded ? "expanded " : "collapsed ") + node.text);
    }

    std::string takeLog() { return std::exchange(m_log, {}); }
    bool isOpen() const { return m_isOpen; }

  private:
    static std::string place(const MenuNode* parent, std::size_t row) {
        return (parent ? parent->text : "top") + " " + std::to_string(row);
    }
    void begin(const std::string& what, const std::string& detail) {
        EXPECT_FALSE(m_isOpen) << what << " inside another change";
        m_isOpen = true;
        m_log += what + " " + detail + "; " + std::to_string(m_tree.size());
    }
    void end(const std::string& what) {
        EXPECT_TRUE(m_isOpen) << what << " without a beginning";
        m_isOpen = false;
        m_log += " -> " + std::to_string(m_tree.size()) + " " + what + "\n";
    }
    void note(const std::string& what) {
        EXPECT_FALSE(m_isOpen) << what << " inside another change";
        m_log += what + "\n";
    }

    const MenuTree& m_tree;
    std::string m_log;
    bool m_isOpen = false;
};

class MenuTreeObserverTest : public MenuTreeTest {
  protected:
    void SetUp() override {
        MenuTreeTest::SetUp();
        tree.setObserver(&observer);
    }
    void TearDown() override {
        EXPECT_FALSE(observer.isOpen());
        EXPECT_EQ(observer.takeLog(), "") << "calls nobody expected";
        tree.setObserver(nullptr);
    }
    RecordingObserver observer{tree};
};

TEST_F(MenuTreeObserverTest, AnInsertionIsBracketed) {
    tree.append(nullptr, "new", "new");
    EXPECT_EQ(observer.takeLog(), "insert top 3; 6 -> 7 inserted\n");
    tree.append(&node("B"), "last", "last");
    EXPECT_EQ(observer.takeLog(), "insert B 2; 7 -> 8 inserted\n");
}

TEST_F(MenuTreeObserverTest, ARefusedInsertionIsNotAnnounced) {
    tree.append(nullptr, "A", "twin");
}

TEST_F(MenuTreeObserverTest, ARemovalIsAnnouncedOnceForTheRootOfTheSubtree) {
    tree.remove(node("B"));
    EXPECT_EQ(observer.takeLog(), "remove top 1; 6 -> 2 removed\n");
}

TEST_F(MenuTreeObserverTest, AMoveIsAnnouncedWithTheRowAsCountedBefore) {
    tree.move(node("A"), nullptr, 2);
    EXPECT_EQ(observer.takeLog(), "move A to top 2; 6 -> 6 moved\n");
    tree.move(node("B1"), nullptr, 0);
    EXPECT_EQ(observer.takeLog(), "move B1 to top 0; 6 -> 6 moved\n");
}

TEST_F(MenuTreeObserverTest, AMoveToWhereTheNodeStandsIsNotAnnounced) {
    tree.move(node("B"), nullptr, 1);
    tree.move(node("B"), nullptr, 2);
    EXPECT_EQ(TreeText(tree), "A\nB\n  B1\n    B11\n  B2\nC\n");
}

TEST_F(MenuTreeObserverTest, OnlyATextThatChangesIsTold) {
    tree.setText(node("A"), "A");
    EXPECT_EQ(observer.takeLog(), "");
    tree.setText(node("A"), "Home");
    EXPECT_EQ(observer.takeLog(), "text Home\n");
    EXPECT_EQ(node("A").text, "Home");
}

TEST_F(MenuTreeObserverTest, OnlyAnExpansionThatChangesIsTold) {
    tree.setExpanded(node("B"), false);
    EXPECT_EQ(observer.takeLog(), "");
    tree.setExpanded(node("B"), true);
    EXPECT_EQ(observer.takeLog(), "expanded B\n");
    tree.makeVisible(node("B11"));
    EXPECT_EQ(observer.takeLog(), "expanded B1\n");
    tree.setExpanded(node("B"), false);
    EXPECT_EQ(observer.takeLog(), "collapsed B\n");
}

TEST_F(MenuTreeObserverTest, ClearIsOneReset) {
    tree.clear();
    EXPECT_EQ(observer.takeLog(), "reset ; 6 -> 0 was reset\n");
}

TEST_F(MenuTreeObserverTest, TakeFromIsOneResetForBothTrees) {
    MenuTree source;
    Grow(source, {{0, "X"}, {1, "Y"}});
    RecordingObserver sourceObserver(source);
    source.setObserver(&sourceObserver);
    tree.takeFrom(source);
    EXPECT_EQ(observer.takeLog(), "reset ; 6 -> 2 was reset\n");
    EXPECT_EQ(sourceObserver.takeLog(), "reset ; 2 -> 0 was reset\n");
    source.setObserver(nullptr);
    tree.append(nullptr, "Z", "Z");
    EXPECT_EQ(observer.takeLog(), "insert top 1; 2 -> 3 inserted\n") << "stays registered";
}

TEST_F(MenuTreeObserverTest, RemovingTheObserverEndsTheCalls) {
    tree.setObserver(nullptr);
    tree.append(nullptr, "new", "new");
    tree.clear();
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
    tree.makeVisible(*deepest);
    EXPECT_TRUE(tree.isVisible(*deepest));
    MenuNode* const other = tree.append(nullptr, "other", "other");
    tree.move(*top, other, 0);
    EXPECT_EQ(tree.topLevel().size(), 1u);

    tree.remove(*top);
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
    tree.remove(*tree.find("Key 5"));
    EXPECT_EQ(tree.find("Key 12345")->row(), 12345u);
    ExpectSoundTree(tree);
}

}  // namespace
}  // namespace zev
