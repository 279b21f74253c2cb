// SPDX-License-Identifier: MIT
#include "model/menu_document.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "model/tree_editing.h"
#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::editMenu;
using test::kDefaults;
using test::kTopMenu;

void ExpectEmptyDocument(const MenuDocument& document, const std::string& programFolder) {
    EXPECT_EQ(document.SaveFile(), "");
    EXPECT_EQ(document.SavePath(), programFolder);
    EXPECT_EQ(document.programFolder(), programFolder);
    EXPECT_FALSE(document.bModified());
    EXPECT_EQ(document.CurNode(), nullptr);
    EXPECT_EQ(document.selectedNode(), nullptr);
    EXPECT_EQ(document.ItemCounter(), 0);
    EXPECT_TRUE(document.tree().isEmpty());

    MenuProp defaults;
    defaults.SetDefault();
    EXPECT_EQ(document.DefaultProp(), defaults);
    MenuProp root;
    root.Columns = "10";
    root.Position = 2;
    root.Divider = "&nbsp;";
    root.HTMLAfter = "&nbsp;&nbsp;";
    root.HTMLBefore = "&nbsp;&nbsp;";
    EXPECT_EQ(document.RootMenuProp(), root);
}

/// Changes everything that a document holds.
void FillDocument(MenuDocument& document) {
    addMenuItem(document);
    addMenuItem(document);
    document.setFile("/site/menu.js", "/site");
    editMenu(document, kTopMenu)->Columns = "1";
    editMenu(document, kTopMenu)->Target = "main";
    editMenu(document, kDefaults)->Columns = "7";
    editMenu(document, kDefaults)->FontSet = true;
    document.apply(SetSelection{{document.selectedNode(), document.tree().firstNode()}});
    document.markModified();
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
    addMenuItem(document);
    addMenuItem(document);
    EXPECT_EQ(document.CurNode()->key(), "Key 1");
    document.NewDocument();
    addMenuItem(document);
    EXPECT_EQ(document.CurNode()->key(), "Key 0");
}

TEST(MenuDocument, TheSubmenuOfANewItemStartsWithTheUsualDividerAndSpaces) {
    MenuProp expected;
    expected.Divider = "&nbsp;";
    expected.HTMLAfter = "&nbsp;&nbsp;";
    expected.HTMLBefore = "&nbsp;&nbsp;";
    EXPECT_EQ(*newItemMenuProp(), expected);
}

/// Two items, X and its child Y, and values of their own everywhere.
MenuContent SampleContent() {
    MenuContent content;
    test::Grow(content.tree, {{0, "X"}, {1, "Y"}});
    content.DefaultProp.Columns = "7";
    content.RootMenuProp.Target = "main";
    content.ItemCounter = 2;
    return content;
}

TEST(MenuDocumentOpen, TakesTheWholeContentAndShowsItsFirstNode) {
    MenuContent content = SampleContent();
    const MenuProp root = content.RootMenuProp;
    const MenuProp defaults = content.DefaultProp;
    const MenuNode* const first = content.tree.firstNode();

    MenuDocument document("/program");
    FillDocument(document);
    document.open(std::move(content), "/site/menu.js", "/site");

    EXPECT_EQ(test::TreeTextWithKeys(document.tree()), "X [X]\n  Y [Y]\n");
    EXPECT_EQ(document.tree().firstNode(), first) << "the nodes themselves move";
    EXPECT_EQ(document.CurNode(), first);
    EXPECT_EQ(document.selectedNode(), first);
    EXPECT_EQ(document.SaveFile(), "/site/menu.js");
    EXPECT_EQ(document.SavePath(), "/site");
    EXPECT_EQ(document.RootMenuProp(), root);
    EXPECT_EQ(document.DefaultProp(), defaults);
    EXPECT_EQ(document.ItemCounter(), 2);
    EXPECT_FALSE(document.bModified());
    EXPECT_EQ(document.programFolder(), "/program");

    document.NewDocument();
    ExpectEmptyDocument(document, "/program");
}

TEST(MenuDocumentOpen, ContentWithoutItemsHasNoCurrentNode) {
    MenuDocument document("/program");
    FillDocument(document);
    document.open(MenuContent(), "/site/menu.js", "/site");
    EXPECT_EQ(document.CurNode(), nullptr);
    EXPECT_EQ(document.selectedNode(), nullptr);
    EXPECT_FALSE(document.bModified());
}

TEST(MenuDocumentOpen, ContentThatBelongsToNoFileIsThatOfADocumentNeverSaved) {
    MenuDocument document("/program");
    FillDocument(document);
    document.open(SampleContent());
    EXPECT_EQ(document.SaveFile(), "");
    EXPECT_EQ(document.SavePath(), "/program");
    EXPECT_FALSE(document.bModified());
}

