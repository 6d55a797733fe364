#include "assets/ImageExporter.h"
#include "assets/ThumbnailLoader.h"
#include "entry/selftest/Checks.h"

#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QImageReader>

namespace tarnloft::SelfTest {
namespace {

// A picture drawn into a file of the temporary directory, gone at the group's end.
class ScratchPicture {
 public:
  ScratchPicture(const QString& name, QSize size, Qt::GlobalColor color)
      : path_(QDir::tempPath() + QLatin1Char('/') + name) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    isWritten_ = image.save(path_, "png");
  }
  ~ScratchPicture() { QFile::remove(path_); }
  Q_DISABLE_COPY_MOVE(ScratchPicture)

  const QString& path() const { return path_; }
  bool isWritten() const { return isWritten_; }

 private:
  QString path_;
  bool isWritten_ = false;
};

std::optional<QImage> awaitThumbnail(Images& images, const QString& path, int maxPixel) {
  BackgroundWork work;
  ThumbnailLoader loader(images, work);
  QEventLoop loop;
  std::optional<QImage> result;
  const auto request = loader.thumbnail(path, maxPixel, [&](const std::optional<QImage>& image) {
    result = image;
    loop.quit();
  });
  loop.exec();
  return result;
}

// An exported picture as another reader sees it.
struct Decoded {
  QByteArray type;
  QImage image;
};

Decoded decoded(QByteArray bytes) {
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  const QByteArray type = reader.format();
  return {type, reader.read()};
}

}  // namespace

void checkThumbnail(Report& report, Images& images) {
  const QString name = QStringLiteral("tarnloft-thumb-") +
                       QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() +
                       QStringLiteral(".png");
  const ScratchPicture picture(name, {2000, 2000}, Qt::blue);
  if (!picture.isWritten()) return report.check(QStringLiteral("thumbnail test image"), false);
  const auto thumbnail = awaitThumbnail(images, picture.path(), 128);
  if (!thumbnail) return report.check(QStringLiteral("thumbnail produced an image"), false);
  report.check(QStringLiteral("2000px image downsamples to ≤128px"),
               qMax(thumbnail->width(), thumbnail->height()) <= 128);
}

void checkImageExport(Report& report, Images& images) {
  const ScratchPicture picture(QStringLiteral("tarnloft-selftest-src.png"), {100, 80}, Qt::red);
  report.check(QStringLiteral("native size read"),
               ImageExporter::nativeSize(images, picture.path()) == QSizeF(100, 80));
  const auto exported = [&](ExportFormat format, QSizeF size, double quality) {
    const auto bytes = ImageExporter::exportImage(images, picture.path(), format, size, quality);
    return decoded(bytes.value_or(QByteArray()));
  };

  const Decoded jpeg = exported(ExportFormat::jpeg, {50, 40}, 0.8);
  if (jpeg.image.isNull()) {
    report.check(QStringLiteral("JPEG export produced a decodable image"), false);
  } else {
    report.check(QStringLiteral("JPEG export resized to 50×40"),
                 jpeg.image.size() == QSize(50, 40));
    report.check(QStringLiteral("JPEG export has JPEG type"), jpeg.type == "jpeg");
  }
  const Decoded png = exported(ExportFormat::png, {100, 80}, 1);
  if (png.image.isNull()) {
    return report.check(QStringLiteral("PNG export produced a decodable image"), false);
  }
  report.check(QStringLiteral("PNG export keeps 100×80"), png.image.size() == QSize(100, 80));
}

}  // namespace tarnloft::SelfTest
