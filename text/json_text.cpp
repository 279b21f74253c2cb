// SPDX-License-Identifier: MIT
#include "text/json_text.h"

#include "text/text_encoding.h"

namespace zev {

namespace {

void appendEscaped(std::string& json, char character) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
        json += '\\';
        json += character;
    } else if (code < 0x20 || code == 0x7F) {
        json += "\\u00";
        json += kHexDigits[code >> 4];
        json += kHexDigits[code & 0xF];
    } else {
        json += character;
    }
}

}  // namespace

std::string jsonString(std::string_view text) {
    std::string converted;
    if (!isValidUtf8(text))
        text = converted = windows1252ToUtf8(text);
    std::string json = "\"";
    for (const char character : text)
        appendEscaped(json, character);
    return json += '"';
}

std::string jsonStrings(std::span<const std::string> texts) {
    std::string json = "[";
    for (const std::string& text : texts) {
        if (json.size() > 1)
            json += ", ";
        json += jsonString(text);
    }
    return json += ']';
}

}  // namespace zev
