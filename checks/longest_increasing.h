// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace zev {

/// Which of the numbers, all different, make up a longest rising sequence: those that can stay
/// where they are when the others are put in order. Time grows with n log n.
std::vector<bool> longestIncreasing(std::span<const std::size_t> numbers);

}  // namespace zev
