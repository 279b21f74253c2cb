#pragma once

#include <cstddef>
#include <string_view>

namespace zev {

inline bool isAsciiUpper(char character) {
    return character >= 'A' && character <= 'Z';
}

inline char asciiLower(char character) {
    return isAsciiUpper(character) ? static_cast<char>(character | 0x20) : character;
}

inline bool isAsciiLetter(char character) {
    const char lower = asciiLower(character);
    return lower >= 'a' && lower <= 'z';
}

/// Tab, line feed, form feed, carriage return, space.
inline bool isHtmlSpace(char character) {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t' ||
           character == '\f';
}

/// Equality without the case of ASCII letters.
inline bool equalsIgnoringCase(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (asciiLower(left[i]) != asciiLower(right[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace zev
