// SPDX-License-Identifier: MIT
#include "app/frm_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <cstddef>
#include <exception>
#include <initializer_list>
#include <utility>
#include <vector>

#include "app/frm_about.h"
#include "app/item_panel.h"
#include "app/menu_tree_view.h"
#include "app/notes_bar.h"
#include "app/open_url.h"
#include "app/recovery_commands.h"
#include "app/script_view.h"
#include "app/strip_line.h"
#include "checks/menu_links.h"
#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "html/caption_text.h"
#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/undo_window.h"
#include "library/changed_files.h"
#include "messages/library_messages.h"
#include "script/script_writer.h"
#include "script/submenu_list.h"
#include "text/path.h"
#include "text/program_name.h"

namespace zev {

namespace {

constexpr const char* kManual = "help/index.html";
constexpr const char* kManualOfSupport = "help/support.html";

// A list instead of recursion: a menu may be thousands of levels deep.
std::size_t sizeOf(const MenuNode& top) {
    std::vector<const MenuNode*> branch = {&top};
    for (std::size_t i = 0; i < branch.size(); ++i)
        branch.insert(branch.end(), branch[i]->children().begin(), branch[i]->children().end());
    return branch.size();
}

/// "About us", "About us and 1 item", "About us and 7 items": a node and all below it.
std::string branchName(const MenuNode& top) {
    const std::size_t below = sizeOf(top) - 1;
    std::string name = captionName(top.item.Caption);
    if (below > 0)
        name += " and " + std::to_string(below) + (below == 1 ? " item" : " items");
    return name;
}

}  // namespace

frmMain::frmMain(const EditorServices& services, const std::string& programFolder,
                 QWidget* webBrowser)
    : m_document(programFolder),
      m_services(services),
      m_fileCommands(m_document, *this, services),
      m_importCommands(m_document, m_fileCommands, services.messages) {
    setObjectName("frmMain");
    // The usual menu of a main window would hide the toolbar.
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(&m_commands, &CommandActions::chosen, this,
            [this](const Command& command) { run(command); });
    buildTabs(webBrowser);
    buildStatusBar();
    resize(920, 660);

    // Behind the tree's model: what is selected there must be there.
    m_document.addObserver(*this);
    fileChanged();
    m_fileCommands.reset();
    m_history.clear();
    connect(&m_history, &EditHistory::changed, this, &frmMain::showHistory);
    connect(qApp, &QApplication::focusChanged, this, &frmMain::showHistory);
    showHistory();
    TreeView->setFocus();
}

// The widgets look at the document until they are gone.
frmMain::~frmMain() {
    m_document.removeObserver(*this);
    delete m_menuForm;
    delete m_defaultForm;
    delete takeCentralWidget();
}

void frmMain::buildTabs(QWidget* webBrowser) {
    txtJavaScript = new ScriptView(this);
    txtJavaScript->setObjectName("txtJavaScript");
    txtJavaScript->setAccessibleName(tr("JavaScript"));
    WebBrowser = webBrowser;
    WebBrowser->setObjectName("WebBrowser");
    WebBrowser->setAccessibleName(tr("Preview"));

    MenuTab = new QTabWidget(this);
    MenuTab->setObjectName("MenuTab");
    MenuTab->setAccessibleName(tr("Views of the menu"));
    MenuTab->addTab(buildMenuTab(), tr("Menu"));
    MenuTab->addTab(txtJavaScript, tr("JavaScript"));
    MenuTab->addTab(WebBrowser, tr("Preview"));
    connect(MenuTab, &QTabWidget::currentChanged, this,
            [this] { guard([this] { MenuTab_Click(); }); });
    setCentralWidget(MenuTab);
}

/// Says once, at the start, when the run-time files that go with every menu are not the program's.
void frmMain::buildStatusBar() {
    auto* sbStatusBar = new QStatusBar(this);
    sbStatusBar->setObjectName("sbStatusBar");
    setStatusBar(sbStatusBar);
    const std::string& folder = m_document.programFolder();
    const std::string text = changedFilesText(
        folder,
        changedRunTimeFiles(m_services.files, Path(folder), CopiedFiles::ScriptsAndPreviewPage));
    if (text.empty())
        return;
    auto* changedFiles = new QLabel(QString::fromStdString(text));
    changedFiles->setObjectName("changedFiles");
    changedFiles->setTextFormat(Qt::PlainText);
    changedFiles->setToolTip(changedFiles->text().toHtmlEscaped());
    // A long path must not make the window wide.
    changedFiles->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    sbStatusBar->addWidget(changedFiles, 1);
}

QWidget* frmMain::buildMenuTab() {
    m_panel = new ItemPanel(m_document, m_services);
    // On a small screen the panel scrolls instead of forcing the window to its own height.
    auto* panelArea = new QScrollArea;
    panelArea->setWidget(m_panel);
    panelArea->setWidgetResizable(true);
    panelArea->setFrameShape(QFrame::NoFrame);
    panelArea->setFocusPolicy(Qt::NoFocus);
    panelArea->viewport()->setAutoFillBackground(false);
    m_panel->setAutoFillBackground(false);

    TreeView = new MenuTreeView(m_document);
    TreeView->setObjectName("TreeView");
    TreeView->setAccessibleName(tr("Menu items"));
    connect(TreeView, &MenuTreeView::nodeClicked, this,
            [this](const MenuNode* node) { guard([this, node] { TreeView_NodeClick(node); }); });
    connect(TreeView, &MenuTreeView::labelEdited, this, &frmMain::TreeView_AfterLabelEdit);
    connect(m_panel, &ItemPanel::editing, &m_history, &EditHistory::beginTyping);
    connect(m_panel, &ItemPanel::fieldLeft, &m_history, &EditHistory::endTypingOf);

    auto* splitter = new QSplitter;
    m_recoveryLine = new StripLine("Recovery", tr("Recovery"), this);
    m_lastCommand = new StripLine("LastCommand", tr("Last command"), this);
    auto* treeSide = new QWidget;
    auto* treeLayout = new QVBoxLayout(treeSide);
    treeLayout->setContentsMargins(0, 0, 0, 0);
    treeLayout->addWidget(m_recoveryLine);
    auto* notesBar = new NotesBar(m_notes, this);
    connect(
        notesBar, &NotesBar::placeChosen, this,
        [this](const NotePlace& place) { guard([&] { goTo(place); }); });
    connect(notesBar, &NotesBar::focusLost, this, [this] { TreeView->setFocus(); });
    treeLayout->addWidget(notesBar);
    treeLayout->addWidget(m_lastCommand);
    treeLayout->addWidget(TreeView);
    splitter->addWidget(panelArea);
    splitter->addWidget(treeSide);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(splitter);
    return page;
}

/// Makes the property dialogs, unless they are there.
void frmMain::needDialogs() {
    if (m_defaultForm != nullptr)
        return;
    const DialogHost host{m_document, m_services.messages, m_services.dialogs};
    m_defaultForm = new frmDefaultProp(host, this);
    m_advancedForm = new frmAdvProp(host, nullptr);
    m_menuForm = new frmMenuProp(host, *m_defaultForm, *m_advancedForm, this);
    // One of these is opened from another: each OK is a step of its own.
    for (const QDialog* form :
         std::initializer_list<QDialog*>{m_defaultForm, m_menuForm, m_advancedForm})
        connect(form, &QDialog::accepted, &m_history,
                [this, form] { m_history.cut(form->windowTitle().toStdString()); });
    // Window managers keep it in front of the dialog that it is opened from, whatever is clicked.
    m_advancedForm->setParent(m_menuForm, m_advancedForm->windowFlags());
    m_defaultForm->LoadDefaultDialog();
}

void frmMain::keepUnsavedMenus(const std::string& folder) {
    m_recovery = std::make_unique<RecoveryCommands>(
        RecoveryHost{m_document, m_history, m_services.files, *m_recoveryLine,
                     *findChild<QMenu*>("mnuFileRestore"), *this,
                     [this](const std::string& step, const std::function<void()>& work) {
                         run(step, work);
                     }},
        folder);
}

void frmMain::keepUnsavedMenusSoon(const std::string& folder) {
    m_recoveryFolder = folder;
    whenPainted([this] { beginRecovery(); });
}

void frmMain::whenPainted(std::function<void()> work) {
    if (m_isPainted)
        work();
    else
        m_afterPainting.push_back(std::move(work));
}

void frmMain::beginRecovery() {
    if (!m_recoveryFolder.empty())
        keepUnsavedMenus(std::exchange(m_recoveryFolder, {}));
}

/// What is about to be replaced outlasts a power failure too.
void frmMain::syncRecovery() {
    if (m_recovery)
        m_recovery->sync();
}

void frmMain::openDefinition(const std::string& path) {
    runStep("Open", [this, &path] { m_fileCommands.openDefinition(path); });
    // There is nothing before it to go back to.
    m_history.clear();
}

void frmMain::validateFields() {
    m_panel->validateFields();
}

void frmMain::StoreItem() {
    if (m_document.CurNode() == nullptr)
        return;
    // A label edited in the tree stands for the item as it was stored, perhaps with another type.
    m_panel->labelSelectedNode();
    const QScopedValueRollback storing(m_isStoring, true);
    m_panel->StoreItem(m_document.CurNode());
    m_history.endTyping();
}

void frmMain::showScript(const std::string& script) {
    txtJavaScript->showScript(script);
}

void frmMain::Button_Update() {
    m_commands.Button_Update(m_document);
}

void frmMain::mnuFileNew_Click() {
    syncRecovery();
    m_fileCommands.mnuFileNew_Click();
}

void frmMain::mnuFileOpen_Click() {
    syncRecovery();
    m_fileCommands.mnuFileOpen_Click();
}

void frmMain::importMenu(const ImportFormat& format) {
    syncRecovery();
    m_importCommands.run(format);
}

void frmMain::mnuFileExit_Click() {
    syncRecovery();
    if (!m_fileCommands.mnuFileExit_Click())
        return;
    if (m_recovery)
        m_recovery->leave(m_fileCommands.hasDeclinedToSave());
    m_isEnding = true;
    close();
    emit ended();
}

void frmMain::undo() {
    if (QLineEdit* field = typedField(); field && field->isUndoAvailable())
        field->undo();
    else
        takeBack(&EditHistory::undo);
    showHistory();
}

void frmMain::redo() {
    if (QLineEdit* field = typedField(); field && field->isRedoAvailable())
        field->redo();
    else
        takeBack(&EditHistory::redo);
    showHistory();
}

void frmMain::mnuEditDefault_Click() {
    needDialogs();
    // What was typed and cancelled is still in its boxes.
    m_defaultForm->LoadDefaultDialog();
    m_defaultForm->exec();
}

void frmMain::mnuEditMenuProperties_Click() {
    needDialogs();
    if (m_menuForm->fill())
        m_menuForm->exec();
}

void frmMain::mnuEditAddMenuItem_Click() {
    StoreItem();
    edit(addMenuItem);
}

void frmMain::mnuEditAddSubmenuItem_Click() {
    // With a selection the panel goes on showing the same item, and keeps what is typed there.
    if (m_document.selectedNode() == nullptr)
        StoreItem();
    edit(addSubmenuItem);
}

// Delete, Move Up and Move Down bring the commands up to date also when there is nothing to do:
// that greys the Save which a save has left usable. Move Left and Move Right do not.

void frmMain::mnuEditDelete_Click() {
    if (const MenuNode* doomed = m_document.selectedNode()) {
        const std::string name = branchName(*doomed);
        m_history.rename("Delete " + name);
        m_commandLine = tr("Deleted %1.").arg(QString::fromStdString(name));
    }
    edit(deleteItem);
    // An item that was shown without being selected has not had its label until now.
    m_panel->labelSelectedNode();
    Button_Update();
}

void frmMain::mnuEditMoveUp_Click() {
    edit(moveUp);
    Button_Update();
}

void frmMain::mnuEditMoveDown_Click() {
    edit(moveDown);
    Button_Update();
}

/// A folder for what the program remembers of one kind; empty when it remembers nothing.
std::string frmMain::inUserFolder(const char* name) const {
    return m_services.userFolder.empty() ? "" : Path(m_services.userFolder).child(name);
}

void frmMain::mnuToolsIntegrate_Click() {
    frmIntegrator wizard({m_services.files, m_services.messages, m_services.dialogs,
                          inUserFolder("wizard"), inUserFolder("runs"), m_services.vendor},
                         mountedDrives(), this);
    if (!m_document.SaveFile().empty())
        wizard.setDefinition(m_document.SaveFile());
    if (m_document.CurNode() != nullptr) {
        wizard.showSubmenus(ListSubmenus(m_document.content()));
        wizard.setLinkList([this](const std::string& definitionURL) {
            return noScriptLinks(m_document.content(), definitionURL);
        });
    }
    if (m_document.bModified())
        wizard.sayUnsaved();
    wizard.recallEntries();
    wizard.exec();
}

void frmMain::undoIntegration() {
    UndoWindow window(m_services.files, m_services.messages, inUserFolder("runs"), this);
    window.exec();
}

void frmMain::mnuHelpContents_Click() {
    m_services.help.show(Path(m_document.programFolder()).child(kManual));
}

void frmMain::mnuHelpAbout_Click() {
    frmAbout about(
        m_services.vendor, [this](const std::string& address) { openAddress(address); }, this);
    about.exec();
}

void frmMain::mnuHelpSupport_Click() {
    openAddress(m_services.vendor.support);
}

void frmMain::tbToolBar_ButtonClick(const QString& key) {
    if (const Command* command = CommandActions::withButton(key))
        run(*command);
}

void frmMain::MenuTab_Click() {
    TreeView->commitEditor();
    if (MenuTab->currentWidget() == WebBrowser) {
        m_fileCommands.showPreview();
    } else if (MenuTab->currentWidget() == txtJavaScript) {
        StoreItem();
        showScript(GenerateScript(m_document.content()));
    }
}

void frmMain::TreeView_NodeClick(const MenuNode* node) {
    StoreItem();
    m_document.select(node);
    // Nothing is announced of a node that was current already, perhaps without being selected.
    m_panel->ShowItem(node);
    m_panel->labelSelectedNode();
    Button_Update();
}

void frmMain::TreeView_AfterLabelEdit(const MenuNode& node, const QString& label) {
    const auto rename = [&] {
        m_document.setLabel(node, label.toStdString());
        m_panel->TreeView_AfterLabelEdit(label);
    };
    // A type chosen a moment ago is not stored for it: the label stands for the item as it was.
    if (m_history.isTyping()) {
        rename();
        return;
    }
    m_history.run("Rename " + captionName(node.item.Caption), [&] {
        rename();
        StoreItem();
    });
}

void frmMain::run(const Command& command) {
    if (command.leavesField)
        run(command.step, [this, &command] { command.click(*this); });
    else
        guard([this, &command] { command.click(*this); });
}

/// Runs a command as the person does who leaves the field being edited for it. `step`: as in
/// `Command`.
void frmMain::run(const std::string& step, const std::function<void()>& work) {
    beginRecovery();
    runStep(step, work);
}

void frmMain::runStep(const std::string& step, const std::function<void()>& work) {
    leaveField();
    guard([&] {
        if (step.empty()) {
            m_history.storeTyping();
            work();
        } else {
            m_history.run(step, work);
        }
        followDocument();
    });
}

void frmMain::takeBack(void (EditHistory::*there)()) {
    leaveField();
    {
        const QScopedValueRollback editing(m_isEditing, true);
        (m_history.*there)();
    }
    TreeView->showSelection();
    Button_Update();
    followDocument();
}

/// The field that is being typed in; null when there is none.
QLineEdit* frmMain::typedField() const {
    return qobject_cast<QLineEdit*>(focusWidget());
}

/// What the last step has removed out of sight can be had back beside the tree, until the next
/// step.
void frmMain::sayLastCommand() {
    if (std::exchange(m_saidState, history().state()) == history().state())
        return;
    const bool hadFocus = m_lastCommand->isAncestorOf(focusWidget());
    const QString line = std::exchange(m_commandLine, {});
    if (line.isEmpty())
        m_lastCommand->say("");
    else
        m_lastCommand->say(line, {{tr("Undo"), [this] { undo(); }}});
    if (hadFocus)
        TreeView->setFocus();
}

/// Undo and Redo say what they will do.
void frmMain::showHistory() {
    sayLastCommand();
    const QLineEdit* const field = typedField();
    const auto show = [this](const char* entry, const QString& verb, bool isTyped,
                             const std::string& step) {
        const QString what = isTyped ? tr("Typing") : QString::fromStdString(step);
        m_commands.show(CommandActions::named(entry), what.isEmpty() ? verb : verb + " " + what,
                        !what.isEmpty());
    };
    show("mnuEditUndo", tr("Undo"), field && field->isUndoAvailable(), m_history.undoName());
    show("mnuEditRedo", tr("Redo"), field && field->isRedoAvailable(), m_history.redoName());
}

/// The JavaScript or Preview tab, when it is the one shown, follows what a command did. Unlike a
/// switch to the tab this cleans no fields (the one being edited was left before the command), and
/// it stores the panel only where the preview is written again, as every save does.
void frmMain::followDocument() {
    if (m_isEnding)
        return;
    if (MenuTab->currentWidget() == WebBrowser)
        m_fileCommands.updatePreview();
    else if (MenuTab->currentWidget() == txtJavaScript)
        showScript(GenerateScript(m_document.content()));
}

/// No exception may reach Qt's event loop; what is still possible is a lack of memory.
void frmMain::guard(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& problem) {
        m_services.messages.notice(std::string("The command could not be finished: ") +
                                   problem.what());
    }
}

