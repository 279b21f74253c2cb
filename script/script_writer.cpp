#include "script/script_writer.h"

#include <algorithm>
#include <vector>

#include "script/submenu_walk.h"

namespace zev {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Writes one menu: the creation line, its properties and its items, the latter two each closed by
/// an empty line.
void WriteMenu(std::string& script, std::string_view id, const std::string& properties,
               const std::vector<MenuNode*>& items) {
    script += "zevmenu = new ZEVMenu('";
    script += id;
    script += "');";
    script += kLineEnd;
    script += properties;
    script += kLineEnd;
    for (const MenuNode* node : items) {
        script += node->item.GetText();
        script += kLineEnd;
    }
    script += kLineEnd;
}

}  // namespace

std::string GenerateScript(const MenuDocument& document) {
    const MenuProp& defaults = document.DefaultProp;
    const MenuTree& tree = document.tree;
    std::string script = defaults.GetDefaultText();
    script += kLineEnd;
    if (tree.isEmpty())
        return script;

    WriteMenu(script, "0", document.RootMenuProp.GetText(defaults), tree.topLevel());
    SubmenuWalk walk(tree);
    while (const MenuNode* node = walk.next())
        WriteMenu(script, walk.id(), node->item.MenuProperty.GetText(defaults), node->children());
    return script;
}

std::string DefinitionFileBytes(std::string_view script) {
    const bool isAscii =
        std::all_of(script.begin(), script.end(), [](char c) { return (c & 0x80) == 0; });
    std::string bytes;
    bytes.reserve(script.size() + 5);
    if (!isAscii)
        bytes += "\xEF\xBB\xBF";
    bytes += script;
    bytes += kLineEnd;
    return bytes;
}

}  // namespace zev
