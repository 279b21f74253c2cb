// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zev {

/// What a character can be to a state of the tokenizer: a bit each, so that one look answers for
/// several of them.
namespace html_character {
constexpr unsigned kSpace = 0x001;  ///< tab, line feed, form feed, carriage return, space
constexpr unsigned kSlash = 0x002;
constexpr unsigned kEqualsSign = 0x004;
constexpr unsigned kGreaterThan = 0x008;
constexpr unsigned kLessThan = 0x010;
constexpr unsigned kDoubleQuote = 0x020;
constexpr unsigned kSingleQuote = 0x040;
constexpr unsigned kUpperCase = 0x080;
/// After "<", begins a start tag, a comment or the like, whatever follows.
constexpr unsigned kMarkupStart = 0x100;
/// Begins the name of an element whose content is no markup.
constexpr unsigned kRawInitial = 0x200;
}  // namespace html_character

inline constexpr std::array<std::uint16_t, 256> kHtmlCharacters = [] {
    using namespace html_character;
    std::array<std::uint16_t, 256> table{};
    const auto add = [&table](std::string_view characters, unsigned kinds) {
        for (const char character : characters) {
            auto& entry = table[static_cast<unsigned char>(character)];
            entry = static_cast<std::uint16_t>(entry | kinds);
        }
    };
    add("\t\n\f\r ", kSpace);
    add("/", kSlash);
    add("=", kEqualsSign);
    add(">", kGreaterThan);
    add("<", kLessThan);
    add("\"", kDoubleQuote);
    add("'", kSingleQuote);
    add("abcdefghijklmnopqrstuvwxyz", kMarkupStart);
    add("ABCDEFGHIJKLMNOPQRSTUVWXYZ", kMarkupStart | kUpperCase);
    add("!?", kMarkupStart);
    add("inpstxINPSTX", kRawInitial);
    return table;
}();

/// The character's kinds.
inline unsigned htmlCharacter(char character) {
    return kHtmlCharacters[static_cast<unsigned char>(character)];
}

inline bool isHtmlSpace(char character) {
    return (htmlCharacter(character) & html_character::kSpace) != 0;
}

/// The offset of the first character of these kinds from `position` on; the text's size without
/// one.
inline std::size_t findHtmlCharacter(std::string_view text, std::size_t position, unsigned kinds) {
    while (position < text.size() && (htmlCharacter(text[position]) & kinds) == 0)
        ++position;
    return position;
}

}  // namespace zev
