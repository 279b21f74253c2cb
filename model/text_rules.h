#pragma once

#include <string>
#include <string_view>

namespace zev {

// Small rules for text that ends up between single quotes in a script line, and tokenizers that
// take such lines apart. Text is UTF-8; the rules cut only at ASCII characters, and where one drops
// "the last character" it drops a whole code point.

/// Escapes every apostrophe that is not escaped yet: "It's" becomes "It\'s", "It\'s" stays.
std::string EscapeApostrophes(std::string_view text);

/// Removes quotes: mode 0 double quotes, mode 1 both kinds, mode 2 apostrophes.
std::string StripQuotes(std::string_view text, int mode);

/// The property name of a line such as "zevmenu.columns = 10;" ("columns"); "" when there is none.
std::string GetPropName(std::string_view line);

/// The value of such a line without its quotes, untrimmed; of "zevmenu.columns = 10;" it is " 10".
std::string GetPropValue(std::string_view line);

/// The id in "zevmenu = new ZEVMenu('3i2');" ("3i2"); "" when there is none.
std::string GetMenuId(std::string_view line);

/// `text` without the space characters at both ends. Only U+0020 counts: a tab stays.
std::string_view TrimSpaces(std::string_view text);

/// Wildcard match over the whole text: "*" stands for any run of bytes (also none), every other
/// character for itself, case-sensitively. Time is linear in the length of the text.
bool MatchesPattern(std::string_view text, std::string_view pattern);

/// `text` with every occurrence of `from` (not empty) replaced by `to`, from left to right.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace zev
