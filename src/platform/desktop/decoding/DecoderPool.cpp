#include "platform/desktop/decoding/DecoderPool.h"

#include "platform/desktop/decoding/DecoderProcess.h"

#include <algorithm>

namespace tarnloft::decoding {
namespace {

// What its libraries leak stays bounded.
constexpr int filesEach = 400;
constexpr size_t idleEach = 4;

bool isSound(const Product& product, qint64 room) {
  const bool hasPixels = product.width > 0 && product.height > 0 && product.width <= limits::side &&
                         product.height <= limits::side;
  const qint64 pixelBytes = qint64(product.width) * product.height * 4;
  return product.bytes > 0 && product.bytes <= std::uint64_t(room) &&
         (product.width == 0 || (hasPixels && product.bytes == std::uint64_t(pixelBytes)));
}

}  // namespace

DecoderPool::DecoderPool(QString program) : program_(std::move(program)) {}

DecoderPool::~DecoderPool() = default;

// Some decoders want a picture's memory before they tell its size: what fails is tried once more
// with all that there may be.
std::unique_ptr<OpenedFile> DecoderPool::open(Role role, const posix::Descriptor& file,
                                              const Request& request, Patience patience) {
  auto opened = open(role, file, request, patience, limits::basicMemory);
  return opened ? std::move(opened) : open(role, file, request, patience, limits::mostMemory);
}

std::unique_ptr<OpenedFile> DecoderPool::open(Role role, const posix::Descriptor& file,
                                              const Request& request, Patience patience,
                                              std::uint64_t memory) {
  std::unique_ptr<OpenedFile> opened(new OpenedFile(*this, role, patience));
  opened->share_ = std::make_unique<MemoryBudget::Share>(memory_, memory);
  auto process = take(role);
  if (!process) return nullptr;
  process->begin(patience.time, patience.processorTime);
  if (!process->awaitReady()) return nullptr;
  if (memory > limits::basicMemory) process->grantMemory(memory);
  const auto reply = process->ask(request, file.number());
  if (!reply) return nullptr;  // and the process ends
  if (!reply->isSound) {
    process->grantMemory(limits::basicMemory);
    keep(role, std::move(process));
    return nullptr;
  }
  opened->facts_ = reply->facts;
  opened->process_ = std::move(process);
  opened->memory_ = memory;
  return opened;
}

std::unique_ptr<DecoderProcess> DecoderPool::take(Role role) {
  std::vector<std::unique_ptr<DecoderProcess>> ended;
  {
    const QMutexLocker lock(&mutex_);
    auto& idle = idle_.at(size_t(role));
    while (!idle.empty()) {
      auto process = std::move(idle.back());
      idle.pop_back();
      if (process->isAlive()) return process;
      ended.push_back(std::move(process));
    }
  }
  return DecoderProcess::start(program_, role);
}

void DecoderPool::keep(Role role, std::unique_ptr<DecoderProcess> process) {
  if (process->files() >= filesEach) return;
  const QMutexLocker lock(&mutex_);
  for (auto& each : idle_) {
    std::erase_if(each, [](const auto& other) { return !other->isAlive(); });
  }
  auto& idle = idle_.at(size_t(role));
  if (idle.size() < idleEach) idle.push_back(std::move(process));
}

OpenedFile::OpenedFile(DecoderPool& pool, Role role, DecoderPool::Patience patience)
    : pool_(pool), role_(role), patience_(patience) {}

OpenedFile::~OpenedFile() {
  if (process_ && process_->tell({.action = Action::close})) {
    process_->grantMemory(limits::basicMemory);
    pool_.keep(role_, std::move(process_));
  }
}

std::optional<Product> OpenedFile::make(const Request& request, const SharedMemory& target,
                                        std::uint64_t needs, std::uint64_t most) {
  if (!process_ || needs > most) return std::nullopt;
  if (needs > memory_) {
    share_ = nullptr;  // before waiting for more, as others may wait for that
    share_ = std::make_unique<MemoryBudget::Share>(pool_.memory_, needs);
    process_->grantMemory(needs);
    memory_ = needs;
  }
  process_->begin(patience_.time, patience_.processorTime);
  const auto reply = process_->ask(request, target.descriptor().number());
  if (!reply) process_ = nullptr;
  const bool isMade = reply && reply->isSound && isSound(reply->product, target.size());
  return isMade ? std::optional(reply->product) : std::nullopt;
}

}  // namespace tarnloft::decoding
