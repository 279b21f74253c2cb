// SPDX-License-Identifier: MIT
#include "integrator/page_findings.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_file_system.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

const RewriteOptions kOptions{"lib/", false};
using Names = std::vector<std::string>;

PageFindings inspected(const std::string& page) {
    return inspectPage(page, kOptions);
}

TEST(PageFindingsTest, APlainPageHasAllPlacesAndNothingElse) {
    const PageFindings page = inspected("<html><head></head><body>text</body></html>\n");
    EXPECT_TRUE(page.canBeIntegrated());
    EXPECT_TRUE(page.isWritable);
    EXPECT_FALSE(page.isIntegrated || page.hasFrameSet || page.isUtf16 || page.isXhtml);
    EXPECT_EQ(page.base, "");
    EXPECT_EQ(page.removedScripts, Names{});
}

TEST(PageFindingsTest, EachPlaceCanBeMissing) {
    const PageFindings noHead = inspected("<body></body>.");
    EXPECT_TRUE(!noHead.hasHead && noHead.hasBody && noHead.hasBodyEnd);
    const PageFindings noEnd = inspected("<head></head><body></body>");
    EXPECT_TRUE(noEnd.hasHead && noEnd.hasBody && !noEnd.hasBodyEnd) << "it is the last token";
    const PageFindings frames = inspected("<head></head><FRAMESET rows=1><frame></frameset>.");
    EXPECT_TRUE(frames.hasFrameSet && !frames.hasBody && !frames.canBeIntegrated());
}

TEST(PageFindingsTest, AnEarlierVersionOfTheMenuIsNoScriptOfSomebodyElse) {
    const std::string before =
        "<head></head><body><script>count()</script><script src=a.js></script></body>.";
    EXPECT_EQ(inspected(before).removedScripts, (Names{"count()", "a.js"}));
    const PageFindings again =
        inspected(rewritten("<head></head><body>text</body>.", {"old/", false}).page);
    EXPECT_TRUE(again.isIntegrated);
    EXPECT_EQ(again.removedScripts, Names{});
    // Spelled by somebody else it would go all the same, and is still the menu's.
    EXPECT_EQ(inspected("<script src='js/zevmenu_loader.js'></script><script>ZEVCreateMenu();"
                        "</script><script>var zev_path = 'js/';</script>.")
                  .removedScripts,
              Names{});
    // But what was written into it is not.
    EXPECT_EQ(inspected("<script language=JavaScript>ZEVCreateMenu(); mine()</script><script "
                        "language=JavaScript>var zev_path = ''; mine()</script>.")
                  .removedScripts,
              (Names{"ZEVCreateMenu(); mine()", "var zev_path = ''; mine()"}));
}

TEST(PageFindingsTest, ProseAboutTheMenuIsNoIntegration) {
    EXPECT_FALSE(inspected("<p>Added by ZEVMenu Creator, zevmenu_loader.js</p>.").isIntegrated);
    EXPECT_TRUE(inspected("<!-- Added by ZEVMenu Creator -->.").isIntegrated);
    EXPECT_TRUE(inspected(".<script src=zevmenu_loader.js>").isIntegrated);
}

TEST(PageFindingsTest, ABaseCountsWhereItMayBeAnotherFolder) {
    for (const char* const base : {"", "./", "index.htm", "index.htm?a/b", "#/"})
        EXPECT_EQ(inspected("<base href='" + std::string(base) + "'>.").base, "") << base;
    for (const char* const base : {"http://shop.example/", "/", "js/", "../a.htm", "..", "./js/"})
        EXPECT_EQ(inspected("<BASE HREF='" + std::string(base) + "'>.").base, base);
    EXPECT_EQ(inspected("<base target=_top>.").base, "");
}

TEST(PageFindingsTest, KnowsXhtmlAndUtf16) {
    EXPECT_TRUE(inspected("<?xml version=\"1.0\"?><html></html>").isXhtml);
    EXPECT_TRUE(inspected("<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0\"><html>").isXhtml);
    EXPECT_TRUE(inspected("<html xmlns='http://www.w3.org/1999/xhtml'>.").isXhtml);
    EXPECT_FALSE(inspected("<!DOCTYPE html><!-- XHTML --><html lang=en>.").isXhtml);
    EXPECT_TRUE(inspected(std::string("\xFF\xFE<\0h\0", 6)).isUtf16);
    EXPECT_TRUE(inspected(std::string("\xFE\xFF\0<", 4)).isUtf16);
    EXPECT_FALSE(inspected("").isUtf16);
}

TEST(PageFindingsTest, AFileMayBeUnwritableOrMissing) {
    FakeFileSystem files;
    files.addFile("/web/a.htm", "<frameset>.");
    FileResult<PageFindings> page = inspectPage(files, "/web/a.htm", kOptions);
    ASSERT_TRUE(page.isOk());
    EXPECT_TRUE(page.value().isWritable && page.value().hasFrameSet);
    files.setWritable("/web", false);
    page = inspectPage(files, "/web/a.htm", kOptions);
    EXPECT_FALSE(page.value().isWritable);
    page = inspectPage(files, "/web/none.htm", kOptions);
    ASSERT_FALSE(page.isOk());
    EXPECT_EQ(page.error().code, FileError::Code::NotFound);
}

}  // namespace
}  // namespace zev::test
