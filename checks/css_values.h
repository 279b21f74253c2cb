// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zev {

/// True for what CSS takes as a colour: "#" and 3, 4, 6 or 8 hexadecimal digits, a name such as
/// "navy", "transparent", or a function such as "rgb(0, 0, 128)", whose arguments are not looked
/// at.
bool isCssColour(std::string_view text);

/// True for what CSS takes as a border: a width, a style and a colour, each at most once, in any
/// order.
bool isCssBorder(std::string_view text);

}  // namespace zev
