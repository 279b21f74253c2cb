// SPDX-License-Identifier: MIT
#include "platform/qt/network_pictures.h"

#include <QBuffer>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QWebEngineUrlRequestJob>

#include "platform/qt/page_walls.h"

namespace zev {

namespace {

constexpr const char* kNetworkHost = "network";
constexpr int kMostSilenceMs = 20000;
/// More than any picture of a menu; an endless one would fill the memory.
constexpr qint64 kMostPictureBytes = 32LL << 20;

/// A question that tells nothing but what is wanted: no cookies, no passwords.
QNetworkRequest questionFor(const QUrl& picture) {
    using Question = QNetworkRequest;
    Question question(picture);
    question.setAttribute(Question::RedirectPolicyAttribute, Question::ManualRedirectPolicy);
    question.setAttribute(Question::CacheLoadControlAttribute, Question::AlwaysNetwork);
    for (const auto what :
         {Question::CookieLoadControlAttribute, Question::CookieSaveControlAttribute,
          Question::AuthenticationReuseAttribute})
        question.setAttribute(what, Question::Manual);
    question.setTransferTimeout(kMostSilenceMs);
    return question;
}

void pass(QNetworkReply& reply, QWebEngineUrlRequestJob& request) {
    const QByteArray type =
        reply.header(QNetworkRequest::ContentTypeHeader).toByteArray().split(';').first();
    if (reply.error() != QNetworkReply::NoError || !type.startsWith("image/")) {
        request.fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    auto* bytes = new QBuffer(&request);
    bytes->setData(reply.readAll());
    bytes->open(QIODevice::ReadOnly);
    request.reply(type, bytes);
}

}  // namespace

QUrl networkPictureUrl(const QUrl& picture) {
    QUrl url = pageUrl("/");
    url.setHost(kNetworkHost);
    url.setQuery(QString::fromLatin1(picture.toEncoded().toPercentEncoding()));
    return url;
}

QUrl networkPictureOf(const QUrl& url) {
    if (url.scheme() != pageUrl("/").scheme() || url.host() != kNetworkHost)
        return {};
    return QUrl::fromEncoded(
        QByteArray::fromPercentEncoding(url.query(QUrl::FullyEncoded).toLatin1()));
}

NetworkPictures::NetworkPictures(PageWalls& walls) : m_walls(walls) {}

void NetworkPictures::answer(QWebEngineUrlRequestJob* request, const QUrl& picture, int leaps) {
    if (leaps == 0 || !m_walls.isSiteAllowed(picture)) {
        m_walls.refusePicture(picture);
        request->fail(QWebEngineUrlRequestJob::RequestDenied);
        return;
    }
    // The program's own proxy is the engine's wall.
    m_network.setProxy(
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(picture)).constFirst());
    QNetworkReply* reply = m_network.get(questionFor(picture));
    connect(request, &QObject::destroyed, reply, &QObject::deleteLater);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 receivedBytes) {
        if (receivedBytes > kMostPictureBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, request, [this, request, reply, picture, leaps] {
        const QUrl next = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (next.isEmpty())
            pass(*reply, *request);
        else
            answer(request, picture.resolved(next), leaps - 1);
    });
}

}  // namespace zev
