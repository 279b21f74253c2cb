// SPDX-License-Identifier: MIT
// The editor's main job from beginning to end, as a person does it: with keys and mouse, on a
// display, with the real disk, browser engine and message boxes. Only the file dialogs are answered
// from a script.

#include <QProcess>

#include "editor_on_disk.h"
#include "link_tree.h"
#include "page_probe.h"
#include "script/script_writer.h"

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

}  // namespace

class test_editor : public QObject, private EditorOnDisk {
    Q_OBJECT

  private slots:
    void initTestCase();
    void aMenuIsMadeWithKeysAndMouse();
    void saveAsPutsAllFilesIntoTheFolder();
    void openGivesTheSameMenuBack();
    void thePreviewShowsTheMenu();
    void theShownPreviewFollowsNewAndOpen();
    void aVisitorCanClickThroughTheMenu();
    void cleanupTestCase();

  private:
    void fillIn(const QString& caption, const QString& link);

    QString m_madeTree;
};

void test_editor::fillIn(const QString& caption, const QString& link) {
    type("txtCaption", caption);
    type("txtURL", link);
}

void test_editor::initTestCase() {
    start();
}

void test_editor::aMenuIsMadeWithKeysAndMouse() {
    pressShortcut(Qt::Key_N);
    clickButton("Add Menu Item");
    fillIn("Home", "home.html");
    clickButton("Add Menu Item");
    fillIn("Products", "products.html");
    pressShortcut(Qt::Key_A);
    fillIn("It's us", "about.html");

    const MenuNode* products = m_window->document().tree().topLevel()[1];
    clickNode(products);
    clickButton("Add Submenu Item");
    pressShortcut(Qt::Key_W);
    QCOMPARE(products->children().size(), std::size_t{2});
    clickNode(products->children()[0]);
    fillIn("Boats", "boats.html");
    clickNode(products->children()[1]);
    fillIn(QString::fromUtf8("Oars"), "oars.html");
    QVERIFY(m_window->document().bModified());
}

void test_editor::saveAsPutsAllFilesIntoTheFolder() {
    saveAs([this] { chooseEntry("mnuFile", Qt::Key_A); });

    m_madeTree = linkTree(m_window->document());
    QCOMPARE(m_madeTree, QString("Home -> home.html\n"
                                 "Products -> products.html\n"
                                 "  Boats -> boats.html\n"
                                 "  Oars -> oars.html\n"
                                 "It\\'s us -> about.html\n"));
    QCOMPARE(bytesOf(m_menuFile).toStdString(),
             definitionFileBytes(GenerateScript(m_window->document().content())));
    QCOMPARE(QDir(m_folder.filePath("site")).entryList(QDir::Files),
             (QStringList{"menu.js", "orlet_temp.html", "zevmenu_dom.js", "zevmenu_loader.js",
                          "zevmenu_ns4.js"}));
    QCOMPARE(m_window->windowTitle(), "ZEVMenu Creator (" + m_menuFile + ")");
    QVERIFY(!m_window->document().bModified());
}

void test_editor::openGivesTheSameMenuBack() {
    const QByteArray saved = bytesOf(m_menuFile);
    clickButton("New");
    QVERIFY(m_window->document().tree().isEmpty());
    m_dialogs.expectOpenFile(m_menuFile.toStdString());
    pressShortcut(Qt::Key_O);
    m_dialogs.verify();
    QCOMPARE(linkTree(m_window->document()), m_madeTree);
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
    QVERIFY(m_window->document().bModified());
    clickTab("Menu");
    type("txtCaption", "Home");
    pressShortcut(Qt::Key_S);
    QVERIFY(!m_window->document().bModified());
    clickTab("Preview");
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(),
                              QString("Home|Products|It's us"), kPageTimeMs);
}

void test_editor::theShownPreviewFollowsNewAndOpen() {
    const QByteArray saved = bytesOf(m_menuFile);
    QWidget& browser = *find<QWidget>("WebBrowser");
    QVERIFY(browser.isVisible());
    // The keys reach the commands from within the page.
    browser.setFocus();
    pressShortcut(Qt::Key_N);
    QVERIFY(m_window->document().tree().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, "location.pathname").toString(),
                              m_folder.filePath("program/orlet_temp.html"), kPageTimeMs);
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(), QString(),
                              kPageTimeMs);
    m_dialogs.expectOpenFile(m_menuFile.toStdString());
    pressShortcut(Qt::Key_O);
    m_dialogs.verify();
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(browser, kShownItems).toString(),
                              QString("Home|Products|It's us"), kPageTimeMs);
    QCOMPARE(bytesOf(m_menuFile), saved);
    QVERIFY(!m_window->document().bModified());
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
