// The editor's main job from beginning to end, as a person does it: with keys and mouse, on a
// display, with the real disk, browser engine and message boxes. Only the file dialogs are answered
// from a script.

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include "app/frm_main.h"
#include "app/menu_tree_view.h"
#include "page_probe.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/posix_shell.h"
#include "platform/qt/qt_browser_view.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/qt_message_box.h"
#include "script/script_writer.h"
#include "when_shown.h"

using namespace zev;

namespace {

constexpr int kPageTimeMs = 30000;
constexpr int kBrowserTimeMs = 90000;

/// Accessible names of the items that are shown in the page, in the order of the page.
constexpr const char* kShownItems =
    "[...document.querySelectorAll('[data-zev]')]"
    ".flatMap(host => [...host.shadowRoot.querySelectorAll('li > a')])"
    ".filter(link => link.getClientRects().length > 0)"
    ".map(link => link.getAttribute('aria-label')).join('|')";

void fail(const std::string& problem) {
    QTest::qFail(problem.c_str(), __FILE__, __LINE__);
}

/// The item tree as text: one line an item, two spaces a level.
std::string treeText(const MenuDocument& document) {
    std::string text;
    for (const MenuNode* node = document.tree.firstNode(); node != nullptr;
         node = document.tree.nextInTreeOrder(*node)) {
        for (const MenuNode* parent = node->parent(); parent != nullptr; parent = parent->parent())
            text += "  ";
        text += node->item.Caption + " -> " + node->item.URL + "\n";
    }
    return text;
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

}  // namespace

class test_editor : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void aMenuIsMadeWithKeysAndMouse();
    void saveAsPutsAllFilesIntoTheFolder();
    void openGivesTheSameMenuBack();
    void thePreviewShowsTheMenu();
    void aVisitorCanClickThroughTheMenu();
    void cleanupTestCase();

  private:
    template <typename T>
    T* find(const char* name) const;
    void type(const char* field, const QString& text);
    void fillIn(const QString& caption, const QString& link);
    void clickButton(const QString& key);
    void clickNode(const MenuNode* node);
    void clickTab(const QString& caption);
    void chooseEntry(const char* menu, Qt::Key entry);
    void pressShortcut(Qt::Key key);

    QTemporaryDir m_folder;
    PosixFileSystem m_files;
    PosixShell m_shell{m_files};
    QtMessageBox m_messages;
    FakeCommonDialogs m_dialogs{fail};
    QtHelpViewer m_help;
    std::unique_ptr<frmMain> m_window;
    QString m_menuFile;
    std::string m_madeTree;
};

template <typename T>
T* test_editor::find(const char* name) const {
    auto* object = m_window->findChild<T*>(name);
    if (object == nullptr)
        qFatal("no object named %s", name);
    return object;
}

void test_editor::type(const char* field, const QString& text) {
    auto* edit = find<QLineEdit>(field);
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClicks(edit, text);
}

void test_editor::fillIn(const QString& caption, const QString& link) {
    type("txtCaption", caption);
    type("txtURL", link);
}

void test_editor::clickButton(const QString& key) {
    auto* bar = find<QToolBar>("tbToolBar");
    for (QAction* action : bar->actions()) {
        if (action->toolTip() == key) {
            QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
            return;
        }
    }
    QFAIL("no such button");
}

void test_editor::clickNode(const MenuNode* node) {
    auto* tree = find<MenuTreeView>("TreeView");
    const auto* model = static_cast<TreeViewModel*>(tree->model());
    const QRect place = tree->visualRect(model->indexOf(node));
    QVERIFY(!place.isEmpty());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place.center());
}

void test_editor::clickTab(const QString& caption) {
    const auto* tabs = find<QTabWidget>("MenuTab");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        if (tabs->tabText(tab) == caption) {
            const QPoint place = tabs->tabBar()->tabRect(tab).center();
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, place);
            QCOMPARE(tabs->currentIndex(), tab);
            return;
        }
    }
    QFAIL("no such tab");
}

/// Opens a menu by mouse and chooses the entry with this access key.
void test_editor::chooseEntry(const char* menu, Qt::Key entry) {
    auto* popup = find<QMenu>(menu);
    QMenuBar* bar = m_window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(popup->menuAction()).center());
    QTRY_VERIFY(popup->isVisible());
    QTest::keyClick(popup, entry);
}

/// Presses Ctrl and `key` where the focus is.
void test_editor::pressShortcut(Qt::Key key) {
    // There is no window manager that would make the window active again after a message box.
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
}

