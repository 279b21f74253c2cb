// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "tests/importers/import_test.h"
#include "tests/support/import_properties.h"

// Time is limited by the test runner: anything that is not about linear runs into that limit.

namespace zev::test {
namespace {

constexpr std::size_t kHugeLength = 50'000'000;
constexpr auto kMaxItems = static_cast<std::size_t>(kMaxItemCounter);

class LargeImportTest : public ImportTest, public testing::WithParamInterface<std::string_view> {
  protected:
    bool isQuillmenu() const { return GetParam() == "quillmenu"; }

    /// The lines of a top-level item each, of the format of the test.
    std::string items(std::size_t count) const {
        std::string text = isQuillmenu() ? "qlmenu1 = new mainMenu('');\n" : "";
        for (std::size_t i = 0; i < count; ++i)
            text += isQuillmenu() ? "qlmenu1.addItems('A');\n" : ":A\n";
        return text;
    }
};

INSTANTIATE_TEST_SUITE_P(Format, LargeImportTest,
                         testing::Values("quillmenu", "orletbar", "orletmenu", "orletbutton"));

TEST_P(LargeImportTest, AHugeLineOfOtherCharactersIsSkipped) {
    for (const char c : {'x', '=', '\'', '"', '*', ' ', '\\', '|', '~', '\0', '\xC3', '\r'}) {
        SCOPED_TRACE(static_cast<int>(c));
        EXPECT_EQ(importMenu(GetParam(), std::string(kHugeLength / 5, c)), none);
        EXPECT_TRUE(document.tree.isEmpty());
    }
}

TEST_P(LargeImportTest, MillionsOfEmptyLinesAreSkipped) {
    EXPECT_EQ(importMenu(GetParam(), std::string(kHugeLength / 10, '\n')), none);
    EXPECT_TRUE(document.tree.isEmpty());
}

TEST_P(LargeImportTest, EachItemBeyondTheLimitIsOneWarning) {
    constexpr std::size_t kCount = 40'000;
    const std::size_t firstLine = isQuillmenu() ? 2 : 1;
    Warnings expected;
    for (std::size_t i = kMaxItems; i < kCount; ++i)
        expected.push_back({firstLine + i, Reason::TooManyItems});
    EXPECT_EQ(importMenu(GetParam(), items(kCount)), expected);
    EXPECT_EQ(document.tree.topLevel().size(), kMaxItems);
    EXPECT_EQ(document.ItemCounter, kMaxItemCounter);
    EXPECT_EQ(document.tree.topLevel().back()->key(), "KeyLoad 32767");
}

TEST_P(LargeImportTest, AMillionLinesBeyondTheLimitTakeLinearTime) {
    EXPECT_EQ(importMenu(GetParam(), items(1'000'000)).size(), 1'000'000 - kMaxItems);
    EXPECT_EQ(document.tree.size(), kMaxItems);
}

class LargeOrletTest : public ImportTest, public testing::WithParamInterface<std::string_view> {};

INSTANTIATE_TEST_SUITE_P(Format, LargeOrletTest, testing::Values("orletbar", "orletbutton"));

TEST_P(LargeOrletTest, ALineOfColonsIsAnItemWithoutACaption) {
    EXPECT_EQ(importMenu(GetParam(), ":A\n" + std::string(kHugeLength, ':')), none);
    EXPECT_EQ(tree(), "A\n  \n");
    EXPECT_EQ(importMenu(GetParam(), std::string(kHugeLength, ':') + "A\n:B\n"),
              (Warnings{{1, Reason::StartsDeep}, {2, Reason::AboveTop}}));
    EXPECT_EQ(tree(), "A\n");
}

TEST_P(LargeOrletTest, HugeFieldsComeBack) {
    const std::string huge(kHugeLength, 'x');
    EXPECT_EQ(importMenu(GetParam(), ":A\n::" + huge + "|" + huge + "|a"), none);
    EXPECT_EQ(itemAt("KeyLoad 2").Caption, huge);
    EXPECT_EQ(itemAt("KeyLoad 2").URL, huge);
    EXPECT_EQ(itemAt("KeyLoad 2").Target, "a");
}

TEST_P(LargeOrletTest, MillionsOfApostrophesAndSeparatorsAreRead) {
    const std::string apostrophes(kHugeLength / 10, '\'');
    EXPECT_EQ(importMenu(GetParam(), ":A\n::B|" + apostrophes + "|c"), none);
    EXPECT_EQ(itemAt("KeyLoad 2").URL.size(), 2 * apostrophes.size());
    EXPECT_EQ(importMenu(GetParam(), ":A\n::B" + std::string(kHugeLength, '|')), none);
    EXPECT_EQ(tree(), "A\n  B\n");
}

TEST_P(LargeOrletTest, AnItemMayBeThousandsOfLevelsDeep) {
    constexpr std::size_t kLevels = 3'000;
    std::string bytes;
    for (std::size_t level = 1; level <= kLevels; ++level)
        bytes += std::string(level, ':') + "A\n";
    bytes += ":B\n";
    EXPECT_EQ(importMenu(GetParam(), bytes), none);
    EXPECT_EQ(document.tree.size(), kLevels + 1);
    EXPECT_EQ(document.tree.topLevel().size(), 2u);
    EXPECT_EQ(problemOfSaving(document), "");
}

TEST_P(LargeOrletTest, LinesThatGoUpPastTheTopAreRefusedWithoutAClimb) {
    // Every item but the first stands a level higher than its colons say, and a climb from the last
    // one would take thousands of steps a line.
    constexpr std::size_t kLevels = 9'000;
    constexpr std::size_t kRefused = 10'000'000;
    std::string bytes = ":A\n";
    for (std::size_t level = 3; level <= kLevels; ++level)
        bytes += std::string(level, ':') + "A\n";
    for (std::size_t i = 0; i < kRefused; ++i)
        bytes += ":B\n";
    EXPECT_EQ(importMenu(GetParam(), bytes).size(), kRefused);
    EXPECT_EQ(document.tree.size(), kLevels - 1);
}

class LargeQuillmenuTest : public ImportTest {
  protected:
    Warnings read(const std::string& lines) {
        return importMenu("quillmenu", "qlmenu1 = new mainMenu('');\n" + lines);
    }
};

TEST_F(LargeQuillmenuTest, HugeLinesOfEachKindAreRead) {
    const std::string huge(kHugeLength, 'x');
    EXPECT_EQ(read("qlm_state.bgimage = '" + huge + "';\n"), none);
    EXPECT_EQ(document.DefaultProp.BgImg, huge);
    EXPECT_EQ(read("qlmenu1.divider = '" + huge + "';\n"), none);
    EXPECT_EQ(document.RootMenuProp.Divider, huge);
    EXPECT_EQ(read("qlmenu1.addItems('" + huge + "', 'a');\n"), none);
    EXPECT_EQ(itemAt("KeyLoad 1").Caption, huge);
    EXPECT_EQ(itemAt("KeyLoad 1").URL, "a");
    EXPECT_EQ(read("qlmenu1 = new mainMenu('', '" + huge + "');\n"), none);
    EXPECT_EQ(document.RootMenuProp.NBgColor, huge);
    EXPECT_EQ(read("qlmenu1 = new subMenu('" + huge + "');\nqlmenu1.columns = 1;\n"),
              (Warnings{{3, Reason::UnknownMenu}}));
}

TEST_F(LargeQuillmenuTest, MillionsOfApostrophesAreRead) {
    const std::string apostrophes(kHugeLength, '\'');
    EXPECT_EQ(read("qlmenu1.addItems(" + apostrophes + ");\n"), none);
    EXPECT_EQ(itemAt("KeyLoad 1").Caption, "");
    EXPECT_EQ(read("qlmenu1 = new mainMenu('" + apostrophes + "');\n"), none);
    EXPECT_EQ(document.RootMenuProp.Columns, "1");
    EXPECT_EQ(read("qlmenu1 = new subMenu('" + apostrophes + "');\n"), none);
}

TEST_F(LargeQuillmenuTest, AtTheLimitASubmenusItemsAreWarningsAndItsPropertiesAreRead) {
    std::string lines;
    for (std::size_t i = 0; i < kMaxItems; ++i)
        lines += "qlmenu1.addItems('A');\n";
    lines += "qlmenu1 = new subMenu('2', '#1');\nqlmenu1.addItems('B');\nqlmenu1.columns = 3;\n";
    lines += "qlmenu1 = new subMenu('2i1');\nqlmenu1.addItems('C');\n";
    EXPECT_EQ(read(lines), (Warnings{{kMaxItems + 3, Reason::TooManyItems},
                                     {kMaxItems + 6, Reason::UnknownMenu}}));
    EXPECT_EQ(itemAt("KeyLoad 2").MenuProperty->NBgColor, "#1");
    EXPECT_EQ(itemAt("KeyLoad 2").MenuProperty->Columns, "3");
    EXPECT_EQ(document.ItemCounter, kMaxItemCounter);
}

TEST_F(LargeQuillmenuTest, AThousandLevelsAreRead) {
    constexpr std::size_t kLevels = 1'000;
    std::string lines = "qlmenu1.addItems('A');\n";
    std::string id = "1";
    for (std::size_t level = 1; level < kLevels; ++level) {
        lines += "qlmenu1 = new subMenu('" + id + "');\nqlmenu1.addItems('A');\n";
        id += "i1";
    }
    EXPECT_EQ(read(lines), none);
    EXPECT_EQ(document.tree.size(), kLevels);
    EXPECT_EQ(document.tree.topLevel().size(), 1u);
    EXPECT_EQ(problemOfSaving(document), "");
}

}  // namespace
}  // namespace zev::test
