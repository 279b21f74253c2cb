// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zev {

/// Sixteen characters that are looked at in one step, through the vector types that the compiler
/// turns into instructions of whatever machine it is for. Comparing them gives a mask: all bits of
/// a character's place, or none.
using HtmlVector [[gnu::vector_size(16)]] = unsigned char;
constexpr std::size_t kHtmlVectorBytes = sizeof(HtmlVector);

/// The characters from `position` on; so many there must be.
inline HtmlVector htmlVectorAt(std::string_view text, std::size_t position) {
    HtmlVector vector;
    std::memcpy(&vector, text.data() + position, sizeof vector);
    return vector;
}

/// The first place that is set; `kHtmlVectorBytes` without one.
template <typename Mask>
std::size_t firstInMask(const Mask& mask) {
    std::array<std::uint64_t, 2> halves{};
    static_assert(sizeof halves == sizeof mask);
    std::memcpy(halves.data(), &mask, sizeof mask);
    const auto bytesBefore = [](std::uint64_t half) {
        return static_cast<std::size_t>(std::endian::native == std::endian::little
                                            ? std::countr_zero(half)
                                            : std::countl_zero(half)) /
               8;
    };
    return halves[0] != 0 ? bytesBefore(halves[0]) : 8 + bytesBefore(halves[1]);
}

/// The offset of the first of these characters from `position` on; the text's size without one.
inline std::size_t findEither(std::string_view text, std::size_t position, char one, char other) {
    for (; position + kHtmlVectorBytes <= text.size(); position += kHtmlVectorBytes) {
        const HtmlVector vector = htmlVectorAt(text, position);
        const std::size_t first = firstInMask((vector == static_cast<unsigned char>(one)) |
                                              (vector == static_cast<unsigned char>(other)));
        if (first < kHtmlVectorBytes)
            return position + first;
    }
    while (position < text.size() && text[position] != one && text[position] != other)
        ++position;
    return position;
}

}  // namespace zev
