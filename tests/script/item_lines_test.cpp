// SPDX-License-Identifier: MIT
#include "script/item_lines.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

TEST(ItemPropGetText, AFreshItemIsATextItemWithThreeEmptyArguments) {
    EXPECT_EQ(GetText(ItemProp()), "zevmenu.AddItem('', '', '');");
}

TEST(ItemPropGetText, ATextItemWritesCaptionLinkAndTarget) {
    ItemProp item;
    item.Caption = "<b>It\\'s</b> \"x\"";
    item.URL = "a.html?b=1;c=2";
    item.Target = "_top";
    item.ImageOut = "out.gif";
    item.ImageOver = "over.gif";
    EXPECT_EQ(GetText(item), "zevmenu.AddItem('<b>It\\'s</b> \"x\"', 'a.html?b=1;c=2', '_top');");
}

TEST(ItemPropGetText, ARolloverItemWritesLinkImagesAndTarget) {
    ItemProp item;
    item.IsRollover = true;
    item.Caption = "not written";
    item.URL = "a.html";
    item.ImageOut = "out.gif";
    item.ImageOver = "over.gif";
    item.Target = "main";
    EXPECT_EQ(GetText(item), "zevmenu.AddRollover('a.html', 'out.gif', 'over.gif', 'main');");
}

TEST(ItemPropSetItemProperty, LoadsCaptionLinkAndTargetAndWritesTheLineBack) {
    const std::string line = "zevmenu.AddItem('It\\'s', 'a.html', '_top');";
    ItemProp item;
    item.IsRollover = true;
    Set_ItemProperty(item, line);
    EXPECT_EQ(item.Caption, "It\\'s");
    EXPECT_EQ(item.URL, "a.html");
    EXPECT_EQ(item.Target, "_top");
    EXPECT_FALSE(item.IsRollover);
    EXPECT_EQ(GetText(item), line);
}

TEST(ItemPropSetItemProperty, TurnsEscapedApostrophesBackInEveryArgument) {
    ItemProp item;
    Set_ItemProperty(item, "zevmenu.AddItem('\\'a\\'\\'', 'javascript:f(\\'x\\')', '\\'');");
    EXPECT_EQ(item.Caption, "\\'a\\'\\'");
    EXPECT_EQ(item.URL, "javascript:f(\\'x\\')");
    EXPECT_EQ(item.Target, "\\'");
}

TEST(ItemPropSetItemProperty, ALiteralPlaceholderBecomesAnEscapedApostrophe) {
    ItemProp item;
    Set_ItemProperty(item, "zevmenu.AddItem('a~||~b', '~||\\'', '~|~');");
    EXPECT_EQ(item.Caption, "a\\'b");
    // The escaped apostrophe's own placeholder is cut where the two run into each other.
    EXPECT_EQ(item.URL, "\\'||~");
    EXPECT_EQ(item.Target, "~|~");
}

TEST(ItemPropSetItemProperty, AMissingArgumentLeavesItsMemberAsItWas) {
    ItemProp item;
    item.Caption = "old caption";
    item.URL = "old.html";
    item.Target = "old";
    Set_ItemProperty(item, "zevmenu.AddItem('Only');");
    EXPECT_EQ(item.Caption, "Only");
    EXPECT_EQ(item.URL, "old.html");
    EXPECT_EQ(item.Target, "old");

    Set_ItemProperty(item, "zevmenu.AddItem();");
    EXPECT_EQ(item.Caption, "Only");
    Set_ItemProperty(item, "");
    EXPECT_EQ(item.Caption, "Only");
}

TEST(ItemPropSetItemProperty, AnArgumentWithoutItsClosingQuoteRunsToTheEnd) {
    ItemProp item;
    Set_ItemProperty(item, "zevmenu.AddItem('Home', 'a.html);");
    EXPECT_EQ(item.Caption, "Home");
    EXPECT_EQ(item.URL, "a.html);");
    EXPECT_EQ(item.Target, "");
}

TEST(ItemPropSetItemProperty, AnEmptyLastPieceIsStillAPiece) {
    ItemProp item;
    item.Target = "old";
    Set_ItemProperty(item, "zevmenu.AddItem('a', 'b', '");
    EXPECT_EQ(item.Target, "");
}

TEST(ItemPropSetItemProperty, AnUnescapedApostropheShiftsTheArguments) {
    ItemProp item;
    Set_ItemProperty(item, "zevmenu.AddItem('It's', 'a.html', '_top');");
    EXPECT_EQ(item.Caption, "It");
    EXPECT_EQ(item.URL, ", ");
    EXPECT_EQ(item.Target, ", ");
}

TEST(ItemPropSetItemProperty, TheImagesAndTheSubmenuKeepTheirValues) {
    ItemProp item;
    item.ImageOut = "out.gif";
    item.ImageOver = "over.gif";
    item.MenuProperty.edit().Columns = "3";
    Set_ItemProperty(item, "zevmenu.AddItem('a', 'b', 'c');");
    EXPECT_EQ(item.ImageOut, "out.gif");
    EXPECT_EQ(item.ImageOver, "over.gif");
    EXPECT_EQ(item.MenuProperty->Columns, "3");
}

TEST(ItemPropSetImageProperty, LoadsLinkImagesAndTarget) {
    const std::string line = "zevmenu.AddRollover('x.html', 'o\\'.gif', 'v\\'.gif', 't\\'');";
    ItemProp item;
    Set_ImageProperty(item, line);
    EXPECT_TRUE(item.IsRollover);
    EXPECT_EQ(item.URL, "x.html");
    EXPECT_EQ(item.ImageOut, "o\\'.gif");
    EXPECT_EQ(item.ImageOver, "v\\'.gif");
    EXPECT_EQ(item.Target, "t\\'");
    EXPECT_EQ(GetText(item), line);
}

TEST(ItemPropSetImageProperty, TheLinkKeepsThePlaceholderOfAnEscapedApostrophe) {
    ItemProp item;
    Set_ImageProperty(item, "zevmenu.AddRollover('x\\'y.html', 'o.gif', 'v.gif', '');");
    EXPECT_EQ(item.URL, "x~||~y.html");
    EXPECT_EQ(item.ImageOut, "o.gif");
    EXPECT_EQ(item.ImageOver, "v.gif");
    EXPECT_EQ(item.Target, "");
}

TEST(ItemPropSetImageProperty, TheCaptionKeepsItsValue) {
    ItemProp item;
    item.Caption = "kept";
    Set_ImageProperty(item, "zevmenu.AddRollover('x', 'o', 'v', '');");
    EXPECT_EQ(item.Caption, "kept");
}

TEST(ItemPropSetImageProperty, AMissingArgumentLeavesItsMemberAsItWas) {
    ItemProp item;
    item.URL = "old.html";
    item.ImageOut = "old_out.gif";
    item.ImageOver = "old_over.gif";
    item.Target = "old";
    Set_ImageProperty(item, "zevmenu.AddRollover('x.html', 'o.gif');");
    EXPECT_EQ(item.URL, "x.html");
    EXPECT_EQ(item.ImageOut, "o.gif");
    EXPECT_EQ(item.ImageOver, "old_over.gif");
    EXPECT_EQ(item.Target, "old");
}

}  // namespace
}  // namespace zev
