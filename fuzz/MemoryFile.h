#pragma once

#include <QString>

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace tarnloft {

// A file of those bytes on no disk, for what reads files by their path.
class MemoryFile {
 public:
  MemoryFile(const uint8_t* data, size_t size) : number_(::memfd_create("input", MFD_CLOEXEC)) {
    if (number_ < 0 || ::write(number_, data, size) != ssize_t(size)) std::abort();
  }
  ~MemoryFile() { ::close(number_); }
  Q_DISABLE_COPY_MOVE(MemoryFile)

  QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(number_); }

 private:
  int number_;
};

}  // namespace tarnloft
