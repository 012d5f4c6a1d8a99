#include "support/meddled_run.h"

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace klarvik {
namespace {

constexpr std::array<std::uint64_t, 17> uncountedCalls{
    SYS_brk,         SYS_mmap,           SYS_munmap,       SYS_mremap,     SYS_mprotect,
    SYS_madvise,     SYS_futex,          SYS_rt_sigaction, SYS_tgkill,     SYS_rt_sigprocmask,
    SYS_getrandom,   SYS_clock_gettime,  SYS_nanosleep,    SYS_exit_group, SYS_clock_nanosleep,
    SYS_sched_yield, SYS_restart_syscall};

bool isCounted(std::uint64_t call) {
  return std::ranges::find(uncountedCalls, call) == uncountedCalls.end();
}

[[noreturn]] void giveUp(const char* what) {
  std::perror(what);
  std::abort();
}

void check(long result, const char* what) {
  if (result < 0) giveUp(what);
}

#if !defined(__x86_64__)
#error "Only the registers of x86-64 are known here."
#endif

void skipCall(::pid_t child) {
  ::user_regs_struct registers{};
  check(::ptrace(PTRACE_GETREGS, child, nullptr, &registers), "PTRACE_GETREGS");
  registers.orig_rax = static_cast<unsigned long long>(-1);
  check(::ptrace(PTRACE_SETREGS, child, nullptr, &registers), "PTRACE_SETREGS");
}

void setResult(::pid_t child, int error) {
  ::user_regs_struct registers{};
  check(::ptrace(PTRACE_GETREGS, child, nullptr, &registers), "PTRACE_GETREGS");
  registers.rax = static_cast<unsigned long long>(-error);
  check(::ptrace(PTRACE_SETREGS, child, nullptr, &registers), "PTRACE_SETREGS");
}

::pid_t startStopped(const std::function<bool()>& operation) {
  const ::pid_t child = ::fork();
  if (child == 0) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    ::_exit(operation() ? 0 : 1);
  }
  check(child, "fork");
  int status = 0;
  check(::waitpid(child, &status, 0), "waitpid");
  check(::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL),
        "PTRACE_SETOPTIONS");
  return child;
}

struct SystemCall {
  bool isEntry = false;
  std::uint64_t number = 0;
};

SystemCall currentCall(::pid_t child) {
  struct ::__ptrace_syscall_info info {};
  check(::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info), "PTRACE_GET_SYSCALL_INFO");
  const bool isEntry = info.op == PTRACE_SYSCALL_INFO_ENTRY;
  return {isEntry, isEntry ? info.entry.nr : 0};
}

MeddledEnding killNow(::pid_t child) {
  ::kill(child, SIGKILL);
  int status = 0;
  check(::waitpid(child, &status, 0), "waitpid");
  return MeddledEnding::killed;
}

MeddledEnding endingOf(int status, bool reached) {
  if (!WIFEXITED(status)) return MeddledEnding::crashed;
  if (!reached) return MeddledEnding::neverReached;
  return WEXITSTATUS(status) == 0 ? MeddledEnding::answeredTrue : MeddledEnding::answeredFalse;
}

}  // namespace

MeddledEnding meddledRun(const std::function<bool()>& operation, std::size_t call,
                         Meddling meddling) {
  constexpr int systemCallStop = SIGTRAP | 0x80;
  const ::pid_t child = startStopped(operation);
  std::size_t callsSeen = 0;
  bool failing = false;
  int signalToPassOn = 0;
  while (true) {
    check(::ptrace(PTRACE_SYSCALL, child, nullptr, signalToPassOn), "PTRACE_SYSCALL");
    int status = 0;
    check(::waitpid(child, &status, 0), "waitpid");
    if (WIFEXITED(status) || WIFSIGNALED(status)) return endingOf(status, callsSeen > call);
    const bool atCall = WSTOPSIG(status) == systemCallStop;
    signalToPassOn = atCall ? 0 : WSTOPSIG(status);
    if (!atCall) continue;

    const SystemCall current = currentCall(child);
    if (!current.isEntry) {
      if (failing) setResult(child, meddling.error);
      failing = false;
    } else if (isCounted(current.number)) {
      const std::size_t index = callsSeen++;
      if (index == call && meddling.kind == Meddling::Kind::kill) return killNow(child);
      failing = index == call || (index > call && meddling.kind == Meddling::Kind::failFromThenOn);
      if (failing) skipCall(child);
    }
  }
}

}  // namespace klarvik
