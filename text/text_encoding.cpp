// SPDX-License-Identifier: MIT
#include "text/text_encoding.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace zev {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Code points of the bytes 0x80 to 0x9F. Bytes that Windows leaves undefined stand for the control
/// character of the same number; from 0xA0 on byte and code point are equal.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint8_t byteAt(std::string_view bytes, std::size_t offset) {
    return static_cast<std::uint8_t>(bytes[offset]);
}

std::size_t skipAscii(std::string_view bytes, std::size_t offset) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t block;
    while (offset + sizeof block <= bytes.size()) {
        std::memcpy(&block, bytes.data() + offset, sizeof block);
        if (block & kHighBits)
            break;
        offset += sizeof block;
    }
    while (offset < bytes.size() && byteAt(bytes, offset) < 0x80)
        ++offset;
    return offset;
}

/// Length of the well-formed sequence of two to four bytes at `offset`; 0 when there is none.
std::size_t sequenceLength(std::string_view bytes, std::size_t offset) {
    const std::uint8_t lead = byteAt(bytes, offset);
    if (lead < 0xC2 || lead > 0xF4)
        return 0;
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length > bytes.size() - offset)
        return 0;
    // The second byte's range is narrower after four leads: no overlong form, no surrogate,
    // nothing beyond U+10FFFF.
    const std::uint8_t lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const std::uint8_t highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    const std::uint8_t second = byteAt(bytes, offset + 1);
    if (second < lowest || second > highest)
        return 0;
    for (std::size_t i = 2; i < length; ++i)
        if ((byteAt(bytes, offset + i) & 0xC0) != 0x80)
            return 0;
    return length;
}

}  // namespace

bool isAscii(std::string_view bytes) {
    return skipAscii(bytes, 0) == bytes.size();
}

std::string_view firstCodePoint(std::string_view text) {
    std::size_t length = text.empty() ? 0 : 1;
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80)
        ++length;
    return text.substr(0, length);
}

bool isValidUtf8(std::string_view bytes) {
    std::size_t offset = skipAscii(bytes, 0);
    while (offset < bytes.size()) {
        const std::size_t length = sequenceLength(bytes, offset);
        if (length == 0)
            return false;
        offset = skipAscii(bytes, offset + length);
    }
    return true;
}

std::string windows1252ToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        if (byte < 0x80) {
            text += c;
            continue;
        }
        const unsigned codePoint = byte < 0xA0 ? kWindows1252[byte - 0x80U] : byte;
        if (codePoint < 0x800) {
            text += static_cast<char>(0xC0 | codePoint >> 6);
        } else {
            text += static_cast<char>(0xE0 | codePoint >> 12);
            text += static_cast<char>(0x80 | (codePoint >> 6 & 0x3F));
        }
        text += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
    return text;
}

std::string_view decodeDefinition(std::string_view bytes, std::string& converted) {
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    if (isValidUtf8(bytes))
        return bytes;
    converted = windows1252ToUtf8(bytes);
    return converted;
}

}  // namespace zev
