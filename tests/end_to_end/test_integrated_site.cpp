// SPDX-License-Identifier: MIT
// A menu comes onto the pages of a site, as a person does it: made and saved in the editor, put
// into the pages by the Menu Integrator, its code pasted by hand. Then a visitor looks at the
// pages. Only the file dialogs are answered from a script.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRadioButton>

#include "dialogs/frm_path.h"
#include "editor_on_disk.h"
#include "integrator/wizard/frm_integrator.h"

using namespace zev;

namespace {

constexpr int kBrowserTimeMs = 120000;

// Pages as people write them. Each has something of its own to do when it has loaded.

constexpr const char* kUpperCasePage =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2 Final//EN\">\r\n"
    "<HTML>\r\n<HEAD>\r\n<TITLE>HARBOUR</TITLE>\r\n"
    "<SCRIPT LANGUAGE=\"JavaScript\">\r\n<!-- hide from old browsers\r\n"
    "function READY() { if (1 < 2) document.title += \", loaded\"; }\r\n// -->\r\n</SCRIPT>\r\n"
    "</HEAD>\r\n"
    "<BODY BGCOLOR=#FFFFEE TEXT=\"#000000\" ONLOAD=READY()>\r\n"
    "<CENTER><FONT SIZE=+2>TIDE TABLES</FONT></CENTER>\r\n<HR NOSHADE>\r\n"
    "</BODY>\r\n</HTML>\r\n";

constexpr const char* kPage =
    "<!DOCTYPE html>\n"
    "<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>Products</title>\n</head>\n"
    "<body class='list' onload='document.title += \", loaded\";'>\n"
    "<h1>Products \xE2\x80\x93 everything</h1>\n<p>Boats.\n</body>\n</html>\n";

constexpr const char* kXhtmlPage =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\"\n"
    "    \"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\n"
    "<html xmlns=\"http://www.w3.org/1999/xhtml\" xml:lang=\"en\" lang=\"en\">\n"
    "  <head>\n    <title>Team</title>\n"
    "    <script type=\"text/javascript\">//<![CDATA[\n"
    "      function ready() { if (1 < 2 && 3 > 2) { document.title += ', loaded'; } }\n"
    "    //]]></script>\n  </head>\n"
    "  <body id=\"team\" onload=\"ready()\">\n"
    "    <p>All of us:<br />\n    <img src=\"us.png\" alt=\"a > b\" /></p>\n"
    "  </body>\n</html>\n";

QByteArray pageWithLinks(const QByteArray& title) {
    return "<html><head><title>" + title +
           "</title></head>\n"
           "<body onload=\"document.title += ', loaded'\">\n"
           "<h1>" +
           title +
           "</h1>\n<p style=\"margin-top: 150px\">See also: </p>\n"
           "</body></html>\n";
}

/// One use of the wizard.
struct Run {
    QString folder;  ///< of the page, below the site; empty for the site's own
    QString page;
    bool keepsScripts = false;
    QString submenu = {};       ///< entry of the list of popup menus; empty: the menu in place
    bool isAtPosition = false;  ///< at 100, 50
};

}  // namespace

class test_integrated_site : public QObject, private EditorOnDisk {
    Q_OBJECT

  private slots:
    void initTestCase();
    void aMenuIsMadeAndSaved();
    void theWizardPutsItIntoThePages_data();
    void theWizardPutsItIntoThePages();
    void aVisitorGetsAroundTheSite();
    void aSecondRunChangesNothing();
    void cleanupTestCase();

  private:
    struct Code {
        QString code;
        QString linkCode;
    };

    void fillIn(const QString& caption, const QString& link);
    void integrate(const Run& run, Code& code);
    void goThroughWizard(frmIntegrator& wizard, const Run& run, Code& code);
    void chooseLibrary(frmIntegrator& wizard);
    void press(QWidget& window, const char* button);
    QString pathOf(const Run& run) const;
    void makeFile(const QString& path, const QByteArray& bytes);
};

void test_integrated_site::fillIn(const QString& caption, const QString& link) {
    type("txtCaption", caption);
    type("txtURL", link);
}

