#include "platform/desktop/images/QtImages.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

namespace tarnloft::QtImages {
namespace {

constexpr qint64 fileLimit = qint64(1) << 30;
constexpr int decodedLimit = 512;  // megabytes

// A reader over the file's bytes.
class Reader {
 public:
  explicit Reader(const ImageFile& file)
      : bytes_(file.readAll(fileLimit).value_or(QByteArray())), buffer_(&bytes_) {
    if (QImageReader::allocationLimit() < decodedLimit) {
      QImageReader::setAllocationLimit(decodedLimit);
    }
    buffer_.open(QIODevice::ReadOnly);
    reader_.setDecideFormatFromContent(false);
    reader_.setFormat(file.kind() == ImageKind::ico ? "ico" : "bmp");
    reader_.setDevice(&buffer_);
  }
  Q_DISABLE_COPY_MOVE(Reader)

  const QByteArray& bytes() const { return bytes_; }
  QImageReader& reader() { return reader_; }

 private:
  QByteArray bytes_;
  QBuffer buffer_;
  QImageReader reader_;
};

// The reader tells a bitmap's resolution only with its pixels; it stands in the header, in pixels
// per metre.
std::optional<double> dpiOfBmp(const QByteArray& bytes) {
  constexpr qsizetype place = 38, oldHeader = 12, headerSizeAt = 14;
  if (bytes.size() < place + 4) return std::nullopt;
  if (qFromLittleEndian<quint32>(bytes.constData() + headerSizeAt) <= oldHeader)
    return std::nullopt;
  const auto perMetre = qFromLittleEndian<qint32>(bytes.constData() + place);
  return perMetre > 0 ? std::optional(perMetre * 0.0254) : std::nullopt;
}

}  // namespace

std::optional<ImageProperties> properties(const ImageFile& file) {
  Reader source(file);
  const QSize size = source.reader().size();
  if (size.isEmpty()) return std::nullopt;
  const bool isIco = file.kind() == ImageKind::ico;
  const QImage::Format format = source.reader().imageFormat();
  return ImageProperties{
      size, isIco || QImage::toPixelFormat(format).alphaUsage() == QPixelFormat::UsesAlpha,
      isIco ? std::nullopt : dpiOfBmp(source.bytes())};
}

std::optional<QImage> read(const ImageFile& file) {
  Reader source(file);
  const QImage image = source.reader().read();
  if (image.isNull()) return std::nullopt;
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_RGBA8888
                                                       : QImage::Format_RGBX8888);
}

}  // namespace tarnloft::QtImages
