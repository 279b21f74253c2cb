// SPDX-License-Identifier: MIT
#include "script/loaded_keys.h"

namespace zev {

std::string loadedMenuKey(std::string_view menuId) {
    return std::string("KeyLoad ").append(menuId);
}

std::string loadedItemKey(std::string_view menuId, std::size_t position) {
    const std::string number = std::to_string(position);
    if (menuId == kTopLevelMenuId)
        return loadedMenuKey(number);
    return loadedMenuKey(menuId) + 'i' + number;
}

}  // namespace zev
