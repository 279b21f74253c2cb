#include "model/tree_editing.h"

#include <string>
#include <utility>

namespace zev {

namespace {

/// The submenus of a horizontal top-level menu open below their items.
bool OpensBelow(const MenuDocument& document) {
    const std::string& rootColumns = document.RootMenuProp.Columns;
    return rootColumns.empty() ? document.DefaultProp.Columns != "1" : rootColumns != "1";
}

/// The item of a new node, and the number it uses up.
ItemProp InitNewNode(MenuDocument& document, const MenuNode* parent, std::string caption) {
    ItemProp item;
    item.Caption = std::move(caption);
    item.MenuProperty = NewItemMenuProp();
    if (!parent && OpensBelow(document))
        item.MenuProperty.edit().Position = 2;
    ++document.ItemCounter;
    return item;
}

MenuNode* AppendNewNode(MenuDocument& document, MenuNode* parent) {
    const std::string number = std::to_string(document.ItemCounter);
    std::string text = "Item " + number;
    ItemProp item = InitNewNode(document, parent, text);
    document.bModified = true;
    return document.tree.append(parent, "Key " + number, std::move(text), std::move(item));
}

void Select(MenuDocument& document, MenuNode* node) {
    document.selectedNode = node;
    document.CurNode = node;
}

/// Moves `CurNode` to another level; like a new node it uses up a number, though it keeps its own
/// key and item.
EditResult MoveToLevel(MenuDocument& document, MenuNode* parent, std::size_t row) {
    if (document.ItemCounter == kMaxItemCounter)
        return EditResult::CounterExhausted;
    MenuNode& node = *document.CurNode;
    const bool wasVisible = document.tree.isVisible(node);
    document.tree.move(node, parent, row);
    if (wasVisible)
        document.tree.makeVisible(node);
    ++document.ItemCounter;
    Select(document, &node);
    document.bModified = true;
    return EditResult::Done;
}

}  // namespace

EditResult AddMenuItem(MenuDocument& document) {
    if (document.ItemCounter == kMaxItemCounter)
        return EditResult::CounterExhausted;
    const MenuNode* selected = document.selectedNode;
    MenuNode* const node = AppendNewNode(document, selected ? selected->parent() : nullptr);
    document.tree.makeVisible(*node);
    Select(document, node);
    return EditResult::Done;
}

EditResult AddSubmenuItem(MenuDocument& document) {
    if (document.ItemCounter == kMaxItemCounter)
        return EditResult::CounterExhausted;
    MenuNode* const node = AppendNewNode(document, document.selectedNode);
    if (document.selectedNode)
        document.tree.makeVisible(*node);
    else
        document.CurNode = node;
    return EditResult::Done;
}

EditResult DeleteItem(MenuDocument& document) {
    MenuNode* const doomed = document.selectedNode;
    if (!doomed)
        return EditResult::NothingToDo;
    MenuNode* heir = document.tree.nextSibling(*doomed);
    if (!heir)
        heir = document.tree.previousSibling(*doomed);
    if (!heir)
        heir = doomed->parent();
    // Before the removal, so that nobody who is told of it meets a dead node.
    Select(document, heir);
    document.tree.remove(*doomed);
    document.bModified = true;
    return EditResult::Done;
}

EditResult MoveLeft(MenuDocument& document) {
    if (!document.CurNode || !document.CurNode->parent())
        return EditResult::NothingToDo;
    const MenuNode& parent = *document.CurNode->parent();
    return MoveToLevel(document, parent.parent(), parent.row() + 1);
}

EditResult MoveRight(MenuDocument& document) {
    if (!document.CurNode)
        return EditResult::NothingToDo;
    MenuNode* const previous = document.tree.previousSibling(*document.CurNode);
    if (!previous)
        return EditResult::NothingToDo;
    return MoveToLevel(document, previous, previous->children().size());
}

EditResult MoveUp(MenuDocument& document) {
    MenuNode* const node = document.CurNode;
    if (!node || node->row() == 0)
        return EditResult::NothingToDo;
    document.tree.move(*node, node->parent(), node->row() - 1);
    document.bModified = true;
    return EditResult::Done;
}

EditResult MoveDown(MenuDocument& document) {
    MenuNode* const node = document.CurNode;
    if (!node || !document.tree.nextSibling(*node))
        return EditResult::NothingToDo;
    document.tree.move(*node, node->parent(), node->row() + 2);
    document.tree.makeVisible(*node);
    Select(document, node);
    document.bModified = true;
    return EditResult::Done;
}

}  // namespace zev
