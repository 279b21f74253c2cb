#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "model/menu_content.h"
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
    std::string text;
    const auto add = [&text](const char* name, const std::string& value) {
        if (!value.empty())
            text += std::string(" ") + name + "=[" + value + "]";
    };
    add("BgImg", prop.BgImg);
    add("Columns", prop.Columns);
    add("Divider", prop.Divider);
    add("HBgColor", prop.HBgColor);
    add("HFtColor", prop.HFtColor);
    add("HTMLAfter", prop.HTMLAfter);
    add("HTMLBefore", prop.HTMLBefore);
    add("ItemBorder", prop.ItemBorder);
    add("MenuBorder", prop.MenuBorder);
    add("NBgColor", prop.NBgColor);
    add("NFtColor", prop.NFtColor);
    add("Spacing", prop.Spacing);
    add("Target", prop.Target);
    add("FontFamily", prop.FontFamily);
    add("FontStyle", prop.FontStyle ? "true" : "");
    add("FontWeight", prop.FontWeight ? "true" : "");
    add("FontSize", prop.FontSize);
    add("Position", prop.Position ? std::to_string(prop.Position) : "");
    add("CellPadding", prop.CellPadding);
    add("MenuOffset", prop.MenuOffset);
    add("CloseDelay", prop.CloseDelay);
    add("FontSet", prop.FontSet ? "true" : "");
    add("FilterOpacity", prop.FilterOpacity);
    add("FilterShadow", prop.FilterShadow);
    add("FilterFade", prop.FilterFade);
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
           "\n" + TreeText(document.tree, [](const MenuNode& node) {
               return node.key() + " " + node.text + ": " + ItemText(node.item);
           });
}

/// Captions, links and images in their places, without keys and property sets.
inline std::string ItemLines(const MenuTree& tree) {
    return TreeText(tree,
                    [](const MenuNode& node) { return node.text + ": " + node.item.GetText(); });
}

}  // namespace zev::test
