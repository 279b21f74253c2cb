// SPDX-License-Identifier: MIT
#include "integrator/page_removal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "integrator/link_code.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

using Kind = PageNote::Kind;
using Notes = std::vector<PageNote>;

const RewriteOptions kKeepScripts = {"lib/", true};

std::string removed(const std::string& page) {
    return withEdits(page, removeIntegration(page).edits);
}

TEST(PageRemovalTest, AnIntegratedPageIsAsItWas) {
    const std::string pages[] = {
        "<html><head><title>A</title></head><body><p>x</p></body></html>\n",
        "<HEAD></HEAD><BODY BGCOLOR=#FFFFFF ONLOAD='a(\"x\")' onresize=\"b()\">\r\n</BODY>\r\n",
        "<head><body onload=\"init()\" class=x><script>own()</script></body>.",
        "<?xml version=\"1.0\"?><html><head></head><body\n  id=\"a\"><p/></body></html>\n",
        "<head><body/></body>.",
        "<body <?php echo 'onload=x'; ?>>x</body>.",
        "<p>no place at all</p>",
    };
    for (const std::string& page : pages) {
        EXPECT_EQ(removed(rewritten(page, kKeepScripts).page), page);
        EXPECT_EQ(removed(page), page);
    }
}

TEST(PageRemovalTest, TheMarkedMenuAndTheMarksOfALinkGo) {
    const std::string page = "<head></head><body><p>Boats</p><p>x</p></body>.";
    for (const char* const where :
         {"body-start", "body-end", "before:p", "after:p", "start:p", "end:p"}) {
        RewriteOptions options = kKeepScripts;
        options.menu =
            PlacedMenu{*parsePlace(where), menuCode("menu.js"), LinkedText{"Boats", "2", {}}};
        const std::string integrated = rewritten(page, options).page;
        ASSERT_NE(integrated, page) << where;
        const PageRemoval removal = removeIntegration(integrated);
        EXPECT_EQ(withEdits(integrated, removal.edits), page) << where;
        EXPECT_EQ(removal.notes, Notes()) << where;
    }
}

TEST(PageRemovalTest, EveryPlacedMenuGoes) {
    const std::string menu = "<!-- zevmenu menu -->x<!-- /zevmenu menu -->";
    EXPECT_EQ(removed("a" + menu + "b" + menu + menu + "c"), "abc");
}

TEST(PageRemovalTest, AMarkedLinkKeepsWhatItHoldsByNow) {
    EXPECT_EQ(removed("<!-- zevmenu link --><a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '2', "
                      "event)\"><b>Our</b> boats</a> now<!-- /zevmenu link -->"),
              "<b>Our</b> boats now");
}

TEST(PageRemovalTest, WhatDoesNotComeBackIsTold) {
    const std::string page =
        "<head>\n<script>own()</script>\n</head><body onload=init()>\n<nav "
        "class=a--b>n</nav></body>.";
    RewriteOptions options = {"lib/", false, PlacedMenu{*parsePlace("instead:nav.a--b"), "x"}};
    const std::string integrated = rewritten(page, options).page;
    const PageRemoval removal = removeIntegration(integrated);
    EXPECT_EQ(withEdits(integrated, removal.edits),
              "<head>\n</script>\n</head><body onload=\"init()\">\n</body>.");
    EXPECT_EQ(removal.notes, (Notes{{Kind::ScriptDropped, 2, ""},
                                    {Kind::QuotesStay, 3, "onload"},
                                    {Kind::ElementReplaced, 4, "nav.a--b"},
                                    {Kind::LeftOutOfMenu, 4, "x"}}));
}

TEST(PageRemovalTest, HandwrittenCodeStaysAndIsListed) {
    const std::string page =
        "<head><script src=\"js/zevmenu_loader.js\"></script></head>\n"
        "<body onload=\"ZEVLoadMenu();\" onresize=\"ZEVLoadMenu();\">\n"
        "<script src=\"menu.js\"></script>\n<script>ZEVDisplayMenu();</script>\n"
        "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '3', event)\">x</a>\n"
        "<div data-zevmenu></div></body>\n<script>ZEVCreateMenu()</script>.";
    const PageRemoval removal = removeIntegration(page);
    EXPECT_TRUE(removal.edits.empty());
    std::vector<std::size_t> lines;
    for (const PageNote& note : removal.notes) {
        EXPECT_EQ(note.kind, Kind::Handwritten) << note.text;
        lines.push_back(note.line);
    }
    EXPECT_EQ(lines, (std::vector<std::size_t>{1, 2, 3, 4, 5, 6, 7}));
}

TEST(PageRemovalTest, CodeThatWasPastedStaysAndIsListed) {
    const std::string page = "<head></head><body>" + menuCode("menu.js") + "</body>.";
    const std::string integrated = rewritten(page).page;
    const PageRemoval removal = removeIntegration(integrated);
    EXPECT_EQ(withEdits(integrated, removal.edits), page);
    EXPECT_EQ(removal.notes.size(), 2U);
}

TEST(PageRemovalTest, HandlersOfTheirOwnSpellingStay) {
    const std::string page = "<body onload=\"a();ZEVLoadMenu()\">" + kCreation + "</body>.";
    const PageRemoval removal = removeIntegration(page);
    EXPECT_EQ(withEdits(page, removal.edits), "<body onload=\"a();ZEVLoadMenu()\"></body>.");
    EXPECT_EQ(removal.notes, (Notes{{Kind::Handwritten, 1, "onload"}}));
}

TEST(PageRemovalTest, WhatAnEditorHasSpelledAnewIsFound) {
    EXPECT_EQ(removed("<HEAD><!--Added by ZEVMenu Creator, zevmenu.example-->\n"
                      "<SCRIPT language='JavaScript1.2'>var zev_path = 'lib/';</SCRIPT\n>"
                      "<SCRIPT src='lib/zevmenu_loader.js' language=JavaScript1.2></SCRIPT>"
                      "</HEAD><script language=\"JavaScript1.2\">\nZEVCreateMenu()\n</script>."),
              "<HEAD>\n</HEAD>.");
}

TEST(PageRemovalTest, APageWithoutAMenuHasNothingToTell) {
    EXPECT_EQ(removeIntegration("<body onload=a()></script><script>b()</script></body>").notes,
              Notes());
}

TEST(PageRemovalTest, OtherScriptsStay) {
    const std::string page =
        kCreation +
        "<script language=\"JavaScript1.2\">ZEVCreateMenu(); more()</script>"
        "<script language=\"JavaScript1.2\">var zev_path = 'a'; b = 'c';</script>"
        "<script language=\"JavaScript1.2\" src=\"a.js\"></script>.";
    EXPECT_EQ(removed(page), page.substr(kCreation.size()));
}

TEST(PageRemovalTest, ThatWasIsAll) {
    const std::string page =
        "<head></head><body><script>x</script>" + menuCode("m.js") + "<p>x</p></body></html>";
    RewriteOptions options = {"lib/", false, PlacedMenu{*parsePlace("before:p"), "code"}};
    const std::string once = removed(rewritten(page, options).page);
    EXPECT_EQ(removed(once), once);
}

}  // namespace
}  // namespace zev::test
