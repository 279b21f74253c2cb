// SPDX-License-Identifier: MIT
#pragma once

#include "model/menu_prop.h"

namespace zev::test {

/// Every member set, each text to a value of its own.
inline MenuProp FullProp() {
    MenuProp prop;
    prop.BgImg = "bg.gif";
    prop.Columns = "3";
    prop.Divider = "|";
    prop.HBgColor = "#111111";
    prop.HFtColor = "#222222";
    prop.HTMLAfter = "after";
    prop.HTMLBefore = "before";
    prop.ItemBorder = "1px solid";
    prop.MenuBorder = "2px solid";
    prop.NBgColor = "#333333";
    prop.NFtColor = "transparent";
    prop.Spacing = "4";
    prop.Target = "main";
    prop.FontFamily = "Courier";
    prop.FontStyle = true;
    prop.FontWeight = true;
    prop.FontSize = "12";
    prop.Position = 3;
    prop.CellPadding = "5";
    prop.MenuOffset = "6";
    prop.CloseDelay = "700";
    prop.FontSet = true;
    prop.FilterOpacity = "80";
    prop.FilterShadow = "#444444";
    prop.FilterFade = "2";
    prop.marker = "<b>+</b>";
    prop.fold = "640";
    prop.openDelay = "120";
    prop.label = "Shop";
    return prop;
}

}  // namespace zev::test
