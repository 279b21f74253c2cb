// SPDX-License-Identifier: MIT
#include "checks/menu_difference.h"

#include <gtest/gtest.h>

#include "checks/difference_json.h"
#include "checks/longest_increasing.h"
#include "messages/difference_messages.h"
#include "script/script_reader.h"

namespace zev {
namespace {

MenuContent menuOf(const std::string& definition) {
    MenuContent content;
    EXPECT_EQ(ReadScript(definition, content).errorCount, 0U) << definition;
    return content;
}

const std::string kTop = "zevmenu = new ZEVMenu('0');\n";

std::string item(const std::string& caption, const std::string& url = {}) {
    return "zevmenu.AddItem('" + caption + "', '" + url + "', '');\n";
}

std::string submenu(const std::string& id) {
    return "zevmenu = new ZEVMenu('" + id + "');\n";
}

std::string differences(const std::string& oldDefinition, const std::string& newDefinition) {
    std::string text;
    for (const MenuDifference& difference :
         compareMenus(menuOf(oldDefinition), menuOf(newDefinition)))
        text += differenceText(difference) + "\n";
    return text;
}

const std::string kSite = kTop + item("Home", "index.html") + item("Tea") + item("Coffee") +
                          submenu("2") + item("Green", "green.html") + item("Black", "black.html") +
                          submenu("3") + item("Beans", "beans.html");

TEST(CompareMenus, TheSameMenuHasNoDifference) {
    EXPECT_EQ(differences(kSite, kSite), "");
    EXPECT_EQ(differences(kSite, "// a comment\n" + kSite + "\r\n"), "");
    EXPECT_EQ(differences("", ""), "");
}

TEST(CompareMenus, AnItemPutInFrontIsAllThatWasAdded) {
    EXPECT_EQ(differences(kSite, kTop + item("News") + item("Home", "index.html") + item("Tea") +
                                     item("Coffee") + submenu("3") + item("Green", "green.html") +
                                     item("Black", "black.html") + submenu("4") +
                                     item("Beans", "beans.html")),
              "added News\n");
}

TEST(CompareMenus, EveryItemOfARemovedBranchIsTold) {
    EXPECT_EQ(differences(kSite, kTop + item("Home", "index.html") + item("Coffee") + submenu("2") +
                                     item("Beans", "beans.html")),
              "removed Tea\nremoved Tea > Green\nremoved Tea > Black\n");
}

TEST(CompareMenus, ABranchThatWasMovedCountsOnce) {
    EXPECT_EQ(differences(kSite, kTop + item("Home", "index.html") + item("Coffee") + submenu("2") +
                                     item("Beans", "beans.html") + item("Tea") + submenu("2i2") +
                                     item("Green", "green.html") + item("Black", "black.html")),
              "moved Tea to Coffee > Tea\n");
}

TEST(CompareMenus, OfAChangedOrderAsFewItemsAsPossibleWereMoved) {
    EXPECT_EQ(differences(kTop + item("A") + item("B") + item("C") + item("D"),
                          kTop + item("D") + item("A") + item("B") + item("C")),
              "moved D within its menu\n");
}

TEST(CompareMenus, ItemsThatChangedPlacesWithTheirOwnAreMoved) {
    EXPECT_EQ(differences(kTop + item("A") + submenu("1") + item("B"),
                          kTop + item("B") + submenu("1") + item("A")),
              "moved A > B to B\nmoved A to B > A\n");
}

TEST(CompareMenus, ARenamedItemIsKnownByItsLinkOrByWhatLiesBelowIt) {
    EXPECT_EQ(differences(kSite, kTop + item("Start", "index.html") + item("Teas") +
                                     item("Coffee") + submenu("2") + item("Green", "green.html") +
                                     item("Red", "red.html") + submenu("3") +
                                     item("Beans", "beans.html")),
              "changed Start: caption \"Home\" to \"Start\"\n"
              "changed Teas: caption \"Tea\" to \"Teas\"\n"
              "added Teas > Red\n"
              "removed Tea > Black\n");
}

TEST(CompareMenus, TellsPropertiesOfDefaultsMenusAndItemsApart) {
    EXPECT_EQ(differences("zev_state.columns = 1;\nzev_state.nbgcolor = 'navy';\n" + kTop +
                              item("A") + submenu("1") + "zevmenu.target = 'main';\n" + item("B"),
                          "zev_state.columns = 2;\nzev_state.nbgcolor = 'navy';\n" + kTop +
                              "zevmenu.fshadow = 'red';\nzevmenu.AddItem('A', '', 'it\\'s');\n" +
                              submenu("1") + item("B")),
              "changed the defaults: columns \"1\" to \"2\"\n"
              "added the top menu: fshadow \"red\"\n"
              "added A: target \"it's\"\n"
              "removed the menu of A: target \"main\"\n");
}

TEST(CompareMenus, TakesLargeMenusThatHaveNothingInCommon) {
    std::string left = kTop;
    std::string right = kTop;
    for (int i = 0; i < 15000; ++i) {
        left += item("Left " + std::to_string(i));
        right += item("Right " + std::to_string(i));
    }
    EXPECT_EQ(compareMenus(menuOf(left), menuOf(right)).size(), 30000U);
    std::string reversed = kTop;
    for (int i = 15000; i-- > 0;)
        reversed += item("Left " + std::to_string(i));
    EXPECT_EQ(compareMenus(menuOf(left), menuOf(reversed)).size(), 14999U);
}

TEST(DifferencesJson, HasThePathsOfWhatWasMoved) {
    EXPECT_EQ(differencesJson(
                  compareMenus(menuOf(kTop + item("A") + item("B")),
                               menuOf(kTop + item("A", "a.html") + submenu("1") + item("B")))),
              R"([
{"kind": "added", "owner": "item", "item": ["A"], "field": "url", "old": "", "new": "a.html"},
{"kind": "moved", "owner": "item", "item": ["A", "B"], "field": "", "old": ["B"], "new": ["A", "B"]}
]
)");
    EXPECT_EQ(differencesJson({}), "[]\n");
}

TEST(LongestIncreasing, LeavesOutAsFewAsPossible) {
    EXPECT_EQ(longestIncreasing({}), std::vector<bool>());
    EXPECT_EQ(longestIncreasing(std::vector<std::size_t>{3, 0, 1, 4, 2}),
              (std::vector<bool>{false, true, true, false, true}));
}

}  // namespace
}  // namespace zev
