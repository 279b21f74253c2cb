// SPDX-License-Identifier: MIT
#include "platform/qt/web_engine_view.h"

#include <QAuthenticator>
#include <QGuiApplication>
#include <QMenu>
#include <QOpenGLContext>
#include <QPalette>
#include <QVBoxLayout>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QtQuick/QQuickWindow>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#endif

QT_BEGIN_NAMESPACE
// Exported for the browser engine, which sets it the same way when it is linked into a program.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace zev {

namespace {

/// False when the browser engine would end the whole program instead of starting: it insists on
/// locking its page processes in, which it cannot do for the superuser and on systems that give
/// ordinary users no namespaces of their own. QTWEBENGINE_DISABLE_SANDBOX=1 makes it do without.
bool canStartBrowser() {
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0)
        return true;
    if (geteuid() == 0)
        return false;
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
#else
    return true;
#endif
}

/// A page with a menu needs no graphics card. Drawing it as the rest of the window is drawn spares
/// every start the graphics driver (a third of the time, two thirds of the memory), and spares the
/// first preview a main window that is taken down and put up again as an OpenGL one.
void drawWithoutOpenGL() {
    QQuickWindow::setSceneGraphBackend("software");
    // The engine reads the shared context's format without asking whether there is one. A context
    // that was never created has one, and tells it not to use OpenGL.
    if (QOpenGLContext::globalShareContext() == nullptr)
        qt_gl_set_global_share_context(new QOpenGLContext);
}

void addEngineFlag(const QByteArray& flag) {
    constexpr const char* kFlags = "QTWEBENGINE_CHROMIUM_FLAGS";
    qputenv(kFlags, qgetenv(kFlags) + " " + flag);
}

/// Tells the engine when the desktop's theme is dark, which it does not ask for by itself: the
/// manual, and pages that have a dark look, follow.
void followTheme() {
    if (QGuiApplication::palette().color(QPalette::Base).lightness() < 128)
        addEngineFlag("--blink-settings=preferredColorScheme=0");
}

/// A call between browsers sends datagrams that no proxy and no request interceptor sees.
void refuseDatagrams() {
    addEngineFlag("--force-webrtc-ip-handling-policy=disable_non_proxied_udp");
}

}  // namespace

WebEnginePage::WebEnginePage(QWebEngineProfile* profile, const WebView& owner,
                             const PageWalls& walls)
    : QWebEnginePage(profile), m_owner(owner), m_walls(walls) {
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](QWebEngineNewWindowRequest& request) {
                m_owner.linkRefused(commonUrl(request.requestedUrl()).toString());
            });
    refuseRequests();
}

