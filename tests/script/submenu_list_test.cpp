// SPDX-License-Identifier: MIT
#include "script/submenu_list.h"

#include <gtest/gtest.h>

#include "tests/model/tree_text.h"

namespace zev {
namespace {

using Entries = std::vector<std::string>;

Entries entriesOf(const MenuContent& document) {
    Entries entries;
    for (const Submenu& submenu : ListSubmenus(document)) {
        entries.push_back(submenuEntry(submenu));
        EXPECT_EQ(submenuIdOf(entries.back()), submenu.id) << entries.back();
    }
    return entries;
}

TEST(ListSubmenus, AnEmptyTreeHasNone) {
    EXPECT_EQ(entriesOf(MenuContent()), Entries());
}

TEST(ListSubmenus, ItemsWithoutChildrenAreCountedButNotListed) {
    MenuContent document;
    test::Grow(document.tree, {{0, "Home"}, {0, "Menu"}, {1, "x"}, {0, "Last"}});
    EXPECT_EQ(entriesOf(document), Entries({"Menu (2)"}));
}

TEST(ListSubmenus, EntriesComeInTreeOrderWithTheIdOfTheirPath) {
    MenuContent document;
    test::Grow(document.tree, {{0, "Menu"},
                               {1, "First"},
                               {1, "Products"},
                               {2, "a"},
                               {2, "b"},
                               {2, "Deep"},
                               {3, "leaf"},
                               {1, "Last"},
                               {2, "leaf 2"},
                               {0, "Other"},
                               {1, "leaf 3"}});
    EXPECT_EQ(entriesOf(document),
              Entries({"Menu (1)", "Products (1i2)", "Deep (1i2i3)", "Last (1i3)", "Other (2)"}));
}

TEST(ListSubmenus, ShowsTheNodesTextAsItStands) {
    MenuContent document;
    test::Grow(document.tree, {{0, "<b>It\\'s</b> (1)"}, {1, "x"}});
    EXPECT_EQ(entriesOf(document), Entries({"<b>It\\'s</b> (1) (1)"}));
}

TEST(ListSubmenus, TextAndIdAreKeptApart) {
    MenuContent document;
    test::Grow(document.tree, {{0, "Home"}, {0, "Prices (in EUR)"}, {1, "x"}});
    EXPECT_EQ(ListSubmenus(document), (std::vector<Submenu>{{"Prices (in EUR)", "2"}}));
}

TEST(SubmenuIdOf, IsWhatTheLastPairOfParenthesesHolds) {
    EXPECT_EQ(submenuIdOf("Prices (in EUR) (1i2)"), "1i2");
    EXPECT_EQ(submenuIdOf("After the pair (2) x"), "2");
    for (const char* const entry : {"", "Menu", "Menu (1", "Menu 1)", ")1(", ")(", "Empty ()"})
        EXPECT_EQ(submenuIdOf(entry), "") << entry;
}

TEST(IsSubmenuId, IsPositionsJoinedByTheLetterI) {
    for (const char* const id : {"1", "12", "1i2", "10i20i30"})
        EXPECT_TRUE(isSubmenuId(id)) << id;
    for (const char* const id : {"", "i", "i1", "1i", "1ii2", "1I2", "1 i2", "-1", "1'", "a", "1\n",
                                 "1');alert(1);//", "1&#39;", "1\\", "1\">"})
        EXPECT_FALSE(isSubmenuId(id)) << id;
}

}  // namespace
}  // namespace zev
