#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

    bool operator==(const MenuProp&) const = default;

    /// Loads the factory defaults. Members without a factory default keep their value.
    void SetDefault();

    /// The `zev_state` lines of this set, each ending in CR LF. Meant for the menu-wide defaults.
    std::string GetDefaultText() const;

    /// The `zevmenu` lines of one menu level, each ending in CR LF; may be empty. Values equal to
    /// those of `defaults` are left out where inheritance supplies them.
    std::string GetText(const MenuProp& defaults) const;

    /// Assigns the property with the script name `StrProp` (exact, case-sensitive) from a value
    /// without quotes and semicolon; spaces around the value are dropped. Unknown names are
    /// ignored, "menuoffset" and "closedelay" among them: a file never brings those two back.
    void SetProperty(std::string_view StrProp, std::string_view StrValue);
};

}  // namespace zev
