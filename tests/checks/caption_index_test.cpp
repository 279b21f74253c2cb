// SPDX-License-Identifier: MIT
#include "checks/caption_index.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/menu_content.h"

namespace zev {
namespace {

std::string keysOf(std::vector<const MenuNode*> nodes) {
    std::vector<std::string> keys;
    for (const MenuNode* node : nodes)
        keys.push_back(node->key());
    std::sort(keys.begin(), keys.end());
    std::string text;
    for (const std::string& key : keys)
        text += key + ' ';
    return text;
}

const MenuNode* append(MenuTree& tree, const MenuNode* parent, const std::string& key,
                       const std::string& caption) {
    ItemProp item;
    item.MenuProperty = newItemMenuProp();
    item.Caption = caption;
    return tree.append(parent, key, caption, std::move(item));
}

TEST(CaptionIndex, FollowsItemsThatComeGoAndChange) {
    MenuTree tree;
    CaptionIndex index;
    const MenuNode* first = append(tree, nullptr, "1", "Tea");
    const MenuNode* second = append(tree, nullptr, "2", "<b>Tea</b>");
    const MenuNode* third = append(tree, nullptr, "3", "Tea");
    const MenuNode* below = append(tree, first, "4", "Tea");
    append(tree, nullptr, "5", "");
    append(tree, nullptr, "6", "");
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        index.add(*node);
    EXPECT_EQ(index.repeatedCount(), 2U);
    EXPECT_EQ(keysOf(index.repeated()), "2 3 ");

    index.remove(*third);
    tree.move(*third, nullptr, 0);
    index.add(*third);
    EXPECT_EQ(keysOf(index.repeated()), "1 2 ");

    index.remove(*first);
    tree.edit(*first).item.Caption = "Milk";
    index.add(*first);
    EXPECT_EQ(keysOf(index.repeated()), "2 ");

    index.remove(*second);
    index.remove(*second);
    EXPECT_EQ(index.repeatedCount(), 0U);
    tree.edit(*below).item.IsRollover = true;
    index.remove(*below);
    index.add(*below);
    EXPECT_EQ(keysOf(index.repeated()), "");
    index.clear();
    EXPECT_EQ(index.repeatedCount(), 0U);
}

}  // namespace
}  // namespace zev