void test_integrated_site::press(QWidget& window, const char* button) {
    QTest::mouseClick(findIn<QAbstractButton>(window, button), Qt::LeftButton, {}, QPoint(10, 10));
}

QString test_integrated_site::pathOf(const Run& run) const {
    return QDir::cleanPath(m_folder.filePath("site/" + run.folder + "/" + run.page));
}

void test_integrated_site::makeFile(const QString& path, const QByteArray& bytes) {
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void test_integrated_site::initTestCase() {
    start();
    QVERIFY(QDir(m_folder.path()).mkdir("site/js"));
    m_menuFile = m_folder.filePath("site/js/menu.js");
    makeFile(m_folder.filePath("site/index.htm"), kUpperCasePage);
    makeFile(m_folder.filePath("site/products/list.htm"), kPage);
    makeFile(m_folder.filePath("site/about/us/team.htm"), kXhtmlPage);
    makeFile(m_folder.filePath("site/mouse.htm"), pageWithLinks("Mouse"));
    makeFile(m_folder.filePath("site/products/position.htm"), pageWithLinks("Position"));
}

void test_integrated_site::aMenuIsMadeAndSaved() {
    pressShortcut(Qt::Key_N);
    clickButton("Add Menu Item");
    fillIn("Home", "../index.htm");
    clickButton("Add Menu Item");
    fillIn("Products", "../products/list.htm");
    clickButton("Add Menu Item");
    fillIn("Team", "../about/us/team.htm");
    const MenuNode* products = m_window->document().tree().topLevel()[1];
    clickNode(products);
    clickButton("Add Submenu Item");
    clickButton("Add Submenu Item");
    clickNode(products->children()[0]);
    fillIn("Boats", "");
    clickNode(products->children()[1]);
    fillIn("Oars", "");
    clickNode(products->children()[0]);
    clickButton("Add Submenu Item");
    clickNode(products->children()[0]->children()[0]);
    fillIn("Canoes", "../products/list.htm");
    saveAs([this] { m_window->mnuFileSaveAs_Click(); });
    QVERIFY(QFile::exists(m_menuFile));
}

/// Opens the wizard by mouse and key.
void test_integrated_site::integrate(const Run& run, Code& code) {
    const QFileInfo page(pathOf(run));
    m_dialogs.expectOpenFiles({page.path().toStdString(), {page.fileName().toStdString()}});
    bool isShown = false;
    whenShown<frmIntegrator>([&](frmIntegrator& wizard) {
        isShown = true;
        goThroughWizard(wizard, run, code);
    });
    activate(*m_window);
    auto* tools = find<QMenu>("mnuTools");
    QMenuBar* bar = m_window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(tools->menuAction()).center());
    QTRY_VERIFY(tools->isVisible());
    QTest::keyClick(tools, Qt::Key_M);
    QVERIFY(isShown);
    m_dialogs.verify();
}

void test_integrated_site::goThroughWizard(frmIntegrator& wizard, const Run& run, Code& code) {
    const auto next = [&] { press(wizard, "btnNext"); };
    const auto text = [&](const char* name) {
        return findIn<QPlainTextEdit>(wizard, name)->toPlainText();
    };
    const auto choose = [&](const char* name, const QString& entry) {
        auto* list = findIn<QComboBox>(wizard, name);
        QTest::keyClicks(list, entry);
        QCOMPARE(list->currentText(), entry);
    };
    activate(wizard);
    next();
    press(wizard, "BtnInputFile");
    if (run.keepsScripts)
        press(wizard, "chkKeepScripts");
    QCOMPARE(findIn<QLabel>(wizard, "lblScripts")->text(),
             QString("0 scripts will be removed from the pages."));
    next();
    chooseLibrary(wizard);
    QCOMPARE(findIn<QLineEdit>(wizard, "txtMenuDef")->text(), m_menuFile);
    next();
    if (!run.submenu.isEmpty()) {
        choose("cboIntegration", "Popup menu appearing on mouse events!");
        choose("cboMenuList", run.submenu);
        if (run.isAtPosition) {
            press(wizard, "optXY");
            typeInto(wizard, "txtX", "100");
            typeInto(wizard, "txtY", "50");
        }
    }
    next();
    QVERIFY2(text("txtReport").contains("Success: Menu integration successful\n\n") &&
                 text("txtReport").endsWith(" done, 0 failed\n\n"),
             qPrintable(text("txtReport")));
    next();
    QVERIFY(findIn<QLabel>(wizard, "lblMsg")->text().startsWith("Menu integration successful."));
    code = {text("txtCode"), text("txtLinkCode")};
    next();
    QVERIFY(!wizard.isVisible());
}

