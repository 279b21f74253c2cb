// SPDX-License-Identifier: MIT
#include "script/property_lines.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "tests/model/full_prop.h"

namespace zev {
namespace {

using test::FullProp;

constexpr std::string_view kEmptyHtmlLines =
    "zevmenu.htmlAfter = '';\r\n"
    "zevmenu.htmlBefore = '';\r\n"
    "zevmenu.divider = '';\r\n";

/// A set that differs from empty `defaults` in nothing that is written.
MenuProp SilentProp() {
    MenuProp prop;
    prop.HTMLAfter = "&nbsp;&nbsp;";
    prop.HTMLBefore = "&nbsp;&nbsp;";
    prop.Divider = "&nbsp;";
    return prop;
}

TEST(MenuPropGetDefaultText, FactoryDefaultsGiveTenLines) {
    MenuProp prop;
    prop.SetDefault();
    EXPECT_EQ(GetDefaultText(prop),
              "zev_state.columns = 1;\r\n"
              "zev_state.hbgcolor = '#888888';\r\n"
              "zev_state.hftcolor = '#000000';\r\n"
              "zev_state.nbgcolor = '#000000';\r\n"
              "zev_state.nftcolor = '#FFFFFF';\r\n"
              "zev_state.menuoffset = 1;\r\n"
              "zev_state.closedelay = 500;\r\n"
              "zev_state.position = 'right';\r\n"
              "zev_state.fontFamily = 'Arial';\r\n"
              "zev_state.fontSize = '10pt';\r\n");
}

TEST(MenuPropGetDefaultText, EveryLineInItsOrderAndFontsWithoutFontSet) {
    MenuProp prop = FullProp();
    prop.FontSet = false;
    EXPECT_EQ(GetDefaultText(prop),
              "zev_state.columns = 3;\r\n"
              "zev_state.bgimage = 'bg.gif';\r\n"
              "zev_state.hbgcolor = '#111111';\r\n"
              "zev_state.hftcolor = '#222222';\r\n"
              "zev_state.nbgcolor = '#333333';\r\n"
              "zev_state.nftcolor = 'transparent';\r\n"
              "zev_state.hspacing = 4;\r\n"
              "zev_state.menuoffset = 6;\r\n"
              "zev_state.closedelay = 700;\r\n"
              "zev_state.position = 'left';\r\n"
              "zev_state.fontFamily = 'Courier';\r\n"
              "zev_state.fontSize = '12pt';\r\n"
              "zev_state.fontStyle = 'italic';\r\n"
              "zev_state.fontWeight = 'bold';\r\n"
              "zev_state.marker = '<b>+</b>';\r\n"
              "zev_state.fold = 640;\r\n"
              "zev_state.opendelay = 120;\r\n"
              "zev_state.label = 'Shop';\r\n");
}

TEST(MenuPropGetDefaultText, AnEmptySetGivesNoLine) {
    EXPECT_EQ(GetDefaultText(MenuProp()), "");
}

TEST(MenuPropGetText, EveryLineInItsOrder) {
    EXPECT_EQ(GetText(FullProp(), MenuProp()),
              "zevmenu.columns = 3;\r\n"
              "zevmenu.bgimage = 'bg.gif';\r\n"
              "zevmenu.hbgcolor = '#111111';\r\n"
              "zevmenu.hftcolor = '#222222';\r\n"
              "zevmenu.nbgcolor = '#333333';\r\n"
              "zevmenu.nftcolor = 'transparent';\r\n"
              "zevmenu.hspacing = 4;\r\n"
              "zevmenu.position = 'left';\r\n"
              "zevmenu.ffade = '2';\r\n"
              "zevmenu.fopacity = '80';\r\n"
              "zevmenu.fshadow = '#444444';\r\n"
              "zevmenu.fontFamily = 'Courier';\r\n"
              "zevmenu.fontSize = '12pt';\r\n"
              "zevmenu.fontStyle = 'italic';\r\n"
              "zevmenu.fontWeight = 'bold';\r\n"
              "zevmenu.htmlAfter = 'after';\r\n"
              "zevmenu.htmlBefore = 'before';\r\n"
              "zevmenu.itemborder = '1px solid';\r\n"
              "zevmenu.menuborder = '2px solid';\r\n"
              "zevmenu.target = 'main';\r\n"
              "zevmenu.cellpadding = 5;\r\n"
              "zevmenu.divider = '|';\r\n");
}

TEST(MenuPropGetText, ASetEqualToTheDefaultsGivesOnlyWhatIsNotInherited) {
    EXPECT_EQ(GetText(FullProp(), FullProp()),
              "zevmenu.columns = 3;\r\n"
              "zevmenu.ffade = '2';\r\n"
              "zevmenu.fopacity = '80';\r\n"
              "zevmenu.fshadow = '#444444';\r\n"
              "zevmenu.htmlAfter = 'after';\r\n"
              "zevmenu.htmlBefore = 'before';\r\n"
              "zevmenu.itemborder = '1px solid';\r\n"
              "zevmenu.menuborder = '2px solid';\r\n"
              "zevmenu.target = 'main';\r\n"
              "zevmenu.cellpadding = 5;\r\n"
              "zevmenu.divider = '|';\r\n");
}

TEST(MenuPropGetText, EmptyMembersAndTheDefaultPositionGiveTheThreeEmptyHtmlLines) {
    MenuProp defaults;
    defaults.SetDefault();
    MenuProp prop;
    prop.Position = defaults.Position;
    EXPECT_EQ(GetText(prop, defaults), kEmptyHtmlLines);
}

TEST(MenuPropGetText, TheUsualHtmlIsNotWrittenWhateverTheDefaultsHold) {
    MenuProp defaults;
    defaults.HTMLAfter = "x";
    defaults.HTMLBefore = "y";
    defaults.Divider = "z";
    EXPECT_EQ(GetText(SilentProp(), defaults), "");
}

TEST(MenuPropGetText, ComparisonWithTheDefaultsIsCaseSensitive) {
    MenuProp defaults;
    defaults.HBgColor = "#ffffff";
    MenuProp prop = SilentProp();
    prop.HBgColor = "#FFFFFF";
    EXPECT_EQ(GetText(prop, defaults), "zevmenu.hbgcolor = '#FFFFFF';\r\n");
}

TEST(MenuPropGetText, WithoutFontSetNoFontLineIsWritten) {
    MenuProp prop = SilentProp();
    prop.FontFamily = "Courier";
    prop.FontSize = "12";
    prop.FontStyle = true;
    prop.FontWeight = true;
    EXPECT_EQ(GetText(prop, MenuProp()), "");
}

TEST(MenuPropGetText, WithFontSetAFontStyleOffAgainstADefaultThatIsOnIsWrittenAsNone) {
    MenuProp defaults;
    defaults.FontStyle = true;
    defaults.FontWeight = true;
    MenuProp prop = SilentProp();
    prop.FontSet = true;
    EXPECT_EQ(GetText(prop, defaults),
              "zevmenu.fontStyle = 'none';\r\n"
              "zevmenu.fontWeight = 'none';\r\n");
}

TEST(MenuPropGetText, WithFontSetFontsEqualToTheDefaultsOrEmptyAreLeftOut) {
    MenuProp defaults;
    defaults.SetDefault();
    MenuProp prop = SilentProp();
    prop.Position = defaults.Position;
    prop.FontSet = true;
    EXPECT_EQ(GetText(prop, defaults), "");
    prop.FontFamily = "Arial";
    prop.FontSize = "10";
    EXPECT_EQ(GetText(prop, defaults), "");
}

TEST(MenuPropGetText, CellPaddingOfOneIsNeverWritten) {
    for (const char* inherited : {"", "1", "7"}) {
        SCOPED_TRACE(inherited);
        MenuProp defaults;
        defaults.CellPadding = inherited;
        MenuProp prop = SilentProp();
        prop.CellPadding = "1";
        EXPECT_EQ(GetText(prop, defaults), "");
        prop.CellPadding = "2";
        EXPECT_EQ(GetText(prop, defaults), "zevmenu.cellpadding = 2;\r\n");
    }
}

TEST(MenuPropGetText, OffsetAndDelayAreNeverWritten) {
    MenuProp prop = SilentProp();
    prop.MenuOffset = "9";
    prop.CloseDelay = "900";
    EXPECT_EQ(GetText(prop, MenuProp()), "");
}

TEST(MenuPropGetText, WhatOnlyTheDefaultsHaveIsNeverWritten) {
    MenuProp prop = SilentProp();
    prop.marker = "none";
    prop.fold = "640";
    prop.openDelay = "0";
    prop.label = "Shop";
    EXPECT_EQ(GetText(prop, MenuProp()), "");
}

TEST(MenuPropPosition, EachNumberHasItsWordInBothTextsAndBack) {
    struct {
        std::int16_t position;
        std::string_view word;
    } const kCases[] = {{1, "right"}, {2, "bottom"}, {3, "left"}, {4, "top"}};
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.word);
        MenuProp prop = SilentProp();
        prop.Position = c.position;
        const std::string rest = "position = '" + std::string(c.word) + "';\r\n";
        EXPECT_EQ(GetText(prop, MenuProp()), "zevmenu." + rest);
        EXPECT_EQ(GetDefaultText(prop), "zev_state." + rest);
        MenuProp readBack;
        SetProperty(readBack, "position", c.word);
        EXPECT_EQ(readBack.Position, c.position);
    }
}

