// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include "platform/browser_view.h"

class QLabel;

namespace zev {

class WebView;

/// The browser of the Preview tab. Until the first page is loaded it is an empty widget; the
/// browser engine starts then. It never takes the focus by itself.
///
/// What the page wants to say, where a link leads, and why a page was stopped stands in a line
/// below the page. Pictures from the network are not loaded until the person presses the button of
/// a second line, which names their sites.
class QtBrowserView : public QWidget, public BrowserView {
    Q_OBJECT
  public:
    explicit QtBrowserView(QWidget* parent = nullptr);

    void load(const std::string& path, const std::vector<std::string>& scripts) override;
    void forgetAllowedPictures() override;

  signals:
    /// A page has been loaded, or could not be. It may not be painted yet.
    void loaded(bool isOk);
    /// A page hung or used too much memory, and was stopped.
    void stopped();

  private:
    bool startBrowser();
    void reload();
    void showNote(const QString& text);
    void offerPictures(const QString& site);
    void loadPictures();

    WebView* m_webView = nullptr;
    QLabel* m_note;
    QWidget* m_pictures;
    QLabel* m_picturesNote;
    QString m_path;
    QStringList m_scripts;
    bool m_hasFailedScript = false;
    QStringList m_refusedSites;  ///< those that the line names
};

}  // namespace zev
