#include "script/loaded_keys.h"

namespace zev {

namespace {

constexpr std::string_view kPrefix = "KeyLoad ";

}  // namespace

std::string loadedMenuKey(std::string_view menuId) {
    std::string key(kPrefix);
    return key += menuId;
}

std::string loadedItemKey(std::string_view menuId, std::size_t position) {
    std::string key(kPrefix);
    if (menuId != kTopLevelMenuId) {
        key += menuId;
        key += 'i';
    }
    return key += std::to_string(position);
}

}  // namespace zev
