// SPDX-License-Identifier: MIT
#include "checks/item_names.h"

#include <algorithm>

#include "html/caption_text.h"
#include "text/pattern.h"

namespace zev {

std::string withoutEscapes(std::string_view value) {
    return replaceAll(value, "\\'", "'");
}

std::string itemName(const ItemProp& item) {
    if (item.IsRollover)
        return withoutEscapes(item.ImageOut);
    return captionText(withoutEscapes(item.Caption));
}

std::vector<std::string> itemPath(const MenuNode* node) {
    std::vector<std::string> path;
    for (; node; node = node->parent())
        path.push_back(itemName(node->item));
    std::reverse(path.begin(), path.end());
    return path;
}

}  // namespace zev
