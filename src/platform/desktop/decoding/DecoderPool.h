#pragma once

#include "platform/desktop/decoding/MemoryBudget.h"
#include "platform/desktop/decoding/Protocol.h"
#include "platform/desktop/decoding/SharedMemory.h"

#include <QMutex>
#include <QString>

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace tarnloft::decoding {

class DecoderProcess;
class OpenedFile;

// Has foreign files read by decoders: processes that are shut in, started when needed and kept for
// the next file. One that dies of a file or overstays is ended, and the file counts as unreadable.
// Together they take no more memory than is allowed: files wait for each other. Any thread.
class DecoderPool {
 public:
  // `program` is the path of the decoder.
  explicit DecoderPool(QString program);
  ~DecoderPool();  // when nothing is open any more
  Q_DISABLE_COPY_MOVE(DecoderPool)

  const QString& program() const { return program_; }
  MemoryBudget& memory() { return memory_; }

  struct Patience {
    std::chrono::seconds time;           // for each thing that is asked of the file
    std::chrono::seconds processorTime;  // of that
  };

  // Null if the file can't be read. It may be closed when this returns.
  std::unique_ptr<OpenedFile> open(Role role, const posix::Descriptor& file, const Request& request,
                                   Patience patience);

 private:
  friend class OpenedFile;

  std::unique_ptr<OpenedFile> open(Role role, const posix::Descriptor& file, const Request& request,
                                   Patience patience, std::uint64_t memory);
  std::unique_ptr<DecoderProcess> take(Role role);
  void keep(Role role, std::unique_ptr<DecoderProcess> process);

  const QString program_;
  MemoryBudget memory_{limits::allMemory};
  QMutex mutex_;
  std::array<std::vector<std::unique_ptr<DecoderProcess>>, std::size(roleNames)> idle_;
};

// A file that a decoder has open. One thread at a time.
class OpenedFile {
 public:
  ~OpenedFile();
  Q_DISABLE_COPY_MOVE(OpenedFile)

  const Facts& facts() const { return facts_; }
  // None if it can't be made, or needs more memory than `most`. What is told lies within `target`.
  std::optional<Product> make(const Request& request, const SharedMemory& target,
                              std::uint64_t needs, std::uint64_t most = limits::mostMemory);

 private:
  friend class DecoderPool;
  OpenedFile(DecoderPool& pool, Role role, DecoderPool::Patience patience);

  DecoderPool& pool_;
  const Role role_;
  const DecoderPool::Patience patience_;
  std::unique_ptr<MemoryBudget::Share> share_;  // given back behind the process
  std::unique_ptr<DecoderProcess> process_;     // null once it is of no use
  std::uint64_t memory_ = 0;                    // that it has been granted
  Facts facts_;
};

}  // namespace tarnloft::decoding
