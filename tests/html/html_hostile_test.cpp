// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "html/html_tokenizer.h"
#include "tests/support/hostile_pages.h"
#include "tests/support/html_properties.h"

namespace zev {
namespace {

const std::vector<std::string> kFragments = {
    "<",
    "</",
    ">",
    "/",
    "=",
    "\"",
    "'",
    " ",
    "\n",
    "a",
    "-",
    "--",
    "!",
    "<!",
    "<!--",
    "-->",
    "--!>",
    "<!---",
    "--->",
    "<?",
    "<?php ",
    "<?xml ",
    "?>",
    "<%",
    "%>",
    "<%--",
    "--%>",
    "<p",
    "<body ",
    "onload",
    "a=\"",
    "a='",
    "<script>",
    "<script",
    "</script>",
    "</script",
    "<title>",
    "</title>",
    "<style",
    "</style ",
    "<!DOCTYPE",
    "]]>",
    std::string(1, '\0'),
    "\xEF\xBB\xBF",
    "\xFF\xFE",
    "\xE9",
    "<textarea/>",
};

TEST(HtmlPropertyTest, RandomPagesComeBackTokenByToken) {
    std::mt19937 random(20240607);
    for (int i = 0; i < 30000; ++i) {
        std::string page;
        for (auto count = random() % 30; count > 0; --count)
            page += kFragments[random() % kFragments.size()];
        ASSERT_EQ(problemOfPage(page), "") << "page " << i << ": " << page;
    }
}

TEST(HtmlPropertyTest, RandomBytesComeBackTokenByToken) {
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        std::string page;
        for (auto count = random() % 200; count > 0; --count)
            page += static_cast<char>(random() % 256);
        ASSERT_EQ(problemOfPage(page), "") << "page " << i << ": " << page;
    }
}

class HtmlHostileTest : public testing::TestWithParam<HostilePage> {};

/// Whoever takes more than linear time here is stopped by ctest's time limit.
TEST_P(HtmlHostileTest, FourMegabytesAreReadInLinearTime) {
    const HostilePage& test = GetParam();
    const std::string page = hostilePage(test, 4'000'000);
    HtmlTokenizer tokenizer(page);
    HtmlToken token;
    std::size_t size = 0;
    while (tokenizer.next(token)) {
        ASSERT_EQ(token.offset, size);
        size += token.source.size();
    }
    EXPECT_EQ(size, page.size());
}

INSTANTIATE_TEST_SUITE_P(Pages, HtmlHostileTest, testing::ValuesIn(kHostilePages),
                         [](const testing::TestParamInfo<HostilePage>& hostile) {
                             return hostile.param.name;
                         });

}  // namespace
}  // namespace zev
