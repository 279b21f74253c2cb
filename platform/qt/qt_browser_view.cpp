#include "platform/qt/qt_browser_view.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/web_view.h"

namespace zev {

QtBrowserView::QtBrowserView(QWidget* parent) : QWidget(parent), m_note(new QLabel(this)) {
    m_note->setObjectName("lblPreviewNote");
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setMargin(6);
    m_note->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_note, 0, Qt::AlignBottom);
}

void QtBrowserView::load(const std::string& path) {
    if (m_webView == nullptr) {
        QString problem;
        m_webView = createWebView(this, problem);
        if (m_webView == nullptr) {
            showNote("The preview cannot be shown. " + problem);
            emit loaded(false);
            return;
        }
        // Following a link would leave the preview without a way back. It says where the link
        // leads instead, which is what the author wants to know.
        m_webView->localLinks = WebView::LocalLinks::Refused;
        m_webView->linkRefused = [this](const QString& address) {
            showNote("The preview does not follow links. This one leads to " + address);
        };
        m_webView->loaded = [this](bool isOk) { emit loaded(isOk); };
        static_cast<QVBoxLayout*>(layout())->insertWidget(0, m_webView, 1);
    }
    m_note->hide();
    m_webView->load(QString::fromStdString(path));
}

void QtBrowserView::showNote(const QString& text) {
    m_note->setText(text);
    m_note->show();
}

}  // namespace zev
