// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "model/menu_content.h"

namespace zev {

/// What a line of a definition script is about.
struct ScriptPlace {
    enum class Part {
        None,      ///< an empty line, or one that the script does not have
        Defaults,  ///< a menu-wide default
        Menu,      ///< a menu or a property of it
        Item,
    };
    Part part = Part::None;
    const MenuNode* node =
        nullptr;  ///< the item; of a menu the one that opens it, null for the top
};

/// The part of the menu that `GenerateScript` makes this line of, counted from 1. A value with line
/// breaks has several lines.
ScriptPlace placeOfLine(const MenuContent& content, std::size_t line);

}  // namespace zev
