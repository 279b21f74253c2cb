// SPDX-License-Identifier: MIT
#include "script/link_url.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

TEST(LinkURLTest, LinksCountFromTheDefinitionsFolder) {
    struct Case {
        const char* base;
        const char* url;
        const char* resolved;
    };
    const Case cases[] = {
        {"", "a.html", "a.html"},
        {"menu.js", "a.html", "a.html"},
        {"js/menu.js", "a.html", "js/a.html"},
        {"js/menu.js", "../a.html", "a.html"},
        {"../js/menu.js", "../a/b.html?c/../d#e/../f", "../a/b.html?c/../d#e/../f"},
        {"../js/menu.js", "../../a.html", "../../a.html"},
        {"../../menu.js", "./a/./b/../c.html", "../../a/c.html"},
        {"js/menu.js?v=1/2", "a.html", "js/a.html"},
        {"menu.js", "./", "./"},
        {"js/menu.js", "..", "./"},
        {"menu.js", "..", "../"},
        {"menu.js", "./a:b.html", "./a:b.html"},
        {"menu.js", "a//b.html", "a//b.html"},
        {"menu.js", "a\\b.html?c\\d", "a/b.html?c\\d"},
        {"../js/menu.js", "/a.html", "/a.html"},
        {"http://a.example/js/menu.js", "a.html", "http://a.example/js/a.html"},
        {"http://a.example/js/menu.js", "/a.html", "http://a.example/a.html"},
        {"http://a.example/js/", "../../a.html", "http://a.example/a.html"},
        {"http://a.example", "a.html", "http://a.example/a.html"},
        {"http://a.example?x/y", "a.html", "http://a.example/a.html"},
        {"//a.example/js/m.js", "../a.html", "//a.example/a.html"},
        {"/js/menu.js", "../../a.html", "/a.html"},
        {"file:///C:/web/menu.js", "a.html", "file:///C:/web/a.html"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(resolveLink(c.base, c.url), c.resolved) << c.base << " " << c.url;
}

TEST(LinkURLTest, AddressesOfTheirOwnStay) {
    for (const std::string url : {"http://b.example/a/../b", "mailto:a@b.example", "//b.example/x",
                                  "\\\\b.example\\x", "#top", "?a=b", "tel:+1", ""})
        EXPECT_EQ(resolveLink("http://a.example/js/menu.js", url), url);
}

TEST(LinkURLTest, WhatAnAddressCannotHoldIsEncoded) {
    EXPECT_EQ(resolveLink("", " \t\xC3\xA4 b\n\"<c>.html \r"), "%C3%A4%20b%22%3Cc%3E.html");
    EXPECT_EQ(resolveLink("", "http://a.example/\xE2\x82\xAC?'x'"),
              "http://a.example/%E2%82%AC?'x'");
    EXPECT_EQ(resolveLink("", "a%20b%.html"), "a%20b%.html");
}

TEST(LinkURLTest, ScriptsAreKnownHoweverTheyAreSpelled) {
    EXPECT_TRUE(isScriptURL(cleanURL("  javascript:go()")));
    EXPECT_TRUE(isScriptURL(cleanURL("Java\tScript:go()")));
    EXPECT_FALSE(isScriptURL(cleanURL("javascript/a.html")));
    EXPECT_FALSE(isScriptURL(cleanURL("")));
}

}  // namespace
}  // namespace zev
