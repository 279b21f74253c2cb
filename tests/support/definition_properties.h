// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "model/menu_properties.h"
#include "script/item_lines.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "text/text_encoding.h"

namespace zev::test {

/// True when a property keeps its value as it is written. A number, which has no quotes around it,
/// is cut at a quote or a semicolon, and a size loses what looks like its unit: such a value is
/// shorter each time it is read, until it holds none of them.
inline bool isPlain(const MenuPropertyRow& row, const MenuProp& prop) {
    const auto* const text = std::get_if<TextMember>(&row.member);
    if (!text || row.form == LineForm::Quoted)
        return true;
    const std::string& value = prop.*text->member;
    return row.form == LineForm::Number ? value.find_first_of("'\";") == std::string::npos
                                        : value.find("pt") == std::string::npos;
}

/// True when no default is left out whose missing line brings the factory's value back.
inline bool hasEveryDefault(const MenuProp& defaults) {
    const auto isThere = [&defaults](const MenuPropertyRow& row) {
        const auto* const text = std::get_if<TextMember>(&row.member);
        return !text || !text->factory || !*text->factory || row.inDefaults == LineRule::Never ||
               !(defaults.*text->member).empty();
    };
    return std::all_of(std::begin(kMenuProperties), std::end(kMenuProperties), isThere) &&
           defaults.Position >= 1 && defaults.Position <= 4;
}

/// True when reading what is written of a menu level brings its lines back.
inline bool isSettledLevel(const MenuProp& prop, const MenuProp& defaults) {
    // A level with fonts does not say which style it shares with the defaults, and comes back
    // without it.
    const bool losesStyle = prop.FontSet && ((prop.FontStyle && defaults.FontStyle) ||
                                             (prop.FontWeight && defaults.FontWeight));
    return !losesStyle &&
           std::all_of(std::begin(kMenuProperties), std::end(kMenuProperties),
                       [&prop](const MenuPropertyRow& row) { return isPlain(row, prop); });
}

/// True when writing, reading and writing a document must give the same bytes.
inline bool isSettled(const MenuContent& document) {
    const MenuProp& defaults = document.DefaultProp;
    const MenuProp& root = document.RootMenuProp;
    // Without their lines the top menu has ten columns and opens at the bottom.
    const bool hasRootPosition =
        defaults.Position == 2 ||
        (root.Position >= 1 && root.Position <= 4 && root.Position != defaults.Position);
    if (!hasEveryDefault(defaults) || root.Columns.empty() || !hasRootPosition ||
        !isSettledLevel(defaults, MenuProp()) || !isSettledLevel(root, defaults))
        return false;
    const MenuTree& tree = document.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        if (!isSettledLevel(*node->item.MenuProperty, defaults))
            return false;
    return true;
}

/// The tree, each item as its depth and its line.
inline std::string itemsOf(const MenuContent& document) {
    std::string text;
    const MenuTree& tree = document.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        for (const MenuNode* above = node->parent(); above; above = above->parent())
            text += ' ';
        text += GetText(node->item) + "\n";
    }
    return text;
}

/// Reads a definition, writes it and reads that, until it is settled; says the first thing wrong
/// with what comes of it, empty when nothing is.
///
/// The items are the same from the first reading on. So are the bytes, from the first writing of a
/// settled document on. Every other document is settled after as many readings as its longest
/// number has characters, and three more: a default comes back as the factory's, a menu's position
/// is then equal to it and left out, and comes back as a new menu's.
inline std::string problemOfDefinition(std::string_view bytes) {
    MenuContent document;
    ReadScript(std::string(bytes), document);
    const std::string items = itemsOf(document);
    std::string written = definitionFileBytes(GenerateScript(document));
    for (std::size_t readings = 0; !isSettled(document); ++readings) {
        if (readings > bytes.size() + 3)
            return "it is another at each reading";
        document = MenuContent();
        if (!ReadScript(written, document).warnings.empty())
            return "a line that is written is not understood";
        if (itemsOf(document) != items)
            return "an item is another when it is opened again";
        written = definitionFileBytes(GenerateScript(document));
    }
    if (!isValidUtf8(written))
        return "what is written is not UTF-8";
    MenuContent again;
    if (!ReadScript(written, again).warnings.empty())
        return "a line that is written is not understood";
    if (itemsOf(again) != items || again.ItemCounter != document.ItemCounter)
        return "an item is another when it is opened again";
    if (definitionFileBytes(GenerateScript(again)) != written)
        return "written again it has other bytes";
    return isSettled(again) ? "" : "opened again it is not settled";
}

}  // namespace zev::test
