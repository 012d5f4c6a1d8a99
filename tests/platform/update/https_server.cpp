#include "https_server.h"

#include <QHostAddress>
#include <algorithm>
#include <memory>

namespace klarvik {
namespace {

constexpr std::int64_t pieceBytes = 64 * 1024;
constexpr std::int64_t mostWaiting = 256 * 1024;

std::string headOf(const HttpsServer::Answer& answer) {
  std::string head = "HTTP/1.1 " + answer.status + "\r\nConnection: close\r\n";
  if (!answer.location.empty()) head += "Location: " + answer.location + "\r\n";
  if (answer.announcesLength) {
    const auto length = answer.announcedLength < 0 ? static_cast<std::int64_t>(answer.body.size())
                                                   : answer.announcedLength;
    head += "Content-Length: " + std::to_string(length) + "\r\n";
  }
  return head + "\r\n";
}

}  // namespace

HttpsServer::HttpsServer() {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setLocalCertificate(_identity.certificate);
  configuration.setPrivateKey(_identity.key);
  configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
  _server.setSslConfiguration(configuration);
  QObject::connect(&_server, &QTcpServer::pendingConnectionAvailable, &_server, [this] {
    while (QTcpSocket* const connection = _server.nextPendingConnection()) accept(*connection);
  });
  _server.listen(QHostAddress::LocalHost);
}

std::string HttpsServer::address(const std::string& path) const {
  return "https://127.0.0.1:" + std::to_string(_server.serverPort()) + path;
}

QSslConfiguration HttpsServer::trustingClient() const {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setCaCertificates({_identity.certificate});
  return configuration;
}

void HttpsServer::accept(QTcpSocket& connection) {
  ++_openConnections;
  QObject::connect(&connection, &QTcpSocket::disconnected, &connection, [this, &connection] {
    --_openConnections;
    connection.deleteLater();
  });
  const auto request = std::make_shared<std::string>();
  const auto listen = [this, &connection, request] {
    *request += connection.readAll().toStdString();
    if (request->ends_with("\r\n\r\n")) reply(connection, *request);
  };
  QObject::connect(&connection, &QTcpSocket::readyRead, &connection, listen);
  listen();
}

void HttpsServer::reply(QTcpSocket& connection, const std::string& request) {
  _lastRequest = request;
  const auto start = request.find(' ') + 1;
  const std::string path = request.substr(start, request.find(' ', start) - start);
  _requests.push_back(path);
  const auto found = _answers.find(path);
  const Answer answer =
      found != _answers.end() ? found->second : Answer{.body = {}, .status = "404 Not Found"};
  if (answer.staysSilent) return;
  send(connection, headOf(answer) + answer.body);
  if (answer.streamed > 0) {
    stream(connection, answer.streamed);
  } else if (!answer.staysOpen) {
    connection.disconnectFromHost();
  }
}

void HttpsServer::stream(QTcpSocket& connection, std::int64_t rest) {
  const auto left = std::make_shared<std::int64_t>(rest);
  const auto sendMore = [this, &connection, left] {
    auto& secure = static_cast<QSslSocket&>(connection);
    while (*left > 0 && secure.bytesToWrite() + secure.encryptedBytesToWrite() < mostWaiting) {
      const std::int64_t piece = std::min(*left, pieceBytes);
      *left -= piece;
      send(connection, std::string(static_cast<std::size_t>(piece), ' '));
    }
    if (*left == 0) connection.disconnectFromHost();
  };
  QObject::connect(&static_cast<QSslSocket&>(connection), &QSslSocket::encryptedBytesWritten,
                   &connection, sendMore);
  sendMore();
}

void HttpsServer::send(QTcpSocket& connection, const std::string& bytes) {
  _bytesSent += connection.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

}  // namespace klarvik
