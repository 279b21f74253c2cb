// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace zev {

/// FNV-1a of 64 bits, the same on every system. It tells apart texts that differ by chance; it is
/// no guard against somebody who wants two texts to have the same.
constexpr std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 1099511628211U;
    }
    return hash;
}

/// A faster one for whole files, on machines of the same byte order the same. Like `hashOf` it
/// guards against chance only.
std::uint64_t fileHashOf(std::string_view bytes);

}  // namespace zev
