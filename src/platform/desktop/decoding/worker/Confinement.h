#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnloft::decoding {

// What a process that is shut in may still do.
struct Cage {
  std::vector<std::string> folders;  // whose files it may read
  std::uint64_t basicMemory = 0;     // bytes beyond what it has now; its parent may give more
  std::uint64_t mostMemory = 0;
  std::uint64_t fileBytes = 0;       // that it may write to a file it has
  std::vector<std::string> program;  // the path of one that it may become, and of what that reads
};

// Takes everything else from this process, for good: files, the network, other processes, and
// rights. It has one thread yet. False if the system refuses. Where the system can't bound files by
// folders, none can be read at all.
bool confine(const Cage& cage);

}  // namespace tarnloft::decoding
