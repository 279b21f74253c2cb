// SPDX-License-Identifier: MIT
#include "integrator/page_groups.h"

#include <gtest/gtest.h>

namespace zev::test {
namespace {

using Paths = std::vector<std::string>;

TEST(PageGroups, PagesOfOneFolderHaveBareNames) {
    EXPECT_EQ(chosenPages({"/site/b.htm", "/site/a.htm"}),
              (ChosenFiles{"/site", {"b.htm", "a.htm"}}));
}

TEST(PageGroups, TheFolderHoldsAllPages) {
    const struct {
        Paths paths;
        ChosenFiles pages;
    } cases[] = {
        {{}, {}},
        {{"/a.htm"}, {"/", {"a.htm"}}},
        {{"/site/a.htm", "/site/x/y/b.htm"}, {"/site", {"a.htm", "x/y/b.htm"}}},
        {{"/site/x/a.htm", "/site/y/b.htm"}, {"/site", {"x/a.htm", "y/b.htm"}}},
        {{"/site/x/a.htm", "/sites/b.htm"}, {"/", {"site/x/a.htm", "sites/b.htm"}}},
        {{"/site/a\\b.htm", "/site/x/c.htm"}, {"/site", {"a\\b.htm", "x/c.htm"}}},
        {{"C:\\web\\x\\a.htm", "C:\\web\\b.htm"}, {"C:\\web", {"x\\a.htm", "b.htm"}}},
        {{"C:\\a.htm", "D:\\b.htm"}, {}},
        {{"/a.htm", "C:\\b.htm"}, {}},
    };
    for (const auto& [paths, pages] : cases)
        EXPECT_EQ(chosenPages(paths), pages) << (paths.empty() ? "" : paths.back());
}

TEST(PageGroups, APageIsThereOnce) {
    EXPECT_EQ(chosenPages({"/s/a.htm", "/s/b.htm", "/s/a.htm"}),
              (ChosenFiles{"/s", {"a.htm", "b.htm"}}));
}

TEST(PageGroups, TheFullPathsAreThoseThatWereChosen) {
    for (const Paths& paths : {Paths{"/a.htm", "/x/b.htm"}, Paths{"/s/x/a.htm", "/s/y/b.htm"},
                               Paths{"C:\\web\\x\\a.htm", "C:\\web\\b.htm"}})
        EXPECT_EQ(pagePaths(chosenPages(paths)), paths);
}

TEST(PageGroups, NeighboursOfOneFolderAreAGroup) {
    const std::vector<ChosenFiles> groups =
        pagesByFolder({"/s", {"a.htm", "b.htm", "x/c.htm", "x/y/d.htm", "e.htm"}});
    EXPECT_EQ(groups, (std::vector<ChosenFiles>{{"/s", {"a.htm", "b.htm"}},
                                                {"/s/x", {"c.htm"}},
                                                {"/s/x/y", {"d.htm"}},
                                                {"/s", {"e.htm"}}}));
    EXPECT_TRUE(pagesByFolder({}).empty());
}

// The file dialog gives a root with its separator, which the names are joined to by another one.
TEST(PageGroups, ADrivesRootStaysAsItIs) {
    EXPECT_EQ(pagesByFolder({"C:\\", {"a.htm"}}), (std::vector<ChosenFiles>{{"C:\\", {"a.htm"}}}));
}

}  // namespace
}  // namespace zev::test
