// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "model/menu_content.h"
#include "model/menu_properties.h"
#include "script/item_lines.h"
#include "tests/model/tree_text.h"

namespace zev::test {

/// The lines joined as a definition file has them, each closed by CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

/// Every member of a property set that is not empty, zero or false.
inline std::string PropText(const MenuProp& prop) {
    std::string text = prop.FontSet ? " FontSet" : "";
    for (const MenuPropertyRow& row : kMenuProperties) {
        std::string value;
        if (const auto* const member = std::get_if<TextMember>(&row.member))
            value = prop.*member->member;
        else if (const auto* const flag = std::get_if<FlagMember>(&row.member))
            value = prop.*flag->member ? "true" : "";
        else if (const auto* const position = std::get_if<PositionMember>(&row.member))
            value = prop.*position->member ? std::to_string(prop.*position->member) : "";
        if (!value.empty())
            text += " " + std::string(row.name) + "=[" + value + "]";
    }
    return text;
}

inline std::string ItemText(const ItemProp& item) {
    return std::string(item.IsRollover ? "rollover" : "text") + " [" + item.Caption + "] [" +
           item.URL + "] [" + item.Target + "] [" + item.ImageOut + "] [" + item.ImageOver + "]" +
           PropText(*item.MenuProperty);
}

/// All that a definition file brings into a menu, as text: equal texts, equal menus.
inline std::string DocumentText(const MenuContent& document) {
    return "defaults" + PropText(document.DefaultProp) + "\nroot" +
           PropText(document.RootMenuProp) + "\ncounter " + std::to_string(document.ItemCounter) +
           "\n" +
           TreeText(
               document.tree,
               [](const MenuNode& node) {
                   return node.key() + " " + node.text + ": " + ItemText(node.item);
               });
}

/// Captions, links and images in their places, without keys and property sets.
inline std::string ItemLines(const MenuTree& tree) {
    return TreeText(
        tree, [](const MenuNode& node) { return node.text + ": " + GetText(node.item); });
}

}  // namespace zev::test
