// SPDX-License-Identifier: MIT
#include "checks/menu_links.h"

#include <gtest/gtest.h>

#include "script/script_reader.h"

namespace zev {
namespace {

MenuContent menuOf(const std::string& lines) {
    MenuContent content;
    EXPECT_EQ(ReadScript("zevmenu = new ZEVMenu('0');\n" + lines, content).errorCount, 0U);
    return content;
}

/// The list's only item.
std::string itemOf(const std::string& lines, const std::string& base = "") {
    const std::string list = noScriptLinks(menuOf(lines), base);
    const std::string start = "<noscript><nav aria-label=\"Site menu\"><ul><li>";
    const std::string end = "</li></ul></nav></noscript>";
    EXPECT_TRUE(list.starts_with(start) && list.ends_with(end)) << list;
    return list.substr(start.size(), list.size() - start.size() - end.size());
}

TEST(MenuLinksTest, CaptionsAreTextInASCII) {
    struct Case {
        const char* caption;
        const char* text;
    };
    const Case cases[] = {
        {"Home", "Home"},
        {"<b>Bob\\'s</b> &amp; <i>Co</i>", "Bob's &amp; Co"},
        {"a &lt;b&gt; \"c\"", "a &lt;b&gt; &quot;c&quot;"},
        {"\xC3\x84pfel \xE2\x82\xAC \xF0\x9F\x9A\xA2", "&#196;pfel &#8364; &#128674;"},
        {"Our<br>boats", "Our boats"},
        {"<img src=\"a.gif\" alt=\"Home page\">", "Home page"},
        {"<img src=\"a.gif\"> Sea", "Sea"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(itemOf("zevmenu.AddItem('" + std::string(c.caption) + "', '', '');\n"), c.text)
            << c.caption;
}

TEST(MenuLinksTest, ItemsWithoutWordsAreNamedByTheirFiles) {
    struct Case {
        const char* line;
        const char* text;
    };
    const Case cases[] = {
        {"AddRollover('pages/our_team.html', 'x.gif', 'y.gif', '')", "our team"},
        {"AddRollover('', 'img/sea-boats_out.gif', 'y.gif', '')", "sea boats"},
        {"AddRollover('javascript:go()', 'img/Boats%20normal.png', 'y.gif', '')", "Boats"},
        {"AddRollover('a.html#The_end', 'x.gif', 'y.gif', '')", "The end"},
        {"AddItem('<img src=\"a.gif\">', 'shop/?a=b', '')", "shop"},
    };
    for (const Case& c : cases) {
        const std::string item = itemOf("zevmenu." + std::string(c.line) + ";\n");
        EXPECT_TRUE(item == c.text || item.ends_with(">" + std::string(c.text) + "</a>")) << item;
    }
}

TEST(MenuLinksTest, ScriptsAndMissingLinksAreText) {
    for (const char* const url :
         {"", " ", "javascript:go()", " JavaScript:go(\\'x\\')", "java\tscript:x"})
        EXPECT_EQ(itemOf("zevmenu.AddItem('A', '" + std::string(url) + "', '');\n"), "A");
}

TEST(MenuLinksTest, LinksKeepTheirFrames) {
    EXPECT_EQ(itemOf("zevmenu.AddItem('A', 'a.html', 'main');\n"),
              "<a href=\"a.html\" target=\"main\">A</a>");
    MenuContent content = menuOf(
        "zevmenu.AddItem('A', 'a.html', '');\n"
        "zevmenu = new ZEVMenu('1');\n"
        "zevmenu.target = 'below';\n"
        "zevmenu.AddItem('B', 'b.html', '');\n"
        "zevmenu.AddItem('C', 'c.html', '_top');\n");
    content.DefaultProp.Target = "all";
    EXPECT_EQ(noScriptLinks(content, ""),
              "<noscript><nav aria-label=\"Site menu\"><ul><li>"
              "<a href=\"a.html\" target=\"all\">A</a><ul>"
              "<li><a href=\"b.html\" target=\"below\">B</a></li>"
              "<li><a href=\"c.html\" target=\"_top\">C</a></li></ul></li></ul></nav></noscript>");
}

TEST(MenuLinksTest, TheListHasTheMenusName) {
    MenuContent content = menuOf("zevmenu.AddItem('A', '', '');\n");
    content.DefaultProp.label = "Bob\\'s \"\xC3\x84\"";
    EXPECT_TRUE(noScriptLinks(content, "")
                    .starts_with("<noscript><nav aria-label=\"Bob's &quot;&#196;&quot;\"><ul>"));
}

TEST(MenuLinksTest, AnEmptyMenuHasNone) {
    EXPECT_EQ(menuLinkList(MenuContent(), ""), "");
    EXPECT_EQ(noScriptLinks(MenuContent(), ""), "");
    EXPECT_EQ(siteMap(MenuContent(), "http://a.example/"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n</urlset>\n");
}

TEST(MenuLinksTest, ClosesSeveralLevelsAtOnce) {
    EXPECT_EQ(menuLinkList(menuOf("zevmenu.AddItem('A', '', '');\n"
                                  "zevmenu.AddItem('B', '', '');\n"
                                  "zevmenu = new ZEVMenu('1');\n"
                                  "zevmenu.AddItem('A1', '', '');\n"
                                  "zevmenu = new ZEVMenu('1i1');\n"
                                  "zevmenu.AddItem('A1a', '', '');\n"),
                           ""),
              "<ul>\n"
              "  <li>A\n"
              "    <ul>\n"
              "      <li>A1\n"
              "        <ul>\n"
              "          <li>A1a</li>\n"
              "        </ul>\n"
              "      </li>\n"
              "    </ul>\n"
              "  </li>\n"
              "  <li>B</li>\n"
              "</ul>\n");
}

TEST(SiteMapTest, HasEveryWebPageOnceWithoutItsFragment) {
    const std::string map =
        siteMap(menuOf("zevmenu.AddItem('A', 'a.html', '');\n"
                       "zevmenu.AddItem('A', 'a.html#x', '');\n"
                       "zevmenu.AddItem('A', '../b/a.html?a&b', '');\n"
                       "zevmenu.AddItem('A', 'mailto:a@b.example', '');\n"
                       "zevmenu.AddItem('A', '#top', '');\n"
                       "zevmenu.AddItem('A', '', '');\n"
                       "zevmenu.AddItem('A', 'javascript:go()', '');\n"
                       "zevmenu.AddItem('A', 'HTTP://b.example/\xC3\xA4', '');\n"),
                "http://a.example/js/menu.js");
    EXPECT_EQ(map,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\n"
              "  <url><loc>http://a.example/js/a.html</loc></url>\n"
              "  <url><loc>http://a.example/b/a.html?a&amp;b</loc></url>\n"
              "  <url><loc>HTTP://b.example/%C3%A4</loc></url>\n"
              "</urlset>\n");
}

}  // namespace
}  // namespace zev
