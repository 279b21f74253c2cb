// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// One change of a page: from an offset on, so many bytes of the old page give way to a text.
/// Offset and length count bytes; a length of 0 inserts.
struct PageEdit {
    std::size_t offset = 0;
    std::size_t length = 0;
    std::string text;
    bool operator==(const PageEdit&) const = default;
};

/// The page with such edits done; they are in its order and do not overlap.
std::string withEdits(std::string_view page, const std::vector<PageEdit>& edits);

}  // namespace zev
