// SPDX-License-Identifier: MIT
#include "text/text_encoding.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace zev {
namespace {

TEST(IsAscii, IsTrueUnlessAnyByteHasItsHighBit) {
    // At every offset from the blocks of eight that are looked at together.
    for (std::size_t length = 0; length < 18; ++length) {
        const std::string ascii(length, '\x7F');
        EXPECT_TRUE(isAscii(ascii)) << length;
        for (std::size_t offset = 0; offset < length; ++offset) {
            std::string text = ascii;
            text[offset] = '\x80';
            EXPECT_FALSE(isAscii(text)) << offset << " of " << length;
        }
    }
}

TEST(IsValidUtf8, AcceptsWellFormedText) {
    for (const char* text :
         {"", "ascii", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEC\xBF\xBF",
          "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF3\xBF\xBF\xBF",
          "\xF4\x8F\xBF\xBF", "a\xC3\xA9z\xE2\x82\xACz\xF0\x9F\x98\x80"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_TRUE(isValidUtf8(text));
        // At every offset from the blocks of eight in which ASCII is skipped.
        for (std::size_t shift = 0; shift < 9; ++shift)
            EXPECT_TRUE(isValidUtf8(std::string(shift, 'x') + text + std::string(shift, 'y')));
    }
}

TEST(IsValidUtf8, RefusesEveryIllFormedSequence) {
    for (const char* text : {"\x80",
                             "\xBF",
                             "\xC3",
                             "\xC0\x80",
                             "\xC1\xBF",
                             "\xC3(",
                             "\xC3\xC3",
                             "\xE0\x80\x80",
                             "\xE0\x9F\xBF",
                             "\xE2\x82",
                             "\xE2(\xAC",
                             "\xE2\x82(",
                             "\xED\xA0\x80",
                             "\xED\xBF\xBF",
                             "\xF0\x80\x80\x80",
                             "\xF0\x8F\xBF\xBF",
                             "\xF0\x9F\x98",
                             "\xF0\x9F\x98(",
                             "\xF4\x90\x80\x80",
                             "\xF5\x80\x80\x80",
                             "\xFE",
                             "\xFF",
                             "\xC3\xA9\xA9"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        for (std::size_t shift = 0; shift < 9; ++shift) {
            EXPECT_FALSE(isValidUtf8(std::string(shift, 'x') + text));
            EXPECT_FALSE(isValidUtf8(std::string(shift, 'x') + text + "yyyyyyyyy"));
        }
    }
}

TEST(Windows1252ToUtf8, ConvertsKnownBytes) {
    struct {
        const char* bytes;
        const char* text;
    } const kCases[] = {
        {"", ""},
        {"plain", "plain"},
        {"caf\xE9", "caf\xC3\xA9"},
        {"\x80", "\xE2\x82\xAC"},
        {"\x93q\x94", "\xE2\x80\x9Cq\xE2\x80\x9D"},
        {"\x9F", "\xC5\xB8"},
        {"\x83", "\xC6\x92"},
        {"\x99", "\xE2\x84\xA2"},
        {"\xA0\xFF", "\xC2\xA0\xC3\xBF"},
        {"\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes));
        EXPECT_EQ(windows1252ToUtf8(c.bytes), c.text);
    }
}

TEST(Windows1252ToUtf8, GivesEveryByteACharacterOfItsOwn) {
    std::set<std::string> texts;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = windows1252ToUtf8(std::string(1, static_cast<char>(byte)));
        EXPECT_TRUE(isValidUtf8(text)) << byte;
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), 256u);
}

std::string Decoded(std::string_view bytes) {
    std::string converted;
    return std::string(decodeDefinition(bytes, converted));
}

TEST(DecodeDefinition, DropsOneByteOrderMarkAndKeepsValidUtf8) {
    EXPECT_EQ(Decoded("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                      "caf\xC3\xA9"),
              "caf\xC3\xA9");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF\xEF\xBB\xBFx"), "\xEF\xBB\xBFx");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"), "");
    EXPECT_EQ(Decoded(""), "");
}

TEST(DecodeDefinition, TakesEverythingElseForWindows1252) {
    EXPECT_EQ(Decoded("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                      "caf\xE9"),
              "caf\xC3\xA9");
    EXPECT_EQ(Decoded("\xEF\xBB"), "\xC3\xAF\xC2\xBB");
}

TEST(DecodeDefinition, KeepsNulBytes) {
    EXPECT_EQ(Decoded(std::string("a\0b", 3)), std::string("a\0b", 3));
}

}  // namespace
}  // namespace zev
