// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "model/menu_document.h"

namespace zev {

/// The item tree as text: caption and link of one item a line, two spaces a level.
inline QString linkTree(const MenuDocument& document) {
    QString text;
    for (const MenuNode* node = document.tree().firstNode(); node != nullptr;
         node = document.tree().nextInTreeOrder(*node)) {
        for (const MenuNode* parent = node->parent(); parent != nullptr; parent = parent->parent())
            text += "  ";
        text += QString::fromStdString(node->item.Caption + " -> " + node->item.URL + "\n");
    }
    return text;
}

}  // namespace zev
