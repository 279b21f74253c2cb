// SPDX-License-Identifier: MIT
#include "integrator/placement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

const std::string kOpen = "<!-- zevmenu menu -->";
const std::string kClose = "<!-- /zevmenu menu -->";
const std::string kCode =
    "<script language=\"JavaScript1.2\" src=\"menu.js\"></script>"
    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
const std::string kBlock = kOpen + kCode + kClose;

RewriteOptions placing(const std::string& where, const std::string& code = kCode) {
    return {"lib/", true, PlacedMenu{*parsePlace(where), code}};
}

std::string placed(const std::string& page, const std::string& where) {
    return rewritten(page, placing(where)).page;
}

TEST(PlacementTest, CodeIsWhatIsPastedOnOneLine) {
    EXPECT_EQ(placedMenuCode("menu.js"), kCode);
}

TEST(PlacementTest, TheMenuStandsBetweenMarksAtItsPlace) {
    const std::string page =
        "<html><head></head><body><nav id=\"n\">old</nav><!-- zevmenu --></body></html>\n";
    const std::string head = "<html><head>" + kReferences + "</head><body " + kHandlers + ">";
    const std::string nav = "<nav id=\"n\">old</nav>";
    const std::string marker = "<!-- zevmenu -->";
    const std::string end = kCreation + "</body></html>\n";
    struct Case {
        const char* where;
        std::string body;
    };
    const Case cases[] = {
        {"body-start", kBlock + nav + marker},
        {"body-end", nav + marker + kBlock},
        {"before:nav", kBlock + nav + marker},
        {"after:nav", nav + kBlock + marker},
        {"start:#n", "<nav id=\"n\">" + kBlock + "old</nav>" + marker},
        {"end:#n", "<nav id=\"n\">old" + kBlock + "</nav>" + marker},
        {"marker", nav + marker + kBlock},
        {"instead:nav", kOpen + "<!-- zevmenu instead:nav -->" + kCode + kClose + marker},
    };
    for (const Case& c : cases)
        EXPECT_EQ(placed(page, c.where), head + c.body + end) << c.where;
}

TEST(PlacementTest, ThePlacedMenuComesBehindTheReferencesAndBeforeTheCreation) {
    EXPECT_EQ(placed("<head><title>a</title></head><body></body>.", "before:title"),
              "<head>" + kReferences + kBlock + "<title>a</title></head><body " + kHandlers + ">" +
                  kCreation + "</body>.");
    EXPECT_EQ(placed("<head></head><body></body>.", "body-start"),
              "<head>" + kReferences + "</head><body " + kHandlers + ">" + kBlock + kCreation +
                  "</body>.");
    EXPECT_EQ(placed("<head></head><body></body>", "body-end"),
              "<head>" + kReferences + "</head><body " + kHandlers + ">" + kBlock + "</body>");
    EXPECT_EQ(placed("<head></body>.", "body-end"),
              "<head>" + kReferences + kBlock + kCreation + "</body>.");
}

TEST(PlacementTest, APageWithoutThePlaceIsNotIntegratedAtAll) {
    const std::string page = "<head></head><body><p>x</body>.";
    for (const char* const where : {"before:nav", "after:p", "marker", "instead:body"}) {
        const Rewritten result = rewritten(page, placing(where));
        EXPECT_EQ(result.page, page) << where;
        EXPECT_TRUE(result.status.placeProblem.has_value()) << where;
        EXPECT_FALSE(result.status.bHeadDone || result.status.bBodyDone ||
                     result.status.bEndBodyDone);
    }
}

TEST(PlacementTest, InABodyTagThatThePageEndsInNothingIsPlaced) {
    for (const std::string page : {"<body x ", "<p>One<body title=\"Two></body>"}) {
        const Rewritten result = rewritten(page, placing("body-start"));
        EXPECT_EQ(result.page, page);
        EXPECT_EQ(result.status.placeProblem, PlaceProblem::NotFound) << page;
    }
}

