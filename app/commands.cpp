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
                        [&format](frmMain& window) { window.importMenu(format); }});
    return rows;
}

/// Buttons and separators are counted from 1.
void nameLast(QToolBar& toolBar, QAction& last) {
    last.setObjectName(QString("tbToolBar_%1").arg(toolBar.actions().size()));
}

}  // namespace

const std::vector<Command>& CommandActions::rows() {
    using Keeps = Command::Keeps;
    constexpr bool kLeavesKeyToText = true;
    static const std::vector<Command> kRows = withImports({
        {{"", "mnuFile", QT_TR_NOOP("&File")}},
        {{"mnuFile", "mnuFileNew", QT_TR_NOOP("&New"), "Ctrl+N"},
         &frmMain::mnuFileNew_Click,
         {QT_TR_NOOP("New"), "new"}},
        {{"mnuFile", "mnuFileOpen", QT_TR_NOOP("&Open"), "Ctrl+O"},
         &frmMain::mnuFileOpen_Click,
         {QT_TR_NOOP("Open"), "open"}},
        {{"mnuFile", "mnuFileSave", QT_TR_NOOP("&Save"), "Ctrl+S"},
         &frmMain::mnuFileSave_Click,
         {QT_TR_NOOP("Save"), "save"},
         {isModified}},
        {{"mnuFile", "mnuFileSaveAs", QT_TR_NOOP("Save &As")}, &frmMain::mnuFileSaveAs_Click},
        {{"mnuFile"}},
        {{"mnuFile", "mnuFileImport", QT_TR_NOOP("&Import")}},
        {{"mnuFile"}},
        {{"mnuFile", "mnuFileExit", QT_TR_NOOP("E&xit")}, &frmMain::mnuFileExit_Click},

        {{"", "mnuEdit", QT_TR_NOOP("&Edit")}},
        {{"mnuEdit", "mnuEditDefault", QT_TR_NOOP("&Default Menu Properties"), "F8"},
         &frmMain::mnuEditDefault_Click,
         {QT_TR_NOOP("Default Properties"), "default_properties"}},
        {{"mnuEdit", "mnuEditMenuProperties", QT_TR_NOOP("M&enu Properties"), "F2"},
         &frmMain::mnuEditMenuProperties_Click,
         {QT_TR_NOOP("Menu Properties"), "menu_properties"},
         {hasNode}},
        {{"mnuEdit"}},
        {{"mnuEdit", "mnuEditAddMenuItem", QT_TR_NOOP("Add &Menu Item"), "Ctrl+A"},
         &frmMain::mnuEditAddMenuItem_Click,
         {QT_TR_NOOP("Add Menu Item"), "add_menu_item"},
         {hasNode, Keeps::EntryAndButton}},
        {{"mnuEdit", "mnuEditAddSubmenuItem", QT_TR_NOOP("Add &Submenu Item"), "Ctrl+W"},
         &frmMain::mnuEditAddSubmenuItem_Click,
         {QT_TR_NOOP("Add Submenu Item"), "add_submenu_item"},
         {hasNode}},
        {{"mnuEdit"}},
        // The entries Move Left and Move Right stay usable in an empty menu, where they do
        // nothing, and their buttons alone are greyed.
        {{"mnuEdit", "mnuEditMoveLeft", QT_TR_NOOP("Move &Left"), "Ctrl+L"},
         &frmMain::mnuEditMoveLeft_Click,
         {QT_TR_NOOP("Move Left"), "move_left"},
         {hasParent, Keeps::Entry}},
        {{"mnuEdit", "mnuEditMoveRight", QT_TR_NOOP("Move &Right"), "Ctrl+R"},
         &frmMain::mnuEditMoveRight_Click,
         {QT_TR_NOOP("Move Right"), "move_right"},
         {hasPrevious, Keeps::Entry}},
        {{"mnuEdit", "mnuEditMoveUp", QT_TR_NOOP("Move &Up"), "Ctrl+U"},
         &frmMain::mnuEditMoveUp_Click,
         {QT_TR_NOOP("Move Up"), "move_up"},
         {hasPrevious}},
        {{"mnuEdit", "mnuEditMoveDown", QT_TR_NOOP("Move &Down"), "Ctrl+D"},
         &frmMain::mnuEditMoveDown_Click,
         {QT_TR_NOOP("Move Down"), "move_down"},
         {hasNext}},
        {{"mnuEdit"}},
        {{"mnuEdit", "mnuEditDelete", QT_TR_NOOP("Delete &Item"), "Del"},
         &frmMain::mnuEditDelete_Click,
         {QT_TR_NOOP("Delete"), "delete"},
         {hasNode},
         kLeavesKeyToText},

        {{"", "mnuTools", QT_TR_NOOP("&Tools")}},
        {{"mnuTools", "mnuToolsIntegrate", QT_TR_NOOP("&Menu Integrator")},
         &frmMain::mnuToolsIntegrate_Click},

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

const Command* CommandActions::withButton(const QString& key) {
    const auto row = std::find_if(rows().begin(), rows().end(), [&key](const Command& command) {
        return !key.isEmpty() && key == command.button.key;
    });
    return row != rows().end() ? &*row : nullptr;
}

CommandActions::CommandActions(QMainWindow& window) : m_shortcuts(window) {
    auto* toolBar = new QToolBar(tr("Toolbar"), &window);
    toolBar->setObjectName("tbToolBar");
    toolBar->setMovable(false);
    toolBar->setIconSize(QSize(24, 24));
    window.addToolBar(toolBar);
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
        if (isNewGroup && !toolBar->actions().isEmpty())
            nameLast(*toolBar, *toolBar->addSeparator());
        isNewGroup = false;
        addButton(*toolBar, command);
    }
}

void CommandActions::Button_Update(const MenuDocument& document) {
    for (const Switch& each : m_switches)
        if (hasNode(document) || !each.keepsWithoutNode)
            each.action->setEnabled(each.isUsable(document));
}

void CommandActions::addEntry(QMenu& menu, const Command& command) {
    QAction& entry = *menu.addAction(tr(command.entry.caption));
    entry.setObjectName(command.entry.name);
    entry.setShortcut(QKeySequence(command.entry.shortcut));
    entry.setMenuRole(QAction::NoRole);
    connectAction(entry, command, command.rule.keepsWithoutNode != Command::Keeps::Nothing);
    if (*command.entry.shortcut)
        m_shortcuts.add(entry.shortcut(), command.leavesKeyToText);
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
    if (command.rule.isUsable)
        m_switches.push_back({&action, command.rule.isUsable, keepsWithoutNode});
}

}  // namespace zev
