// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <utility>
#include <vector>

#include "app/shortcut_keys.h"
#include "model/menu_document.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace zev {

class frmMain;

/// One row of the table of commands. Texts are English; they are translated where they are shown.
struct Command {
    /// Its menu entry. A row that has only a menu is a separator there, one without a handler a
    /// menu itself.
    struct Entry {
        const char* menu = "";      ///< object name of the menu it stands in; empty: the menu bar
        const char* name = "";      ///< object name
        const char* caption = "";   ///< "&" marks the access key
        const char* shortcut = "";  ///< empty: none; several are parted by "; "
    };
    /// Its toolbar button. The key is the tooltip as well; empty: there is none.
    struct Button {
        const char* key = "";
        const char* icon = "";  ///< as `buttonIcon` takes it
        const char* bar = "tbToolBar";
    };
    /// What stays as it was, usable or not, while there is no `CurNode`.
    enum class Keeps { Nothing, Entry, EntryAndButton };
    struct Rule {
        bool (*isUsable)(const MenuDocument&) = nullptr;  ///< null: always
        Keeps keepsWithoutNode = Keeps::Nothing;
    };

    Entry entry;
    std::function<void(frmMain&)> click = nullptr;
    Button button = {};
    Rule rule = {};
    const char* step = "";         ///< name of the step that Undo takes back; empty: it makes none
    bool leavesKeyToText = false;  ///< in a text field its shortcut edits the text instead
    bool leavesField = true;       ///< the field being edited is left before it
};

/// The commands of the main window: their table, and the menus, toolbar and shortcuts made from it.
/// What a command does is the window's; so is what comes before and after each.
class CommandActions : public QObject {
    Q_OBJECT
  public:
    /// Each menu's rows in its order, which gives the toolbar its order and separators too.
    static const std::vector<Command>& rows();
    /// The command with this entry; there must be one.
    static const Command& named(const char* entry);
    /// The command whose toolbar button has this key; null when there is none.
    static const Command* withButton(const QString& key);

    /// Fills the menu bar of `window` and gives it the toolbar. `window` is not owned and outlives
    /// the object.
    explicit CommandActions(QMainWindow& window);

    /// Enables and disables entries and buttons after `bModified` and `CurNode`.
    void Button_Update(const MenuDocument& document);
    /// Gives the entry and button of a command another text, and makes them usable or not.
    void show(const Command& command, const QString& text, bool isUsable);

  signals:
    /// The person chose this command by menu, button or shortcut.
    void chosen(const Command& command);

  private:
    void addEntry(QMenu& menu, const Command& command);
    QToolBar* addToolBar(const QString& name, const QString& title);
    void addButton(QToolBar& toolBar, const Command& command);
    void connectAction(QAction& action, const Command& command, bool keepsWithoutNode);

    /// An entry or button that is not always usable.
    struct Switch {
        QAction* action;
        bool (*isUsable)(const MenuDocument&);
        bool keepsWithoutNode;
    };
    QMainWindow& m_window;
    std::vector<Switch> m_switches;
    std::vector<std::pair<const Command*, QAction*>> m_actions;  ///< entries and buttons
    ShortcutKeys m_shortcuts;
};

}  // namespace zev
