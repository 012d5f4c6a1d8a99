#pragma once

#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "test_keys.h"

namespace klarvik {

/// A web server on the loopback interface that answers as a test has laid down, on the main loop of
/// that test. Whoever is to trust it takes `trustingClient`.
class HttpsServer {
 public:
  struct Answer {
    std::string body = {};
    std::string status = "200 OK";
    std::string location = {};          ///< where a redirection leads
    std::int64_t announcedLength = -1;  ///< below 0: that of the body
    bool announcesLength = true;
    bool staysSilent = false;   ///< takes the question and never says a word
    bool staysOpen = false;     ///< says its part, and neither more nor good-bye
    std::int64_t streamed = 0;  ///< so many bytes more follow, for as long as somebody takes them
  };

  HttpsServer();

  void answer(const std::string& path, Answer answer) { _answers[path] = std::move(answer); }
  [[nodiscard]] std::string address(const std::string& path) const;
  [[nodiscard]] QSslConfiguration trustingClient() const;

  [[nodiscard]] const std::vector<std::string>& requests() const { return _requests; }
  /// Everything that the client said in its last request.
  [[nodiscard]] const std::string& lastRequest() const { return _lastRequest; }
  [[nodiscard]] std::int64_t bytesSent() const { return _bytesSent; }
  [[nodiscard]] int openConnections() const { return _openConnections; }

 private:
  void accept(QTcpSocket& connection);
  void reply(QTcpSocket& connection, const std::string& request);
  void stream(QTcpSocket& connection, std::int64_t rest);
  void send(QTcpSocket& connection, const std::string& bytes);

  ServerIdentity _identity = ServerIdentity::fresh();
  std::map<std::string, Answer> _answers;
  std::vector<std::string> _requests;
  std::string _lastRequest;
  std::int64_t _bytesSent = 0;
  int _openConnections = 0;
  QSslServer _server;
};

}  // namespace klarvik
