// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

// Whole sites.

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string kPage = "<html><head></head><body>text</body></html>\n";

class IntegrateSiteTest : public testing::Test {
  protected:
    IntegrateSiteTest() {
        for (const char* const name : {"site/a.htm", "site/b.html", "site/old/c.htm",
                                       "site/sub/deep/d.htm", "site/e.php", "site/a.htm.bak"}) {
            fs::create_directories(fs::path(folder / name).parent_path());
            makeFile(folder / name, kPage);
        }
        fs::create_directory(folder / "other");
        makeFile(folder / "other/f.htm", kPage);
        fs::create_symlink("../other", folder / "site/link");
        fs::create_symlink("../other/f.htm", folder / "site/f.htm");
    }
    ProgramResult run(const Arguments& more, const std::string& input = {}) const {
        Arguments all{"integrate", "--definition", "site/menu.js",
                      "--library", "site/lib",     "--no-backup"};
        all.insert(all.end(), more.begin(), more.end());
        return runZevmenu(all, folder.path(), input);
    }
    /// The pages that were integrated, sorted.
    Arguments changed() const {
        Arguments names;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            if (entry.is_regular_file() && contentOf(entry.path().string()) != kPage)
                names.push_back(entry.path().lexically_relative(folder.path()).string());
        std::sort(names.begin(), names.end());
        return names;
    }

    const TempFolder folder;
};

TEST_F(IntegrateSiteTest, AFolderWithItsSubfoldersEachWithReferencesOfItsOwn) {
    const ProgramResult result = run({"--recursive", "site"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(changed(),
              (Arguments{"site/a.htm", "site/b.html", "site/old/c.htm", "site/sub/deep/d.htm"}));
    const auto expectLoader = [&](const char* page, const char* source) {
        EXPECT_NE(contentOf(folder / page).find(std::string("src=\"") + source + "\""),
                  std::string::npos)
            << contentOf(folder / page);
    };
    expectLoader("site/b.html", "lib/zevmenu_loader.js");
    expectLoader("site/old/c.htm", "../lib/zevmenu_loader.js");
    expectLoader("site/sub/deep/d.htm", "../../lib/zevmenu_loader.js");
    EXPECT_NE(result.output.find("src=\"../../menu.js\""), std::string::npos);
    EXPECT_NE(result.output.find("\n4 done, 0 failed\n\nCode for the pages in "),
              std::string::npos);
}

TEST_F(IntegrateSiteTest, PatternsChooseThePages) {
    EXPECT_EQ(run({"--recursive", "site", "--include", "*.php", "--include", "*.htm", "--exclude",
                   "old/*"})
                  .status,
              0);
    EXPECT_EQ(changed(), (Arguments{"site/a.htm", "site/e.php", "site/sub/deep/d.htm"}));
}

TEST_F(IntegrateSiteTest, PagesCanBeAddedToAFolder) {
    EXPECT_EQ(run({"--recursive", "site/old", "--exclude", "none", "site/b.html"}).status, 0);
    EXPECT_EQ(changed(), (Arguments{"site/b.html", "site/old/c.htm"}));
}

TEST_F(IntegrateSiteTest, AListComesFromAFileOrStandardInput) {
    makeFile(folder / "list", "site/a.htm\r\n\nsite/old/c.htm\n");
    EXPECT_EQ(run({"--files-from", "list"}).status, 0);
    EXPECT_EQ(changed(), (Arguments{"list", "site/a.htm", "site/old/c.htm"}));
    fs::remove(folder / "list");
    EXPECT_EQ(run({"--files-from", "-"}, std::string("site/b.html\0site/e.php\0", 23)).status, 0);
    EXPECT_EQ(changed(), (Arguments{"site/a.htm", "site/b.html", "site/e.php", "site/old/c.htm"}));
}

TEST_F(IntegrateSiteTest, ASiteMapNamesFilesOfItsFolder) {
    makeFile(folder / "site/sitemap.xml",
             "<urlset><url><loc>https://x.example/old/c.htm</loc></url></urlset>\n");
    EXPECT_EQ(run({"--files-from", "site/sitemap.xml"}).status, 0);
    EXPECT_EQ(changed(), (Arguments{"site/old/c.htm", "site/sitemap.xml"}));
}

TEST_F(IntegrateSiteTest, NothingFoundHasStatusOne) {
    for (const Arguments& arguments :
         {Arguments{"--recursive", "site", "--include", "*.asp"}, Arguments{"--files-from", "-"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "zevmenu: no pages found\n");
        EXPECT_EQ(result.output, "");
    }
}

TEST_F(IntegrateSiteTest, WhatCannotBeListedIsNotDoneByHalves) {
    EXPECT_EQ(run({"--recursive", "none", "site/a.htm"}).status, 3);
    EXPECT_EQ(run({"--files-from", "none", "site/a.htm"}).status, 3);
    EXPECT_EQ(changed(), Arguments{});
}

TEST_F(IntegrateSiteTest, TheMenuIsTakenOutOfAFolderOrAListOfPages) {
    ASSERT_EQ(run({"--recursive", "site", "--place", "body-start"}).status, 0);
    const auto remove = [this](const Arguments& more) {
        Arguments all{"integrate", "--remove", "--no-backup"};
        all.insert(all.end(), more.begin(), more.end());
        return runZevmenu(all, folder.path(), "site/a.htm\n");
    };
    EXPECT_EQ(remove({"--recursive", "site", "--exclude", "*.htm"}).status, 0);
    EXPECT_EQ(changed(), (Arguments{"site/a.htm", "site/old/c.htm", "site/sub/deep/d.htm"}));
    EXPECT_EQ(remove({"--files-from", "-"}).status, 0);
    EXPECT_EQ(changed(), (Arguments{"site/old/c.htm", "site/sub/deep/d.htm"}));
    const ProgramResult rest = remove({"--recursive", "site/old", "site/sub/deep/d.htm"});
    EXPECT_EQ(rest.status, 0) << rest.problems;
    EXPECT_TRUE(rest.output.ends_with("\n2 done, 0 failed\n\n")) << rest.output;
    EXPECT_EQ(changed(), Arguments{});
    EXPECT_EQ(remove({"--recursive", "site", "--include", "*.asp"}).problems,
              "zevmenu: no pages found\n");
    EXPECT_EQ(remove({"--recursive", "none"}).status, 3);
}

TEST_F(IntegrateSiteTest, PatternsNeedAFolder) {
    EXPECT_EQ(run({"--include", "*.htm", "site/a.htm"}).status, 2);
    EXPECT_EQ(run({"--recursive", "", "site/a.htm"}).status, 2);
    EXPECT_EQ(changed(), Arguments{});
}

}  // namespace
}  // namespace zev::test
