#include "platform/qt/web_view.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace zev {

void prepareForBrowser() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

WebView* CreateWebView(QWidget* parent, QString& problem) {
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
