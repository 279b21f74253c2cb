// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "checks/menu_difference.h"

namespace zev {

/// The way to an item, as in "Products > News"; an item without a name is "?".
std::string itemPathText(std::span<const std::string> path);

/// The difference on one line, such as "moved Tea to Products > Tea" and
/// "changed Tea: url "a.html" to "b.html"".
std::string differenceText(const MenuDifference& difference);

}  // namespace zev
