// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/menu_tree.h"

namespace zev {

/// Which item of a new menu is which of an old one. Items of one menu are matched by what they are,
/// then by caption and link, by either, and by the items below them; what is left, by what it is
/// and by caption and link wherever it stands. Time grows with the size of the menus.
class ItemMatching {
  public:
    /// The trees must outlive this object and must not change.
    ItemMatching(const MenuTree& oldTree, const MenuTree& newTree);

    /// The item's other self; null when it has none. Null, the top-level menu, is its own.
    const MenuNode* newOf(const MenuNode* oldNode) const { return partnerIn(m_newOf, oldNode); }
    const MenuNode* oldOf(const MenuNode* newNode) const { return partnerIn(m_oldOf, newNode); }
    bool isMatched(const MenuNode* node) const {
        return !node || m_newOf.contains(node) || m_oldOf.contains(node);
    }

  private:
    using Partners = std::unordered_map<const MenuNode*, const MenuNode*>;
    using Nodes = std::vector<const MenuNode*>;
    /// What items must share to be the same; empty: nothing that says so.
    using Key = std::function<std::string(const MenuNode&)>;

    static const MenuNode* partnerIn(const Partners& partners, const MenuNode* node) {
        const auto found = partners.find(node);
        return found == partners.end() ? nullptr : found->second;
    }
    void hashBranches(const MenuTree& tree);
    std::string branchKey(const MenuNode& node) const;
    void matchBelow(const MenuNode* oldParent, const MenuNode* newParent);
    void matchLevel(const MenuNode* oldParent, const MenuNode* newParent);
    void matchBy(const Key& key, const Nodes& oldNodes, const Nodes& newNodes);
    void matchByChildren(const Nodes& oldNodes, const Nodes& newNodes);
    void matchEverywhere(const Key& key);
    void pair(const MenuNode& oldNode, const MenuNode& newNode);
    Nodes unmatched(std::span<const MenuNode* const> nodes) const;
    Nodes unmatched(const MenuTree& tree) const;

    const MenuTree& m_oldTree;
    const MenuTree& m_newTree;
    Partners m_newOf;
    Partners m_oldOf;
    std::unordered_map<const MenuNode*, std::uint64_t> m_branchHash;
    Nodes m_waiting;  ///< new items that were matched and whose children were not
};

}  // namespace zev
