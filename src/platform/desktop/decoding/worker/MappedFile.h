#pragma once

#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>

namespace tarnloft::decoding {

// A file's bytes where they are. One that becomes shorter meanwhile ends the process.
class MappedFile {
 public:
  explicit MappedFile(int descriptor) {
    struct stat info {};
    if (::fstat(descriptor, &info) != 0 || info.st_size <= 0) return;
    size_ = size_t(info.st_size);
    address_ = ::mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, descriptor, 0);
  }
  ~MappedFile() {
    if (address_ != MAP_FAILED) ::munmap(address_, size_);
  }
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  // Empty if the file is, or can't be mapped.
  std::string_view bytes() const {
    if (address_ == MAP_FAILED) return {};
    return {static_cast<const char*>(address_), size_};
  }

 private:
  void* address_ = MAP_FAILED;
  size_t size_ = 0;
};

}  // namespace tarnloft::decoding