void frmMain::leaveField() {
    TreeView->commitEditor();
    leaveFocusedEdit(*this);
}

/// Runs a tree editing command; what it changes the document announces.
void frmMain::edit(EditResult (*command)(MenuDocument&)) {
    const EditResult result = [&] {
        const QScopedValueRollback editing(m_isEditing, true);
        return command(m_document);
    }();
    // Also where the selection stays: Ctrl with an arrow key may have left the selected row.
    if (result == EditResult::Done) {
        TreeView->showSelection();
        Button_Update();
    }
    if (result != EditResult::CounterExhausted)
        return;
    std::string notice =
        "The menu has used all its " + std::to_string(kMaxItemCounter) + " item numbers.";
    // An opened menu has used one number an item.
    if (m_document.tree().size() < std::size_t(kMaxItemCounter))
        notice += " Save it and open it again to add more items.";
    m_services.messages.notice(notice);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_isEnding)
        run("", [this] { mnuFileExit_Click(); });
    event->setAccepted(m_isEnding);
}

// Another program may have been at work meanwhile. In a command the window becomes active again
// after each of its dialogs.
void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    if (!m_history.isInCommand())
        guard([this] { m_fileCommands.lookAtFile(); });
}

// What is painted here is in sight when the event loop is reached again.
void frmMain::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (std::exchange(m_isPainted, true))
        return;
    for (std::function<void()>& work : std::exchange(m_afterPainting, {}))
        QTimer::singleShot(0, this, std::move(work));
}

