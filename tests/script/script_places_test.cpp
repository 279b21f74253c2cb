// SPDX-License-Identifier: MIT
#include "script/script_places.h"

#include <gtest/gtest.h>

#include <sstream>

#include "model/menu_content.h"
#include "script/script_writer.h"

namespace zev {
namespace {

std::string nameOf(const ScriptPlace& place) {
    const std::string key = place.node ? place.node->key() : "";
    switch (place.part) {
        case ScriptPlace::Part::Defaults:
            return "defaults";
        case ScriptPlace::Part::Menu:
            return "menu " + key;
        case ScriptPlace::Part::Item:
            return "item " + key;
        case ScriptPlace::Part::None:
            break;
    }
    return "-";
}

const MenuNode* append(MenuContent& content, const MenuNode* parent, const std::string& caption) {
    ItemProp item;
    item.MenuProperty = newItemMenuProp();
    item.Caption = caption;
    return content.tree.append(parent, caption.substr(0, 1), caption, std::move(item));
}

TEST(PlaceOfLine, KnowsWhatEachLineOfAScriptIsAbout) {
    MenuContent content;
    append(content, nullptr, "a");
    const MenuNode* b = append(content, nullptr, "b\nwith a line break");
    const MenuNode* c = append(content, b, "c");
    append(content, c, "d");
    append(content, b, "e");
    content.tree.edit(*b).item.MenuProperty.edit().Columns = "2";
    std::istringstream script(GenerateScript(content));
    std::string line;
    std::string places;
    for (std::size_t number = 1; std::getline(script, line); ++number) {
        line.resize(std::min(line.find('\r'), line.size()));
        places += line.substr(0, 26) + " : " + nameOf(placeOfLine(content, number)) + '\n';
    }
    EXPECT_EQ(places.substr(places.find("zev_state.fontSize")),
              "zev_state.fontSize = '10pt : defaults\n"
              " : -\n"
              "zevmenu = new ZEVMenu('0') : menu \n"
              "zevmenu.columns = 10; : menu \n"
              "zevmenu.position = 'bottom : menu \n"
              " : -\n"
              "zevmenu.AddItem('a', '', ' : item a\n"
              "zevmenu.AddItem('b : item b\n"
              "with a line break', '', '' : item b\n"
              " : -\n"
              "zevmenu = new ZEVMenu('2') : menu b\n"
              "zevmenu.columns = 2; : menu b\n"
              " : -\n"
              "zevmenu.AddItem('c', '', ' : item c\n"
              "zevmenu.AddItem('e', '', ' : item e\n"
              " : -\n"
              "zevmenu = new ZEVMenu('2i1 : menu c\n"
              " : -\n"
              "zevmenu.AddItem('d', '', ' : item d\n"
              " : -\n");
    EXPECT_EQ(nameOf(placeOfLine(content, 1)), "defaults");
    EXPECT_EQ(nameOf(placeOfLine(content, 1000)), "-");
    EXPECT_EQ(nameOf(placeOfLine(MenuContent(), 12)), "-");
}

}  // namespace
}  // namespace zev
