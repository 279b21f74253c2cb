// SPDX-License-Identifier: MIT
#include "html/caption_text.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

TEST(CaptionText, TagsAndCommentsGoAndReferencesAreResolved) {
    EXPECT_EQ(captionText("About us"), "About us");
    EXPECT_EQ(captionText("<b>About</b> <i title='a>b'>us</i><!-- <b> -->"), "About us");
    EXPECT_EQ(captionText("Caf&eacute; &amp; &lt;Bar&gt; &#8364;&#x2014;&apos;"),
              "Caf\u00e9 & <Bar> \u20ac\u2014'");
    EXPECT_EQ(captionText("<img src=\"a.gif\">"), "");
    EXPECT_EQ(captionText("a <b"), "a");
}

TEST(CaptionText, WhatIsNoTagAndNoReferenceStays) {
    EXPECT_EQ(captionText("1 < 2 & 3 > 2"), "1 < 2 & 3 > 2");
    EXPECT_EQ(captionText("&nosuch; &#0; &#xD800; &#1114112; &;"),
              "&nosuch; &#0; &#xD800; &#1114112; &;");
    EXPECT_EQ(captionText("R&D;"), "R&D;");
}

TEST(CaptionText, WhiteSpaceIsOneBlankAndNoneAtTheEnds) {
    EXPECT_EQ(captionText("&nbsp; a\t\n b\u00a0c &nbsp;"), "a b c");
}

TEST(CaptionText, ANameHasAtMostFortyCharacters) {
    EXPECT_EQ(captionName("<br>"), "an item");
    const std::string forty(40, 'x');
    EXPECT_EQ(captionName(forty), forty);
    EXPECT_EQ(captionName(forty + "y"), forty.substr(0, 39) + "\u2026");
    std::string umlauts;
    for (int i = 0; i < 41; ++i)
        umlauts += "\u00e4";
    EXPECT_EQ(captionName(umlauts), umlauts.substr(0, 78) + "\u2026");
}

}  // namespace
}  // namespace zev
