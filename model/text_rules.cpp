#include "model/text_rules.h"

#include <cstddef>

namespace zev {

namespace {

constexpr auto npos = std::string_view::npos;

/// Offset of the last code point of `text`; 0 when it is empty.
std::size_t LastCodePointOffset(std::string_view text) {
    std::size_t offset = text.size();
    while (offset > 0 && (text[--offset] & 0xC0) == 0x80) {
    }
    return offset;
}

std::string WithoutCharacter(std::string_view text, char unwanted) {
    std::string result(text);
    std::erase(result, unwanted);
    return result;
}

}  // namespace

std::string EscapeApostrophes(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    char previous = '\0';
    for (const char c : text) {
        if (c == '\'' && previous != '\\')
            result += '\\';
        result += c;
        previous = c;
    }
    return result;
}

std::string StripQuotes(std::string_view text, int mode) {
    std::string result(text);
    if (mode < 2)
        result = WithoutCharacter(result, '"');
    if (mode >= 1)
        result = WithoutCharacter(result, '\'');
    return result;
}

std::string GetPropName(std::string_view line) {
    const std::size_t dot = line.find('.');
    if (dot == npos)
        return {};
    const std::size_t equals = line.find('=', dot);
    if (equals == npos)
        return {};
    return std::string(TrimSpaces(line.substr(dot + 1, equals - dot - 1)));
}

std::string GetPropValue(std::string_view line) {
    const std::size_t apostrophe = line.find('\'');
    const std::size_t doubleQuote = line.find('"');
    std::size_t start;
    std::size_t end;
    if (apostrophe == npos && doubleQuote == npos) {
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
    if (end == npos || end == start)
        end = LastCodePointOffset(line);
    const std::size_t first = start == npos ? 0 : start + 1;
    return end <= first ? std::string() : std::string(line.substr(first, end - first));
}

std::string GetMenuId(std::string_view line) {
    const std::size_t call = line.find("ZEVMenu(");
    if (call == npos)
        return {};
    const std::size_t opening = line.find('\'', call);
    if (opening == npos)
        return {};
    const std::size_t closing = line.find('\'', opening + 1);
    if (closing == npos)
        return {};
    return std::string(line.substr(opening + 1, closing - opening - 1));
}

std::string_view TrimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool MatchesPattern(std::string_view text, std::string_view pattern) {
    std::size_t star = pattern.find('*');
    if (star == npos)
        return text == pattern;
    if (!text.starts_with(pattern.substr(0, star)))
        return false;
    text.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    // The first occurrence of each middle piece is as good as any later one: it leaves the most
    // text for the pieces that follow.
    while ((star = pattern.find('*')) != npos) {
        const std::string_view piece = pattern.substr(0, star);
        const std::size_t found = text.find(piece);
        if (found == npos)
            return false;
        text.remove_prefix(found + piece.size());
        pattern.remove_prefix(star + 1);
    }
    return text.ends_with(pattern);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t found = text.find(from);
    while (found != npos) {
        result += text.substr(0, found);
        result += to;
        text.remove_prefix(found + from.size());
        found = text.find(from);
    }
    result += text;
    return result;
}

}  // namespace zev
