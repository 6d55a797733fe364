#include "platform/desktop/vectors/Confinement.h"

#include "platform/desktop/vectors/VectorProtocol.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/resource.h>

namespace tarnloft {
namespace {

bool limit(__rlimit_resource resource, rlim_t value) {
  const rlimit both{value, value};
  return ::setrlimit(resource, &both) == 0;
}

bool limitResources() {
#if !defined(__SANITIZE_ADDRESS__)  // which reserves terabytes
  if (!limit(RLIMIT_AS, vectorLimits::memoryBytes)) return false;
#endif
  std::signal(SIGXFSZ, SIG_IGN);  // a cache of fonts that can't be written is no reason to end
  return limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_CORE, 0);
}

// The calls that a drawing has no use for; they fail as if not permitted.
constexpr int refusedCalls[] = {
    SCMP_SYS(socket), SCMP_SYS(socketpair),    SCMP_SYS(connect),   SCMP_SYS(bind),
    SCMP_SYS(listen), SCMP_SYS(execve),        SCMP_SYS(execveat),  SCMP_SYS(fork),
    SCMP_SYS(vfork),  SCMP_SYS(ptrace),        SCMP_SYS(rename),    SCMP_SYS(renameat),
    SCMP_SYS(unlink), SCMP_SYS(unlinkat),      SCMP_SYS(renameat2), SCMP_SYS(link),
    SCMP_SYS(linkat), SCMP_SYS(symlink),       SCMP_SYS(symlinkat), SCMP_SYS(truncate),
    SCMP_SYS(chmod),  SCMP_SYS(fchmodat),      SCMP_SYS(mkdir),     SCMP_SYS(mkdirat),
    SCMP_SYS(rmdir),  SCMP_SYS(io_uring_setup)};

bool refuseCalls(scmp_filter_ctx filter) {
  for (const int call : refusedCalls) {
    if (seccomp_rule_add(filter, SCMP_ACT_ERRNO(EPERM), call, 0) != 0) return false;
  }
  // Threads stay possible; a new process isn't. The newer call, whose flags a filter can't see, is
  // told to be missing, and the C library falls back on the old one.
  return seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0 &&
         seccomp_rule_add(filter, SCMP_ACT_ERRNO(EPERM), SCMP_SYS(clone), 1,
                          SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0)) == 0;
}

bool filterCalls() {
  scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
  if (!filter) return false;
  const bool loaded = refuseCalls(filter) && seccomp_load(filter) == 0;
  seccomp_release(filter);
  return loaded;
}

}  // namespace

bool confine() { return limitResources() && filterCalls(); }

void limitProcessorTime(int seconds) {
  rusage used{};
  ::getrusage(RUSAGE_SELF, &used);
  rlimit bound{};
  ::getrlimit(RLIMIT_CPU, &bound);
  bound.rlim_cur = rlim_t(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1 + seconds);
  ::setrlimit(RLIMIT_CPU, &bound);
}

}  // namespace tarnloft
