// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zev {

// Pieces of JSON (RFC 8259) in UTF-8. What is not valid UTF-8, such as an odd file name, is taken
// for Windows-1252.

/// A string with its quotes.
std::string jsonString(std::string_view text);

/// An array of strings, on one line.
std::string jsonStrings(std::span<const std::string> texts);

}  // namespace zev
