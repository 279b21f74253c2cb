// SPDX-License-Identifier: MIT
#pragma once

#include "model/menu_document.h"

namespace zev {

/// What a tree editing command did.
enum class EditResult {
    Done,             ///< the tree changed; `bModified` is set
    NothingToDo,      ///< no node to work on, or it already stands at the end; nothing changed
    CounterExhausted  ///< `ItemCounter` is used up; nothing changed
};

// The tree editing commands as plain functions on the document. Each keeps `selectedNode` and
// `CurNode` as the editor needs them; none asks, shows or redraws anything. Storing the item panel
// before a command that changes `CurNode`, and showing the new `CurNode` after it, is the caller's.

/// Adds an item as the last sibling of the selected node (last top-level node without a
/// selection), makes it visible, selected and current.
EditResult addMenuItem(MenuDocument& document);

/// Adds an item as the last child of the selected node and makes it visible; selection and
/// `CurNode` stay. Without a selection: last top-level node, which becomes `CurNode` but is not
/// selected.
EditResult addSubmenuItem(MenuDocument& document);

/// Removes the selected node with its subtree. Next sibling, else previous, else parent becomes
/// selected and current.
EditResult deleteItem(MenuDocument& document);

/// Makes `CurNode` the next sibling of its parent. Uses up one number of `ItemCounter`, as every
/// new place in the tree does.
EditResult moveLeft(MenuDocument& document);

/// Makes `CurNode` the last child of its previous sibling. Uses up one number of `ItemCounter`.
EditResult moveRight(MenuDocument& document);

/// Exchanges `CurNode` with its previous sibling.
EditResult moveUp(MenuDocument& document);

/// Exchanges `CurNode` with its next sibling.
EditResult moveDown(MenuDocument& document);

}  // namespace zev
