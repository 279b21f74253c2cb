// SPDX-License-Identifier: MIT
#include "model/input_rules.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <system_error>

#include "text/ascii.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr std::size_t kColorDigits = 6;

/// Takes the number that `text` begins with off it; nothing when there is none, or none that a
/// double can hold.
std::optional<double> takeNumber(std::string_view& text) {
    // std::from_chars knows no plus sign.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    // It knows infinity as well.
    if (result.ec != std::errc() || !std::isfinite(value))
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return value;
}

/// The value of a text that is a number and nothing else.
std::optional<double> numberOf(std::string_view text) {
    const std::optional<double> value = takeNumber(text);
    return text.empty() ? value : std::nullopt;
}

/// The shortest decimal text, without an exponent, that stands for `number`.
std::string textOf(double number) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 32> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

}  // namespace

std::optional<std::int32_t> colorOf(std::string_view text) {
    text.remove_prefix(firstCodePoint(text).size());
    if (text.empty())
        return std::nullopt;
    std::string digits(text.substr(0, kColorDigits));
    digits.resize(kColorDigits, '0');
    std::uint32_t rgb = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), rgb, 16);
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size())
        return std::nullopt;
    return static_cast<std::int32_t>((rgb & 0xFFU) << 16 | (rgb & 0xFF00U) | rgb >> 16);
}

std::int32_t HexToColor(std::string_view text) {
    return colorOf(text).value_or(0);
}

std::string ColorToHex(std::string_view digits) {
    std::string all = std::string(kColorDigits, '0').append(digits);
    all.erase(0, all.size() - kColorDigits);
    return "#" + all.substr(4, 2) + all.substr(2, 2) + all.substr(0, 2);
}

std::string ColorToHex(std::int32_t color) {
    std::array<char, 16> digits;
    std::snprintf(digits.data(), digits.size(), "%X", static_cast<unsigned>(color));
    return ColorToHex(std::string_view(digits.data()));
}

CheckedText CheckRange(std::string_view text, double lower, double upper) {
    if (text.empty())
        return {};
    const std::string_view number = trimSpaces(text);
    const std::optional<double> value = numberOf(number);
    if (value.has_value() && lower <= *value && *value <= upper)
        return {std::string(number), ""};
    return {"", "Please enter a value between " + textOf(lower) + " and " + textOf(upper)};
}

CheckedText checkWholeRange(std::string_view text, double lower, double upper) {
    CheckedText checked = CheckRange(text, lower, upper);
    const double value = numberOf(checked.text).value_or(0);
    if (value != std::floor(value))
        checked = {
            "", "Please enter a whole number between " + textOf(lower) + " and " + textOf(upper)};
    return checked;
}

CheckedText CheckInteger(std::string_view text) {
    if (text.empty())
        return {};
    const std::string_view number = trimSpaces(text);
    if (const std::optional<double> value = numberOf(number)) {
        // Half to even, the rounding mode every program starts with.
        const double rounded = std::nearbyint(*value);
        if (rounded >= std::numeric_limits<std::int16_t>::min() &&
            rounded <= std::numeric_limits<std::int16_t>::max())
            return {std::string(number), ""};
    }
    return {"", "Please enter an integer value: 0 - 65535"};
}

double leadingNumber(std::string_view text) {
    // What begins with a point would be written as a size of 0.
    const std::size_t first = text.find_first_not_of("+-");
    if (first == std::string_view::npos || !isAsciiDigit(text[first]))
        return 0;
    return takeNumber(text).value_or(0);
}

std::string wholePoints(float points) {
    // Adding zero makes a plain 0 of what is rounded to -0.
    return textOf(std::nearbyint(static_cast<double>(points)) + 0.0);
}

}  // namespace zev
