// SPDX-License-Identifier: MIT
// Opens hostile menus in the real window, with the real disk and browser engine. Every way has a
// server of its own that must hear nothing, so that a leak has a name.

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QListWidget>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>
#include <memory>

#include "app/frm_main.h"
#include "hostile_ways.h"
#include "page_probe.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "platform/qt/qt_browser_view.h"

using namespace zev;

namespace {

constexpr int kPageTimeMs = 15000;
/// What a page could still do after its last attempt was made.
constexpr int kSettleTimeMs = 2500;

void fail(const std::string& problem) {
    QTest::qFail(problem.c_str(), __FILE__, __LINE__);
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// An address of this machine that is not its loopback, where there is one: a proxy is not asked
/// about that.
QHostAddress localAddress() {
    for (const QHostAddress& address : QNetworkInterface::allAddresses())
        if (!address.isLoopback() && address.protocol() == QAbstractSocket::IPv4Protocol)
            return address;
    return QHostAddress(QHostAddress::LocalHost);
}

/// A port of this machine that notes every connection and datagram, and answers `answer`.
class Listener {
  public:
    explicit Listener(QByteArray answer = "HTTP/1.1 204 No Content\r\n\r\n")
        : m_answer(std::move(answer)) {
        // The program's proxy is one of the walls. It is not for the test's own sockets.
        m_server.setProxy(QNetworkProxy::NoProxy);
        m_datagrams.setProxy(QNetworkProxy::NoProxy);
        // The number must be free for both kinds.
        while (!m_server.isListening() || !m_datagrams.bind(localAddress(), port())) {
            m_server.close();
            m_server.listen(localAddress());
        }
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { take(); });
        QObject::connect(&m_datagrams, &QUdpSocket::readyRead, &m_server, [this] {
            heard.append("datagram");
            while (m_datagrams.hasPendingDatagrams())
                m_datagrams.readDatagram(nullptr, 0);
        });
    }

    quint16 port() const { return m_server.serverPort(); }
    QString address() const { return localAddress().toString() + ":" + QString::number(port()); }

    QByteArrayList heard;

  private:
    void take() {
        QTcpSocket* socket = m_server.nextPendingConnection();
        heard.append("connection");
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            heard.append(socket->readAll().left(60));
            socket->write(m_answer);
            socket->disconnectFromHost();
        });
    }

    QByteArray m_answer;
    QTcpServer m_server;
    QUdpSocket m_datagrams;
};

/// `code` as the value of an HTML attribute in a line of a definition.
QString asHandler(const QString& code) {
    QString text;
    for (const QChar c : code)
        text += c.isLetterOrNumber() ? QString(c) : QString("&#%1;").arg(c.unicode());
    return text;
}

/// The caption that runs `code` once it is shown, and notes that it did.
QString captionRunning(const QString& name, const QString& code) {
    const QString whole =
        "(async () => { let a,b,c,d,e,f,g,i,l,m,o,p,r,s,t,v,w,x; const stolen = what => {"
        "if (what) (window.zStolen = window.zStolen || {})['%1'] = what }; (window.zRan = "
        "window.zRan || {})['%1'] = true;"
        "try { %2 } catch (problem) {} })()";
    return "<img src=\"data:,\" onerror=\"" +
           asHandler(QString(whole).replace("%1", name).replace("%2", code)) + "\">";
}

QString itemLine(const QString& caption, const QString& url) {
    return "zevmenu.AddItem('" + caption + "','" + url + "','');\r\n";
}

}  // namespace

