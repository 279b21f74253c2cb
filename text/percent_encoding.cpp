// SPDX-License-Identifier: MIT
#include "text/percent_encoding.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace zev {

std::string percentDecoded(std::string_view text) {
    if (text.find('%') == std::string_view::npos)
        return std::string(text);
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned char byte = 0;
        if (text[at] == '%' && at + 2 < text.size()) {
            const char* const digits = text.data() + at + 1;
            const auto [end, error] = std::from_chars(digits, digits + 2, byte, 16);
            if (error == std::errc() && end == digits + 2) {
                result += static_cast<char>(byte);
                at += 2;
                continue;
            }
        }
        result += text[at];
    }
    return result;
}

}  // namespace zev
