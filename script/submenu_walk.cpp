// SPDX-License-Identifier: MIT
#include "script/submenu_walk.h"

namespace zev {

const MenuNode* SubmenuWalk::next() {
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.nextRow == level.items.size()) {
            m_levels.pop_back();
            continue;
        }
        const MenuNode* const node = level.items[level.nextRow++];
        if (!node->hasChildren())
            continue;
        m_id.resize(level.idLength);
        if (node->parent())
            m_id += 'i';
        m_id += std::to_string(level.nextRow);
        m_levels.push_back({node->children(), 0, m_id.size()});
        return node;
    }
    return nullptr;
}

}  // namespace zev
