// SPDX-License-Identifier: MIT
#include "model/menu_prop.h"

#include <gtest/gtest.h>

#include "tests/model/full_prop.h"

namespace zev {
namespace {

using test::FullProp;

TEST(MenuProp, AFreshSetIsEmpty) {
    const MenuProp prop;
    for (const auto member :
         {&MenuProp::BgImg,         &MenuProp::Columns,      &MenuProp::Divider,
          &MenuProp::HBgColor,      &MenuProp::HFtColor,     &MenuProp::HTMLAfter,
          &MenuProp::HTMLBefore,    &MenuProp::ItemBorder,   &MenuProp::MenuBorder,
          &MenuProp::NBgColor,      &MenuProp::NFtColor,     &MenuProp::Spacing,
          &MenuProp::Target,        &MenuProp::FontFamily,   &MenuProp::FontSize,
          &MenuProp::CellPadding,   &MenuProp::MenuOffset,   &MenuProp::CloseDelay,
          &MenuProp::FilterOpacity, &MenuProp::FilterShadow, &MenuProp::FilterFade,
          &MenuProp::marker,        &MenuProp::fold,         &MenuProp::openDelay,
          &MenuProp::label})
        EXPECT_EQ(prop.*member, "");
    EXPECT_FALSE(prop.FontStyle || prop.FontWeight || prop.FontSet);
    EXPECT_EQ(prop.Position, 0);
}

TEST(MenuPropSetDefault, LoadsTheFactoryDefaults) {
    MenuProp prop;
    prop.SetDefault();
    MenuProp expected;
    expected.Columns = "1";
    expected.CellPadding = "1";
    expected.HBgColor = "#888888";
    expected.HFtColor = "#000000";
    expected.NBgColor = "#000000";
    expected.NFtColor = "#FFFFFF";
    expected.MenuOffset = "1";
    expected.CloseDelay = "500";
    expected.FontFamily = "Arial";
    expected.FontSize = "10";
    expected.Position = 1;
    EXPECT_EQ(prop, expected);
}

TEST(MenuPropSetDefault, LeavesMembersWithoutAFactoryDefaultAlone) {
    MenuProp prop = FullProp();
    prop.SetDefault();
    const MenuProp full = FullProp();
    EXPECT_EQ(prop.Divider, full.Divider);
    EXPECT_EQ(prop.HTMLAfter, full.HTMLAfter);
    EXPECT_EQ(prop.HTMLBefore, full.HTMLBefore);
    EXPECT_EQ(prop.ItemBorder, full.ItemBorder);
    EXPECT_EQ(prop.MenuBorder, full.MenuBorder);
    EXPECT_EQ(prop.Target, full.Target);
    EXPECT_EQ(prop.FilterOpacity, full.FilterOpacity);
    EXPECT_EQ(prop.FilterShadow, full.FilterShadow);
    EXPECT_EQ(prop.FilterFade, full.FilterFade);
    EXPECT_EQ(prop.marker, full.marker);
    EXPECT_EQ(prop.fold, full.fold);
    EXPECT_EQ(prop.openDelay, full.openDelay);
    EXPECT_EQ(prop.label, full.label);
    EXPECT_TRUE(prop.FontSet);
    EXPECT_EQ(prop.BgImg, "");
    EXPECT_EQ(prop.Spacing, "");
    EXPECT_FALSE(prop.FontStyle);
    EXPECT_FALSE(prop.FontWeight);
}

}  // namespace
}  // namespace zev
