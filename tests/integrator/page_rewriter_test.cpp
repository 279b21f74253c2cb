// SPDX-License-Identifier: MIT
#include "integrator/page_rewriter.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

struct Case {
    const char* rule;
    std::string before;
    std::string after;
};

const RewriteOptions kKeepScripts = {"lib/", true};

void expectAll(const std::vector<Case>& cases, const RewriteOptions& options = {"lib/", false}) {
    for (const Case& c : cases)
        EXPECT_EQ(rewritten(c.before, options).page, c.after) << c.rule << "\n" << c.before;
}

TEST(PageRewriterTest, InsertsReferencesHandlersAndCreation) {
    const Rewritten result =
        rewritten("<html><head><title>A</title></head><body><p>x</p></body></html>");
    EXPECT_EQ(result.page, "<html><head>" + kReferences + "<title>A</title></head><body " +
                               kHandlers + "><p>x</p>" + kCreation + "</body></html>");
    EXPECT_TRUE(result.status.bHeadDone);
    EXPECT_TRUE(result.status.bBodyDone);
    EXPECT_TRUE(result.status.bEndBodyDone);
    EXPECT_FALSE(result.status.bPrevious);
}

TEST(PageRewriterTest, StatusSaysWhichPlacesWereFound) {
    struct StatusCase {
        const char* page;
        bool head, body, endBody;
    };
    const StatusCase cases[] = {
        {"<head></head> ", true, false, false},
        {"<body> ", false, true, false},
        {"</body> ", false, false, true},
        {"<p>text</p>", false, false, false},
        {"", false, false, false},
        {"<head>", false, false, false},
        {"<header></header> ", false, false, false},
        {"<HEAD></HEAD><BODY></BODY> ", true, true, true},
        {"<!-- <head><body></body> --> ", false, false, false},
        {"<title><head></title> ", false, false, false},
    };
    for (const StatusCase& c : cases) {
        const IntegrationStatus status = rewritten(c.page).status;
        EXPECT_EQ(status.bHeadDone, c.head) << c.page;
        EXPECT_EQ(status.bBodyDone, c.body) << c.page;
        EXPECT_EQ(status.bEndBodyDone, c.endBody) << c.page;
    }
}

TEST(PageRewriterTest, ReferencesFollowEveryHeadStartTag) {
    expectAll({
        {"attributes stay", "<head lang='de' >.", "<head lang='de' >" + kReferences + "."},
        {"upper case stays", "<HEAD>.", "<HEAD>" + kReferences + "."},
        {"each one", "<head><head>.", "<head>" + kReferences + "<head>" + kReferences + "."},
        {"not the end tag", "</head>.", "</head>."},
        {"not a longer name", "<header>.", "<header>."},
    });
}

TEST(PageRewriterTest, TheLibraryURLGoesInAsItIs) {
    EXPECT_EQ(rewritten("<head>.", {"js", false}).page,
              "<head>" + kMarker +
                  "<script language=\"JavaScript1.2\">var zev_path = 'js';</script>"
                  "<script language=\"JavaScript1.2\" src=\"jszevmenu_loader.js\"></script>.");
}

