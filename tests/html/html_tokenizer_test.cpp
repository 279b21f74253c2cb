// SPDX-License-Identifier: MIT
#include "html/html_tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/html/html_tokens.h"

namespace zev {
namespace {

using namespace std::string_view_literals;
using Tokens = std::vector<std::string>;

struct Case {
    std::string_view page;
    Tokens tokens;
};

void expectTokens(const std::vector<Case>& cases) {
    for (const Case& test : cases)
        EXPECT_EQ(drawTokens(test.page), test.tokens) << test.page;
}

TEST(HtmlTokenizerTest, AnEmptyPageHasNoToken) {
    EXPECT_EQ(drawTokens(""), Tokens{});
}

TEST(HtmlTokenizerTest, TextAndTagsAlternate) {
    expectTokens({
        {"text only", {"Ttext only"}},
        {"<p>", {"S<p>"}},
        {"<p>one<br>two</p>\r\n", {"S<p>", "Tone", "S<br>", "Ttwo", "E</p>", "T\r\n"}},
        {"<A><b></B></a>", {"S<A>", "S<b>", "E</B>", "E</a>"}},
    });
}

TEST(HtmlTokenizerTest, OnlyANameMakesALessThanSignATag) {
    expectTokens({
        {"a < b", {"Ta < b"}},
        {"a <1> b", {"Ta <1> b"}},
        {"<", {"T<"}},
        {"</", {"T</"}},
        {"a<", {"Ta<"}},
        {"<<<p>", {"T<<", "S<p>"}},
        {"<>", {"T<>"}},
        {"<\xC3\xA9>", {"T<\xC3\xA9>"}},
        {"<-->", {"T<-->"}},
        {"<@x><[x><`x><{x>", {"T<@x><[x><`x><{x>"}},
        {"<a><z><A><Z>", {"S<a>", "S<z>", "S<A>", "S<Z>"}},
    });
}

TEST(HtmlTokenizerTest, ATagsNameEndsAtSpaceSlashOrBracket) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {"<Body>", "Body"},
        {"<body\tx>", "body"},
        {"<body\nx>", "body"},
        {"<body\fx>", "body"},
        {"<body\rx>", "body"},
        {"<body x>", "body"},
        {"<body/x>", "body"},
        {"<o:p>", "o:p"},
        {"<h1>", "h1"},
        {"<a\"b>", "a\"b"},
        {"<a=b>", "a=b"},
        {"<a<b>", "a<b"},
        {"</Body >", "/Body"},
        {"<x", "x"},
        {"<bo\0dy>"sv, "bo\0dy"sv},
        {"<body\vx>", "body\vx"},
        {"<body<? code ?>>", "body"},
    };
    for (const auto& [page, name] : cases)
        EXPECT_EQ(firstToken(page).name, name) << page;
}

TEST(HtmlTokenizerTest, QuotesHideTheClosingBracketOnlyAsAValue) {
    expectTokens({
        {"<a b=\"x>y\">z", {"S<a b=\"x>y\">", "Tz"}},
        {"<a b='x>y'>z", {"S<a b='x>y'>", "Tz"}},
        {"<a b = \"x>y\">z", {"S<a b = \"x>y\">", "Tz"}},
        {"<a b=\n'x>y'>z", {"S<a b=\n'x>y'>", "Tz"}},
        {"<a b=\"x'>y\">z", {"S<a b=\"x'>y\">", "Tz"}},
        {"<a b=x\">y\">z", {"S<a b=x\">", "Ty\">z"}},
        {"<a \"x>y\">z", {"S<a \"x>", "Ty\">z"}},
        {"<a b\"x>y\">z", {"S<a b\"x>", "Ty\">z"}},
        {"<a =\"x>y\">z", {"S<a =\"x>", "Ty\">z"}},
        {"<a b==\"x>y\">z", {"S<a b==\"x>", "Ty\">z"}},
        {"<a b=\"\"c='>'>z", {"S<a b=\"\"c='>'>", "Tz"}},
        {"<a b=\"\"\">z", {"S<a b=\"\"\">", "Tz"}},
        {"<a b/=\">\">z", {"S<a b/=\">", "T\">z"}},
        {"<a b=/\">\">z", {"S<a b=/\">", "T\">z"}},
        {"<a b=>z", {"S<a b=>", "Tz"}},
        {"<a b= >z", {"S<a b= >", "Tz"}},
        {"<a b \"c>\">z", {"S<a b \"c>", "T\">z"}},
    });
}

