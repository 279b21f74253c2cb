// SPDX-License-Identifier: MIT
#include "model/document_observer.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::appendNode;
using test::Grow;
using test::TreeText;

/// Writes down what it is told, together with what the tree looks like at that moment.
class RecordingObserver : public DocumentObserver {
  public:
    explicit RecordingObserver(const MenuDocument& document) : m_document(document) {}

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
    void aboutToReplaceContent() override { begin("reset", ""); }
    void contentReplaced() override { end("was reset"); }
    void labelChanged(const MenuNode& node) override { note("text " + node.text); }
    void expansionChanged(const MenuNode& node) override {
        note((node.isExpanded ? "expanded " : "collapsed ") + node.text);
    }
    void itemChanged(const MenuNode& node) override { note("item " + node.text); }
    void menuChanged(const MenuPropOwner& owner) override { note("menu " + nameOf(owner)); }
    void currentNodeChanged() override { note("current " + nameOf(m_document.CurNode())); }
    void selectedNodeChanged() override { note("selected " + nameOf(m_document.selectedNode())); }
    void fileChanged() override {
        note("file " + m_document.SaveFile() + " in " + m_document.SavePath());
    }
    void modifiedChanged() override { note(m_document.bModified() ? "modified" : "saved"); }

    std::string takeLog() { return std::exchange(m_log, {}); }
    bool isOpen() const { return m_isOpen; }

  private:
    static std::string nameOf(const MenuNode* node) { return node ? node->text : "none"; }
    static std::string nameOf(const MenuPropOwner& owner) {
        if (owner.kind == MenuPropOwner::Kind::Submenu)
            return "of " + owner.node->text;
        return owner == test::kDefaults ? "defaults" : "top";
    }
    static std::string place(const MenuNode* parent, std::size_t row) {
        return (parent ? parent->text : "top") + " " + std::to_string(row);
    }
    void begin(const std::string& what, const std::string& detail) {
        EXPECT_FALSE(m_isOpen) << what << " inside another change";
        m_isOpen = true;
        m_log += what + " " + detail + "; " + std::to_string(m_document.tree().size());
    }
    void end(const std::string& what) {
        EXPECT_TRUE(m_isOpen) << what << " without a beginning";
        m_isOpen = false;
        m_log += " -> " + std::to_string(m_document.tree().size()) + " " + what + "\n";
    }
    void note(const std::string& what) {
        EXPECT_FALSE(m_isOpen) << what << " inside another change";
        m_log += what + "\n";
    }

    const MenuDocument& m_document;
    std::string m_log;
    bool m_isOpen = false;
};

/// A, B and C; B has the children B1 and B2; B1 has B11. Nothing is selected.
class DocumentObserverTest : public testing::Test {
  protected:
    void SetUp() override {
        Grow(document, {{0, "A"}, {0, "B"}, {1, "B1"}, {2, "B11"}, {1, "B2"}, {0, "C"}});
        document.addObserver(observer);
    }
    void TearDown() override {
        EXPECT_FALSE(observer.isOpen());
        EXPECT_EQ(observer.takeLog(), "") << "calls nobody expected";
        document.removeObserver(observer);
    }
    const MenuNode& node(const std::string& key) { return *document.tree().find(key); }

    MenuDocument document{"/program"};
    RecordingObserver observer{document};
};

TEST_F(DocumentObserverTest, AnInsertionIsBracketed) {
    appendNode(document, nullptr, "new", "new");
    EXPECT_EQ(observer.takeLog(), "insert top 3; 6 -> 7 inserted\n");
    appendNode(document, &node("B"), "last", "last");
    EXPECT_EQ(observer.takeLog(), "insert B 2; 7 -> 8 inserted\n");
}

TEST_F(DocumentObserverTest, ARemovalIsAnnouncedOnceForTheRootOfTheSubtree) {
    document.apply(RemoveBranch{&node("B"), NodeSelection{}});
    EXPECT_EQ(observer.takeLog(), "remove top 1; 6 -> 2 removed\n");
}

TEST_F(DocumentObserverTest, AMoveIsAnnouncedWithTheRowAsCountedBefore) {
    document.apply(MoveBranch{&node("A"), nullptr, 2});
    EXPECT_EQ(observer.takeLog(), "move A to top 2; 6 -> 6 moved\n");
    document.apply(MoveBranch{&node("B1"), nullptr, 0});
    EXPECT_EQ(observer.takeLog(), "move B1 to top 0; 6 -> 6 moved\n");
}

TEST_F(DocumentObserverTest, AMoveToWhereTheNodeStandsIsNotAnnounced) {
    document.apply(MoveBranch{&node("B"), nullptr, 1});
    document.apply(MoveBranch{&node("B"), nullptr, 2});
    EXPECT_EQ(TreeText(document.tree()), "A\nB\n  B1\n    B11\n  B2\nC\n");
}

