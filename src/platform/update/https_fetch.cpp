#include "platform/update/https_fetch.h"

#include <QNetworkInterface>
#include <QNetworkRequest>
#include <algorithm>
#include <utility>

#include "base/message.h"
#include "platform/update/update_errors.h"

namespace klarvik {
namespace {

constexpr qint64 bufferBytes = 256 * 1024;

/// A plain question without a trace of who asks. The answer comes as it lies on the server, so that
/// its length is the one announced, and no few bytes unpack to many.
QNetworkRequest plainRequest(const QUrl& url, const QSslConfiguration& tls) {
  QNetworkRequest request(url);
  request.setSslConfiguration(tls);
  request.setRawHeader("User-Agent", "Klarvik");
  request.setRawHeader("Accept-Language", "en");
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  return request;
}

bool hasNetwork() {
  const auto interfaces = QNetworkInterface::allInterfaces();
  return std::ranges::any_of(interfaces, [](const QNetworkInterface& candidate) {
    const auto flags = candidate.flags();
    return flags.testFlag(QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack);
  });
}

UpdaterError insecure() {
  return {updaterErrorDomain, updater_code::feedNotUsable,
          QT_TRANSLATE_NOOP(
              "Engine",
              "The update server offers no secure connection, so Klarvik does not listen to it.")};
}

}  // namespace

HttpsFetch::HttpsFetch(QNetworkAccessManager& network, Clock& clock, Request request,
                       Receive receive, Finish finish)
    : _network(network),
      _clock(clock),
      _request(std::move(request)),
      _receive(std::move(receive)),
      _finish(std::move(finish)) {
  _total = _clock.wakeAfter(_request.limits.total, [this] { endInTime(); });
  QMetaObject::invokeMethod(
      this, [this] { get(_request.url); }, Qt::QueuedConnection);
}

HttpsFetch::~HttpsFetch() {
  dropReply();
}

void HttpsFetch::get(const QUrl& url) {
  if (!isSecure(url)) return end(insecure());
  expectSignOfLife();
  _reply = _network.get(plainRequest(url, _request.tls));
  _reply->setReadBufferSize(bufferBytes);
  connect(_reply, &QNetworkReply::metaDataChanged, this, &HttpsFetch::checkHead);
  connect(_reply, &QNetworkReply::readyRead, this, &HttpsFetch::takeBytes);
  connect(_reply, &QNetworkReply::finished, this, &HttpsFetch::replyFinished);
}

void HttpsFetch::follow(const QUrl& target) {
  const QUrl next = _reply->url().resolved(target);
  dropReply();
  if (++_redirects > _request.limits.redirects) {
    return end(urlError(url_code::tooManyRedirects,
                        QT_TRANSLATE_NOOP("Engine", "The server sends us from place to place.")));
  }
  get(next);
}

void HttpsFetch::checkHead() {
  expectSignOfLife();
  const QVariant target = _reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
  if (target.isValid()) return follow(target.toUrl());
  const QVariant announced = _reply->header(QNetworkRequest::ContentLengthHeader);
  if (announced.isValid() && announced.toLongLong() > _request.limits.mostBytes) {
    end(_request.tooLong);
  }
}

void HttpsFetch::takeBytes() {
  expectSignOfLife();
  const QByteArray bytes = _reply->readAll();
  _received += bytes.size();
  if (_received > _request.limits.mostBytes) return end(_request.tooLong);
  // What an error brings along is a page for people.
  if (_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200) return;
  if (const auto error =
          _receive(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())))) {
    end(error);
  }
}

void HttpsFetch::replyFinished() {
  if (_reply->error() != QNetworkReply::NoError) {
    return end(
        urlError(urlCode(_reply->error(), hasNetwork()), _reply->errorString().toStdString()));
  }
  if (_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200) {
    return end(
        urlError(url_code::badResponse, QT_TRANSLATE_NOOP("Engine", "The server gave no file.")));
  }
  end(std::nullopt);
}

void HttpsFetch::end(const std::optional<UpdaterError>& error) {
  dropReply();
  _silence.reset();
  _total.reset();
  const Finish finish = std::move(_finish);
  finish(error);
}

void HttpsFetch::dropReply() {
  if (_reply == nullptr) return;
  QNetworkReply* const reply = std::exchange(_reply, nullptr);
  reply->disconnect(this);
  reply->abort();
  reply->deleteLater();
}

void HttpsFetch::expectSignOfLife() {
  _silence = _clock.wakeAfter(_request.limits.silence, [this] { endInTime(); });
}

void HttpsFetch::endInTime() {
  end(urlError(url_code::timedOut,
               QT_TRANSLATE_NOOP("Engine", "The server did not answer in time.")));
}

}  // namespace klarvik
