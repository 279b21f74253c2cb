// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// A submenu that can open by itself.
struct Submenu {
    std::string text;  ///< of the item that opens it
    std::string id;    ///< such as "1i2"
    bool operator==(const Submenu&) const = default;
};

/// One for each item that has children, in tree order.
std::vector<Submenu> ListSubmenus(const MenuContent& content);

/// A submenu as people see it and hand it on: the text, a space and the id in parentheses, for
/// example "Products (1i2)".
std::string submenuEntry(const Submenu& submenu);

/// The id in such an entry: what stands between the last "(" and the last ")". Empty without that
/// pair.
std::string_view submenuIdOf(std::string_view entry);

/// True for positions joined by "i", such as "1i2": what a submenu's id can be.
bool isSubmenuId(std::string_view id);

}  // namespace zev
