// SPDX-License-Identifier: MIT
#include "script/script_writer.h"

#include <gtest/gtest.h>

#include <string>

#include "model/tree_editing.h"
#include "tests/script/document_text.h"

namespace zev {
namespace {

using test::Lines;

const std::string kFactoryDefaults = Lines({
    "zev_state.columns = 1;",
    "zev_state.hbgcolor = '#888888';",
    "zev_state.hftcolor = '#000000';",
    "zev_state.nbgcolor = '#000000';",
    "zev_state.nftcolor = '#FFFFFF';",
    "zev_state.menuoffset = 1;",
    "zev_state.closedelay = 500;",
    "zev_state.position = 'right';",
    "zev_state.fontFamily = 'Arial';",
    "zev_state.fontSize = '10pt';",
    "",
});

class GenerateScriptTest : public testing::Test {
  protected:
    MenuNode* add(MenuNode* parent, const std::string& caption) {
        ItemProp item;
        item.Caption = caption;
        item.MenuProperty = newItemMenuProp();
        return document.tree.append(parent, caption, caption, item);
    }
    /// The script behind the default lines.
    std::string menus() {
        const std::string script = GenerateScript(document);
        EXPECT_EQ(script.substr(0, kFactoryDefaults.size()), kFactoryDefaults);
        return script.substr(kFactoryDefaults.size());
    }

