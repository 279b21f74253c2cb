#pragma once

#include <utility>

#include "model/menu_document.h"

namespace zev {

/// The property set of the menu that `CurNode` stands in: its parent item's submenu, or the top
/// menu. Null when there is no current node. Valid until the tree changes.
inline const MenuProp* EditedMenu(const MenuDocument& document) {
    if (document.CurNode == nullptr)
        return nullptr;
    const MenuNode* parent = document.CurNode->parent();
    return parent != nullptr ? &*parent->item.MenuProperty : &document.RootMenuProp;
}

/// Replaces that set. There is a current node.
inline void storeEditedMenu(MenuDocument& document, MenuProp prop) {
    MenuNode* parent = document.CurNode->parent();
    (parent != nullptr ? parent->item.MenuProperty.edit() : document.RootMenuProp) =
        std::move(prop);
}

}  // namespace zev
