// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// One way in which a menu differs from an older one.
struct MenuDifference {
    enum class Kind { Moved, Changed, Added, Removed };
    /// What it is about: an item, a property of the menu that opens from it (of the top-level menu
    /// when there is no item), or one of the menu-wide defaults.
    enum class Owner { Item, Menu, Defaults };
    Kind kind = Kind::Changed;
    Owner owner = Owner::Item;
    /// `itemPath` in the new menu; of what was removed, in the old one.
    std::vector<std::string> item = {};
    /// "caption", "url", "target", "out", "over" or the property's name in the script; empty when
    /// it is the item as a whole.
    std::string field = {};
    std::string oldValue = {};  ///< as the browser has it; empty is not set
    std::string newValue = {};
    std::vector<std::string> oldPath = {};  ///< of a moved item, before; the same within one menu
    bool operator==(const MenuDifference&) const = default;
};

/// What has become of `oldMenu`, in the order of the new menu and then, for what was removed, of
/// the old one. An item is matched with the one that it most likely was; how items are numbered,
/// and where they stand in the file, makes no difference. A branch that was moved as it is counts
/// once.
std::vector<MenuDifference> compareMenus(const MenuContent& oldMenu, const MenuContent& newMenu);

}  // namespace zev
