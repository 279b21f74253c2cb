#pragma once

#include <string>
#include <string_view>

namespace zev {

// Tokenizers that take the lines of a definition script apart. Text is UTF-8; they cut only at
// ASCII characters, and where one drops "the last character" it drops a whole code point.

/// The property name of a line such as "zevmenu.columns = 10;" ("columns"); "" when there is none.
std::string GetPropName(std::string_view line);

/// The value of such a line without its quotes, untrimmed; of "zevmenu.columns = 10;" it is " 10".
std::string GetPropValue(std::string_view line);

/// The id in "zevmenu = new ZEVMenu('3i2');" ("3i2"); "" when there is none.
std::string GetMenuId(std::string_view line);

}  // namespace zev
