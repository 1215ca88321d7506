// SPDX-License-Identifier: MIT
#include "support/child_process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <span>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#ifdef __x86_64__
#include <sys/user.h>
#endif
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

/// System calls that change files, without those that open them. Some machines lack the older ones.
constexpr long kChanges[] = {
    SYS_write,
    SYS_pwrite64,
    SYS_ftruncate,
    SYS_fsync,
    SYS_fdatasync,
    SYS_linkat,
    SYS_unlinkat,
    SYS_renameat2,
    SYS_mkdirat,
    SYS_fchmod,
    SYS_fchown,
    SYS_fchmodat,
    SYS_fchownat,
    SYS_utimensat,
    SYS_sendfile,
#ifdef SYS_link
    SYS_link,
    SYS_unlink,
    SYS_rename,
    SYS_mkdir,
    SYS_rmdir,
    SYS_chmod,
    SYS_chown,
#endif
#ifdef SYS_renameat
    SYS_renameat,
#endif
#ifdef SYS_copy_file_range
    SYS_copy_file_range,
#endif
};

/// System calls that look at files or read them. What opens them stands with those that change them.
constexpr long kLooks[] = {
    SYS_openat, SYS_read,     SYS_pread64,   SYS_fstat,      SYS_newfstatat, SYS_statx,      SYS_lseek,
    SYS_fcntl,  SYS_flock,    SYS_faccessat, SYS_faccessat2, SYS_readlinkat, SYS_getdents64, SYS_close,
#ifdef SYS_access
    SYS_access, SYS_readlink,
#endif
#ifdef SYS_stat
    SYS_stat,   SYS_lstat,    SYS_open,
#endif
};

bool IsOneOf(const auto& calls, long number) {
  return std::find(std::begin(calls), std::end(calls), number) != std::end(calls);
}

int Run(const std::function<bool()>& action) {
  try {
    return action() ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "child: %s\n", failure.what());
    return 1;
  }
}

constexpr int kWrong = 3;
constexpr int kFault = 4;
constexpr int kNoText = 5;

/// The child's exit status tells how the action ended.
int RunToEnding(const std::function<bool()>& action) {
  try {
    return action() ? 0 : kWrong;
  } catch (const std::exception& failure) {
    return *failure.what() == '\0' ? kNoText : kFault;
  }
}

/// Gives this process for good a filter that treats some system calls in a way of their own.
bool FilterCalls(std::span<const long> calls, std::uint32_t treatment) {
  constexpr auto kNumber = static_cast<std::uint32_t>(offsetof(seccomp_data, nr));
  std::vector<sock_filter> program = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kNumber)};
  for (const long call : calls) {
    program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(call), 0, 1));
    program.push_back(BPF_STMT(BPF_RET | BPF_K, treatment));
  }
  program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// Which calls a child stops at.
enum class Stops { at_changes, at_file_calls };

/// A child process of one thread that stops before system calls; killed with the object.
class TracedChild {
 public:
  explicit TracedChild(const std::function<void()>& action)
      : TracedChild([&] { return Run([&] { return (action(), true); }); }, Stops::at_changes) {}
  /// The action's result is the exit status.
  TracedChild(const std::function<int()>& action, Stops stops) : stops_(stops), child_(fork()) {
    if (child_ == 0) {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
      raise(SIGSTOP);
      // The kernel picks the calls out: a stop at every other one would be most of the time.
      if (!FilterCalls(CallsOf(stops), SECCOMP_RET_TRACE)) _exit(2);
      _exit(action());
    }
    if (!Wait() || ptrace(PTRACE_SETOPTIONS, child_, nullptr, PTRACE_O_TRACESECCOMP | PTRACE_O_EXITKILL) != 0)
      throw std::runtime_error(std::string("a child cannot be traced: ") + std::strerror(errno));
  }
  TracedChild(const TracedChild&) = delete;
  TracedChild& operator=(const TracedChild&) = delete;
  ~TracedChild() {
    if (ended_) return;
    kill(child_, SIGKILL);
    while (waitpid(child_, nullptr, 0) < 0 && errno == EINTR) continue;
  }

  /// Goes on to the next call that it is to stop at; false when the action came to its end.
  bool GoOn() {
    for (;;) {
      if (ptrace(PTRACE_CONT, child_, nullptr, nullptr) != 0) throw std::runtime_error("a child got lost");
      if (!Wait()) return false;
      if (status_ >> 8 == (SIGTRAP | PTRACE_EVENT_SECCOMP << 8) && IsMeant(NextCall())) return true;
    }
  }

#ifdef __x86_64__
  /// Lets the call at which the child stands fail.
  void FailCall() {
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, child_, nullptr, &registers);
    const bool writes = IsOneOf(kChanges, static_cast<long>(registers.orig_rax));
    registers.orig_rax = ~0ULL;  // no call
    registers.rax = static_cast<unsigned long long>(-static_cast<long long>(writes ? ENOSPC : EIO));
    ptrace(PTRACE_SETREGS, child_, nullptr, &registers);
  }
