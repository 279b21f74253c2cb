// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "model/document_change.h"
#include "model/document_observer.h"
#include "model/menu_content.h"

namespace zev {

/// Is given what takes each change of a document back, in the order of the changes. What a document
/// knows of its own file (`bModified`, a new name under which it was saved) is no change to take
/// back.
class ChangeRecorder {
  public:
    virtual ~ChangeRecorder() = default;
    virtual void changed(Change inverse) = 0;
    /// The document is now the one that its file holds, or an empty one without a file.
    virtual void saved() = 0;
};

/// The menu being edited: its content, and what the editor knows of the file it belongs to.
///
/// Everything it gives away is const. Whoever wants it changed calls an operation; all operations
/// are made of the changes of `apply`, which knows the inverse of each and tells the observers.
class MenuDocument {
  public:
    /// A new, empty document. `programFolder`: the program's own folder, the `SavePath` of a
    /// document never saved.
    explicit MenuDocument(std::string programFolder);
    MenuDocument(const MenuDocument&) = delete;
    MenuDocument& operator=(const MenuDocument&) = delete;

    const std::string& programFolder() const { return m_programFolder; }
    const MenuContent& content() const { return m_content; }
    const MenuTree& tree() const { return m_content.tree; }
    const MenuProp& DefaultProp() const { return m_content.DefaultProp; }
    const MenuProp& RootMenuProp() const { return m_content.RootMenuProp; }
    std::int16_t ItemCounter() const { return m_content.ItemCounter; }
    /// The property set of `owner`. Valid until that set is changed or its node removed.
    const MenuProp& menuProp(const MenuPropOwner& owner) const;
    /// Full path of the definition file; empty when never saved.
    const std::string& SaveFile() const { return m_saveFile; }
    /// Folder that relative URLs and run-time copies belong to.
    const std::string& SavePath() const { return m_savePath; }
    /// There are changes not yet saved.
    bool bModified() const { return m_isModified; }
    /// Node shown in the item panel; null when there is none. Always a node of the tree.
    const MenuNode* CurNode() const { return m_selection.current; }
    /// Node selected in the tree; null when there is none. Always a node of the tree. The same as
    /// `CurNode` except after Add Submenu Item without a selection.
    const MenuNode* selectedNode() const { return m_selection.selected; }

    /// Applies a change and returns the one that takes it back, to be applied to the document as
    /// this change left it. Neither copies what it holds. A change to what is there already tells
    /// nobody. Nothing is recorded.
    Change apply(Change change);
    /// Applies the changes in their order and returns those that take them all back, in theirs.
    Changes apply(Changes changes);
    /// Applies a change and records what takes it back, if it changed anything.
    void change(Change change);
    /// Records what `apply` returned, for changes that have come to stay.
    void record(Changes inverses);
    /// Not owned; null for none. There is none at first.
    void setRecorder(ChangeRecorder* recorder) { m_recorder = recorder; }

    /// Not owned; must outlive its registration, which must not change while observers are told.
    void addObserver(DocumentObserver& observer) { m_observers.push_back(&observer); }
    void removeObserver(DocumentObserver& observer) { std::erase(m_observers, &observer); }

    // Operations. Where nothing else is said, `bModified` stays as it is.

    /// Resets to the empty document: no nodes, factory defaults, no file, nothing modified.
    void NewDocument();
    /// Shows `content`, its first node current and selected, as that of the definition file
    /// `SaveFile` in the folder `SavePath`. `bModified` is false afterwards.
    void open(MenuContent content, std::string SaveFile, std::string SavePath);
    /// The same for content that belongs to no definition file yet.
    void open(MenuContent content);
    /// Shows `content` in place of the whole menu, its first node current and selected; the file
    /// stays, and `bModified` is set.
    void replaceContent(MenuContent content);
    /// The same for content that its file does not hold: `bModified` is true afterwards, and no
    /// step has led to what was saved. `selection` is in `content`.
    void restore(MenuContent content, std::string SaveFile, std::string SavePath,
                 NodeSelection selection);
    /// The document belongs to another file and folder from now on, and is not taken back from
    /// there.
    void setFile(std::string SaveFile, std::string SavePath);
    /// Makes a node, or none, selected and current.
    void select(const MenuNode* node);
    void setItem(const MenuNode& node, ItemProp item);
    void setLabel(const MenuNode& node, std::string text);
    void setExpanded(const MenuNode& node, bool isExpanded);
    /// Expands all ancestors of `node`.
    void makeVisible(const MenuNode& node);
    /// Sets a property set and `bModified`.
    void setMenu(const MenuPropOwner& owner, MenuProp properties);
    /// The same without `bModified`.
    void setMenuUnmarked(const MenuPropOwner& owner, MenuProp properties);
    /// Sets `bModified`: something has changed, or was typed and will be stored.
    void markModified();
    /// Clears `bModified`: the document's file holds what it holds.
    void markSaved();
    /// Clears `bModified` alone: what would need saving still does.
    void clearModified();

  private:
    bool isAlready(const Change& change) const;
    void changeContent(MenuContent content);
    Change perform(InsertBranch&& change);
    Change perform(RemoveBranch&& change);
    Change perform(MoveBranch&& change);
    Change perform(SetItem&& change);
    Change perform(SetLabel&& change);
    Change perform(SetExpanded&& change);
    Change perform(SetMenu&& change);
    Change perform(SetItemCounter&& change);
    Change perform(SetFile&& change);
    Change perform(SetSelection&& change);
    Change perform(SetModified&& change);
    Change perform(ReplaceContent&& change);
    const MenuNode* heirOf(const MenuNode& node) const;
    void tellSelection(const NodeSelection& before);

    template <typename... Parameters>
    void tell(void (DocumentObserver::*what)(Parameters...),
              std::type_identity_t<Parameters>... parameters);

    std::string m_programFolder;
    MenuContent m_content;
    std::string m_saveFile;
    std::string m_savePath;
    bool m_isModified = false;
    NodeSelection m_selection;
    std::vector<DocumentObserver*> m_observers;
    ChangeRecorder* m_recorder = nullptr;
    bool m_isTelling = false;
};

}  // namespace zev
