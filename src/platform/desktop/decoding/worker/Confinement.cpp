#include "platform/desktop/decoding/worker/Confinement.h"

#include "platform/desktop/decoding/worker/Landlock.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tarnloft::decoding {
namespace {

bool limit(__rlimit_resource resource, rlim_t soft, rlim_t hard) {
  const rlimit both{soft, hard};
  return ::setrlimit(resource, &both) == 0;
}

// The private memory that may be written to, in bytes; what RLIMIT_DATA counts.
std::uint64_t memoryNow() {
  unsigned long pages = 0;
  if (std::FILE* const status = std::fopen("/proc/self/statm", "re")) {
    if (std::fscanf(status, "%*u %*u %*u %*u %*u %lu", &pages) != 1) pages = 0;
    std::fclose(status);
  }
  return std::uint64_t(pages) * std::uint64_t(::sysconf(_SC_PAGESIZE));
}

bool limitResources(const Cage& cage) {
  std::signal(SIGXFSZ, SIG_IGN);    // a cache of fonts that can't be written is no reason to end
#if !defined(__SANITIZE_ADDRESS__)  // which reserves terabytes
  const std::uint64_t now = memoryNow();
  if (now == 0 || !limit(RLIMIT_DATA, now + cage.basicMemory, now + cage.mostMemory)) return false;
#endif
  return limit(RLIMIT_FSIZE, cage.fileBytes, cage.fileBytes) && limit(RLIMIT_CORE, 0, 0) &&
         limit(RLIMIT_NOFILE, 64, 64);
}

// The system's calls that decoding needs; every other fails as if not permitted. Those that name a
// file are among them only where the system bounds what they reach.
class Filter {
 public:
  Filter() : context_(seccomp_init(SCMP_ACT_ERRNO(EPERM))) {}
  ~Filter() { seccomp_release(context_); }
  Filter(const Filter&) = delete;
  Filter& operator=(const Filter&) = delete;

  template <class... Conditions>
  void allow(int call, Conditions... conditions) {
    isSound_ &=
        seccomp_rule_add(context_, SCMP_ACT_ALLOW, call, sizeof...(conditions), conditions...) == 0;
  }
  void tellMissing(int call) {
    isSound_ &= seccomp_rule_add(context_, SCMP_ACT_ERRNO(ENOSYS), call, 0) == 0;
  }
  bool load() { return isSound_ && seccomp_load(context_) == 0; }

 private:
  scmp_filter_ctx context_;
  bool isSound_ = true;
};

constexpr int harmlessCalls[] = {
    SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(pread64), SCMP_SYS(preadv), SCMP_SYS(lseek),
    SCMP_SYS(write), SCMP_SYS(writev), SCMP_SYS(close), SCMP_SYS(dup), SCMP_SYS(fstat),
    SCMP_SYS(fadvise64), SCMP_SYS(recvmsg), SCMP_SYS(recvfrom), SCMP_SYS(sendmsg), SCMP_SYS(sendto),
    SCMP_SYS(poll), SCMP_SYS(ppoll), SCMP_SYS(eventfd2),
    // memory
    SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(mprotect), SCMP_SYS(madvise), SCMP_SYS(brk),
    // threads
    SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(membarrier),
    SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity), SCMP_SYS(getcpu), SCMP_SYS(exit),
    SCMP_SYS(exit_group), SCMP_SYS(gettid), SCMP_SYS(getpid),
    // signals to itself
    SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    // what it may know
    SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres), SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday), SCMP_SYS(time), SCMP_SYS(times), SCMP_SYS(getrusage),
    SCMP_SYS(getrlimit), SCMP_SYS(sysinfo), SCMP_SYS(uname), SCMP_SYS(getrandom), SCMP_SYS(getuid),
    SCMP_SYS(geteuid), SCMP_SYS(getgid), SCMP_SYS(getegid)};

constexpr int readingCalls[] = {SCMP_SYS(newfstatat), SCMP_SYS(stat),     SCMP_SYS(lstat),
                                SCMP_SYS(statx),      SCMP_SYS(access),   SCMP_SYS(faccessat),
                                SCMP_SYS(faccessat2), SCMP_SYS(readlink), SCMP_SYS(readlinkat),
                                SCMP_SYS(getdents64), SCMP_SYS(statfs),   SCMP_SYS(fstatfs)};

constexpr int startingCalls[] = {SCMP_SYS(execve), SCMP_SYS(openat), SCMP_SYS(arch_prctl),
                                 SCMP_SYS(set_tid_address), SCMP_SYS(ftruncate)};

void allowMemory(Filter& filter) {
  // Memory that is shared without a file escapes the bound on memory.
  filter.allow(SCMP_SYS(mmap), SCMP_A3(SCMP_CMP_MASKED_EQ, MAP_SHARED, 0));
  filter.allow(SCMP_SYS(mmap), SCMP_A3(SCMP_CMP_MASKED_EQ, MAP_ANONYMOUS, 0));
}

void allowThreads(Filter& filter) {
  // Threads stay possible; a new process isn't. The newer call, whose flags a filter can't see, is
  // told to be missing, and the C library falls back on the old one.
  filter.allow(SCMP_SYS(clone), SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD));
  filter.tellMissing(SCMP_SYS(clone3));
  filter.allow(SCMP_SYS(tgkill), SCMP_A0(SCMP_CMP_EQ, scmp_datum_t(::getpid()), 0));
  filter.allow(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME, 0));
}

void allowQuestions(Filter& filter) {
  filter.allow(SCMP_SYS(prlimit64), SCMP_A0(SCMP_CMP_EQ, 0, 0), SCMP_A2(SCMP_CMP_EQ, 0, 0));
  filter.allow(SCMP_SYS(newfstatat), SCMP_A3(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH));
  for (const int command : {F_GETFL, F_GETFD, F_SETFD, F_DUPFD, F_DUPFD_CLOEXEC}) {
    filter.allow(SCMP_SYS(fcntl), SCMP_A1(SCMP_CMP_EQ, scmp_datum_t(command), 0));
  }
}

bool filterCalls(bool mayRead, bool mayStart) {
  Filter filter;
  for (const int call : harmlessCalls) filter.allow(call);
  allowMemory(filter);
  allowThreads(filter);
  allowQuestions(filter);
  if (mayRead || mayStart) {
    for (const int call : readingCalls) filter.allow(call);
  }
  if (mayStart) {
    for (const int call : startingCalls) filter.allow(call);
  } else if (mayRead) {
    filter.allow(SCMP_SYS(openat),
                 SCMP_A2(SCMP_CMP_MASKED_EQ, O_ACCMODE | O_CREAT | O_TRUNC, O_RDONLY));
  }
  return filter.load();
}

}  // namespace

bool confine(const Cage& cage) {
  std::vector<landlock::Place> places;
  for (const std::string& folder : cage.folders) places.push_back({folder});
  for (const std::string& path : cage.program) places.push_back({path, landlock::Reach::programs});
  if (!limitResources(cage) || ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
  const bool isBound = landlock::keepTo(places);
  const bool mayStart = !cage.program.empty();
  return filterCalls(isBound && !cage.folders.empty(), mayStart);
}

}  // namespace tarnloft::decoding
