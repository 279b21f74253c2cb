// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// `text` with each byte that `isKept` gives false for as "%22" and the like.
template <typename IsKept>
std::string percentEncoded(std::string_view text, IsKept isKept) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(text.size());
    for (const char c : text) {
        if (isKept(c)) {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += kDigits[byte >> 4];
        encoded += kDigits[byte & 0xF];
    }
    return encoded;
}

/// "%22" and the like as the bytes they stand for; everything else as it is.
std::string percentDecoded(std::string_view text);

}  // namespace zev
