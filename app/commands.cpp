// SPDX-License-Identifier: MIT
#include "app/commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

#include "app/frm_main.h"
#include "app/icons.h"

namespace zev {

namespace {

bool isModified(const MenuDocument& document) {
    return document.bModified();
}

bool hasNode(const MenuDocument& document) {
    return document.CurNode() != nullptr;
}

bool hasParent(const MenuDocument& document) {
    return hasNode(document) && document.CurNode()->parent() != nullptr;
}

bool hasPrevious(const MenuDocument& document) {
    return hasNode(document) && document.tree().previousSibling(*document.CurNode()) != nullptr;
}

bool hasNext(const MenuDocument& document) {
    return hasNode(document) && document.tree().nextSibling(*document.CurNode()) != nullptr;
}

/// Adds the entries of File > Import, one a format.
std::vector<Command> withImports(std::vector<Command> rows) {
    for (const ImportFormat& format : importFormats())
        rows.push_back({{"mnuFileImport", format.menuEntry, format.title},
                        [&format](frmMain& window) { window.importMenu(format); },
                        {},
                        {},
                        "Import"});
    return rows;
}

/// Undo and Redo stand in a bar of their own, so that the buttons of the other keep their numbers.
constexpr const char* kHistoryBar = "tbHistory";

/// Buttons and separators are counted from 1.
void nameLast(QToolBar& toolBar, QAction& last) {
    last.setObjectName(toolBar.objectName() + "_" + QString::number(toolBar.actions().size()));
}

}  // namespace

const std::vector<Command>& CommandActions::rows() {
    using Keeps = Command::Keeps;
    constexpr bool kLeavesKeyToText = true;
    constexpr bool kLeavesField = true;
    static const std::vector<Command> kRows = withImports({
        {{"", "mnuFile", QT_TR_NOOP("&File")}},
        {{"mnuFile", "mnuFileNew", QT_TR_NOOP("&New"), "Ctrl+N"},
         &frmMain::mnuFileNew_Click,
         {QT_TR_NOOP("New"), "new"},
         {},
         QT_TR_NOOP("New")},
        {{"mnuFile", "mnuFileOpen", QT_TR_NOOP("&Open"), "Ctrl+O"},
         &frmMain::mnuFileOpen_Click,
         {QT_TR_NOOP("Open"), "open"},
         {},
         QT_TR_NOOP("Open")},
        {{"mnuFile", "mnuFileSave", QT_TR_NOOP("&Save"), "Ctrl+S"},
         &frmMain::mnuFileSave_Click,
         {QT_TR_NOOP("Save"), "save"},
         {isModified},
         QT_TR_NOOP("Recalculate URLs")},
        {{"mnuFile", "mnuFileSaveAs", QT_TR_NOOP("Save &As")},
         &frmMain::mnuFileSaveAs_Click,
         {},
         {},
         QT_TR_NOOP("Recalculate URLs")},
        {{"mnuFile"}},
        {{"mnuFile", "mnuFileImport", QT_TR_NOOP("&Import")}},
        {{"mnuFile"}},
        {{"mnuFile", "mnuFileExit", QT_TR_NOOP("E&xit")}, &frmMain::mnuFileExit_Click},
        // Below the rest, whose places people know. Filled when it is opened.
        {{"mnuFile"}},
        {{"mnuFile", "mnuFileRestore", QT_TR_NOOP("&Restore Unsaved Menu")}},

        {{"", "mnuEdit", QT_TR_NOOP("&Edit")}},
        {{"mnuEdit", "mnuEditDefault", QT_TR_NOOP("&Default Menu Properties"), "F8"},
         &frmMain::mnuEditDefault_Click,
         {QT_TR_NOOP("Default Properties"), "default_properties"},
         {},
         QT_TR_NOOP("Default Menu Properties")},
        {{"mnuEdit", "mnuEditMenuProperties", QT_TR_NOOP("M&enu Properties"), "F2"},
         &frmMain::mnuEditMenuProperties_Click,
         {QT_TR_NOOP("Menu Properties"), "menu_properties"},
         {hasNode},
         QT_TR_NOOP("Menu Properties")},
        {{"mnuEdit"}},
        {{"mnuEdit", "mnuEditAddMenuItem", QT_TR_NOOP("Add &Menu Item"), "Ctrl+A"},
         &frmMain::mnuEditAddMenuItem_Click,
         {QT_TR_NOOP("Add Menu Item"), "add_menu_item"},
         {hasNode, Keeps::EntryAndButton},
         QT_TR_NOOP("Add Menu Item")},
        {{"mnuEdit", "mnuEditAddSubmenuItem", QT_TR_NOOP("Add &Submenu Item"), "Ctrl+W"},
         &frmMain::mnuEditAddSubmenuItem_Click,
         {QT_TR_NOOP("Add Submenu Item"), "add_submenu_item"},
         {hasNode},
         QT_TR_NOOP("Add Submenu Item")},
        {{"mnuEdit"}},
        // The entries Move Left and Move Right stay usable in an empty menu, where they do
        // nothing, and their buttons alone are greyed.
        {{"mnuEdit", "mnuEditMoveLeft", QT_TR_NOOP("Move &Left"), "Ctrl+L"},
         &frmMain::mnuEditMoveLeft_Click,
         {QT_TR_NOOP("Move Left"), "move_left"},
         {hasParent, Keeps::Entry},
         QT_TR_NOOP("Move Left")},
        {{"mnuEdit", "mnuEditMoveRight", QT_TR_NOOP("Move &Right"), "Ctrl+R"},
         &frmMain::mnuEditMoveRight_Click,
         {QT_TR_NOOP("Move Right"), "move_right"},
         {hasPrevious, Keeps::Entry},
         QT_TR_NOOP("Move Right")},
        {{"mnuEdit", "mnuEditMoveUp", QT_TR_NOOP("Move &Up"), "Ctrl+U"},
         &frmMain::mnuEditMoveUp_Click,
         {QT_TR_NOOP("Move Up"), "move_up"},
         {hasPrevious},
         QT_TR_NOOP("Move Up")},
        {{"mnuEdit", "mnuEditMoveDown", QT_TR_NOOP("Move &Down"), "Ctrl+D"},
         &frmMain::mnuEditMoveDown_Click,
         {QT_TR_NOOP("Move Down"), "move_down"},
         {hasNext},
         QT_TR_NOOP("Move Down")},
        {{"mnuEdit"}},
        {{"mnuEdit", "mnuEditDelete", QT_TR_NOOP("Delete &Item"), "Del"},
         &frmMain::mnuEditDelete_Click,
         {QT_TR_NOOP("Delete"), "delete"},
         {hasNode},
         QT_TR_NOOP("Delete"),
         kLeavesKeyToText},
        {{"mnuEdit"}},
        // Below the rest: the menu opened by key stands on its first entry, which people know by
        // heart.
        {{"mnuEdit", "mnuEditUndo", QT_TR_NOOP("&Undo"), "Ctrl+Z"},
         &frmMain::undo,
         {QT_TR_NOOP("Undo"), "undo", kHistoryBar},
         {},
         "",
         !kLeavesKeyToText,
         !kLeavesField},
        {{"mnuEdit", "mnuEditRedo", QT_TR_NOOP("&Redo"), "Ctrl+Shift+Z; Ctrl+Y"},
         &frmMain::redo,
         {QT_TR_NOOP("Redo"), "redo", kHistoryBar},
         {},
         "",
         !kLeavesKeyToText,
         !kLeavesField},

        {{"", "mnuTools", QT_TR_NOOP("&Tools")}},
        {{"mnuTools", "mnuToolsIntegrate", QT_TR_NOOP("&Menu Integrator")},
         &frmMain::mnuToolsIntegrate_Click},
        {{"mnuTools"}},
        {{"mnuTools", "mnuToolsCheck", QT_TR_NOOP("&Check Menu")}, &frmMain::checkMenu},
        {{"mnuTools", "mnuToolsUndoIntegration", QT_TR_NOOP("&Undo Integration\u2026")},
         &frmMain::undoIntegration},

        {{"", "mnuHelp", QT_TR_NOOP("&Help")}},
        {{"mnuHelp", "mnuHelpContents", QT_TR_NOOP("&Contents"), "F1"},
         &frmMain::mnuHelpContents_Click},
        {{"mnuHelp"}},
        {{"mnuHelp", "mnuHelpAbout", QT_TR_NOOP("&About")}, &frmMain::mnuHelpAbout_Click},
        {{"mnuHelp", "mnuHelpSupport", QT_TR_NOOP("&Support && Upgrades")},
         &frmMain::mnuHelpSupport_Click},
    });
    return kRows;
}

const Command& CommandActions::named(const char* entry) {
    const auto row = std::find_if(rows().begin(), rows().end(), [entry](const Command& command) {
        return QLatin1String(command.entry.name) == QLatin1String(entry);
    });
    Q_ASSERT(row != rows().end());
    return *row;
}

const Command* CommandActions::withButton(const QString& key) {
    const auto row = std::find_if(rows().begin(), rows().end(), [&key](const Command& command) {
        return !key.isEmpty() && key == command.button.key;
    });
    return row != rows().end() ? &*row : nullptr;
}

CommandActions::CommandActions(QMainWindow& window) : m_window(window), m_shortcuts(window) {
    const QToolBar* const mainBar = addToolBar("tbToolBar", tr("Toolbar"));
    addToolBar(kHistoryBar, tr("Undo and Redo"));
    bool isNewGroup = false;
    for (const Command& command : rows()) {
        const Command::Entry& entry = command.entry;
        QMenu* menu = *entry.menu ? window.findChild<QMenu*>(entry.menu) : nullptr;
        isNewGroup = isNewGroup || !command.click;
        if (!*entry.name) {
            menu->addSeparator();
        } else if (!command.click) {
            const QString caption = tr(entry.caption);
            QMenu* added = menu ? menu->addMenu(caption) : window.menuBar()->addMenu(caption);
            added->setObjectName(entry.name);
        } else {
            addEntry(*menu, command);
        }
        if (!*command.button.key)
            continue;
        auto* toolBar = window.findChild<QToolBar*>(command.button.bar);
        if (isNewGroup && toolBar == mainBar && !toolBar->actions().isEmpty())
            nameLast(*toolBar, *toolBar->addSeparator());
        isNewGroup = isNewGroup && toolBar != mainBar;
        addButton(*toolBar, command);
    }
}

QToolBar* CommandActions::addToolBar(const QString& name, const QString& title) {
    auto* toolBar = new QToolBar(title, &m_window);
    toolBar->setObjectName(name);
    toolBar->setMovable(false);
    toolBar->setIconSize(QSize(24, 24));
    m_window.addToolBar(toolBar);
    return toolBar;
}

void CommandActions::Button_Update(const MenuDocument& document) {
    for (const Switch& each : m_switches)
        if (hasNode(document) || !each.keepsWithoutNode)
            each.action->setEnabled(each.isUsable(document));
}

void CommandActions::show(const Command& command, const QString& text, bool isUsable) {
    QString caption = text;
    caption.replace("&", "&&").prepend('&');
    for (const auto& [shown, action] : m_actions) {
        if (shown != &command)
            continue;
        if (action->objectName() == QLatin1String(command.entry.name))
            action->setText(caption);
        else
            action->setToolTip(text);
        action->setEnabled(isUsable);
    }
}

void CommandActions::addEntry(QMenu& menu, const Command& command) {
    QAction& entry = *menu.addAction(tr(command.entry.caption));
    entry.setObjectName(command.entry.name);
    entry.setShortcuts(QKeySequence::listFromString(command.entry.shortcut));
    entry.setMenuRole(QAction::NoRole);
    connectAction(entry, command, command.rule.keepsWithoutNode != Command::Keeps::Nothing);
    for (const QKeySequence& keys : entry.shortcuts())
        if (!keys.isEmpty())
            m_shortcuts.add(keys, command.leavesKeyToText);
}

void CommandActions::addButton(QToolBar& toolBar, const Command& command) {
    const QString caption = tr(command.button.key);
    QAction& button = *toolBar.addAction(buttonIcon(command.button.icon), caption);
    button.setToolTip(caption);
    nameLast(toolBar, button);
    connectAction(button, command, command.rule.keepsWithoutNode == Command::Keeps::EntryAndButton);
}

void CommandActions::connectAction(QAction& action, const Command& command, bool keepsWithoutNode) {
    connect(&action, &QAction::triggered, this, [this, &command] { emit chosen(command); });
    m_actions.emplace_back(&command, &action);
    if (command.rule.isUsable)
        m_switches.push_back({&action, command.rule.isUsable, keepsWithoutNode});
}

}  // namespace zev