#endif

  /// Lets the child run to its end; how it ended, as waitpid() tells.
  int ToEnd() {
    while (!ended_) {
      if (ptrace(PTRACE_CONT, child_, nullptr, nullptr) != 0) throw std::runtime_error("a child got lost");
      Wait();
    }
    return status_;
  }

 private:
  struct Call {
    long number;
    std::uint64_t first_argument;
    std::uint64_t third_argument;
  };

  static std::vector<long> CallsOf(Stops stops) {
    std::vector<long> calls(std::begin(kChanges), std::end(kChanges));
    calls.push_back(SYS_openat);
    if (stops == Stops::at_file_calls) calls.insert(calls.end(), std::begin(kLooks), std::end(kLooks));
    return calls;
  }

  bool IsMeant(const Call& call) const {
    if (IsOnPipe(call)) return false;
    // What may create a file changes; what opens one looks.
    return call.number != SYS_openat || stops_ == Stops::at_file_calls ||
           (call.third_argument & O_CREAT) != 0;
  }

  /// Until the child stops; false when it has ended.
  bool Wait() {
    while (waitpid(child_, &status_, 0) < 0) {
      if (errno != EINTR) throw std::runtime_error("a child got lost");
    }
    if (WIFSTOPPED(status_)) return true;
    ended_ = true;
    // 1 and 2 are those of an action that is to come to its end.
    if (WIFEXITED(status_) && (WEXITSTATUS(status_) == 1 || WEXITSTATUS(status_) == 2)) {
      throw std::runtime_error("a child failed");
    }
    return false;
  }

  /// The call that the child is about to make.
  Call NextCall() const {
    __ptrace_syscall_info info{};
    if (ptrace(static_cast<__ptrace_request>(PTRACE_GET_SYSCALL_INFO), child_, sizeof info, &info) <= 0)
      throw std::runtime_error("system calls of a child cannot be read");
    return {static_cast<long>(info.seccomp.nr), info.seccomp.args[0], info.seccomp.args[2]};
  }

  /// The undefined-behaviour sanitizer tries by a pipe of its own whether memory can be read; that is no
  /// file.
  bool IsOnPipe(const Call& call) const {
    if (call.number != SYS_write && call.number != SYS_read && call.number != SYS_close) return false;
    const std::string descriptor =
        "/proc/" + std::to_string(child_) + "/fd/" + std::to_string(call.first_argument);
    char target[6] = {};
    return readlink(descriptor.c_str(), target, 5) == 5 && std::strcmp(target, "pipe:") == 0;
  }

  Stops stops_;
  pid_t child_;
  int status_ = 0;
  bool ended_ = false;
};

}  // namespace

bool InChild(const std::function<bool()>& action) {
  const pid_t child = fork();
  if (child == 0) _exit(Run(action));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool WithFilesOfAtMost(std::uint64_t bytes, const std::function<void()>& action) {
  return InChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
    action();
    return !::testing::Test::HasFailure();
  });
}

bool KilledBeforeChange(int n, const std::function<void()>& action) {
  TracedChild child(action);
  for (int change = 0; change < n; ++change) {
    if (!child.GoOn()) return false;
  }
  return true;
}

void MeddleBeforeChange(int n, const std::function<void()>& action, const std::function<void()>& meddle) {
  TracedChild child(action);
  for (int change = 0; change < n; ++change) {
    if (!child.GoOn()) throw std::runtime_error("a child made fewer changes");
  }
  meddle();
  while (child.GoOn()) continue;
}

int FailingCallStep(int usual) {
  const char* const stress = std::getenv("RBTALLY_STRESS");
  return stress != nullptr && std::strcmp(stress, "full") == 0 ? 1 : usual;
}

#ifdef __x86_64__
bool CanFailCalls() { return true; }

Ending WithFailingCall(int n, const std::function<bool()>& action) {
  TracedChild child([&] { return RunToEnding(action); }, Stops::at_file_calls);
  for (int call = 0; call < n; ++call) {
    if (!child.GoOn()) return Ending::too_few_calls;
  }
  child.FailCall();
  const int status = child.ToEnd();
  if (!WIFEXITED(status)) return Ending::crash;
  switch (WEXITSTATUS(status)) {
    case 0:
      return Ending::well;
    case kFault:
      return Ending::fault;
    case kWrong:
      return Ending::wrong;
    default:
      return Ending::crash;
  }
}
#else
bool CanFailCalls() { return false; }

Ending WithFailingCall(int, const std::function<bool()>&) { throw std::runtime_error("not on this machine"); }
#endif

void ForbidHardLinks() {
  constexpr long kLinks[] = {
      SYS_linkat,
#ifdef SYS_link
      SYS_link,
#endif
  };
  if (!FilterCalls(kLinks, SECCOMP_RET_ERRNO | EPERM))
    throw std::runtime_error(std::string("hard links cannot be forbidden: ") + std::strerror(errno));
}

}  // namespace rbt::test
