#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/item_prop.h"

namespace zev {

class MenuTree;

/// One node of the item tree. Owned by its `MenuTree`; the pointer stays valid, also when the node
/// is moved, until the node is removed or the tree cleared.
class MenuNode {
  public:
    std::string text;         ///< label shown in the tree, UTF-8
    ItemProp item;            ///< the item this node carries
    bool isExpanded = false;  ///< children are shown; kept here so that it survives moves

    /// Unique in the tree; means nothing beyond that.
    const std::string& key() const { return *m_key; }
    /// Null for a top-level node.
    MenuNode* parent() const { return m_parent; }
    const std::vector<MenuNode*>& children() const { return m_children; }
    /// Position among its siblings, counted from 0. Constant time.
    std::size_t row() const { return m_row; }
    bool hasChildren() const { return !m_children.empty(); }

    /// For `MenuTree`, which alone gives a node its place.
    MenuNode(std::string&& nodeText, ItemProp&& nodeItem)
        : text(std::move(nodeText)), item(std::move(nodeItem)) {}
    MenuNode(const MenuNode&) = delete;
    MenuNode& operator=(const MenuNode&) = delete;

  private:
    friend class MenuTree;
    const std::string* m_key = nullptr;  ///< lies in the tree's index
    MenuNode* m_parent = nullptr;
    std::vector<MenuNode*> m_children;
    std::size_t m_row = 0;
};

/// Is told what happens to a tree, before and after, in the terms an item view needs. `parent` is
/// null for the top level; rows count from 0. An observer must not change the tree while it is
/// told.
class MenuTreeObserver {
  public:
    virtual ~MenuTreeObserver() = default;
    virtual void aboutToInsert(const MenuNode* parent, std::size_t row) = 0;
    virtual void inserted() = 0;
    virtual void aboutToRemove(const MenuNode* parent, std::size_t row) = 0;
    virtual void removed() = 0;
    /// The node will stand at `row` of `parent` as counted before it is taken from its old place.
    virtual void aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) = 0;
    virtual void moved() = 0;
    virtual void aboutToReset() = 0;
    virtual void wasReset() = 0;
    virtual void textChanged(const MenuNode& node) = 0;
    virtual void expansionChanged(const MenuNode& node) = 0;
};

/// An ordered forest of menu items. Nodes are found by key, and by parent and row, without a scan.
/// No operation recurses per level, so depth is limited by memory alone.
class MenuTree {
  public:
    MenuTree() = default;
    MenuTree(const MenuTree&) = delete;
    MenuTree& operator=(const MenuTree&) = delete;

    bool isEmpty() const { return m_topLevel.empty(); }
    /// Number of nodes on all levels.
    std::size_t size() const { return m_nodes.size(); }
    const std::vector<MenuNode*>& topLevel() const { return m_topLevel; }
    /// Children of `parent`, or the top level when `parent` is null.
    const std::vector<MenuNode*>& childrenOf(const MenuNode* parent) const;
    /// The siblings of a node, itself included.
    const std::vector<MenuNode*>& siblingsOf(const MenuNode& node) const;
    MenuNode* firstNode() const { return m_topLevel.empty() ? nullptr : m_topLevel.front(); }
    MenuNode* nextSibling(const MenuNode& node) const;
    MenuNode* previousSibling(const MenuNode& node) const;
    /// Null when no node has that key.
    MenuNode* find(const std::string& key) const;
    /// The node that follows in depth-first order (a node before its children); null at the end.
    MenuNode* nextInTreeOrder(const MenuNode& node) const;
    /// True when all ancestors are expanded.
    bool isVisible(const MenuNode& node) const;

    /// Makes room for `count` nodes in all, so that adding them rearranges nothing.
    void reserve(std::size_t count);
    /// Adds a new node as the last child of `parent` (null: top level). Returns null and changes
    /// nothing when the key is taken.
    MenuNode* append(MenuNode* parent, std::string key, std::string text, ItemProp item = {});
    /// Removes a node with its subtree.
    void remove(MenuNode& node);
    /// Moves a node with its subtree before `row` of `parent`, `row` counted before the node is
    /// taken away; keys, items and expansion stay. `parent` must not lie in the subtree.
    void move(MenuNode& node, MenuNode* parent, std::size_t row);
    void setText(MenuNode& node, std::string_view text);
    void setExpanded(MenuNode& node, bool isExpanded);
    /// Expands all ancestors of `node`.
    void makeVisible(const MenuNode& node);
    void clear();
    /// Takes over all nodes of `other`, which is empty afterwards; observers of both are told.
    void takeFrom(MenuTree& other);

    /// Not owned; must outlive its registration. At most one observer; null removes it.
    void setObserver(MenuTreeObserver* observer) { m_observer = observer; }

  private:
    /// Keys that differ in their last digit, as those of neighbouring items do, get neighbouring
    /// places in the index. Spread all over it, each would be a cache miss of its own.
    struct KeyHash {
        std::size_t operator()(const std::string& key) const {
            std::size_t hash = 0;
            for (const char c : key)
                hash = 31 * hash + static_cast<unsigned char>(c);
            return hash;
        }
    };

    std::vector<MenuNode*>& mutableChildrenOf(MenuNode* parent);
    static void renumber(const std::vector<MenuNode*>& siblings, std::size_t firstRow);

    std::unordered_map<std::string, MenuNode, KeyHash> m_nodes;  ///< by key; they never move
    std::vector<MenuNode*> m_topLevel;
    MenuTreeObserver* m_observer = nullptr;
};

}  // namespace zev
