// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "html/server_blocks.h"
#include "tests/html/html_tokens.h"

namespace zev {
namespace {

using Tokens = std::vector<std::string>;

/// One of each kind, with everything in it that would be markup outside.
const std::vector<std::string> kBlocks = {
    "<?php if ($a->b > 1) { echo \"<body class='x'>\"; } // --> </script></title> ?>",
    "<?= \"'>\" ?>",
    "<? a > '\"' ?>",
    "<% if a > \"b\" then %>",
    "<%-- <% a %> > \" ' </script> --%>",
    "<%= \"--\" %>",
    "<!--- <body> --> > \" ' </script></title> --->",
    "<!--- <!-- a --> <!--- b ---> > --->",
    "<!--- a <!-- b --> c --->",
};

TEST(HtmlServerBlockTest, InTextIsATokenOfItsOwnWithoutText) {
    for (const std::string& block : kBlocks) {
        const std::string page = "a" + block + "b<p>" + block + "</p>";
        EXPECT_EQ(drawTokens(page),
                  (Tokens{"Ta", "C" + block, "Tb", "S<p>", "C" + block, "E</p>"}));
        EXPECT_EQ(firstToken(block).text, "") << block;
        EXPECT_EQ(firstToken(block).name, "!") << block;
    }
}

TEST(HtmlServerBlockTest, AnXmlDeclarationIsABlock) {
    const std::string block = "<?xml version=\"1.0\" title=\">\"?>";
    EXPECT_EQ(drawTokens(block + "<p>"), (Tokens{"C" + block, "S<p>"}));
}

TEST(HtmlServerBlockTest, IsOpaqueInEveryPlaceWithinATag) {
    for (const std::string& block : kBlocks) {
        for (const std::string& tag :
             {"<p " + block + ">", "<p a" + block + ">", "<p " + block + "a>",
              "<p " + block + "=\"a>\">", "<p a=" + block + ">", "<p a=b" + block + "c>",
              "<p a=\"" + block + "\">", "<p a='b" + block + "c' d>", "<p a='b'" + block + ">",
              "<p a = " + block + " b>", "<p/" + block + "/>", "<p" + block + ">",
              "<p a='" + block + block + "'>"}) {
            EXPECT_EQ(drawTokens(tag + "x"), (Tokens{"S" + tag, "Tx"}));
            const std::string endTag = "</" + tag.substr(1);
            EXPECT_EQ(drawTokens(endTag + "x"), (Tokens{"E" + endTag, "Tx"}));
        }
    }
}

TEST(HtmlServerBlockTest, IsOpaqueInRawText) {
    for (const std::string& block : kBlocks) {
        EXPECT_EQ(drawTokens("<title>a" + block + "b</title>c"),
                  (Tokens{"S<title>", "Ta" + block + "b", "E</title>", "Tc"}));
        EXPECT_EQ(drawTokens("<title>" + block + "</title>c"),
                  (Tokens{"S<title>", "T" + block, "E</title>", "Tc"}));
    }
}

TEST(HtmlServerBlockTest, IsOpaqueInScripts) {
    for (const std::string& block : kBlocks) {
        for (const std::string& script :
             {"a" + block + "b", block, "<!-- " + block + " ", "<!-- " + block + " --> ",
              "<!-- <script> " + block + " </script> "}) {
            EXPECT_EQ(drawTokens("<script>" + script + "</script>c"),
                      (Tokens{"S<script>" + script, "E</script>", "Tc"}));
        }
    }
    // The marks of escaping do not count in a block.
    EXPECT_EQ(drawTokens("<script><? <!-- <script> ?></script>c"),
              (Tokens{"S<script><? <!-- <script> ?>", "E</script>", "Tc"}));
    EXPECT_EQ(drawTokens("<script><!-- <script> <? --> ?> </script> </script>c"),
              (Tokens{"S<script><!-- <script> <? --> ?> </script> ", "E</script>", "Tc"}));
}

TEST(HtmlServerBlockTest, IsOpaqueInCommentsAndDeclarations) {
    for (const std::string& block : kBlocks)
        for (const std::string& comment :
             {"<!-- " + block + " -->", "<!--" + block + block + "-->", "<!DOCTYPE " + block + ">",
              "<!x" + block + ">", "</ " + block + ">"})
            EXPECT_EQ(drawTokens(comment + "<p>"), (Tokens{"C" + comment, "S<p>"}));
}

TEST(HtmlServerBlockTest, PhpCodeWithoutAnEndReachesToThePagesEnd) {
    for (const std::string_view page :
         {"<?php a-><body>", "<?PHP\n<b>", "<?= '<b>'", "<? <b>", "<?\n<b>"}) {
        EXPECT_EQ(drawTokens(page), Tokens{"C" + std::string(page)}) << page;
        EXPECT_EQ(firstToken(page).text, "") << page;
        EXPECT_EQ(firstToken(page).inside, page.substr(1)) << page;
    }
}

TEST(HtmlServerBlockTest, WithoutAnEndMostAreNoBlocks) {
    EXPECT_EQ(drawTokens("a <% b <p>"), (Tokens{"Ta <% b ", "S<p>"}));
    EXPECT_EQ(drawTokens("<%>"), (Tokens{"T<%>"}));
    EXPECT_EQ(drawTokens("<?if (a)><p>"), (Tokens{"C<?if (a)>", "S<p>"}));
    EXPECT_EQ(drawTokens("<!--- a --><p>"), (Tokens{"C<!--- a -->", "S<p>"}));
    EXPECT_EQ(drawTokens("<p a=\"<?php \">b"), (Tokens{"S<p a=\"<?php \">", "Tb"}));
    EXPECT_EQ(drawTokens("<p a=<% >b"), (Tokens{"S<p a=<% >", "Tb"}));
    EXPECT_EQ(drawTokens("<script>'<?php'</script>b"),
              (Tokens{"S<script>'<?php'", "E</script>", "Tb"}));
    EXPECT_EQ(drawTokens("<%-- a %><p>"), (Tokens{"C<%-- a %>", "S<p>"}));
}

TEST(HtmlServerBlockTest, AnOrdinaryCommentWithAThirdDashSwallowsNothing) {
    EXPECT_EQ(drawTokens("<!--- a --><body><!-- b --->"),
              (Tokens{"C<!--- a -->", "S<body>", "C<!-- b --->"}));
    EXPECT_EQ(drawTokens("<!--- a --><body><!--- b --->"),
              (Tokens{"C<!--- a -->", "S<body>", "C<!--- b --->"}));
    EXPECT_EQ(drawTokens("<!--- a --><body><!--- b -->"),
              (Tokens{"C<!--- a -->", "S<body>", "C<!--- b -->"}));
    EXPECT_EQ(drawTokens("<!-----><body><!--->x<!--- a --->"),
              (Tokens{"C<!----->", "S<body>", "C<!--->", "Tx", "C<!--- a --->"}));
    EXPECT_EQ(drawTokens("<!------ a ------><body>--->"),
              (Tokens{"C<!------ a ------>", "S<body>", "T--->"}));
}

TEST(HtmlServerBlockTest, NothingBeginsWhereNoBlockDoes) {
    for (const std::string_view page :
         {"<", "<p>", "<?", "<%", "<!", "<!--", "<!---", "<!---x", "<!----->"}) {
        ServerBlocks blocks(page);
        EXPECT_EQ(blocks.endOf(0), 0U) << page;
    }
}

}  // namespace
}  // namespace zev
