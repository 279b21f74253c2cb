// SPDX-License-Identifier: MIT
#include "checks/longest_increasing.h"

#include <algorithm>

namespace zev {

std::vector<bool> longestIncreasing(std::span<const std::size_t> numbers) {
    constexpr auto kNone = static_cast<std::size_t>(-1);
    std::vector<std::size_t> lastOfLength;  // position of the smallest end of a sequence, by length
    std::vector<std::size_t> before(numbers.size(), kNone);
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        const auto place = std::lower_bound(
            lastOfLength.begin(), lastOfLength.end(), numbers[at],
            [&](std::size_t last, std::size_t number) { return numbers[last] < number; });
        if (place != lastOfLength.begin())
            before[at] = *(place - 1);
        if (place == lastOfLength.end())
            lastOfLength.push_back(at);
        else
            *place = at;
    }
    std::vector<bool> isInside(numbers.size());
    for (std::size_t at = lastOfLength.empty() ? kNone : lastOfLength.back(); at != kNone;
         at = before[at])
        isInside[at] = true;
    return isInside;
}

}  // namespace zev
