// SPDX-License-Identifier: MIT
// The preview's browser and the help window with the real browser engine.

#include <unistd.h>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include "page_probe.h"
#include "platform/qt/qt_browser_view.h"
#include "platform/qt/qt_help_viewer.h"
#include "theme_palettes.h"

using namespace zev;

namespace {

constexpr int kPageTimeMs = 30000;

bool isEngineLoaded() {
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("WebEngineCore");
}

QString write(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

/// A picture of one colour, `sizePx` wide and high.
QByteArray picture(int sizePx) {
    return "<svg xmlns='http://www.w3.org/2000/svg' width='" + QByteArray::number(sizePx) +
           "' height='" + QByteArray::number(sizePx) + "'><rect width='9' height='9'/></svg>";
}

/// Shows `page`, which may run these scripts of its folder, and waits until it is there: a question
/// asked earlier is answered by the empty document that every view starts with, or not at all.
bool openPage(QtBrowserView& view, const QString& page, const QStringList& scripts = {}) {
    QSignalSpy loaded(&view, &QtBrowserView::loaded);
    std::vector<std::string> paths;
    for (const QString& script : scripts)
        paths.push_back(QFileInfo(page).dir().filePath(script).toStdString());
    view.load(page.toStdString(), paths);
    return loaded.wait(kPageTimeMs);
}

/// Waits until `script` gives `expected` in the page inside `widget`.
#define TRY_IN_PAGE(widget, script, expected)                                               \
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(widget, script).toString(), QString(expected), \
                              kPageTimeMs)

}  // namespace

class test_web_views : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void theEngineStartsWithTheFirstPage();
    void pagesFollowADarkTheme();
    void theEndOfLoadingIsTold();
    void scriptsAndImagesOfTheFolderAreLoaded();
    void aPageIsReadAfreshEachTime();
    void theFocusStaysWhereItIs();
    void thePreviewTellsWhereALinkLeadsAndStays_data();
    void thePreviewTellsWhereALinkLeadsAndStays();
    void javaScriptLinksRunInThePreview();
    void theNoteAboutALinkGoesWithTheNextPage();
    void theMenuOfThePreviewOpensAndIsDrawn_data();
    void theMenuOfThePreviewOpensAndIsDrawn();
    void helpOpensAWindowOfItsOwn();
    void helpUsesItsWindowAgain();
    void helpFollowsLinksOfTheManual();
    void helpReadsStyleSheetsAndPicturesAfresh();
    void escapeClosesHelp();
    void aMissingManualIsNoError();
    void whereTheEngineWouldEndTheProgramANoteSaysWhatToDo();
};

// The superuser cannot have the engine's sandbox, and the engine ends a program without one.
void test_web_views::whereTheEngineWouldEndTheProgramANoteSaysWhatToDo() {
    if (geteuid() != 0)
        QSKIP("only the superuser is sure to be refused");
    const QByteArray previous = qgetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    QTemporaryDir folder;
    QtBrowserView view;
    view.resize(400, 300);
    view.show();
    view.load(write(folder, "page.html", "<p>Hello</p>").toStdString(), {});
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", previous);
    const auto* note = view.findChild<QLabel*>("lblPreviewNote");
    QVERIFY(note->isVisible());
    QVERIFY2(note->text().contains("Start the program as an ordinary user"),
             qPrintable(note->text()));
}

void test_web_views::initTestCase() {
    QApplication::setPalette(darkPalette());
}

void test_web_views::pagesFollowADarkTheme() {
    QTemporaryDir folder;
    const QString page = write(folder, "index.html", "<p>Manual</p>");
    QtHelpViewer help;
    help.show(page.toStdString());
    TRY_IN_PAGE(*help.window(), "document.body.innerText", "Manual");
    TRY_IN_PAGE(*help.window(), "matchMedia('(prefers-color-scheme: dark)').matches", "true");
}

