#pragma once

#include <string>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// One entry for each item that has children, in tree order: the node's text, a space and the
/// submenu's id in parentheses, for example "Products (1i2)".
std::vector<std::string> ListSubmenus(const MenuContent& content);

}  // namespace zev
