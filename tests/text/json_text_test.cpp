// SPDX-License-Identifier: MIT
#include "text/json_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace zev {
namespace {

TEST(JsonString, EscapesQuotesBackslashesAndControlCharacters) {
    EXPECT_EQ(jsonString(""), "\"\"");
    EXPECT_EQ(jsonString("a \"b\" \\ /"), R"("a \"b\" \\ /")");
    EXPECT_EQ(jsonString(std::string("\0\n\t\x1F\x7F", 5)), R"("\u0000\u000a\u0009\u001f\u007f")");
}

TEST(JsonString, KeepsUtf8AndTakesOtherBytesForWindows1252) {
    EXPECT_EQ(jsonString("K\xC3\xA4se"), "\"K\xC3\xA4se\"");
    EXPECT_EQ(jsonString("K\xE4se"), "\"K\xC3\xA4se\"");
}

TEST(JsonStrings, AreAnArray) {
    EXPECT_EQ(jsonStrings({}), "[]");
    EXPECT_EQ(jsonStrings(std::vector<std::string>{"a", "\""}), R"(["a", "\""])");
}

}  // namespace
}  // namespace zev