void test_web_views::theEndOfLoadingIsTold() {
    QTemporaryDir folder;
    QtBrowserView view;
    QSignalSpy loaded(&view, &QtBrowserView::loaded);
    view.show();
    view.load(write(folder, "page.html", "<p>Hello</p>").toStdString(), {});
    QVERIFY(loaded.wait(kPageTimeMs));
    QCOMPARE(loaded.takeFirst().constFirst().toBool(), true);
    view.load(folder.filePath("missing.html").toStdString(), {});
    QVERIFY(loaded.wait(kPageTimeMs));
    QCOMPARE(loaded.takeFirst().constFirst().toBool(), false);
}

void test_web_views::theEngineStartsWithTheFirstPage() {
    QTemporaryDir folder;
    const QString page = write(folder, "page.html", "<p>Hello</p>");
    QtBrowserView view;
    const QtHelpViewer help;
    view.resize(400, 300);
    view.show();
    QTest::qWait(100);
    QVERIFY(!isEngineLoaded());
    view.load(page.toStdString(), {});
    QVERIFY(isEngineLoaded());
    TRY_IN_PAGE(view, "document.body.innerText", "Hello");
    QVERIFY(!view.findChild<QLabel*>("lblPreviewNote")->isVisible());
}

void test_web_views::scriptsAndImagesOfTheFolderAreLoaded() {
    QTemporaryDir folder;
    write(folder, "script.js", "document.write('from the script');");
    write(folder, "image.svg", picture(17));
    const QString page = write(folder, QString::fromUtf8("p\xc3\xa4ge 1#%.html"),
                               "<script src='script.js'></script><img src='image.svg'>");
    QtBrowserView view;
    view.show();
    QVERIFY(openPage(view, page, {"script.js"}));
    TRY_IN_PAGE(view, "document.body.innerText", "from the script");
    TRY_IN_PAGE(view, "document.images[0].naturalWidth", "17");
}

void test_web_views::aPageIsReadAfreshEachTime() {
    QTemporaryDir folder;
    const QString page =
        write(folder, "page.html", "<script src='script.js'></script><img src='image.svg'>");
    QtBrowserView view;
    view.show();
    for (int round = 1; round <= 3; ++round) {
        const QByteArray number = QByteArray::number(round);
        write(folder, "script.js", "document.write('round " + number + "');");
        write(folder, "image.svg", picture(10 + round));
        QVERIFY(openPage(view, page, {"script.js"}));
        TRY_IN_PAGE(view, "document.body.innerText", "round " + number);
        TRY_IN_PAGE(view, "document.images[0].naturalWidth", QString::number(10 + round));
    }
}

void test_web_views::theFocusStaysWhereItIs() {
    QTemporaryDir folder;
    const QString page =
        write(folder, "page.html",
              "<input id=field autofocus><body onload='field.focus(); window.focus()'>");
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* field = new QLineEdit;
    auto* view = new QtBrowserView;
    layout->addWidget(field);
    layout->addWidget(view);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    QVERIFY(openPage(*view, page));
    QTest::qWait(300);
    QCOMPARE(QApplication::focusWidget(), field);
}

void test_web_views::thePreviewTellsWhereALinkLeadsAndStays_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("address");
    const QString click =
        "var a = document.createElement('a'); document.body.append(a);"
        "a.href = '%1'; a.target = '%2'; a.click(); 0";
    const QString web = "https://zevmenu.example/page?a=1";
    QTest::newRow("a link to the web") << click.arg(web, "") << web;
    QTest::newRow("a link to another page") << click.arg("other.html", "") << "/other.html";
    QTest::newRow("a link to a new window") << click.arg(web, "_blank") << web;
    QTest::newRow("a link to a frame that is not there") << click.arg(web, "main") << web;
    QTest::newRow("a script that goes elsewhere") << "location.href = '" + web + "'; 0" << web;
    QTest::newRow("a script that opens a window") << "window.open('" + web + "'); 0" << web;
}

