#include "app/frm_main.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <exception>
#include <functional>

#include "app/frm_about.h"
#include "app/icons.h"
#include "app/item_panel.h"
#include "app/menu_tree_view.h"
#include "app/open_url.h"
#include "app/script_view.h"
#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "dialogs/frm_path.h"
#include "integrator/wizard/frm_integrator.h"
#include "script/relative_url.h"
#include "script/script_writer.h"
#include "script/submenu_list.h"
#include "text/program_name.h"

namespace zev {

namespace {

constexpr const char* kSupportAddress = "https://zevmenu.example/support";
constexpr const char* kManual = "help/index.html";

/// A button of the toolbar; its key is its tooltip as well. A separator has no key.
struct ToolBarItem {
    const char* key = nullptr;
    const char* icon = nullptr;
    frmMain::Handler click = nullptr;
};

constexpr std::array<ToolBarItem, kToolBarItems> kToolBar = {{
    {"New", "new", &frmMain::mnuFileNew_Click},
    {"Open", "open", &frmMain::mnuFileOpen_Click},
    {"Save", "save", &frmMain::mnuFileSave_Click},
    {},
    {"Default Properties", "default_properties", &frmMain::mnuEditDefault_Click},
    {"Menu Properties", "menu_properties", &frmMain::mnuEditMenuProperties_Click},
    {},
    {"Add Menu Item", "add_menu_item", &frmMain::mnuEditAddMenuItem_Click},
    {"Add Submenu Item", "add_submenu_item", &frmMain::mnuEditAddSubmenuItem_Click},
    {},
    {"Move Left", "move_left", &frmMain::mnuEditMoveLeft_Click},
    {"Move Right", "move_right", &frmMain::mnuEditMoveRight_Click},
    {"Move Up", "move_up", &frmMain::mnuEditMoveUp_Click},
    {"Move Down", "move_down", &frmMain::mnuEditMoveDown_Click},
    {},
    {"Delete", "delete", &frmMain::mnuEditDelete_Click},
}};

QMenu* AddMenu(QMenuBar* bar, const QString& name, const QString& caption) {
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(name);
    return menu;
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
    buildMenus();
    buildToolBar();
    buildTabs(webBrowser);
    buildDialogs();
    auto* sbStatusBar = new QStatusBar(this);
    sbStatusBar->setObjectName("sbStatusBar");
    setStatusBar(sbStatusBar);
    resize(920, 660);

    m_fileCommands.Reset();
    TreeView->setFocus();
}

// The widgets look at the document until they are gone.
frmMain::~frmMain() {
    delete m_menuForm;
    delete m_defaultForm;
    delete takeCentralWidget();
}

void frmMain::buildMenus() {
    QMenu* file = AddMenu(menuBar(), "mnuFile", tr("&File"));
    addEntry(file, "mnuFileNew", tr("&New"), &frmMain::mnuFileNew_Click, tr("Ctrl+N"));
    addEntry(file, "mnuFileOpen", tr("&Open"), &frmMain::mnuFileOpen_Click, tr("Ctrl+O"));
    mnuFileSave =
        addEntry(file, "mnuFileSave", tr("&Save"), &frmMain::mnuFileSave_Click, tr("Ctrl+S"));
    addEntry(file, "mnuFileSaveAs", tr("Save &As"), &frmMain::mnuFileSaveAs_Click);
    file->addSeparator();
    QMenu* import = file->addMenu(tr("&Import"));
    import->setObjectName("mnuFileImport");
    addEntry(import, "mnuFileImportQuillmenu", tr("Quillmenu"),
             &frmMain::mnuFileImportQuillmenu_Click);
    addEntry(import, "mnuFileImportOrletBar", tr("OrletBar"),
             &frmMain::mnuFileImportOrletBar_Click);
    addEntry(import, "mnuFileImportOrletMenu", tr("OrletMenu"),
             &frmMain::mnuFileImportOrletMenu_Click);
    addEntry(import, "mnuFileImportOrletButton", tr("OrletButton"),
             &frmMain::mnuFileImportOrletButton_Click);
    file->addSeparator();
    addEntry(file, "mnuFileExit", tr("E&xit"), &frmMain::mnuFileExit_Click);

    QMenu* edit = AddMenu(menuBar(), "mnuEdit", tr("&Edit"));
    addEntry(edit, "mnuEditDefault", tr("&Default Menu Properties"), &frmMain::mnuEditDefault_Click,
             tr("F8"));
    mnuEditMenuProperties = addEntry(edit, "mnuEditMenuProperties", tr("M&enu Properties"),
                                     &frmMain::mnuEditMenuProperties_Click, tr("F2"));
    edit->addSeparator();
    addEntry(edit, "mnuEditAddMenuItem", tr("Add &Menu Item"), &frmMain::mnuEditAddMenuItem_Click,
             tr("Ctrl+A"));
    mnuEditAddSubmenuItem = addEntry(edit, "mnuEditAddSubmenuItem", tr("Add &Submenu Item"),
                                     &frmMain::mnuEditAddSubmenuItem_Click, tr("Ctrl+W"));
    edit->addSeparator();
    mnuEditMoveLeft = addEntry(edit, "mnuEditMoveLeft", tr("Move &Left"),
                               &frmMain::mnuEditMoveLeft_Click, tr("Ctrl+L"));
    mnuEditMoveRight = addEntry(edit, "mnuEditMoveRight", tr("Move &Right"),
                                &frmMain::mnuEditMoveRight_Click, tr("Ctrl+R"));
    mnuEditMoveUp = addEntry(edit, "mnuEditMoveUp", tr("Move &Up"), &frmMain::mnuEditMoveUp_Click,
                             tr("Ctrl+U"));
    mnuEditMoveDown = addEntry(edit, "mnuEditMoveDown", tr("Move &Down"),
                               &frmMain::mnuEditMoveDown_Click, tr("Ctrl+D"));
    edit->addSeparator();
    mnuEditDelete = addEntry(edit, "mnuEditDelete", tr("Delete &Item"),
                             &frmMain::mnuEditDelete_Click, tr("Del"));

    QMenu* tools = AddMenu(menuBar(), "mnuTools", tr("&Tools"));
    addEntry(tools, "mnuToolsIntegrate", tr("&Menu Integrator"), &frmMain::mnuToolsIntegrate_Click);

    QMenu* help = AddMenu(menuBar(), "mnuHelp", tr("&Help"));
    addEntry(help, "mnuHelpContents", tr("&Contents"), &frmMain::mnuHelpContents_Click, tr("F1"));
    help->addSeparator();
    addEntry(help, "mnuHelpAbout", tr("&About"), &frmMain::mnuHelpAbout_Click);
    addEntry(help, "mnuHelpSupport", tr("&Support && Upgrades"), &frmMain::mnuHelpSupport_Click);
}

QAction* frmMain::addEntry(QMenu* menu, const QString& name, const QString& caption, Handler click,
                           const QKeySequence& shortcut) {
    QAction* entry = menu->addAction(caption);
    entry->setObjectName(name);
    entry->setShortcut(shortcut);
    entry->setMenuRole(QAction::NoRole);
    connect(entry, &QAction::triggered, this, [this, click] { run(std::bind_front(click, this)); });
    m_shortcuts.add(*entry);
    return entry;
}

void frmMain::buildToolBar() {
    auto* tbToolBar = new QToolBar(tr("Toolbar"), this);
    tbToolBar->setObjectName("tbToolBar");
    tbToolBar->setMovable(false);
    tbToolBar->setIconSize(QSize(24, 24));
    for (std::size_t index = 1; index <= kToolBarItems; ++index) {
        const ToolBarItem& item = kToolBar[index - 1];
        QAction* button = nullptr;
        if (item.key == nullptr) {
            button = tbToolBar->addSeparator();
        } else {
            button = tbToolBar->addAction(ButtonIcon(item.icon), tr(item.key));
            button->setToolTip(tr(item.key));
            connect(button, &QAction::triggered, this,
                    [this, button] { tbToolBar_ButtonClick(button->text()); });
        }
        button->setObjectName(QString("tbToolBar_%1").arg(index));
        m_buttons[index] = button;
    }
    addToolBar(tbToolBar);
}

void frmMain::buildTabs(QWidget* webBrowser) {
    txtJavaScript = new ScriptView(this);
    txtJavaScript->setObjectName("txtJavaScript");
    txtJavaScript->setAccessibleName(tr("JavaScript"));
    webBrowser->setObjectName("WebBrowser");
    webBrowser->setAccessibleName(tr("Preview"));

    MenuTab = new QTabWidget(this);
    MenuTab->setObjectName("MenuTab");
    MenuTab->setAccessibleName(tr("Views of the menu"));
    MenuTab->addTab(buildMenuTab(), tr("Menu"));
    MenuTab->addTab(txtJavaScript, tr("JavaScript"));
    MenuTab->addTab(webBrowser, tr("Preview"));
    connect(MenuTab, &QTabWidget::currentChanged, this,
            [this] { guard([this] { MenuTab_Click(); }); });
    setCentralWidget(MenuTab);
}

QWidget* frmMain::buildMenuTab() {
    m_panel = new ItemPanel(m_document, m_services);
    connect(m_panel, &ItemPanel::changed, this, &frmMain::Button_Update);
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
            [this](MenuNode* node) { guard([this, node] { TreeView_NodeClick(node); }); });
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
    const DialogHost host{m_document, m_services.messages, m_services.dialogs,
                          [this] { Button_Update(); }};
    m_defaultForm = new frmDefaultProp(host, this);
    auto* advanced = new frmAdvProp(host, nullptr);
    m_menuForm = new frmMenuProp(host, *m_defaultForm, *advanced, this);
    // Window managers keep it in front of the dialog that it is opened from, whatever is clicked.
    advanced->setParent(m_menuForm, advanced->windowFlags());
}

void frmMain::openDefinition(const std::string& path) {
    run([this, &path] { m_fileCommands.openDefinition(path); });
}

void frmMain::validateFields() {
    m_panel->validateFields();
}

void frmMain::StoreItem() {
    m_panel->StoreItem(m_document.CurNode);
}

void frmMain::ShowItem() {
    if (m_document.CurNode != nullptr)
        m_panel->ShowItem(m_document.CurNode);
    else
        m_panel->ClearItemPanel();
    TreeView->showSelection();
}

void frmMain::ShowScript(const std::string& script) {
    txtJavaScript->showScript(script);
}

void frmMain::ShowCaption() {
    QString caption = kProgramName;
    if (!m_document.SaveFile.empty())
        caption += " (" + QString::fromStdString(m_document.SaveFile) + ")";
    setWindowTitle(caption);
}

void frmMain::LoadDefaultDialog() {
    m_defaultForm->LoadDefaultDialog();
}

void frmMain::Button_Update() {
    m_state.Button_Update(m_document);
    mnuFileSave->setEnabled(m_state.mnuFileSave);
    mnuEditMenuProperties->setEnabled(m_state.mnuEditMenuProperties);
    mnuEditAddSubmenuItem->setEnabled(m_state.mnuEditAddSubmenuItem);
    mnuEditMoveLeft->setEnabled(m_state.mnuEditMoveLeft);
    mnuEditMoveRight->setEnabled(m_state.mnuEditMoveRight);
    mnuEditMoveUp->setEnabled(m_state.mnuEditMoveUp);
    mnuEditMoveDown->setEnabled(m_state.mnuEditMoveDown);
    mnuEditDelete->setEnabled(m_state.mnuEditDelete);
    for (std::size_t index = 1; index <= kToolBarItems; ++index)
        m_buttons[index]->setEnabled(m_state.tbToolBar[index]);
}

void frmMain::mnuFileNew_Click() {
    m_fileCommands.mnuFileNew_Click();
}

void frmMain::mnuFileOpen_Click() {
    m_fileCommands.mnuFileOpen_Click();
}

void frmMain::mnuFileSave_Click() {
    m_fileCommands.mnuFileSave_Click();
}

void frmMain::mnuFileSaveAs_Click() {
    m_fileCommands.mnuFileSaveAs_Click();
}

void frmMain::mnuFileImportQuillmenu_Click() {
    m_importCommands.mnuFileImportQuillmenu_Click();
}

void frmMain::mnuFileImportOrletBar_Click() {
    m_importCommands.mnuFileImportOrletBar_Click();
}

void frmMain::mnuFileImportOrletMenu_Click() {
    m_importCommands.mnuFileImportOrletMenu_Click();
}

void frmMain::mnuFileImportOrletButton_Click() {
    m_importCommands.mnuFileImportOrletButton_Click();
}

void frmMain::mnuFileExit_Click() {
    if (!m_fileCommands.mnuFileExit_Click())
        return;
    m_isEnding = true;
    close();
    emit ended();
}

void frmMain::mnuEditDefault_Click() {
    LoadDefaultDialog();
    m_defaultForm->exec();
}

void frmMain::mnuEditMenuProperties_Click() {
    if (m_menuForm->fill())
        m_menuForm->exec();
}

void frmMain::mnuEditAddMenuItem_Click() {
    StoreItem();
    if (edit(AddMenuItem) != EditResult::Done)
        return;
    ShowItem();
    Button_Update();
}

void frmMain::mnuEditAddSubmenuItem_Click() {
    const bool makesCurrent = m_document.selectedNode == nullptr;
    if (makesCurrent)
        StoreItem();
    if (edit(AddSubmenuItem) != EditResult::Done)
        return;
    if (makesCurrent)
        ShowItem();
    Button_Update();
}

void frmMain::mnuEditDelete_Click() {
    if (edit(DeleteItem) == EditResult::Done)
        ShowItem();
    Button_Update();
}

void frmMain::mnuEditMoveLeft_Click() {
    if (edit(MoveLeft) == EditResult::Done)
        Button_Update();
}

void frmMain::mnuEditMoveRight_Click() {
    if (edit(MoveRight) == EditResult::Done)
        Button_Update();
}

void frmMain::mnuEditMoveUp_Click() {
    edit(MoveUp);
    Button_Update();
}

void frmMain::mnuEditMoveDown_Click() {
    edit(MoveDown);
    Button_Update();
}

void frmMain::mnuToolsIntegrate_Click() {
    frmIntegrator wizard({m_services.files, m_services.messages, m_services.dialogs},
                         MountedDrives(), this);
    if (!m_document.SaveFile.empty())
        wizard.setDefinition(m_document.SaveFile);
    if (m_document.CurNode != nullptr)
        wizard.showSubmenus(ListSubmenus(m_document));
    wizard.exec();
}

void frmMain::mnuHelpContents_Click() {
    m_services.help.show(JoinPath(m_document.programFolder(), kManual));
}

void frmMain::mnuHelpAbout_Click() {
    frmAbout about([this](const std::string& address) { openAddress(address); }, this);
    about.exec();
}

void frmMain::mnuHelpSupport_Click() {
    openAddress(kSupportAddress);
}

void frmMain::tbToolBar_ButtonClick(const QString& key) {
    for (const ToolBarItem& item : kToolBar) {
        if (item.key != nullptr && key == tr(item.key)) {
            run(std::bind_front(item.click, this));
            return;
        }
    }
}

void frmMain::MenuTab_Click() {
    TreeView->commitEditor();
    if (shownTab() == tr("Preview")) {
        m_fileCommands.ShowPreview();
    } else if (shownTab() == tr("JavaScript")) {
        StoreItem();
        ShowScript(GenerateScript(m_document));
    }
}

void frmMain::TreeView_NodeClick(MenuNode* node) {
    const bool wasModified = m_document.bModified;
    StoreItem();
    m_document.selectedNode = node;
    m_document.CurNode = node;
    m_panel->ShowItem(node);
    m_document.bModified = wasModified;
    Button_Update();
}

/// Runs a command as the person does who leaves the field being edited for it.
void frmMain::run(const std::function<void()>& command) {
    leaveField();
    guard([this, &command] {
        command();
        followDocument();
    });
}

/// The JavaScript or Preview tab, when it is the one shown, follows what a command did. Nothing was
/// typed meanwhile, so unlike a switch to the tab this stores and cleans nothing.
void frmMain::followDocument() {
    if (m_isEnding)
        return;
    if (shownTab() == tr("Preview"))
        m_fileCommands.UpdatePreview();
    else if (shownTab() == tr("JavaScript"))
        ShowScript(GenerateScript(m_document));
}

QString frmMain::shownTab() const {
    return MenuTab->tabText(MenuTab->currentIndex());
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
    m_panel->validateFocusedField();
}

/// Runs a tree editing command and shows the tree that it leaves.
EditResult frmMain::edit(EditResult (*command)(MenuDocument&)) {
    const EditResult result = command(m_document);
    if (result == EditResult::CounterExhausted)
        m_services.messages.notice("The menu has used all its " + std::to_string(kMaxItemCounter) +
                                   " item numbers. Save it and open it again to add more items.");
    if (result != EditResult::Done)
        return result;
    TreeView->showSelection();
    return result;
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_isEnding)
        run([this] { mnuFileExit_Click(); });
    event->setAccepted(m_isEnding);
}

void frmMain::openAddress(const std::string& address) {
    OpenURL(address, m_document.programFolder(), m_services);
}

}  // namespace zev
