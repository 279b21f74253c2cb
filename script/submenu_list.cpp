#include "script/submenu_list.h"

#include "script/submenu_walk.h"

namespace zev {

std::vector<std::string> ListSubmenus(const MenuContent& content) {
    std::vector<std::string> entries;
    SubmenuWalk walk(content.tree);
    while (const MenuNode* node = walk.next())
        entries.push_back(node->text + " (" + walk.id() + ")");
    return entries;
}

}  // namespace zev