TEST(PlacementTest, ScriptsInAReplacedElementGoWithIt) {
    RewriteOptions options = placing("instead:nav");
    options.keepsOtherScripts = false;
    EXPECT_EQ(
        rewritten("<nav><script>a()</script><nav></nav></nav><script>b()</script>.", options).page,
        kOpen + "<!-- zevmenu instead:nav -->" + kCode + kClose + "</script>.");
}

TEST(PlacementTest, TheNoteOfAReplacedElementIsAComment) {
    EXPECT_EQ(placed("<p class='a--b--'></p>.", "instead:.a--b"), "<p class='a--b--'></p>.");
    EXPECT_EQ(placed("<p class='a---b-'></p>.", "instead:.a---b-"),
              kOpen + "<!-- zevmenu instead:.a- - -b- -->" + kCode + kClose + ".");
}

TEST(PlacementTest, APlainRunKeepsAPlacedMenuByteForByte) {
    const std::string once = placed("<head></head><body><p>x</p></body>.", "before:p");
    for (const bool keepsScripts : {true, false})
        EXPECT_EQ(rewritten(once, {"lib/", keepsScripts}).page, once) << keepsScripts;
}

TEST(PlacementTest, APlacedMenuIsReplacedWhereItStandsWhateverThePlace) {
    const std::string other = "<script>other</script>";
    const std::string moved = "<p>x</p><div>" + kBlock + "</div>";
    for (const char* const where : {"before:p", "marker", "instead:div", "body-end"}) {
        const Rewritten result = rewritten(moved, placing(where, other));
        EXPECT_EQ(result.page, "<p>x</p><div>" + kOpen + other + kClose + "</div>") << where;
        EXPECT_TRUE(result.status.notes.empty()) << where;
    }
    const std::string instead = kOpen + "<!-- zevmenu instead:nav -->" + kCode + kClose;
    EXPECT_EQ(placed(instead + ".", "before:p"), instead + ".");
}

TEST(PlacementTest, OfSeveralTheFirstIsReplacedAndThatIsTold) {
    const std::string page =
        kOpen + "\n" + kClose + "\n" + kOpen + kClose + "\r\n" + kOpen + kClose;
    const Rewritten result = rewritten(page, placing("body-start"));
    EXPECT_EQ(result.page, kBlock + "\n" + kOpen + kClose + "\r\n" + kOpen + kClose);
    EXPECT_EQ(result.status.notes, (std::vector<PageNote>{{PageNote::Kind::SeveralMenus, 3, ""}}));
}

TEST(PlacementTest, WhatElseStoodInAPlacedMenuIsTold) {
    const std::string page = "\r\r" + kOpen + kCode + "\n <b>mine</b> " + kClose;
    EXPECT_EQ(rewritten(page, placing("marker")).status.notes,
              (std::vector<PageNote>{{PageNote::Kind::LeftOutOfMenu, 3, "<b>mine</b>"}}));
    const std::string own[] = {
        kCode,
        "\n" + kCode + "\n",
        "<script language=\"JavaScript1.2\" src=\"menu.js\"></script>" + popupLinkCode("2", {}),
        "<!-- zevmenu instead:nav -->" + kCode +
            "<noscript><nav aria-label=\"x\"><ul></ul></nav></noscript>",
        "",
    };
    for (const std::string& content : own)
        EXPECT_TRUE(rewritten(kOpen + content + kClose, placing("marker")).status.notes.empty())
            << content;
}

