#pragma once

#include <QWebEnginePage>
#include <QWebEngineView>

#include "platform/qt/web_view.h"

namespace zev {

/// A page that stays where it was told to go.
class WebEnginePage : public QWebEnginePage {
    Q_OBJECT
  public:
    WebEnginePage(QWebEngineProfile* profile, const WebView& owner);

    /// The page that may be shown whatever the rules about links say.
    void setHome(const QUrl& url) { m_home = url; }

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;

  private:
    const WebView& m_owner;
    QUrl m_home;
};

/// The browser engine behind `WebView`.
class WebEngineView : public WebView {
    Q_OBJECT
  public:
    explicit WebEngineView(QWidget* parent);
    ~WebEngineView() override;

    void load(const QString& path) override;
    void goBack() override;
    void goForward() override;

  private:
    void showContextMenu(const QPoint& position);

    QWebEngineView* m_view;
    QWebEngineProfile* m_profile;
    WebEnginePage* m_page;
};

class WebEngineViewFactory : public QObject, public WebViewFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZEV_WEB_VIEW_FACTORY_IID)
    Q_INTERFACES(zev::WebViewFactory)
  public:
    WebView* create(QWidget* parent, QString& problem) override;
};

}  // namespace zev
