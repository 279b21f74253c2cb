// SPDX-License-Identifier: MIT
#include "checks/unkept_values.h"

#include <string_view>

#include "checks/menu_problems.h"
#include "model/menu_properties.h"
#include "script/property_lines.h"
#include "script/script_reader.h"

namespace zev {

namespace {

/// The property sets of a file that holds these two.
MenuContent opened(const MenuProp& defaults, const MenuProp& topMenu) {
    MenuContent content;
    ReadScript(
        GetDefaultText(defaults) + "zevmenu = new ZEVMenu('0');\r\n" + GetText(topMenu, defaults),
        content);
    return content;
}

bool isBroken(const MenuPropertyRow& row, std::string_view value) {
    return mendedValue({.field = std::string(row.name), .value = std::string(value)}).has_value();
}

/// True when a menu that lacks the value has it all the same.
bool isInherited(const MenuPropertyRow& row, const MenuProp& topMenu, const MenuProp& defaults) {
    const std::string_view value = propertyValue(row, topMenu);
    if (row.special == Special::Font && !topMenu.FontSet)
        return true;
    if (row.inMenu == LineRule::UnlessFactory)
        return value == propertyValue(row, MenuContent().DefaultProp);
    // The position of the top menu is the one that Open does not leave to the defaults.
    return row.inMenu == LineRule::WhenDifferent && row.name != "position" &&
           (value.empty() || value == propertyValue(row, defaults));
}

}  // namespace

std::vector<UnkeptValue> findUnkeptValues(const MenuProp& defaults, const MenuProp& topMenu) {
    const MenuContent read = opened(defaults, topMenu);
    std::vector<UnkeptValue> values;
    const auto compare = [&](bool isDefault, const MenuPropertyRow& row, std::string_view value,
                             std::string_view after) {
        if (value != after && !isBroken(row, value))
            values.push_back(
                {isDefault, std::string(row.name), std::string(value), std::string(after)});
    };
    for (const MenuPropertyRow& row : kMenuProperties)
        if (row.inDefaults != LineRule::Never && row.special != Special::NotReadBack)
            compare(true, row, propertyValue(row, defaults), propertyValue(row, read.DefaultProp));
    for (const MenuPropertyRow& row : kMenuProperties)
        if (row.inMenu != LineRule::Never && !isInherited(row, topMenu, defaults))
            compare(false, row, propertyValue(row, topMenu), propertyValue(row, read.RootMenuProp));
    return values;
}

}  // namespace zev
