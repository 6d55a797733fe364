#pragma once

#include "platform/desktop/decoding/worker/FileDecoder.h"

#include <cstdlib>
#include <exception>
#include <sys/mman.h>
#include <unistd.h>

// The way of a foreign file through the decoder, without the cage.
namespace tarnloft::decoding {

class FuzzedFile {
 public:
  FuzzedFile(const uint8_t* data, size_t size, Request request = {})
      : number_(::memfd_create("input", MFD_CLOEXEC)) {
    static const bool prepared = (moduleDecoder().prepare(), true);
    if (!prepared || number_ < 0 || ::write(number_, data, size) != ssize_t(size)) std::abort();
    guarded([&] { file_ = moduleDecoder().open(request, number_); });
  }
  ~FuzzedFile() {
    file_ = nullptr;
    ::close(number_);
  }
  FuzzedFile(const FuzzedFile&) = delete;
  FuzzedFile& operator=(const FuzzedFile&) = delete;

  std::optional<Facts> facts() const {
    return file_ ? std::optional(file_->facts()) : std::nullopt;
  }

  // Whatever it is, it lies within the room that there is for it.
  std::optional<Product> make(const Request& request, size_t room) {
    std::vector<std::byte> target(room);
    std::optional<Product> product;
    guarded([&] { product = file_ ? file_->make(request, target) : std::nullopt; });
    if (product && product->bytes > room) std::abort();
    return product;
  }

 private:
  template <class Function>
  void guarded(Function&& function) {
    try {
      function();
    } catch (const std::exception&) {
    }
  }

  int number_;
  std::unique_ptr<ForeignFile> file_;
};

}  // namespace tarnloft::decoding
