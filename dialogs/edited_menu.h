#pragma once

#include "model/menu_document.h"

namespace zev {

/// The property set of the menu that `CurNode` stands in: its parent item's submenu, or the top
/// menu. Null when there is no current node. Valid until the tree changes.
inline MenuProp* EditedMenu(MenuDocument& document) {
    if (document.CurNode == nullptr)
        return nullptr;
    MenuNode* parent = document.CurNode->parent();
    return parent != nullptr ? &parent->item.MenuProperty.edit() : &document.RootMenuProp;
}

}  // namespace zev
