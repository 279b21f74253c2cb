// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// Something in a menu that will not work for its visitors.
struct MenuProblem {
    enum class Kind { Value, Colour, Link, Anchor, Image, Caption };
    enum class Reason {
        BareApostrophe,  ///< it ends the text in the script too early
        LastBackslash,   ///< it takes the closing quote with it
        Placeholder,     ///< the mark that stands for an apostrophe while a file is read
        LineBreak,       ///< a text in the script ends with its line
        NoNumber,
        NoBorder,
        NoColour,
        NoFile,         ///< `value` names a file that is not there
        NoAnchor,       ///< the page is there, but has no such place
        NoAlternative,  ///< an image in a caption without alt
        NoCaption,
        SameCaption,  ///< as an item before it in its menu
    };
    Kind kind = Kind::Value;
    Reason reason = Reason::BareApostrophe;
    const MenuNode* item = nullptr;  ///< null: the top-level menu, or the defaults
    bool isDefault = false;          ///< one of the menu-wide defaults
    bool isProperty = false;         ///< of the menu (the item's submenu); else of the item itself
    std::string field = {};          ///< script name; of an item caption, url, target, out or over
    std::string value = {};          ///< what is wrong, as the browser has it
    bool operator==(const MenuProblem&) const = default;
};

/// What is wrong with the menu's values and captions: the defaults, the top-level menu, then the
/// items in tree order. No file is looked at.
std::vector<MenuProblem> findBrokenValues(const MenuContent& content);

}  // namespace zev
