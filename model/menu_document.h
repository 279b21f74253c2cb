#pragma once

#include <cstdint>
#include <string>

#include "model/menu_prop.h"
#include "model/menu_tree.h"

namespace zev {

/// Everything that one definition file describes, and what the editor knows about that file.
///
/// `selectedNode` is the node selected in the tree, `CurNode` the one shown in the item panel. They
/// are the same except after Add Submenu Item without a selection.
class MenuDocument {
  public:
    /// `programFolder`: the program's own folder, the `SavePath` of a document never saved.
    explicit MenuDocument(std::string programFolder);

    std::string SaveFile;              ///< full path of the definition file; empty when never saved
    std::string SavePath;              ///< folder that relative URLs and run-time copies belong to
    bool bModified = false;            ///< there are changes not yet saved
    MenuNode* CurNode = nullptr;       ///< node shown in the item panel; null when there is none
    MenuNode* selectedNode = nullptr;  ///< node selected in the tree; null when there is none
    MenuProp RootMenuProp;             ///< properties of the top-level menu
    MenuProp DefaultProp;              ///< menu-wide defaults
    std::int16_t ItemCounter = 0;      ///< number of the next item made in the editor
    MenuTree tree;

    const std::string& programFolder() const { return m_programFolder; }

    /// Resets to the empty document: no nodes, factory defaults, no file.
    void NewDocument();

    /// Takes the whole state of `other` (tree, properties, file, flags, counter); the observer of
    /// `tree` stays registered and is told of one reset. `other` is an empty document afterwards.
    void takeFrom(MenuDocument& other);

  private:
    std::string m_programFolder;
};

/// Largest `ItemCounter`; the counter is 16 bits wide and never wraps.
inline constexpr std::int16_t kMaxItemCounter = 32767;

/// The submenu property set every new item starts with: usual divider and spaces, all else unset.
const SharedMenuProp& NewItemMenuProp();

}  // namespace zev
