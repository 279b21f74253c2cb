// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/run_program.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string kPage = "<html><head></head><body><p>text</p></body></html>\n";
const std::string kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";

/// `kPage` with the library at `url` and `menu` before its paragraph.
std::string integrated(const std::string& url, const std::string& menu) {
    return "<html><head>" + kMarker + "<script language=\"JavaScript1.2\">var zev_path = '" + url +
           "';</script><script language=\"JavaScript1.2\" src=\"" + url +
           "zevmenu_loader.js\"></script></head>"
           "<body onload=\"ZEVLoadMenu();\" onresize=\"ZEVLoadMenu();\">" +
           menu + "<p>text</p>" + kMarker +
           "<script language=\"JavaScript1.2\">ZEVCreateMenu()</script></body></html>\n";
}

/// A placed menu, with the links of `kSmallDefinition` when they are asked for.
std::string placedMenu(const std::string& url, const std::string& more = "") {
    return "<!-- zevmenu menu --><script language=\"JavaScript1.2\" src=\"" + url +
           "\"></script><script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>" + more +
           "<!-- /zevmenu menu -->";
}

std::string successOf(const std::string& page) {
    return "Processing " + page +
           "\n"
           "Success: Menu library references added\n"
           "Success: Event handlers added\n"
           "Success: Menu creation code added\n"
           "Success: Menu integration successful\n"
           "Success: Menu placed\n"
           "\n";
}

