// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>
#include <QtPlugin>
#include <functional>

namespace zev {

/// A widget that shows local HTML pages, which may come from a stranger: they reach no file but
/// those named here, and nothing on the network.
class WebView : public QWidget {
  public:
    /// What becomes of a link to another local page.
    enum class LocalLinks { Followed, Refused };

    using QWidget::QWidget;
    /// Loads a local file, given by full path, and never from a cache. The page may run these
    /// scripts, given by full path, and show pictures of this machine; it reads nothing else.
    virtual void load(const QString& path, const QStringList& scripts) = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    /// Lets the next page loaded show pictures of these sites, each as given to `pictureRefused`.
    virtual void allowPictures(const QStringList& sites) = 0;
    virtual void forgetAllowedPictures() = 0;

    LocalLinks localLinks = LocalLinks::Refused;
    /// Called with the address of a link that the view does not follow itself: one that leads to
    /// the network, asks for a window of its own, or is refused by `localLinks`.
    std::function<void(const QString& address)> linkRefused = [](const QString&) {};
    /// Called for each picture from the network that was not loaded, with its host, and port where
    /// its address has one.
    std::function<void(const QString& site)> pictureRefused = [](const QString&) {};
    /// Called with the text of a message that the page wants to show. It is not shown otherwise.
    std::function<void(const QString& text)> messageShown = [](const QString&) {};
    /// Called for each error that ends a script of the page's own list; the line counts from 1.
    std::function<void(int line, const QString& message)> scriptFailed = [](int, const QString&) {};
    /// Called when a page has been loaded, or could not be. It may not be painted yet.
    std::function<void(bool isOk)> loaded = [](bool) {};
    /// Called when a page was stopped, because it hung or used too much memory, with a sentence
    /// that says why. The view shows nothing until the next page is loaded.
    std::function<void(const QString& reason)> stopped = [](const QString&) {};
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
