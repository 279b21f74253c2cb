// SPDX-License-Identifier: MIT
#include "checks/menu_outline.h"

#include <cstddef>

#include "checks/item_names.h"
#include "checks/menu_levels.h"
#include "text/json_text.h"

namespace zev {

namespace {

/// Up to the bracket of the array of its items.
void appendItemStart(std::string& json, const ItemProp& item) {
    json += "{\"caption\": " + jsonString(itemName(item)) +
            ", \"url\": " + jsonString(withoutEscapes(item.URL)) +
            ", \"target\": " + jsonString(withoutEscapes(item.Target)) + ", \"items\": [";
}

}  // namespace

std::string menuOutline(const MenuContent& content) {
    std::string text;
    visitLevels(content.tree, [&](const MenuNode& node, std::size_t level) {
        text.append(2 * level, ' ');
        text += itemName(node.item) + '\t' + withoutEscapes(node.item.URL) + '\n';
    });
    return text;
}

std::string menuOutlineJson(const MenuContent& content) {
    std::string json = "[";
    std::size_t openLevels = 0;
    const auto closeTo = [&](std::size_t level) {
        for (; openLevels > level; --openLevels)
            json += "]}";
    };
    visitLevels(content.tree, [&](const MenuNode& node, std::size_t level) {
        closeTo(level);
        json += node.row() > 0 ? ",\n" : "\n";
        appendItemStart(json, node.item);
        ++openLevels;
    });
    closeTo(0);
    return json += content.tree.isEmpty() ? "]\n" : "\n]\n";
}

}  // namespace zev
