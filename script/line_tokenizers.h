// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zev {

// Tokenizers that take the lines of a definition script apart. Text is UTF-8; they cut only at
// ASCII characters, and where one drops "the last character" it drops a whole code point. What they
// return is part of `line`, as a line may be as long as the whole file.

/// The property name of a line such as "zevmenu.columns = 10;" ("columns"); "" when there is none.
std::string_view GetPropName(std::string_view line);

/// The value of such a line without its quotes, untrimmed; of "zevmenu.columns = 10;" it is " 10".
std::string_view GetPropValue(std::string_view line);

/// The id in "zevmenu = new ZEVMenu('3i2');" ("3i2"); "" when there is none.
std::string_view GetMenuId(std::string_view line);

}  // namespace zev