TEST(PageRewriterTest, BodyGetsBothHandlersAndKeepsEveryOtherByte) {
    expectAll({
        {"none yet", "<body>.", "<body " + kHandlers + ">."},
        {"the call goes first", "<body onload=\"init()\">.",
         "<body onload=\"ZEVLoadMenu();init()\" onresize=\"ZEVLoadMenu();\">."},
        {"single quotes stay", "<body onload='init()'>.",
         "<body onload='ZEVLoadMenu();init()' onresize=\"ZEVLoadMenu();\">."},
        {"an unquoted value gets quotes", "<body onload=init()>.",
         "<body onload=\"ZEVLoadMenu();init()\" onresize=\"ZEVLoadMenu();\">."},
        {"names are matched without case",
         "<BODY BGCOLOR=#FFFFFF OnLoad=\"a()\" ONRESIZE=\"b()\">.",
         "<BODY BGCOLOR=#FFFFFF OnLoad=\"ZEVLoadMenu();a()\" ONRESIZE=\"ZEVLoadMenu();b()\">."},
        {"entities stay as spelled", "<body onload=\"a('&quot;')\">.",
         "<body onload=\"ZEVLoadMenu();a('&quot;')\" onresize=\"ZEVLoadMenu();\">."},
        {"not twice", "<body onload=\"ZEVLoadMenu();a()\" onresize='ZEVLoadMenu()'>.",
         "<body onload=\"ZEVLoadMenu();a()\" onresize='ZEVLoadMenu()'>."},
        {"anywhere in the handler",
         "<body onload=\"a();ZEVLoadMenu()\" onresize=\"ZEVLoadMenu()\">.",
         "<body onload=\"a();ZEVLoadMenu()\" onresize=\"ZEVLoadMenu()\">."},
        {"the call is told apart by case", "<body onload=\"zevloadmenu()\">.",
         "<body onload=\"ZEVLoadMenu();zevloadmenu()\" onresize=\"ZEVLoadMenu();\">."},
        {"spacing stays", "<body\n\tclass = x   id='y'>.",
         "<body\n\tclass = x   id='y' " + kHandlers + ">."},
        {"server code stays", "<body class=\"<%= c > 1 %>\">.",
         "<body class=\"<%= c > 1 %>\" " + kHandlers + ">."},
        {"every body tag", "<body><body>.", "<body " + kHandlers + "><body " + kHandlers + ">."},
    });
}

TEST(PageRewriterTest, CreationGoesBeforeEveryBodyEndTag) {
    expectAll({
        {"before the tag", "a</body>.", "a" + kCreation + "</body>."},
        {"spelling stays", "</BODY >.", kCreation + "</BODY >."},
        {"each one", "</body></body>.", kCreation + "</body>" + kCreation + "</body>."},
    });
}

TEST(PageRewriterTest, TheLastTokenStaysAsItIs) {
    expectAll({
        {"head", "a<head>", "a<head>"},
        {"body", "a<body>", "a<body>"},
        {"body end", "<p>a</p></body>", "<p>a</p></body>"},
        {"marker", "a" + kMarker, "a" + kMarker},
        {"the only token", "text", "text"},
        {"unclosed script that would be dropped", "a<script>var x;", "a<script>var x;"},
        {"unclosed old script", "a<script language=JavaScript>ZEVCreateMenu()",
         "a<script language=JavaScript>ZEVCreateMenu()"},
        {"unclosed tag", "a<p class='x", "a<p class='x"},
        {"unclosed comment", "a<!-- x", "a<!-- x"},
        {"end tag of a dropped script", "a<script>x</script>", "a</script>"},
        {"end tag of the old reference",
         "a<script language=\"JavaScript\" src=\"zevmenu_loader.js\"></script>", "a</script>"},
    });
}

TEST(PageRewriterTest, MarkersOfEarlierRunsAreDropped) {
    expectAll({
        {"this program's", "a" + kMarker + "b", "ab"},
        {"of any site", "a<!-- Added by ZEVMenu Creator, www.example.org -->b", "ab"},
        {"with anything around", "a<!--x Added by ZEVMenu Creator y-->b", "ab"},
        {"told apart by case", "a<!-- added by zevmenu creator -->b",
         "a<!-- added by zevmenu creator -->b"},
        {"other comments stay", "a<!-- Added by hand -->b", "a<!-- Added by hand -->b"},
        {"declarations stay", "<!DOCTYPE html><!ELEMENT x>.", "<!DOCTYPE html><!ELEMENT x>."},
        {"no comment, no marker", "<p>Added by ZEVMenu Creator</p>.",
         "<p>Added by ZEVMenu Creator</p>."},
    });
}

