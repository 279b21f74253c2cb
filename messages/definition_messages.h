// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace zev {

/// What the person is told of a definition that holds more items than a menu can; `count` of them
/// were left out when it was read.
std::string itemsLeftOutText(const std::string& path, std::size_t count);

/// Why such a definition is not written over: the end of "menu.js: ...".
std::string losesItemsText(std::size_t count);

}  // namespace zev