class ResetCounter : public DocumentObserver {
  public:
    explicit ResetCounter(const MenuDocument& document) : m_document(document) {}
    void aboutToInsert(const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void inserted() override { ADD_FAILURE(); }
    void aboutToRemove(const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void removed() override { ADD_FAILURE(); }
    void aboutToMove(const MenuNode&, const MenuNode*, std::size_t) override { ADD_FAILURE(); }
    void moved() override { ADD_FAILURE(); }
    void aboutToReplaceContent() override { ++m_beginnings; }
    void contentReplaced() override {
        ++m_ends;
        const MenuNode* const node = m_document.CurNode();
        EXPECT_TRUE(!node || m_document.tree().find(node->key()) == node);
    }
    void labelChanged(const MenuNode&) override { ADD_FAILURE(); }
    void expansionChanged(const MenuNode&) override { ADD_FAILURE(); }

    int beginnings() const { return m_beginnings; }
    int ends() const { return m_ends; }

  private:
    const MenuDocument& m_document;
    int m_beginnings = 0;
    int m_ends = 0;
};

TEST(MenuDocumentOpen, TheObserverIsToldOfOneResetAndFindsTheNewCurrentNode) {
    MenuDocument document("/program");
    FillDocument(document);
    ResetCounter observer(document);
    document.addObserver(observer);
    document.open(SampleContent());
    EXPECT_EQ(observer.beginnings(), 1);
    EXPECT_EQ(observer.ends(), 1);
    document.NewDocument();
    EXPECT_EQ(observer.ends(), 2) << "stays registered";
    document.removeObserver(observer);
}

TEST(MenuDocumentModified, OnlyTheOperationsThatSaySoSetOrClearTheMark) {
    struct {
        const char* name;
        void (*operation)(MenuDocument&);
        bool isSet;    ///< afterwards, when it was not set before
        bool isStill;  ///< afterwards, when it was set before
    } const kCases[] = {
        {"select", [](MenuDocument& document) { document.select(nullptr); }, false, true},
        {"setItem",
         [](MenuDocument& document) { test::editItem(document, *document.CurNode())->URL = "u"; },
         false, true},
        {"setLabel",
         [](MenuDocument& document) { document.setLabel(*document.CurNode(), "label"); }, false,
         true},
        {"setExpanded",
         [](MenuDocument& document) { document.setExpanded(*document.CurNode(), true); }, false,
         true},
        {"setFile", [](MenuDocument& document) { document.setFile("/a/b.js", "/a"); }, false, true},
        {"setMenu", [](MenuDocument& document) { document.setMenu(kTopMenu, MenuProp()); }, true,
         true},
        {"setMenu to the same",
         [](MenuDocument& document) { document.setMenu(kTopMenu, document.RootMenuProp()); }, true,
         true},
        {"setMenuUnmarked",
         [](MenuDocument& document) { document.setMenuUnmarked(kTopMenu, MenuProp()); }, false,
         true},
        {"markModified", [](MenuDocument& document) { document.markModified(); }, true, true},
        {"markSaved", [](MenuDocument& document) { document.markSaved(); }, false, false},
        {"open", [](MenuDocument& document) { document.open(SampleContent()); }, false, false},
        {"NewDocument", [](MenuDocument& document) { document.NewDocument(); }, false, false},
        {"AddMenuItem", [](MenuDocument& document) { addMenuItem(document); }, true, true},
        {"AddSubmenuItem", [](MenuDocument& document) { addSubmenuItem(document); }, true, true},
        {"DeleteItem", [](MenuDocument& document) { deleteItem(document); }, true, true},
        {"MoveRight", [](MenuDocument& document) { moveRight(document); }, true, true},
        {"MoveLeft at the top", [](MenuDocument& document) { moveLeft(document); }, false, true},
        {"MoveUp", [](MenuDocument& document) { moveUp(document); }, true, true},
        {"MoveDown at the end", [](MenuDocument& document) { moveDown(document); }, false, true},
    };
    for (const auto& c : kCases) {
        for (const bool wasSet : {false, true}) {
            SCOPED_TRACE(std::string(c.name) + (wasSet ? " when set" : " when not set"));
            MenuDocument document("/program");
            addMenuItem(document);
            addMenuItem(document);
            document.apply(SetModified{wasSet});
            c.operation(document);
            EXPECT_EQ(document.bModified(), wasSet ? c.isStill : c.isSet);
        }
    }
}

}  // namespace
}  // namespace zev
