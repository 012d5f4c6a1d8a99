#include "support/child_process.h"

#include <sys/wait.h>
#include <unistd.h>

namespace klarvik {
namespace {

bool giveUpPrivileges() {
  constexpr ::uid_t nobody = 65534;
  return ::geteuid() != 0 || ::setresuid(nobody, nobody, nobody) == 0;
}

}  // namespace

bool inChild(const std::function<bool()>& operation) {
  const ::pid_t child = ::fork();
  if (child == 0) ::_exit(operation() ? 0 : 1);
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool inChildWithoutPrivileges(const std::function<bool()>& operation) {
  return inChild([&] { return giveUpPrivileges() && operation(); });
}

}  // namespace klarvik
