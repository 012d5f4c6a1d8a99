#include "support/child_process.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace klarvik {
namespace {

// So that an ordinary user may mount as well, as the root of a world of his own.
bool enterMountNamespace() {
  const bool isRoot = ::geteuid() == 0;
  const std::string identity = "0 " + std::to_string(::geteuid()) + " 1";
  if (::unshare(CLONE_NEWNS | (isRoot ? 0 : CLONE_NEWUSER)) != 0) return false;
  if (!isRoot && !(std::ofstream("/proc/self/uid_map") << identity << std::flush)) return false;
  return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

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

bool inChildThatMayMount(const std::function<bool()>& operation) {
  return inChild([&] { return enterMountNamespace() && operation(); });
}

}  // namespace klarvik
