// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/support/hostile_pages.h"
#include "tests/support/placement_properties.h"

namespace zev::test {
namespace {

const std::vector<std::string> kFragments = {
    "<html>",
    "<html xmlns=\"http://www.w3.org/1999/xhtml\">",
    "<head>",
    "</head>",
    "<body>",
    "<BODY onload='a(\"b\")' >",
    "<body onload=a() onresize>",
    "<body/>",
    "</body>",
    "</html>",
    "<p>",
    "</p>",
    "<p/>",
    "<div id=m>",
    "<div class='a b'>",
    "</div>",
    "<nav>",
    "</nav>",
    "<hr id=\"m\">",
    "<script>a < b</script>",
    "<script language=\"JavaScript\">x()</script>",
    "<script>",
    "</script>",
    "<noscript>",
    "</noscript>",
    "<title><p></title>",
    "<textarea>",
    "</textarea>",
    "<!-- <p> -->",
    "<!--",
    "-->",
    "<?php '<p>' ?>",
    "<?",
    "<% <div> %>",
    "<!DOCTYPE html>",
    "text",
    "\xE4\xF6 \r\n",
    "<",
    "</",
    "\"",
    ">",
};

/// The same, and what a menu that was placed before can leave.
const std::vector<std::string> kOwnFragments = {
    "<!-- zevmenu menu -->",
    "<!-- /zevmenu menu -->",
    "<!-- zevmenu -->",
    "<!-- zevmenu link -->",
    "<!-- /zevmenu link -->",
    "<!-- Added by ZEVMenu Creator, zevmenu.example -->",
    "<script language=\"JavaScript1.2\">ZEVCreateMenu()</script>",
    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>",
    "<script language=\"JavaScript1.2\" src=\"menu.js\"></script>",
};

void expectNoProblems(const std::vector<std::string>& fragments, unsigned seed) {
    std::mt19937 random(seed);
    for (int i = 0; i < 2000; ++i) {
        std::string page;
        for (auto count = random() % 24; count > 0; --count)
            page += fragments[random() % fragments.size()];
        ASSERT_EQ(problemOfPlacements(page), "") << "page " << i << ": " << page;
    }
}

TEST(RandomPagesTest, APlacedMenuIsThereOnceAndGoesAgain) {
    expectNoProblems(kFragments, 20261122);
}

TEST(RandomPagesTest, WhatEarlierRunsLeftDoesNotHarm) {
    std::vector<std::string> fragments = kFragments;
    fragments.insert(fragments.end(), kOwnFragments.begin(), kOwnFragments.end());
    expectNoProblems(fragments, 7);
}

TEST(RandomPagesTest, CharactersBetweenEscapesDoNotHarm) {
    std::vector<std::string> fragments = kFragments;
    fragments.insert(fragments.end(), kOwnFragments.begin(), kOwnFragments.end());
    std::erase_if(fragments, [](const std::string& text) { return text[0] == '\xE4'; });
    for (int i = 0; i < 4; ++i)
        fragments.insert(fragments.end(), {"\x1B$B<R</<!>\"\x1B(B", "\x1B$B", "\x1B(B"});
    fragments.push_back("<body title='\x1B$B'>\x1B(B' onload=a()>");
    expectNoProblems(fragments, 3);
}

class HostilePageTest : public testing::TestWithParam<HostilePage> {};

/// Whoever takes more than linear time here is stopped by ctest's time limit.
TEST_P(HostilePageTest, IsLookedThroughInLinearTime) {
    const std::string page = hostilePage(GetParam(), 400'000) + "<nav></nav>words";
    const Placement placement =
        placeMenu(page, {*parsePlace("after:nav"), "code", LinkedText{"words", "2", {}}});
    EXPECT_TRUE(placement.problem || placement.edits.size() == 2);
    EXPECT_TRUE(removeIntegration(page).edits.empty());
    EXPECT_LE(possiblePlaces(page).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Pages, HostilePageTest, testing::ValuesIn(kHostilePages),
                         [](const testing::TestParamInfo<HostilePage>& hostile) {
                             return hostile.param.name;
                         });

TEST(RandomPagesTest, MostOfThemHaveAPlace) {
    std::mt19937 random(20261122);
    int placedCount = 0;
    for (int i = 0; i < 400; ++i) {
        std::string page;
        for (auto count = random() % 24; count > 0; --count)
            page += kFragments[random() % kFragments.size()];
        for (const char* const where : {"body-start", "body-end", "before:p", "end:div"}) {
            if (!findPlace(page, *parsePlace(where)).problem) {
                ++placedCount;
                break;
            }
        }
    }
    EXPECT_GT(placedCount, 200);
}

}  // namespace
}  // namespace zev::test
