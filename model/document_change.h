// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// Two places of the document that point at a node; null: at none.
struct NodeSelection {
    const MenuNode* selected = nullptr;  ///< node selected in the tree
    const MenuNode* current = nullptr;   ///< `CurNode`, the node shown in the item panel
    bool operator==(const NodeSelection&) const = default;
};

/// Whose property set is meant: the document's defaults, its top-level menu, or the submenu of a
/// node.
struct MenuPropOwner {
    enum class Kind { Defaults, TopMenu, Submenu };
    Kind kind = Kind::Defaults;
    const MenuNode* node = nullptr;  ///< the node whose submenu it is; else null
    bool operator==(const MenuPropOwner&) const = default;
};

// The changes that a document goes through. Each is what is to be, and when it has been applied the
// change that takes it back is what was: `MenuDocument::apply`. Nodes are named by their address,
// which they keep when they are taken out and put back, so that a change fits a document in the
// state that it was made for.

/// Puts a branch before `row` of `parent` (null: top level).
struct InsertBranch {
    MenuBranch branch;
    const MenuNode* parent = nullptr;
    std::size_t row = 0;
    std::optional<NodeSelection> selection = {};  ///< afterwards; none: it stays
};

/// Takes a node out with its subtree. What would afterwards point into the subtree points at the
/// node's heir: the next sibling, else the previous one, else the parent.
struct RemoveBranch {
    const MenuNode* node;
    std::optional<NodeSelection> selection = {};  ///< afterwards; none: the heir is both
};

/// Moves a node with its subtree before `row` of `parent`, counted before it is taken away.
struct MoveBranch {
    const MenuNode* node;
    const MenuNode* parent = nullptr;
    std::size_t row = 0;
};

struct SetItem {
    const MenuNode* node;
    ItemProp item;
};

struct SetLabel {
    const MenuNode* node;
    std::string text;
};

struct SetExpanded {
    const MenuNode* node;
    bool isExpanded;
};

struct SetMenu {
    MenuPropOwner owner;
    SharedMenuProp properties;
};

struct SetItemCounter {
    std::int16_t ItemCounter;
};

struct SetFile {
    std::string SaveFile;
    std::string SavePath;
};

struct SetSelection {
    NodeSelection selection;
};

struct SetModified {
    bool bModified;
};

/// Puts another content in the place of the whole old one, with a selection in it.
struct ReplaceContent {
    std::unique_ptr<MenuContent> content;  ///< apart, so that the other changes stay small
    NodeSelection selection;
};

using Change =
    std::variant<InsertBranch, RemoveBranch, MoveBranch, SetItem, SetLabel, SetExpanded, SetMenu,
                 SetItemCounter, SetFile, SetSelection, SetModified, ReplaceContent>;
using Changes = std::vector<Change>;

}  // namespace zev
