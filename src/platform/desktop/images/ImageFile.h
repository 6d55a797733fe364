#pragma once

#include "platform/desktop/images/ImageKind.h"

#include <QByteArray>

namespace tarnloft {

// An open picture file, which stays the caller's.
class ImageFile {
 public:
  ImageFile(ImageKind kind, int descriptor, qint64 size)
      : kind_(kind), descriptor_(descriptor), size_(size) {}

  ImageKind kind() const { return kind_; }
  int descriptor() const { return descriptor_; }
  qint64 size() const { return size_; }  // bytes, when it was opened
  // Up to `length` bytes from `offset` on; fewer at the end and on an error.
  QByteArray read(qint64 offset, qsizetype length) const;

 private:
  ImageKind kind_;
  int descriptor_;
  qint64 size_;
};

}  // namespace tarnloft
