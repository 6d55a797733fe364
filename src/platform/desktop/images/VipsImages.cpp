#include "platform/desktop/images/VipsImages.h"

#include "platform/desktop/images/BitmapDecoder.h"
#include "platform/desktop/images/CutFiles.h"
#include "platform/desktop/images/ImageEncoder.h"
#include "platform/desktop/images/Pipeline.h"
#include "platform/desktop/images/QtImages.h"
#include "platform/desktop/images/QtView.h"
#include "platform/desktop/images/VipsLibrary.h"

#include <cmath>

namespace tarnloft {
namespace {

using vips::VImage;

constexpr int memoryMegabytes = 1536;
constexpr std::chrono::seconds thumbnailTime{30}, conversionTime{300};
constexpr qint64 targetLimit = 1 << 28;  // pixels of a converted picture

std::optional<VectorKind> vectorKind(const ImageFile& file) {
  if (file.kind() == ImageKind::svg) return VectorKind::svg;
  if (file.kind() == ImageKind::pdf) return VectorKind::pdf;
  return std::nullopt;
}

bool isForToolkit(const ImageFile& file) {
  return file.kind() == ImageKind::bmp || file.kind() == ImageKind::ico;
}

QByteArray vectorBytes(const ImageFile& file) {
  return file.readAll(vectorLimits::fileBytes).value_or(QByteArray());
}

// Takes part of the memory that all decoders share, once there is so much of it.
class MemoryShare {
 public:
  MemoryShare(QSemaphore& all, qint64 bytes)
      : all_(all), megabytes_(int(std::min<qint64>(bytes >> 20, memoryMegabytes))) {
    all_.acquire(megabytes_);
  }
  ~MemoryShare() { all_.release(megabytes_); }
  Q_DISABLE_COPY_MOVE(MemoryShare)

 private:
  QSemaphore& all_;
  const int megabytes_;
};

// The result of a function that gives an optional; none where libvips fails in it.
template <class Function>
auto orNone(Function&& function) -> decltype(function()) {
  try {
    useVips();
    return function();
  } catch (const vips::VError&) {
    vips_error_clear();
    return std::nullopt;
  }
}

ImageProperties propertiesOf(const VImage& header) {
  ImageProperties properties{{header.width(), header.height()}, header.has_alpha(), {}};
  const bool toldNothing = header.xres() == 1;  // the library's default, in pixels per millimetre
  if (!toldNothing) properties.dpi = header.xres() * 25.4;
  return properties;
}

QSize fitted(QSize size, int maxPixel) {
  const double scale = std::min(1.0, double(maxPixel) / std::max(size.width(), size.height()));
  const auto side = [&](int native) { return std::max(1, int(std::lround(native * scale))); };
  return {side(size.width()), side(size.height())};
}

bool isTarget(QSize size) {
  return !size.isEmpty() && qint64(size.width()) * size.height() <= targetLimit;
}

// What `use` makes of the picture in sRGB at the size that `sizeFor` finds for its own. None if it
// can't be read, is larger than is good, or takes longer than the limit.
template <class SizeFor, class Use>
auto withBitmap(const ImageFile& file, QSemaphore& memory, std::chrono::seconds limit,
                SizeFor&& sizeFor, Use&& use) {
  const auto finish = [&](const VImage& image, QSize size) {
    VImage result = Pipeline::render(image, size);
    Pipeline::limitTime(result, limit);
    return use(result);
  };
  return orNone([&]() -> std::optional<decltype(use(VImage()))> {
    if (isCut(file)) return std::nullopt;
    if (isForToolkit(file)) {
      const auto pixels = QtImages::read(file);
      if (!pixels) return std::nullopt;
      return finish(QtView::of(*pixels), sizeFor(pixels->size()));
    }
    const VImage header = BitmapDecoder::header(file);
    const auto bytes = BitmapDecoder::footprint(file.kind(), header);
    if (!bytes) return std::nullopt;
    const MemoryShare share(memory, *bytes);
    const QSize size = sizeFor(QSize(header.width(), header.height()));
    return finish(BitmapDecoder::load(file, header, size), size);
  });
}

}  // namespace

VipsImages::VipsImages(QString vectorProgram)
    : vectors_(std::move(vectorProgram)), memory_(memoryMegabytes) {}

std::optional<ImageProperties> VipsImages::properties(const QString& path) {
  const auto file = ImageFile::open(path);
  if (!file || file->kind() == ImageKind::svg) return std::nullopt;
  if (isForToolkit(*file)) return QtImages::properties(*file);
  if (file->kind() == ImageKind::pdf) {
    const auto points = vectors_.measure(VectorKind::pdf, vectorBytes(*file));
    return points ? std::optional(ImageProperties{points->toSize(), false, {}}) : std::nullopt;
  }
  return orNone([&] { return std::optional(propertiesOf(BitmapDecoder::header(*file))); });
}

std::optional<QSizeF> VipsImages::vectorSize(const QString& path) {
  const auto file = ImageFile::open(path);
  const auto kind = file ? vectorKind(*file) : std::nullopt;
  return kind ? vectors_.measure(*kind, vectorBytes(*file)) : std::nullopt;
}

std::optional<QImage> VipsImages::thumbnail(const QString& path, int maxPixel) {
  const auto file = ImageFile::open(path);
  if (!file || maxPixel < 1) return std::nullopt;
  if (const auto kind = vectorKind(*file)) {
    return vectors_.fit(*kind, vectorBytes(*file), maxPixel);
  }
  const auto sizeFor = [&](QSize size) { return fitted(size, maxPixel); };
  return withBitmap(*file, memory_, thumbnailTime, sizeFor, QtView::toQImage);
}

std::optional<QByteArray> VipsImages::convert(const QString& path, ExportFormat format, QSize size,
                                              double quality) {
  const auto file = ImageFile::open(path);
  if (!file || !isTarget(size)) return std::nullopt;
  const auto encode = [&](const VImage& image) { return encodeImage(image, format, quality); };
  const auto kind = vectorKind(*file);
  const auto sizeFor = [&](QSize) { return size; };
  if (!kind) return withBitmap(*file, memory_, conversionTime, sizeFor, encode);
  const auto drawn = vectors_.stretch(*kind, vectorBytes(*file), size);
  if (!drawn) return std::nullopt;
  const QImage pixels = drawn->convertToFormat(QImage::Format_RGBA8888);
  return orNone([&] { return std::optional(encode(QtView::of(pixels))); });
}

}  // namespace tarnloft
