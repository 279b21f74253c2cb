#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "platform/html/html_tokenizer.h"
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
        for (auto count = random() % 30; count > 0; --count) {
            page += kFragments[random() % kFragments.size()];
        }
        ASSERT_EQ(problemOfPage(page), "") << "page " << i << ": " << page;
    }
}

TEST(HtmlPropertyTest, RandomBytesComeBackTokenByToken) {
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        std::string page;
        for (auto count = random() % 200; count > 0; --count) {
            page += static_cast<char>(random() % 256);
        }
        ASSERT_EQ(problemOfPage(page), "") << "page " << i << ": " << page;
    }
}

struct HostileCase {
    std::string name;
    std::string begin;
    std::string repeated;
    std::string end;
};

void PrintTo(const HostileCase& hostile, std::ostream* out) {
    *out << hostile.name;
}

class HtmlHostileTest : public testing::TestWithParam<HostileCase> {};

/// Whoever takes more than linear time here is stopped by ctest's time limit.
TEST_P(HtmlHostileTest, FourMegabytesAreReadInLinearTime) {
    const HostileCase& test = GetParam();
    std::string page = test.begin;
    while (page.size() < 4'000'000) {
        page += test.repeated;
    }
    page += test.end;
    HtmlTokenizer tokenizer(page);
    HtmlToken token;
    std::size_t size = 0;
    while (tokenizer.next(token)) {
        ASSERT_EQ(token.offset, size);
        size += token.source.size();
    }
    EXPECT_EQ(size, page.size());
}

INSTANTIATE_TEST_SUITE_P(Pages, HtmlHostileTest,
                         testing::ValuesIn(std::vector<HostileCase>{
                             {"LessThanSigns", "", "<", ""},
                             {"Slashes", "", "</", ""},
                             {"Zeros", "", std::string(1, '\0'), ""},
                             {"OneText", "", "text ", ""},
                             {"OneAttribute", "<p a=\"", "value>", "\">"},
                             {"Attributes", "<p ", "a=b ", ">"},
                             {"AttributesOfOneLetter", "<p ", "a ", ">"},
                             {"UnclosedQuotes", "", "<p a=\"", ""},
                             {"QuotesInTurn", "", "<p a=\"' b='\"", ""},
                             {"UnclosedComments", "", "<!--", ""},
                             {"CommentsOfDashes", "<!--", "-", ""},
                             {"CommentsAlmostClosed", "<!--", "--!", ""},
                             {"CommentsWithThreeDashes", "", "<!--- ", ""},
                             {"CommentsWithThreeDashesAndTwo", "", "<!--- -->", ""},
                             {"NestedServerComments", "", "<!---a", "--->"},
                             {"ServerCommentsInATag", "<p ", "<!---a--->", ">"},
                             {"UnclosedServerCommentsInATag", "<p ", "<!---a", ">"},
                             {"UnclosedDeclarations", "", "<!x", ""},
                             {"UnclosedQuestions", "", "<?x", ""},
                             {"UnclosedQuestionsInATag", "<p ", "<?", ">"},
                             {"UnclosedXml", "", "<?xml", ""},
                             {"UnclosedXmlInATag", "<p ", "<?xml ", ">"},
                             {"UnclosedPercents", "", "<%", ""},
                             {"UnclosedPercentComments", "", "<%--", ""},
                             {"PercentCommentsWithoutTheirEnd", "", "<%--%>", ""},
                             {"UnclosedBlocksInAComment", "<!--", "<? <% <!--- ", "-->"},
                             {"BlocksInAComment", "<!--", "<?-->?>", "-->"},
                             {"UnclosedScripts", "", "<script>", ""},
                             {"EscapedScripts", "<script>", "<!--<script>", ""},
                             {"EscapesOpenedAndClosed", "<script>", "<!-- -->", ""},
                             {"EscapedWithoutEnd", "<script>", "<!--<", ""},
                             {"ScriptsNeverQuiteEnded", "<script>", "</script", ""},
                             {"BlocksInAScript", "<script><!--", "<?-->?>", ""},
                             {"UnclosedTitles", "", "<title>", ""},
                             {"TitlesNeverQuiteEnded", "<title>", "</titl", ""},
                             {"Plaintext", "<plaintext>", "<p>", ""},
                             {"DeepElements", "", "<div>", ""},
                         }),
                         [](const testing::TestParamInfo<HostileCase>& hostile) {
                             return hostile.param.name;
                         });

}  // namespace
}  // namespace zev
