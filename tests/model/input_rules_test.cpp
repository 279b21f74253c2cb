// SPDX-License-Identifier: MIT
#include "model/input_rules.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zev {

void PrintTo(const CheckedText& checked, std::ostream* out) {
    *out << "text '" << checked.text << "', message '" << checked.message << "'";
}

namespace {

TEST(HexToColor, PutsRedIntoTheLowestByte) {
    struct {
        std::string_view text;
        std::int32_t color;
    } constexpr kCases[] = {
        {"#FFFFFF", 0xFFFFFF}, {"#FF0000", 0x0000FF}, {"#00FF00", 0x00FF00}, {"#0000FF", 0xFF0000},
        {"#FF8000", 0x0080FF}, {"#000000", 0},        {"#ff8000", 0x0080FF}, {"#123456", 0x563412},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(HexToColor(c.text), c.color);
        EXPECT_EQ(colorOf(c.text), c.color);
    }
}

TEST(HexToColor, FillsAShortTextWithZerosOnTheRight) {
    struct {
        std::string_view text;
        std::int32_t color;
    } constexpr kCases[] = {
        {"#12", 0x000012},
        {"#FFF", 0x00F0FF},
        {"#1", 0x000010},
        {"#12345", 0x503412},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(HexToColor(c.text), c.color);
        EXPECT_EQ(colorOf(c.text), c.color);
    }
}

TEST(HexToColor, SkipsTheFirstCharacterWhateverItIs) {
    for (const std::string_view text : {"xFF8000", "0FF8000", " FF8000",
                                        "\xC3\xA9"
                                        "FF8000"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(HexToColor(text), 0x0080FF);
    }
    // Without a sign in front, what is skipped is a digit.
    EXPECT_EQ(HexToColor("FF8000"), 0x0000F8);
    EXPECT_EQ(HexToColor("red"), 0x0000ED);
}

TEST(HexToColor, IgnoresWhatFollowsTheSeventhCharacter) {
    for (const std::string_view text : {"#FF80001", "#FF8000 ", "#FF8000zz", "#FF8000\xC3\xA9"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(HexToColor(text), 0x0080FF);
    }
}

TEST(HexToColor, IsBlackForAnythingElse) {
    for (const std::string_view text :
         {"transparent", "", "#", "#GGGGGG", "#FF 000", " #FF8000", "# FF800", "#-12345", "#+12345",
          "#0x1234", "#12\xC3\xA9", "\xC3\xA9"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(HexToColor(text), 0);
        EXPECT_EQ(colorOf(text), std::nullopt);
    }
}

TEST(ColorToHex, TurnsTheDigitsOfAColorValueRound) {
    struct {
        std::string_view digits;
        std::string_view text;
    } constexpr kCases[] = {
        {"FF", "#FF0000"},   {"0", "#000000"},      {"FFFFFF", "#FFFFFF"}, {"80FF", "#FF8000"},
        {"FF00", "#00FF00"}, {"FF0000", "#0000FF"}, {"12", "#120000"},     {"", "#000000"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.digits);
        EXPECT_EQ(ColorToHex(c.digits), c.text);
    }
}

TEST(ColorToHex, IsUpperCaseAndTheWayBackFromHexToColor) {
    for (const char* text : {"#000000", "#FF0000", "#00FF00", "#0000FF", "#FF8000", "#ABCDEF",
                             "#000001", "#010000", "#FFFFFF"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(ColorToHex(HexToColor(text)), text);
    }
}

TEST(CheckRange, LetsAnEmptyTextPass) {
    EXPECT_EQ(CheckRange("", 1, 100), (CheckedText{"", ""}));
}

TEST(CheckRange, LetsNumbersInsideTheRangePassUnchanged) {
    struct {
        std::string_view text;
        double lower;
        double upper;
    } constexpr kCases[] = {
        {"10000", 0, 10000}, {"0", 0, 10000},  {"-50", -50, 50},     {"50", -50, 50},
        {"+7", -50, 50},     {"007", 0, 10},   {"0.2", 0, 5},        {"5", 0, 5},
        {"5.0", 0, 5},       {"-0", 0, 10},    {"1e2", 1, 100},      {"1E+1", 0, 10},
        {"100e-2", 1, 100},  {"99.5", 1, 100}, {"4.99999999", 0, 5}, {".5", 0, 5},
        {"-.5", -50, 50},    {"+.5", 0, 5},    {".5e1", 0, 5},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CheckRange(c.text, c.lower, c.upper), (CheckedText{std::string(c.text), ""}));
    }
}

TEST(CheckRange, DropsTheSpacesAroundANumber) {
    for (const std::string_view text : {" 5", "5 ", "  5   "}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(CheckRange(text, 0, 10), (CheckedText{"5", ""}));
    }
    EXPECT_EQ(CheckRange(" -.5 ", -1, 10), (CheckedText{"-.5", ""}));
    EXPECT_EQ(CheckRange(" 11 ", 0, 10).text, "");
    EXPECT_EQ(CheckInteger(" 7 "), (CheckedText{"7", ""}));
}

// Checked on each key, "1.5" could not be typed otherwise.
TEST(CheckRange, LetsADecimalPointPassBeforeItsDigits) {
    EXPECT_EQ(CheckRange("1.", 0, 10), (CheckedText{"1.", ""}));
}

TEST(CheckRange, RefusesNumbersOutsideTheRange) {
    struct {
        std::string_view text;
        double lower;
        double upper;
        std::string_view message;
    } constexpr kCases[] = {
        {"10001", 0, 10000, "Please enter a value between 0 and 10000"},
        {"-1", 0, 10000, "Please enter a value between 0 and 10000"},
        {"0", 1, 100, "Please enter a value between 1 and 100"},
        {"101", 1, 100, "Please enter a value between 1 and 100"},
        {"51", -50, 50, "Please enter a value between -50 and 50"},
        {"-51", -50, 50, "Please enter a value between -50 and 50"},
        {"1001", 0, 1000, "Please enter a value between 0 and 1000"},
        {"11", 0, 10, "Please enter a value between 0 and 10"},
        {"5.1", 0, 5, "Please enter a value between 0 and 5"},
        {"5.000001", 0, 5, "Please enter a value between 0 and 5"},
        {"1e3", 1, 100, "Please enter a value between 1 and 100"},
        {"1e999", 0, 10, "Please enter a value between 0 and 10"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CheckRange(c.text, c.lower, c.upper), (CheckedText{"", std::string(c.message)}));
    }
}

TEST(CheckRange, WritesItsBoundsAsShortDecimals) {
    EXPECT_EQ(CheckRange("x", 0.1, 0.25).message, "Please enter a value between 0.1 and 0.25");
    EXPECT_EQ(CheckRange("x", -1e6, 1e21).message,
              "Please enter a value between -1000000 and 1000000000000000000000");
}

/// Texts that are no numbers, however lenient the range is.
constexpr std::string_view kNoNumbers[] = {
    "-",   "+",   ".",    "-.",    "+.",        "x",        "1x",    "x1",   "- 1",
    ".e1", "1 2", " ",    "--1",   "+-1",       "1,5",      "1,000", "0x10", "1e",
    "1e+", "e5",  "1e5.", "1.2.3", "inf",       "nan",      "-inf",  "INF",  "infinity",
    "NaN", "1f",  "1\n",  "\t1",   "1\xC2\xA0", "\xD9\xA1", "1_0",   "1e 5",
};

TEST(CheckRange, RefusesWhatIsNoNumber) {
    for (const std::string_view text : kNoNumbers) {
        SCOPED_TRACE(text);
        EXPECT_EQ(CheckRange(text, -1e300, 1e300).text, "");
        EXPECT_NE(CheckRange(text, -1e300, 1e300).message, "");
    }
    EXPECT_NE(CheckRange(std::string_view("1\0", 2), 0, 10).message, "");
}

TEST(CheckWholeRange, LetsNothingAndWholeNumbersInsideTheRangePassUnchanged) {
    for (const std::string text : {"", "0", "10000", "640", "+7", "1e3", "5.0", "640."}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(checkWholeRange(text, 0, 10000), (CheckedText{text, ""}));
    }
    EXPECT_EQ(checkWholeRange(" 640 ", 0, 10000), (CheckedText{"640", ""}));
}

TEST(CheckWholeRange, RefusesFractionsAndSaysThatItWantsAWholeNumber) {
    const CheckedText refused{"", "Please enter a whole number between 0 and 10000"};
    for (const std::string_view text : {"2.5", ".5", " 2.5", "25e-1", "9999.99"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(checkWholeRange(text, 0, 10000), refused);
    }
}

TEST(CheckWholeRange, RefusesAllElseAsTheRangeDoes) {
    for (const std::string_view text : {"-1", "10001", "10000.5", "x", "-", "1e999"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(checkWholeRange(text, 0, 10000), CheckRange(text, 0, 10000));
        EXPECT_NE(checkWholeRange(text, 0, 10000).message, "");
    }
}

TEST(CheckInteger, LetsEmptyTextAndWhatRoundsToASigned16BitIntegerPassUnchanged) {
    for (const std::string text : {"", "0", "-3", "2.5", "32767", "-32768", "32767.4", "-32768.5",
                                   "1e4", "+5", "7.", "0.0001"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(CheckInteger(text), (CheckedText{text, ""}));
    }
}

TEST(CheckInteger, RefusesEverythingElseAndNamesAnotherRange) {
    const CheckedText refused{"", "Please enter an integer value: 0 - 65535"};
    for (const std::string_view text :
         {"40000", "32768", "65535", "32767.5", "-32769", "-32768.51", "1e5", "1e999"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(CheckInteger(text), refused);
    }
    for (const std::string_view text : kNoNumbers) {
        SCOPED_TRACE(text);
        EXPECT_EQ(CheckInteger(text), refused);
    }
}

TEST(LeadingNumber, IsTheNumberAtTheBeginning) {
    struct {
        std::string_view text;
        double number;
    } constexpr kCases[] = {
        {"10", 10},     {"10pt", 10}, {"10.5", 10.5}, {"12 px", 12}, {"-3", -3},   {"+3", 3},
        {"1.", 1},      {"1.pt", 1},  {"1e2", 100},   {"10em", 10},  {"1e+", 1},   {"", 0},
        {"x-large", 0}, {"-", 0},     {".5", 0},      {"inf", 0},    {"1e999", 0}, {" 10", 0},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(leadingNumber(c.text), c.number);
    }
}

TEST(WholePoints, RoundsHalfToEven) {
    struct {
        float points;
        std::string_view text;
    } constexpr kCases[] = {
        {10.5F, "10"}, {11.5F, "12"}, {10, "10"},   {10.51F, "11"}, {10.49F, "10"},
        {0, "0"},      {0.5F, "0"},   {-0.3F, "0"}, {512, "512"},   {100000, "100000"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.points);
        EXPECT_EQ(wholePoints(c.points), c.text);
    }
}

}  // namespace
}  // namespace zev
