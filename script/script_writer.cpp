// SPDX-License-Identifier: MIT
#include "script/script_writer.h"

#include <span>

#include "script/item_lines.h"
#include "script/property_lines.h"
#include "script/submenu_walk.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// About the room that the script takes. What is not used of it costs nothing, while a text that
/// has outgrown its room stands in memory twice until it has moved.
std::size_t roomFor(const MenuTree& tree) {
    constexpr std::size_t kUsualLineBytes = 96;
    std::size_t room = 1024 + tree.size() * kUsualLineBytes;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        const ItemProp& item = node->item;
        for (const std::string* text :
             {&item.Caption, &item.URL, &item.Target, &item.ImageOut, &item.ImageOver})
            room += text->size() > kUsualLineBytes ? text->size() : 0;
    }
    return room;
}

/// Writes one menu: the creation line, its properties and its items, the latter two each closed by
/// an empty line.
void writeMenu(std::string& script, std::string_view id, const MenuProp& properties,
               const MenuProp& defaults, std::span<const MenuNode* const> items) {
    script += "zevmenu = new ZEVMenu('";
    script += id;
    script += "');";
    script += kLineEnd;
    appendText(script, properties, defaults);
    script += kLineEnd;
    for (const MenuNode* node : items) {
        appendText(script, node->item);
        script += kLineEnd;
    }
    script += kLineEnd;
}

}  // namespace

std::string GenerateScript(const MenuContent& content) {
    const MenuProp& defaults = content.DefaultProp;
    const MenuTree& tree = content.tree;
    std::string script;
    script.reserve(roomFor(tree));
    script += GetDefaultText(defaults);
    script += kLineEnd;
    if (tree.isEmpty())
        return script;

    writeMenu(script, "0", content.RootMenuProp, defaults, tree.topLevel());
    SubmenuWalk walk(tree);
    while (const MenuNode* node = walk.next())
        writeMenu(script, walk.id(), *node->item.MenuProperty, defaults, node->children());
    return script;
}

std::string definitionFileBytes(std::string script) {
    if (!isAscii(script))
        script.insert(0, "\xEF\xBB\xBF");
    script += kLineEnd;
    return script;
}

}  // namespace zev
