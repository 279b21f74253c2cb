// SPDX-License-Identifier: MIT
#include "script/line_tokenizers.h"

#include <cstddef>

#include "text/ascii.h"

namespace zev {

namespace {

constexpr auto kNpos = std::string_view::npos;

/// Offset of the last code point of `text`; 0 when it is empty.
std::size_t lastCodePointOffset(std::string_view text) {
    std::size_t offset = text.size();
    while (offset > 0 && (text[--offset] & 0xC0) == 0x80) {
    }
    return offset;
}

}  // namespace

std::string_view GetPropName(std::string_view line) {
    const std::size_t dot = line.find('.');
    const std::size_t equals = line.find('=', dot);
    if (dot == kNpos || equals == kNpos)
        return {};
    return trimSpaces(line.substr(dot + 1, equals - dot - 1));
}

std::string_view GetPropValue(std::string_view line) {
    const std::size_t apostrophe = line.find('\'');
    const std::size_t doubleQuote = line.find('"');
    std::size_t start;
    std::size_t end;
    if (apostrophe == kNpos && doubleQuote == kNpos) {
        start = line.find('=');
        end = line.find(';');
    } else if (apostrophe < doubleQuote) {
        start = apostrophe;
        end = line.rfind('\'');
    } else {
        start = doubleQuote;
        end = line.rfind('"');
    }
    // A value that is not closed ends before the line's last character, which is usually the
    // semicolon.
    if (end == kNpos || end == start)
        end = lastCodePointOffset(line);
    const std::size_t first = start == kNpos ? 0 : start + 1;
    return end <= first ? std::string_view() : line.substr(first, end - first);
}

std::string_view GetMenuId(std::string_view line) {
    const std::size_t call = line.find("ZEVMenu(");
    if (call == kNpos)
        return {};
    const std::size_t opening = line.find('\'', call);
    if (opening == kNpos)
        return {};
    const std::size_t closing = line.find('\'', opening + 1);
    if (closing == kNpos)
        return {};
    return line.substr(opening + 1, closing - opening - 1);
}

}  // namespace zev
