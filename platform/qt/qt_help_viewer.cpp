// SPDX-License-Identifier: MIT
#include "platform/qt/qt_help_viewer.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/qt/fit_screen.h"
#include "text/program_name.h"

namespace zev {

void QtHelpViewer::show(const std::string& path) {
    const QString page = QString::fromStdString(path);
    if (!QFileInfo::exists(page))
        return;
    if (m_window == nullptr)
        makeWindow();
    if (m_webView != nullptr)
        m_webView->load(page, {});
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void QtHelpViewer::makeWindow() {
    m_window = std::make_unique<QWidget>();
    m_window->setObjectName("frmHelp");
    m_window->setWindowTitle(QString(kProgramName) + " Help");
    // The program ends with its main window, not with the last page of the manual.
    m_window->setAttribute(Qt::WA_QuitOnClose, false);
    m_window->resize(860, 640);
    fitScreen(*m_window);
    auto* layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);

    QString problem;
    m_webView = createWebView(m_window.get(), problem);
    if (m_webView == nullptr) {
        auto* note = new QLabel("The manual cannot be shown. " + problem);
        note->setTextFormat(Qt::PlainText);
        note->setWordWrap(true);
        note->setMargin(12);
        layout->addWidget(note);
    } else {
        m_webView->localLinks = WebView::LocalLinks::Followed;
        m_webView->linkRefused = [](const QString& address) {
            const QUrl url(address);
            if (url.scheme() == "http" || url.scheme() == "https")
                QDesktopServices::openUrl(url);
        };
        layout->addWidget(m_webView);
        const auto* back = new QShortcut(QKeySequence(QKeySequence::Back), m_window.get());
        QObject::connect(back, &QShortcut::activated, m_webView, &WebView::goBack);
        const auto* forward = new QShortcut(QKeySequence(QKeySequence::Forward), m_window.get());
        QObject::connect(forward, &QShortcut::activated, m_webView, &WebView::goForward);
    }
    const auto* close = new QShortcut(QKeySequence(Qt::Key_Escape), m_window.get());
    QObject::connect(close, &QShortcut::activated, m_window.get(), &QWidget::close);
}

}  // namespace zev
