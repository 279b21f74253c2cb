// SPDX-License-Identifier: MIT
#include "model/text_rules.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

struct Case {
    std::string_view input;
    std::string_view expected;
};

TEST(EscapeApostrophes, EscapesEachApostropheThatIsNotEscapedYet) {
    constexpr Case kCases[] = {
        {"", ""},
        {"Home", "Home"},
        {"It's", "It\\'s"},
        {"It\\'s", "It\\'s"},
        {"'", "\\'"},
        {"\\'", "\\'"},
        {"a''b", "a\\'\\'b"},
        {"\\''", "\\'\\'"},
        {"'\\'", "\\'\\'"},
        {"\\\\'", "\\\\'"},
        {"back\\slash", "back\\slash"},
        {"say \"hi\"", "say \"hi\""},
        {"caf\xC3\xA9's", "caf\xC3\xA9\\'s"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(EscapeApostrophes(c.input), c.expected);
        EXPECT_EQ(EscapeApostrophes(c.expected), c.expected) << "escaped twice";
    }
}

TEST(StripQuotes, ModeSaysWhichQuotesGo) {
    constexpr std::string_view kBoth = "a\"b'c\"d'";
    EXPECT_EQ(StripQuotes(kBoth, 0), "ab'cd'");
    EXPECT_EQ(StripQuotes(kBoth, 1), "abcd");
    EXPECT_EQ(StripQuotes(kBoth, 2), "a\"bc\"d");
}

TEST(StripQuotes, OneQuoteOfEachKind) {
    EXPECT_EQ(StripQuotes("\"'", 0), "'");
    EXPECT_EQ(StripQuotes("\"'", 1), "");
    EXPECT_EQ(StripQuotes("\"'", 2), "\"");
}

TEST(StripQuotes, TextWithoutQuotesStays) {
    for (const int mode : {0, 1, 2}) {
        EXPECT_EQ(StripQuotes("", mode), "");
        EXPECT_EQ(StripQuotes("a.html", mode), "a.html");
    }
}

}  // namespace
}  // namespace zev