/// Shows the field that a note is about: in the panel, or in the dialog of its menu.
void frmMain::goTo(const NotePlace& place) {
    if (place.owner == NotePlace::Owner::Nowhere)
        return;
    needDialogs();
    leaveField();
    MenuTab->setCurrentIndex(0);
    if (place.owner == NotePlace::Owner::Defaults) {
        m_defaultForm->focusBoxAtStart(place.field);
        run(CommandActions::named("mnuEditDefault"));
    } else if (place.owner == NotePlace::Owner::Menu) {
        goToMenu(place);
    } else if (const MenuNode* node = m_document.tree().find(place.key)) {
        goToItem(*node);
        m_panel->focusField(place.field);
    }
}

void frmMain::goToItem(const MenuNode& node) {
    m_document.makeVisible(node);
    TreeView_NodeClick(&node);
    TreeView->showSelection();
}

/// The dialog shows the menu that the selected item stands in.
void frmMain::goToMenu(const NotePlace& place) {
    const MenuNode* const owner = place.key.empty() ? nullptr : m_document.tree().find(place.key);
    if (!place.key.empty() && !owner)
        return;
    const auto items = m_document.tree().childrenOf(owner);
    if (items.empty()) {
        if (owner)
            goToItem(*owner);
        return;
    }
    goToItem(*items.front());
    if (m_advancedForm->focusBoxAtStart(place.field))
        m_menuForm->openAdvancedAtStart();
    else
        m_menuForm->focusBoxAtStart(place.field);
    run(CommandActions::named("mnuEditMenuProperties"));
}

