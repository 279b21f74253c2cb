#include "script/script_writer.h"

#include <span>

#include "script/item_lines.h"
#include "script/property_lines.h"
#include "script/submenu_walk.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Writes one menu: the creation line, its properties and its items, the latter two each closed by
/// an empty line.
void writeMenu(std::string& script, std::string_view id, const std::string& properties,
               std::span<const MenuNode* const> items) {
    script += "zevmenu = new ZEVMenu('";
    script += id;
    script += "');";
    script += kLineEnd;
    script += properties;
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
    // About the length of an item's line each; room that is not used costs nothing.
    constexpr std::size_t kUsualLineBytes = 96;
    std::string script;
    script.reserve(1024 + tree.size() * kUsualLineBytes);
    script += GetDefaultText(defaults);
    script += kLineEnd;
    if (tree.isEmpty())
        return script;

    writeMenu(script, "0", GetText(content.RootMenuProp, defaults), tree.topLevel());
    SubmenuWalk walk(tree);
    while (const MenuNode* node = walk.next())
        writeMenu(script, walk.id(), GetText(*node->item.MenuProperty, defaults), node->children());
    return script;
}

std::string definitionFileBytes(std::string script) {
    if (!isAscii(script))
        script.insert(0, "\xEF\xBB\xBF");
    script += kLineEnd;
    return script;
}

}  // namespace zev
