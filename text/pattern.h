// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// Wildcard match over the whole text: "*" stands for any run of bytes (also none), every other
/// character for itself, case-sensitively. Time is linear in the length of the text.
bool matchesPattern(std::string_view text, std::string_view pattern);

/// `text` with every occurrence of `from` (not empty) replaced by `to`, from left to right.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace zev
