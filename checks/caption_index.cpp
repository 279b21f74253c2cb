// SPDX-License-Identifier: MIT
#include "checks/caption_index.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "checks/item_names.h"

namespace zev {

std::size_t CaptionIndex::CaptionHash::operator()(const Caption& caption) const {
    constexpr std::size_t kSpread = 31;
    return std::hash<const void*>()(caption.parent) * kSpread +
           std::hash<std::string>()(caption.name);
}

void CaptionIndex::clear() {
    *this = CaptionIndex();
}

void CaptionIndex::add(const MenuNode& node) {
    if (node.item.IsRollover)
        return;
    std::string name = itemName(node.item);
    if (name.empty())
        return;
    Groups::value_type& group = *m_groups.try_emplace({node.parent(), std::move(name)}).first;
    m_groupOf[&node] = &group;
    group.second.insert(&node);
    if (group.second.size() > 1) {
        m_repeated.insert(&group);
        ++m_repeatedCount;
    }
}

void CaptionIndex::remove(const MenuNode& node) {
    const auto found = m_groupOf.find(&node);
    if (found == m_groupOf.end())
        return;
    Groups::value_type& group = *found->second;
    m_groupOf.erase(found);
    group.second.erase(&node);
    if (!group.second.empty())
        --m_repeatedCount;
    if (group.second.size() == 1)
        m_repeated.erase(&group);
    if (group.second.empty())
        m_groups.erase(Caption(group.first));
}

std::vector<const MenuNode*> CaptionIndex::repeated() const {
    std::vector<const MenuNode*> items;
    items.reserve(m_repeatedCount);
    for (const Groups::value_type* group : m_repeated) {
        const auto& nodes = group->second;
        const MenuNode* const first = *std::min_element(
            nodes.begin(), nodes.end(),
            [](const MenuNode* left, const MenuNode* right) { return left->row() < right->row(); });
        for (const MenuNode* node : nodes)
            if (node != first)
                items.push_back(node);
    }
    return items;
}

}  // namespace zev
