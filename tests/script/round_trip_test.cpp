// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "script/script_reader.h"
#include "script/script_writer.h"
#include "tests/script/document_text.h"

namespace zev {
namespace {

std::string Written(const MenuContent& document) {
    return definitionFileBytes(GenerateScript(document));
}

/// Writes, reads, writes and reads again: the bytes must be identical and the two documents read
/// equal. Captions, links and images must be those of `original`.
void ExpectRoundTrip(const MenuContent& original) {
    const std::string bytes = Written(original);
    MenuContent first;
    EXPECT_EQ(ReadScript(bytes, first).errorCount, 0u);
    EXPECT_EQ(test::ItemLines(first.tree), test::ItemLines(original.tree));

    EXPECT_EQ(Written(first), bytes);
    MenuContent second;
    EXPECT_EQ(ReadScript(Written(first), second).errorCount, 0u);
    EXPECT_EQ(test::DocumentText(second), test::DocumentText(first));
}

/// Makes the same random menus in every run and on every machine.
class MenuMaker {
  public:
    explicit MenuMaker(std::uint32_t seed) : m_random(seed) {}

    void fill(MenuContent& document, std::size_t itemCount) {
        fillDefaults(document.DefaultProp);
        document.RootMenuProp = levelProp();
        // Both are restored to a new document's values when their lines are missing.
        document.RootMenuProp.Columns = oneOf({"1", "3", "12"});
        document.RootMenuProp.Position = oneOf<std::int16_t>({2, 3, 4});
        std::vector<MenuNode*> nodes = {nullptr};
        for (std::size_t i = 0; i < itemCount; ++i) {
            MenuNode* const parent = nodes[below(nodes.size())];
            ItemProp item = anItem();
            std::string text = item.IsRollover ? item.ImageOut : item.Caption;
            nodes.push_back(document.tree.append(parent, "Key " + std::to_string(i),
                                                 std::move(text), std::move(item)));
        }
    }

  private:
    std::size_t below(std::size_t count) { return m_random() % count; }
    bool chance(std::size_t oneIn) { return below(oneIn) == 0; }

    template <typename Value = std::string>
    Value oneOf(std::initializer_list<Value> values) {
        return *(values.begin() + below(values.size()));
    }

    /// Text in script form: apostrophes are escaped, no backslash stands before the closing quote,
    /// and no tilde can become part of the reader's placeholder.
    std::string aText() {
        static constexpr std::string_view kPieces[] = {"Home",
                                                       "It\\'s",
                                                       "\\'",
                                                       "caf\xC3\xA9",
                                                       "\xE2\x82\xAC",
                                                       "\xF0\x9F\x98\x80",
                                                       "<b>",
                                                       "</b>",
                                                       "<img src=\"a.gif\">",
                                                       "&amp;",
                                                       "=",
                                                       ";",
                                                       "a=b;",
                                                       ",",
                                                       ", ",
                                                       "(",
                                                       ");",
                                                       "\\');",
                                                       "zevmenu.columns = 3;",
                                                       "zev_state.columns = 3;",
                                                       "ZEVMenu(\\'9\\')",
                                                       "\"",
                                                       "||",
                                                       ".",
                                                       "/",
                                                       "..",
                                                       "?q=1",
                                                       "\\n",
                                                       "\t",
                                                       "x"};
        std::string text;
        for (std::size_t count = below(5); count > 0; --count)
            text += kPieces[below(std::size(kPieces))];
        return text;
    }

    ItemProp anItem() {
        ItemProp item;
        item.IsRollover = chance(4);
        if (item.IsRollover) {
            item.URL = oneOf({"", "page.html", "javascript:f(1)"});
            item.ImageOut = aText();
            item.ImageOver = aText();
        } else {
            item.Caption = aText();
            item.URL = aText();
        }
        item.Target = aText();
        item.MenuProperty = levelProp();
        return item;
    }

    /// Values of a property line lose the spaces at their ends, so these have none.
    std::string aValue() { return chance(2) ? "" : "<" + aText() + ">"; }

    MenuProp levelProp() {
        MenuProp prop = *newItemMenuProp();
        prop.Columns = oneOf({"", "1", "5"});
        prop.BgImg = aValue();
        prop.HBgColor = oneOf({"", "#ABCDEF", "transparent"});
        prop.NFtColor = oneOf({"", "#FEDCBA"});
        prop.Spacing = oneOf({"", "2"});
        prop.Position = oneOf<std::int16_t>({0, 2, 3, 4});
        prop.FilterFade = oneOf({"", "1"});
        prop.FilterOpacity = oneOf({"", "50"});
        prop.FilterShadow = oneOf({"", "#000000"});
        prop.FontSet = chance(2);
        prop.FontFamily = aValue();
        prop.FontSize = oneOf({"", "14"});
        prop.FontStyle = chance(2);
        prop.FontWeight = chance(2);
        if (chance(3))
            prop.HTMLAfter = aValue();
        if (chance(3))
            prop.HTMLBefore = aValue();
        if (chance(3))
            prop.Divider = aValue();
        prop.ItemBorder = aValue();
        prop.MenuBorder = aValue();
        prop.Target = aValue();
        prop.CellPadding = oneOf({"", "3"});
        return prop;
    }

