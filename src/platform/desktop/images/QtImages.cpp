#include "platform/desktop/images/QtImages.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

namespace tarnloft::QtImages {
namespace {

// A reader over the file's bytes.
class Reader {
 public:
  Reader(const ImageFile& file, const QByteArray& bytes) {
    QImageReader::setAllocationLimit(0);  // the process has its own
    buffer_.setData(bytes);
    buffer_.open(QIODevice::ReadOnly);
    reader_.setDecideFormatFromContent(false);
    reader_.setFormat(file.kind() == ImageKind::ico ? "ico" : "bmp");
    reader_.setDevice(&buffer_);
  }
  Q_DISABLE_COPY_MOVE(Reader)

  QImageReader& reader() { return reader_; }

 private:
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

std::optional<ImageProperties> properties(const ImageFile& file, const QByteArray& bytes) {
  Reader source(file, bytes);
  const QSize size = source.reader().size();
  if (size.isEmpty()) return std::nullopt;
  const bool isIco = file.kind() == ImageKind::ico;
  const QImage::Format format = source.reader().imageFormat();
  return ImageProperties{
      size, isIco || QImage::toPixelFormat(format).alphaUsage() == QPixelFormat::UsesAlpha,
      isIco ? std::nullopt : dpiOfBmp(bytes)};
}

std::optional<QImage> read(const ImageFile& file, const QByteArray& bytes) {
  Reader source(file, bytes);
  const QImage image = source.reader().read();
  if (image.isNull()) return std::nullopt;
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_RGBA8888
                                                       : QImage::Format_RGBX8888);
}

}  // namespace tarnloft::QtImages
