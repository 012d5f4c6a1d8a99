#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QSslConfiguration>
#include <QUrl>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/clock.h"
#include "platform/updater.h"

namespace klarvik {

struct FetchLimits {
  std::int64_t mostBytes = 0;
  std::chrono::seconds silence{0};  ///< between two signs of life of the server
  std::chrono::seconds total{0};
  int redirects = 5;
};

/// One file over HTTPS, and over nothing else, wherever the server sends us. Every way that it can
/// go is bounded: in bytes, in time, in redirections. Main thread only; destroying it cancels.
class HttpsFetch : public QObject {
 public:
  struct Request {
    QUrl url;
    FetchLimits limits;
    UpdaterError tooLong;  ///< what it ends with when more bytes come than the limit
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  };
  /// Sees the bytes in their order; an error ends the fetch with it.
  using Receive = std::function<std::optional<UpdaterError>(std::string_view)>;
  /// Called once, from the main loop, and last: it may destroy the fetch.
  using Finish = std::function<void(const std::optional<UpdaterError>&)>;

  HttpsFetch(QNetworkAccessManager& network, Clock& clock, Request request, Receive receive,
             Finish finish);
  ~HttpsFetch() override;

 private:
  void get(const QUrl& url);
  void follow(const QUrl& target);
  void checkHead();
  void takeBytes();
  void replyFinished();
  void end(const std::optional<UpdaterError>& error);
  void dropReply();
  void expectSignOfLife();
  void endInTime();

  QNetworkAccessManager& _network;
  Clock& _clock;
  const Request _request;
  Receive _receive;
  Finish _finish;
  QNetworkReply* _reply = nullptr;  ///< belongs to the network
  std::int64_t _received = 0;
  int _redirects = 0;
  std::unique_ptr<Clock::Alarm> _silence;
  std::unique_ptr<Clock::Alarm> _total;
};

}  // namespace klarvik
