#include "platform/desktop/decoding/MemoryBudget.h"

#include <algorithm>

namespace tarnloft::decoding {

MemoryBudget::Share::Share(MemoryBudget& budget, std::uint64_t bytes)
    : budget_(budget), bytes_(std::min(bytes, budget.all_)) {
  std::unique_lock lock(budget_.mutex_);
  const std::uint64_t ticket = budget_.nextTicket_++;
  budget_.changed_.wait(lock, [&] { return budget_.served_ == ticket && budget_.left_ >= bytes_; });
  budget_.left_ -= bytes_;
  ++budget_.served_;
  budget_.changed_.notify_all();
}

MemoryBudget::Share::~Share() {
  const std::lock_guard lock(budget_.mutex_);
  budget_.left_ += bytes_;
  budget_.changed_.notify_all();
}

}  // namespace tarnloft::decoding