TEST_F(DocumentObserverTest, OnlyATextThatChangesIsTold) {
    document.setLabel(node("A"), "A");
    EXPECT_EQ(observer.takeLog(), "");
    document.setLabel(node("A"), "Home");
    EXPECT_EQ(observer.takeLog(), "text Home\n");
    EXPECT_EQ(node("A").text, "Home");
}

TEST_F(DocumentObserverTest, OnlyAnExpansionThatChangesIsTold) {
    document.setExpanded(node("B"), false);
    EXPECT_EQ(observer.takeLog(), "");
    document.setExpanded(node("B"), true);
    EXPECT_EQ(observer.takeLog(), "expanded B\n");
    document.makeVisible(node("B11"));
    EXPECT_EQ(observer.takeLog(), "expanded B1\n");
    document.setExpanded(node("B"), false);
    EXPECT_EQ(observer.takeLog(), "collapsed B\n");
}

TEST_F(DocumentObserverTest, ANewDocumentIsOneReset) {
    document.NewDocument();
    EXPECT_EQ(observer.takeLog(), "reset ; 6 -> 0 was reset\n");
}

TEST_F(DocumentObserverTest, OpeningIsOneReset) {
    MenuContent opened;
    Grow(opened.tree, {{0, "X"}, {1, "Y"}});
    document.open(std::move(opened));
    EXPECT_EQ(observer.takeLog(), "reset ; 6 -> 2 was reset\n");
    appendNode(document, nullptr, "Z", "Z");
    EXPECT_EQ(observer.takeLog(), "insert top 1; 2 -> 3 inserted\n") << "stays registered";
}

TEST_F(DocumentObserverTest, RemovingTheObserverEndsTheCalls) {
    document.removeObserver(observer);
    appendNode(document, nullptr, "new", "new");
    document.NewDocument();
}

TEST_F(DocumentObserverTest, EveryObserverIsTold) {
    RecordingObserver second(document);
    document.addObserver(second);
    document.setLabel(node("A"), "Home");
    EXPECT_EQ(observer.takeLog(), "text Home\n");
    EXPECT_EQ(second.takeLog(), "text Home\n");
    document.removeObserver(second);
}

TEST_F(DocumentObserverTest, ASelectionThatChangesIsTold) {
    document.select(&node("A"));
    EXPECT_EQ(observer.takeLog(), "selected A\ncurrent A\n");
    document.select(&node("A"));
    EXPECT_EQ(observer.takeLog(), "");
    document.apply(SetSelection{{nullptr, &node("A")}});
    EXPECT_EQ(observer.takeLog(), "selected none\n");
    document.apply(SetSelection{{nullptr, &node("B")}});
    EXPECT_EQ(observer.takeLog(), "current B\n");
}

TEST_F(DocumentObserverTest, TheHeirOfARemovedNodeIsToldOnceTheNodeIsGone) {
    document.select(&node("B"));
    EXPECT_EQ(observer.takeLog(), "selected B\ncurrent B\n");
    document.apply(RemoveBranch{&node("B")});
    EXPECT_EQ(observer.takeLog(), "remove top 1; 6 -> 2 removed\nselected C\ncurrent C\n");
}

TEST_F(DocumentObserverTest, AnItemThatChangesIsToldAndItsSubmenuIfThatChanges) {
    test::editItem(document, node("A"));
    EXPECT_EQ(observer.takeLog(), "");
    test::editItem(document, node("A"))->URL = "a.html";
    EXPECT_EQ(observer.takeLog(), "item A\n");
    test::editItem(document, node("A"))->MenuProperty.edit().Columns = "2";
    EXPECT_EQ(observer.takeLog(), "item A\nmenu of A\n");
}

TEST_F(DocumentObserverTest, APropertySetThatChangesIsTold) {
    const auto setColumns = [this](const MenuPropOwner& owner) {
        test::editMenu(document, owner)->Columns = "7";
        return observer.takeLog();
    };
    const MenuPropOwner submenu{MenuPropOwner::Kind::Submenu, &node("B")};
    EXPECT_EQ(setColumns(test::kDefaults), "menu defaults\n");
    EXPECT_EQ(setColumns(test::kTopMenu), "menu top\n");
    EXPECT_EQ(setColumns(submenu), "menu of B\n");
    for (const MenuPropOwner& owner : {test::kDefaults, test::kTopMenu, submenu})
        EXPECT_EQ(setColumns(owner), "") << "unchanged";
}

TEST_F(DocumentObserverTest, FileAndMarkAreToldWhenTheyChange) {
    document.setFile("/site/menu.js", "/site");
    EXPECT_EQ(observer.takeLog(), "file /site/menu.js in /site\n");
    document.setFile("/site/menu.js", "/");
    EXPECT_EQ(observer.takeLog(), "file /site/menu.js in /\n");
    document.setFile("/site/menu.js", "/");
    EXPECT_EQ(observer.takeLog(), "");
    document.markModified();
    document.markModified();
    EXPECT_EQ(observer.takeLog(), "modified\n");
    document.markSaved();
    document.markSaved();
    EXPECT_EQ(observer.takeLog(), "saved\n");
}

}  // namespace
}  // namespace zev
