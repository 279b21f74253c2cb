#include "model/text_rules.h"

namespace zev {

namespace {

std::string withoutCharacter(std::string_view text, char unwanted) {
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
        result = withoutCharacter(result, '"');
    if (mode >= 1)
        result = withoutCharacter(result, '\'');
    return result;
}

}  // namespace zev
