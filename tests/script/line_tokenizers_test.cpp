// SPDX-License-Identifier: MIT
#include "script/line_tokenizers.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

struct Case {
    std::string_view input;
    std::string_view expected;
};

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

}  // namespace
}  // namespace zev
