#include "platform/qt/web_engine_view.h"

#include <QGuiApplication>
#include <QMenu>
#include <QOpenGLContext>
#include <QPalette>
#include <QVBoxLayout>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
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

/// Tells the engine when the desktop's theme is dark, which it does not ask for by itself: the
/// manual, and pages that have a dark look, follow.
void followTheme() {
    constexpr const char* kFlags = "QTWEBENGINE_CHROMIUM_FLAGS";
    if (QGuiApplication::palette().color(QPalette::Base).lightness() < 128)
        qputenv(kFlags, qgetenv(kFlags) + " --blink-settings=preferredColorScheme=0");
}

}  // namespace

WebEnginePage::WebEnginePage(QWebEngineProfile* profile, const WebView& owner)
    : QWebEnginePage(profile), m_owner(owner) {
    connect(
        this, &QWebEnginePage::newWindowRequested, this,
        [this](QWebEngineNewWindowRequest& request) {
            m_owner.linkRefused(request.requestedUrl().toString());
        });
}

bool WebEnginePage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    const bool isHome = url.adjusted(QUrl::RemoveFragment) == m_home;
    const bool isFollowed =
        url.isLocalFile() && m_owner.localLinks == WebView::LocalLinks::Followed;
    if (!isMainFrame || isHome || isFollowed)
        return true;
    m_owner.linkRefused(url.toString());
    return false;
}

WebEngineView::WebEngineView(QWidget* parent)
    : WebView(parent),
      m_view(new QWebEngineView(this)),
      m_profile(new QWebEngineProfile(this)),  // without a name: nothing of it is kept on disk
      m_page(new WebEnginePage(m_profile, *this)) {
    m_profile->setHttpCacheType(QWebEngineProfile::NoCache);
    m_view->setPage(m_page);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &WebEngineView::showContextMenu);
    connect(m_view, &QWebEngineView::loadFinished, this, [this](bool isOk) { loaded(isOk); });
    setFocusProxy(m_view);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
}

WebEngineView::~WebEngineView() {
    // A profile must outlive its pages.
    delete m_page;
}

void WebEngineView::load(const QString& path) {
    const QUrl url = QUrl::fromLocalFile(path);
    m_page->setHome(url);
    m_view->load(url);
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
        return true;
    }();
    Q_UNUSED(isPrepared)
    return new WebEngineView(parent);
}

}  // namespace zev
