#include "platform/desktop/decoding/worker/Landlock.h"

#include <cstdint>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarnloft::decoding::landlock {
namespace {

// The kernel's interface, newer than the C library's headers; see its "Landlock: unprivileged
// access control".
constexpr long createRuleset = 444, addRule = 445, restrictSelf = 446;
constexpr unsigned versionFlag = 1;
constexpr int beneathPath = 1;

struct Ruleset {
  std::uint64_t files = 0;
  std::uint64_t network = 0;
  std::uint64_t scoped = 0;
};

struct __attribute__((packed)) BeneathPath {
  std::uint64_t allowed;
  std::int32_t parent;
};

constexpr std::uint64_t execute = 1, writeFile = 2, readFile = 4, readFolder = 8,
                        truncateFile = std::uint64_t(1) << 14;

// All rights that a version of the interface knows: each bounds what is named.
Ruleset rulesetOf(long version) {
  const int fileRights = version >= 5 ? 16 : version >= 3 ? 15 : version == 2 ? 14 : 13;
  Ruleset ruleset;
  ruleset.files = (std::uint64_t(1) << fileRights) - 1;
  if (version >= 4) ruleset.network = 3;  // bind, connect
  if (version >= 6) ruleset.scoped = 3;   // abstract sockets, signals
  return ruleset;
}

std::uint64_t rightsOf(Reach reach, bool isFolder) {
  switch (reach) {
    case Reach::reading: return isFolder ? readFile | readFolder : readFile;
    case Reach::programs: return isFolder ? readFile | readFolder | execute : readFile | execute;
    case Reach::writing: return readFile | writeFile | truncateFile;
  }
  return 0;
}

void allow(int ruleset, std::uint64_t handled, const Place& place) {
  const int opened = ::open(place.path.c_str(), O_PATH | O_CLOEXEC);
  if (opened < 0) return;  // what isn't there needs no rule
  struct stat info {};
  ::fstat(opened, &info);
  const BeneathPath rule{rightsOf(place.reach, S_ISDIR(info.st_mode)) & handled, opened};
  ::syscall(addRule, ruleset, beneathPath, &rule, 0);
  ::close(opened);
}

}  // namespace

bool keepTo(const std::vector<Place>& places) {
  const long version = ::syscall(createRuleset, nullptr, size_t(0), versionFlag);
  if (version < 1) return false;
  const Ruleset rights = rulesetOf(version);
  const int ruleset = int(::syscall(createRuleset, &rights, sizeof rights, 0u));
  if (ruleset < 0) return false;
  for (const Place& place : places) allow(ruleset, rights.files, place);
  const bool isBound =
      ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::syscall(restrictSelf, ruleset, 0u) == 0;
  ::close(ruleset);
  return isBound;
}

}  // namespace tarnloft::decoding::landlock
