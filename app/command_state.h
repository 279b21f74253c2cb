#pragma once

#include <array>
#include <cstddef>

#include "model/menu_document.h"

namespace zev {

/// Highest index of the toolbar's buttons and separators, which count from 1.
inline constexpr std::size_t kToolBarItems = 16;

/// Which commands of the main window can be used: the menu entries and toolbar buttons that are
/// ever switched, all others being always available. Knows no window.
///
/// Entries and buttons of one command are switched apart, and some keep the state they had, so the
/// state is carried from one update to the next.
struct CommandState {
    bool mnuFileSave = true;
    bool mnuEditMenuProperties = true;
    bool mnuEditAddSubmenuItem = true;
    bool mnuEditMoveLeft = true;
    bool mnuEditMoveRight = true;
    bool mnuEditMoveUp = true;
    bool mnuEditMoveDown = true;
    bool mnuEditDelete = true;
    /// By the index of the button; 0 and the separators are unused.
    std::array<bool, kToolBarItems + 1> tbToolBar = makeAllEnabled();

    bool operator==(const CommandState&) const = default;

    /// Derives the state from `bModified` and `CurNode`. Without a `CurNode` the menu entries Move
    /// Left and Move Right and the button Add Menu Item keep what they had.
    void Button_Update(const MenuDocument& document);

  private:
    static constexpr std::array<bool, kToolBarItems + 1> makeAllEnabled() {
        std::array<bool, kToolBarItems + 1> all{};
        all.fill(true);
        return all;
    }
    void updateWithoutNode();
    void updateForNode(const MenuDocument& document);
};

}  // namespace zev
