// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// True when every byte is below 0x80.
bool isAscii(std::string_view bytes);

/// The first code point of a text in UTF-8; empty when the text is.
std::string_view firstCodePoint(std::string_view text);

/// True when `bytes` is well-formed UTF-8 (Unicode standard, table 3-7: no surrogates, no overlong
/// forms).
bool isValidUtf8(std::string_view bytes);

/// Windows-1252 to UTF-8, by the WHATWG Encoding Standard's index, which gives every byte a code
/// point, so that no character of an old file is lost.
std::string windows1252ToUtf8(std::string_view bytes);

/// A definition file's bytes as UTF-8 text: a byte order mark is dropped; what is not valid UTF-8
/// is taken for Windows-1252. The result is a view of `bytes`, or of `converted` when they had to
/// be converted. `converted` may be the string that holds the bytes.
std::string_view decodeDefinition(std::string_view bytes, std::string& converted);

}  // namespace zev
