// SPDX-License-Identifier: MIT
#include "platform/qt/web_view.h"

#include <QPluginLoader>
#include <QtGlobal>

namespace zev {

namespace {

QtMessageHandler previousHandler = nullptr;

/// The engine is not meant to be loaded late and to draw without OpenGL. It does both well, but
/// not without warnings that would only puzzle whoever started the program from a terminal.
class QuietStart {
  public:
    QuietStart() { previousHandler = qInstallMessageHandler(&QuietStart::handle); }
    ~QuietStart() { qInstallMessageHandler(previousHandler); }
    QuietStart(const QuietStart&) = delete;
    QuietStart& operator=(const QuietStart&) = delete;

  private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            previousHandler(type, context, text);
    }
};

}  // namespace

WebView* createWebView(QWidget* parent, QString& problem) {
    const QuietStart quiet;
    // Found in the program's own folder, or wherever else Qt looks for this program's modules.
    QPluginLoader loader("zevmenu_webview");
    auto* factory = qobject_cast<WebViewFactory*>(loader.instance());
    if (factory == nullptr) {
        problem = loader.errorString();
        return nullptr;
    }
    return factory->create(parent, problem);
}

}  // namespace zev
