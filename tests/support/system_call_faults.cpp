#include "support/system_call_faults.h"

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <thread>
#include <vector>

namespace klarvik {
namespace {

using Kind = SystemCallFault::Kind;

constexpr auto kWatchedCalls = std::to_array<unsigned>(
    {SYS_openat,     SYS_openat2,   SYS_close,      SYS_read,       SYS_write,     SYS_statx,
     SYS_newfstatat, SYS_fstat,     SYS_getdents64, SYS_mkdirat,    SYS_unlinkat,  SYS_renameat2,
     SYS_renameat,   SYS_linkat,    SYS_symlinkat,  SYS_readlinkat, SYS_fchmodat,  SYS_fchmod,
     SYS_ftruncate,  SYS_fallocate, SYS_fsync,      SYS_fdatasync,  SYS_listxattr, SYS_removexattr,
     SYS_pread64,    SYS_pwrite64,
#ifdef SYS_open
     SYS_open,       SYS_stat,      SYS_lstat,      SYS_mkdir,      SYS_rmdir,     SYS_unlink,
     SYS_rename,     SYS_link,      SYS_symlink,    SYS_readlink,   SYS_access,    SYS_chmod,
#endif
     SYS_faccessat});

[[noreturn]] void giveUp(const char* what) {
  std::fprintf(stderr, "cannot %s: %s\n", what, std::strerror(errno));
  std::_Exit(125);
}

/// Shared by the child and the one that waits for it.
struct Outcome {
  bool reached;
  bool answer;
};

Outcome* sharedOutcome() {
  void* const memory =
      ::mmap(nullptr, sizeof(Outcome), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) giveUp("share memory");
  return new (memory) Outcome{};
}

long installFilter(std::vector<sock_filter>& program, unsigned flags) {
  const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
  return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, flags, &filter);
}

/// From here on every watched call of this thread waits for the answer of who reads the handle.
int watchThisThread() {
  std::vector<sock_filter> program{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
  for (const unsigned call : kWatchedCalls) {
    program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
  }
  program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) giveUp("give up new privileges");
  const long handle = installFilter(program, SECCOMP_FILTER_FLAG_NEW_LISTENER);
  if (handle < 0) giveUp("watch system calls");
  return static_cast<int>(handle);
}

seccomp_notif_resp answerTo(const seccomp_notif& call, int count, const SystemCallFault& fault) {
  seccomp_notif_resp response{};
  response.id = call.id;
  response.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
  const bool fails = (fault.kind == Kind::failsOnce && count == fault.at) ||
                     (fault.kind == Kind::failsFromThere && count >= fault.at);
  if (fails) {
    response.flags = 0;
    response.error = -fault.error;
  }
  if (count == fault.at && fault.kind == Kind::killed) ::kill(::getpid(), SIGKILL);
  if (count == fault.at && fault.kind == Kind::disturbed) fault.disturbance();
  return response;
}

/// Until the watched thread has ended.
void answerCalls(int watch, const SystemCallFault& fault, Outcome& outcome) {
  for (int count = 0;;) {
    pollfd ready{watch, POLLIN, 0};
    if (::poll(&ready, 1, -1) < 0 && errno != EINTR) giveUp("wait for system calls");
    if (!(ready.revents & POLLIN)) {
      if (ready.revents & POLLHUP) return;
      continue;
    }
    seccomp_notif call{};
    if (::ioctl(watch, SECCOMP_IOCTL_NOTIF_RECV, &call) != 0) continue;
    ++count;
    if (count == fault.at) outcome.reached = true;
    seccomp_notif_resp response = answerTo(call, count, fault);
    ::ioctl(watch, SECCOMP_IOCTL_NOTIF_SEND, &response);
  }
}

[[noreturn]] void runInChild(const SystemCallFault& fault, const std::function<bool()>& operation,
                             Outcome& outcome) {
  std::promise<int> watch;
  auto watched = watch.get_future();
  std::thread worker([&] {
    watch.set_value(watchThisThread());
    outcome.answer = operation();
  });
  answerCalls(watched.get(), fault, outcome);
  worker.join();
  std::_Exit(0);
}

}  // namespace

void refuseSystemCall(long call, int error) {
  std::vector<sock_filter> program{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  if (installFilter(program, 0) != 0) giveUp("refuse a system call");
}

void refuseNamelessFiles() {
  constexpr unsigned onlyNameless = O_TMPFILE & ~O_DIRECTORY;
  std::vector<sock_filter> program{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
      BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, onlyNameless, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  if (installFilter(program, 0) != 0) giveUp("refuse files without a name");
}

FaultyRun runWithFault(const SystemCallFault& fault, const std::function<bool()>& operation) {
  Outcome* const outcome = sharedOutcome();
  const pid_t child = ::fork();
  if (child < 0) giveUp("start a process");
  if (child == 0) runInChild(fault, operation, *outcome);

  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  const bool killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  if (!killed && status != 0) giveUp("run the operation to its end");
  const FaultyRun run{outcome->reached, killed, outcome->answer};
  ::munmap(outcome, sizeof(Outcome));
  return run;
}

}  // namespace klarvik