    MenuContent document;
};

TEST_F(GenerateScriptTest, AnEmptyTreeWritesTheDefaultLinesAndAnEmptyLine) {
    EXPECT_EQ(GenerateScript(document), kFactoryDefaults);
    EXPECT_EQ(definitionFileBytes(GenerateScript(document)), kFactoryDefaults + "\r\n");
}

TEST_F(GenerateScriptTest, AMenuOfThreeLevelsAtStartingValues) {
    MenuDocument edited("/program");
    const auto setCaption = [&edited](const MenuNode& node, const char* caption) {
        test::editItem(edited, node)->Caption = caption;
    };
    addMenuItem(edited);
    setCaption(*edited.CurNode(), "Home");
    addMenuItem(edited);
    const MenuNode& products = *edited.CurNode();
    setCaption(products, "Products");
    addMenuItem(edited);
    setCaption(*edited.CurNode(), "Contact");
    edited.select(&products);
    addSubmenuItem(edited);
    setCaption(*products.children()[0], "A");
    addSubmenuItem(edited);
    const MenuNode& b = *products.children()[1];
    setCaption(b, "B");
    edited.select(&b);
    addSubmenuItem(edited);
    setCaption(*b.children()[0], "B1");

    EXPECT_EQ(definitionFileBytes(GenerateScript(edited.content())),
              kFactoryDefaults + Lines({
                                     "zevmenu = new ZEVMenu('0');",
                                     "zevmenu.columns = 10;",
                                     "zevmenu.position = 'bottom';",
                                     "",
                                     "zevmenu.AddItem('Home', '', '');",
                                     "zevmenu.AddItem('Products', '', '');",
                                     "zevmenu.AddItem('Contact', '', '');",
                                     "",
                                     "zevmenu = new ZEVMenu('2');",
                                     "zevmenu.position = 'bottom';",
                                     "",
                                     "zevmenu.AddItem('A', '', '');",
                                     "zevmenu.AddItem('B', '', '');",
                                     "",
                                     "zevmenu = new ZEVMenu('2i2');",
                                     "",
                                     "zevmenu.AddItem('B1', '', '');",
                                     "",
                                     "",
                                 }));
}

TEST_F(GenerateScriptTest, AnIdCountsTheSiblingsWithoutSubmenusToo) {
    add(nullptr, "A");
    add(nullptr, "B");
    MenuNode* const c = add(nullptr, "C");
    add(c, "C1");
    EXPECT_NE(menus().find("ZEVMenu('3');"), std::string::npos);
}

TEST_F(GenerateScriptTest, ASubmenuIsFollowedByAllItsDescendantsBeforeTheNextOfItsLevel) {
    MenuNode* const a = add(nullptr, "A");
    MenuNode* const b = add(nullptr, "B");
    MenuNode* const a1 = add(a, "A1");
    MenuNode* const a2 = add(a, "A2");
    add(b, "B1");
    MenuNode* const a11 = add(a1, "A11");
    add(a11, "A111");
    add(a2, "A21");
    std::string ids;
    const std::string script = menus();
    const std::string creation = "new ZEVMenu('";
    for (std::size_t at = script.find(creation); at != std::string::npos;
         at = script.find(creation, at + 1)) {
        const std::size_t id = at + creation.size();
        ids += script.substr(id, script.find('\'', id) - id) + " ";
    }
    EXPECT_EQ(ids, "0 1 1i1 1i1i1 1i2 2 ");
}

TEST_F(GenerateScriptTest, PositionsOfTwoDigitsAreWrittenInFull) {
    MenuNode* last = nullptr;
    for (int i = 1; i <= 12; ++i)
        last = add(nullptr, std::to_string(i));
    MenuNode* child = nullptr;
    for (int i = 1; i <= 10; ++i)
        child = add(last, "12." + std::to_string(i));
    add(child, "deep");
    const std::string script = menus();
    EXPECT_NE(script.find("ZEVMenu('12');"), std::string::npos);
    EXPECT_NE(script.find("ZEVMenu('12i10');"), std::string::npos);
}

TEST_F(GenerateScriptTest, TextAndRolloverItemsAreWrittenInTreeOrderEachByItsTemplate) {
    add(nullptr, "first");
    ItemProp& rollover = add(nullptr, "second")->item;
    rollover.IsRollover = true;
    rollover.URL = "r.html";
    rollover.ImageOut = "o.gif";
    rollover.ImageOver = "v.gif";
    rollover.Target = "_top";
    add(nullptr, "third")->item.URL = "t.html";
    EXPECT_EQ(menus(), Lines({
                           "zevmenu = new ZEVMenu('0');",
                           "zevmenu.columns = 10;",
                           "zevmenu.position = 'bottom';",
                           "",
                           "zevmenu.AddItem('first', '', '');",
                           "zevmenu.AddRollover('r.html', 'o.gif', 'v.gif', '_top');",
                           "zevmenu.AddItem('third', 't.html', '');",
                           "",
                       }));
}

TEST_F(GenerateScriptTest, ASubmenuThatSetsNothingStillHasItsCreationLineAndAnEmptyLine) {
    add(add(nullptr, "A"), "A1");
    const std::string script = menus();
    EXPECT_EQ(script.substr(script.find("zevmenu = new ZEVMenu('1');")),
              Lines({"zevmenu = new ZEVMenu('1');", "", "zevmenu.AddItem('A1', '', '');", ""}));
}

TEST_F(GenerateScriptTest, ASubmenusPropertiesComeFromTheItemItOpensFrom) {
    MenuNode* const a = add(nullptr, "A");
    a->item.MenuProperty.edit().Columns = "3";
    MenuNode* const a1 = add(a, "A1");
    a1->item.MenuProperty.edit().Columns = "4";
    const std::string script = menus();
    EXPECT_NE(script.find(Lines({"zevmenu = new ZEVMenu('1');", "zevmenu.columns = 3;"})),
              std::string::npos);
    EXPECT_EQ(script.find("zevmenu.columns = 4;"), std::string::npos)
        << "an item without children has no submenu";
}

TEST_F(GenerateScriptTest, WritingTwiceGivesTheSameBytes) {
    add(add(nullptr, "A"), "A1");
    EXPECT_EQ(GenerateScript(document), GenerateScript(document));
}

TEST(DefinitionFileBytes, AddsOneLineEndAndNothingElseToAsciiText) {
    EXPECT_EQ(definitionFileBytes(""), "\r\n");
    EXPECT_EQ(definitionFileBytes("abc\x7F\r\n"), "abc\x7F\r\n\r\n");
}

TEST(DefinitionFileBytes, BeginsWithAByteOrderMarkWhenAnythingIsOutsideAscii) {
    EXPECT_EQ(definitionFileBytes("caf\xC3\xA9"),
              "\xEF\xBB\xBF"
              "caf\xC3\xA9\r\n");
}

}  // namespace
}  // namespace zev
