// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/html/html_tokens.h"

namespace zev {
namespace {

using Tokens = std::vector<std::string>;

struct Case {
    std::string_view source;  // of the comment; "<b>" follows it
    std::string_view text;
};

void expectComments(const std::vector<Case>& cases) {
    for (const Case& test : cases) {
        const std::string page = std::string(test.source) + "<b>";
        EXPECT_EQ(drawTokens(page), (Tokens{"C" + std::string(test.source), "S<b>"})) << page;
        EXPECT_EQ(firstToken(page).text, test.text) << page;
    }
}

TEST(HtmlCommentTest, EndsAtTwoDashesAndABracket) {
    expectComments({
        {"<!-- a -->", " a "},
        {"<!---->", ""},
        {"<!-- <p> > -- > ->-->", " <p> > -- > ->"},
        {"<!--a--->", "a-"},
        {"<!----a-->", "--a"},
        {"<!-- <!-- -->", " <!-- "},
        {"<!-- <!-->", " <!"},
        {"<!--\r\n-->", "\r\n"},
        {"<!--a--b-->", "a--b"},
        {"<!------>", "--"},
        {"<!--[if IE]><p><![endif]-->", "[if IE]><p><![endif]"},
    });
}

TEST(HtmlCommentTest, MayEndBrokenly) {
    expectComments({
        {"<!-->", ""},
        {"<!--->", ""},
        {"<!--a--!>", "a"},
        {"<!----!>", ""},
        {"<!--a-!>--!b--!>", "a-!>--!b"},
        {"<!--!>-->", "!>"},
        {"<!---!>-->", "-!>"},
        {"<!--a--!-->", "a--!"},
    });
}

TEST(HtmlCommentTest, AnythingElseAfterTheExclamationMarkEndsAtTheFirstBracket) {
    expectComments({
        {"<!>", ""},
        {"<!x>", "x"},
        {"<!- a ->", "- a -"},
        {"<!->", "-"},
        {"<!x \"a>", "x \"a"},
        {"<![CDATA[a]]>", "[CDATA[a]]"},
        {"<![if !IE]>", "[if !IE]"},
        {"<!doctyp>", "doctyp"},
    });
}

TEST(HtmlCommentTest, ADeclarationEndsAtTheFirstBracketAndHasNoText) {
    expectComments({
        {"<!DOCTYPE html>", ""},
        {"<!doctype>", ""},
        {"<!DocType html PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"x\">", ""},
        {"<!DOCTYPE html PUBLIC \"a>", ""},
    });
}

TEST(HtmlCommentTest, AnEndTagWithoutANameIsAComment) {
    expectComments({
        {"</>", ""},
        {"</ x>", " x"},
        {"</1>", "1"},
        {"</ x=\"a>", " x=\"a"},
        {"</!-- a -->", "!-- a --"},
    });
}

TEST(HtmlCommentTest, AProcessingInstructionEndsAtTheFirstBracket) {
    expectComments({
        {"<?>", "?"},
        {"<?x>", "?x"},
        {"<?xml:namespace prefix = o />", "?xml:namespace prefix = o /"},
        {"<?XML:namespace prefix = o />", "?XML:namespace prefix = o /"},
    });
}

TEST(HtmlCommentTest, AnXmlInstructionDoesNotReachForTheEndOfAnother) {
    EXPECT_EQ(drawTokens("<?xml:namespace prefix = o /><p><?php a ?>"),
              (Tokens{"C<?xml:namespace prefix = o />", "S<p>", "C<?php a ?>"}));
}

TEST(HtmlCommentTest, WithoutAnEndReachesToThePagesEnd) {
    for (const std::string_view page :
         {"<!", "<!-", "<!--", "<!---", "<!----", "<!-- <p>", "<!-- a --", "<!-- a --!", "<!x",
          "<!DOCTYPE html", "<?x", "<?", "</ x", "</1", "<!-- a -><b>"}) {
        EXPECT_EQ(drawTokens(page), Tokens{"C" + std::string(page)}) << page;
        EXPECT_EQ(firstToken(page).inside, page.substr(1)) << page;
    }
}

}  // namespace
}  // namespace zev
