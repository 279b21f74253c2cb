// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// What a reader sees of a caption (HTML, UTF-8): tags and comments taken away, character
/// references (HTML 4.01, section 24, and numbers) resolved, runs of white space as one blank, none
/// at the ends.
std::string captionText(std::string_view caption);

/// The same for a sentence: at most 40 characters, the last an ellipsis where more follow; "an
/// item" for a caption without text.
std::string captionName(std::string_view caption);

}  // namespace zev
