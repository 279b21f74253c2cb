// SPDX-License-Identifier: MIT
#include "model/document_change.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/menu_document.h"
#include "tests/model/random_changes.h"
#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::ChangeMaker;
using test::DocumentState;
using test::Grow;

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
