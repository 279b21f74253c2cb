#include "platform/qt/web_engine_view.h"

#include <QMenu>
#include <QOpenGLContext>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace zev {

WebEnginePage::WebEnginePage(QWebEngineProfile* profile, const WebView& owner)
    : QWebEnginePage(profile), m_owner(owner) {
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](QWebEngineNewWindowRequest& request) {
                m_owner.linkRefused(request.requestedUrl().toString());
            });
}

bool WebEnginePage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    const bool isHome = url.adjusted(QUrl::RemoveFragment) == m_home;
    const bool isFollowed =
        url.isLocalFile() && m_owner.localLinks == WebView::LocalLinks::Followed;
    if (!isMainFrame || isHome || isFollowed) {
        return true;
    }
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
    // Without it the engine ends the whole program, and the menu being edited with it.
    if (QOpenGLContext::globalShareContext() == nullptr ||
        !QOpenGLContext::globalShareContext()->isValid()) {
        problem = "This display does not offer OpenGL.";
        return nullptr;
    }
    return new WebEngineView(parent);
}

}  // namespace zev
