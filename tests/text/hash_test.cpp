// SPDX-License-Identifier: MIT
#include "text/hash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

namespace zev {
namespace {

TEST(FileHashTest, TellsEverySizeAndEveryChangedBitApart) {
    std::set<std::uint64_t> hashes;
    std::string bytes;
    std::size_t count = 0;
    for (; bytes.size() < 100; bytes += '\0') {
        hashes.insert(fileHashOf(bytes));
        ++count;
        for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit) {
            std::string changed = bytes;
            changed[bit / 8] = static_cast<char>(1U << (bit % 8));
            hashes.insert(fileHashOf(changed));
            ++count;
        }
    }
    EXPECT_EQ(hashes.size(), count);
}

TEST(FileHashTest, TellsTwoWordsThatAreExchangedApart) {
    std::string bytes;
    for (int i = 0; i < 128; ++i)
        bytes += static_cast<char>(i);
    const std::uint64_t hash = fileHashOf(bytes);
    EXPECT_EQ(fileHashOf(std::string(bytes)), hash);
    for (std::size_t a = 0; a < 128; a += 8)
        for (std::size_t b = a + 8; b < 128; b += 8) {
            std::string exchanged = bytes;
            std::swap_ranges(exchanged.begin() + static_cast<std::ptrdiff_t>(a),
                             exchanged.begin() + static_cast<std::ptrdiff_t>(a + 8),
                             exchanged.begin() + static_cast<std::ptrdiff_t>(b));
            EXPECT_NE(fileHashOf(exchanged), hash) << a << " " << b;
        }
}

}  // namespace
}  // namespace zev
