#include "platform/desktop/decoding/SharedMemory.h"

#include <sys/mman.h>

namespace tarnloft::decoding {
namespace {

posix::Descriptor create(unsigned flags) {
  return posix::Descriptor(::memfd_create("tarnloft", MFD_CLOEXEC | flags));
}

}  // namespace

// Sealed, as a mapping of what has become smaller ends the program that looks at it.
std::optional<SharedMemory> SharedMemory::ofSize(qint64 bytes) {
  posix::Descriptor memory = create(MFD_ALLOW_SEALING);
  if (!memory.isOpen() || ::ftruncate(memory.number(), bytes) != 0 ||
      ::fcntl(memory.number(), F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL) != 0) {
    return std::nullopt;
  }
  return SharedMemory(std::move(memory));
}

std::optional<SharedMemory> SharedMemory::growing() {
  posix::Descriptor memory = create(0);
  return memory.isOpen() ? std::optional(SharedMemory(std::move(memory))) : std::nullopt;
}

std::optional<SharedMemory> SharedMemory::holding(const QByteArray& bytes) {
  auto memory = growing();
  return memory && posix::writeAll(memory->descriptor(), bytes) ? std::move(memory) : std::nullopt;
}

qint64 SharedMemory::size() const {
  struct stat info {};
  return ::fstat(descriptor_->number(), &info) == 0 ? info.st_size : 0;
}

std::shared_ptr<uchar> SharedMemory::map(qint64 bytes) const {
  void* const address =
      ::mmap(nullptr, size_t(bytes), PROT_READ, MAP_SHARED, descriptor_->number(), 0);
  if (address == MAP_FAILED) return nullptr;
  return {static_cast<uchar*>(address),
          [bytes](uchar* mapped) { ::munmap(mapped, size_t(bytes)); }};
}

std::optional<QByteArray> SharedMemory::read(qint64 bytes) const {
  QByteArray copy(bytes, Qt::Uninitialized);
  qint64 done = 0;
  while (done < bytes) {
    const ssize_t count =
        ::pread(descriptor_->number(), copy.data() + done, size_t(bytes - done), done);
    if (count <= 0) return std::nullopt;
    done += count;
  }
  return copy;
}

}  // namespace tarnloft::decoding