void test_web_views::thePreviewTellsWhereALinkLeadsAndStays() {
    QFETCH(QString, action);
    QFETCH(QString, address);
    QTemporaryDir folder;
    write(folder, "other.html", "another page");
    const QString page = write(folder, "page.html", "<p>Menu</p>");
    QtBrowserView view;
    view.resize(400, 300);
    view.show();
    QVERIFY(openPage(view, page));
    TRY_IN_PAGE(view, "document.body.innerText", "Menu");
    evaluateInPage(view, action);
    const auto* note = view.findChild<QLabel*>("lblPreviewNote");
    QTRY_VERIFY_WITH_TIMEOUT(note->isVisible(), kPageTimeMs);
    QVERIFY2(note->text().endsWith(address), qPrintable(note->text()));
    QVERIFY(note->text().startsWith("The preview does not follow links."));
    QTest::qWait(200);
    QVERIFY(evaluateInPage(view, "location.href").toString().endsWith("/page.html"));
    QCOMPARE(QApplication::topLevelWidgets().count(&view), 1);
}

void test_web_views::javaScriptLinksRunInThePreview() {
    QTemporaryDir folder;
    const QString page = write(folder, "page.html",
                               "<a id=a href='javascript:void(document.title = \"ran\")'>x</a>"
                               "<a id=b href='#there'>y</a>");
    QtBrowserView view;
    view.resize(400, 300);
    view.show();
    QVERIFY(openPage(view, page));
    evaluateInPage(view, "a.click(); 0");
    TRY_IN_PAGE(view, "document.title", "ran");
    evaluateInPage(view, "b.click(); 0");
    TRY_IN_PAGE(view, "location.hash", "#there");
    QVERIFY(!view.findChild<QLabel*>("lblPreviewNote")->isVisible());
}

void test_web_views::theNoteAboutALinkGoesWithTheNextPage() {
    QTemporaryDir folder;
    const QString page = write(folder, "page.html", "<p>Menu</p>");
    QtBrowserView view;
    view.show();
    QVERIFY(openPage(view, page));
    TRY_IN_PAGE(view, "document.body.innerText", "Menu");
    evaluateInPage(view, "location.href = 'other.html'; 0");
    const auto* note = view.findChild<QLabel*>("lblPreviewNote");
    QTRY_VERIFY_WITH_TIMEOUT(note->isVisible(), kPageTimeMs);
    view.load(page.toStdString(), {});
    QVERIFY(!note->isVisible());
}

// The engine's scripts and style sheets are those of a browser some years old.
void test_web_views::theMenuOfThePreviewOpensAndIsDrawn_data() {
    QTest::addColumn<QString>("zoom");
    QTest::newRow("at its own size") << "1";
    QTest::newRow("enlarged") << "2";
    QTest::newRow("made smaller") << "0.5";
}

void test_web_views::theMenuOfThePreviewOpensAndIsDrawn() {
    QFETCH(QString, zoom);
    QTemporaryDir folder;
    for (const QString name : {"zevmenu_loader.js", "zevmenu_dom.js", "zevmenu.html"})
        QVERIFY(QFile::copy(ZEV_RUNTIME_FOLDER "/" + name, folder.filePath(name)));
    write(folder, "orlet_temp.js",
          "zevmenu = new ZEVMenu('0'); zevmenu.columns = 2; zevmenu.nbgcolor = '#336699';"
          "zevmenu.position = 'bottom';"
          "zevmenu.AddItem('One', '', ''); zevmenu.AddItem('Two', '', '');"
          "zevmenu.AddItem('Three', '', '');"
          "zevmenu = new ZEVMenu('2'); zevmenu.AddItem('Below', '', '');");
    QtBrowserView view;
    view.resize(900, 700);
    view.show();
    QVERIFY(openPage(view, folder.filePath("zevmenu.html"),
                     {"zevmenu_loader.js", "zevmenu_dom.js", "orlet_temp.js"}));
    TRY_IN_PAGE(view, "typeof ZEVMenu.shared.sums", "object");
    evaluateInPage(view, "document.body.style.zoom = " + zoom +
                             "; item = name => [...document.querySelectorAll('[data-zev]')]"
                             ".map(host => host.shadowRoot.querySelector"
                             "(`a[aria-label=${name}]`)).find(Boolean);"
                             "rect = name => item(name).getBoundingClientRect(); 0");
    TRY_IN_PAGE(view, "getComputedStyle(item('One')).backgroundColor", "rgb(51, 102, 153)");
    TRY_IN_PAGE(view,
                "rect('One').top == rect('Two').top && rect('One').right <= rect('Two').left &&"
                "rect('Three').top >= rect('One').bottom && rect('Three').left == rect('One').left",
                "true");
    evaluateInPage(view,
                   "item('Two').dispatchEvent(new PointerEvent('pointermove', "
                   "{ pointerType: 'mouse', bubbles: true, composed: true })); 0");
    TRY_IN_PAGE(view, "item('Below').getClientRects().length", "1");
    TRY_IN_PAGE(view, "item('Two').getAttribute('aria-expanded')", "true");
    TRY_IN_PAGE(view,
                "Math.abs(rect('Below').left - rect('Two').left) < 2 &&"
                "Math.abs(rect('Below').top - rect('Two').bottom - 1) < 2",
                "true");
}

