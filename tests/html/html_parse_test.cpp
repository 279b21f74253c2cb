// SPDX-License-Identifier: MIT
#include "html/html_parse.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zev {
namespace {

/// A page of its own bytes, loaded.
struct LoadedPage {
    explicit LoadedPage(std::string text) : bytes(std::move(text)) { page.Load(bytes); }

    const std::string bytes;
    HtmlParse page;
};

/// What a tag's text is after setting an attribute of a page that is this one tag.
std::string withAttribute(const std::string& tag, const std::string& name,
                          const std::string& value) {
    LoadedPage loaded(tag);
    const std::string source(loaded.page.Source());
    loaded.page.SetAttribute(name, value);
    EXPECT_EQ(loaded.page.Source(), source);
    return "<" + std::string(loaded.page.TagText()) + ">";
}

TEST(HtmlParseTest, StepsThroughThePage) {
    struct Step {
        bool isTag;
        std::string name, tagText, text, source;
    };
    const std::vector<Step> steps = {
        {true, "!", "!DOCTYPE html", "", "<!DOCTYPE html>"},
        {true, "html", "HTML", "", "<HTML>"},
        {false, "", "", "\r\n", "\r\n"},
        {true, "!", "!-- a --", " a ", "<!-- a -->"},
        {true, "script", "Script src=x", "f();", "<Script src=x>f();"},
        {true, "/script", "/Script", "", "</Script>"},
        {true, "!", "?php <a> ?", "", "<?php <a> ?>"},
        {true, "body", "Body onLoad='x'", "", "<Body onLoad='x'>"},
        {true, "/body", "/BODY ", "", "</BODY >"},
        {true, "/html", "/html", "", "</html>"},
    };
    std::string bytes;
    for (const Step& step : steps)
        bytes += step.source;
    LoadedPage loaded(bytes);
    for (const Step& step : steps) {
        EXPECT_EQ(loaded.page.IsTag(), step.isTag) << step.source;
        EXPECT_EQ(loaded.page.TagName(), step.name) << step.source;
        EXPECT_EQ(loaded.page.TagText(), step.tagText) << step.source;
        EXPECT_EQ(loaded.page.Text(), step.text) << step.source;
        EXPECT_EQ(loaded.page.Source(), step.source);
        EXPECT_EQ(loaded.page.offset(), bytes.find(step.source)) << step.source;
        EXPECT_EQ(loaded.page.IsLast(), &step == &steps.back()) << step.source;
        loaded.page.Next();
    }
    EXPECT_EQ(loaded.page.Source(), "</html>") << "Next does nothing on the last token";
}

/// However many tokens are read ahead, each is asked when it is the current one.
TEST(HtmlParseTest, ALongPageIsSteppedThroughTokenByToken) {
    constexpr int kTags = 500;
    std::string bytes;
    for (int i = 0; i < kTags; ++i)
        bytes += "<Tag" + std::to_string(i) + " a=" + std::to_string(i) + ">";
    LoadedPage loaded(bytes);
    for (int i = 0; i < kTags; ++i) {
        const std::string number = std::to_string(i);
        ASSERT_EQ(loaded.page.TagName(), "tag" + number);
        EXPECT_EQ(loaded.page.TagText(), "Tag" + number + " a=" + number);
        EXPECT_EQ(loaded.page.Attribute("a"), number);
        loaded.page.SetAttribute("a", "x" + number);
        EXPECT_EQ(loaded.page.Attribute("a"), "x" + number);
        EXPECT_EQ(loaded.page.Source(), "<Tag" + number + " a=" + number + ">");
        ASSERT_EQ(loaded.page.IsLast(), i + 1 == kTags);
        loaded.page.Next();
    }
}

TEST(HtmlParseTest, AnEmptyPageHasNoToken) {
    LoadedPage loaded("");
    EXPECT_TRUE(loaded.page.IsLast());
    EXPECT_FALSE(loaded.page.IsTag());
    loaded.page.Next();
    EXPECT_EQ(loaded.page.Source(), "");
}

TEST(HtmlParseTest, TheLastTokenIsLastEvenWhereAScriptIsCutOff) {
    for (const std::string bytes : {"x", "<p", "<script>a", "<!-- a", "<?php", "</script>"}) {
        LoadedPage loaded(bytes);
        EXPECT_TRUE(loaded.page.IsLast()) << bytes;
        EXPECT_EQ(loaded.page.Source(), bytes);
    }
}

TEST(HtmlParseTest, CloseLetsGoOfThePage) {
    LoadedPage loaded("<p a=b>x");
    loaded.page.SetAttribute("a", "c");
    loaded.page.Close();
    EXPECT_TRUE(loaded.page.IsLast());
    EXPECT_FALSE(loaded.page.IsTag());
    EXPECT_EQ(loaded.page.TagName(), "");
    EXPECT_EQ(loaded.page.TagText(), "");
    EXPECT_EQ(loaded.page.Source(), "");
    EXPECT_EQ(loaded.page.Attribute("a"), "");
}

TEST(HtmlParseTest, AnotherPageBeginsAtItsFirstToken) {
    LoadedPage loaded("<p>x");
    loaded.page.SetAttribute("a", "b");
    loaded.page.Load("<i>y");
    EXPECT_EQ(loaded.page.TagText(), "i");
}

TEST(HtmlAttributeTest, IsReadAsSpelledInEveryQuoting) {
    struct Case {
        std::string tag, value;
    };
    for (const Case& test : std::vector<Case>{
             {"<body onload=\"a b\">", "a b"},
             {"<body onload='a \"b\"'>", "a \"b\""},
             {"<body onload=a>", "a"},
             {"<body onload=a/>", "a/"},
             {"<body onload=a\"b'c=d>", "a\"b'c=d"},
             {"<body onload>", ""},
             {"<body onload=>", ""},
             {"<body onload= >", ""},
             {"<body onload=\"\">", ""},
             {"<body onload = \"a\">", "a"},
             {"<body onload\n=\n'a'>", "a"},
             {"<body ONLOAD=a>", "a"},
             {"<body OnLoad=\"A&quot;\">", "A&quot;"},
             {"<body/onload=a>", "a"},
             {"<body x onload=a>", "a"},
             {"<body x='onload=b'onload=a>", "a"},
             {"<body onload=a onload=b ONLOAD=c>", "a"},
             {"<body onload onload=b>", ""},
             {"<body xonload=b onloadx=c>", ""},
             {"<body data-onload=b>", ""},
             {"<body title=\"onload=b\">", ""},
             {"<body onload=\"a\nb\">", "a\nb"},
             {"<body onload=\"a", "a"},
             {"<body onload=a", "a"},
             {"<body onload=", ""},
             {"<body onload=\"<?= \"x\" ?>\">", "<?= \"x\" ?>"},
             {"<body onload=<? a b ?>>", "<? a b ?>"},
             {"<body <?php onload=b ?> onload=a>", "a"},
             {"<body <? if ($a > 1) { ?>onload=\"a\"<? } ?>>", "a"},
             {"<body class='x'<? b ?>onload=a>", "a"},
             {"<body<? b ?> onload=a>", "a"},
             {"<body <?= 'name' ?>=\"x onload=b\" onload=a>", "a"},
             {"</body onload=a>", "a"},
         }) {
        LoadedPage loaded(test.tag);
        EXPECT_EQ(loaded.page.Attribute("onload"), test.value) << test.tag;
        EXPECT_EQ(loaded.page.Attribute("OnLOAD"), test.value) << test.tag;
    }
}

TEST(HtmlAttributeTest, TextAndCommentsHaveNone) {
    for (const std::string bytes :
         {"a b=c", "<!a b=c>", "<!-- b=c -->", "<? b=c ?>", "<% b=c %>"}) {
        LoadedPage loaded(bytes);
        const std::string tagText(loaded.page.TagText());
        EXPECT_EQ(loaded.page.Attribute("b"), "") << bytes;
        loaded.page.SetAttribute("b", "d");
        EXPECT_EQ(loaded.page.TagText(), tagText) << bytes;
    }
}

TEST(HtmlAttributeTest, AChangedValueKeepsItsQuotesAndAllOtherBytes) {
    struct Case {
        std::string tag, changed;
    };
    for (const Case& test : std::vector<Case>{
             {"<BODY  a onLoad = \"x\"\tb='1'/ >", "<BODY  a onLoad = \"new\"\tb='1'/ >"},
             {"<body onload='x'b>", "<body onload='new'b>"},
             {"<body onload=x>", "<body onload=\"new\">"},
             {"<body onload=x/>", "<body onload=\"new\">"},
             {"<body onload=x b>", "<body onload=\"new\" b>"},
             {"<body onload>", "<body onload=\"new\">"},
             {"<body onload b>", "<body onload=\"new\" b>"},
             {"<body onload/>", "<body onload=\"new\"/>"},
             {"<body onload=>", "<body onload=\"new\">"},
             {"<body onload= >", "<body onload= \"new\">"},
             {"<body onload=\"\">", "<body onload=\"new\">"},
             {"<body onload=x onload=y>", "<body onload=\"new\" onload=y>"},
             {"<body <? a ?> onload='<? \"' ?>' <% b %>>", "<body <? a ?> onload='new' <% b %>>"},
         })
        EXPECT_EQ(withAttribute(test.tag, "onload", "new"), test.changed) << test.tag;
}

TEST(HtmlAttributeTest, AnAddedOneGoesBeforeTheClosingBracket) {
    struct Case {
        std::string tag, changed;
    };
    for (const Case& test : std::vector<Case>{
             {"<body>", "<body onload=\"new\">"},
             {"<body >", "<body onload=\"new\">"},
             {"<body\n>", "<body\nonload=\"new\">"},
             {"<body/>", "<body onload=\"new\"/>"},
             {"<body />", "<body onload=\"new\"/>"},
             {"<body a>", "<body a onload=\"new\">"},
             {"<body a=b>", "<body a=b onload=\"new\">"},
             {"<body a=b/>", "<body a=b/ onload=\"new\">"},
             {"<body a='b'/>", "<body a='b' onload=\"new\"/>"},
             {"<body a='b/'>", "<body a='b/' onload=\"new\">"},
             {"<body a=>", "<body a=\"\" onload=\"new\">"},
             {"<body a= >", "<body a= \"\" onload=\"new\">"},
             {"<body a=\"\">", "<body a=\"\" onload=\"new\">"},
             {"<body a=<? b ?>>", "<body a=<? b ?> onload=\"new\">"},
             {"<body <? b ?>>", "<body <? b ?> onload=\"new\">"},
             {"<body<? b ?>>", "<body<? b ?> onload=\"new\">"},
             {"<body xonload=b>", "<body xonload=b onload=\"new\">"},
         })
        EXPECT_EQ(withAttribute(test.tag, "onload", "new"), test.changed) << test.tag;
}

TEST(HtmlAttributeTest, ItsQuoteInTheValueIsWrittenAsAReference) {
    EXPECT_EQ(withAttribute("<p a=\"\">", "a", "f(\"x\",'y')"), "<p a=\"f(&quot;x&quot;,'y')\">");
    EXPECT_EQ(withAttribute("<p a=''>", "a", "f(\"x\",'y')"), "<p a='f(\"x\",&#39;y&#39;)'>");
    EXPECT_EQ(withAttribute("<p>", "a", "f(\"x\",'y')"), "<p a=\"f(&quot;x&quot;,'y')\">");
    EXPECT_EQ(withAttribute("<p a=f(\"x\")>", "a", "g();f(\"x\")"),
              "<p a=\"g();f(&quot;x&quot;)\">");
}

TEST(HtmlAttributeTest, ReferencesAndServerCodeInTheValueStayAsTheyAre) {
    EXPECT_EQ(withAttribute("<p a='&amp;&quot;'>", "a", "x&amp;&quot;"), "<p a='x&amp;&quot;'>");
    EXPECT_EQ(withAttribute("<p a=\"\">", "a", "\"<?= f(\"x\") ?>\""),
              "<p a=\"&quot;<?= f(\"x\") ?>&quot;\">");
}

TEST(HtmlAttributeTest, SeveralChangesAddUpAndCanBeRead) {
    LoadedPage loaded("<BODY onload='a'>x");
    HtmlParse& page = loaded.page;
    page.SetAttribute("onload", "new;" + std::string(page.Attribute("onload")));
    page.SetAttribute("onresize", "r");
    page.SetAttribute("onload", "x");
    EXPECT_EQ(page.TagText(), "BODY onload='x' onresize=\"r\"");
    EXPECT_EQ(page.Attribute("onresize"), "r");
    EXPECT_EQ(page.TagName(), "body");
    EXPECT_EQ(page.Source(), "<BODY onload='a'>");
    page.Next();
    EXPECT_EQ(page.TagText(), "");
    EXPECT_EQ(page.Text(), "x");
}

TEST(HtmlAttributeTest, ItsOwnValueCanBeSetBack) {
    LoadedPage loaded("<p a='x'>");
    loaded.page.SetAttribute("a", "a long value that does not fit a short string");
    loaded.page.SetAttribute("a", loaded.page.Attribute("a"));
    EXPECT_EQ(loaded.page.TagText(), "p a='a long value that does not fit a short string'");
}

TEST(HtmlAttributeTest, OfAScriptTheStartTagCounts) {
    LoadedPage loaded("<script language=JavaScript>x src=y</script>");
    EXPECT_EQ(loaded.page.Attribute("language"), "JavaScript");
    EXPECT_EQ(loaded.page.Attribute("src"), "");
}

TEST(HtmlParseTest, KnowsWhetherATagHasAnAttribute) {
    HtmlParse parser;
    parser.Load("<a HREF name='' data-x=1>href<!-- href --></a>");
    for (const char* const name : {"href", "Name", "data-x"})
        EXPECT_TRUE(parser.hasAttribute(name)) << name;
    for (const char* const name : {"a", "data", "x", "", "1"})
        EXPECT_FALSE(parser.hasAttribute(name)) << name;
    for (; !parser.IsLast();) {
        parser.Next();
        EXPECT_FALSE(parser.hasAttribute("href")) << parser.Source();
    }
}

TEST(HtmlParseTest, KnowsTheElementsThatHoldTextOnly) {
    for (const char* const name : {"script", "STYLE", "title", "textarea", "xmp", "iframe",
                                   "noembed", "noframes", "plaintext"})
        EXPECT_TRUE(hasRawContent(name)) << name;
    for (const char* const name : {"", "p", "scripts", "/script", "noscript", "pre"})
        EXPECT_FALSE(hasRawContent(name)) << name;
}

/// What a reader gets to see of a page, a line for each token.
std::vector<std::string> tokensOf(const std::string& page, HtmlTokens tokens, bool isEachNotable) {
    std::vector<std::string> lines;
    HtmlParse parser;
    for (parser.Load(page, tokens);; parser.Next()) {
        const std::string name(parser.TagName());
        const std::string element = name.starts_with('/') ? name.substr(1) : name;
        if (!isEachNotable || parser.IsLast() || element == "!" || element == "head" ||
            element == "body" || hasRawContent(element))
            lines.push_back(std::to_string(parser.offset()) + " " + name + " " +
                            std::string(parser.Text()) + " " + std::string(parser.Source()));
        if (parser.IsLast())
            return lines;
    }
}

TEST(HtmlParseTest, OnlyTextAndOrdinaryTagsCanBePassedOver) {
    const std::vector<std::string> fragments = {
        "<p ",
        "<P",
        "</p",
        "<td",
        ">",
        "=",
        "'",
        "\"",
        "/",
        " ",
        "\n",
        "\x01",
        "<",
        "a",
        "class=\"one two\"",
        " id='x'",
        " b = \"c\"",
        " d=e",
        " =\"f>\"",
        "='g>'",
        "h/=\"i>\"",
        "<body onload=\"g('>')\"",
        "<body>",
        "</body>",
        "<HEAD>",
        "<title>",
        "</title>",
        "<script>",
        "</script>",
        "<table>",
        "<% \" > %>",
        "<?php ' ?>",
        "<!-- c -->",
        "<!--- d --->",
        "<!doctype x>",
        "1 < 2",
        " title=\"a value of more than sixteen characters\"",
        "a name of more than sixteen characters"};
    std::mt19937 random(4711);
    for (int i = 0; i < 20'000; ++i) {
        std::string page;
        for (std::size_t count = 1 + random() % 12; count > 0; --count)
            page += fragments[random() % fragments.size()];
        // Near its end a page is read more slowly.
        page += i % 3 == 0   ? ""
                : i % 3 == 1 ? "<i>and no end of text follows</i>"
                             : "'>\">-->%>?></title>";
        const std::vector<std::string> all = tokensOf(page, HtmlTokens::All, false);
        const std::vector<std::string> seen = tokensOf(page, HtmlTokens::Notable, false);
        for (const std::string& line : seen)
            ASSERT_NE(std::find(all.begin(), all.end(), line), all.end()) << page;
        ASSERT_EQ(tokensOf(page, HtmlTokens::Notable, true), tokensOf(page, HtmlTokens::All, true))
            << page;
    }
}

TEST(HtmlParseTest, OrdinaryTagsArePassedOver) {
    const std::string page =
        "<p class=\"a\" id='b'>one<b>two</b><br><i title=\"a > b\">three</i></p><!-- c -->"
        "<p>The end of the page is read token by token.";
    EXPECT_EQ(tokensOf(page, HtmlTokens::Notable, false),
              (std::vector<std::string>{"67 !  c  <!-- c -->",
                                        "80  The end of the page is read token by token. The end "
                                        "of the page is read token by token."}));
}

}  // namespace
}  // namespace zev
