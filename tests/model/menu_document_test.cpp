#include "model/menu_document.h"

#include <gtest/gtest.h>

#include "model/tree_editing.h"
#include "tests/model/tree_text.h"

namespace zev {
namespace {

void ExpectEmptyDocument(const MenuDocument& document, const std::string& programFolder) {
    EXPECT_EQ(document.SaveFile, "");
    EXPECT_EQ(document.SavePath, programFolder);
    EXPECT_EQ(document.programFolder(), programFolder);
    EXPECT_FALSE(document.bModified);
    EXPECT_EQ(document.CurNode, nullptr);
    EXPECT_EQ(document.selectedNode, nullptr);
    EXPECT_EQ(document.ItemCounter, 0);
    EXPECT_TRUE(document.tree.isEmpty());

    MenuProp defaults;
    defaults.SetDefault();
    EXPECT_EQ(document.DefaultProp, defaults);
    MenuProp root;
    root.Columns = "10";
    root.Position = 2;
    root.Divider = "&nbsp;";
    root.HTMLAfter = "&nbsp;&nbsp;";
    root.HTMLBefore = "&nbsp;&nbsp;";
    EXPECT_EQ(document.RootMenuProp, root);
}

/// Changes everything that a document holds.
void FillDocument(MenuDocument& document) {
    AddMenuItem(document);
    AddMenuItem(document);
    document.SaveFile = "/site/menu.js";
    document.SavePath = "/site";
    document.RootMenuProp.Columns = "1";
    document.RootMenuProp.Target = "main";
    document.DefaultProp.Columns = "7";
    document.DefaultProp.FontSet = true;
    document.CurNode = document.tree.firstNode();
    document.bModified = true;
}

TEST(MenuDocument, ANewOneIsEmptyWithTheStartingValues) {
    ExpectEmptyDocument(MenuDocument("/program"), "/program");
}

TEST(MenuDocument, NewDocumentResetsEverything) {
    MenuDocument document("/program");
    FillDocument(document);
    document.NewDocument();
    ExpectEmptyDocument(document, "/program");
}

TEST(MenuDocument, NewDocumentStartsTheNumbersAgain) {
    MenuDocument document("/program");
    AddMenuItem(document);
    AddMenuItem(document);
    EXPECT_EQ(document.CurNode->key(), "Key 1");
    document.NewDocument();
    AddMenuItem(document);
    EXPECT_EQ(document.CurNode->key(), "Key 0");
}

TEST(MenuDocument, TheSubmenuOfANewItemStartsWithTheUsualDividerAndSpaces) {
    MenuProp expected;
    expected.Divider = "&nbsp;";
    expected.HTMLAfter = "&nbsp;&nbsp;";
    expected.HTMLBefore = "&nbsp;&nbsp;";
    EXPECT_EQ(*NewItemMenuProp(), expected);
}

TEST(MenuDocumentTakeFrom, TakesTheWholeStateAndLeavesAnEmptyDocument) {
    MenuDocument source("/program of source");
    FillDocument(source);
    const MenuProp root = source.RootMenuProp;
    const MenuProp defaults = source.DefaultProp;
    MenuNode* const first = source.tree.firstNode();
    MenuNode* const last = source.tree.topLevel().back();

    MenuDocument document("/program");
    AddMenuItem(document);
    document.takeFrom(source);

    EXPECT_EQ(test::TreeTextWithKeys(document.tree), "Item 0 [Key 0]\nItem 1 [Key 1]\n");
    EXPECT_EQ(document.tree.firstNode(), first) << "the nodes themselves move";
    EXPECT_EQ(document.CurNode, first);
    EXPECT_EQ(document.selectedNode, last);
    EXPECT_EQ(document.SaveFile, "/site/menu.js");
    EXPECT_EQ(document.SavePath, "/site");
    EXPECT_EQ(document.RootMenuProp, root);
    EXPECT_EQ(document.DefaultProp, defaults);
    EXPECT_EQ(document.ItemCounter, 2);
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(document.programFolder(), "/program");

    ExpectEmptyDocument(source, "/program of source");
    document.NewDocument();
    ExpectEmptyDocument(document, "/program");
}

class ResetCounter : public MenuTreeObserver {
  public:
    explicit ResetCounter(const MenuDocument& document) : m_document(document) {}
    void aboutToInsert(const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void inserted() override { ADD_FAILURE(); }
    void aboutToRemove(const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void removed() override { ADD_FAILURE(); }
    void aboutToMove(const MenuNode&, const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void moved() override { ADD_FAILURE(); }
    void aboutToReset() override { ++m_beginnings; }
    void wasReset() override {
        ++m_ends;
        if (m_document.CurNode) {
            EXPECT_EQ(m_document.tree.find(m_document.CurNode->key()), m_document.CurNode);
        }
    }
    void textChanged(const MenuNode&) override { ADD_FAILURE(); }
    void expansionChanged(const MenuNode&) override { ADD_FAILURE(); }

    int beginnings() const { return m_beginnings; }
    int ends() const { return m_ends; }

  private:
    const MenuDocument& m_document;
    int m_beginnings = 0;
    int m_ends = 0;
};

TEST(MenuDocumentTakeFrom, TheObserverIsToldOfOneResetAndFindsTheNewCurrentNode) {
    MenuDocument source("/program");
    FillDocument(source);
    MenuDocument document("/program");
    ResetCounter observer(document);
    document.tree.setObserver(&observer);
    document.takeFrom(source);
    EXPECT_EQ(observer.beginnings(), 1);
    EXPECT_EQ(observer.ends(), 1);
    document.NewDocument();
    EXPECT_EQ(observer.ends(), 2) << "stays registered";
    document.tree.setObserver(nullptr);
}

}  // namespace
}  // namespace zev
