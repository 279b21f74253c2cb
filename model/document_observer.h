// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "model/document_change.h"

namespace zev {

/// Is told what happens to a document; everything it does not ask for passes by. An observer must
/// not change the document while it is told.
class DocumentObserver {
  public:
    virtual ~DocumentObserver() = default;

    // The tree, before and after, in the terms an item view needs. `parent` is null for the top
    // level; rows count from 0. A node that comes or goes brings or takes its subtree.

    virtual void aboutToInsert(const MenuNode* /*parent*/, std::size_t /*row*/) {}
    virtual void inserted() {}
    virtual void aboutToRemove(const MenuNode* /*parent*/, std::size_t /*row*/) {}
    virtual void removed() {}
    /// The node will stand at `row` of `parent` as counted before it is taken from its old place.
    virtual void aboutToMove(const MenuNode& /*node*/, const MenuNode* /*parent*/,
                             std::size_t /*row*/) {}
    virtual void moved() {}
    /// The whole content, the current and the selected node with it.
    virtual void aboutToReplaceContent() {}
    virtual void contentReplaced() {}

    // Everything else, once it has another value.

    virtual void labelChanged(const MenuNode& /*node*/) {}
    virtual void expansionChanged(const MenuNode& /*node*/) {}
    virtual void itemChanged(const MenuNode& /*node*/) {}
    virtual void menuChanged(const MenuPropOwner& /*owner*/) {}
    virtual void currentNodeChanged() {}
    virtual void selectedNodeChanged() {}
    virtual void fileChanged() {}
    virtual void modifiedChanged() {}
};

}  // namespace zev
