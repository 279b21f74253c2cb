// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "model/menu_prop.h"
#include "model/menu_tree.h"
#include "model/shared_menu_prop.h"

namespace zev {

/// What one definition file describes: plain data. Readers fill it, the writer takes it apart; the
/// editor keeps it in a `MenuDocument`, which alone changes it there.
struct MenuContent {
    MenuTree tree;
    MenuProp DefaultProp;          ///< menu-wide defaults
    MenuProp RootMenuProp;         ///< properties of the top-level menu
    std::int16_t ItemCounter = 0;  ///< number of the next item made in the editor
    /// The definition file that holds more items than this content; empty when it has them all.
    std::string overfullFile = {};

    /// The content of a new menu: no items, the factory defaults, and a top-level menu that is a
    /// horizontal bar of up to ten items whose submenus drop down.
    MenuContent();
};

/// Largest `ItemCounter`; the counter is 16 bits wide and never wraps.
inline constexpr std::int16_t kMaxItemCounter = 32767;

/// The submenu property set every new item starts with: usual divider and spaces, all else unset.
const SharedMenuProp& newItemMenuProp();

}  // namespace zev
