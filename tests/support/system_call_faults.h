#pragma once

#include <functional>

namespace klarvik {

/// What is to happen at one of the system calls on files that an operation makes.
struct SystemCallFault {
  enum class Kind {
    none,            ///< the calls are only counted
    failsOnce,       ///< that call fails with `error`
    failsFromThere,  ///< that call and all later ones fail with `error`
    killed,          ///< the process is killed before the call is made
    disturbed,       ///< `disturbance` runs before the call is made
  };
  Kind kind = Kind::none;
  int at = 0;  ///< counted from 1
  int error = 0;
  std::function<void()> disturbance;
};

struct FaultyRun {
  bool reached = false;  ///< the operation got as far as the call that the fault is for
  bool killed = false;
  bool answer = false;  ///< of the operation, when it was not killed
};

/// From here on that system call (SYS_...) fails with `error` whenever this thread makes it. For
/// operations that run with a fault only: nothing takes it back.
void refuseSystemCall(long call, int error);

/// From here on this thread is on a file system that has no files without a name.
void refuseNamelessFiles();

/// Runs `operation` on one thread of a child process, with the fault. Its calls are caught in the
/// kernel (seccomp), however they are made. What the operation changes in memory is lost with the
/// child. Where this cannot be set up the test program ends with a message.
FaultyRun runWithFault(const SystemCallFault& fault, const std::function<bool()>& operation);

}  // namespace klarvik
