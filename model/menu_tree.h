// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/item_prop.h"

namespace zev {

/// One node of the item tree. Owned by its `MenuTree`; the pointer stays valid, also when the node
/// is moved, or taken out and put back, until the node is destroyed.
class MenuNode {
  public:
    std::string text;         ///< label shown in the tree, UTF-8
    ItemProp item;            ///< the item this node carries
    bool isExpanded = false;  ///< children are shown; kept here so that it survives moves

    /// Unique in the tree; means nothing beyond that.
    const std::string& key() const { return *m_key; }
    /// Null for a top-level node.
    const MenuNode* parent() const { return m_parent; }
    std::span<const MenuNode* const> children() const { return m_children; }
    /// Position among its siblings, counted from 0. Constant time.
    std::size_t row() const { return m_row; }
    bool hasChildren() const { return !m_children.empty(); }

    /// For `MenuTree`, which alone gives a node its place.
    MenuNode(std::string&& nodeText, ItemProp&& nodeItem)
        : text(std::move(nodeText)), item(std::move(nodeItem)) {}
    MenuNode(const MenuNode&) = delete;
    MenuNode& operator=(const MenuNode&) = delete;

  private:
    friend class MenuBranch;
    friend class MenuTree;
    const std::string* m_key = nullptr;  ///< lies in the tree's index
    const MenuNode* m_parent = nullptr;
    std::vector<MenuNode*> m_children;
    std::size_t m_row = 0;
};

/// Keys that differ in their last digit, as those of neighbouring items do, get neighbouring places
/// in the index. Spread all over it, each would be a cache miss of its own.
struct MenuKeyHash {
    std::size_t operator()(const std::string& key) const {
        std::size_t hash = 0;
        for (const char c : key)
            hash = 31 * hash + static_cast<unsigned char>(c);
        return hash;
    }
};

/// A node with its subtree that stands in no tree: not yet, or not any more. Put into a tree, the
/// nodes are the same as before, with address, key, item and expansion.
class MenuBranch {
  public:
    /// A new node without children.
    MenuBranch(std::string key, std::string text, ItemProp item = {});

    /// The node that the others lie under. Not to be looked at before the branch is in a tree.
    const MenuNode* top() const { return m_top; }

  private:
    friend class MenuTree;
    using Nodes = std::unordered_map<std::string, MenuNode, MenuKeyHash>;

    explicit MenuBranch(MenuNode& top) : m_top(&top) {}

    MenuNode* m_top;
    std::vector<Nodes::node_type> m_nodes;
};

/// An ordered forest of menu items. Nodes are found by key, and by parent and row, without a scan.
/// No operation recurses per level, so depth is limited by memory alone.
///
/// Who has the tree as const gets const nodes only; who may change it names a node to be changed by
/// a const one, as a container's `erase` takes a const iterator.
class MenuTree {
  public:
    MenuTree() = default;
    /// The nodes themselves move; `other` is empty afterwards.
    MenuTree(MenuTree&& other) = default;
    MenuTree& operator=(MenuTree&& other) = default;
    ~MenuTree() = default;

    bool isEmpty() const { return m_topLevel.empty(); }
    /// Number of nodes on all levels.
    std::size_t size() const { return m_nodes.size(); }
    std::span<const MenuNode* const> topLevel() const { return m_topLevel; }
    /// Children of `parent`, or the top level when `parent` is null.
    std::span<const MenuNode* const> childrenOf(const MenuNode* parent) const;
    const MenuNode* firstNode() const { return isEmpty() ? nullptr : m_topLevel.front(); }
    const MenuNode* nextSibling(const MenuNode& node) const;
    const MenuNode* previousSibling(const MenuNode& node) const;
    /// Null when no node has that key.
    const MenuNode* find(const std::string& key) const;
    /// The node that follows in depth-first order (a node before its children); null at the end.
    const MenuNode* nextInTreeOrder(const MenuNode& node) const;
    /// True when all ancestors are expanded.
    bool isVisible(const MenuNode& node) const;

    /// `node`, one of this tree, for changing its text, item or expansion.
    MenuNode& edit(const MenuNode& node) { return const_cast<MenuNode&>(node); }
    /// Makes room for `count` nodes in all, so that adding them rearranges nothing.
    void reserve(std::size_t count);
    /// Adds a new node as the last child of `parent` (null: top level). Returns null and changes
    /// nothing when the key is taken.
    MenuNode* append(const MenuNode* parent, std::string key, std::string text, ItemProp item = {});
    /// Puts a branch, none of whose keys is taken, before `row` of `parent`.
    void insert(MenuBranch branch, const MenuNode* parent, std::size_t row);
    /// Takes a node out with its subtree; the branch can be dropped, or put back.
    MenuBranch take(const MenuNode& node);
    /// Moves a node with its subtree before `row` of `parent`, `row` counted before the node is
    /// taken away; keys, items and expansion stay. `parent` must not lie in the subtree.
    void move(const MenuNode& node, const MenuNode* parent, std::size_t row);

  private:
    std::vector<MenuNode*>& siblingsUnder(const MenuNode* parent);
    void attach(MenuNode& node, const MenuNode* parent, std::size_t row);
    void detach(const MenuNode& node);
    static void renumber(const std::vector<MenuNode*>& siblings, std::size_t firstRow);

    MenuBranch::Nodes m_nodes;  ///< by key; they never move
    std::vector<MenuNode*> m_topLevel;
};

/// True when `node` is `top` or lies under it; not for null.
bool isInBranch(const MenuNode* node, const MenuNode& top);

}  // namespace zev