class test_preview_walls : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init();
    void cleanup();
    void noWayLeadsOut_data();
    void noWayLeadsOut();
    void picturesShowWhereverTheyLie();
    void picturesFromTheNetworkAreOfferedAndForgotten();
    void aPictureThatLeadsToAnotherSiteIsRefusedAgain();
    void messagesStandInALine();
    void aPageThatAsksForEverIsStopped_data();
    void aPageThatAsksForEverIsStopped();
    void aPageThatHangsIsStopped();
    void aPageThatEatsMemoryIsStopped();
    void noPageKeepsTheNextOneAway();
    void anErrorOfTheScriptStandsInThePageAndInTheNotes();
    void whatAPageWritesToItsConsoleIsNoErrorOfTheScript();

  private:
    void openMenu(const QString& lines);
    void openPreview(const QString& lines);
    QString lineOf(const HostileWay& way, const QString& server) const;
    QVariant inPage(const QString& script) { return evaluateInPage(*m_browser, script); }
    QJsonObject objectInPage(const QString& name) {
        const QByteArray text = inPage("JSON.stringify(window." + name + ")").toByteArray();
        return QJsonDocument::fromJson(text).object();
    }
    /// All rows of the list of notes, one a line.
    QString notes() {
        QCoreApplication::processEvents();
        auto* list = m_window->findChild<QListWidget*>("NotesList");
        for (auto* button : m_window->findChild<QWidget*>("Notes")->findChildren<QPushButton*>())
            if (list->count() == 0 && button->text() == "Show Notes")
                button->click();
        QString rows;
        for (int row = 0; row < list->count(); ++row)
            rows += list->item(row)->text() + "\n";
        return rows;
    }
    QLabel& note(const char* name = "lblPreviewNote") {
        return *m_browser->findChild<QLabel*>(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QDir m_site;
    PosixFileSystem m_files;
    FakeMessageBox m_messages{fail};
    FakeCommonDialogs m_dialogs{fail};
    FakeShell m_shell{fail};
    FakeHelpViewer m_help;
    QtBrowserView* m_browser = nullptr;
    std::unique_ptr<frmMain> m_window;
};

/// The private files, in a folder beside the site: one of each kind a page might read.
void test_preview_walls::initTestCase() {
    m_folder = std::make_unique<QTemporaryDir>();
    QDir folder(m_folder->path());
    for (const QString name : {"program", "site", "img", "private"})
        QVERIFY(folder.mkdir(name));
    for (const QString name :
         {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
        QVERIFY(QFile::copy(ZEV_RUNTIME_FOLDER "/" + name, folder.filePath("program/" + name)));
    m_site = QDir(folder.filePath("site"));
    write(m_site.filePath("private.js"), "var secretBesidePage = 'secret';");
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
        "<rect id='a' width='9' height='9'/><title>secret</title></svg>";
    const std::pair<QString, QByteArray> files[] = {
        {"secret.txt", "secret"},
        {"secret.html", "secret"},
        {"telling.html", "<script>parent.postMessage('secret', '*')</script>"},
        {"secret.js", "var secretOfScript = 'secret';"},
        {"module.js", "export var secret = 'secret';"},
        {"secret.css", "body { --secret: secret }"},
        {"worker.js", "postMessage('secret')"},
        {"secret.svg", svg},
        {"secret.vtt", "WEBVTT\n\n00:00.000 --> 00:09.000\nsecret\n"},
        {"secret.xml", "<a>secret</a>"},
        {"secret.wav",
         QByteArray::fromHex("524946462c00000057415645666d74201000000001000100401f0000"
                             "401f000001000800646174610800000080808080808080"
                             "80")}};
    for (const auto& [name, bytes] : files)
        write(folder.filePath("private/" + name), bytes);
    QImage image(9, 9, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(folder.filePath("private/secret.png")));
    QVERIFY(image.save(folder.filePath("img/picture.png")));
    QDirIterator fonts("/usr/share/fonts", {"*.ttf"}, QDir::Files, QDirIterator::Subdirectories);
    QVERIFY2(fonts.hasNext(), "no font to read");
    QVERIFY(QFile::copy(fonts.next(), folder.filePath("private/secret.ttf")));
}

void test_preview_walls::init() {
    m_browser = new QtBrowserView;
    m_window = std::make_unique<frmMain>(
        EditorServices{m_files, m_messages, m_dialogs, m_shell, m_help, *m_browser},
        m_folder->filePath("program").toStdString(), m_browser);
    m_window->show();
}

void test_preview_walls::cleanup() {
    m_window.reset();
}

void test_preview_walls::openMenu(const QString& lines) {
    write(m_site.filePath("menu.js"), lines.toUtf8());
    m_window->openDefinition(m_site.filePath("menu.js").toStdString());
}

/// Opens a menu with these lines and waits for its preview.
void test_preview_walls::openPreview(const QString& lines) {
    openMenu(lines);
    QSignalSpy loaded(m_browser, &QtBrowserView::loaded);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
    QVERIFY(loaded.count() > 0 || loaded.wait(kPageTimeMs));
    QCOMPARE(loaded.constFirst().constFirst().toBool(), true);
}

QString test_preview_walls::lineOf(const HostileWay& way, const QString& server) const {
    static const QRegularExpression kServer("\\bS\\b");
    static const QRegularExpression kFolder("\\bF\\b");
    QString text = way.text;
    text.replace(kServer, server);
    text.replace(kFolder, QUrl::fromLocalFile(m_folder->filePath("private")).toString());
    const QString ran = captionRunning(way.name, "");
    switch (way.in) {
        case WayIn::Html:
            return itemLine(text + ran, "");
        case WayIn::Script:
            return itemLine(captionRunning(way.name, text), "");
        case WayIn::Link:
            return itemLine("click " + ran, text);
        case WayIn::Before:
            return "zevmenu.htmlBefore='" + text + ran + "';\r\n";
        case WayIn::Background:
            return "zevmenu.bgimage='" + text + "';\r\n" + itemLine(ran, "");
        case WayIn::Rollover:
            return "zevmenu.AddRollover('','" + text + "','" + text + "','');\r\n" +
                   itemLine(ran, "");
    }
    return {};
}

void test_preview_walls::noWayLeadsOut_data() {
    QTest::addColumn<WayOut>("out");
    QTest::addColumn<QString>("only");
    QTest::newRow("to the network") << WayOut::Network << "";
    QTest::newRow("to private files") << WayOut::File << "";
    QTest::newRow("out of the page") << WayOut::Leave << "";
    for (const HostileWay& way : kHostileWays)
        if (way.out == WayOut::Window)
            QTest::newRow(way.name) << way.out << QString(way.name);
}

void test_preview_walls::noWayLeadsOut() {
    QFETCH(WayOut, out);
    QFETCH(QString, only);
    std::map<QString, std::unique_ptr<Listener>> listeners;
    QString lines = "zevmenu = new ZEVMenu('0');\r\n";
    for (const HostileWay& way : kHostileWays) {
        if (way.out != out || (!only.isEmpty() && way.name != only))
            continue;
        auto& listener = listeners[way.name] = std::make_unique<Listener>();
        lines += lineOf(way, listener->address());
    }
    openMenu(lines);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
    const auto notTried = [&] {
        const QJsonObject ran = objectInPage("zRan");
        QStringList names;
        for (const auto& [name, listener] : listeners)
            if (!ran.contains(name))
                names.append(name);
        return names.join(", ");
    };
    QTRY_COMPARE_WITH_TIMEOUT(notTried(), QString(), kPageTimeMs);
    inPage(
        "document.querySelectorAll('[data-zev]').forEach(host => host.shadowRoot"
        ".querySelectorAll('a').forEach(link => /click/.test(link.textContent) && "
        "link.click()));0");
    QTest::qWait(kSettleTimeMs);
    QStringList leaks;
    for (const auto& [name, listener] : listeners)
        if (!listener->heard.isEmpty())
            leaks.append(name + " (" + listener->heard.join(", ") + ")");
    const QJsonObject stolen = objectInPage("zStolen");
    for (const QString& name : stolen.keys())
        leaks.append(name + " (read " + stolen.value(name).toVariant().toString().left(60) + ")");
    QVERIFY2(leaks.isEmpty(), qPrintable(QString::number(leaks.size()) + ": " + leaks.join("; ")));
    QVERIFY(inPage("location.pathname").toString().endsWith("/orlet_temp.html"));
    QCOMPARE(QApplication::topLevelWidgets().count(m_window.get()), 1);
}

void test_preview_walls::picturesShowWhereverTheyLie() {
    const QString full = QUrl::fromLocalFile(m_folder->filePath("private/secret.png")).toString();
    openPreview("zevmenu = new ZEVMenu('0');\r\n" +
                itemLine("<img id=\"a\" src=\"../img/picture.png\">", "") +
                itemLine("<img id=\"b\" src=\"" + full + "\">", "") +
                itemLine("<img id=\"c\" src=\"data:image/gif;base64,"
                         "R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7\">",
                         "") +
                itemLine("<img id=\"d\" src=\"file:///dev/zero\">", "") +
                "zevmenu.AddRollover('','../img/picture.png','../img/picture.png','');\r\n");
    const QString widths =
        "[...document.querySelectorAll('[data-zev]')].map(host => [...host.shadowRoot"
        ".querySelectorAll('img')].map(image => image.naturalWidth)).flat().join()";
    QTRY_COMPARE_WITH_TIMEOUT(inPage(widths).toString(), QString("9,9,1,0,9,9"), kPageTimeMs);
    QVERIFY(!m_browser->findChild<QPushButton*>("cmdLoadPictures")->isVisible());
}

void test_preview_walls::picturesFromTheNetworkAreOfferedAndForgotten() {
    const QByteArray gif =
        QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
    Listener server("HTTP/1.1 200 OK\r\nContent-Type: image/gif\r\nContent-Length: " +
                    QByteArray::number(gif.size()) + "\r\nConnection: close\r\n\r\n" + gif);
    const QString menu = "zevmenu = new ZEVMenu('0');\r\n" +
                         itemLine("<img src=\"http://" + server.address() + "/a.gif\">", "");
    openPreview(menu);
    auto* button = m_browser->findChild<QPushButton*>("cmdLoadPictures");
    QTRY_VERIFY_WITH_TIMEOUT(button->isVisible(), kPageTimeMs);
    QCOMPARE(note("lblPreviewPictures").text(),
             "Pictures from " + server.address() + " were not loaded.");
    QCOMPARE(button->text(), QString("Load"));
    QCOMPARE(server.heard.size(), 0);

    QTest::mouseClick(button, Qt::LeftButton);
    const QString width =
        "Math.max(0, ...[...document.querySelectorAll('[data-zev]')].map(host => "
        "host.shadowRoot.querySelector('img')?.naturalWidth || 0))";
    QTRY_COMPARE_WITH_TIMEOUT(inPage(width).toInt(), 1, kPageTimeMs);
    QVERIFY(!button->isVisible());

    // Another menu from the same folder, whose preview is the same page.
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
    server.heard.clear();
    openPreview(menu);
    QTRY_VERIFY_WITH_TIMEOUT(button->isVisible(), kPageTimeMs);
    QCOMPARE(server.heard.size(), 0);
}

void test_preview_walls::aPictureThatLeadsToAnotherSiteIsRefusedAgain() {
    Listener other;
    Listener server("HTTP/1.1 302 Found\r\nLocation: http://" + other.address().toLatin1() +
                    "/b.gif\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    openPreview("zevmenu = new ZEVMenu('0');\r\n" +
                itemLine("<img src=\"http://" + server.address() + "/a.gif\">", ""));
    auto* button = m_browser->findChild<QPushButton*>("cmdLoadPictures");
    QTRY_VERIFY_WITH_TIMEOUT(button->isVisible(), kPageTimeMs);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(note("lblPreviewPictures").text(),
                              "Pictures from " + other.address() + " were not loaded.",
                              kPageTimeMs);
    QVERIFY(server.heard.size() > 0);
    QTest::qWait(500);
    QCOMPARE(other.heard.size(), 0);
}

void test_preview_walls::messagesStandInALine() {
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Item", ""));
    QCOMPARE(inPage("String([alert('Hello\\n<b>you</b>'), confirm('Sure?'), prompt('Who?', 'x')])")
                 .toString(),
             QString(",false,"));
    QCOMPARE(note().text(), QString("The page says: Who?"));
    inPage("alert('Hello\\n<b>you</b>'); 0");
    QCOMPARE(note().text(), QString("The page says: Hello <b>you</b>"));
    const int widthBefore = m_window->width();
    inPage("alert('x'.repeat(100000)); 0");
    QVERIFY(note().text().size() < 400);
    QTest::qWait(100);
    QCOMPARE(m_window->width(), widthBefore);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void test_preview_walls::aPageThatAsksForEverIsStopped_data() {
    QTest::addColumn<QString>("call");
    QTest::newRow("alert") << "alert(1)";
    QTest::newRow("confirm") << "confirm(1)";
    QTest::newRow("prompt") << "prompt(1)";
}

void test_preview_walls::aPageThatAsksForEverIsStopped() {
    QFETCH(QString, call);
    openMenu("zevmenu = new ZEVMenu('0');\r\n" +
             itemLine(captionRunning("loop", "for (;;) " + call + ";"), ""));
    QSignalSpy stopped(m_browser, &QtBrowserView::stopped);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
    QVERIFY(stopped.wait(kPageTimeMs));
    QCOMPARE(note().text(),
             QString("The preview was stopped. It showed one message after the other."));
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Item", ""));
    QVERIFY(!note().isVisible());
}

void test_preview_walls::aPageThatHangsIsStopped() {
    openMenu("zevmenu = new ZEVMenu('0');\r\n" + itemLine(captionRunning("loop", "for (;;);"), ""));
    QSignalSpy stopped(m_browser, &QtBrowserView::stopped);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
    QVERIFY(stopped.wait(kPageTimeMs));
    QCOMPARE(note().text(), QString("The preview was stopped. It did not answer for 10 seconds."));
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Item", ""));
    QVERIFY(inPage("document.body.innerText").toString().contains("Menu preview"));
    QVERIFY(!note().isVisible());
}

void test_preview_walls::aPageThatEatsMemoryIsStopped() {
    // Ends by itself at 3 GB, so that a failure of the wall does not take the machine.
    openMenu("zevmenu = new ZEVMenu('0');\r\n" +
             itemLine(captionRunning("eat",
                                     "window.hoard = []; while (hoard.length < 375)"
                                     "hoard.push(new Array(1e6).fill(hoard.length + 0.5))"),
                      ""));
    QSignalSpy stopped(m_browser, &QtBrowserView::stopped);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
    QVERIFY(stopped.wait(kPageTimeMs));
    QCOMPARE(note().text(),
             QString("The preview was stopped. It used too much memory, or its browser failed."));
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Item", ""));
}

void test_preview_walls::noPageKeepsTheNextOneAway() {
    openPreview("zevmenu = new ZEVMenu('0');\r\n" +
                itemLine(captionRunning("stay", "onbeforeunload = () => 'stay';"), ""));
    // Only a page that was used may ask whether to leave it.
    QWidget* page = nullptr;
    for (auto* child : m_browser->findChildren<QWidget*>())
        page = child->focusProxy() == nullptr ? page : child->focusProxy();
    QVERIFY(page != nullptr);
    QTest::mouseClick(page, Qt::LeftButton);
    QTest::qWait(300);
    m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Next", ""));
    QCOMPARE(objectInPage("zRan").size(), 0);
    for (int times = 0; times < 2; ++times) {
        m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
        openMenu("zevmenu = new ZEVMenu('0');\r\n" +
                 itemLine(captionRunning("loop", "setTimeout(() => { for (;;); })"), ""));
        m_window->findChild<QTabWidget*>("MenuTab")->setCurrentWidget(m_browser);
        QTest::qWait(4500);
        m_window->findChild<QTabWidget*>("MenuTab")->setCurrentIndex(0);
        openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Next", ""));
        QVERIFY(inPage("document.body.innerText").toString().contains("Menu preview"));
    }
}

void test_preview_walls::anErrorOfTheScriptStandsInThePageAndInTheNotes() {
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Tea", "") +
                "zevmenu.nbgcolor = 'navy'';\r\n");
    const QString shown =
        "[...document.querySelectorAll('#problem, #empty')].filter("
        "note => !note.hidden).map(note => note.textContent).join('|')";
    const QString problem = inPage(shown).toString();
    QVERIFY2(problem.startsWith("The menu's script has an error in line 14: SyntaxError"),
             qPrintable(problem));
    const QString note = "The menu's script has an error in line 14 (the top menu): \"SyntaxError";
    QTRY_VERIFY2(notes().contains(note), qPrintable(notes()));

    // Mended and shown again, neither says anything of it any more.
    openPreview("zevmenu = new ZEVMenu('0');\r\n" + itemLine("Tea", ""));
    QCOMPARE(inPage(shown).toString(), QString());
    QTRY_VERIFY2(!notes().contains(note), qPrintable(notes()));
}

void test_preview_walls::whatAPageWritesToItsConsoleIsNoErrorOfTheScript() {
    openPreview("zevmenu = new ZEVMenu('0');\r\n" +
                itemLine("<img src=\"data:,\" onerror=\"" +
                             asHandler("console.error('Uncaught Lie'); window.done = true;") +
                             "\">",
                         ""));
    QTRY_COMPARE_WITH_TIMEOUT(inPage("window.done").toBool(), true, kPageTimeMs);
    QVERIFY2(!notes().contains("has an error"), qPrintable(notes()));
}

QTEST_MAIN(test_preview_walls)
#include "test_preview_walls.moc"
