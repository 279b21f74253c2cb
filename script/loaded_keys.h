// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zev {

/// Id of the top-level menu. Another menu's id is the positions of the items that lead to it, from
/// 1 and joined by "i": "2i1".
inline constexpr std::string_view kTopLevelMenuId = "0";

/// Tree key of the item that opens the menu of this id.
std::string loadedMenuKey(std::string_view menuId);

/// Tree key of an item read from a file: that of the menu it opens, whether it opens one or not.
/// `position` in the menu of this id is counted from 1.
std::string loadedItemKey(std::string_view menuId, std::size_t position);

}  // namespace zev