TEST(PageRewriterTest, ScriptsThatDoNotNameJavaScriptAreDroppedAllButTheirEndTag) {
    expectAll({
        {"no language", "<script>a < b;</script>.", "</script>."},
        {"type only", "<script type=\"text/javascript\">a()</script>.", "</script>."},
        {"lower case", "<script language=\"javascript\">a()</script>.", "</script>."},
        {"upper case", "<script language=\"JAVASCRIPT\">a()</script>.", "</script>."},
        {"another language", "<script language='VBScript'>a</script>.", "</script>."},
        {"with a source", "<script src=a.js></script>.", "</script>."},
        {"even an old reference", "<script src=\"lib/zevmenu_loader.js\"></script>.", "</script>."},
    });
    EXPECT_FALSE(rewritten("<script src=\"zevmenu_loader.js\"></script>.").status.bPrevious);
}

TEST(PageRewriterTest, ScriptsThatNameJavaScriptStayWhole) {
    for (const char* const script : {
             "<script language=\"JavaScript\">if (a < b) x('</p>');</script>.",
             "<SCRIPT LANGUAGE=JavaScript1.1 SRC='a.js'></SCRIPT>.",
             "<script language=\"JavaScript\"><!--\na();\n//--></script>.",
             "<script language=\"xJavaScripty\"></script>.",
             "<script language=\"JavaScript\">ZEVDisplayMenu();</script>.",
             "<script language=\"JavaScript\" src=\"menu_def.js\"></script>.",
             "<script language=\"JavaScript\" src=\"zevmenu_loader.js?1\"></script>.",
         })
        EXPECT_EQ(rewritten(script).page, script);
}

TEST(PageRewriterTest, WhatAnEarlierRunPutInIsTakenOut) {
    expectAll({
        {"loader reference", "a<script language=JavaScript src=\"js/zevmenu_loader.js\"></script>b",
         "ab"},
        {"spaces around its URL",
         "a<script language=JavaScript src=\" js/zevmenu_loader.js  \"></script>b", "ab"},
        {"with text in it", "a<script language=JavaScript src=zevmenu_loader.js>x</script>b", "ab"},
        {"menu creation", "a<script language=JavaScript> ZEVCreateMenu() ;</script>b", "ab"},
        {"library path", "a<script language=JavaScript>var zev_path = '../';</script>b", "ab"},
    });
}

TEST(PageRewriterTest, OnlyTheLoaderReferenceTellsOfAPreviousRun) {
    const std::string start = "<script language=\"JavaScript\"";
    EXPECT_TRUE(rewritten(start + " src=\"zevmenu_loader.js\"></script>.").status.bPrevious);
    EXPECT_FALSE(rewritten(start + ">ZEVCreateMenu()</script>.").status.bPrevious);
    EXPECT_FALSE(rewritten(start + ">var zev_path = 'lib/';</script>.").status.bPrevious);
    EXPECT_FALSE(rewritten(start + " src=\"zevmenu_dom.js\"></script>.").status.bPrevious);
}

TEST(PageRewriterTest, AnIntegratedPageIsPutRightNotPiledUp) {
    const Rewritten once = rewritten("<head></head><body>x</body>.", {"old/", false});
    const Rewritten twice = rewritten(once.page);
    EXPECT_EQ(twice.page, rewritten("<head></head><body>x</body>.").page);
    EXPECT_TRUE(twice.status.bPrevious);
    EXPECT_TRUE(twice.status.bHeadDone && twice.status.bBodyDone && twice.status.bEndBodyDone);
}

TEST(PageRewriterTest, KeepsOtherScriptsWhenAsked) {
    expectAll(
        {
            {"no language", "<script>a < b;</script>.", "<script>a < b;</script>."},
            {"type only", "<script type=module src=a.js></script>.",
             "<script type=module src=a.js></script>."},
            {"lower case", "<script language=\"javascript\">a()</script>.",
             "<script language=\"javascript\">a()</script>."},
            {"an old reference is none of the page's own",
             "a<script src=\"old/zevmenu_loader.js\"></script>b", "ab"},
            {"nor is an old call", "a<script>ZEVCreateMenu()</script>b", "ab"},
        },
        kKeepScripts);
    EXPECT_TRUE(
        rewritten("<script src=\"zevmenu_loader.js\"></script>.", kKeepScripts).status.bPrevious);
}