TEST(HtmlTokenizerTest, SelfClosingTagsAreStartTags) {
    expectTokens({
        {"<br/>x", {"S<br/>", "Tx"}},
        {"<br />x", {"S<br />", "Tx"}},
        {"<a b=c/>x", {"S<a b=c/>", "Tx"}},
        {"<a/ / b>x", {"S<a/ / b>", "Tx"}},
    });
}

TEST(HtmlTokenizerTest, EndTagsMayHaveAttributes) {
    expectTokens({
        {"</p class=\"a>b\">x", {"E</p class=\"a>b\">", "Tx"}},
        {"</br/>x", {"E</br/>", "Tx"}},
    });
}

TEST(HtmlTokenizerTest, WhatThePageEndCutsOffIsOneTag) {
    for (const std::string_view page :
         {"<p", "<p ", "<p a", "<p a=", "<p a= ", "<p a=b", "<p a=\"b", "<p a=\"b>c<d>", "<p a='",
          "<p a='b'", "<p/", "<p a=\"<? ?>"}) {
        EXPECT_EQ(drawTokens(page), Tokens{"S" + std::string(page)}) << page;
        EXPECT_EQ(firstToken(page).inside, page.substr(1)) << page;
    }
    expectTokens({{"</p", {"E</p"}}, {"</p a=\"b>c", {"E</p a=\"b>c"}}});
}

TEST(HtmlTokenizerTest, InsideIsWhatStandsBetweenTheAngleBrackets) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {"<p>", "p"},
        {"<p a=\"b\" />", "p a=\"b\" /"},
        {"</P >", "/P "},
        {"<!-- a -->", "!-- a --"},
        {"<!DOCTYPE html>", "!DOCTYPE html"},
        {"<?php a ?>", "?php a ?"},
        {"<?php $a->", "?php $a->"},
        {"<% a %>", "% a %"},
        {"<!--- a --->", "!--- a ---"},
        {"<script a>b</script>", "script a"},
        {"text", ""},
    };
    for (const auto& [page, inside] : cases)
        EXPECT_EQ(firstToken(page).inside, inside) << page;
}

TEST(HtmlTokenizerTest, NulBytesAreBytesLikeOthers) {
    expectTokens({
        {"\0\0"sv, {std::string("T\0\0", 3)}},
        {"a\0b<p\0>\0"sv,
         {std::string("Ta\0b", 4), std::string("S<p\0>", 5), std::string("T\0", 2)}},
        {"<\0p>"sv, {std::string("T<\0p>", 5)}},
        {"<p a=\"\0>\">"sv, {std::string("S<p a=\"\0>\">", 11)}},
        {"<!--\0-->"sv, {std::string("C<!--\0-->", 9)}},
    });
}

TEST(HtmlTokenizerTest, AUtf8MarkIsText) {
    expectTokens({{"\xEF\xBB\xBF<html>", {"T\xEF\xBB\xBF", "S<html>"}}});
}

TEST(HtmlTokenizerTest, APageInUtf16IsText) {
    const std::string_view little = "\xFF\xFE<\0p\0>\0"sv;
    const std::string_view big = "\xFE\xFF\x3C\x41\0<\0p\0>"sv;  // the character U+3C41 comes first
    for (const std::string_view page : {little, big, "<\0p\0>\0"sv, "\0<\0p\0>"sv})
        EXPECT_EQ(drawTokens(page), Tokens{"T" + std::string(page)});
}

TEST(HtmlTokenizerTest, BytesOfOtherEncodingsDoNotDisturb) {
    // Shift_JIS: the second byte of a character may be a letter, a backslash or a bracket "[".
    expectTokens({{"<p title=\"\x83\x5C\x83\x5B\">\x95\x5C\x81\x7C<b>",
                   {"S<p title=\"\x83\x5C\x83\x5B\">", "T\x95\x5C\x81\x7C", "S<b>"}},
                  {"<p title=\xE9>\xFF<b>", {"S<p title=\xE9>", "T\xFF", "S<b>"}}});
}

TEST(HtmlTokenizerTest, OffsetsCountBytesOfThePage) {
    HtmlTokenizer tokenizer("\xC3\xA9<p>x</p>");
    HtmlToken token;
    std::vector<std::size_t> offsets;
    while (tokenizer.next(token))
        offsets.push_back(token.offset);
    EXPECT_EQ(offsets, (std::vector<std::size_t>{0, 2, 5, 6}));
}

}  // namespace
}  // namespace zev
