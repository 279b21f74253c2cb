// SPDX-License-Identifier: MIT
#include "script/definition_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace zev {
namespace {

/// Each line with its number, "1[first]2[second]".
std::string LinesOf(std::string_view bytes) {
    std::string text;
    DefinitionLines lines{std::string(bytes)};
    std::string_view line;
    while (lines.next(line))
        text += std::to_string(lines.number()) + "[" + std::string(line) + "]";
    return text;
}

TEST(DefinitionLines, EndAtLfWithTheCrBeforeItDropped) {
    struct {
        const char* bytes;
        const char* lines;
    } const kCases[] = {
        {"", ""},
        {"a", "1[a]"},
        {"a\n", "1[a]"},
        {"a\nb", "1[a]2[b]"},
        {"a\r\nb\r\n", "1[a]2[b]"},
        {"a\n\nb", "1[a]2[]3[b]"},
        {"\r\n\r\n", "1[]2[]"},
        {"a\rb\nc\r", "1[a\rb]2[c]"},
        {"a\r\r\n", "1[a\r]"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(LinesOf(c.bytes), c.lines) << testing::PrintToString(c.bytes);
}

TEST(DefinitionLines, HaveNoSpacesAtTheirEndsButKeepTabs) {
    EXPECT_EQ(LinesOf("  a b  \n\tc \n   "), "1[a b]2[\tc]3[]");
}

TEST(DefinitionLines, AreUtf8WithoutAByteOrderMark) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "caf\xC3\xA9\n"),
              "1[caf\xC3\xA9]");
    EXPECT_EQ(LinesOf("a\ncaf\xE9"), "1[a]2[caf\xC3\xA9]");
}

TEST(DefinitionLines, LeaveTheTextAloneAtTheEnd) {
    DefinitionLines lines("a");
    std::string_view line;
    EXPECT_TRUE(lines.next(line));
    EXPECT_FALSE(lines.next(line));
    EXPECT_EQ(line, "a");
    EXPECT_EQ(lines.number(), 1u);
}

}  // namespace
}  // namespace zev
