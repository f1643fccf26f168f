// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/failing_calls.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <set>
#include <string>

namespace tallyroll {

#if defined(__x86_64__)

namespace {

// Of a file or a folder: what a runtime writes to a pipe of its own, to learn whether an address
// can be read, is no change of the disk.
bool IsOnDisk(pid_t who, unsigned long long descriptor) {
  const std::string path =
      "/proc/" + std::to_string(who) + "/fd/" + std::to_string(static_cast<int>(descriptor));
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

bool ChangesTheDisk(pid_t who, const user_regs_struct& call) {
  switch (call.orig_rax) {
    case SYS_openat:
      return (call.rdx & (O_CREAT | O_WRONLY | O_RDWR)) != 0;
    case SYS_open:
      return (call.rsi & (O_CREAT | O_WRONLY | O_RDWR)) != 0;
    case SYS_write:
    case SYS_pwrite64:
    case SYS_writev:
    case SYS_fsync:
    case SYS_fdatasync:
    case SYS_ftruncate:
    case SYS_fallocate:
    case SYS_fchmod:
    case SYS_fchown:
      return IsOnDisk(who, call.rdi);
    case SYS_rename:
    case SYS_renameat:
    case SYS_renameat2:
    case SYS_link:
    case SYS_linkat:
    case SYS_unlink:
    case SYS_unlinkat:
      return true;
    default:
      return false;
  }
}

class Watch {
 public:
  Watch(pid_t child, int nth, Fate fate, int error)
      : child_(child), nth_(nth), fate_(fate), error_(error) {}

  Faulted Run() {
    Faulted faulted;
    int status = 0;
    if (waitpid(child_, &status, 0) != child_ || !WIFSTOPPED(status)) return faulted;
    constexpr long kOptions = PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE | PTRACE_O_EXITKILL;
    if (ptrace(PTRACE_SETOPTIONS, child_, nullptr, kOptions) != 0) {
      kill(child_, SIGKILL);
      waitpid(child_, &status, 0);
      return faulted;
    }
    faulted.supported = true;
    ptrace(PTRACE_SYSCALL, child_, nullptr, 0L);
    for (pid_t who; (who = waitpid(-1, &status, __WALL)) > 0;) {
      if (!WIFSTOPPED(status)) {
        if (who != child_) continue;
        faulted.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        break;
      }
      Step(who, WSTOPSIG(status));
    }
    faulted.met = met_;
    return faulted;
  }

 private:
  static constexpr int kSystemCall = SIGTRAP | 0x80;

  void Step(pid_t who, int signal) {
    long passed_on = 0;
    if (signal == kSystemCall)
      Call(who);
    else if (signal != SIGTRAP && signal != SIGSTOP)
      passed_on = signal;
    ptrace(PTRACE_SYSCALL, who, nullptr, passed_on);
  }

  void Call(pid_t who) {
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, who, nullptr, &registers);
    if (inside_.erase(who) != 0) {  // it comes back
      if (!failing_.erase(who)) return;
      registers.rax = static_cast<unsigned long long>(-static_cast<long long>(error_));
      ptrace(PTRACE_SETREGS, who, nullptr, &registers);
      return;
    }
    inside_.insert(who);
    if (!ChangesTheDisk(who, registers) || ++calls_ != nth_) return;
    met_ = true;
    if (fate_ == Fate::kKilled) {
      kill(child_, SIGKILL);
      return;
    }
    failing_.insert(who);
    registers.orig_rax = static_cast<unsigned long long>(-1);
    ptrace(PTRACE_SETREGS, who, nullptr, &registers);
  }

  pid_t child_;
  int nth_;
  Fate fate_;
  int error_;
  int calls_ = 0;
  bool met_ = false;
  std::set<pid_t> inside_, failing_;
};

}  // namespace

Faulted RunWithFault(const std::function<int()>& work, int nth, Fate fate, int error) {
  const pid_t child = fork();
  if (child == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(1);
    raise(SIGSTOP);
    _exit(work());
  }
  return Watch(child, nth, fate, error).Run();
}

#else

Faulted RunWithFault(const std::function<int()>&, int, Fate, int) {
  return {};
}

#endif

}  // namespace tallyroll
