// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>
#include <QUrl>
#include <QUuid>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>

#include "platform/qt/network_pictures.h"

class QWebEngineProfile;

namespace zev {

class WebView;

/// Pages are shown under an address of their own kind instead of `file:`. To such a page the files
/// of the machine are foreign: a picture that it may show it may still not read.
void registerPageScheme();
/// The address under which the local file at `path` is shown.
QUrl pageUrl(const QString& path);
/// The address as people know it: `file:` again for what is shown as a page, else unchanged.
QUrl commonUrl(const QUrl& url);

/// Decides what a shown page may load: the page itself, its scripts, pictures from the disk, and
/// pictures of the sites that the person allowed. Whatever is not named here is refused.
class PageWalls : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT
  public:
    /// Tells `owner`, which outlives it, of each site whose pictures were refused.
    explicit PageWalls(const WebView& owner) : m_owner(owner) {}

    /// From now on `page` is what may be shown, with the scripts at these full paths.
    void setPage(const QUrl& page, const QStringList& scripts);
    /// True for the page itself and, where local links are followed, for its neighbours.
    bool isPage(const QUrl& url) const;

    /// Lets pictures of these sites through; each is a host, with its port where it has one.
    void allowPictures(const QStringList& sites) {
        m_allowedSites.unite(QSet<QString>(sites.begin(), sites.end()));
    }
    void forgetAllowedPictures() { m_allowedSites.clear(); }
    /// True for an address of the network that lies on an allowed site.
    bool isSiteAllowed(const QUrl& url) const;
    /// Tells the owner where a picture that is not loaded lies, if that is on the network.
    void refusePicture(const QUrl& url);

    /// True for the scripts that the page may run.
    bool isScript(const QUrl& url) const;
    /// True for the page and its scripts under their own address.
    bool isOwnFile(const QUrl& url) const;
    QUrl pictureUrl(const QString& path) const;

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

  private:
    bool isAllowed(const QWebEngineUrlRequestInfo& request) const;
    bool isPictureAllowed(const QUrl& url) const;
    bool isBesidePage(const QUrl& url) const;

    const WebView& m_owner;
    QUrl m_page;
    QSet<QString> m_scripts;
    QSet<QString> m_allowedSites;
    const QString m_pictureKey = QUuid::createUuid().toString(QUuid::Id128);
};

/// Gives pages their files, and pictures of the network that are allowed.
class PageFiles : public QWebEngineUrlSchemeHandler {
    Q_OBJECT
  public:
    /// `walls` outlive the files, and say which there are.
    explicit PageFiles(PageWalls& walls) : m_walls(walls), m_networkPictures(walls) {}
    void requestStarted(QWebEngineUrlRequestJob* request) override;

  private:
    const PageWalls& m_walls;
    NetworkPictures m_networkPictures;
};

/// Turns off what pages can do beyond showing themselves: reading files, storing, windows, network
/// guesses, calls between browsers, downloads, cookies.
void shutOff(QWebEngineProfile& profile);

}  // namespace zev