void WebEnginePage::refuseRequests() {
    connect(
        this, &QWebEnginePage::featurePermissionRequested, this,
        [this](const QUrl& origin, Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
        });
    connect(
        this, &QWebEnginePage::quotaRequested, this,
        [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(
        this, &QWebEnginePage::registerProtocolHandlerRequested, this,
        [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(
        this, &QWebEnginePage::fileSystemAccessRequested, this,
        [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
    const auto refusePassword = [](const QUrl&, QAuthenticator* answer) {
        *answer = QAuthenticator();
    };
    connect(this, &QWebEnginePage::authenticationRequired, this, refusePassword);
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this, refusePassword);
}

bool WebEnginePage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    if (!isMainFrame)
        return false;
    if (m_walls.isPage(url))
        return true;
    m_owner.linkRefused(commonUrl(url).toString());
    return false;
}

void WebEnginePage::javaScriptAlert(const QUrl&, const QString& text) {
    m_owner.messageShown(text);
    dialogAsked();
}

bool WebEnginePage::javaScriptConfirm(const QUrl&, const QString& text) {
    m_owner.messageShown(text);
    dialogAsked();
    return false;
}

bool WebEnginePage::javaScriptPrompt(const QUrl&, const QString& text, const QString&, QString*) {
    m_owner.messageShown(text);
    dialogAsked();
    return false;
}

// The engine's own channel: the page needs no way to the program for it. What a page writes to its
// console by itself has no such beginning, or pretends to, and is a text like any other.
void WebEnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level,
                                             const QString& message, int line,
                                             const QString& source) {
    QWebEnginePage::javaScriptConsoleMessage(level, message, line, source);
    static const QString kUncaught = "Uncaught ";
    if (level == ErrorMessageLevel && message.startsWith(kUncaught) &&
        m_walls.isScript(QUrl(source)))
        m_owner.scriptFailed(line, message.mid(kUncaught.size()));
}

QStringList WebEnginePage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) {
    return {};
}

WebEngineView::WebEngineView(QWidget* parent)
    : WebView(parent),
      m_view(new QWebEngineView(this)),
      m_profile(new QWebEngineProfile(this)) {  // without a name: nothing of it is kept on disk
    m_profile->setHttpCacheType(QWebEngineProfile::NoCache);
    m_profile->setUrlRequestInterceptor(&m_walls);
    m_profile->installUrlSchemeHandler("zevmenu-page", &m_files);
    shutOff(*m_profile);
    makePage();
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &WebEngineView::showContextMenu);
    setFocusProxy(m_view);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
}

/// Each load has a page of its own: one that hangs, was stopped, or asks whether to leave it cannot
/// stand in the way of the next, nor what it remembers of files that have changed since.
void WebEngineView::makePage() {
    auto page = std::make_unique<WebEnginePage>(m_profile, *this, m_walls);
    auto watch = std::make_unique<PageWatch>(
        *page, [this](const QString& reason) { stopped(reason); });
    page->dialogAsked = [watch = watch.get()] { watch->countDialog(); };
    connect(page.get(), &QWebEnginePage::loadFinished, this,
            [this, watch = watch.get()](bool isOk) {
                if (!watch->isStopped())
                    loaded(isOk);
            });
    m_view->setPage(page.get());
    watch->setShown(isVisible());
    m_watch = std::move(watch);
    m_page = std::move(page);
}

void WebEngineView::load(const QString& path, const QStringList& scripts) {
    const QUrl url = pageUrl(path);
    m_walls.setPage(url, scripts);
    makePage();
    m_page->load(url);
}

void WebEngineView::showEvent(QShowEvent* event) {
    WebView::showEvent(event);
    m_watch->setShown(true);
}

void WebEngineView::hideEvent(QHideEvent* event) {
    WebView::hideEvent(event);
    m_watch->setShown(false);
}

void WebEngineView::goBack() {
    m_view->back();
}

void WebEngineView::goForward() {
    m_view->forward();
}

/// The engine's own menu offers to save the page, to show its source and to open windows; here
/// only these make sense.
void WebEngineView::showContextMenu(const QPoint& position) {
    QMenu menu(this);
    menu.addAction(m_page->action(QWebEnginePage::Back));
    menu.addAction(m_page->action(QWebEnginePage::Forward));
    menu.addSeparator();
    menu.addAction(m_page->action(QWebEnginePage::Copy));
    menu.addAction(m_page->action(QWebEnginePage::SelectAll));
    menu.exec(m_view->mapToGlobal(position));
}

WebView* WebEngineViewFactory::create(QWidget* parent, QString& problem) {
    if (!canStartBrowser()) {
        problem =
            "Its browser locks pages into a sandbox, which this system does not allow here. Start "
            "the program as an ordinary user, or with QTWEBENGINE_DISABLE_SANDBOX=1 set.";
        return nullptr;
    }
    static const bool isPrepared = [] {
        drawWithoutOpenGL();
        followTheme();
        refuseDatagrams();
        registerPageScheme();
        return true;
    }();
    Q_UNUSED(isPrepared)
    return new WebEngineView(parent);
}

}  // namespace zev
