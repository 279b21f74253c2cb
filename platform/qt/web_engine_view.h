// SPDX-License-Identifier: MIT
#pragma once

#include <QWebEnginePage>
#include <QWebEngineView>
#include <memory>

#include "platform/qt/page_walls.h"
#include "platform/qt/page_watch.h"
#include "platform/qt/web_view.h"

namespace zev {

/// A page that stays where it was told to go, and opens no dialog.
class WebEnginePage : public QWebEnginePage {
    Q_OBJECT
  public:
    WebEnginePage(QWebEngineProfile* profile, const WebView& owner, const PageWalls& walls);

    std::function<void()> dialogAsked = [] {};

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& proposal,
                          QString* answer) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                  int line, const QString& source) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& oldFiles,
                            const QStringList& types) override;

  private:
    void refuseRequests();

    const WebView& m_owner;
    const PageWalls& m_walls;
};

/// The browser engine behind `WebView`.
class WebEngineView : public WebView {
    Q_OBJECT
  public:
    explicit WebEngineView(QWidget* parent);

    void load(const QString& path, const QStringList& scripts) override;
    void goBack() override;
    void goForward() override;
    void allowPictures(const QStringList& sites) override { m_walls.allowPictures(sites); }
    void forgetAllowedPictures() override { m_walls.forgetAllowedPictures(); }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void makePage();
    void showContextMenu(const QPoint& position);

    PageWalls m_walls{*this};
    PageFiles m_files{m_walls};
    QWebEngineView* m_view;
    QWebEngineProfile* m_profile;
    std::unique_ptr<WebEnginePage> m_page;  ///< goes before its profile, as it must
    std::unique_ptr<PageWatch> m_watch;     ///< of this page
};

class WebEngineViewFactory : public QObject, public WebViewFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZEV_WEB_VIEW_FACTORY_IID)
    Q_INTERFACES(zev::WebViewFactory)
  public:
    WebView* create(QWidget* parent, QString& problem) override;
};

}  // namespace zev
