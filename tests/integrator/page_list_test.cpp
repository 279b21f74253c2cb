// SPDX-License-Identifier: MIT
#include "integrator/page_list.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_file_system.h"

namespace zev::test {
namespace {

using Names = std::vector<std::string>;

struct Site {
    Site() {
        for (const char* const name :
             {"a.htm", "b.html", "c.php", "a.htm.bak", "a.bak.htm", "old/x.htm", "old/deep/y.html",
              "new/z.htm", "new.htm", "new/style.css"})
            files.addFile(std::string("/site/") + name, "x");
    }
    Names find(const PagePatterns& patterns) { return findPages(files, "/site", patterns).paths; }
    FakeFileSystem files;
};

TEST(FindPagesTest, TakesPagesOfAllFoldersButNoBackups) {
    Site site;
    EXPECT_EQ(site.find({}),
              (Names{"/site/a.htm", "/site/b.html", "/site/new.htm", "/site/new/z.htm",
                     "/site/old/x.htm", "/site/old/deep/y.html"}));
}

TEST(FindPagesTest, AStarCrossesSlashesInWhatIsIncludedAndExcluded) {
    Site site;
    EXPECT_EQ(site.find({{"*.php", "*y.html"}, {}}),
              (Names{"/site/c.php", "/site/old/deep/y.html"}));
    EXPECT_EQ(site.find({{}, {"old/*", "b.*"}}),
              (Names{"/site/a.htm", "/site/new.htm", "/site/new/z.htm"}));
    EXPECT_EQ(site.find({{}, {"old", "new/*", "a.htm"}}), (Names{"/site/b.html", "/site/new.htm"}));
    EXPECT_EQ(site.find({{"*"}, {"*.htm", "*.html"}}),
              (Names{"/site/c.php", "/site/new/style.css"}))
        << "backups are never taken";
    EXPECT_EQ(site.find({{"*.none"}, {}}), Names{});
}

TEST(FindPagesTest, LinksAreNotFollowed) {
    Site site;
    site.files.addFile("/elsewhere/p.htm", "x");
    site.files.addLink("/site/link.htm", "/elsewhere/p.htm");
    EXPECT_EQ(site.find({{"*link*", "*p.htm"}, {}}), Names{});
}

TEST(FindPagesTest, TellsOfAFolderThatCannotBeListed) {
    Site site;
    FailingFileSystem failing(site.files);
    failing.failPath("/site/old",
                     {FileError::Code::NoPermission, "/site/old", "Permission denied"});
    const FoundPages found = findPages(failing, "/site", {});
    EXPECT_EQ(found.paths.size(), 4u);
    ASSERT_EQ(found.errors.size(), 1u);
    EXPECT_EQ(found.errors.front().path, "/site/old");
    EXPECT_EQ(findPages(failing, "/none", {}).errors.size(), 1u);
}

TEST(FindPagesTest, CanBeStoppedAndTellsSo) {
    Site site;
    for (int number = 0; number < 300; ++number)
        site.files.addFile("/site/many/" + std::to_string(number) + ".htm", "x");
    std::size_t askedCount = 0;
    const auto stopAtSecond = [&askedCount](std::size_t foundCount) {
        EXPECT_GT(foundCount, 0U);
        return ++askedCount < 2;
    };
    const FoundPages some = findPages(site.files, "/site", {}, stopAtSecond);
    EXPECT_TRUE(some.isStopped);
    EXPECT_EQ(askedCount, 2U);
    EXPECT_LT(some.paths.size(), 200U);
    const FoundPages all = findPages(site.files, "/site", {}, [](std::size_t) { return true; });
    EXPECT_FALSE(all.isStopped);
    EXPECT_EQ(all.paths.size(), 306U);
}

TEST(PathsInListTest, EndAtLineEndsOrAtNulWhereThereIsOne) {
    EXPECT_EQ(pathsInList("a.htm\nb c.htm\r\n\n/d.htm"), (Names{"a.htm", "b c.htm", "/d.htm"}));
    EXPECT_EQ(pathsInList(std::string("a\nb\0c\r\0\0d", 9)), (Names{"a\nb", "c\r", "d"}));
    EXPECT_EQ(pathsInList(""), Names{});
}

TEST(SiteMapTest, PagesAreFilesOfTheFolder) {
    FakeFileSystem files;
    files.addFile("/site/blog/index.htm", "x");
    const std::string map =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n"
        "<url><loc>https://shop.example/a.htm</loc><lastmod>2026-01-01</lastmod></url>\n"
        "<url><loc>\n https://shop.example/b/men%C3%BC.htm?x=1&amp;y=2#z </loc></url>\n"
        "<url><loc>https://shop.example</loc></url><url><loc>https://shop.example/</loc></url>\n"
        "<url><loc>https://shop.example/blog/</loc></url>\n"
        "<url><loc>https://shop.example/a&amp;b.htm</loc></url>\n"
        "<url><loc>https://shop.example/a.htm</loc></url>\n"
        "<url><loc>https://shop.example/../../etc/passwd</loc></url>\n"
        "<url><loc>https://shop.example/x/%2e%2e/%2E%2E/etc/passwd</loc></url>\n"
        "<url><loc>relative.htm</loc></url></urlset>\n";
    EXPECT_TRUE(isSiteMap(map));
    EXPECT_FALSE(isSiteMap("a.htm\nb.htm\n"));
    EXPECT_EQ(pathsInSiteMap(files, map, "/site"),
              (Names{"/site/a.htm", "/site/b/men\xC3\xBC.htm", "/site/index.html",
                     "/site/blog/index.htm", "/site/a&b.htm"}));
    EXPECT_EQ(pathsInSiteMap(files, "", "/site"), Names{});
    EXPECT_EQ(pathsInSiteMap(files, "<loc>", "/site"), Names{});
}

}  // namespace
}  // namespace zev::test
