#pragma once

#include "platform/FileStore.h"

#include <memory>
#include <optional>
#include <sys/stat.h>

namespace tarnloft::zip {

enum class Method { store, deflate };

// A zip archive that is being written: entries one after the other, whose bytes are as their method
// makes them. The target outlives it.
class ZipFile {
 public:
  explicit ZipFile(FileWriter& target);
  ~ZipFile();
  Q_DISABLE_COPY_MOVE(ZipFile)

  // With the rights, times and kind that `info` tells; a folder's name ends with a slash.
  Result<void> begin(const QByteArray& name, const struct stat& info, Method method);
  Result<void> write(const QByteArray& bytes);
  // `size` and `checksum` (CRC-32) are those of what its bytes were made from.
  Result<void> end(qint64 size, unsigned long checksum);
  // Behind the last entry, without which it is none.
  Result<void> finish();

 private:
  struct Output;

  Result<void> resultOf(int status) const;

  std::unique_ptr<Output> output_;
  void* handle_;
};

}  // namespace tarnloft::zip