    /// Defaults that the factory fills are never empty here: their missing line would bring the
    /// factory's value back. Styles stay off: a level that shares one loses it.
    void fillDefaults(MenuProp& prop) {
        prop.Columns = oneOf({"1", "7"});
        prop.BgImg = aValue();
        prop.HBgColor = oneOf({"#888888", "#010101"});
        prop.Spacing = oneOf({"", "6"});
        prop.Position = 1;
    }

    std::mt19937 m_random;
};

TEST(RoundTrip, AnEmptyDocument) {
    ExpectRoundTrip(MenuContent());
}

TEST(RoundTrip, RandomMenusComeBackWhole) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        MenuContent document;
        MenuMaker(seed).fill(document, seed % 40 + 1);
        ExpectRoundTrip(document);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(RoundTrip, ALargeRandomMenuComesBackWhole) {
    MenuContent document;
    MenuMaker(2026).fill(document, 5000);
    ExpectRoundTrip(document);
}

// What does not survive being written and read again, one test each.

class LossTest : public testing::Test {
  protected:
    void SetUp() override {
        item().Caption = "A";
        item().MenuProperty = newItemMenuProp();
    }
    ItemProp& item() { return node->item; }
    MenuContent& readBack() {
        EXPECT_EQ(ReadScript(Written(original), copy).errorCount, 0u);
        return copy;
    }

    MenuContent original;
    MenuContent copy;
    MenuNode* const node = original.tree.append(nullptr, "Key 0", "A");
};

TEST_F(LossTest, OffsetAndDelayComeBackAsTheFactoryDefaults) {
    original.DefaultProp.MenuOffset = "9";
    original.DefaultProp.CloseDelay = "900";
    const std::string bytes = Written(original);
    EXPECT_NE(bytes.find("zev_state.menuoffset = 9;\r\nzev_state.closedelay = 900;\r\n"),
              std::string::npos);
    EXPECT_NE(Written(readBack()).find("zev_state.menuoffset = 1;\r\nzev_state.closedelay = 500;"),
              std::string::npos);
}

TEST_F(LossTest, ARootMenuWithoutColumnsComesBackWithTen) {
    original.RootMenuProp.Columns = "";
    EXPECT_EQ(readBack().RootMenuProp.Columns, "10");
}

TEST_F(LossTest, ARootPositionEqualToTheDefaultComesBackAsBottom) {
    original.RootMenuProp.Position = original.DefaultProp.Position;
    EXPECT_EQ(readBack().RootMenuProp.Position, 2);
}

TEST_F(LossTest, AnEmptyDefaultComesBackAsTheFactorysValue) {
    original.DefaultProp.HBgColor = "";
    EXPECT_EQ(readBack().DefaultProp.HBgColor, "#888888");
}

TEST_F(LossTest, AStyleThatALevelWithFontsSharesWithTheDefaultsComesBackAsOff) {
    original.DefaultProp.FontStyle = true;
    original.RootMenuProp.FontSet = true;
    original.RootMenuProp.FontFamily = "Courier";
    original.RootMenuProp.FontStyle = true;
    EXPECT_EQ(Written(original).find("zevmenu.fontStyle"), std::string::npos);
    EXPECT_FALSE(readBack().RootMenuProp.FontStyle);
    EXPECT_NE(Written(copy).find("zevmenu.fontStyle = 'none';"), std::string::npos);
}

TEST_F(LossTest, AnApostropheInTheLinkOfARolloverItemComesBackAsItsPlaceholderAndStaysSo) {
    item().IsRollover = true;
    item().URL = "x\\'y.html";
    EXPECT_EQ(readBack().tree.firstNode()->item.URL, "x~||~y.html");
    MenuContent again;
    ReadScript(Written(copy), again);
    EXPECT_EQ(again.tree.firstNode()->item.URL, "x~||~y.html");
}

TEST_F(LossTest, APlaceholderInACaptionComesBackAsAnApostrophe) {
    item().Caption = "a~||~b";
    EXPECT_EQ(readBack().tree.firstNode()->item.Caption, "a\\'b");
}

TEST_F(LossTest, AnItemWithoutChildrenLosesItsSubmenusProperties) {
    item().MenuProperty.edit().Columns = "3";
    EXPECT_EQ(readBack().tree.firstNode()->item.MenuProperty, newItemMenuProp());
}

TEST_F(LossTest, AnItemLosesWhatItsKindDoesNotWrite) {
    item().ImageOut = "o.gif";
    EXPECT_EQ(readBack().tree.firstNode()->item.ImageOut, "");
}

TEST_F(LossTest, SpacesAtTheEndsOfAPropertyAreTrimmedButNotThoseOfAnItem) {
    original.RootMenuProp.Divider = " | ";
    item().Caption = " A ";
    EXPECT_EQ(readBack().RootMenuProp.Divider, "|");
    EXPECT_EQ(copy.tree.firstNode()->item.Caption, " A ");
}

TEST_F(LossTest, ATreeTextThatDiffersFromTheCaptionComesBackAsTheCaption) {
    node->text = "label";
    EXPECT_EQ(readBack().tree.firstNode()->text, "A");
}

}  // namespace
}  // namespace zev
