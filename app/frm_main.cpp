#include "app/frm_main.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <exception>

#include "app/frm_about.h"
#include "app/item_panel.h"
#include "app/menu_tree_view.h"
#include "app/open_url.h"
#include "app/script_view.h"
#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "integrator/wizard/frm_integrator.h"
#include "library/changed_files.h"
#include "messages/library_messages.h"
#include "script/script_writer.h"
#include "script/submenu_list.h"
#include "text/path.h"
#include "text/program_name.h"

namespace zev {

namespace {

constexpr const char* kSupportAddress = "https://zevmenu.example/support";
constexpr const char* kManual = "help/index.html";

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
            [this](const Command& command) { run(command.click); });
    buildTabs(webBrowser);
    buildDialogs();
    buildStatusBar();
    resize(920, 660);

    // Behind the tree's model: what is selected there must be there.
    m_document.addObserver(*this);
    fileChanged();
    m_fileCommands.reset();
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
    connect(TreeView, &MenuTreeView::labelEdited, m_panel, &ItemPanel::TreeView_AfterLabelEdit);

    auto* splitter = new QSplitter;
    splitter->addWidget(panelArea);
    splitter->addWidget(TreeView);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(splitter);
    return page;
}

void frmMain::buildDialogs() {
    const DialogHost host{m_document, m_services.messages, m_services.dialogs};
    m_defaultForm = new frmDefaultProp(host, this);
    auto* advanced = new frmAdvProp(host, nullptr);
    m_menuForm = new frmMenuProp(host, *m_defaultForm, *advanced, this);
    // Window managers keep it in front of the dialog that it is opened from, whatever is clicked.
    advanced->setParent(m_menuForm, advanced->windowFlags());
}

void frmMain::openDefinition(const std::string& path) {
    run([&path](frmMain& window) { window.m_fileCommands.openDefinition(path); });
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
}

void frmMain::showScript(const std::string& script) {
    txtJavaScript->showScript(script);
}

void frmMain::Button_Update() {
    m_commands.Button_Update(m_document);
}

void frmMain::mnuFileExit_Click() {
    if (!m_fileCommands.mnuFileExit_Click())
        return;
    m_isEnding = true;
    close();
    emit ended();
}

void frmMain::mnuEditDefault_Click() {
    // What was typed and cancelled is still in its boxes.
    m_defaultForm->LoadDefaultDialog();
    m_defaultForm->exec();
}

void frmMain::mnuEditMenuProperties_Click() {
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

void frmMain::mnuToolsIntegrate_Click() {
    frmIntegrator wizard({m_services.files, m_services.messages, m_services.dialogs},
                         mountedDrives(), this);
    if (!m_document.SaveFile().empty())
        wizard.setDefinition(m_document.SaveFile());
    if (m_document.CurNode() != nullptr)
        wizard.showSubmenus(ListSubmenus(m_document.content()));
    wizard.exec();
}

void frmMain::mnuHelpContents_Click() {
    m_services.help.show(Path(m_document.programFolder()).child(kManual));
}

void frmMain::mnuHelpAbout_Click() {
    frmAbout about([this](const std::string& address) { openAddress(address); }, this);
    about.exec();
}

void frmMain::mnuHelpSupport_Click() {
    openAddress(kSupportAddress);
}

void frmMain::tbToolBar_ButtonClick(const QString& key) {
    if (const Command* command = CommandActions::withButton(key))
        run(command->click);
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

/// Runs a command as the person does who leaves the field being edited for it.
void frmMain::run(const std::function<void(frmMain&)>& command) {
    leaveField();
    guard([this, &command] {
        command(*this);
        followDocument();
    });
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
        run(&frmMain::mnuFileExit_Click);
    event->setAccepted(m_isEnding);
}

void frmMain::openAddress(const std::string& address) {
    OpenURL(address, m_document.programFolder(), m_services);
}

void frmMain::contentReplaced() {
    selectedNodeChanged();
    currentNodeChanged();
    m_defaultForm->LoadDefaultDialog();
    showScript(GenerateScript(m_document.content()));
}

void frmMain::itemChanged(const MenuNode& node) {
    if (&node == m_document.CurNode() && !m_isStoring)
        m_panel->ShowItem(&node);
}

void frmMain::menuChanged(const MenuPropOwner& owner) {
    if (owner.kind == MenuPropOwner::Kind::Defaults)
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
