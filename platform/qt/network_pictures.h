// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkAccessManager>
#include <QUrl>

class QWebEngineUrlRequestJob;

namespace zev {

class PageWalls;

/// The address under which a page gets the picture at `picture` of the network, which the engine
/// itself cannot reach.
QUrl networkPictureUrl(const QUrl& picture);
/// The picture's own address again; empty for every other address.
QUrl networkPictureOf(const QUrl& url);

/// Fetches the pictures of the sites that the person allowed, so that the engine needs no network.
class NetworkPictures : public QObject {
    Q_OBJECT
  public:
    /// `walls` outlive the pictures, and say which are allowed.
    explicit NetworkPictures(PageWalls& walls);

    /// Answers `request` with the picture at this address, or refuses it where its site is not
    /// allowed. An address that leads to another one is followed at most `leaps` times, and to
    /// allowed sites only.
    void answer(QWebEngineUrlRequestJob* request, const QUrl& picture, int leaps = 5);

  private:
    QNetworkAccessManager m_network;
    PageWalls& m_walls;
};

}  // namespace zev
