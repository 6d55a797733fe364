#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarnloft {

// What a file holds, told by its content and never by its name.
enum class ImageKind { png, jpeg, gif, webp, tiff, heif, bmp, ico, svg, pdf };

// None for what no decoder here reads. `head` is the file's beginning, a thousand bytes or so.
std::optional<ImageKind> imageKindOf(QByteArrayView head);

// An open picture file. Closed on destruction.
class ImageFile {
 public:
  // A regular file of a known kind, links followed; never waits on a pipe or a device.
  static std::optional<ImageFile> open(const QString& path);
  ImageFile(ImageFile&& other) noexcept;
  ~ImageFile();
  Q_DISABLE_COPY(ImageFile)
  ImageFile& operator=(ImageFile&&) = delete;

  ImageKind kind() const { return kind_; }
  int descriptor() const { return descriptor_; }
  qint64 size() const { return size_; }  // bytes, when it was opened
  // Up to `length` bytes from `offset` on; fewer at the end and on an error.
  QByteArray read(qint64 offset, qsizetype length) const;
  // The whole content; none if there are more bytes than the limit, or on an error.
  std::optional<QByteArray> readAll(qint64 limit) const;

 private:
  explicit ImageFile(int descriptor) : descriptor_(descriptor) {}

  int descriptor_;
  qint64 size_ = 0;
  ImageKind kind_ = ImageKind::png;
};

}  // namespace tarnloft
