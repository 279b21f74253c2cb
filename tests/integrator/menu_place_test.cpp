// SPDX-License-Identifier: MIT
#include "integrator/menu_place.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zev {
namespace {

/// The page with "[", and at the end of what gives way "]", at the place; or the problem.
std::string placeIn(const std::string& page, const std::string& where) {
    const std::optional<MenuPlace> place = parsePlace(where);
    if (!place)
        return "no place";
    const FoundPlace found = findPlace(page, *place);
    if (found.problem) {
        const char* const names[] = {"not found", "no end tag", "no markup", "holds the page",
                                     "text not found"};
        return names[static_cast<int>(*found.problem)];
    }
    std::string marked = page;
    if (found.length > 0)
        marked.insert(found.offset + found.length, "]");
    return marked.insert(found.offset, "[");
}

struct Case {
    const char* where;
    std::string page;
    std::string expected;
};

void expectAll(const std::vector<Case>& cases) {
    for (const Case& c : cases)
        EXPECT_EQ(placeIn(c.page, c.where), c.expected) << c.where << "\n" << c.page;
}

TEST(ParsePlaceTest, KnowsEveryWord) {
    struct WordCase {
        const char* where;
        MenuPlace::Kind kind;
        ElementSelector selector;
    };
    using By = ElementSelector::By;
    const WordCase cases[] = {
        {"body-start", MenuPlace::Kind::BodyStart, {}},
        {"body-end", MenuPlace::Kind::BodyEnd, {}},
        {"marker", MenuPlace::Kind::Marker, {}},
        {"before:nav", MenuPlace::Kind::Before, {By::Name, "nav", ""}},
        {"after:NAV", MenuPlace::Kind::After, {By::Name, "nav", ""}},
        {"start:#Menu", MenuPlace::Kind::Start, {By::Id, "", "Menu"}},
        {"end:.bar--top", MenuPlace::Kind::End, {By::Class, "", "bar--top"}},
        {"instead:div#a:b", MenuPlace::Kind::Instead, {By::Id, "div", "a:b"}},
        {"before:h1.x_1", MenuPlace::Kind::Before, {By::Class, "h1", "x_1"}},
        {"before:my-tag", MenuPlace::Kind::Before, {By::Name, "my-tag", ""}},
        {"before:#\xC3\xA4", MenuPlace::Kind::Before, {By::Id, "", "\xC3\xA4"}},
    };
    for (const WordCase& c : cases) {
        const std::optional<MenuPlace> place = parsePlace(c.where);
        ASSERT_TRUE(place.has_value()) << c.where;
        EXPECT_EQ(place->kind, c.kind) << c.where;
        EXPECT_EQ(place->selector, c.selector) << c.where;
        EXPECT_EQ(place->text, c.where);
    }
}

TEST(ParsePlaceTest, RefusesEverythingElse) {
    for (const char* const where : {"",
                                    "nav",
                                    "body",
                                    "body-start:nav",
                                    "marker:",
                                    "before",
                                    "before:",
                                    "before:#",
                                    "before:.",
                                    "before:div#",
                                    "before:div.",
                                    "before: nav",
                                    "before:nav ",
                                    "before:div p",
                                    "before:div>p",
                                    "before:#a.b",
                                    "before:#a#b",
                                    "before:*",
                                    "before:1a",
                                    "before:[id]",
                                    "before:a:hover b",
                                    "before:<nav>",
                                    "before:#a\"",
                                    "before:#a-->",
                                    "Before:nav",
                                    "BODY-START",
                                    "instead",
                                    "around:nav"})
        EXPECT_FALSE(parsePlace(where)) << where;
}

TEST(FindPlaceTest, BodyAndMarker) {
    expectAll({
        {"body-start", "<HEAD></HEAD><BODY class=a>x</BODY>.",
         "<HEAD></HEAD><BODY class=a>[x</BODY>."},
        {"body-end", "<body>x</body></html>", "<body>x[</body></html>"},
        {"body-end", "<body>x</body>", "<body>x[</body>"},
        {"body-end", "<body>x</body>y</body>", "<body>x[</body>y</body>"},
        {"marker", "<p><!-- zevmenu --></p>", "<p><!-- zevmenu -->[</p>"},
        {"marker", "<!--zevmenu-->.<!-- zevmenu -->", "<!--zevmenu-->[.<!-- zevmenu -->"},
        {"marker", "<!--\r\n\tzevmenu\n--> ", "<!--\r\n\tzevmenu\n-->[ "},
        {"marker", "<!-- zevmenu here -->", "not found"},
        {"marker", "<!-- ZEVMENU -->", "not found"},
        {"marker", "<!zevmenu><? zevmenu ?><% zevmenu %>", "not found"},
        {"marker", "<!-- zevmenu menu --><!-- /zevmenu -->", "not found"},
        {"body-start", "<p>x</p>", "not found"},
        {"body-end", "<body>", "not found"},
        {"body-start", "<frameset></frameset><noframes><body></body></noframes>", "not found"},
        {"body-start", "", "not found"},
    });
}

TEST(FindPlaceTest, TheFirstMatchCounts) {
    expectAll({
        {"before:nav", "<p><NAV></nav><nav></nav>", "<p>[<NAV></nav><nav></nav>"},
        {"before:#m", "<p id=M><p id='m'><p id=m>", "<p id=M>[<p id='m'><p id=m>"},
        {"before:.b", "<p class=ab><p class='a B'><p class=\"a\n b\tc\">",
         "<p class=ab><p class='a B'>[<p class=\"a\n b\tc\">"},
        {"before:div#m", "<p id=m><div id=m>", "<p id=m>[<div id=m>"},
        {"before:div.m", "<p class=m><div class=mm><DIV CLASS=m>",
         "<p class=m><div class=mm>[<DIV CLASS=m>"},
        {"before:nav", "<navbar></navbar>", "not found"},
        {"before:nav", "</nav>", "not found"},
        {"before:nav", "<p><nav", "<p>[<nav"},
    });
}

TEST(FindPlaceTest, NothingIsFoundWhereNoElementIs) {
    const char* const pages[] = {
        "<!-- <nav></nav> -->",
        "<script>'<nav></nav>'</script>",
        "<style><nav></nav></style>",
        "<textarea><nav></nav></textarea>",
        "<title><nav></nav></title>",
        "<iframe><nav></nav></iframe>",
        "<? echo '<nav></nav>'; ?>",
        "<% Response.Write \"<nav></nav>\" %>",
        "<!--- <nav></nav> --->",
        "<p title='<nav></nav>'>",
        "<p <?= '<nav></nav>' ?> >",
        "<noscript><nav></nav></noscript>",
        "<template><nav></nav></template>",
        "<!nav><?nav>",
    };
    for (const std::string page : pages) {
        EXPECT_EQ(placeIn(page, "before:nav"), "not found") << page;
        EXPECT_EQ(placeIn(page + "<nav>", "before:nav"), page + "[<nav>") << page;
    }
}

TEST(FindPlaceTest, TheMatchingEndTagCounts) {
    const std::string nested = "<div id=m>a<DIV>b</div><p>c</p></Div >d</div>";
    expectAll({
        {"before:#m", nested, "[" + nested},
        {"start:#m", nested, "<div id=m>[a<DIV>b</div><p>c</p></Div >d</div>"},
        {"end:#m", nested, "<div id=m>a<DIV>b</div><p>c</p>[</Div >d</div>"},
        {"after:#m", nested, "<div id=m>a<DIV>b</div><p>c</p></Div >[d</div>"},
        {"instead:#m", nested, "[<div id=m>a<DIV>b</div><p>c</p></Div >]d</div>"},
        {"after:div", "<div>'<!-- </div> --><? </div> ?>'</div>.",
         "<div>'<!-- </div> --><? </div> ?>'</div>[."},
        {"after:div", "<div><noscript></div></noscript></div>.",
         "<div><noscript></div>[</noscript></div>."},
        {"after:script", "<script>a</script>.", "<script>a</script>[."},
        {"instead:textarea", "<textarea></div></textarea>.", "[<textarea></div></textarea>]."},
        {"after:div", "<div><div></div>", "no end tag"},
        {"end:div", "<div>", "no end tag"},
        {"instead:p", "<p>a<p>b", "no end tag"},
        {"start:div", "<div>", "<div>["},
    });
}

TEST(FindPlaceTest, VoidElementsEndAtOnce) {
    expectAll({
        {"after:hr", "<hr>a</hr>", "<hr>[a</hr>"},
        {"instead:img", "<p><IMG src=a.gif>a", "<p>[<IMG src=a.gif>]a"},
        {"end:hr", "<hr>a", "<hr>[a"},
        {"start:hr", "<hr>a", "<hr>[a"},
        {"after:div", "<div/>a</div>.", "<div/>a</div>[."},
        {"after:div", "<html xmlns='http://www.w3.org/1999/xhtml'><div/>a",
         "<html xmlns='http://www.w3.org/1999/xhtml'><div/>[a"},
        {"after:#m", "<html xmlns='x'><div id='m'><div/>a</div>b",
         "<html xmlns='x'><div id='m'><div/>a</div>[b"},
    });
}

TEST(FindPlaceTest, NothingIsPutWhereItCouldNotShow) {
    for (const char* const name : {"script", "style", "title", "textarea", "noscript", "template"})
        for (const char* const where : {"start:", "end:"})
            EXPECT_EQ(
                placeIn("<" + std::string(name) + ">x</" + name + ">", where + std::string(name)),
                "no markup")
                << where << name;
}

TEST(FindPlaceTest, ThePageItselfIsNotReplaced) {
    const std::string page = "<html><head id=h></head><body><div>x</div></body></html>.";
    for (const char* const where : {"instead:html", "instead:head", "instead:body", "instead:#h"})
        EXPECT_EQ(placeIn(page, where), "holds the page") << where;
    EXPECT_EQ(placeIn("<div><body></div>.", "instead:div"), "holds the page");
    EXPECT_EQ(placeIn(page, "instead:div"),
              "<html><head id=h></head><body>[<div>x</div>]</body></html>.");
}

TEST(PossiblePlacesTest, AreMarkerLandmarksAndIds) {
    EXPECT_EQ(possiblePlaces("<div id=top></div><header id='h'><nav></nav></header><nav></nav>"
                             "<!-- zevmenu --><p id=no><td id='a b'><div id=''><div id=top>"
                             "<noscript><footer></noscript><!-- <aside> --><MAIN id=m>"),
              (std::vector<std::string>{"marker", "#top", "header", "#h", "nav", "main", "#m"}));
    EXPECT_EQ(possiblePlaces("<p>text"), std::vector<std::string>());
    EXPECT_EQ(possiblePlaces(""), std::vector<std::string>());
}

TEST(PossiblePlacesTest, ArePlacesIndeed) {
    const std::string page = "<!-- zevmenu --><header></header><div id='x:y' class=a></div>";
    for (const std::string& text : possiblePlaces(page)) {
        const std::optional<MenuPlace> place =
            parsePlace(text == "marker" ? text : "before:" + text);
        ASSERT_TRUE(place.has_value()) << text;
        EXPECT_FALSE(findPlace(page, *place).problem) << text;
    }
}

}  // namespace
}  // namespace zev
