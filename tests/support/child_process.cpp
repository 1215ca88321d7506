// SPDX-License-Identifier: MIT
#include "support/child_process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

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

int Run(const std::function<bool()>& action) {
  try {
    return action() ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "child: %s\n", failure.what());
    return 1;
  }
}

/// A child process that stops at each system call; killed with the object.
class TracedChild {
 public:
  explicit TracedChild(const std::function<void()>& action) : child_(fork()) {
    if (child_ == 0) {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
      raise(SIGSTOP);
      _exit(Run([&] {
        action();
        return true;
      }));
    }
    if (!Wait() || ptrace(PTRACE_SETOPTIONS, child_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0)
      throw std::runtime_error(std::string("a child cannot be traced: ") + std::strerror(errno));
  }
  TracedChild(const TracedChild&) = delete;
  TracedChild& operator=(const TracedChild&) = delete;
  ~TracedChild() {
    if (ended_) return;
    kill(child_, SIGKILL);
    Wait();
  }

  /// Goes on to the next system call that changes something; false when the action came to its end.
  bool GoToChange() {
    for (;;) {
      if (ptrace(PTRACE_SYSCALL, child_, nullptr, nullptr) != 0) throw std::runtime_error("a child got lost");
      if (!Wait()) return false;
      if (WSTOPSIG(status_) == (SIGTRAP | 0x80) && IsChange()) return true;
    }
  }

 private:
  /// Until the child stops; false when it has ended.
  bool Wait() {
    while (waitpid(child_, &status_, 0) < 0) {
      if (errno != EINTR) throw std::runtime_error("a child got lost");
    }
    if (WIFSTOPPED(status_)) return true;
    ended_ = true;
    if (WIFEXITED(status_) && WEXITSTATUS(status_) != 0) throw std::runtime_error("a child failed");
    return false;
  }

  bool IsChange() const {
    __ptrace_syscall_info info{};
    if (ptrace(static_cast<__ptrace_request>(PTRACE_GET_SYSCALL_INFO), child_, sizeof info, &info) <= 0)
      throw std::runtime_error("system calls of a child cannot be read");
    if (info.op != PTRACE_SYSCALL_INFO_ENTRY) return false;
    const auto number = static_cast<long>(info.entry.nr);
    if (number == SYS_openat) return (info.entry.args[2] & O_CREAT) != 0;
    return std::find(std::begin(kChanges), std::end(kChanges), number) != std::end(kChanges);
  }

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
    if (!child.GoToChange()) return false;
  }
  return true;
}

void MeddleBeforeChange(int n, const std::function<void()>& action, const std::function<void()>& meddle) {
  TracedChild child(action);
  for (int change = 0; change < n; ++change) {
    if (!child.GoToChange()) throw std::runtime_error("a child made fewer changes");
  }
  meddle();
  while (child.GoToChange()) continue;
}

void ForbidHardLinks() {
  constexpr auto kNumber = static_cast<std::uint32_t>(offsetof(seccomp_data, nr));
  constexpr std::uint32_t kRefuse = SECCOMP_RET_ERRNO | EPERM;
#ifdef SYS_link
  constexpr std::uint32_t kLink = SYS_link;
#else
  constexpr std::uint32_t kLink = SYS_linkat;
#endif
  sock_filter program[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kNumber),           BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, kLink, 1, 0),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_linkat, 0, 1), BPF_STMT(BPF_RET | BPF_K, kRefuse),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog filter{static_cast<unsigned short>(std::size(program)), program};
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0)
    throw std::runtime_error(std::string("hard links cannot be forbidden: ") + std::strerror(errno));
}

}  // namespace rbt::test
