// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/commands.h"
#include "app/edit_history.h"
#include "app/editor_services.h"
#include "app/editor_view.h"
#include "app/file_commands.h"
#include "app/import_commands.h"
#include "app/notes/editor_notes.h"
#include "model/menu_document.h"
#include "model/tree_editing.h"

class QLineEdit;
class QTabWidget;

namespace zev {

class ItemPanel;
class MenuTreeView;
class RecoveryCommands;
class ScriptView;
class StripLine;
class frmAdvProp;
class frmDefaultProp;
class frmMenuProp;

/// The editor's main window. It builds and connects; what the commands do is decided elsewhere, and
/// what they did to the document it is told by the document.
///
/// Every menu entry, toolbar button and shortcut runs through `run`, which first leaves the field
/// that is being edited, and at the end brings the tab that is shown up to date. The handlers
/// themselves can be called at any time.
class frmMain : public QMainWindow, public EditorView, private DocumentObserver {
    Q_OBJECT
  public:
    /// `programFolder`: the folder that holds the run-time files. `webBrowser`: the widget behind
    /// `services.browser`, placed into the Preview tab, owned by the window from then on. What
    /// `services` refers to is not owned and outlives the window.
    frmMain(const EditorServices& services, const std::string& programFolder, QWidget* webBrowser);
    ~frmMain() override;

    MenuDocument& document() { return m_document; }
    const DocumentHistory& history() const { return m_history.steps(); }

    /// Keeps the menu in `folder`, which need not be there, from now on, and offers what a crash
    /// has left there.
    void keepUnsavedMenus(const std::string& folder);
    /// The same once the window is painted, and before the first command at the latest: until then
    /// there is nothing that could get lost.
    void keepUnsavedMenusSoon(const std::string& folder);

    /// Runs `work` from the event loop once the window has been painted for the first time; at once
    /// when that has been. For what a person need not wait for when the program starts.
    void whenPainted(std::function<void()> work);

    /// Opens the definition file at `path` (full path), as File > Open does with a chosen file. The
    /// program has started with it: nothing is kept yet, and it is not a step that can be undone.
    void openDefinition(const std::string& path);

    void validateFields() override;
    void StoreItem() override;
    void showScript(const std::string& script) override;
    void Button_Update() override;

    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click() { m_fileCommands.mnuFileSave_Click(); }
    void mnuFileSaveAs_Click() { m_fileCommands.mnuFileSaveAs_Click(); }
    /// The entry of File > Import of this format.
    void importMenu(const ImportFormat& format);
    void mnuFileExit_Click();
    void undo();
    void redo();
    void mnuEditDefault_Click();
    void mnuEditMenuProperties_Click();
    void mnuEditAddMenuItem_Click();
    void mnuEditAddSubmenuItem_Click();
    void mnuEditMoveLeft_Click() { edit(moveLeft); }
    void mnuEditMoveRight_Click() { edit(moveRight); }
    void mnuEditMoveUp_Click();
    void mnuEditMoveDown_Click();
    void mnuEditDelete_Click();
    void mnuToolsIntegrate_Click();
    /// Tools > Check Menu.
    void checkMenu() { m_notes.checkMenu(); }
    /// Offers the last runs of the Menu Integrator to be undone.
    void undoIntegration();
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();
    void mnuHelpSupport_Click();
    /// Runs the command of the toolbar button with this key; nothing for an unknown key.
    void tbToolBar_ButtonClick(const QString& key);
    void MenuTab_Click();
    void TreeView_NodeClick(const MenuNode* node);
    /// Takes a label that was edited in the tree.
    void TreeView_AfterLabelEdit(const MenuNode& node, const QString& label);

  signals:
    /// The program is to end now.
    void ended();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void buildTabs(QWidget* webBrowser);
    void buildStatusBar();
    QWidget* buildMenuTab();
    void needDialogs();
    void run(const Command& command);
    void run(const std::string& step, const std::function<void()>& work);
    void runStep(const std::string& step, const std::function<void()>& work);
    void takeBack(void (EditHistory::*there)());
    void showHistory();
    void sayLastCommand();
    QLineEdit* typedField() const;
    void followDocument();
    void guard(const std::function<void()>& work);
    void leaveField();
    void beginRecovery();
    void syncRecovery();
    void edit(EditResult (*command)(MenuDocument&));
    void followChange();
    std::string inUserFolder(const char* name) const;
    /// An empty address is that of the manual's page about support.
    void openAddress(const std::string& address);
    void goTo(const NotePlace& place);
    void goToItem(const MenuNode& node);
    void goToMenu(const NotePlace& place);

    void inserted() override { followChange(); }
    void removed() override { followChange(); }
    void moved() override { followChange(); }
    void contentReplaced() override;
    void itemChanged(const MenuNode& node) override;
    void menuChanged(const MenuPropOwner& owner) override;
    void currentNodeChanged() override;
    void selectedNodeChanged() override;
    void fileChanged() override;
    void modifiedChanged() override;

    MenuDocument m_document;
    EditorServices m_services;
    FileCommands m_fileCommands;
    ImportCommands m_importCommands;
    CommandActions m_commands{*this};
    EditHistory m_history{m_document, [this] { StoreItem(); }};
    EditorNotes m_notes{
        m_document, m_fileCommands, m_services,
        [this](const std::string& step, const std::function<void()>& work) { run(step, work); }};
    bool m_isEnding = false;
    /// What is typed in the panel stays as it is, with its cursor, while it is stored.
    bool m_isStoring = false;
    /// A tree command is made of several changes; commands and selection follow the last one.
    bool m_isEditing = false;

    QTabWidget* MenuTab = nullptr;
    ItemPanel* m_panel = nullptr;
    MenuTreeView* TreeView = nullptr;
    ScriptView* txtJavaScript = nullptr;
    StripLine* m_recoveryLine = nullptr;
    StripLine* m_lastCommand = nullptr;
    /// What `m_lastCommand` says of the step that is being made, and of which state it spoke last.
    QString m_commandLine;
    std::uint64_t m_saidState = 0;
    QWidget* WebBrowser = nullptr;

    // Made once, by `needDialogs` when the first is needed: they keep what was copied and which
    // font was chosen from one use to the next.
    frmDefaultProp* m_defaultForm = nullptr;
    frmMenuProp* m_menuForm = nullptr;
    frmAdvProp* m_advancedForm = nullptr;

    std::unique_ptr<RecoveryCommands> m_recovery;  ///< null: nothing is kept
    std::string m_recoveryFolder;                  ///< that is still to be kept in; empty: none

    std::vector<std::function<void()>> m_afterPainting;
    bool m_isPainted = false;  ///< and `m_afterPainting` done, or about to be
};

}  // namespace zev
