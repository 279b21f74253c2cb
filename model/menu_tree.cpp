#include "model/menu_tree.h"

#include <cassert>
#include <iterator>
#include <utility>

namespace zev {

namespace {

using Siblings = std::vector<MenuNode*>;

Siblings::iterator At(Siblings& siblings, std::size_t row) {
    return siblings.begin() + static_cast<std::ptrdiff_t>(row);
}

[[maybe_unused]] bool IsInSubtree(const MenuNode* node, const MenuNode& top) {
    while (node && node != &top)
        node = node->parent();
    return node != nullptr;
}

}  // namespace

const std::vector<MenuNode*>& MenuTree::childrenOf(const MenuNode* parent) const {
    return parent ? parent->m_children : m_topLevel;
}

std::vector<MenuNode*>& MenuTree::mutableChildrenOf(MenuNode* parent) {
    return parent ? parent->m_children : m_topLevel;
}

const std::vector<MenuNode*>& MenuTree::siblingsOf(const MenuNode& node) const {
    return childrenOf(node.m_parent);
}

MenuNode* MenuTree::nextSibling(const MenuNode& node) const {
    const Siblings& siblings = siblingsOf(node);
    return node.m_row + 1 < siblings.size() ? siblings[node.m_row + 1] : nullptr;
}

MenuNode* MenuTree::previousSibling(const MenuNode& node) const {
    return node.m_row > 0 ? siblingsOf(node)[node.m_row - 1] : nullptr;
}

MenuNode* MenuTree::find(const std::string& key) const {
    const auto found = m_nodes.find(key);
    // The tree's constness is that of its shape; what a node carries belongs to whoever finds it.
    return found == m_nodes.end() ? nullptr : const_cast<MenuNode*>(&found->second);
}

MenuNode* MenuTree::nextInTreeOrder(const MenuNode& node) const {
    if (node.hasChildren())
        return node.m_children.front();
    const MenuNode* ancestor = &node;
    while (ancestor) {
        if (MenuNode* next = nextSibling(*ancestor))
            return next;
        ancestor = ancestor->m_parent;
    }
    return nullptr;
}

bool MenuTree::isVisible(const MenuNode& node) const {
    for (const MenuNode* ancestor = node.m_parent; ancestor; ancestor = ancestor->m_parent) {
        if (!ancestor->isExpanded)
            return false;
    }
    return true;
}

void MenuTree::reserve(std::size_t count) {
    // Twice as much: the nodes lie scattered in memory, and looking at one only because it shares a
    // bucket with the one sought is slow.
    m_nodes.reserve(2 * count);
}

MenuNode* MenuTree::append(MenuNode* parent, std::string key, std::string text, ItemProp item) {
    Siblings& siblings = mutableChildrenOf(parent);
    if (m_observer) {
        if (m_nodes.contains(key))
            return nullptr;
        m_observer->aboutToInsert(parent, siblings.size());
    }
    const auto [entry, isNew] =
        m_nodes.try_emplace(std::move(key), std::move(text), std::move(item));
    if (!isNew)
        return nullptr;
    MenuNode* const node = &entry->second;
    node->m_key = &entry->first;
    node->m_parent = parent;
    node->m_row = siblings.size();
    siblings.push_back(node);
    if (m_observer)
        m_observer->inserted();
    return node;
}

void MenuTree::remove(MenuNode& node) {
    const std::size_t row = node.m_row;
    Siblings& siblings = mutableChildrenOf(node.m_parent);
    if (m_observer)
        m_observer->aboutToRemove(node.m_parent, row);
    siblings.erase(At(siblings, row));
    renumber(siblings, row);

    Siblings subtree = {&node};
    for (std::size_t i = 0; i < subtree.size(); ++i) {
        const Siblings& children = subtree[i]->m_children;
        subtree.insert(subtree.end(), children.begin(), children.end());
    }
    for (const MenuNode* doomed : subtree)
        m_nodes.erase(m_nodes.find(doomed->key()));
    if (m_observer)
        m_observer->removed();
}

void MenuTree::move(MenuNode& node, MenuNode* parent, std::size_t row) {
    assert(!IsInSubtree(parent, node));
    const std::size_t oldRow = node.m_row;
    const bool isSameParent = parent == node.m_parent;
    if (isSameParent && (row == oldRow || row == oldRow + 1))
        return;

    if (m_observer)
        m_observer->aboutToMove(node, parent, row);
    Siblings& oldSiblings = mutableChildrenOf(node.m_parent);
    oldSiblings.erase(At(oldSiblings, oldRow));
    renumber(oldSiblings, oldRow);

    if (isSameParent && row > oldRow)
        --row;
    Siblings& newSiblings = mutableChildrenOf(parent);
    assert(row <= newSiblings.size());
    node.m_parent = parent;
    newSiblings.insert(At(newSiblings, row), &node);
    renumber(newSiblings, row);
    if (m_observer)
        m_observer->moved();
}

void MenuTree::renumber(const std::vector<MenuNode*>& siblings, std::size_t firstRow) {
    for (std::size_t row = firstRow; row < siblings.size(); ++row)
        siblings[row]->m_row = row;
}

void MenuTree::setText(MenuNode& node, std::string_view text) {
    if (node.text == text)
        return;
    node.text = text;
    if (m_observer)
        m_observer->textChanged(node);
}

void MenuTree::setExpanded(MenuNode& node, bool isExpanded) {
    if (node.isExpanded == isExpanded)
        return;
    node.isExpanded = isExpanded;
    if (m_observer)
        m_observer->expansionChanged(node);
}

void MenuTree::makeVisible(const MenuNode& node) {
    for (MenuNode* ancestor = node.m_parent; ancestor; ancestor = ancestor->m_parent)
        setExpanded(*ancestor, true);
}

void MenuTree::clear() {
    if (m_observer)
        m_observer->aboutToReset();
    m_topLevel.clear();
    m_nodes.clear();
    if (m_observer)
        m_observer->wasReset();
}

void MenuTree::takeFrom(MenuTree& other) {
    assert(&other != this);
    for (const MenuTree* tree : {this, &other}) {
        if (tree->m_observer)
            tree->m_observer->aboutToReset();
    }
    m_topLevel = std::exchange(other.m_topLevel, {});
    m_nodes = std::exchange(other.m_nodes, {});
    for (const MenuTree* tree : {this, &other}) {
        if (tree->m_observer)
            tree->m_observer->wasReset();
    }
}

}  // namespace zev
