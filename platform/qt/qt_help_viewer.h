// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/help_viewer.h"
#include "platform/qt/web_view.h"

namespace zev {

/// Shows the manual in a window of its own, which is made at the first call and used again at the
/// next. Escape closes it; Alt+Left and Alt+Right walk through the pages seen. A link to the
/// network opens in the person's browser.
class QtHelpViewer : public HelpViewer {
  public:
    void show(const std::string& path) override;

    /// The window; null before the first call.
    QWidget* window() const { return m_window.get(); }

  private:
    void makeWindow();

    std::unique_ptr<QWidget> m_window;
    WebView* m_webView = nullptr;
};

}  // namespace zev
