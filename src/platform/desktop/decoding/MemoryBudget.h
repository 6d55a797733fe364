#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace tarnloft::decoding {

// Memory that several share, in bytes. Who asks for much isn't passed by those who ask for little.
// Any thread.
class MemoryBudget {
 public:
  explicit MemoryBudget(std::uint64_t bytes) : all_(bytes), left_(bytes) {}
  MemoryBudget(const MemoryBudget&) = delete;
  MemoryBudget& operator=(const MemoryBudget&) = delete;

  // Part of it; making one waits for it. Of more than all there is, all.
  class Share {
   public:
    Share(MemoryBudget& budget, std::uint64_t bytes);
    ~Share();
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

   private:
    MemoryBudget& budget_;
    const std::uint64_t bytes_;
  };

 private:
  const std::uint64_t all_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::uint64_t left_;
  std::uint64_t nextTicket_ = 0;
  std::uint64_t served_ = 0;
};

}  // namespace tarnloft::decoding
