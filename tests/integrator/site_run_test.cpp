// SPDX-License-Identifier: MIT
#include "integrator/site_run.h"

#include <gtest/gtest.h>

#include "integrator/page_groups.h"
#include "integrator/run_undo.h"
#include "platform/fake/fake_file_system.h"

namespace zev::test {
namespace {

const std::string kPage = "<html><head></head><body>text</body></html>";

/// Pages in "/site" and "/site/sub", with the menu and the library in "/site/js".
struct Site {
    Site() {
        for (const char* const page : {"/site/a.htm", "/site/sub/b.htm", "/site/c.htm"})
            files.addFile(page, kPage);
        options.answers.library = "/site/js";
        options.answers.definition = "/site/js/menu.js";
    }
    SiteRunResult run() {
        return runOverSite(
            files, pagesByFolder(pages), options, [](std::size_t, std::size_t) { return true; });
    }
    bool holds(const std::string& page, const std::string& text) {
        return files.allFiles().at(page).find(text) != std::string::npos;
    }

    FakeFileSystem files;
    ChosenFiles pages{"/site", {"a.htm", "sub/b.htm", "c.htm"}};
    SiteRunOptions options;
};

TEST(SiteRun, EachFolderSeesTheLibraryFromItself) {
    Site site;
    const SiteRunResult result = site.run();
    EXPECT_EQ(result.summary.doneCount, 3u);
    EXPECT_TRUE(site.holds("/site/a.htm", "src=\"js/zevmenu_loader.js\""));
    EXPECT_TRUE(site.holds("/site/sub/b.htm", "src=\"../js/zevmenu_loader.js\""));
    EXPECT_TRUE(site.holds("/site/c.htm", "src=\"js/zevmenu_loader.js\""));
    EXPECT_NE(result.report.find("Processing /site/sub/b.htm\r\n"), std::string::npos);
    EXPECT_TRUE(result.report.ends_with("3 done, 0 failed\r\n\r\n")) << result.report;
}

TEST(SiteRun, StoppingCountsThePagesOfAllFolders) {
    Site site;
    const SiteRunResult result = runOverSite(site.files, pagesByFolder(site.pages), site.options,
                                             [](std::size_t doneCount, std::size_t count) {
                                                 EXPECT_EQ(count, 3u);
                                                 return doneCount < 1;
                                             });
    EXPECT_TRUE(site.holds("/site/a.htm", "zevmenu_loader.js"));
    EXPECT_EQ(site.files.allFiles().at("/site/sub/b.htm"), kPage);
    EXPECT_NE(result.report.find("Cancelled: 2 of 3 pages not processed\r\n"), std::string::npos)
        << result.report;
}

TEST(SiteRun, ItIsOneRunToUndo) {
    Site site;
    site.options.recordFolder = "/me/runs";
    const SiteRunResult result = site.run();
    ASSERT_FALSE(result.name.empty());
    const FileResult<UndoneRun> undone = undoRun(site.files, "/me/runs", result.name);
    ASSERT_TRUE(undone.isOk());
    EXPECT_TRUE(undone.value().isWhole());
    for (const char* const page : {"/site/a.htm", "/site/sub/b.htm", "/site/c.htm"})
        EXPECT_EQ(site.files.allFiles().at(page), kPage) << page;
}

TEST(SiteRun, NamedScriptsStay) {
    Site site;
    site.files.addFile("/site/a.htm",
                       "<head><script src=x.js></script><script>own();</script></head><body>"
                       "</body>\n");
    site.options.answers.keptScripts = {"x.js"};
    site.run();
    EXPECT_TRUE(site.holds("/site/a.htm", "x.js"));
    EXPECT_FALSE(site.holds("/site/a.htm", "own();"));
}

TEST(SiteRun, TheMenuIsPlacedWithTheAddressesOfItsFolder) {
    Site site;
    site.options.placing = MenuPlacing{*parsePlace("body-start"), {}};
    site.options.placing->addition = [](const std::string& url) { return "[" + url + "]"; };
    site.run();
    EXPECT_TRUE(site.holds("/site/a.htm", "src=\"js/menu.js\""));
    EXPECT_TRUE(site.holds("/site/sub/b.htm", "src=\"../js/menu.js\""));
    EXPECT_TRUE(site.holds("/site/sub/b.htm", "[../js/menu.js]"));
    EXPECT_TRUE(site.holds("/site/a.htm", "ZEVDisplayMenu();"));
}

TEST(SiteRun, WordsOfThePageBecomeThePopupLink) {
    Site site;
    site.files.addFile("/site/a.htm", "<head></head><body><p>Our products here</p></body>\n");
    site.options.answers.isPopup = true;
    site.options.answers.submenuId = "1i2";
    site.options.placing = MenuPlacing{*parsePlace("body-start"), "products"};
    const SiteRunResult result = site.run();
    EXPECT_TRUE(site.holds("/site/a.htm", "ZEVMenuOpen('zev1i1', '2', event)"));
    EXPECT_TRUE(site.holds("/site/a.htm", ">products</a>"));
    EXPECT_FALSE(site.holds("/site/a.htm", ">Menu</a>"));
    EXPECT_EQ(result.summary.failedPages,
              (std::vector<std::string>{"/site/sub/b.htm", "/site/c.htm"}));
}

TEST(SiteRun, ReferencesToTheEarlierPlaceAreFoundAndReplaced) {
    Site site;
    site.options.looksForReferences = true;
    site.run();
    const std::string pasted =
        "<script language=\"JavaScript1.2\" src=\"old/menu.js\"></script>\r\n"
        "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
    std::string page = site.files.allFiles().at("/site/a.htm");
    page.insert(page.find("text"), pasted);
    site.files.addFile("/site/a.htm", page);
    const SiteRunResult again = site.run();
    ASSERT_EQ(again.movedReferences.size(), 1u);
    EXPECT_EQ(again.movedReferences[0].page, "/site/a.htm");
    EXPECT_EQ(again.movedReferences[0].url, "old/menu.js");
    EXPECT_TRUE(site.holds("/site/a.htm", "old/menu.js"));
    site.options.replacesReferences = true;
    EXPECT_TRUE(site.run().movedReferences.empty());
    EXPECT_FALSE(site.holds("/site/a.htm", "old/menu.js"));
    EXPECT_TRUE(site.holds("/site/a.htm", "src=\"js/menu.js\""));
}

}  // namespace
}  // namespace zev::test
