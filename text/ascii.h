// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

namespace zev {

// ASCII's letters, digits and blanks, whatever the system's language. Bytes outside ASCII are none
// of them, and every function leaves them as they are.

constexpr bool isAsciiUpper(char character) {
    return character >= 'A' && character <= 'Z';
}

constexpr char asciiLower(char character) {
    return isAsciiUpper(character) ? static_cast<char>(character | 0x20) : character;
}

constexpr bool isAsciiLetter(char character) {
    return isAsciiUpper(character) || (character >= 'a' && character <= 'z');
}

constexpr bool isAsciiDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Equality without the case of ASCII letters.
inline bool equalsIgnoringCase(std::string_view left, std::string_view right) {
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(),
        [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

/// `text` without the space characters at both ends. Only U+0020 counts: a tab stays.
constexpr std::string_view trimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace zev
