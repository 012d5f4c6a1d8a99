#pragma once

#include <sys/types.h>

#include <QLocalServer>
#include <chrono>
#include <functional>
#include <string>

#include "base/posix_io.h"
#include "platform/user_folders.h"

namespace klarvik {

/// Sees to it that a home is cleaned by one Klarvik at a time, and that a further start brings the
/// window of the running one to the front instead. Main thread only; needs a `QCoreApplication`.
///
/// Two things stand guard, and a claim is granted only to who has at least one of them: a lock on a
/// file in the configuration folder, and a name that no two sockets can have. Either may fail
/// alone: the file where the disk is full or the folder read-only, the name where another user has
/// taken it. Both are given up by the kernel when a process ends, however it ends, so that nothing
/// stale is ever left behind. Who is at the other end of the socket is asked of the kernel too: no
/// other user's process is believed.
class SingleInstance {
 public:
  /// Where a start happens: the displays that its environment names, either of which may be empty.
  struct Session {
    std::string x11;
    std::string wayland;
  };

  /// One start of the program.
  struct Start {
    std::filesystem::path home;
    std::filesystem::path folder;  ///< of the program's own files; made when it is missing
    uid_t user = 0;
    Session session;
    std::string activationToken;  ///< the desktop's permission to come to the front
    std::chrono::milliseconds patience = std::chrono::seconds(10);

    [[nodiscard]] static Start ofThisProcess(const UserFolders& folders);
  };

  enum class Claim {
    granted,     ///< for as long as this object lives
    fronted,     ///< the running one shows its window
    elsewhere,   ///< the running one is on another display, where it was left as it is
    unanswered,  ///< there is a running one, and it did not answer for as long as the patience
                 ///< lasted
  };

  explicit SingleInstance(Start start);
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Blocks, for no longer than the patience. One that is on its way to its end is waited for.
  [[nodiscard]] Claim claim();

  /// After a granted claim: `front` is called on the main loop for each further start.
  void whenStartedAgain(std::function<void()> front);

 private:
  enum class Lock { taken, held, impossible };

  [[nodiscard]] Lock lock();
  void answer(QLocalSocket& asker);

  const Start _start;
  const QString _name;
  UniqueFd _lock;
  QLocalServer _server;
  std::function<void()> _front;
};

}  // namespace klarvik
