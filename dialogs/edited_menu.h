// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "model/menu_document.h"

namespace zev {

/// The menu that `CurNode` stands in: its parent item's submenu, or the top menu. Nothing when
/// there is no current node.
inline std::optional<MenuPropOwner> editedMenu(const MenuDocument& document) {
    if (document.CurNode() == nullptr)
        return {};
    if (const MenuNode* parent = document.CurNode()->parent())
        return MenuPropOwner{MenuPropOwner::Kind::Submenu, parent};
    return MenuPropOwner{MenuPropOwner::Kind::TopMenu};
}

}  // namespace zev
