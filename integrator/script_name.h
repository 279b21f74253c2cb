// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// What a person knows a script of a page by: its address, or without one the first of its lines
/// that says something, comments passed over. In UTF-8 and on one line, at most 60 characters, the
/// last an ellipsis where more follows. `src` and `script` are the page's own bytes.
std::string scriptName(std::string_view src, std::string_view script);

}  // namespace zev
