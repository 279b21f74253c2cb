#include "script/submenu_list.h"

#include <gtest/gtest.h>

#include "tests/model/tree_text.h"

namespace zev {
namespace {

using Entries = std::vector<std::string>;

TEST(ListSubmenus, AnEmptyTreeHasNone) {
    EXPECT_EQ(ListSubmenus(MenuContent()), Entries());
}

TEST(ListSubmenus, ItemsWithoutChildrenAreCountedButNotListed) {
    MenuContent document;
    test::Grow(document.tree, {{0, "Home"}, {0, "Menu"}, {1, "x"}, {0, "Last"}});
    EXPECT_EQ(ListSubmenus(document), Entries({"Menu (2)"}));
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
    EXPECT_EQ(ListSubmenus(document),
              Entries({"Menu (1)", "Products (1i2)", "Deep (1i2i3)", "Last (1i3)", "Other (2)"}));
}

TEST(ListSubmenus, ShowsTheNodesTextAsItStands) {
    MenuContent document;
    test::Grow(document.tree, {{0, "<b>It\\'s</b> (1)"}, {1, "x"}});
    EXPECT_EQ(ListSubmenus(document), Entries({"<b>It\\'s</b> (1) (1)"}));
}

}  // namespace
}  // namespace zev