void test_editor::initTestCase() {
    QVERIFY(m_folder.isValid());
    QDir folder(m_folder.path());
    QVERIFY(folder.mkdir("program"));
    QVERIFY(folder.mkdir("site"));
    for (const QString name :
         {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
        QVERIFY(QFile::copy(ZEV_RUNTIME_FOLDER "/" + name, folder.filePath("program/" + name)));
    m_menuFile = folder.filePath("site/menu.js");

    auto* browser = new QtBrowserView;
    m_window = std::make_unique<frmMain>(
        EditorServices{m_files, m_messages, m_dialogs, m_shell, m_help, *browser},
        folder.filePath("program").toStdString(), browser);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void test_editor::aMenuIsMadeWithKeysAndMouse() {
    pressShortcut(Qt::Key_N);
    clickButton("Add Menu Item");
    fillIn("Home", "home.html");
    clickButton("Add Menu Item");
    fillIn("Products", "products.html");
    pressShortcut(Qt::Key_A);
    fillIn("It's us", "about.html");

    const MenuNode* products = m_window->document().tree.topLevel().at(1);
    clickNode(products);
    clickButton("Add Submenu Item");
    pressShortcut(Qt::Key_W);
    QCOMPARE(products->children().size(), std::size_t{2});
    clickNode(products->children().at(0));
    fillIn("Boats", "boats.html");
    clickNode(products->children().at(1));
    fillIn(QString::fromUtf8("Oars"), "oars.html");
    QVERIFY(m_window->document().bModified);
}

void test_editor::saveAsPutsAllFilesIntoTheFolder() {
    m_dialogs.expectSaveFile(m_menuFile.toStdString());
    bool isAsked = false;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        isAsked = true;
        QCOMPARE(box.text(), QString("Recalculate relative URLs for hyperlinks and images?"));
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    chooseEntry("mnuFile", Qt::Key_A);
    QVERIFY(isAsked);
    m_dialogs.verify();

    m_madeTree = treeText(m_window->document());
    QCOMPARE(m_madeTree, std::string("Home -> home.html\n"
                                     "Products -> products.html\n"
                                     "  Boats -> boats.html\n"
                                     "  Oars -> oars.html\n"
                                     "It\\'s us -> about.html\n"));
    QCOMPARE(bytesOf(m_menuFile).toStdString(),
             DefinitionFileBytes(GenerateScript(m_window->document())));
    QCOMPARE(QDir(m_folder.filePath("site")).entryList(QDir::Files),
             (QStringList{"menu.js", "orlet_temp.html", "zevmenu_dom.js", "zevmenu_loader.js",
                          "zevmenu_ns4.js"}));
    QCOMPARE(m_window->windowTitle(), "ZEVMenu Creator (" + m_menuFile + ")");
    QVERIFY(!m_window->document().bModified);
}

void test_editor::openGivesTheSameMenuBack() {
    const QByteArray saved = bytesOf(m_menuFile);
    clickButton("New");
    QVERIFY(m_window->document().tree.isEmpty());
    m_dialogs.expectOpenFile(m_menuFile.toStdString());
    pressShortcut(Qt::Key_O);
    m_dialogs.verify();
    QCOMPARE(treeText(m_window->document()), m_madeTree);
    QCOMPARE(find<QLineEdit>("txtCaption")->text(), QString("Home"));

    // Changed and changed back, so that Save has something to do.
    type("txtTarget", "x");
    QTest::keyClick(find<QLineEdit>("txtTarget"), Qt::Key_Backspace);
    QVERIFY(QFile::remove(m_menuFile));
    pressShortcut(Qt::Key_S);
    QCOMPARE(bytesOf(m_menuFile), saved);
}

void test_editor::thePreviewShowsTheMenu() {
    clickTab("Preview");
    QWidget& browser = *find<QWidget>("WebBrowser");
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(),
                              QString("Home|Products|It's us"), kPageTimeMs);
    QCOMPARE(bytesOf(m_folder.filePath("site/orlet_temp.js")), bytesOf(m_menuFile));

    // The menu is the one of this moment, not of the last save.
    clickTab("Menu");
    type("txtCaption", "Start");
    clickTab("Preview");
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(),
                              QString("Start|Products|It's us"), kPageTimeMs);
    QVERIFY(m_window->document().bModified);
    clickTab("Menu");
    type("txtCaption", "Home");
    pressShortcut(Qt::Key_S);
    QVERIFY(!m_window->document().bModified);
    clickTab("Preview");
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(),
                              QString("Home|Products|It's us"), kPageTimeMs);
}

void test_editor::aVisitorCanClickThroughTheMenu() {
    QProcess visitor;
    visitor.setProcessChannelMode(QProcess::MergedChannels);
    visitor.start(ZEV_NODE, {ZEV_CLICK_THROUGH, m_folder.filePath("site")});
    QVERIFY2(visitor.waitForFinished(kBrowserTimeMs), qPrintable(visitor.errorString()));
    QVERIFY2(visitor.exitStatus() == QProcess::NormalExit && visitor.exitCode() == 0,
             visitor.readAll().constData());
}

void test_editor::cleanupTestCase() {
    m_window.reset();
}

QTEST_MAIN(test_editor)
#include "test_editor.moc"
