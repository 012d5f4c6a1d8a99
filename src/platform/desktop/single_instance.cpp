#include "platform/desktop/single_instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <cerrno>
#include <optional>
#include <thread>
#include <utility>

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Claim = SingleInstance::Claim;
using Session = SingleInstance::Session;

constexpr auto pause = 20ms;  // before a claim that was neither granted nor refused is made again
constexpr qint64 longestQuestion = 4096;
constexpr int linesOfAQuestion = 3;
constexpr auto frontedAnswer = "fronted\n";
constexpr auto elsewhereAnswer = "elsewhere\n";

std::string environment(const char* variable) {
  return qgetenv(variable).toStdString();
}

/// One name for each home, however it is spelled.
QString nameFor(const SingleInstance::Start& start) {
  struct ::stat home {};
  ::stat(start.home.c_str(), &home);
  return QString("klarvik-%1-%2-%3").arg(start.user).arg(home.st_dev).arg(home.st_ino);
}

bool isOfUser(const QLocalSocket& socket, uid_t user) {
  ::ucred peer{};
  socklen_t size = sizeof(peer);
  const int descriptor = static_cast<int>(socket.socketDescriptor());
  return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == user;
}

bool isOneDisplay(const Session& one, const Session& other) {
  return (!one.x11.empty() && one.x11 == other.x11) ||
         (!one.wayland.empty() && one.wayland == other.wayland);
}

QByteArray line(const std::string& text) {
  return QByteArray::fromStdString(text).replace('\n', ' ') + '\n';
}

std::string readLine(QLocalSocket& socket) {
  return socket.readLine().chopped(1).toStdString();
}

QByteArray question(const SingleInstance::Start& start) {
  return line(start.session.x11) + line(start.session.wayland) + line(start.activationToken);
}

/// What the running one says; nothing when it ends meanwhile.
std::optional<Claim> ask(QLocalSocket& running, const QByteArray& question,
                         const QDeadlineTimer& end) {
  running.write(question);
  while (!running.canReadLine()) {
    if (end.hasExpired()) return Claim::unanswered;
    const bool hasMore = running.waitForReadyRead(static_cast<int>(end.remainingTime()));
    if (!hasMore && running.state() != QLocalSocket::ConnectedState) return std::nullopt;
  }
  return running.readLine() == frontedAnswer ? Claim::fronted : Claim::elsewhere;
}

}  // namespace

SingleInstance::Start SingleInstance::Start::ofThisProcess(const UserFolders& folders) {
  Start start;
  start.home = folders.home;
  start.folder = folders.configuration / "klarvik";
  start.user = ::geteuid();
  start.session = {environment("DISPLAY"), environment("WAYLAND_DISPLAY")};
  start.activationToken = environment("XDG_ACTIVATION_TOKEN");
  return start;
}

SingleInstance::SingleInstance(Start start) : _start(std::move(start)), _name(nameFor(_start)) {
  _server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
}

Claim SingleInstance::claim() {
  const QDeadlineTimer end(_start.patience);
  do {
    const Lock guard = lock();
    if (guard != Lock::held && _server.listen(_name)) return Claim::granted;
    const bool isNameTaken = _server.serverError() == QAbstractSocket::AddressInUseError;
    if (guard == Lock::taken && !isNameTaken) return Claim::granted;

    QLocalSocket other;
    other.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    other.connectToServer(_name);
    if (other.waitForConnected(static_cast<int>(end.remainingTime()))) {
      if (!isOfUser(other, _start.user)) {
        if (guard == Lock::taken) return Claim::granted;
      } else if (const auto answer = ask(other, question(_start), end)) {
        return *answer;
      }
    }
    std::this_thread::sleep_for(pause);
  } while (!end.hasExpired());
  return Claim::unanswered;
}

void SingleInstance::whenStartedAgain(std::function<void()> front) {
  _front = std::move(front);
  QObject::connect(&_server, &QLocalServer::newConnection, &_server, [this] {
    while (QLocalSocket* asker = _server.nextPendingConnection()) {
      QObject::connect(asker, &QLocalSocket::disconnected, asker, &QObject::deleteLater);
      QObject::connect(asker, &QLocalSocket::readyRead, asker, [this, asker] { answer(*asker); });
      answer(*asker);
    }
  });
}

SingleInstance::Lock SingleInstance::lock() {
  if (_lock) return Lock::taken;
  std::error_code error;
  std::filesystem::create_directories(_start.folder.parent_path(), error);
  ::mkdir(_start.folder.c_str(), 0700);
  const auto file = _start.folder / "instance.lock";
  UniqueFd opened{::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)};
  if (!opened) return Lock::impossible;
  if (::flock(opened.get(), LOCK_EX | LOCK_NB) == 0) {
    _lock = std::move(opened);
    return Lock::taken;
  }
  return errno == EWOULDBLOCK || errno == EINTR ? Lock::held : Lock::impossible;
}

/// Called again as more of the question arrives.
void SingleInstance::answer(QLocalSocket& asker) {
  if (!isOfUser(asker, _start.user) || asker.bytesAvailable() > longestQuestion) {
    asker.abort();
    return;
  }
  if (asker.peek(longestQuestion).count('\n') < linesOfAQuestion) return;
  const Session session{readLine(asker), readLine(asker)};
  const std::string token = readLine(asker);
  if (isOneDisplay(session, _start.session)) {
    // Qt takes the permission from here when a window asks to come to the front.
    if (!token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
    _front();
    asker.write(frontedAnswer);
  } else {
    asker.write(elsewhereAnswer);
  }
  asker.disconnectFromServer();
}

}  // namespace klarvik
