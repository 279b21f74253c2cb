// SPDX-License-Identifier: MIT
#include "platform/qt/page_walls.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QNetworkProxy>
#include <QWebEngineCookieStore>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <memory>

#include "platform/qt/network_pictures.h"
#include "platform/qt/web_view.h"

namespace zev {

namespace {

bool isOfNetwork(const QUrl& url) {
    return url.scheme() == "http" || url.scheme() == "https";
}

QString siteOf(const QUrl& url) {
    const QString host = url.host(QUrl::FullyEncoded);
    return url.port() < 0 ? host : host + ":" + QString::number(url.port());
}

constexpr const char* kPageScheme = "zevmenu-page";
/// Every address of a kind that has relative addresses needs a host.
constexpr const char* kPageHost = "page";
/// Pictures have a host of their own, so that no page can read one back out of a canvas.
constexpr const char* kPictureHost = "picture";

QUrl addressOf(const QString& path, const char* host) {
    QUrl url = QUrl::fromLocalFile(path);
    url.setScheme(kPageScheme);
    url.setHost(host);
    return url;
}

/// The path of a file of this machine; empty for every other address, also for a `file:` address
/// that names another machine in one of its spellings.
QString localPath(const QUrl& url) {
    const QUrl common = commonUrl(url);
    const QString path = common.toLocalFile();
    return common.host().isEmpty() && !path.startsWith("//") ? path : QString();
}

/// Every connection of the engine ends at a proxy that is not there: also those that no request
/// tells of, such as a call between browsers over TCP. Port 1 is the superuser's to open.
void closeNetwork() {
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, "127.0.0.1", 1));
}

/// Calls between browsers reach the network beside everything that is asked about requests.
void removePeerConnections(QWebEngineProfile& profile) {
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode("delete window.RTCPeerConnection; delete window.webkitRTCPeerConnection;");
    profile.scripts()->insert(script);
}

}  // namespace

void registerPageScheme() {
    QWebEngineUrlScheme scheme(kPageScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl pageUrl(const QString& path) {
    return addressOf(path, kPageHost);
}

QUrl commonUrl(const QUrl& url) {
    if (url.scheme() != kPageScheme)
        return url;
    QUrl common = url;
    common.setHost("");
    common.setScheme("file");
    return common;
}

void PageFiles::requestStarted(QWebEngineUrlRequestJob* request) {
    const QUrl url = request->requestUrl();
    const QUrl networkPicture = networkPictureOf(url);
    if (!networkPicture.isEmpty()) {
        m_networkPictures.answer(request, networkPicture);
        return;
    }
    const QString path = localPath(url);
    auto file = std::make_unique<QFile>(path);
    // A pipe or a device might never end.
    if (!QFileInfo(path).isFile() || !file->open(QIODevice::ReadOnly)) {
        request->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    if (!m_walls.isOwnFile(url)) {
        // The first leap ends requests that ask to read what comes back; after the second the
        // engine itself keeps the picture from being read.
        request->redirect(url.host() == kPictureHost ? m_walls.pictureUrl(path)
                                                     : addressOf(path, kPictureHost));
        return;
    }
    connect(request, &QObject::destroyed, file.get(), &QObject::deleteLater);
    request->reply(QMimeDatabase().mimeTypeForFile(path).name().toLatin1(), file.release());
}

void PageWalls::setPage(const QUrl& page, const QStringList& scripts) {
    m_page = page;
    m_scripts = QSet<QString>(scripts.begin(), scripts.end());
}

bool PageWalls::isPage(const QUrl& url) const {
    return url.adjusted(QUrl::RemoveFragment) == m_page ||
           (m_owner.localLinks == WebView::LocalLinks::Followed && isBesidePage(url));
}

bool PageWalls::isBesidePage(const QUrl& url) const {
    return localPath(url).startsWith(localPath(m_page.adjusted(QUrl::RemoveFilename)));
}

bool PageWalls::isScript(const QUrl& url) const {
    return m_scripts.contains(localPath(url));
}

bool PageWalls::isOwnFile(const QUrl& url) const {
    return url.host() == kPageHost && (isPage(url) || isScript(url));
}

QUrl PageWalls::pictureUrl(const QString& path) const {
    QUrl url = QUrl::fromLocalFile(path);
    url.setQuery(m_pictureKey);
    return url;
}

void PageWalls::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const QUrl url = request.requestUrl();
    if (!isAllowed(request)) {
        request.block(true);
        if (request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeImage)
            refusePicture(url);
    } else if (isOfNetwork(url)) {
        request.redirect(networkPictureUrl(url));
    } else if (url.isLocalFile() && url.query() != m_pictureKey) {
        request.redirect(pageUrl(localPath(url)));
    }
}

void PageWalls::refusePicture(const QUrl& url) {
    if (isOfNetwork(url))
        m_owner.pictureRefused(siteOf(url));
}

bool PageWalls::isSiteAllowed(const QUrl& url) const {
    return isOfNetwork(url) && m_allowedSites.contains(siteOf(url));
}

bool PageWalls::isAllowed(const QWebEngineUrlRequestInfo& request) const {
    const QUrl url = request.requestUrl();
    switch (request.resourceType()) {
        case QWebEngineUrlRequestInfo::ResourceTypeMainFrame:
            return isPage(url);
        case QWebEngineUrlRequestInfo::ResourceTypeScript:
            return isScript(url);
        case QWebEngineUrlRequestInfo::ResourceTypeStylesheet:
            return m_owner.localLinks == WebView::LocalLinks::Followed && isBesidePage(url);
        case QWebEngineUrlRequestInfo::ResourceTypeImage:
            return isPictureAllowed(url);
        default:
            return false;
    }
}

bool PageWalls::isPictureAllowed(const QUrl& url) const {
    if (QFileInfo(localPath(url)).isFile())
        return true;
    return isSiteAllowed(url) || isSiteAllowed(networkPictureOf(url)) || url.scheme() == "data" ||
           url.scheme() == "blob";
}

// Windows are left on here: the page refuses each, and tells where it leads.
void shutOff(QWebEngineProfile& profile) {
    using Setting = QWebEngineSettings;
    for (const Setting::WebAttribute attribute :
         {Setting::LocalContentCanAccessFileUrls, Setting::LocalContentCanAccessRemoteUrls,
          Setting::JavascriptCanAccessClipboard, Setting::JavascriptCanPaste,
          Setting::LocalStorageEnabled, Setting::PluginsEnabled, Setting::PdfViewerEnabled,
          Setting::HyperlinkAuditingEnabled, Setting::DnsPrefetchEnabled,
          Setting::ScreenCaptureEnabled, Setting::FullScreenSupportEnabled, Setting::WebGLEnabled,
          Setting::AutoLoadIconsForPage, Setting::AllowRunningInsecureContent,
          Setting::AllowGeolocationOnInsecureOrigins, Setting::AllowWindowActivationFromJavaScript,
          Setting::NavigateOnDropEnabled})
        profile.settings()->setAttribute(attribute, false);
    profile.settings()->setAttribute(Setting::WebRTCPublicInterfacesOnly, true);
    profile.settings()->setAttribute(Setting::PlaybackRequiresUserGesture, true);
    profile.settings()->setUnknownUrlSchemePolicy(Setting::DisallowUnknownUrlSchemes);
    profile.cookieStore()->setCookieFilter([](const auto&) { return false; });
    QObject::connect(&profile, &QWebEngineProfile::downloadRequested,
                     [](QWebEngineDownloadRequest* download) { download->cancel(); });
    closeNetwork();
    removePeerConnections(profile);
}

}  // namespace zev
