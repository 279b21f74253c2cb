#pragma once

#include <QString>
#include <QWidget>
#include <QtPlugin>
#include <functional>

namespace zev {

/// A widget that shows local HTML pages.
class WebView : public QWidget {
  public:
    /// What becomes of a link to another local page.
    enum class LocalLinks { Followed, Refused };

    using QWidget::QWidget;
    /// Loads a local file, given by full path, and never from a cache.
    virtual void load(const QString& path) = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;

    LocalLinks localLinks = LocalLinks::Refused;
    /// Called with the address of a link that the view does not follow itself: one that leads to
    /// the network, asks for a window of its own, or is refused by `localLinks`.
    std::function<void(const QString& address)> linkRefused = [](const QString&) {};
    /// Called when a page has been loaded, or could not be. It may not be painted yet.
    std::function<void(bool isOk)> loaded = [](bool) {};
};

/// What the module with the browser engine offers.
class WebViewFactory {
  public:
    virtual ~WebViewFactory() = default;
    /// The new view belongs to `parent`. Null, with the reason in `problem`, when the engine cannot
    /// start.
    virtual WebView* create(QWidget* parent, QString& problem) = 0;
};

/// Loads the module with the browser engine if need be and makes a view. Null, with the reason in
/// `problem`, when the module cannot be loaded or the engine cannot start.
WebView* createWebView(QWidget* parent, QString& problem);

}  // namespace zev

#define ZEV_WEB_VIEW_FACTORY_IID "zevmenu-creator.WebViewFactory"
Q_DECLARE_INTERFACE(zev::WebViewFactory, ZEV_WEB_VIEW_FACTORY_IID)
