// SPDX-License-Identifier: MIT
#include "platform/qt/qt_browser_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "platform/qt/web_view.h"

namespace zev {

namespace {

/// Room for any honest message, and for a line that does not push the page away.
constexpr int kMaxNoteLength = 300;
/// As many as a person reads before allowing them; the others are offered after these.
constexpr int kMaxNamedSites = 3;

/// A label for text that may be a stranger's: no formats, and no word so long that it widens the
/// window.
QLabel* makeNote(const char* name, QWidget* parent) {
    auto* note = new QLabel(parent);
    note->setObjectName(name);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setMargin(6);
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return note;
}

}  // namespace

QtBrowserView::QtBrowserView(QWidget* parent)
    : QWidget(parent),
      m_note(makeNote("lblPreviewNote", this)),
      m_pictures(new QWidget(this)),
      m_picturesNote(makeNote("lblPreviewPictures", m_pictures)) {
    auto* loadButton = new QPushButton(tr("Load"), m_pictures);
    loadButton->setObjectName("cmdLoadPictures");
    loadButton->setAccessibleName(tr("Load these pictures"));
    connect(loadButton, &QPushButton::clicked, this, &QtBrowserView::loadPictures);
    auto* line = new QHBoxLayout(m_pictures);
    line->setContentsMargins(0, 0, 6, 0);
    line->addWidget(m_picturesNote, 1);
    line->addWidget(loadButton);
    m_pictures->hide();
    m_note->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(m_pictures);
    layout->addWidget(m_note);
}

void QtBrowserView::load(const std::string& path, const std::vector<std::string>& scripts) {
    m_path = QString::fromStdString(path);
    m_scripts.clear();
    for (const std::string& script : scripts)
        m_scripts.append(QString::fromStdString(script));
    reload();
}

void QtBrowserView::reload() {
    if (m_webView == nullptr && !startBrowser())
        return;
    m_note->hide();
    m_pictures->hide();
    m_refusedSites.clear();
    m_hasFailedScript = false;
    m_webView->load(m_path, m_scripts);
}

bool QtBrowserView::startBrowser() {
    QString problem;
    m_webView = createWebView(this, problem);
    if (m_webView == nullptr) {
        showNote("The preview cannot be shown. " + problem);
        emit loaded(false);
        return false;
    }
    // Following a link would leave the preview without a way back. It says where the link leads
    // instead, which is what the author wants to know.
    m_webView->localLinks = WebView::LocalLinks::Refused;
    m_webView->linkRefused = [this](const QString& address) {
        showNote("The preview does not follow links. This one leads to " + address);
    };
    m_webView->messageShown = [this](const QString& text) { showNote("The page says: " + text); };
    m_webView->scriptFailed = [this](int line, const QString& message) {
        // What fails after it fails because of it.
        if (std::exchange(m_hasFailedScript, true) || line < 1)
            return;
        scriptFailed({static_cast<std::size_t>(line),
                      message.simplified().left(kMaxNoteLength).toStdString()});
    };
    m_webView->pictureRefused = [this](const QString& site) { offerPictures(site); };
    m_webView->loaded = [this](bool isOk) { emit loaded(isOk); };
    m_webView->stopped = [this](const QString& reason) {
        showNote("The preview was stopped. " + reason);
        emit stopped();
    };
    auto* column = static_cast<QVBoxLayout*>(layout());
    delete column->takeAt(0);
    column->insertWidget(0, m_webView, 1);
    return true;
}

void QtBrowserView::forgetAllowedPictures() {
    if (m_webView != nullptr)
        m_webView->forgetAllowedPictures();
}

void QtBrowserView::showNote(const QString& text) {
    const QString line = text.simplified();
    m_note->setText(line.size() > kMaxNoteLength ? line.left(kMaxNoteLength) + "..." : line);
    m_note->show();
}

void QtBrowserView::offerPictures(const QString& site) {
    if (m_refusedSites.contains(site) || m_refusedSites.size() == kMaxNamedSites)
        return;
    m_refusedSites.append(site);
    m_picturesNote->setText("Pictures from " + m_refusedSites.join(", ") + " were not loaded.");
    m_pictures->show();
}

void QtBrowserView::loadPictures() {
    m_webView->allowPictures(m_refusedSites);
    reload();
}

}  // namespace zev
