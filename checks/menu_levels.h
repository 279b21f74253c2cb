// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "model/menu_tree.h"

namespace zev {

/// Visits the items in tree order, each with its level, counted from 0 at the top.
template <typename Visit>
void visitLevels(const MenuTree& tree, Visit visit) {
    std::size_t level = 0;
    const MenuNode* parent = nullptr;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        if (node->parent() != parent && node->row() == 0)
            ++level;
        else
            for (; parent != node->parent(); parent = parent->parent())
                --level;
        parent = node->parent();
        visit(*node, level);
    }
}

}  // namespace zev
