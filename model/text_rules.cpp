// SPDX-License-Identifier: MIT
#include "model/text_rules.h"

namespace zev {

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
        std::erase(result, '"');
    if (mode >= 1)
        std::erase(result, '\'');
    return result;
}

}  // namespace zev
