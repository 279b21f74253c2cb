// SPDX-License-Identifier: MIT
#include "integrator/script_name.h"

#include <gtest/gtest.h>

namespace zev::test {
namespace {

TEST(ScriptNameTest, IsTheAddressOrTheFirstLineThatSaysSomething) {
    struct Case {
        std::string src;
        std::string script;
        std::string name;
    };
    const std::string ellipsis = "\xE2\x80\xA6";
    const std::string sixty(60, 'x');
    const Case cases[] = {
        {"js/analytics.js", "ignored()", "js/analytics.js"},
        {" a\n b.js ", "", "a b.js"},
        {"", "startCounting(7);", "startCounting(7);"},
        {"", "\n\tstartCounting(7);  \n\n", "startCounting(7);"},
        {"", "startCounting(7);\nmore();", "startCounting(7);" + ellipsis},
        {"", "\r\n<!-- hide\r\n// old\r\n go( 1,\t2 )\r\n// -->\r\n", "go( 1, 2 )" + ellipsis},
        {"", "<!-- nothing else", "<!-- nothing else"},
        {"", " \n ", "an empty script"},
        {"", sixty, sixty},
        {"", sixty + "x", std::string(59, 'x') + ellipsis},
        {"", sixty + "\nx", std::string(59, 'x') + ellipsis},
        {"men\xC3\xBC.js", "", "men\xC3\xBC.js"},
        {"men\xFC.js", "", "men\xC3\xBC.js"},
        {"", std::string(2000, 'x') + "\xC3\xBC", std::string(59, 'x') + ellipsis},
    };
    for (const Case& c : cases)
        EXPECT_EQ(scriptName(c.src, c.script), c.name) << c.src << " / " << c.script;
}

TEST(ScriptNameTest, IsCutBetweenCharacters) {
    for (const std::string begin : {"", "\xC3\xBC", "x"}) {
        std::string script = begin;
        for (int i = 0; i < 600; ++i)
            script += "\xC3\xBC";
        const std::size_t size = begin == "x" ? 59 * 2 - 1 : 59 * 2;
        EXPECT_EQ(scriptName("", script), script.substr(0, size) + "\xE2\x80\xA6") << begin;
    }
}

}  // namespace
}  // namespace zev::test
