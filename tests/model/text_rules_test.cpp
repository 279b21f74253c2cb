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

TEST(GetPropName, IsTheTextBetweenTheFirstDotAndTheNextEqualsSign) {
    constexpr Case kCases[] = {
        {"zevmenu.columns = 10;", "columns"},
        {"zev_state.bgimage = 'a.gif';", "bgimage"},
        {"zevmenu.htmlAfter='=';", "htmlAfter"},
        {"a=b.c=d", "c"},
        {"zevmenu.  spaced out  = 1;", "spaced out"},
        {"zevmenu.\tcolumns = 1;", "\tcolumns"},
        {"zevmenu.= 1;", ""},
        {"zevmenu.AddItem('a=b');", "AddItem('a"},
        {"no dot = 1;", ""},
        {"ends in a dot.", ""},
        {"no.equals", ""},
        {"equals = before.dot", ""},
        {".", ""},
        {"", ""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetPropName(c.input), c.expected);
    }
}

TEST(GetPropValue, WithoutQuotesIsTheTextFromEqualsSignToSemicolonUntrimmed) {
    constexpr Case kCases[] = {
        {"zevmenu.columns = 10;", " 10"}, {"zevmenu.columns =  10  ;", "  10  "},
        {"zevmenu.columns=;", ""},        {"zevmenu.columns = 1; // 2;", " 1"},
        {"a = b = c;", " b = c"},         {"; before = the equals sign", ""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetPropValue(c.input), c.expected);
    }
}

TEST(GetPropValue, WithQuotesIsTheTextFromTheFirstToTheLastOfTheKindThatComesFirst) {
    constexpr Case kCases[] = {
        {"zev_state.bgimage = 'a.gif';", "a.gif"},
        {"zevmenu.htmlAfter = '';", ""},
        {"zevmenu.divider = ' ; = ';", " ; = "},
        {"zevmenu.divider = 'It\\'s';", "It\\'s"},
        {"zevmenu.x = 'a' + 'b';", "a' + 'b"},
        {"zevmenu.x = '<i class=\"c\">';", "<i class=\"c\">"},
        {"zevmenu.x = \"It's\";", "It's"},
        {"zevmenu.x = \"plain\";", "plain"},
        {"zevmenu.x = \"\";", ""},
        {"zevmenu.x = \"a\" + 'b';", "a"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetPropValue(c.input), c.expected);
    }
}

TEST(GetPropValue, WithoutAnEndDropsTheLastCharacter) {
    constexpr Case kCases[] = {
        {"zevmenu.x = 'abc;", "abc"},
        {"zevmenu.x = \"abc;", "abc"},
        {"zevmenu.x = abc", " ab"},
        {"no equals sign;", "no equals sign"},
        {"neither", "neithe"},
        {"'", ""},
        {"=", ""},
        {"x", ""},
        {"", ""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetPropValue(c.input), c.expected);
    }
}

TEST(GetPropValue, TheCharacterDroppedIsAWholeCodePoint) {
    constexpr Case kCases[] = {
        {"x = 'ab\xC3\xA9", "ab"},         {"x = 'ab\xE2\x82\xAC", "ab"},
        {"x = 'ab\xF0\x9F\x98\x80", "ab"}, {"x = '\xC3\xA9z", "\xC3\xA9"},
        {"x = =\xF0\x9F\x98\x80", " ="},   {"'\xF0\x9F\x98\x80", ""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetPropValue(c.input), c.expected);
    }
}

TEST(GetMenuId, IsTheTextBetweenTheFirstTwoApostrophesOfTheCall) {
    constexpr Case kCases[] = {
        {"zevmenu = new ZEVMenu('0');", "0"},
        {"zevmenu = new ZEVMenu('3i2');", "3i2"},
        {"zevmenu = new ZEVMenu('');", ""},
        {"it's = new ZEVMenu('7');", "7"},
        {"zevmenu = new ZEVMenu( '1', '2');", "1"},
        {"zevmenu = new ZEVMenu('1);", ""},
        {"zevmenu = new ZEVMenu(1);", ""},
        {"other('1');", ""},
        {"", ""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(GetMenuId(c.input), c.expected);
    }
}

TEST(TrimSpaces, DropsSpacesAtBothEndsAndNothingElse) {
    constexpr Case kCases[] = {
        {"", ""},
        {"   ", ""},
        {"a", "a"},
        {"  a b  ", "a b"},
        {"\ta", "\ta"},
        {" \t ", "\t"},
        {"\xC2\xA0 a ", "\xC2\xA0 a"},
        {"a\r ", "a\r"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(TrimSpaces(c.input), c.expected);
    }
}

TEST(MatchesPattern, AStarStandsForAnyRunAndEverythingElseForItself) {
    struct {
        std::string_view text;
        std::string_view pattern;
        bool matches;
    } const kCases[] = {
        {"", "", true},
        {"", "*", true},
        {"a", "", false},
        {"abc", "abc", true},
        {"abc", "ABC", false},
        {"abcd", "abc", false},
        {"anything", "*", true},
        {"ab", "a*b", true},
        {"axxb", "a*b", true},
        {"axxbc", "a*b", false},
        {"xab", "a*b", false},
        {"a", "a*a", false},
        {"aa", "a*a", true},
        {"abab", "*ab*ab", true},
        {"ab", "*ab*ab", false},
        {"a?c", "a?c", true},
        {"abc", "a?c", false},
        {"a1c", "a#c", false},
        {"[a]", "[a]", true},
        {"a", "[a]", false},
        {"aXbXc", "a*X*c", true},
        {"a\nb", "a*b", true},
        {"zevmenu.columns = 10;", "zevmenu.*=*;", true},
        {"zevmenu.columns = 10", "zevmenu.*=*;", false},
        {"zevmenu.=;", "zevmenu.*=*;", true},
        {"zevmenu = new ZEVMenu('0');", "zevmenu.*=*;", false},
        {"zevmenu = new ZEVMenu('');", "zevmenu = new ZEVMenu('*');", true},
        {"zevmenu = new ZEVMenu(');", "zevmenu = new ZEVMenu('*');", false},
        {"zevmenu.AddItem('a=b', '', '');", "zevmenu.*=*;", true},
        {"zevmenu.AddItem();", "zevmenu.AddItem(*);", true},
        {"Zevmenu.AddItem();", "zevmenu.AddItem(*);", false},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(std::string(c.text) + " against " + std::string(c.pattern));
        EXPECT_EQ(MatchesPattern(c.text, c.pattern), c.matches);
    }
}

// Backtracking would take hours here.
TEST(MatchesPattern, TimeIsLinearInTheText) {
    const std::string text = "zevmenu." + std::string(20'000'000, '=');
    EXPECT_FALSE(MatchesPattern(text, "zevmenu.*=*=*=*=*;"));
    EXPECT_TRUE(MatchesPattern(text + ";", "zevmenu.*=*=*=*=*;"));
}

TEST(ReplaceAll, ReplacesFromLeftToRightWithoutLookingAtTheReplacement) {
    EXPECT_EQ(ReplaceAll("aXbXc", "X", "--"), "a--b--c");
    EXPECT_EQ(ReplaceAll("none", "X", "--"), "none");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(ReplaceAll("12pt pt", "pt", ""), "12 ");
    EXPECT_EQ(ReplaceAll("", "X", "y"), "");
}

}  // namespace
}  // namespace zev
