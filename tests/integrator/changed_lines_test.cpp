// SPDX-License-Identifier: MIT
#include "integrator/changed_lines.h"

#include <gtest/gtest.h>

namespace zev::test {
namespace {

using Changes = std::vector<ChangedLines>;

constexpr std::size_t kWide = 1000;

TEST(ChangedLines, AnEditShowsItsWholeLine) {
    EXPECT_EQ(changedLines("one\ntwo\nthree\n", {{5, 1, "OO"}}, kWide),
              (Changes{{2, "two", "tOOo"}}));
}

TEST(ChangedLines, EveryKindOfLineEndEndsALine) {
    for (const char* page : {"one\r\ntwo\r\nthree", "one\rtwo\rthree", "one\ntwo\nthree"}) {
        const std::size_t offset = std::string_view(page).find("two");
        EXPECT_EQ(changedLines(page, {{offset, 0, "X\r\nY"}}, kWide),
                  (Changes{{2, "two", "X\nYtwo"}}))
            << page;
    }
}

TEST(ChangedLines, EditsOfOneLineAreShownTogether) {
    EXPECT_EQ(changedLines("abc\nd", {{0, 1, "A"}, {2, 1, "C"}, {4, 1, "D"}}, kWide),
              (Changes{{1, "abc", "AbC"}, {2, "d", "D"}}));
}

TEST(ChangedLines, AnEditOverSeveralLinesShowsAllOfThem) {
    EXPECT_EQ(changedLines("a1\nb2\nc3\nd4", {{1, 6, "-"}}, kWide),
              (Changes{{1, "a1\nb2\nc3", "a-3"}}));
}

TEST(ChangedLines, AnEditInTheSameLineAsTheEndOfAnotherIsShownWithIt) {
    EXPECT_EQ(changedLines("a1\nb2\nc3", {{0, 4, ""}, {4, 1, "X"}}, kWide),
              (Changes{{1, "a1\nb2", "X"}}));
}

TEST(ChangedLines, AtTheEndsOfAPage) {
    EXPECT_EQ(changedLines("", {{0, 0, "x"}}, kWide), (Changes{{1, "", "x"}}));
    EXPECT_EQ(changedLines("a\n", {{2, 0, "x"}}, kWide), (Changes{{2, "", "x"}}));
}

TEST(ChangedLines, OfALongLineThePartAroundTheChangeIsShown) {
    const std::string page = std::string(500, 'a') + "XX" + std::string(500, 'b');
    EXPECT_EQ(changedLines(page, {{500, 2, "new"}}, 10),
              (Changes{{1, "...aaaaaXXbbbbb...", "...aaaaanewbbbbb..."}}));
    EXPECT_EQ(changedLines(page, {{0, 1, "new"}}, 10), (Changes{{1, "aaaaaa...", "newaaaaa..."}}));
}

TEST(ChangedLines, WithoutEditsNothingChanges) {
    EXPECT_TRUE(changedLines("a", {}, kWide).empty());
}

}  // namespace
}  // namespace zev::test
