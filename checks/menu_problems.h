// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/menu_content.h"
#include "script/menu_script.h"

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
        NoSide,       ///< no position that a submenu can have
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

// The parts that it is made of, which add to `problems`; whoever follows a menu looks at what
// changes.

/// What is wrong with the values of the item itself, as far as its type writes them. That a caption
/// stands in its menu twice, `CaptionIndex` knows.
void addBrokenValues(const MenuNode& node, std::vector<MenuProblem>& problems);
/// What is wrong in the properties of the item's submenu; of null, of the top-level menu or, with
/// `isDefault`, of the defaults.
void addBrokenValues(const MenuProp& prop, const MenuNode* node, bool isDefault,
                     std::vector<MenuProblem>& problems);
/// That an item has the caption of one before it in its menu.
MenuProblem sameCaption(const MenuNode& node);

/// What is wrong with a line that leaves no trace in the menu.
std::optional<MenuProblem> lineProblem(const LineEffect& effect);

/// The value, in the form of the script, with what breaks the script mended so that visitors see
/// the same as far as they can; nothing for a problem of another kind.
std::optional<std::string> mendedValue(const MenuProblem& problem);

}  // namespace zev