void test_integrated_site::chooseLibrary(frmIntegrator& wizard) {
    const QString folder = m_folder.filePath("site/js");
    whenShown<frmPath>([&](frmPath& chooser) {
        activate(chooser);
        typeInto(chooser, "txtPath", folder);
        press(chooser, "btnOK");
    });
    press(wizard, "btnPath");
    activate(wizard);
    QCOMPARE(findIn<QWidget>(wizard, "frm_2")->findChild<QLineEdit*>("txtPath")->text(), folder);
}

void test_integrated_site::theWizardPutsItIntoThePages_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("keepsScripts");
    QTest::addColumn<QString>("submenu");
    QTest::addColumn<bool>("isAtPosition");
    QTest::addColumn<QString>("reference");
    QTest::newRow("upper case") << ""
                                << "index.htm" << false << "" << false << "js/menu.js";
    QTest::newRow("one folder down") << "products"
                                     << "list.htm" << false << "" << false << "../js/menu.js";
    QTest::newRow("XHTML, two folders down, with a script of its own")
        << "about/us"
        << "team.htm" << true << "" << false << "../../js/menu.js";
    QTest::newRow("popup beside the mouse")
        << ""
        << "mouse.htm" << false << "Products (2)" << false << "js/menu.js";
    QTest::newRow("popup at a position")
        << "products"
        << "position.htm" << false << "Boats (2i1)" << true << "../js/menu.js";
}

void test_integrated_site::theWizardPutsItIntoThePages() {
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QFETCH(bool, keepsScripts);
    QFETCH(QString, submenu);
    QFETCH(bool, isAtPosition);
    QFETCH(QString, reference);
    const Run run{folder, name, keepsScripts, submenu, isAtPosition};
    const QString path = pathOf(run);
    const QByteArray before = bytesOf(path);
    Code code;
    integrate(run, code);
    QCOMPARE(bytesOf(path + ".bak"), before);
    QVERIFY2(code.code.contains("src=\"" + reference + "\""), qPrintable(code.code));
    QCOMPARE(code.linkCode.isEmpty(), submenu.isEmpty());

    // Pasted as the last step says: the code at the start of the body, a link where links are.
    QByteArray page = bytesOf(path);
    const qsizetype body = page.toLower().indexOf("<body");
    QVERIFY(body > 0);
    page.insert(page.indexOf('>', body) + 1, "\n" + code.code.toUtf8());
    if (!submenu.isEmpty())
        page.replace("See also: ", "See also: " + code.linkCode.toUtf8());
    makeFile(path, page);
}

void test_integrated_site::aVisitorGetsAroundTheSite() {
    QProcess visitor;
    visitor.setProcessChannelMode(QProcess::MergedChannels);
    visitor.start(ZEV_NODE, {ZEV_VISIT_SITE, m_folder.filePath("site")});
    QVERIFY2(visitor.waitForFinished(kBrowserTimeMs), qPrintable(visitor.errorString()));
    QVERIFY2(visitor.exitStatus() == QProcess::NormalExit && visitor.exitCode() == 0,
             visitor.readAll().constData());
}

// What was pasted stays as well: it names JavaScript. The visitor of these bytes has been there.
void test_integrated_site::aSecondRunChangesNothing() {
    const Run run{"products", "list.htm"};
    const QByteArray before = bytesOf(pathOf(run));
    QCOMPARE(before.count("ZEVLoadMenu();"), 2);
    Code code;
    integrate(run, code);
    QCOMPARE(bytesOf(pathOf(run)), before);
}

void test_integrated_site::cleanupTestCase() {
    m_window.reset();
}

QTEST_MAIN(test_integrated_site)
#include "test_integrated_site.moc"