void frmMain::openAddress(const std::string& address) {
    if (address.empty())
        m_services.help.show(Path(m_document.programFolder()).child(kManualOfSupport));
    else
        OpenURL(address, m_document.programFolder(), m_services);
}

void frmMain::contentReplaced() {
    m_services.browser.forgetAllowedPictures();
    selectedNodeChanged();
    currentNodeChanged();
    if (m_defaultForm != nullptr)
        m_defaultForm->LoadDefaultDialog();
    showScript(GenerateScript(m_document.content()));
}

void frmMain::itemChanged(const MenuNode& node) {
    if (&node == m_document.CurNode() && !m_isStoring)
        m_panel->ShowItem(&node);
}

void frmMain::menuChanged(const MenuPropOwner& owner) {
    if (owner.kind == MenuPropOwner::Kind::Defaults && m_defaultForm != nullptr)
        m_defaultForm->LoadDefaultDialog();
}

void frmMain::currentNodeChanged() {
    if (const MenuNode* node = m_document.CurNode())
        m_panel->ShowItem(node);
    else
        m_panel->ClearItemPanel();
    followChange();
}

void frmMain::selectedNodeChanged() {
    if (!m_isEditing)
        TreeView->showSelection();
}

void frmMain::followChange() {
    if (!m_isEditing)
        Button_Update();
}

void frmMain::fileChanged() {
    QString caption = kProgramName;
    if (!m_document.SaveFile().empty())
        caption += " (" + QString::fromStdString(m_document.SaveFile()) + ")";
    setWindowTitle(caption);
}

// Save stays usable after a save, until another command.
void frmMain::modifiedChanged() {
    if (m_document.bModified())
        followChange();
}

}  // namespace zev
