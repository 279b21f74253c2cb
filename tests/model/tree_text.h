// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/menu_tree.h"
#include "tests/support/document_steps.h"

namespace zev::test {

/// The tree as indented text, two spaces a level, one line a node; `label` gives a node's line.
template <typename Label>
std::string TreeText(const MenuTree& tree, Label label) {
    std::string text;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        for (const MenuNode* parent = node->parent(); parent; parent = parent->parent())
            text += "  ";
        text += label(*node);
        text += '\n';
    }
    return text;
}

inline std::string TreeText(const MenuTree& tree) {
    return TreeText(
        tree, [](const MenuNode& node) { return node.text; });
}

/// As above with each node's key in brackets.
inline std::string TreeTextWithKeys(const MenuTree& tree) {
    return TreeText(
        tree, [](const MenuNode& node) { return node.text + " [" + node.key() + "]"; });
}

using Levels = std::initializer_list<std::pair<std::size_t, std::string_view>>;

/// Gives `append` parent and text of each node.
template <typename Append>
void Grow(Levels nodes, Append append) {
    std::vector<const MenuNode*> path;
    for (const auto& [level, text] : nodes) {
        ASSERT_LE(level, path.size());
        path.resize(level);
        path.push_back(append(path.empty() ? nullptr : path.back(), std::string(text)));
        ASSERT_NE(path.back(), nullptr) << text;
    }
}

/// Builds nodes from (level, text) pairs in tree order; the text serves as the key.
inline void Grow(MenuTree& tree, Levels nodes) {
    Grow(
        nodes, [&tree](const MenuNode* parent,
                       const std::string& text) { return tree.append(parent, text, text); });
}

/// The same in a document, whose selection stays.
inline void Grow(MenuDocument& document, Levels nodes) {
    Grow(
        nodes,
        [&document](const MenuNode* parent, const std::string& text) {
            return appendNode(document, parent, text, text);
        });
}

/// Checks what must hold for every tree: rows, parents, look-up by key and the number of nodes.
inline void ExpectSoundTree(const MenuTree& tree) {
    std::size_t count = 0;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        ++count;
        const auto siblings = tree.childrenOf(node->parent());
        ASSERT_LT(node->row(), siblings.size()) << node->text;
        ASSERT_EQ(siblings[node->row()], node) << node->text;
        ASSERT_EQ(tree.find(node->key()), node) << node->text;
        for (const MenuNode* child : node->children())
            ASSERT_EQ(child->parent(), node) << child->text;
    }
    EXPECT_EQ(count, tree.size());
}

}  // namespace zev::test
