// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "model/menu_content.h"
#include "model/menu_tree.h"
#include "recovery/record_bytes.h"

namespace zev {

// How the parts of a menu stand in a record. A property stands under its name in the script, and
// only where it is set, so that the set of properties may grow.

void writeProperties(RecordWriter& record, const MenuProp& properties);
MenuProp readProperties(RecordReader& record);

/// All of an item but the properties of its submenu.
void writeItem(RecordWriter& record, const ItemProp& item);
/// Leaves the properties of the submenu as they are.
void readItem(RecordReader& record, ItemProp& item);

/// The nodes with all below them.
void writeNodes(RecordWriter& record, std::span<const MenuNode* const> nodes);
/// Puts the nodes, which were written with all below them, before `row` of `parent` (null: top
/// level). False when they are not whole or do not fit into the tree; some may be there then.
bool readNodes(RecordReader& record, MenuTree& tree, const MenuNode* parent, std::size_t row);

}  // namespace zev
