// SPDX-License-Identifier: MIT
#include "importers/quillmenu_reader.h"

#include <string_view>

#include "script/menu_script.h"
#include "text/piece_cutter.h"

namespace zev {

namespace {

/// The quoted arguments of a creation line lie between every other pair of apostrophes. Every
/// apostrophe counts: an escaped one ends an argument too. False when there is no further argument.
bool nextArgument(PieceCutter& pieces, std::string_view& argument) {
    std::string_view between;
    return pieces.next(between) && pieces.next(argument);
}

std::string_view firstArgument(std::string_view line) {
    PieceCutter pieces(line, '\'');
    std::string_view argument;
    nextArgument(pieces, argument);
    return argument;
}

/// The arguments of a creation line that follow the first. At the first one the line lacks the rest
/// keep their values.
void readLook(std::string_view line, MenuProp& menu) {
    PieceCutter pieces(line, '\'');
    std::string_view argument;
    nextArgument(pieces, argument);
    for (std::string MenuProp::*const member :
         {&MenuProp::NBgColor, &MenuProp::HBgColor, &MenuProp::NFtColor, &MenuProp::HFtColor,
          &MenuProp::BgImg}) {
        if (!nextArgument(pieces, argument))
            return;
        menu.*member = argument;
    }
}

void readMainMenu(std::string_view line, MenuProp& menu) {
    menu.Columns = firstArgument(line) == "horizontal" ? "20" : "1";
    readLook(line, menu);
}

void readSubmenu(std::string_view line, MenuProp& menu) {
    menu.Columns = "1";
    readLook(line, menu);
}

constexpr CreationLine kCreationLines[] = {
    {"qlmenu1 = new mainMenu('*');", nullptr, readMainMenu},
    {"qlmenu1 = new subMenu('*');", firstArgument, readSubmenu}};

constexpr ScriptDialect kQuillmenu = {.start = "qlm",
                                      .defaultLine = "qlm_state.*=*;",
                                      .creationLines = kCreationLines,
                                      .propertyLine = "qlmenu1.*=*;",
                                      .textItemLine = "qlmenu1.addItems(*);",
                                      .rolloverLine = "qlmenu1.addImages(*);",
                                      .countsRefusedItems = true};

}  // namespace

std::vector<LineWarning> readQuillmenu(DefinitionLines& lines, MenuContent& content) {
    std::vector<LineWarning> warnings;
    readMenuScript(lines, kQuillmenu, content,
                   [&](const LineWarning& warning) { warnings.push_back(warning); });
    return warnings;
}

}  // namespace zev