ProgramResult integrate(const TempFolder& folder, const Arguments& more) {
    Arguments arguments{"integrate", "--definition", "menu.js", "--library", "lib"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runZevmenu(arguments, folder.path());
}

TEST(PlaceTest, PutsTheMenuIntoEachPageAsSeenFromItsFolder) {
    const TempFolder folder;
    fs::create_directory(folder / "sub");
    makeFile(folder / "a.htm", kPage);
    makeFile(folder / "sub/b.htm", kPage);
    const ProgramResult result = integrate(folder, {"--place", "before:p", "a.htm", "sub/b.htm"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(contentOf(folder / "a.htm"), integrated("lib/", placedMenu("menu.js")));
    EXPECT_EQ(contentOf(folder / "sub/b.htm"), integrated("../lib/", placedMenu("../menu.js")));
    // Nothing is left to be pasted.
    EXPECT_EQ(result.output, successOf(folder / "a.htm") + successOf(folder / "sub/b.htm") +
                                 "2 done, 0 failed\n\n");
    const std::string once = contentOf(folder / "a.htm");
    EXPECT_EQ(integrate(folder, {"--place", "body-end", "a.htm"}).status, 0);
    EXPECT_EQ(contentOf(folder / "a.htm"), once) << "it stays where it stands";
}

TEST(PlaceTest, APageWithoutThePlaceStaysAsItIsAndTheOthersAreDone) {
    const TempFolder folder;
    const std::string other = "<head></head><body>x</body>\n";
    makeFile(folder / "a.htm", other);
    makeFile(folder / "b.htm", kPage);
    const ProgramResult result = integrate(folder, {"--place", "before:p", "a.htm", "b.htm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "Processing " + (folder / "a.htm") + "\nERROR: " + (folder / "a.htm") +
                                 " not saved: There is no place \"before:p\"\n\n" +
                                 successOf(folder / "b.htm") + "Failed: " + (folder / "a.htm") +
                                 "\n1 done, 1 failed\n\n");
    EXPECT_EQ(contentOf(folder / "a.htm"), other);
    EXPECT_EQ(namesIn(folder.path()), (Arguments{"a.htm", "b.htm", "b.htm.bak"}));
}

TEST(PlaceTest, APageWithACallOfItsOwnKeepsItAndGetsNoSecondOne) {
    const TempFolder folder;
    const std::string pasted =
        "<script language=\"JavaScript1.2\" src=\"menu.js\"></script>\r\n"
        "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
    makeFile(folder / "a.htm", "<head></head>\n<body>" + pasted + "\n</body>\n");
    makeFile(folder / "b.htm", kPage);
    const ProgramResult result = integrate(folder, {"--place", "before:p", "a.htm", "b.htm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(withoutRun(result.problems),
              "zevmenu: " + (folder / "a.htm") +
                  ": line 3: has a call of its own; it stays, and no second one is placed: "
                  "<script language=\"JavaScript1.2\">ZEVDisplayMenu();\n");
    EXPECT_EQ(result.output, "Processing " + (folder / "a.htm") +
                                 "\nSuccess: Menu library references added\n"
                                 "Success: Event handlers added\n"
                                 "Success: Menu creation code added\n"
                                 "Success: Menu integration successful\n"
                                 "Menu not placed: the page has a call of its own\n\n" +
                                 successOf(folder / "b.htm") + "2 done, 0 failed\n\n");
    EXPECT_EQ(contentOf(folder / "a.htm").find("zevmenu menu"), std::string::npos);
    EXPECT_NE(contentOf(folder / "a.htm").find(pasted), std::string::npos);
    EXPECT_EQ(contentOf(folder / "b.htm"), integrated("lib/", placedMenu("menu.js")));
}

TEST(PlaceTest, EveryReasonWhyNotIsGiven) {
    struct Case {
        const char* where;
        const char* reason;
    };
    const Case cases[] = {
        {"marker", "There is no place \"marker\""},
        {"after:b", "The end of the element is not found: \"after:b\""},
        {"end:title", "The element cannot hold a menu: \"end:title\""},
        {"instead:body", "The element holds the page's head or body: \"instead:body\""},
    };
    const TempFolder folder;
    makeFile(folder / "a.htm", "<title></title><body><b></body>\n");
    for (const Case& c : cases) {
        const ProgramResult result = integrate(folder, {"--place", c.where, "a.htm"});
        EXPECT_EQ(result.status, 1) << c.where;
        EXPECT_NE(result.output.find("a.htm not saved: " + std::string(c.reason) + "\n"),
                  std::string::npos)
            << result.output;
    }
}

TEST(PlaceTest, AMalformedPlaceIsWrongUseBeforeAnyPageIsTouched) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    for (const char* const where : {"", "top", "before", "before:", "before:a b", "before:#"}) {
        const ProgramResult result = integrate(folder, {"--place", where, "a.htm"});
        EXPECT_EQ(result.status, 2) << where;
        EXPECT_NE(result.problems.find("--place"), std::string::npos) << result.problems;
    }
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
    EXPECT_EQ(namesIn(folder.path()), Arguments{"a.htm"});
}

TEST(PlaceTest, SeveralMenusAndWhatWasInOneAreNamed) {
    const TempFolder folder;
    makeFile(folder / "a.htm",
             "<body>\n<!-- zevmenu menu --><b>\xE4\tmine</b>"
             "<!-- /zevmenu menu -->\n<!-- zevmenu menu --><!-- /zevmenu menu -->"
             "</body>\n");
    const ProgramResult result = integrate(folder, {"--place", "body-start", "a.htm"});
    EXPECT_EQ(
        withoutRun(result.problems),
        "zevmenu: " + (folder / "a.htm") +
            ": line 2: stood in the placed menu and is gone: <b>\xC3\xA4 mine</b>\nzevmenu: " +
            (folder / "a.htm") +
            ": line 3: another menu is placed here; only the first was replaced\n");
}

TEST(PlaceTest, APopupMenuGetsItsLink) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    integrate(folder, {"--place", "before:p", "--popup", "Products (2)", "--mouse", "a.htm"});
    EXPECT_EQ(contentOf(folder / "a.htm"),
              integrated("lib/",
                         "<!-- zevmenu menu --><script language=\"JavaScript1.2\" "
                         "src=\"menu.js\"></script><a href=\"\" onmouseover=\"ZEVMenuOpen('zev1', "
                         "'2', event)\" onmouseout=\"ZEVMenuClose('zev1', '2', false)\">Menu</a>"
                         "<!-- /zevmenu menu -->"));
}

TEST(PlaceTest, WithoutScriptTheLinksStandInThePageAsSeenFromItsFolder) {
    const TempFolder folder;
    fs::create_directories(folder / "sub");
    fs::create_directories(folder / "js");
    makeFile(folder / "js/menu.js",
             "zevmenu = new ZEVMenu('0');\n"
             "zevmenu.AddItem('Home', '../index.html', '');\n"
             "zevmenu.AddItem('More', 'javascript:go()', '');\n"
             "zevmenu = new ZEVMenu('2');\n"
             "zevmenu.AddItem('\xC3\x84pfel', 'http://a.example/?a&b', '');\n");
    makeFile(folder / "sub/a.htm", kPage);
    const ProgramResult result =
        runZevmenu({"integrate", "--definition", "js/menu.js", "--library", "lib", "--place",
                    "before:p", "--without-script", "sub/a.htm"},
                   folder.path());
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(
        contentOf(folder / "sub/a.htm"),
        integrated("../lib/", placedMenu("../js/menu.js",
                                         "<noscript><nav aria-label=\"Site menu\"><ul>"
                                         "<li><a href=\"../index.html\">Home</a></li>"
                                         "<li>More<ul><li><a href=\"http://a.example/?a&amp;b\">"
                                         "&#196;pfel</a></li></ul></li></ul></nav></noscript>")));
}

TEST(PlaceTest, WithoutScriptNeedsAPlaceAndTheDefinition) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    EXPECT_EQ(integrate(folder, {"--without-script", "a.htm"}).status, 2);
    const ProgramResult result =
        integrate(folder, {"--place", "before:p", "--without-script", "a.htm"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.problems, "zevmenu: menu.js: No such file or directory\n");
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
}

TEST(PlaceTest, ReferencesThatWerePastedAreCorrectedWhenAsked) {
    const std::string before =
        "<body><script language=\"JavaScript1.2\" src=\"old/menu.js\">"
        "</script></body>\n";
    const TempFolder folder;
    makeFile(folder / "a.htm", before);
    integrate(folder, {"a.htm"});
    EXPECT_NE(contentOf(folder / "a.htm").find("src=\"old/menu.js\""), std::string::npos);
    integrate(folder, {"--replace-references", "a.htm"});
    EXPECT_EQ(contentOf(folder / "a.htm").find("src=\"old/menu.js\""), std::string::npos);
    EXPECT_NE(contentOf(folder / "a.htm").find("src=\"menu.js\"></script>"), std::string::npos);
}

TEST(RemoveTest, GivesThePageBackAndSaysSo) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    integrate(folder, {"--place", "before:p", "--no-backup", "a.htm"});
    ASSERT_NE(contentOf(folder / "a.htm"), kPage);
    const ProgramResult result =
        runZevmenu({"integrate", "--remove", "--no-backup", "a.htm"}, folder.path());
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(withoutRun(result.problems), "");
    EXPECT_EQ(result.output, "Processing " + (folder / "a.htm") +
                                 "\nSuccess: Menu integration removed\n\n1 done, 0 failed\n\n");
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
    EXPECT_EQ(namesIn(folder.path()), Arguments{"a.htm"});
}

TEST(RemoveTest, NamesWhatDoesNotComeBackAndWhatStays) {
    const TempFolder folder;
    makeFile(folder / "a.htm",
             "<head><script>a</script></head>\n<body onload=a()>\n"
             "<nav id=n></nav></body>\n"
             "<script language=JavaScript>ZEVDisplayMenu()</script>\n");
    integrate(folder, {"--place", "instead:#n", "a.htm"});
    const ProgramResult result = runZevmenu({"integrate", "--remove", "a.htm"}, folder.path());
    EXPECT_EQ(result.status, 0);
    const std::string start = "zevmenu: " + (folder / "a.htm") + ": line ";
    EXPECT_EQ(withoutRun(result.problems),
              start + "1: a script that integration dropped does not come back\n" + start +
                  "2: the quotes around onload stay; integration may have put them there\n" +
                  start + "3: the element that the menu stood instead of does not come back: #n\n" +
                  start +
                  "4: written by hand, stays: <script language=JavaScript>ZEVDisplayMenu()\n");
    EXPECT_EQ(contentOf(folder / "a.htm"),
              "<head></script></head>\n<body onload=\"a()\">\n</body>\n"
              "<script language=JavaScript>ZEVDisplayMenu()</script>\n");
}

TEST(RemoveTest, APageWithoutAMenuIsNotWrittenAndOneThatIsMissingFails) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    const ProgramResult result =
        runZevmenu({"integrate", "--remove", "a.htm", "none.htm"}, folder.path());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "Processing " + (folder / "a.htm") +
                                 "\nNo menu integration found\n\nERROR: " + (folder / "none.htm") +
                                 " Not Found!\n\nFailed: " + (folder / "none.htm") +
                                 "\n1 done, 1 failed\n\n");
    EXPECT_EQ(namesIn(folder.path()), Arguments{"a.htm"});
}

