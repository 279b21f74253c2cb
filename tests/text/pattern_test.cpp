// SPDX-License-Identifier: MIT
#include "text/pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

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
        EXPECT_EQ(matchesPattern(c.text, c.pattern), c.matches);
    }
}

// Backtracking would take hours here.
TEST(MatchesPattern, TimeIsLinearInTheText) {
    const std::string text = "zevmenu." + std::string(20'000'000, '=');
    EXPECT_FALSE(matchesPattern(text, "zevmenu.*=*=*=*=*;"));
    EXPECT_TRUE(matchesPattern(text + ";", "zevmenu.*=*=*=*=*;"));
}

TEST(ReplaceAll, ReplacesFromLeftToRightWithoutLookingAtTheReplacement) {
    EXPECT_EQ(replaceAll("aXbXc", "X", "--"), "a--b--c");
    EXPECT_EQ(replaceAll("none", "X", "--"), "none");
    EXPECT_EQ(replaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(replaceAll("12pt pt", "pt", ""), "12 ");
    EXPECT_EQ(replaceAll("", "X", "y"), "");
}

}  // namespace
}  // namespace zev
