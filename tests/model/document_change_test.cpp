#include "model/document_change.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "model/menu_document.h"
#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::Grow;

/// All that a document holds. Equal states have the same nodes at the same addresses.
struct DocumentState {
    struct Node {
        const MenuNode* node;
        const MenuNode* parent;
        std::size_t row;
        std::string key;
        std::string text;
        ItemProp item;
        bool isExpanded;
        bool operator==(const Node&) const = default;
    };

    explicit DocumentState(const MenuDocument& document)
        : DefaultProp(document.DefaultProp()),
          RootMenuProp(document.RootMenuProp()),
          ItemCounter(document.ItemCounter()),
          SaveFile(document.SaveFile()),
          SavePath(document.SavePath()),
          bModified(document.bModified()),
          selection{document.selectedNode(), document.CurNode()} {
        const MenuTree& tree = document.tree();
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
            nodes.push_back({node, node->parent(), node->row(), node->key(), node->text, node->item,
                             node->isExpanded});
    }
    bool operator==(const DocumentState&) const = default;

    std::vector<Node> nodes;
    MenuProp DefaultProp;
    MenuProp RootMenuProp;
    std::int16_t ItemCounter;
    std::string SaveFile;
    std::string SavePath;
    bool bModified;
    NodeSelection selection;
};

/// Makes the same random changes in every run and on every machine, each fit for the document as it
/// is.
class ChangeMaker {
  public:
    explicit ChangeMaker(const MenuDocument& document) : m_document(document) {}

    Change next() {
        const bool hasNodes = !tree().isEmpty();
        switch (m_random() % 26) {
            case 0:
                return aReplacement();
            case 1:
                return SetItemCounter{static_cast<std::int16_t>(below(100))};
            case 2:
                return SetFile{aText(), aText()};
            case 3:
                return SetModified{below(2) == 0};
            case 4:
                return SetMenu{{MenuPropOwner::Kind::Defaults}, aMenu()};
            case 5:
                return SetMenu{{MenuPropOwner::Kind::TopMenu}, aMenu()};
            case 6:
                return SetSelection{{any(), any()}};
            case 7:
            case 8:
                if (hasNodes)
                    return RemoveBranch{some()};
                break;
            case 9:
                if (hasNodes)
                    return RemoveBranch{some(), NodeSelection{any(), any()}};
                break;
            case 10:
            case 11:
            case 12:
            case 13:
                if (hasNodes)
                    return aMove();
                break;
            case 14:
            case 15:
                if (hasNodes)
                    return SetItem{some(), anItem()};
                break;
            case 16:
                if (hasNodes)
                    return SetLabel{some(), aText()};
                break;
            case 17:
                if (hasNodes)
                    return SetExpanded{some(), below(2) == 0};
                break;
            case 18:
                if (hasNodes)
                    return SetMenu{{MenuPropOwner::Kind::Submenu, some()}, aMenu()};
                break;
            default:
                break;
        }
        return anInsertion();
    }

  private:
    const MenuTree& tree() const { return m_document.tree(); }
    std::size_t below(std::size_t count) { return m_random() % count; }
    std::string aText() { return "text " + std::to_string(below(5)); }
    std::string aKey() { return "key " + std::to_string(m_nextKey++); }

    const MenuNode* some() {
        const MenuNode* node = tree().firstNode();
        for (std::size_t steps = below(tree().size()); steps > 0; --steps)
            node = tree().nextInTreeOrder(*node);
        return node;
    }
    const MenuNode* any() { return tree().isEmpty() || below(4) == 0 ? nullptr : some(); }

    SharedMenuProp aMenu() {
        MenuProp menu;
        menu.Columns = std::to_string(below(4));
        return menu;
    }
    ItemProp anItem() {
        ItemProp item;
        item.Caption = aText();
        item.URL = aText();
        if (below(2) == 0)
            item.MenuProperty = aMenu();
        return item;
    }
    Change aReplacement() {
        auto content = std::make_unique<MenuContent>();
        const MenuNode* parent = nullptr;
        for (std::size_t count = below(6); count > 0; --count) {
            const MenuNode* node = content->tree.append(parent, aKey(), aText(), anItem());
            if (below(2) == 0)
                parent = node;
        }
        content->RootMenuProp = *aMenu();
        content->ItemCounter = static_cast<std::int16_t>(below(100));
        const MenuNode* const first = content->tree.firstNode();
        return ReplaceContent{std::move(content), {first, below(2) == 0 ? first : nullptr}};
    }
    Change anInsertion() {
        const MenuNode* const parent = any();
        InsertBranch change{MenuBranch(aKey(), aText(), anItem()), parent,
                            below(tree().childrenOf(parent).size() + 1)};
        if (below(2) == 0)
            change.selection = {change.branch.top(), any()};
        return change;
    }
    Change aMove() {
        const MenuNode* const node = some();
        const MenuNode* parent = any();
        if (isInBranch(parent, *node))
            parent = node->parent();
        return MoveBranch{node, parent, below(tree().childrenOf(parent).size() + 1)};
    }

    const MenuDocument& m_document;
    std::mt19937 m_random{2026};
    std::size_t m_nextKey = 0;
};

class DocumentChangeTest : public testing::Test {
  protected:
    void SetUp() override {
        Grow(document, {{0, "A"}, {0, "B"}, {1, "B1"}, {2, "B11"}, {1, "B2"}, {0, "C"}});
    }
    const MenuNode* node(const std::string& key) { return document.tree().find(key); }

    MenuDocument document{"/program"};
};

