// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/html/html_tokens.h"

namespace zev {
namespace {

using Tokens = std::vector<std::string>;

const std::vector<std::string> kRawElements = {"style",  "title",   "textarea", "xmp",
                                               "iframe", "noembed", "noframes"};

TEST(HtmlRawTextTest, TheContentIsOneTextUpToTheEndTag) {
    const std::string content = "<p> </p> <!-- x </b> <script> </";
    for (const std::string& name : kRawElements) {
        const std::string start = "<" + name + " a='>'>";
        EXPECT_EQ(drawTokens(start + content + "</" + name + "><b>"),
                  (Tokens{"S" + start, "T" + content, "E</" + name + ">", "S<b>"}));
        EXPECT_EQ(drawTokens(start + "</" + name + "><b>"),
                  (Tokens{"S" + start, "E</" + name + ">", "S<b>"}));
        EXPECT_EQ(drawTokens(start + content), (Tokens{"S" + start, "T" + content}));
    }
}

TEST(HtmlRawTextTest, OtherElementsHoldMarkup) {
    for (const std::string name : {"p", "noscript", "pre", "listing", "titles", "xm", "template"})
        EXPECT_EQ(drawTokens("<" + name + "><b>"), (Tokens{"S<" + name + ">", "S<b>"}));
}

TEST(HtmlRawTextTest, TheEndTagNeedsTheWholeNameInAnyCase) {
    EXPECT_EQ(drawTokens("<TITLE></titles></title</titl></tITLE ><b>"),
              (Tokens{"S<TITLE>", "T</titles></title</titl>", "E</tITLE >", "S<b>"}));
    for (const std::string_view end : {"</title>", "</title/>", "</title\n>", "</title\t>",
                                       "</title\f>", "</title\r>", "</title a='>'>"}) {
        EXPECT_EQ(drawTokens("<title>a" + std::string(end) + "<b>"),
                  (Tokens{"S<title>", "Ta", "E" + std::string(end), "S<b>"}));
    }
    EXPECT_EQ(drawTokens("<title>a</title"), (Tokens{"S<title>", "Ta</title"}));
    EXPECT_EQ(drawTokens("<title>a</title "), (Tokens{"S<title>", "Ta", "E</title "}));
    EXPECT_EQ(drawTokens("<title>a</style><b></title>"),
              (Tokens{"S<title>", "Ta</style><b>", "E</title>"}));
}

TEST(HtmlRawTextTest, ASlashDoesNotCloseSuchAnElement) {
    EXPECT_EQ(drawTokens("<title/><b>"), (Tokens{"S<title/>", "T<b>"}));
    EXPECT_EQ(drawTokens("<script/><b>"), (Tokens{"S<script/><b>"}));
}

TEST(HtmlRawTextTest, AfterPlaintextAllIsText) {
    EXPECT_EQ(drawTokens("<Plaintext></plaintext><b>"),
              (Tokens{"S<Plaintext>", "T</plaintext><b>"}));
}

TEST(HtmlScriptTest, TheScriptBelongsToItsStartTag) {
    for (const std::string_view script : {
             "",
             "a < b; document.write('<p></p>');",
             "</scrip></scripts></script",
             "'<script>'",
             "<!-- a",
             "<!-- a -->",
             "<!--\nif (i-->0) x();\n//-->\n",
             "<!-- <script> --> ",
             "<!-- <script></script> ",
             "<!-- <script></script> --> ",
             "<!--<script </script\n-->",
             "<!--<SCRIPT/></Script> a",
             "<!--><script>",
             "<!---><script>",
             "<!--<scripts>",
             "<!--<script",
             "<!--<script></scripts>-->",
             "<!--<script></script><script></script>",
             "<!--<script>--><!--",
             "<!-<script>",
             "--><script>",
         }) {
        const std::string start = "<script a='>'>" + std::string(script);
        const std::string page = start + "</script><b>";
        EXPECT_EQ(drawTokens(page), (Tokens{"S" + start, "E</script>", "S<b>"})) << page;
        const HtmlToken token = firstToken(page);
        EXPECT_EQ(token.text, script) << page;
        EXPECT_EQ(token.inside, "script a='>'") << page;
        EXPECT_EQ(token.name, "script") << page;
    }
}

TEST(HtmlScriptTest, AScriptWithinTheEscapedScriptHasAnEndTagOfItsOwn) {
    for (const std::string_view script : {"<!--<script>", "<!-- <script > a", "<!--<script/</b>",
                                          "<!-- <sCRIPT\n", "<!--<script></script><script>"}) {
        const std::string page = "<script>" + std::string(script) + "</script>a</script><b>";
        const std::string start = "<script>" + std::string(script) + "</script>a";
        EXPECT_EQ(drawTokens(page), (Tokens{"S" + start, "E</script>", "S<b>"})) << page;
    }
}

TEST(HtmlScriptTest, TheEndTagNeedsTheWholeNameInAnyCase) {
    for (const std::string_view end :
         {"</SCRIPT>", "</script >", "</script\n>", "</script/>", "</script a='>'>"}) {
        EXPECT_EQ(drawTokens("<Script>a" + std::string(end) + "<b>"),
                  (Tokens{"S<Script>a", "E" + std::string(end), "S<b>"}));
    }
}

TEST(HtmlScriptTest, WithoutAnEndTagReachesToThePagesEnd) {
    for (const std::string_view page :
         {"<script>", "<script", "<script a='", "<script>a<b>", "<script>a</script", "<script><!--",
          "<script><!--a</scripts>", "<script><!--<script></script>", "<script>a<", "<script>a</"})
        EXPECT_EQ(drawTokens(page), Tokens{"S" + std::string(page)}) << page;
}

}  // namespace
}  // namespace zev
