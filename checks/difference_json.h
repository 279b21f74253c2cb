// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "checks/menu_difference.h"

namespace zev {

/// The differences as JSON, an array of objects: "kind", "owner" ("item", "menu" or "defaults"),
/// "item", "field", "old" and "new", the latter two of a moved item its paths.
std::string differencesJson(std::span<const MenuDifference> differences);

}  // namespace zev
