// SPDX-License-Identifier: MIT
#include "checks/menu_difference.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "checks/item_matching.h"
#include "checks/item_names.h"
#include "checks/longest_increasing.h"
#include "model/menu_properties.h"
#include "script/property_lines.h"

namespace zev {

namespace {

using Kind = MenuDifference::Kind;
using Owner = MenuDifference::Owner;

struct ItemField {
    std::string_view name;
    std::string ItemProp::*member;
};

constexpr ItemField kItemFields[] = {{"caption", &ItemProp::Caption},
                                     {"url", &ItemProp::URL},
                                     {"target", &ItemProp::Target},
                                     {"out", &ItemProp::ImageOut},
                                     {"over", &ItemProp::ImageOver}};

class MenuComparison {
  public:
    MenuComparison(const MenuContent& oldMenu, const MenuContent& newMenu)
        : m_old(oldMenu), m_new(newMenu), m_matching(oldMenu.tree, newMenu.tree) {}

    std::vector<MenuDifference> compare() {
        compareProperties(Owner::Defaults, nullptr, m_old.DefaultProp, m_new.DefaultProp);
        compareProperties(Owner::Menu, nullptr, m_old.RootMenuProp, m_new.RootMenuProp);
        findReordered(nullptr);
        const MenuTree& tree = m_new.tree;
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
            compareItem(*node);
        for (const MenuNode* node = m_old.tree.firstNode(); node;
             node = m_old.tree.nextInTreeOrder(*node))
            if (!m_matching.isMatched(node))
                m_differences.push_back({.kind = Kind::Removed, .item = itemPath(node)});
        return std::move(m_differences);
    }

  private:
    void compareItem(const MenuNode& node) {
        const MenuNode* const old = m_matching.oldOf(&node);
        if (!old) {
            m_differences.push_back({.kind = Kind::Added, .item = itemPath(&node)});
            return;
        }
        findReordered(&node);
        if (!isSameMenu(*old, node) || m_reordered.contains(&node))
            m_differences.push_back(
                {.kind = Kind::Moved, .item = itemPath(&node), .oldPath = itemPath(old)});
        for (const ItemField& field : kItemFields)
            compareValues(Owner::Item, &node, field.name, old->item.*field.member,
                          node.item.*field.member);
        compareProperties(Owner::Menu, &node, *old->item.MenuProperty, *node.item.MenuProperty);
    }

    void compareProperties(Owner owner, const MenuNode* node, const MenuProp& old,
                           const MenuProp& now) {
        if (old == now)
            return;
        for (const MenuPropertyRow& row : kMenuProperties)
            compareValues(owner, node, row.name, propertyValue(row, old), propertyValue(row, now));
    }

    void compareValues(Owner owner, const MenuNode* node, std::string_view field,
                       std::string_view old, std::string_view now) {
        if (old == now)
            return;
        const Kind kind = old.empty() ? Kind::Added : now.empty() ? Kind::Removed : Kind::Changed;
        m_differences.push_back({.kind = kind,
                                 .owner = owner,
                                 .item = itemPath(node),
                                 .field = std::string(field),
                                 .oldValue = withoutEscapes(old),
                                 .newValue = withoutEscapes(now)});
    }

    bool isSameMenu(const MenuNode& old, const MenuNode& now) const {
        return m_matching.isMatched(old.parent()) && m_matching.newOf(old.parent()) == now.parent();
    }

    /// Of the children that a menu had before, those that others have overtaken.
    void findReordered(const MenuNode* parent) {
        std::vector<const MenuNode*> stayed;
        std::vector<std::size_t> oldRows;
        for (const MenuNode* node : m_new.tree.childrenOf(parent)) {
            const MenuNode* const old = m_matching.oldOf(node);
            if (!old || !isSameMenu(*old, *node))
                continue;
            stayed.push_back(node);
            oldRows.push_back(old->row());
        }
        const std::vector<bool> isInOrder = longestIncreasing(oldRows);
        for (std::size_t i = 0; i < stayed.size(); ++i)
            if (!isInOrder[i])
                m_reordered.insert(stayed[i]);
    }

    const MenuContent& m_old;
    const MenuContent& m_new;
    ItemMatching m_matching;
    std::unordered_set<const MenuNode*> m_reordered;
    std::vector<MenuDifference> m_differences;
};

}  // namespace

std::vector<MenuDifference> compareMenus(const MenuContent& oldMenu, const MenuContent& newMenu) {
    return MenuComparison(oldMenu, newMenu).compare();
}

}  // namespace zev