void test_web_views::helpOpensAWindowOfItsOwn() {
    QTemporaryDir folder;
    const QString page = write(folder, "index.html", "<p>Manual</p>");
    QtHelpViewer help;
    help.show(page.toStdString());
    QVERIFY(help.window()->isWindow());
    QVERIFY(help.window()->isVisible());
    QCOMPARE(help.window()->windowTitle(), QString("ZEVMenu Creator Help"));
    TRY_IN_PAGE(*help.window(), "document.body.innerText", "Manual");
}

void test_web_views::helpUsesItsWindowAgain() {
    QTemporaryDir folder;
    const QString page = write(folder, "index.html", "<p>Manual</p>");
    QtHelpViewer help;
    help.show(page.toStdString());
    const QWidget* first = help.window();
    help.window()->close();
    QVERIFY(!help.window()->isVisible());
    help.show(page.toStdString());
    QCOMPARE(help.window(), first);
    QVERIFY(help.window()->isVisible());
}

void test_web_views::helpFollowsLinksOfTheManual() {
    QTemporaryDir folder;
    const QString page = write(folder, "index.html", "<a id=a href='second.html'>next</a>");
    write(folder, "second.html", "<p>Second page</p>");
    QtHelpViewer help;
    help.show(page.toStdString());
    TRY_IN_PAGE(*help.window(), "document.body.innerText", "next");
    evaluateInPage(*help.window(), "a.click(); 0");
    TRY_IN_PAGE(*help.window(), "document.body.innerText", "Second page");
}

void test_web_views::helpReadsStyleSheetsAndPicturesAfresh() {
    QTemporaryDir folder;
    const QString page =
        write(folder, "index.html", "<link rel=stylesheet href='style.css'><img src='image.svg'>");
    QtHelpViewer help;
    for (int round = 1; round <= 3; ++round) {
        const QByteArray number = QByteArray::number(round);
        write(folder, "image.svg", picture(10 + round));
        write(folder, "style.css", "body { line-height: " + number + "0px }");
        help.show(page.toStdString());
        TRY_IN_PAGE(*help.window(), "document.images[0]?.naturalWidth",
                    QString::number(10 + round));
        TRY_IN_PAGE(*help.window(), "getComputedStyle(document.body).lineHeight", number + "0px");
    }
}

void test_web_views::escapeClosesHelp() {
    QTemporaryDir folder;
    const QString page = write(folder, "index.html", "<p>Manual</p>");
    QtHelpViewer help;
    help.show(page.toStdString());
    QVERIFY(QTest::qWaitForWindowActive(help.window()));
    QTest::keyClick(help.window(), Qt::Key_Escape);
    QTRY_VERIFY(!help.window()->isVisible());
}

void test_web_views::aMissingManualIsNoError() {
    QtHelpViewer help;
    help.show("/there/is/no/manual.html");
    QCOMPARE(help.window(), nullptr);
}

QTEST_MAIN(test_web_views)
#include "test_web_views.moc"
