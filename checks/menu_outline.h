// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/menu_content.h"

namespace zev {

/// The menu as text: a line for each item in tree order, two blanks a level, the item's name, a tab
/// and its link. Lines end in LF; there is none in an empty menu.
std::string menuOutline(const MenuContent& content);

/// The same as JSON: an array with an object ("caption", "url", "target" and "items", an array
/// again) for each item.
std::string menuOutlineJson(const MenuContent& content);

}  // namespace zev
