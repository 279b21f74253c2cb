// SPDX-License-Identifier: MIT
#include "script/submenu_list.h"

#include "script/submenu_walk.h"
#include "text/ascii.h"

namespace zev {

std::vector<Submenu> ListSubmenus(const MenuContent& content) {
    std::vector<Submenu> submenus;
    SubmenuWalk walk(content.tree);
    while (const MenuNode* node = walk.next())
        submenus.push_back({node->text, walk.id()});
    return submenus;
}

std::string submenuEntry(const Submenu& submenu) {
    return submenu.text + " (" + submenu.id + ")";
}

std::string_view submenuIdOf(std::string_view entry) {
    const std::size_t close = entry.rfind(')');
    const std::size_t open = entry.rfind('(');
    if (close == std::string_view::npos || open == std::string_view::npos || close < open)
        return {};
    return entry.substr(open + 1, close - open - 1);
}

bool isSubmenuId(std::string_view id) {
    char previous = 'i';
    for (const char c : id) {
        if (!isAsciiDigit(c) && (c != 'i' || previous == 'i'))
            return false;
        previous = c;
    }
    return previous != 'i';
}

}  // namespace zev
