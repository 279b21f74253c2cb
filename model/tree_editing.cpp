// SPDX-License-Identifier: MIT
#include "model/tree_editing.h"

#include <cstdint>
#include <string>
#include <utility>

namespace zev {

namespace {

/// The submenus of a horizontal top-level menu open below their items.
bool opensBelow(const MenuDocument& document) {
    const std::string& rootColumns = document.RootMenuProp().Columns;
    return rootColumns.empty() ? document.DefaultProp().Columns != "1" : rootColumns != "1";
}

void useUpNumber(MenuDocument& document) {
    document.change(SetItemCounter{static_cast<std::int16_t>(document.ItemCounter() + 1)});
    document.markModified();
}

/// The item of a new node, and the number it uses up.
ItemProp InitNewNode(MenuDocument& document, const MenuNode* parent, std::string caption) {
    ItemProp item;
    item.Caption = std::move(caption);
    item.MenuProperty = newItemMenuProp();
    if (!parent && opensBelow(document))
        item.MenuProperty.edit().Position = 2;
    useUpNumber(document);
    return item;
}

const MenuNode* appendNewNode(MenuDocument& document, const MenuNode* parent) {
    const std::string number = std::to_string(document.ItemCounter());
    std::string text = "Item " + number;
    ItemProp item = InitNewNode(document, parent, text);
    MenuBranch branch("Key " + number, std::move(text), std::move(item));
    const MenuNode* const node = branch.top();
    const std::size_t row = document.tree().childrenOf(parent).size();
    document.change(InsertBranch{std::move(branch), parent, row});
    return node;
}

/// Moves `CurNode` to another level; like a new node it uses up a number, though it keeps its own
/// key and item.
EditResult moveToLevel(MenuDocument& document, const MenuNode* parent, std::size_t row) {
    if (document.ItemCounter() == kMaxItemCounter)
        return EditResult::CounterExhausted;
    const MenuNode& node = *document.CurNode();
    const bool wasVisible = document.tree().isVisible(node);
    document.change(MoveBranch{&node, parent, row});
    if (wasVisible)
        document.makeVisible(node);
    document.select(&node);
    useUpNumber(document);
    return EditResult::Done;
}

}  // namespace

EditResult addMenuItem(MenuDocument& document) {
    if (document.ItemCounter() == kMaxItemCounter)
        return EditResult::CounterExhausted;
    const MenuNode* selected = document.selectedNode();
    const MenuNode* const node = appendNewNode(document, selected ? selected->parent() : nullptr);
    document.makeVisible(*node);
    document.select(node);
    return EditResult::Done;
}

EditResult addSubmenuItem(MenuDocument& document) {
    if (document.ItemCounter() == kMaxItemCounter)
        return EditResult::CounterExhausted;
    const MenuNode* const selected = document.selectedNode();
    const MenuNode* const node = appendNewNode(document, selected);
    if (selected)
        document.makeVisible(*node);
    else
        document.change(SetSelection{{nullptr, node}});
    return EditResult::Done;
}

EditResult deleteItem(MenuDocument& document) {
    if (!document.selectedNode())
        return EditResult::NothingToDo;
    document.change(RemoveBranch{document.selectedNode()});
    document.markModified();
    return EditResult::Done;
}

EditResult moveLeft(MenuDocument& document) {
    const MenuNode* const node = document.CurNode();
    if (!node || !node->parent())
        return EditResult::NothingToDo;
    const MenuNode& parent = *node->parent();
    return moveToLevel(document, parent.parent(), parent.row() + 1);
}

EditResult moveRight(MenuDocument& document) {
    const MenuNode* const node = document.CurNode();
    if (!node)
        return EditResult::NothingToDo;
    const MenuNode* const previous = document.tree().previousSibling(*node);
    if (!previous)
        return EditResult::NothingToDo;
    return moveToLevel(document, previous, previous->children().size());
}

EditResult moveUp(MenuDocument& document) {
    const MenuNode* const node = document.CurNode();
    if (!node || node->row() == 0)
        return EditResult::NothingToDo;
    document.change(MoveBranch{node, node->parent(), node->row() - 1});
    document.markModified();
    return EditResult::Done;
}

EditResult moveDown(MenuDocument& document) {
    const MenuNode* const node = document.CurNode();
    if (!node || !document.tree().nextSibling(*node))
        return EditResult::NothingToDo;
    document.change(MoveBranch{node, node->parent(), node->row() + 2});
    document.makeVisible(*node);
    document.select(node);
    document.markModified();
    return EditResult::Done;
}

}  // namespace zev
