// SPDX-License-Identifier: MIT
#include "app/notes/menu_fields.h"

#include <optional>
#include <utility>
#include <variant>

#include "model/menu_properties.h"
#include "script/property_lines.h"

namespace zev {

namespace {

using Owner = NotePlace::Owner;

constexpr std::pair<const char*, std::string ItemProp::*> kItemFields[] = {
    {"caption", &ItemProp::Caption},
    {"url", &ItemProp::URL},
    {"target", &ItemProp::Target},
    {"out", &ItemProp::ImageOut},
    {"over", &ItemProp::ImageOver}};

std::string ItemProp::*memberOf(const std::string& field) {
    for (const auto& [name, member] : kItemFields)
        if (name == field)
            return member;
    return nullptr;
}

/// None when the item that the menu opens from is gone.
std::optional<MenuPropOwner> menuOf(const MenuDocument& document, const NotePlace& place) {
    if (place.owner == Owner::Defaults)
        return MenuPropOwner{MenuPropOwner::Kind::Defaults};
    if (place.key.empty())
        return MenuPropOwner{MenuPropOwner::Kind::TopMenu};
    const MenuNode* node = document.tree().find(place.key);
    if (!node)
        return {};
    return MenuPropOwner{MenuPropOwner::Kind::Submenu, node};
}

}  // namespace

NotePlace placeOf(const MenuProblem& problem) {
    const Owner owner = problem.isDefault    ? Owner::Defaults
                        : problem.isProperty ? Owner::Menu
                                             : Owner::Item;
    return {owner, problem.item ? problem.item->key() : "", problem.field};
}

NotePlace placeOf(const MenuNode& node, std::string field) {
    return {Owner::Item, node.key(), std::move(field)};
}

std::string fieldValue(const MenuDocument& document, const NotePlace& place) {
    if (place.owner == Owner::Item) {
        const MenuNode* node = document.tree().find(place.key);
        const auto member = memberOf(place.field);
        return node && member ? node->item.*member : "";
    }
    const std::optional<MenuPropOwner> menu = menuOf(document, place);
    const MenuPropertyRow* row = findMenuProperty(place.field);
    return menu && row ? std::string(propertyValue(*row, document.menuProp(*menu))) : "";
}

void setFieldValue(MenuDocument& document, const NotePlace& place, const std::string& value) {
    if (place.owner == Owner::Item) {
        const MenuNode* node = document.tree().find(place.key);
        const auto member = memberOf(place.field);
        if (!node || !member)
            return;
        ItemProp item = node->item;
        item.*member = value;
        document.setItem(*node, std::move(item));
        document.setLabel(*node, node->item.IsRollover ? node->item.ImageOut : node->item.Caption);
        document.markModified();
        return;
    }
    const std::optional<MenuPropOwner> menu = menuOf(document, place);
    const MenuPropertyRow* row = findMenuProperty(place.field);
    const auto* text = row ? std::get_if<TextMember>(&row->member) : nullptr;
    if (!menu || !text)
        return;
    MenuProp properties = document.menuProp(*menu);
    properties.*text->member = value;
    document.setMenu(*menu, std::move(properties));
}

}  // namespace zev
