// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zev {

// Rules between the text of a field and what it stands for. Text is UTF-8. Numbers are written as
// in C source, whatever the system's language: an optional sign, digits with a point before, among
// or behind them or none, an optional exponent ("-2", "0.25", ".5", "3.", "1e2").

/// The colour value of a colour text: red in bits 0 to 7, green in 8 to 15, blue in 16 to 23. The
/// first character is skipped whatever it is; a short text is filled up with zeros on the right;
/// what follows the seventh character is ignored. 0 (black) when a character is no hexadecimal
/// digit, as in "transparent".
std::int32_t HexToColor(std::string_view text);

/// The same, with nothing instead of black where the text names no colour: where a character is no
/// hexadecimal digit, or no digit follows the first character.
std::optional<std::int32_t> colorOf(std::string_view text);

/// "#RRGGBB", in the digits' own case, from a colour value written in hexadecimal digits (blue,
/// green, red; leading zeros may be missing).
std::string ColorToHex(std::string_view digits);

/// "#RRGGBB" in upper case from a colour value.
std::string ColorToHex(std::int32_t color);

/// What a check makes of a field's text.
struct CheckedText {
    std::string text;     ///< what the field is to hold
    std::string message;  ///< for the person; empty when there is nothing to say
    bool operator==(const CheckedText&) const = default;
};

/// Accepts an empty text and a number from `lower` to `upper`, both included. Spaces around a
/// number are dropped; a refused text is replaced by none.
CheckedText CheckRange(std::string_view text, double lower, double upper);

/// The same without fractions: "2.5" is refused, "1e3" is not.
CheckedText checkWholeRange(std::string_view text, double lower, double upper);

/// `CheckRange` with a number that rounds (half to even) to a signed 16-bit integer. The message
/// names another range, and is meant to: its wording is fixed.
CheckedText CheckInteger(std::string_view text);

/// The number at the beginning of `text`, or 0 when there is none: "10pt" is 10. It begins with a
/// sign or a digit.
double leadingNumber(std::string_view text);

/// A size in points as a whole number, rounded half to even: 10.5 is "10", 11.5 is "12".
std::string wholePoints(float points);

}  // namespace zev
