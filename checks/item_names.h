// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/menu_tree.h"

namespace zev {

/// A value of a menu as the browser has it: without the backslashes before apostrophes.
std::string withoutEscapes(std::string_view value);

/// What people know an item by: its caption as text; of a rollover item, its image. May be empty.
std::string itemName(const ItemProp& item);

/// The names of the items that lead to `node`, from the top level down, and its own. Of null, the
/// top-level menu: none.
std::vector<std::string> itemPath(const MenuNode* node);

}  // namespace zev
