// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

// Small rules for text that ends up between single quotes in a script line.

/// Escapes every apostrophe that is not escaped yet: "It's" becomes "It\'s", "It\'s" stays.
std::string EscapeApostrophes(std::string_view text);

/// Removes quotes: mode 0 double quotes, mode 1 both kinds, mode 2 apostrophes.
std::string StripQuotes(std::string_view text, int mode);

}  // namespace zev
