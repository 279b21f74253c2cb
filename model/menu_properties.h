// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "model/menu_prop.h"

namespace zev {

struct TextMember {
    std::string MenuProp::*member;
    const char* factory = nullptr;   ///< set by `SetDefault`; null: that leaves the member alone
    std::string_view starting = {};  ///< in the set of a new menu
};

/// Off in the factory's defaults and in a new menu.
struct FlagMember {
    bool MenuProp::*member;
    std::string_view word;  ///< stands for "on" in a line; "none" stands for "off"
};

/// A side, which a line holds as its word. 0, no side, in a new menu.
struct PositionMember {
    std::int16_t MenuProp::*member;
    std::int16_t factory;
};

/// How the value stands in its line.
enum class LineForm {
    Number,  ///< as it is: 10
    Quoted,  ///< 'transparent'
    Points,  ///< quoted and with the unit, which the member lacks: '10pt'
};

/// When there is a line.
enum class LineRule {
    Never,
    WhenSet,
    WhenDifferent,   ///< set, and not to the value of the menu-wide defaults
    UnlessFactory,   ///< set, and not to the factory's value
    UnlessStarting,  ///< not the value of a new menu, which a missing line stands for: an empty
                     ///< value is written too
};

/// What sets a property apart.
enum class Special {
    None,
    Font,         ///< a menu writes it only with `FontSet`, which reading it sets
    NotReadBack,  ///< reading a file leaves it as it is
};

/// All there is to say about one property of a menu. What a definition file holds of a property
/// set, what it starts with and what the factory sets all come from these rows.
struct MenuPropertyRow {
    std::string_view name;  ///< in the script; case-sensitive
    std::variant<TextMember, FlagMember, PositionMember> member;
    LineForm form;
    LineRule inDefaults;  ///< among the lines of the menu-wide defaults
    LineRule inMenu;      ///< among those of a menu
    Special special = Special::None;
};

/// The rows, in the order of the lines in a file.
inline constexpr auto kMenuProperties = [] {
    using enum LineForm;
    using enum LineRule;
    using enum Special;
    using P = MenuProp;
    return std::to_array<MenuPropertyRow>({
        {"columns", TextMember{&P::Columns, "1"}, Number, WhenSet, WhenSet},
        {"bgimage", TextMember{&P::BgImg, ""}, Quoted, WhenSet, WhenDifferent},
        {"hbgcolor", TextMember{&P::HBgColor, "#888888"}, Quoted, WhenSet, WhenDifferent},
        {"hftcolor", TextMember{&P::HFtColor, "#000000"}, Quoted, WhenSet, WhenDifferent},
        {"nbgcolor", TextMember{&P::NBgColor, "#000000"}, Quoted, WhenSet, WhenDifferent},
        {"nftcolor", TextMember{&P::NFtColor, "#FFFFFF"}, Quoted, WhenSet, WhenDifferent},
        {"hspacing", TextMember{&P::Spacing, ""}, Number, WhenSet, WhenDifferent},
        {"menuoffset", TextMember{&P::MenuOffset, "1"}, Number, WhenSet, Never, NotReadBack},
        {"closedelay", TextMember{&P::CloseDelay, "500"}, Number, WhenSet, Never, NotReadBack},
        {"position", PositionMember{&P::Position, 1}, Quoted, WhenSet, WhenDifferent},
        {"ffade", TextMember{&P::FilterFade}, Quoted, Never, WhenSet},
        {"fopacity", TextMember{&P::FilterOpacity}, Quoted, Never, WhenSet},
        {"fshadow", TextMember{&P::FilterShadow}, Quoted, Never, WhenSet},
        {"fontFamily", TextMember{&P::FontFamily, "Arial"}, Quoted, WhenSet, WhenDifferent, Font},
        {"fontSize", TextMember{&P::FontSize, "10"}, Points, WhenSet, WhenDifferent, Font},
        {"fontStyle", FlagMember{&P::FontStyle, "italic"}, Quoted, WhenSet, WhenDifferent, Font},
        {"fontWeight", FlagMember{&P::FontWeight, "bold"}, Quoted, WhenSet, WhenDifferent, Font},
        {"htmlAfter", TextMember{&P::HTMLAfter, nullptr, "&nbsp;&nbsp;"}, Quoted, Never,
         UnlessStarting},
        {"htmlBefore", TextMember{&P::HTMLBefore, nullptr, "&nbsp;&nbsp;"}, Quoted, Never,
         UnlessStarting},
        {"itemborder", TextMember{&P::ItemBorder}, Quoted, Never, WhenSet},
        {"menuborder", TextMember{&P::MenuBorder}, Quoted, Never, WhenSet},
        {"target", TextMember{&P::Target}, Quoted, Never, WhenSet},
        {"cellpadding", TextMember{&P::CellPadding, "1"}, Number, Never, UnlessFactory},
        {"divider", TextMember{&P::Divider, nullptr, "&nbsp;"}, Quoted, Never, UnlessStarting},
        {"marker", TextMember{&P::marker}, Quoted, WhenSet, Never},
        {"fold", TextMember{&P::fold}, Number, WhenSet, Never},
        {"opendelay", TextMember{&P::openDelay}, Number, WhenSet, Never},
        {"label", TextMember{&P::label}, Quoted, WhenSet, Never},
    });
}();

/// The row of a name; null when no property has it.
constexpr const MenuPropertyRow* findMenuProperty(std::string_view name) {
    for (const MenuPropertyRow& row : kMenuProperties)
        if (row.name == name)
            return &row;
    return nullptr;
}

}  // namespace zev
