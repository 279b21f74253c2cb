// SPDX-License-Identifier: MIT
#include "checks/line_changes.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

std::string changes(const std::string& oldText, const std::string& newText) {
    std::string text;
    for (const LineChange& change : changedLines(oldText, newText))
        text += std::to_string(change.line) + ": " + change.oldText.value_or("none") + " -> " +
                change.newText.value_or("none") + "\n";
    return text;
}

TEST(ChangedLines, AreThoseThatOneSideHasAndTheOtherHasNot) {
    EXPECT_EQ(changes("", ""), "");
    EXPECT_EQ(changes("a\nb\nc\n", "a\nb\nc\n"), "");
    EXPECT_EQ(changes("a\nb\nc\n", "a\nx\nc\n"), "2: b -> x\n");
    EXPECT_EQ(changes("a\nb\nc\n", "a\nc\n"), "2: b -> none\n");
    EXPECT_EQ(changes("a\nc\n", "a\nb\nc\n"), "2: none -> b\n");
}

TEST(ChangedLines, EmptyLinesFindTheirPlaceByTheLinesAroundThem) {
    EXPECT_EQ(changes("\na\n\nb\n\nc\n", "a\n\nb\n\nx\nc\n"), "1:  -> none\n6: none -> x\n");
}

TEST(ChangedLines, OfALineThatMovedOnePlaceIsDroppedAndTheOtherNew) {
    EXPECT_EQ(changes("a\nb\nc\nd\n", "d\na\nb\nc\n"), "1: none -> d\n4: d -> none\n");
}

TEST(ChangedLines, SpacesAtTheEndsAndLineEndsMakeNoDifference) {
    EXPECT_EQ(changes("  a\nb  \n", "a\r\nb\r\n"), "");
}

TEST(ChangedLines, TakesLargeTextsThatHaveNothingInCommon) {
    std::string left;
    std::string right;
    for (int i = 0; i < 200'000; ++i) {
        left += "left " + std::to_string(i) + "\n";
        right += "right " + std::to_string(i) + "\n";
    }
    EXPECT_EQ(changedLines(left, right).size(), 200'000U);
}

}  // namespace
}  // namespace zev
