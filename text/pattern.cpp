// SPDX-License-Identifier: MIT
#include "text/pattern.h"

#include <cstddef>

namespace zev {

namespace {

constexpr auto kNpos = std::string_view::npos;

}  // namespace

bool matchesPattern(std::string_view text, std::string_view pattern) {
    std::size_t star = pattern.find('*');
    if (star == kNpos)
        return text == pattern;
    if (!text.starts_with(pattern.substr(0, star)))
        return false;
    text.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    // The first occurrence of each middle piece is as good as any later one: it leaves the most
    // text for the pieces that follow.
    while ((star = pattern.find('*')) != kNpos) {
        const std::string_view piece = pattern.substr(0, star);
        const std::size_t found = text.find(piece);
        if (found == kNpos)
            return false;
        text.remove_prefix(found + piece.size());
        pattern.remove_prefix(star + 1);
    }
    return text.ends_with(pattern);
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t found = text.find(from);
    while (found != kNpos) {
        result += text.substr(0, found);
        result += to;
        text.remove_prefix(found + from.size());
        found = text.find(from);
    }
    result += text;
    return result;
}

}  // namespace zev
