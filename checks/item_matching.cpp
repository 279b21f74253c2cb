// SPDX-License-Identifier: MIT
#include "checks/item_matching.h"

#include <map>
#include <utility>

#include "checks/item_names.h"
#include "script/item_lines.h"
#include "text/hash.h"

namespace zev {

namespace {

std::string nameKey(const MenuNode& node) {
    return itemName(node.item);
}

/// A link that many items may have while they are not finished says nothing.
std::string urlKey(const MenuNode& node) {
    return node.item.URL == "#" ? "" : node.item.URL;
}

std::string nameAndUrlKey(const MenuNode& node) {
    const std::string name = nameKey(node);
    return name.empty() && node.item.URL.empty() ? "" : name + '\n' + node.item.URL;
}

}  // namespace

ItemMatching::ItemMatching(const MenuTree& oldTree, const MenuTree& newTree)
    : m_oldTree(oldTree), m_newTree(newTree) {
    hashBranches(oldTree);
    hashBranches(newTree);
    matchBelow(nullptr, nullptr);
    matchEverywhere([this](const MenuNode& node) { return branchKey(node); });
    matchEverywhere(nameAndUrlKey);
}

void ItemMatching::hashBranches(const MenuTree& tree) {
    Nodes nodes;
    nodes.reserve(tree.size());
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        nodes.push_back(node);
    // Backwards, children come before the item they lie under.
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
        std::string text = GetText((*node)->item);
        for (const MenuNode* child : (*node)->children())
            text += branchKey(*child) + ' ';
        m_branchHash[*node] = hashOf(text);
    }
}

std::string ItemMatching::branchKey(const MenuNode& node) const {
    return std::to_string(m_branchHash.at(&node));
}

/// Matches the children of the two, and those of each pair found so.
void ItemMatching::matchBelow(const MenuNode* oldParent, const MenuNode* newParent) {
    matchLevel(oldParent, newParent);
    while (!m_waiting.empty()) {
        const MenuNode* const newNode = m_waiting.back();
        m_waiting.pop_back();
        matchLevel(oldOf(newNode), newNode);
    }
}

void ItemMatching::matchLevel(const MenuNode* oldParent, const MenuNode* newParent) {
    const auto branch = [this](const MenuNode& node) { return branchKey(node); };
    for (const Key& key : {Key(branch), Key(nameAndUrlKey), Key(nameKey), Key(urlKey)})
        matchBy(key, unmatched(m_oldTree.childrenOf(oldParent)),
                unmatched(m_newTree.childrenOf(newParent)));
    matchByChildren(unmatched(m_oldTree.childrenOf(oldParent)),
                    unmatched(m_newTree.childrenOf(newParent)));
}

/// Of several with one key, the first is matched with the first.
void ItemMatching::matchBy(const Key& key, const Nodes& oldNodes, const Nodes& newNodes) {
    if (oldNodes.empty() || newNodes.empty())
        return;
    std::unordered_map<std::string, Nodes> oldByKey;
    for (auto node = oldNodes.rbegin(); node != oldNodes.rend(); ++node)
        oldByKey[key(**node)].push_back(*node);
    for (const MenuNode* newNode : newNodes) {
        const std::string newKey = key(*newNode);
        const auto found = oldByKey.find(newKey);
        if (newKey.empty() || found == oldByKey.end() || found->second.empty())
            continue;
        pair(*found->second.back(), *newNode);
        found->second.pop_back();
    }
}

/// An item whose caption and link have changed is known by at least half of its children.
void ItemMatching::matchByChildren(const Nodes& oldNodes, const Nodes& newNodes) {
    std::unordered_map<std::string, const MenuNode*> oldParentOf;
    for (const MenuNode* node : oldNodes)
        for (const MenuNode* child : node->children())
            oldParentOf.emplace(nameAndUrlKey(*child), node);
    for (const MenuNode* newNode : newNodes) {
        std::map<std::size_t, std::size_t> sharedByRow;  // of the old item
        const MenuNode* best = nullptr;
        for (const MenuNode* child : newNode->children()) {
            const auto found = oldParentOf.find(nameAndUrlKey(*child));
            if (found == oldParentOf.end() || isMatched(found->second))
                continue;
            const std::size_t shared = ++sharedByRow[found->second->row()];
            if (!best || shared > sharedByRow[best->row()])
                best = found->second;
        }
        if (best && 2 * sharedByRow[best->row()] >= newNode->children().size())
            pair(*best, *newNode);
    }
}

void ItemMatching::matchEverywhere(const Key& key) {
    std::unordered_map<std::string, Nodes> oldByKey;
    const Nodes oldNodes = unmatched(m_oldTree);
    for (auto node = oldNodes.rbegin(); node != oldNodes.rend(); ++node)
        oldByKey[key(**node)].push_back(*node);
    for (const MenuNode* newNode : unmatched(m_newTree)) {
        // It may have got its match together with the item above it.
        const std::string newKey = key(*newNode);
        const auto found = oldByKey.find(newKey);
        if (isMatched(newNode) || newKey.empty() || found == oldByKey.end())
            continue;
        Nodes& candidates = found->second;
        while (!candidates.empty() && isMatched(candidates.back()))
            candidates.pop_back();
        if (candidates.empty())
            continue;
        const MenuNode* const oldNode = candidates.back();
        pair(*oldNode, *newNode);
        matchBelow(oldNode, newNode);
    }
}

void ItemMatching::pair(const MenuNode& oldNode, const MenuNode& newNode) {
    m_newOf[&oldNode] = &newNode;
    m_oldOf[&newNode] = &oldNode;
    m_waiting.push_back(&newNode);
}

ItemMatching::Nodes ItemMatching::unmatched(std::span<const MenuNode* const> nodes) const {
    Nodes result;
    for (const MenuNode* node : nodes)
        if (!isMatched(node))
            result.push_back(node);
    return result;
}

ItemMatching::Nodes ItemMatching::unmatched(const MenuTree& tree) const {
    Nodes result;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        if (!isMatched(node))
            result.push_back(node);
    return result;
}

}  // namespace zev
