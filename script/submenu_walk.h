// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "model/menu_tree.h"

namespace zev {

/// Visits every item that has children, in tree order, together with the id of the submenu that
/// opens from it: the positions of the items on the path, counted from 1 and joined by "i", for
/// example "3i2". The tree must not change during the walk.
class SubmenuWalk {
  public:
    explicit SubmenuWalk(const MenuTree& tree) { m_levels.push_back({tree.topLevel(), 0, 0}); }

    /// The next item that has children; null at the end.
    const MenuNode* next();

    /// The submenu id of the item that `next` returned.
    const std::string& id() const { return m_id; }

  private:
    struct Level {
        std::span<const MenuNode* const> items;
        std::size_t nextRow;
        std::size_t idLength;  ///< length of the id of the menu that holds `items`
    };

    std::vector<Level> m_levels;  ///< the path of open levels, outermost first
    std::string m_id;
};

}  // namespace zev
