// SPDX-License-Identifier: MIT
#include "model/shared_menu_prop.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(SharedMenuProp, AFreshOneIsTheEmptySet) {
    EXPECT_EQ(*SharedMenuProp(), MenuProp());
}

TEST(SharedMenuProp, EditingACopyLeavesTheOthersAsTheyWere) {
    MenuProp prop;
    prop.Columns = "2";
    const SharedMenuProp original = prop;
    SharedMenuProp copy = original;
    EXPECT_EQ(&*copy, &*original);
    copy.edit().Columns = "3";
    EXPECT_EQ(copy->Columns, "3");
    EXPECT_EQ(original->Columns, "2");
}

TEST(SharedMenuProp, EditingTheOnlyHolderMakesNoCopy) {
    SharedMenuProp only = MenuProp();
    const MenuProp* before = &*only;
    only.edit().Columns = "3";
    EXPECT_EQ(&*only, before);
}

TEST(SharedMenuProp, EditingTheEmptySetLeavesOtherEmptySetsEmpty) {
    SharedMenuProp edited;
    edited.edit().Columns = "3";
    EXPECT_EQ(edited->Columns, "3");
    EXPECT_EQ(SharedMenuProp()->Columns, "");
}

TEST(SharedMenuProp, EqualityIsThatOfTheSets) {
    MenuProp prop;
    prop.Columns = "2";
    EXPECT_EQ(SharedMenuProp(prop), SharedMenuProp(prop));
    EXPECT_EQ(SharedMenuProp(), SharedMenuProp(MenuProp()));
    EXPECT_FALSE(SharedMenuProp(prop) == SharedMenuProp());
}

}  // namespace
}  // namespace zev
