// SPDX-License-Identifier: MIT
#include "integrator/searchable_text.h"

#include <gtest/gtest.h>

#include "integrator/page_removal.h"
#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

// "\x1B$B" is followed by characters of two bytes, "\x1B(B" by ASCII.
const std::string kJapanese = "\x1B$B<R</\x1B(B";

/// As the text is searched; bytes with their high bit set as they are, between "{" and "}".
std::string searched(const std::string& page) {
    const SearchableText text(page);
    std::string shown;
    bool isMarked = false;
    for (const char byte : text.bytes()) {
        if ((static_cast<unsigned char>(byte) >= 0x80) != isMarked)
            shown += isMarked ? '}' : '{';
        isMarked = static_cast<unsigned char>(byte) >= 0x80;
        shown += static_cast<char>(byte & 0x7F);
    }
    return isMarked ? shown + '}' : shown;
}

TEST(SearchableTextTest, CharactersBetweenEscapesAreNoMarkup) {
    struct Case {
        const char* what;
        std::string page;
        std::string searched;
    };
    const Case cases[] = {
        {"ISO-2022-JP", "<p>\x1B$B<R\x1B(B</p>", "<p>\x1B$B{<R}\x1B(B</p>"},
        {"its first form", "\x1B$@<R\x1B(J<b>", "\x1B$@{<R}\x1B(J<b>"},
        {"a further set", "\x1B$(D<R\x1B(B<b>", "\x1B$(D{<R}\x1B(B<b>"},
        {"half-width katakana", "\x1B(I<R\x1B(B<b>", "\x1B(I{<R}\x1B(B<b>"},
        {"over a line's end", "\x1B$B<R\n<R\x1B(B", "\x1B$B{<R}\n{<R}\x1B(B"},
        {"to the end of the page", "\x1B$B<R<body>", "\x1B$B{<R<body>}"},
        {"cut off", "<b>\x1B$", "<b>\x1B$"},
        {"ISO-2022-KR", "\x1B$)C<p>\x0E<R\x0F</p>", "\x1B$)C<p>\x0E{<R}\x0F</p>"},
        {"declared", "charset=iso-2022-jp \x1B$B<R\x1B(B", "charset=iso-2022-jp \x1B$B{<R}\x1B(B"},
        {"HZ", "<meta charset='hz-gb-2312'>~{<R~}<b>~~{<b>",
         "<meta charset='hz-gb-2312'>~{{<R}~}<b>~~{<b>"},
        {"HZ to the line's end", "charset=\"HZ-GB-2312\"~{<R\n<b>",
         "charset=\"HZ-GB-2312\"~{{<R}\n<b>"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(searched(c.page), c.searched) << c.what;
}

TEST(SearchableTextTest, OtherPagesAreSearchedAsTheyAre) {
    const std::string pages[] = {
        "",
        "<p>",
        "~{<R~}",
        "hz ~{<R~}",
        "\x1B[31m<b>\x1B",
        "\x0E<b>\x0F",
        "\x1B$B<R\x1B(B \xE4",
        "<meta charset=utf-8>\x1B$B<R\x1B(B",
    };
    for (const std::string& page : pages) {
        const SearchableText text(page);
        EXPECT_EQ(text.bytes(), page);
    }
    const SearchableText once(kJapanese);
    EXPECT_EQ(SearchableText(once.bytes()).bytes(), once.bytes());
}

TEST(SearchableTextTest, WhatIsCutOutGetsItsOwnBytesBack) {
    for (const std::string& page :
         {"<p>" + kJapanese + "</p>", std::string("\x1B(I<R\x1B(B<p>"),
          std::string("charset=hz ~{<R~}"), std::string("\x1B$)C\x0E<R\x0F<p>")}) {
        const SearchableText text(page);
        std::vector<PageEdit> edits = {{0, 0, std::string(text.bytes()) + "\xC3\xA4"}};
        ASSERT_NE(text.bytes(), page);
        text.restore(edits);
        EXPECT_EQ(edits[0].text, page + "\xC3\xA4");
    }
}

TEST(SearchableTextTest, AWordIsNotFoundInACharacter) {
    const std::string page = "<head></head><body><p>\x1B$Babab\x1B(B ab</p></body>.";
    RewriteOptions options{"lib/", true, PlacedMenu{*parsePlace("body-start"), "code"}};
    options.menu->link = LinkedText{"ab", "2", {}};
    EXPECT_NE(rewritten(page, options).page.find("\x1B$Babab\x1B(B <!-- zevmenu link --><a "),
              std::string::npos);
    options.menu->link->text = "\xE1\xE2";
    EXPECT_EQ(rewritten(page, options).status.placeProblem, PlaceProblem::TextNotFound);
}

TEST(SearchableTextTest, ATagWithShiftsComesBackWhole) {
    const std::string title = "<body title='\x0E'>\x0F'";
    const std::string page = "\x1B$)C<head></head>" + title + "></body>.";
    const Rewritten result = rewritten(page);
    EXPECT_NE(result.page.find(title + " onload="), std::string::npos) << result.page;
    EXPECT_EQ(withEdits(result.page, removeIntegration(result.page).edits), page);
}

TEST(SearchableTextTest, AnAddressThatWasTypedStaysAsItIs) {
    const std::string page = "<head></head><body title='" + kJapanese + "'></body>.";
    const Rewritten result = rewritten(page, {"m\xC3\xBC/", true});
    EXPECT_NE(result.page.find("src=\"m\xC3\xBC/zevmenu_loader.js\""), std::string::npos);
    EXPECT_NE(result.page.find("<body title='" + kJapanese + "' onload="), std::string::npos);
    EXPECT_EQ(withEdits(result.page, removeIntegration(result.page).edits), page);
}

}  // namespace
}  // namespace zev::test
