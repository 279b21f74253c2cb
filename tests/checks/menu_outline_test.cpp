// SPDX-License-Identifier: MIT
#include "checks/menu_outline.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "script/script_reader.h"

namespace zev {
namespace {

std::string outlineOf(const std::string& definition, std::string (*outline)(const MenuContent&)) {
    MenuContent content;
    EXPECT_EQ(ReadScript(definition, content).errorCount, 0U);
    return outline(content);
}

TEST(MenuOutline, IndentsByLevelAndGoesBackUpSeveralAtOnce) {
    EXPECT_EQ(outlineOf("zevmenu = new ZEVMenu('0');\n"
                        "zevmenu.AddItem('A', 'a.html', '');\n"
                        "zevmenu.AddItem('B', '', '');\n"
                        "zevmenu = new ZEVMenu('1');\n"
                        "zevmenu.AddItem('A1', '', '');\n"
                        "zevmenu.AddItem('A2', '', '');\n"
                        "zevmenu = new ZEVMenu('1i2');\n"
                        "zevmenu.AddItem('A2a', '', '');\n"
                        "zevmenu.AddItem('A2b', '', '');\n",
                        menuOutline),
              "A\ta.html\n  A1\t\n  A2\t\n    A2a\t\n    A2b\t\nB\t\n");
}

TEST(MenuOutline, ShowsCaptionsAsAReaderSeesThem) {
    EXPECT_EQ(
        outlineOf("zevmenu = new ZEVMenu('0');\n"
                  "zevmenu.AddItem('<b>Bob\\'s</b> &amp; Co', 'javascript:go(\\'x\\')', '');\n"
                  "zevmenu.AddRollover('', 'img/a.png', 'img/b.png', '');\n",
                  menuOutline),
        "Bob's & Co\tjavascript:go('x')\nimg/a.png\t\n");
}

TEST(MenuOutline, OfAnEmptyMenuIsEmpty) {
    EXPECT_EQ(menuOutline(MenuContent()), "");
    EXPECT_EQ(menuOutlineJson(MenuContent()), "[]\n");
}

TEST(MenuOutlineJson, ClosesEveryLevelOfADeepMenu) {
    std::string definition = "zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('x', '', '');\n";
    std::string id = "1";
    for (int level = 1; level < 2000; ++level, id += "i1")
        definition += "zevmenu = new ZEVMenu('" + id + "');\nzevmenu.AddItem('x', '', '');\n";
    const std::string json = outlineOf(definition, menuOutlineJson);
    EXPECT_EQ(std::count(json.begin(), json.end(), '{'), 2000);
    EXPECT_EQ(std::count(json.begin(), json.end(), '}'), 2000);
    EXPECT_EQ(std::count(json.begin(), json.end(), ']'), 2001);
}

}  // namespace
}  // namespace zev
