// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zev {

/// A line of a file that is changed, dropped or new.
struct LineChange {
    std::size_t line = 0;                ///< in the old text, from 1; of a new line, where it goes
    std::optional<std::string> oldText;  ///< none: the line is new
    std::optional<std::string> newText;  ///< none: the line is dropped
    bool operator==(const LineChange&) const = default;
};

/// The lines in which two definition files differ, in their order; both are given as the whole
/// content. Spaces at a line's ends, line ends and encoding make no difference.
std::vector<LineChange> changedLines(std::string oldBytes, std::string newBytes);

}  // namespace zev
