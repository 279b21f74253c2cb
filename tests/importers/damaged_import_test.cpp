// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <random>
#include <string>

#include "tests/support/import_properties.h"
#include "tests/support/test_files.h"

// Files of each format with anything in the wrong place: whatever comes of them holds together, can
// be saved, and opens again with the same items.

namespace zev::test {
namespace {

struct Sample {
    std::string_view format;
    const char* file;
};

class DamagedImportTest : public testing::TestWithParam<Sample> {
  protected:
    std::string sample() const {
        return contentOf(std::string(ZEV_IMPORT_SAMPLES) + "/" + GetParam().file);
    }
    std::string problemOf(std::string_view bytes) const {
        return problemOfImport(GetParam().format, bytes);
    }
};

INSTANTIATE_TEST_SUITE_P(Sample, DamagedImportTest,
                         testing::Values(Sample{"quillmenu", "quillmenu_every_rule.js"},
                                         Sample{"orletbar", "orletbar_every_rule.txt"},
                                         Sample{"orletmenu", "orletmenu_every_rule.txt"},
                                         Sample{"orletbutton", "orletbutton_every_rule.txt"}),
                         [](const auto& parameter) {
                             const std::string file = parameter.param.file;
                             return file.substr(0, file.find('_'));
                         });

TEST_P(DamagedImportTest, CutAtAnyByteHoldsTogether) {
    const std::string whole = sample();
    for (std::size_t length = 0; length <= whole.size(); ++length)
        ASSERT_EQ(problemOf(std::string_view(whole).substr(0, length)), "") << length << " bytes";
}

TEST_P(DamagedImportTest, WithAnyByteReplacedHoldsTogether) {
    constexpr char kOthers[] = {':', '|',  '~',  '\'', '"',  '\\',   '=',
                                ';', '\n', '\r', ' ',  '\0', '\xC3', '\xFF'};
    const std::string whole = sample();
    std::mt19937 random(6);
    for (std::size_t offset = 0; offset < whole.size(); ++offset) {
        for (int i = 0; i < 2; ++i) {
            std::string bytes = whole;
            bytes[offset] = kOthers[random() % std::size(kOthers)];
            ASSERT_EQ(problemOf(bytes), "")
                << "byte " << offset << " is " << static_cast<int>(bytes[offset]);
        }
    }
}

TEST_P(DamagedImportTest, ShuffledPiecesHoldTogether) {
    constexpr std::string_view kPieces[] = {
        "qlmenu1 = new mainMenu('horizontal', '#1');",
        "qlmenu1 = new subMenu('1');",
        "qlmenu1 = new subMenu('1i1', '#2', '#3');",
        "qlmenu1 = new subMenu('0');",
        "qlmenu1 = new subMenu('",
        "qlmenu1.addItems('A', 'a.html', '');",
        "qlmenu1.addItems(",
        "qlmenu1.addImages('a\\'b.html', 'o.gif', 'v.gif');",
        "qlmenu1.columns = 3;",
        "qlmenu1.divider = 'it's';",
        "qlm_state.fontSize = '9pt';",
        "');",
        ");",
        "'",
        "\\'",
        "\\",
        "~||~",
        "~",
        "|",
        "||",
        ":",
        "::",
        ":::::",
        ":A|a.html|main",
        ":It's|\"b\"",
        "caf\xC3\xA9",
        "\xE9",
        "=",
        ";",
        " ",
        "\t",
        "\r",
        "\n",
        "\r\n",
        "\n",
        "\n:",
        "\n::",
        std::string_view("\0", 1),
        "\xEF\xBB\xBF",
    };
    std::mt19937 random(20);
    for (int run = 0; run < 20'000; ++run) {
        std::string bytes;
        for (std::size_t count = random() % 40; count > 0; --count)
            bytes += kPieces[random() % std::size(kPieces)];
        ASSERT_EQ(problemOf(bytes), "") << testing::PrintToString(bytes);
    }
}

}  // namespace
}  // namespace zev::test
