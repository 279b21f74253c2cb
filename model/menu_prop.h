// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace zev {

/// The property set of one menu level: look and behaviour of one box of items.
///
/// One class serves three owners: the menu-wide defaults, the top-level menu, and the submenu of
/// each item. All text is UTF-8 in the form in which it stands in the script; an empty text means
/// "not set". Nothing is validated here; the input fields do that.
struct MenuProp {
    std::string BgImg;          ///< URL of the box's background image
    std::string Columns;        ///< items per row; "1" is a vertical list
    std::string Divider;        ///< HTML between neighbouring items
    std::string HBgColor;       ///< background colour, highlighted: "#RRGGBB" or "transparent"
    std::string HFtColor;       ///< text colour, highlighted
    std::string HTMLAfter;      ///< HTML after each caption
    std::string HTMLBefore;     ///< HTML before each caption
    std::string ItemBorder;     ///< CSS border of each item
    std::string MenuBorder;     ///< CSS border of the box
    std::string NBgColor;       ///< background colour, normal state
    std::string NFtColor;       ///< text colour, normal state
    std::string Spacing;        ///< pixels between items
    std::string Target;         ///< default target frame of the items
    std::string FontFamily;     ///< font face
    bool FontStyle = false;     ///< italic
    bool FontWeight = false;    ///< bold
    std::string FontSize;       ///< points, digits only; the unit is added on output
    std::int16_t Position = 0;  ///< where a submenu opens: 0 none, 1 right, 2 bottom, 3 left, 4 top
    std::string CellPadding;    ///< pixels
    std::string MenuOffset;     ///< pixels between item and submenu; defaults only
    std::string CloseDelay;     ///< milliseconds; defaults only
    bool FontSet = false;       ///< this level has fonts of its own
    std::string FilterOpacity;  ///< percent, 1 to 100
    std::string FilterShadow;   ///< shadow colour
    std::string FilterFade;     ///< seconds, 0 to 5
    std::string marker;         ///< HTML of the mark at items with a submenu; defaults only
    std::string fold;           ///< pixels; narrower windows fold the top menu; defaults only
    std::string openDelay;      ///< milliseconds; defaults only
    std::string label;          ///< the menu's name for assistive technology; defaults only

    bool operator==(const MenuProp&) const = default;

    /// Loads the factory defaults. Members without a factory default keep their value.
    void SetDefault();
};

}  // namespace zev
