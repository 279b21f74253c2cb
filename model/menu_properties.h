#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "model/menu_prop.h"

namespace zev {

/// How a text stands in its line.
enum class TextForm {
    Number,  ///< as it is: 10
    Quoted,  ///< 'transparent'
    Points,  ///< quoted and with the unit, which the member lacks: '10pt'
};

struct TextMember {
    std::string MenuProp::*member;
    TextForm form = TextForm::Quoted;
    const char* factory = nullptr;   ///< set by `SetDefault`; null: that leaves the member alone
    std::string_view starting = {};  ///< in the set of a new menu
};

/// Off in the factory's defaults and in a new menu.
struct FlagMember {
    bool MenuProp::*member;
    std::string_view word;  ///< stands for "on" in a line; "none" stands for "off"
};

/// A side, written as its word. 0, no side, in a new menu.
struct PositionMember {
    std::int16_t MenuProp::*member;
    std::int16_t factory;
};

enum class DefaultsLine { Never, WhenSet };

/// When a menu of its own has a line for a property.
enum class MenuLine {
    Never,
    WhenSet,
    WhenDifferent,   ///< set, and not to the value of the menu-wide defaults
    UnlessFactory,   ///< set, and not to the factory's value
    UnlessStarting,  ///< not the value of a new menu, which a missing line stands for: an empty
                     ///< value is written too
};

/// What sets a property apart from the others of its kind.
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
    DefaultsLine inDefaults;
    MenuLine inMenu;
    Special special = Special::None;
};

/// The rows, in the order of the lines in a file.
inline constexpr MenuPropertyRow kMenuProperties[] = {
    {"columns", TextMember{&MenuProp::Columns, TextForm::Number, "1"}, DefaultsLine::WhenSet,
     MenuLine::WhenSet},
    {"bgimage", TextMember{&MenuProp::BgImg, TextForm::Quoted, ""}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent},
    {"hbgcolor", TextMember{&MenuProp::HBgColor, TextForm::Quoted, "#888888"},
     DefaultsLine::WhenSet, MenuLine::WhenDifferent},
    {"hftcolor", TextMember{&MenuProp::HFtColor, TextForm::Quoted, "#000000"},
     DefaultsLine::WhenSet, MenuLine::WhenDifferent},
    {"nbgcolor", TextMember{&MenuProp::NBgColor, TextForm::Quoted, "#000000"},
     DefaultsLine::WhenSet, MenuLine::WhenDifferent},
    {"nftcolor", TextMember{&MenuProp::NFtColor, TextForm::Quoted, "#FFFFFF"},
     DefaultsLine::WhenSet, MenuLine::WhenDifferent},
    {"hspacing", TextMember{&MenuProp::Spacing, TextForm::Number, ""}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent},
    {"menuoffset", TextMember{&MenuProp::MenuOffset, TextForm::Number, "1"}, DefaultsLine::WhenSet,
     MenuLine::Never, Special::NotReadBack},
    {"closedelay", TextMember{&MenuProp::CloseDelay, TextForm::Number, "500"},
     DefaultsLine::WhenSet, MenuLine::Never, Special::NotReadBack},
    {"position", PositionMember{&MenuProp::Position, 1}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent},
    {"ffade", TextMember{&MenuProp::FilterFade}, DefaultsLine::Never, MenuLine::WhenSet},
    {"fopacity", TextMember{&MenuProp::FilterOpacity}, DefaultsLine::Never, MenuLine::WhenSet},
    {"fshadow", TextMember{&MenuProp::FilterShadow}, DefaultsLine::Never, MenuLine::WhenSet},
    {"fontFamily", TextMember{&MenuProp::FontFamily, TextForm::Quoted, "Arial"},
     DefaultsLine::WhenSet, MenuLine::WhenDifferent, Special::Font},
    {"fontSize", TextMember{&MenuProp::FontSize, TextForm::Points, "10"}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent, Special::Font},
    {"fontStyle", FlagMember{&MenuProp::FontStyle, "italic"}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent, Special::Font},
    {"fontWeight", FlagMember{&MenuProp::FontWeight, "bold"}, DefaultsLine::WhenSet,
     MenuLine::WhenDifferent, Special::Font},
    {"htmlAfter", TextMember{&MenuProp::HTMLAfter, TextForm::Quoted, nullptr, "&nbsp;&nbsp;"},
     DefaultsLine::Never, MenuLine::UnlessStarting},
    {"htmlBefore", TextMember{&MenuProp::HTMLBefore, TextForm::Quoted, nullptr, "&nbsp;&nbsp;"},
     DefaultsLine::Never, MenuLine::UnlessStarting},
    {"itemborder", TextMember{&MenuProp::ItemBorder}, DefaultsLine::Never, MenuLine::WhenSet},
    {"menuborder", TextMember{&MenuProp::MenuBorder}, DefaultsLine::Never, MenuLine::WhenSet},
    {"target", TextMember{&MenuProp::Target}, DefaultsLine::Never, MenuLine::WhenSet},
    {"cellpadding", TextMember{&MenuProp::CellPadding, TextForm::Number, "1"}, DefaultsLine::Never,
     MenuLine::UnlessFactory},
    {"divider", TextMember{&MenuProp::Divider, TextForm::Quoted, nullptr, "&nbsp;"},
     DefaultsLine::Never, MenuLine::UnlessStarting},
};

/// The row of a name; null when no property has it.
constexpr const MenuPropertyRow* findMenuProperty(std::string_view name) {
    for (const MenuPropertyRow& row : kMenuProperties) {
        if (row.name == name)
            return &row;
    }
    return nullptr;
}

}  // namespace zev
