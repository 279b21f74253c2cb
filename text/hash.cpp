// SPDX-License-Identifier: MIT
#include "text/hash.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace zev {

namespace {

constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15U;  // odd, its bits evenly spread

std::uint64_t wordAt(const char* bytes, std::size_t count) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, count);
    return word;
}

/// Multiplying lets a bit act on those above it, shifting on those below.
std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    const std::uint64_t product = (hash ^ word) * kMultiplier;
    return product ^ (product >> 32);
}

/// Lets every bit act on every other.
std::uint64_t finished(std::uint64_t hash) {
    for (int round = 0; round < 3; ++round)
        hash = (hash ^ (hash >> 32)) * kMultiplier;
    return hash ^ (hash >> 32);
}

}  // namespace

std::uint64_t fileHashOf(std::string_view bytes) {
    constexpr std::size_t kWordBytes = sizeof(std::uint64_t);
    // Lanes do not wait for each other's multiplications.
    std::array<std::uint64_t, 4> lanes{kMultiplier, 2 * kMultiplier, 3 * kMultiplier,
                                       4 * kMultiplier};
    const std::uint64_t size = bytes.size();
    for (; bytes.size() >= lanes.size() * kWordBytes;
         bytes.remove_prefix(lanes.size() * kWordBytes))
        for (std::size_t lane = 0; lane < lanes.size(); ++lane)
            lanes[lane] = mixed(lanes[lane], wordAt(bytes.data() + lane * kWordBytes, kWordBytes));
    std::uint64_t hash = size;
    for (const std::uint64_t lane : lanes)
        hash = finished(hash ^ lane);
    for (; bytes.size() >= kWordBytes; bytes.remove_prefix(kWordBytes))
        hash = finished(hash ^ wordAt(bytes.data(), kWordBytes));
    return bytes.empty() ? hash : finished(hash ^ wordAt(bytes.data(), bytes.size()));
}

}  // namespace zev
