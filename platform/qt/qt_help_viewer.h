#pragma once

#include <QPointer>

#include "platform/help_viewer.h"
#include "platform/qt/web_view.h"

namespace zev {

/// Shows the manual in a window of its own, which is made at the first call and used again at the
/// next. Escape closes it; Alt+Left and Alt+Right walk through the pages seen. A link to the
/// network opens in the person's browser.
class QtHelpViewer : public HelpViewer {
  public:
    QtHelpViewer() = default;
    QtHelpViewer(const QtHelpViewer&) = delete;
    QtHelpViewer& operator=(const QtHelpViewer&) = delete;
    ~QtHelpViewer() override;

    void show(const std::string& path) override;

    /// The window; null before the first call.
    QWidget* window() const { return m_window; }

  private:
    void makeWindow();

    QPointer<QWidget> m_window;
    QPointer<WebView> m_webView;
};

}  // namespace zev
