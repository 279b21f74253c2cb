// SPDX-License-Identifier: MIT
#include "integrator/script_name.h"

#include <algorithm>
#include <cstddef>

#include "html/html_characters.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr std::size_t kMaxCharacters = 60;
// The line of a packed script can be of any length.
constexpr std::size_t kMaxBytes = 1024;
constexpr std::string_view kEllipsis = "\xE2\x80\xA6";

/// More than enough of it for a name, and no half code point.
std::string_view beginning(std::string_view text) {
    if (text.size() <= kMaxBytes)
        return text;
    const auto isInside = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    std::size_t end = kMaxBytes;
    // A code point in UTF-8 has at most three of them.
    for (int i = 0; i < 3 && isInside(end); ++i)
        --end;
    return text.substr(0, end);
}

/// Runs of white space and control characters as one blank, none at the ends.
std::string onOneLine(std::string_view text) {
    std::string line;
    bool hasGap = false;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) <= ' ') {
            hasGap = !line.empty();
            continue;
        }
        if (hasGap)
            line += ' ';
        hasGap = false;
        line += c;
    }
    return line;
}

bool isSilent(std::string_view line) {
    return line.empty() || line.starts_with("<!--") || line.starts_with("//");
}

struct FirstLine {
    std::string text;
    bool isAll = true;  ///< nothing follows
};

FirstLine firstLineOf(std::string_view script) {
    FirstLine first;
    while (!script.empty()) {
        const std::size_t end = std::min(script.find_first_of("\r\n"), script.size());
        const std::string line = onOneLine(beginning(script.substr(0, end)));
        script.remove_prefix(std::min(end + 1, script.size()));
        if (first.text.empty() || !isSilent(line))
            first.text = line;
        if (!isSilent(line)) {
            first.isAll = std::all_of(script.begin(), script.end(), isHtmlSpace);
            break;
        }
    }
    return first;
}

/// Keeps so many characters of a text in UTF-8.
void cutTo(std::string& text, std::size_t characterCount) {
    std::string_view rest = text;
    for (std::size_t count = 0; count < characterCount && !rest.empty(); ++count)
        rest.remove_prefix(firstCodePoint(rest).size());
    text.resize(text.size() - rest.size());
}

std::size_t characterCountOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(),
        [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

std::string scriptName(std::string_view src, std::string_view script) {
    FirstLine name = src.empty() ? firstLineOf(script) : FirstLine{onOneLine(beginning(src)), true};
    if (name.text.empty())
        return "an empty script";
    if (!isValidUtf8(name.text))
        name.text = windows1252ToUtf8(name.text);
    const bool isLong = characterCountOf(name.text) > kMaxCharacters - (name.isAll ? 0 : 1);
    if (isLong)
        cutTo(name.text, kMaxCharacters - 1);
    if (isLong || !name.isAll)
        name.text += kEllipsis;
    return name.text;
}

}  // namespace zev
