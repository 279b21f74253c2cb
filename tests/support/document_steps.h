#pragma once

#include <string>
#include <utility>

#include "model/menu_document.h"

namespace zev::test {

/// Adds a node as the last child of `parent` (null: top level), and nothing else.
inline const MenuNode* appendNode(MenuDocument& document, const MenuNode* parent, std::string key,
                                  std::string text, ItemProp item = {}) {
    MenuBranch branch(std::move(key), std::move(text), std::move(item));
    const MenuNode* const node = branch.top();
    const std::size_t row = document.tree().childrenOf(parent).size();
    document.apply(InsertBranch{std::move(branch), parent, row});
    return node;
}

/// Has `edit` change a node's item.
template <typename Edit>
void editItem(MenuDocument& document, const MenuNode& node, Edit edit) {
    ItemProp item = node.item;
    edit(item);
    document.setItem(node, std::move(item));
}

/// Has `edit` change a property set, without marking the document.
template <typename Edit>
void editMenu(MenuDocument& document, const MenuPropOwner& owner, Edit edit) {
    MenuProp properties = document.menuProp(owner);
    edit(properties);
    document.setMenuUnmarked(owner, std::move(properties));
}

inline constexpr MenuPropOwner kDefaults{MenuPropOwner::Kind::Defaults};
inline constexpr MenuPropOwner kTopMenu{MenuPropOwner::Kind::TopMenu};

}  // namespace zev::test