TEST(MenuPropPosition, ANumberWithoutAWordIsNotWritten) {
    for (const std::int16_t position :
         std::initializer_list<std::int16_t>{-32768, -1, 0, 5, 32767}) {
        SCOPED_TRACE(position);
        MenuProp defaults;
        defaults.Position = 1;
        MenuProp prop = SilentProp();
        prop.Position = position;
        EXPECT_EQ(GetText(prop, defaults), "");
        EXPECT_EQ(GetDefaultText(prop), "");
    }
}

TEST(MenuPropPosition, AnUnknownWordGivesZero) {
    for (const char* word : {"Top", "", "TOP", "bottomx", "1"}) {
        SCOPED_TRACE(word);
        MenuProp prop;
        prop.Position = 2;
        SetProperty(prop, "position", word);
        EXPECT_EQ(prop.Position, 0);
    }
}

TEST(MenuPropSetProperty, EachTextNameSetsItsMemberAndNothingElse) {
    struct {
        std::string_view name;
        std::string MenuProp::*member;
    } const kCases[] = {
        {"bgimage", &MenuProp::BgImg},
        {"columns", &MenuProp::Columns},
        {"cellpadding", &MenuProp::CellPadding},
        {"divider", &MenuProp::Divider},
        {"hbgcolor", &MenuProp::HBgColor},
        {"hftcolor", &MenuProp::HFtColor},
        {"htmlAfter", &MenuProp::HTMLAfter},
        {"htmlBefore", &MenuProp::HTMLBefore},
        {"itemborder", &MenuProp::ItemBorder},
        {"menuborder", &MenuProp::MenuBorder},
        {"nbgcolor", &MenuProp::NBgColor},
        {"nftcolor", &MenuProp::NFtColor},
        {"hspacing", &MenuProp::Spacing},
        {"target", &MenuProp::Target},
        {"ffade", &MenuProp::FilterFade},
        {"fopacity", &MenuProp::FilterOpacity},
        {"fshadow", &MenuProp::FilterShadow},
        {"marker", &MenuProp::marker},
        {"fold", &MenuProp::fold},
        {"opendelay", &MenuProp::openDelay},
        {"label", &MenuProp::label},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        MenuProp prop;
        SetProperty(prop, c.name, "  a value  ");
        MenuProp expected;
        expected.*c.member = "a value";
        EXPECT_EQ(prop, expected);
    }
}