TEST(RemoveTest, DryRunTellsTheSameAndChangesNothing) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    integrate(folder, {"--no-backup", "a.htm"});
    const std::string page = contentOf(folder / "a.htm");
    const ProgramResult dry =
        runZevmenu({"integrate", "--remove", "--dry-run", "a.htm"}, folder.path());
    EXPECT_EQ(contentOf(folder / "a.htm"), page);
    EXPECT_EQ(runZevmenu({"integrate", "--remove", "a.htm"}, folder.path()).output, dry.output);
    EXPECT_EQ(contentOf(folder / "a.htm"), kPage);
}

TEST(RemoveTest, NeedsPagesOnlyAndNothingElseGoesWithIt) {
    const TempFolder folder;
    makeFile(folder / "a.htm", kPage);
    EXPECT_EQ(runZevmenu({"integrate", "--remove"}, folder.path()).status, 2);
    for (const Arguments& more :
         {Arguments{"--place", "marker"}, Arguments{"--definition", "m.js"},
          Arguments{"--library", "l"}, Arguments{"--keep-scripts"},
          Arguments{"--popup", "A (1)", "--mouse"}, Arguments{"--replace-references"}}) {
        Arguments arguments{"integrate", "--remove", "a.htm"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(runZevmenu(arguments, folder.path()).status, 2) << more[0];
    }
    for (const Arguments& arguments :
         {Arguments{"integrate", "a.htm"}, Arguments{"integrate", "--library", "l", "a.htm"},
          Arguments{"integrate", "--definition", "m", "a.htm"}}) {
        const ProgramResult result = runZevmenu(arguments, folder.path());
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.problems.find("is required"), std::string::npos) << result.problems;
    }
}

}  // namespace
}  // namespace zev::test
