// SPDX-License-Identifier: MIT
#include "model/menu_tree.h"

#include <cassert>
#include <iterator>
#include <utility>

namespace zev {

namespace {

using Siblings = std::vector<MenuNode*>;

Siblings::iterator at(Siblings& siblings, std::size_t row) {
    return siblings.begin() + static_cast<std::ptrdiff_t>(row);
}

}  // namespace

bool isInBranch(const MenuNode* node, const MenuNode& top) {
    while (node && node != &top)
        node = node->parent();
    return node != nullptr;
}

// A node is made in an index, as that alone joins it to its key, and taken out of it again.
MenuBranch::MenuBranch(std::string key, std::string text, ItemProp item) {
    Nodes index;
    const auto entry = index.try_emplace(std::move(key), std::move(text), std::move(item)).first;
    m_top = &entry->second;
    m_top->m_key = &entry->first;
    m_nodes.push_back(index.extract(entry));
}

std::span<const MenuNode* const> MenuTree::childrenOf(const MenuNode* parent) const {
    return parent ? parent->m_children : m_topLevel;
}

const MenuNode* MenuTree::nextSibling(const MenuNode& node) const {
    const std::span<const MenuNode* const> siblings = childrenOf(node.m_parent);
    return node.m_row + 1 < siblings.size() ? siblings[node.m_row + 1] : nullptr;
}

const MenuNode* MenuTree::previousSibling(const MenuNode& node) const {
    return node.m_row > 0 ? childrenOf(node.m_parent)[node.m_row - 1] : nullptr;
}

const MenuNode* MenuTree::find(const std::string& key) const {
    const auto found = m_nodes.find(key);
    return found == m_nodes.end() ? nullptr : &found->second;
}

const MenuNode* MenuTree::nextInTreeOrder(const MenuNode& node) const {
    if (node.hasChildren())
        return node.m_children.front();
    const MenuNode* ancestor = &node;
    while (ancestor) {
        if (const MenuNode* next = nextSibling(*ancestor))
            return next;
        ancestor = ancestor->m_parent;
    }
    return nullptr;
}

bool MenuTree::isVisible(const MenuNode& node) const {
    for (const MenuNode* ancestor = node.m_parent; ancestor; ancestor = ancestor->m_parent)
        if (!ancestor->isExpanded)
            return false;
    return true;
}

void MenuTree::reserve(std::size_t count) {
    // Twice as much: the nodes lie scattered in memory, and looking at one only because it shares a
    // bucket with the one sought is slow.
    m_nodes.reserve(2 * count);
}

MenuNode* MenuTree::append(const MenuNode* parent, std::string key, std::string text,
                           ItemProp item) {
    const auto [entry, isNew] =
        m_nodes.try_emplace(std::move(key), std::move(text), std::move(item));
    if (!isNew)
        return nullptr;
    MenuNode& node = entry->second;
    node.m_key = &entry->first;
    attach(node, parent, childrenOf(parent).size());
    return &node;
}

void MenuTree::insert(MenuBranch branch, const MenuNode* parent, std::size_t row) {
    for (MenuBranch::Nodes::node_type& node : branch.m_nodes) {
        [[maybe_unused]] const auto place = m_nodes.insert(std::move(node));
        assert(place.inserted);
    }
    attach(*branch.m_top, parent, row);
}

MenuBranch MenuTree::take(const MenuNode& node) {
    MenuBranch branch(edit(node));
    detach(node);
    Siblings subtree = {branch.m_top};
    for (std::size_t i = 0; i < subtree.size(); ++i) {
        const Siblings& children = subtree[i]->m_children;
        subtree.insert(subtree.end(), children.begin(), children.end());
    }
    branch.m_nodes.reserve(subtree.size());
    for (const MenuNode* taken : subtree)
        branch.m_nodes.push_back(m_nodes.extract(taken->key()));
    return branch;
}

void MenuTree::move(const MenuNode& node, const MenuNode* parent, std::size_t row) {
    assert(!isInBranch(parent, node));
    if (parent == node.m_parent && row > node.m_row)
        --row;
    detach(node);
    attach(edit(node), parent, row);
}

std::vector<MenuNode*>& MenuTree::siblingsUnder(const MenuNode* parent) {
    return parent ? edit(*parent).m_children : m_topLevel;
}

void MenuTree::attach(MenuNode& node, const MenuNode* parent, std::size_t row) {
    Siblings& siblings = siblingsUnder(parent);
    assert(row <= siblings.size());
    node.m_parent = parent;
    siblings.insert(at(siblings, row), &node);
    renumber(siblings, row);
}

void MenuTree::detach(const MenuNode& node) {
    Siblings& siblings = siblingsUnder(node.m_parent);
    siblings.erase(at(siblings, node.m_row));
    renumber(siblings, node.m_row);
}

void MenuTree::renumber(const std::vector<MenuNode*>& siblings, std::size_t firstRow) {
    for (std::size_t row = firstRow; row < siblings.size(); ++row)
        siblings[row]->m_row = row;
}

}  // namespace zev