TEST(MenuPropSetProperty, FontNamesAlsoSetFontSet) {
    struct {
        std::string_view name;
        std::string_view value;
        std::function<void(MenuProp&)> effect;
    } const kCases[] = {
        {"fontFamily", " Arial ", [](MenuProp& prop) { prop.FontFamily = "Arial"; }},
        {"fontSize", " 12pt ", [](MenuProp& prop) { prop.FontSize = "12"; }},
        {"fontSize", "pt1pt2", [](MenuProp& prop) { prop.FontSize = "12"; }},
        {"fontSize", "12PT", [](MenuProp& prop) { prop.FontSize = "12PT"; }},
        {"fontStyle", "italic", [](MenuProp& prop) { prop.FontStyle = true; }},
        {"fontStyle", "none", [](MenuProp&) {}},
        {"fontStyle", "Italic", [](MenuProp&) {}},
        {"fontWeight", "bold", [](MenuProp& prop) { prop.FontWeight = true; }},
        {"fontWeight", "none", [](MenuProp&) {}},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(std::string(c.name) + " = " + std::string(c.value));
        MenuProp prop;
        SetProperty(prop, c.name, c.value);
        MenuProp expected;
        expected.FontSet = true;
        c.effect(expected);
        EXPECT_EQ(prop, expected);
    }
}

TEST(MenuPropSetProperty, AStyleOfNoneSwitchesTheStyleOff) {
    MenuProp prop;
    prop.FontStyle = true;
    prop.FontWeight = true;
    SetProperty(prop, "fontStyle", "none");
    SetProperty(prop, "fontWeight", "none");
    EXPECT_FALSE(prop.FontStyle);
    EXPECT_FALSE(prop.FontWeight);
    EXPECT_TRUE(prop.FontSet);
}

TEST(MenuPropSetProperty, UnknownNamesChangeNothing) {
    for (const char* name : {"Columns", "COLUMNS", "columns ", "", "menuoffset", "closedelay",
                             "htmlafter", "fontsize", "AddItem('a"}) {
        SCOPED_TRACE(name);
        MenuProp prop = FullProp();
        SetProperty(prop, name, "3");
        EXPECT_EQ(prop, FullProp());
    }
}

TEST(MenuPropSetProperty, OnlySpacesAreTrimmedAndQuotesStay) {
    MenuProp prop;
    SetProperty(prop, "divider", " \t'x' ");
    EXPECT_EQ(prop.Divider, "\t'x'");
}

}  // namespace
}  // namespace zev
