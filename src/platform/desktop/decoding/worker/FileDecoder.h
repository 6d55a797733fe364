#pragma once

#include "platform/desktop/decoding/Protocol.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarnloft::decoding {

// A foreign file that is open in a decoder. What throws counts as unreadable.
class ForeignFile {
 public:
  virtual ~ForeignFile() = default;

  virtual Facts facts() = 0;
  // What a request other than `open` asks for, in `target`; none if it can't be made or has no
  // room.
  virtual std::optional<Product> make(const Request& request, std::span<std::byte> target) = 0;
};

// What reads foreign files in one role, in a process that is shut in.
class FileDecoder {
 public:
  virtual ~FileDecoder() = default;

  // Loads all that decoding will want from the disk, which is out of reach afterwards.
  virtual void prepare() = 0;
  // The folders that stay within reach, for reading: those of the desktop's fonts.
  virtual std::vector<std::string> folders() const { return {}; }
  // Null if the file can't be read. The descriptor outlives the file and stays the caller's.
  virtual std::unique_ptr<ForeignFile> open(const Request& request, int descriptor) = 0;
};

// That of the libraries that are linked; each role has its own.
FileDecoder& moduleDecoder();

}  // namespace tarnloft::decoding

// Each role stands in a module of its own with this entry; what it gives lives as long as the
// process.
#define TARNLOFT_DECODER_ENTRY extern "C" __attribute__((visibility("default")))

TARNLOFT_DECODER_ENTRY tarnloft::decoding::FileDecoder* tarnloftDecoder();
