// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "checks/menu_links.h"
#include "integrator/page_removal.h"
#include "script/script_reader.h"
#include "tests/integrator/rewritten.h"
#include "tests/support/golden_cases.h"
#include "text/text_encoding.h"

namespace zev::test {
namespace {

// Pages of sites of different make. Each folder holds before.htm and options.txt; placed.htm is
// what becomes of the page when the menu is placed, before.htm itself where it has no such place;
// and removed.htm, where that is not before.htm, what is left when the menu is taken out again.
const std::string kSites = ZEV_SITE_PAGES;

struct Site {
    std::string before;
    std::string placed;
    std::string removed = {};
    RewriteOptions options{"lib/", true};
};

std::string noScriptLinksOfMenu() {
    const std::string bytes = caseFile(kSites + "/menu.js");
    std::string converted;
    MenuContent content;
    EXPECT_EQ(ReadScript(std::string(decodeDefinition(bytes, converted)), content).errorCount, 0U);
    return noScriptLinks(content, "menu.js");
}

Site siteOf(const std::string& name) {
    const std::string folder = kSites + "/" + name;
    Site site{caseFile(folder + "/before.htm"), caseFile(folder + "/placed.htm")};
    const std::string removed = folder + "/removed.htm";
    site.removed = std::filesystem::exists(removed) ? caseFile(removed) : site.before;
    PlacedMenu menu{{}, placedMenuCode("menu.js")};
    std::istringstream lines(caseFile(folder + "/options.txt"));
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("place: "))
            menu.place = parsePlace(line.substr(7)).value();
        else if (line == "without-script")
            menu.code += noScriptLinksOfMenu();
    site.options.menu = menu;
    return site;
}

TEST(SitePageCases, AreTwenty) {
    EXPECT_GE(caseNames(kSites).size(), 20U);
}

class SitePages : public testing::TestWithParam<std::string> {};

TEST_P(SitePages, GetTheMenuInTheExpectedBytes) {
    const Site site = siteOf(GetParam());
    const Rewritten result = rewritten(site.before, site.options);
    EXPECT_EQ(result.page, site.placed);
    EXPECT_EQ(result.status.placeProblem.has_value(), site.before == site.placed);
}

TEST_P(SitePages, ComeOutTheSameWhenPlacedOrIntegratedAgain) {
    const Site site = siteOf(GetParam());
    if (site.before == site.placed)
        return;  // nothing is placed there
    EXPECT_EQ(rewritten(site.placed, site.options).page, site.placed);
    EXPECT_EQ(rewritten(site.placed, {"lib/", true}).page, site.placed);
}

TEST_P(SitePages, AreAsTheyWereWhenTheMenuIsTakenOut) {
    const Site site = siteOf(GetParam());
    EXPECT_EQ(withEdits(site.placed, removeIntegration(site.placed).edits), site.removed);
}

INSTANTIATE_TEST_SUITE_P(Case, SitePages, testing::ValuesIn(caseNames(kSites)), caseTestName);

}  // namespace
}  // namespace zev::test
