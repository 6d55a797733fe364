#include "platform/desktop/decoding/worker/Sanitizer.h"

#include "platform/desktop/decoding/Protocol.h"
#include "platform/desktop/decoding/worker/Confinement.h"

#include <unistd.h>

namespace tarnloft::decoding {
namespace {

constexpr const char* program = "/usr/bin/ots-sanitize";

}  // namespace

int sanitize() {
  char name[] = "ots-sanitize", input[] = "/proc/self/fd/0", output[] = "/proc/self/fd/3";
  static_assert(outputNumber == 3);
  // The output is memory, which has no place among folders and opens again within any bounds.
  const Cage cage{.folders = {input},
                  .basicMemory = limits::mostMemory,
                  .mostMemory = limits::mostMemory,
                  .fileBytes = limits::documentBytes,
                  .program = {program, "/usr/lib", "/lib", "/lib64", "/etc/ld.so.cache"}};
  if (!confine(cage)) return 1;
  char* arguments[] = {name, input, output, nullptr};
  char* environment[] = {nullptr};
  ::execve(program, arguments, environment);
  return 1;
}

}  // namespace tarnloft::decoding
