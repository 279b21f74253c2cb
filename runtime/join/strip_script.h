// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zev {

/// A script without its comments and without the white space that its meaning does not need. A line
/// end stays where a statement may end by it and after a block, so that the line that a browser
/// names in an error is that of a function. Nothing within strings, template literals and regular
/// expressions is touched. `source` is UTF-8. Nothing when a comment, string, template literal or
/// regular expression does not end.
///
/// A slash after ")" or "}" is a division; a regular expression there needs a bracket before it.
std::optional<std::string> stripScript(std::string_view source);

}  // namespace zev