TEST(PageRewriterTest, EveryOtherTokenStaysAsItIs) {
    const std::string pages[] = {
        "plain text",
        "a < b && c > d",
        "<p CLASS = \"x\"  >\r\n<br/>\r<img src=a.gif alt='>'>\n</P >",
        "<?php echo '<head>'; ?><% if (a < b) { %><p><% } %>",
        "<?xml version=\"1.0\"?><html xmlns=\"http://www.w3.org/1999/xhtml\"/>.",
        "<style>head > body { }</style><textarea><body></textarea><title></body></title>.",
        "<![CDATA[ x ]]></ bogus><>.",
        std::string("a\0<p\0>\0", 7),
        "\xEF\xBB\xBF<p>\xC3\xA4\xE4\xFF</p>",
        std::string("\xFF\xFE<\0h\0e\0a\0d\0>\0", 14),
        "<frameset cols=\"*,*\"><frame src=a.htm></frameset>",
    };
    for (const std::string& page : pages)
        EXPECT_EQ(rewritten(page).page, page);
}

std::vector<PageEdit> editsOf(std::string_view page) {
    IntegrationStatus status;
    return pageEdits(page, {"lib/", false}, status);
}

TEST(PageRewriterTest, EachPlaceIsOneEditInTheOrderOfThePage) {
    const std::string body = "<body onload='a()'>";
    const std::string old = "<script language=JavaScript>ZEVCreateMenu()</script>";
    const std::string page = "<head>" + kMarker + body + "<script>x</script>" + old + "</body>.";
    const std::size_t bodyBegin = 6 + kMarker.size();
    const std::size_t scriptBegin = bodyBegin + body.size();
    const std::size_t oldBegin = scriptBegin + 18;
    const std::vector<PageEdit> expected = {
        {6, 0, kReferences},
        {6, kMarker.size(), ""},
        {bodyBegin, body.size(), "<body onload='ZEVLoadMenu();a()' onresize=\"ZEVLoadMenu();\">"},
        {scriptBegin, 9, ""},
        {oldBegin, old.size(), ""},
        {oldBegin + old.size(), 0, kCreation}};
    EXPECT_EQ(editsOf(page), expected);
}

TEST(PageRewriterTest, WhatStaysIsNoEdit) {
    EXPECT_TRUE(editsOf("<p>a<!-- b --><script language=JavaScript>c</script>").empty());
    EXPECT_TRUE(editsOf("<body onload='ZEVLoadMenu()' onresize='ZEVLoadMenu()'>.").empty());
    EXPECT_TRUE(editsOf("").empty());
}

TEST(PageRewriterTest, EditsAreDoneWithoutTouchingWhatIsBetween) {
    EXPECT_EQ(withEdits("0123456789", {}), "0123456789");
    EXPECT_EQ(
        withEdits("0123456789",
                  {{0, 0, "a"}, {0, 2, ""}, {2, 0, "b"}, {2, 0, "c"}, {4, 3, "d"}, {10, 0, "e"}}),
        "abc23d789e");
}

#ifndef NDEBUG
TEST(PageRewriterDeathTest, EditsThatOverlapOrLeaveThePageAreRefused) {
    EXPECT_DEATH(withEdits("0123", {{1, 2, ""}, {2, 1, ""}}), "");
    EXPECT_DEATH(withEdits("0123", {{2, 0, ""}, {1, 0, ""}}), "");
    EXPECT_DEATH(withEdits("0123", {{3, 2, ""}}), "");
}
#endif

TEST(PageRewriterTest, CountsTheScriptsThatWouldBeDropped) {
    EXPECT_EQ(countDroppedScripts(""), 0u);
    EXPECT_EQ(countDroppedScripts("<script language=JavaScript>a</script>."), 0u);
    EXPECT_EQ(countDroppedScripts("<script>a</script><SCRIPT type=x></SCRIPT><p>."), 2u);
    EXPECT_EQ(countDroppedScripts("<!-- <script></script> -->."), 0u);
    EXPECT_EQ(countDroppedScripts("<script>the last token stays"), 0u);
    EXPECT_EQ(countDroppedScripts(rewritten("<head></head><body></body>.").page), 0u);
}

}  // namespace
}  // namespace zev::test