TEST_F(DocumentChangeTest, TheInverseOfEveryChangeAndItsInverseGiveTheExactDocuments) {
    ChangeMaker maker(document);
    for (int step = 0; step < 3000; ++step) {
        const DocumentState before(document);
        Change change = maker.next();
        SCOPED_TRACE("step " + std::to_string(step) + ", kind of change " +
                     std::to_string(change.index()) + "\n" +
                     test::TreeTextWithKeys(document.tree()));
        Change inverse = document.apply(std::move(change));
        const DocumentState after(document);
        Change again = document.apply(std::move(inverse));
        ASSERT_TRUE(DocumentState(document) == before) << test::TreeTextWithKeys(document.tree());
        test::ExpectSoundTree(document.tree());
        Change inverseAgain = document.apply(std::move(again));
        ASSERT_TRUE(DocumentState(document) == after) << test::TreeTextWithKeys(document.tree());
        test::ExpectSoundTree(document.tree());
        document.apply(std::move(inverseAgain));
        ASSERT_TRUE(DocumentState(document) == before) << test::TreeTextWithKeys(document.tree());
        document.apply(maker.next());
        for (const MenuNode* kept : {document.CurNode(), document.selectedNode()}) {
            ASSERT_TRUE(kept == nullptr || document.tree().find(kept->key()) == kept)
                << "a node that is not in the tree";
        }
    }
}

TEST_F(DocumentChangeTest, ALongHistoryIsTakenBackAndMadeAgain) {
    ChangeMaker maker(document);
    std::vector<DocumentState> states = {DocumentState(document)};
    Changes inverses;
    for (int step = 0; step < 500; ++step) {
        inverses.push_back(document.apply(maker.next()));
        states.emplace_back(document);
    }
    for (int round = 0; round < 2; ++round) {
        Changes forwards;
        for (std::size_t step = inverses.size(); step > 0; --step) {
            forwards.push_back(document.apply(std::move(inverses[step - 1])));
            ASSERT_TRUE(DocumentState(document) == states[step - 1]) << "back to step " << step - 1;
        }
        inverses.clear();
        for (std::size_t step = 1; step < states.size(); ++step) {
            inverses.push_back(document.apply(std::move(forwards[states.size() - 1 - step])));
            ASSERT_TRUE(DocumentState(document) == states[step]) << "on to step " << step;
        }
    }
}

TEST_F(DocumentChangeTest, SeveralChangesAtOnceGiveTheirInversesInTheOrderToApplyThem) {
    const DocumentState before(document);
    Changes changes;
    changes.push_back(SetLabel{node("A"), "Home"});
    changes.push_back(SetLabel{node("A"), "Start"});
    changes.push_back(MoveBranch{node("A"), node("B"), 0});
    changes.push_back(RemoveBranch{node("B")});
    Changes inverses = document.apply(std::move(changes));
    EXPECT_EQ(test::TreeText(document.tree()), "C\n");
    Changes again = document.apply(std::move(inverses));
    EXPECT_TRUE(DocumentState(document) == before);
    document.apply(std::move(again));
    EXPECT_EQ(test::TreeText(document.tree()), "C\n");
}

TEST_F(DocumentChangeTest, WhatPointsIntoARemovedBranchGoesToTheHeirAndTheRestStays) {
    struct {
        const char* removed;
        const char* selected;
        const char* current;
        const char* expectedSelected;
        const char* expectedCurrent;
    } const kCases[] = {
        {"B", "B11", "A", "C", "A"},
        {"B", "C", "B2", "C", "C"},
        {"C", "B", "C", "B", "B"},
        {"B11", "B11", "B1", "B1", "B1"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(std::string(c.removed) + ", " + c.selected + ", " + c.current);
        const DocumentState before(document);
        const NodeSelection selection{node(c.selected), node(c.current)};
        Change back = document.apply(RemoveBranch{node(c.removed), selection});
        EXPECT_EQ(document.selectedNode(), node(c.expectedSelected));
        EXPECT_EQ(document.CurNode(), node(c.expectedCurrent));
        document.apply(std::move(back));
        EXPECT_TRUE(DocumentState(document) == before);
    }
}

TEST_F(DocumentChangeTest, ABranchPutBackIsSelectedAsItWas) {
    document.apply(SetSelection{{node("B11"), node("B2")}});
    const DocumentState before(document);
    Change back = document.apply(RemoveBranch{node("B")});
    EXPECT_EQ(document.selectedNode(), node("C"));
    EXPECT_EQ(document.CurNode(), node("C"));
    document.apply(std::move(back));
    EXPECT_TRUE(DocumentState(document) == before);
}

// A history of thousands of changes must not weigh more than what they changed.
TEST_F(DocumentChangeTest, AChangeIsSmallerThanAPropertySet) {
    EXPECT_LT(sizeof(Change), sizeof(MenuProp));
}

TEST_F(DocumentChangeTest, APropertySetSharedByManyItemsStaysSharedWhenItIsSetAndTakenBack) {
    for (const char* key : {"A", "B"})
        test::editItem(document, *node(key))->MenuProperty = newItemMenuProp();
    const MenuProp* const shared = &*newItemMenuProp();
    MenuProp own = *shared;
    own.Columns = "4";
    Change back =
        document.apply(SetMenu{{MenuPropOwner::Kind::Submenu, node("A")}, SharedMenuProp(own)});
    EXPECT_EQ(*node("A")->item.MenuProperty, own);
    EXPECT_EQ(*node("B")->item.MenuProperty, *shared);
    document.apply(std::move(back));
    EXPECT_EQ(&*node("A")->item.MenuProperty, shared);
}

}  // namespace
}  // namespace zev
