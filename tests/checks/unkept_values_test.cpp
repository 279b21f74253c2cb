// SPDX-License-Identifier: MIT
#include "checks/unkept_values.h"

#include <gtest/gtest.h>

#include "model/menu_content.h"
#include "script/script_reader.h"
#include "script/script_writer.h"

namespace zev {
namespace {

/// "nbgcolor  -> #000000; " and so on; those of the top menu begin with "top ".
std::string textOf(const MenuContent& content) {
    std::string text;
    for (const UnkeptValue& value : findUnkeptValues(content.DefaultProp, content.RootMenuProp))
        text += (value.isDefault ? "" : "top ") + value.field + " " + value.value + " -> " +
                value.opened + "; ";
    return text;
}

TEST(FindUnkeptValues, ANewMenuKeepsAll) {
    EXPECT_EQ(textOf(MenuContent()), "");
}

TEST(FindUnkeptValues, TellsWhatTheNextOpenShowsInstead) {
    struct Case {
        void (*change)(MenuContent&);
        const char* text;
    };
    const Case cases[] = {
        {[](MenuContent& menu) { menu.DefaultProp.NBgColor = ""; }, "nbgcolor  -> #000000; "},
        {[](MenuContent& menu) { menu.DefaultProp.FontFamily = ""; }, "fontFamily  -> Arial; "},
        {[](MenuContent& menu) { menu.DefaultProp.Position = 0; }, "position  -> right; "},
        {[](MenuContent& menu) { menu.RootMenuProp.Position = 1; },
         "top position right -> bottom; "},
        {[](MenuContent& menu) { menu.RootMenuProp.Position = 0; }, "top position  -> bottom; "},
        {[](MenuContent& menu) { menu.RootMenuProp.Columns = ""; }, "top columns  -> 10; "},
        {[](MenuContent& menu) { menu.RootMenuProp.Divider = " | "; }, "top divider  |  -> |; "},
        // Kept, inherited, or told in another way.
        {[](MenuContent& menu) { menu.DefaultProp.Position = 2; }, ""},
        {[](MenuContent& menu) { menu.RootMenuProp.Position = 3; }, ""},
        {[](MenuContent& menu) { menu.RootMenuProp.NBgColor = menu.DefaultProp.NBgColor; }, ""},
        {[](MenuContent& menu) { menu.RootMenuProp.FontFamily = "Times"; }, ""},
        {[](MenuContent& menu) { menu.RootMenuProp.CellPadding = "1"; }, ""},
        {[](MenuContent& menu) { menu.DefaultProp.CloseDelay = "1200"; }, ""},
        {[](MenuContent& menu) { menu.DefaultProp.NBgColor = "navy'"; }, ""},
        {[](MenuContent& menu) {
             menu.RootMenuProp.FontSet = true;
             menu.RootMenuProp.FontFamily = "Times";
             menu.RootMenuProp.FontWeight = true;
         },
         ""},
    };
    for (const Case& c : cases) {
        MenuContent content;
        c.change(content);
        EXPECT_EQ(textOf(content), c.text);
    }
}

TEST(FindUnkeptValues, SaysWhatOpenReallyShows) {
    MenuContent content;
    content.DefaultProp.HFtColor = "";
    content.RootMenuProp.Position = content.DefaultProp.Position;
    content.tree.append(nullptr, "1", "A");
    MenuContent opened;
    ReadScript(definitionFileBytes(GenerateScript(content)), opened);
    EXPECT_EQ(textOf(content),
              "hftcolor  -> " + opened.DefaultProp.HFtColor + "; top position right -> bottom; ");
    EXPECT_EQ(opened.RootMenuProp.Position, 2);
    EXPECT_EQ(textOf(opened), "");
}

}  // namespace
}  // namespace zev
