#include "app/command_state.h"

namespace zev {

void CommandState::Button_Update(const MenuDocument& document) {
    mnuFileSave = tbToolBar[3] = document.bModified();
    if (document.CurNode() == nullptr)
        updateWithoutNode();
    else
        updateForNode(document);
}

// The menu entries Move Left and Move Right are not switched here: they stay usable in an empty
// menu, where they do nothing, and their toolbar buttons alone are greyed.
void CommandState::updateWithoutNode() {
    mnuEditMenuProperties = tbToolBar[6] = false;
    mnuEditAddSubmenuItem = tbToolBar[9] = false;
    mnuEditDelete = tbToolBar[16] = false;
    mnuEditMoveUp = tbToolBar[13] = false;
    mnuEditMoveDown = tbToolBar[14] = false;
    tbToolBar[11] = false;
    tbToolBar[12] = false;
}

void CommandState::updateForNode(const MenuDocument& document) {
    const MenuNode& node = *document.CurNode();
    mnuEditMoveLeft = tbToolBar[11] = node.parent() != nullptr;

    const bool hasPrevious = document.tree().previousSibling(node) != nullptr;
    mnuEditMoveRight = tbToolBar[12] = hasPrevious;
    mnuEditMoveUp = tbToolBar[13] = hasPrevious;

    mnuEditMoveDown = tbToolBar[14] = document.tree().nextSibling(node) != nullptr;

    mnuEditMenuProperties = tbToolBar[6] = true;
    mnuEditAddSubmenuItem = tbToolBar[9] = true;
    mnuEditDelete = tbToolBar[16] = true;
    tbToolBar[8] = true;
}

}  // namespace zev
