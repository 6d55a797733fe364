#pragma once

#include "platform/desktop/files/PosixFiles.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace tarnloft::decoding {

// Memory for what a decoder makes, and for what is given to one that isn't a file. It takes only
// what is written to it.
class SharedMemory {
 public:
  // Of a size that stays; none if the system has no more.
  static std::optional<SharedMemory> ofSize(qint64 bytes);
  // With those bytes.
  static std::optional<SharedMemory> holding(const QByteArray& bytes);
  // That others may make larger or smaller; empty.
  static std::optional<SharedMemory> growing();

  const posix::Descriptor& descriptor() const { return *descriptor_; }
  qint64 size() const;  // now

  // Its first bytes; null if they can't be shown. Others may still write to them.
  std::shared_ptr<uchar> map(qint64 bytes) const;
  // A copy of its first bytes; none if it holds fewer.
  std::optional<QByteArray> read(qint64 bytes) const;

 private:
  explicit SharedMemory(posix::Descriptor descriptor)
      : descriptor_(std::make_shared<posix::Descriptor>(std::move(descriptor))) {}

  std::shared_ptr<posix::Descriptor> descriptor_;
};

}  // namespace tarnloft::decoding
