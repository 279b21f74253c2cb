#pragma once

#include <string>
#include <vector>

#include "model/menu_document.h"

namespace zev {

/// One entry for each item that has children, in tree order: the node's text, a space and the
/// submenu's id in parentheses, for example "Products (1i2)".
std::vector<std::string> ListSubmenus(const MenuDocument& document);

}  // namespace zev