TEST(PlacementTest, AMenuThatWasPastedByHandGetsNoSecondOne) {
    const std::string page = "<head></head><body>\n<p>x</p>\n" + menuCode("menu.js") + "</body>.";
    for (const char* const where : {"body-start", "before:nav", "instead:p"}) {
        const Rewritten result = rewritten(page, placing(where));
        EXPECT_EQ(result.page, rewritten(page).page) << where;
        EXPECT_FALSE(result.status.isMenuPlaced || result.status.placeProblem);
        EXPECT_TRUE(result.status.hasAllPlaces());
        EXPECT_EQ(
            result.status.notes,
            (std::vector<PageNote>{{PageNote::Kind::OwnCall, 4,
                                    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();"}}));
        EXPECT_EQ(rewritten(result.page, placing(where)).page, result.page) << "twice is once";
    }
}

TEST(PlacementTest, OnlyACallThatStaysInThePageCounts) {
    const std::string script = definitionReference("m.js") + "<script>ZEVDisplayMenu();</script>";
    RewriteOptions options = placing("body-start");
    EXPECT_FALSE(rewritten(script + "<body>.", options).status.isMenuPlaced);
    options.keepsOtherScripts = false;
    EXPECT_TRUE(rewritten(script + "<body>.", options).status.isMenuPlaced) << "it is dropped";
    options.keptScripts = rewritten(script + ".").status.removedScripts;
    EXPECT_FALSE(rewritten(script + "<body>.", options).status.isMenuPlaced) << "kept by its name";
    const std::string inlined = "<script language=JavaScript>zevmenu = new ZEVMenu('0')</script>";
    EXPECT_FALSE(rewritten(inlined + script + "<body>.", options).status.isMenuPlaced);
    const std::string others[] = {
        "<body>",
        rewritten("<head></head><body></body>.").page,
        "<!-- " + kCode + " --><body>",
        "<textarea>" + kCode + "</textarea><body>",
        "<script language=JavaScript>ZEVDisplayMenu();ZEVCreateMenu()</script><body>",
        "<div data-zevmenu></div><body>",
        "<script>ZEVDisplayMenu();</script>" + definitionReference("menu.js") + "<body>",
    };
    for (const std::string& page : others)
        EXPECT_TRUE(rewritten(page + ".", placing("body-start")).status.isMenuPlaced) << page;
}

TEST(PlacementTest, BesideAPlacedMenuAPastedOneDoesNotCount) {
    const std::string page = kCode + kOpen + kClose + ".";
    EXPECT_EQ(placed(page, "body-start"), kCode + kBlock + ".");
}

TEST(PlacementTest, APopupMenuIsPlacedBesideAMenuThatWasPasted) {
    const std::string link = popupLinkCode("2", {});
    EXPECT_EQ(rewritten(kCode + "<p>.", placing("after:p", link)).status.placeProblem,
              PlaceProblem::NoEndTag);
    EXPECT_EQ(rewritten(kCode + "<p></p>.", placing("after:p", link)).page,
              kCode + "<p></p>" + kOpen + link + kClose + ".");
}

TEST(PlacementTest, MarksThatHaveLostTheirPartnerAreNoMenu) {
    const std::string body = "<body " + kHandlers + ">";
    EXPECT_EQ(placed(kOpen + "<p>mine</p>" + kBlock + ".", "body-start"),
              kOpen + "<p>mine</p>" + kBlock + ".");
    EXPECT_EQ(placed(kOpen + body + "<p>mine</p>" + kClose + ".", "before:p"),
              kOpen + body + kBlock + "<p>mine</p>" + kClose + ".");
    EXPECT_EQ(placed(kClose + "<p>mine</p>" + kOpen + ".", "before:p"),
              kClose + kBlock + "<p>mine</p>" + kOpen + ".");
}

// ---- Links at a text of the page ----

const std::string kLink =
    "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', '2', event)\" "
    "onmouseout=\"ZEVMenuClose('zev1', '2', false)\">";

std::string linked(const std::string& text) {
    return "<!-- zevmenu link -->" + kLink + text + "</a><!-- /zevmenu link -->";
}

/// The page with the text as a link; "none" when it has no such text.
std::string withLink(const std::string& page, const std::string& text,
                     const std::string& submenuId = "2") {
    const auto edits = linkTextEdits(page, {text, submenuId, {}});
    return edits ? withEdits(page, *edits) : "none";
}

TEST(LinkTextTest, TheFirstSuchTextBecomesALink) {
    EXPECT_EQ(withLink("<p>See Boats.<p>Boats", "Boats"),
              "<p>See " + linked("Boats") + ".<p>Boats");
    EXPECT_EQ(withLink("Boats", "Boats"), linked("Boats"));
    EXPECT_EQ(withLink("<b>R&amp;D</b>", "R&amp;D"), "<b>" + linked("R&amp;D") + "</b>");
}

TEST(LinkTextTest, OnlyWordsOfTheirOwnCount) {
    EXPECT_EQ(withLink("Boatsman, Boats", "Boats"), "Boatsman, " + linked("Boats"));
    EXPECT_EQ(withLink("MyBoats 2Boats Boats3", "Boats"), "none");
    EXPECT_EQ(withLink("(Boats)", "Boats"), "(" + linked("Boats") + ")");
    EXPECT_EQ(withLink("x) y", ") "), "x" + linked(") ") + "y");
}

TEST(LinkTextTest, NoCharacterOfTwoBytesIsCut) {
    // In Shift_JIS the second byte of a character can be a letter.
    EXPECT_EQ(withLink("\x83"
                       "A b",
                       "A"),
              "none");
    EXPECT_EQ(withLink("\x83"
                       "A A",
                       "A"),
              "\x83"
              "A " +
                  linked("A"));
    EXPECT_EQ(withLink("\xE6\x96\xB0\xE8\xA3\xBD", "\xE8\xA3\xBD"),
              "\xE6\x96\xB0" + linked("\xE8\xA3\xBD"));
}

TEST(LinkTextTest, NothingIsFoundWhereNoLinkCanStand) {
    const char* const pages[] = {
        "<a href=x>Boats</a>",
        "<a href>Boats</a>",
        "<button>Boats</button>",
        "<select><option>Boats</select>",
        "<svg><text>Boats</text></svg>",
        "<noscript>Boats</noscript>",
        "<template>Boats</template>",
        "<title>Boats</title>",
        "<textarea>Boats</textarea>",
        "<script>Boats</script>",
        "<style>Boats</style>",
        "<!-- Boats -->",
        "<? Boats ?>",
        "<p title=Boats>",
        "<b>Bo</b>ats",
    };
    for (const std::string page : pages) {
        EXPECT_EQ(withLink(page, "Boats"), "none") << page;
        EXPECT_EQ(withLink(page + "<i>Boats", "Boats"), page + "<i>" + linked("Boats")) << page;
    }
    EXPECT_EQ(withLink("<p>Boats", ""), "none");
    EXPECT_EQ(withLink("<a name=top>Boats", "Boats"), "<a name=top>" + linked("Boats"));
}

TEST(LinkTextTest, ALinkThatWasMadeBeforeIsReplaced) {
    const std::string page = "<p>Boats " + linked("Boats") + " Boats";
    EXPECT_EQ(withLink(page, "Boats"), page);
    const std::string other = withLink(page, "Boats", "3");
    EXPECT_EQ(other.find(kLink), std::string::npos);
    EXPECT_EQ(withLink(other, "Boats"), page);
    EXPECT_EQ(withLink(linked("Oars") + "Boats", "Boats"), linked("Oars") + linked("Boats"));
}

TEST(LinkTextTest, MenuAndLinkComeInOneRun) {
    RewriteOptions options = placing("body-end");
    options.menu->link = LinkedText{"Boats", "2", {}};
    const std::string page = "<head></head><body><p>Boats</p></body>.";
    const std::string expected = "<head>" + kReferences + "</head><body " + kHandlers + "><p>" +
                                 linked("Boats") + "</p>" + kBlock + kCreation + "</body>.";
    EXPECT_EQ(rewritten(page, options).page, expected);
    EXPECT_EQ(rewritten(expected, options).page, expected);
    options.menu->place = *parsePlace("before:p");
    EXPECT_EQ(rewritten(page, options).page, "<head>" + kReferences + "</head><body " + kHandlers +
                                                 ">" + kBlock + "<p>" + linked("Boats") + "</p>" +
                                                 kCreation + "</body>.");
}

TEST(LinkTextTest, WithoutItsTextThePageStaysAsItIs) {
    RewriteOptions options = placing("instead:p");
    options.menu->link = LinkedText{"Boats", "2", {}};
    for (const std::string page :
         {"<head></head><body><p>Oars</p></body>.", "<head></head><body><p>Boats</p></body>."}) {
        const Rewritten result = rewritten(page, options);
        EXPECT_EQ(result.page, page);
        EXPECT_EQ(result.status.placeProblem, PlaceProblem::TextNotFound) << page;
    }
}

}  // namespace
}  // namespace zev::test
