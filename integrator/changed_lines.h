// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_edit.h"

namespace zev {

/// Neighbouring lines of a page that change together, in the page's own bytes.
struct ChangedLines {
    std::size_t line = 0;  ///< of the first one, counted from 1
    std::string before;    ///< lines joined by LF, without a last one
    std::string after;
    bool operator==(const ChangedLines&) const = default;
};

/// What the edits change, as a person compares it: whole lines, in the order of the page. Of a line
/// that is longer than `maxBytes`, as in a page that was packed, the part around the change is
/// given; an ellipsis (three dots) stands for the rest.
std::vector<ChangedLines> changedLines(std::string_view page, const std::vector<PageEdit>& edits,
                                       std::size_t maxBytes);

}  // namespace zev
