#pragma once

#include <QWidget>

#include "platform/browser_view.h"

class QLabel;

namespace zev {

class WebView;

/// The browser of the Preview tab. Until the first page is loaded it is an empty widget; the
/// browser engine starts then. It never takes the focus by itself.
class QtBrowserView : public QWidget, public BrowserView {
    Q_OBJECT
  public:
    explicit QtBrowserView(QWidget* parent = nullptr);

    void load(const std::string& path) override;

  signals:
    /// A page has been loaded, or could not be. It may not be painted yet.
    void loaded(bool isOk);

  private:
    void showNote(const QString& text);

    WebView* m_webView = nullptr;
    QLabel* m_note;
};

}  // namespace zev
