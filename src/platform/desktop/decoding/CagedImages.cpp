#include "platform/desktop/decoding/CagedImages.h"

#include "platform/desktop/decoding/DecodedPicture.h"

#include <array>
#include <cmath>

namespace tarnloft {

using namespace decoding;

namespace {

constexpr DecoderPool::Patience forDrawings{std::chrono::seconds(20), std::chrono::seconds(5)};
constexpr DecoderPool::Patience forPictures{std::chrono::seconds(30), std::chrono::seconds(30)};
constexpr DecoderPool::Patience forExports{std::chrono::seconds(300), std::chrono::seconds(600)};
constexpr qint64 mostTargetPixels = 1 << 28;
constexpr qint64 mostPixels = 1'000'000'000;  // a file of a few megabytes can claim as much

// A picture file and the decoder that has it open.
struct Opened {
  ImageKind kind;
  std::unique_ptr<OpenedFile> file;

  bool isVector() const { return kind == ImageKind::svg || kind == ImageKind::pdf; }
};

std::optional<ImageKind> kindOf(const posix::OpenFile& file) {
  std::array<char, imageHeadBytes> head;
  const ssize_t count = ::pread(file.file.number(), head.data(), head.size(), 0);
  return count > 0 ? imageKindOf({head.data(), size_t(count)}) : std::nullopt;
}

std::optional<Opened> openPicture(DecoderPool& decoders, const QString& path,
                                  DecoderPool::Patience patience) {
  const auto file = posix::openRegularFile(path);
  const auto kind = file ? kindOf(*file) : std::nullopt;
  if (!kind) return std::nullopt;
  Opened opened{*kind, nullptr};
  const Role role = opened.isVector() ? Role::vectors : Role::bitmaps;
  opened.file = decoders.open(role, file->file, {.kind = std::int32_t(*kind)},
                              opened.isVector() ? forDrawings : patience);
  return opened.file ? std::optional(std::move(opened)) : std::nullopt;
}

QSizeF pointsOf(const Facts& facts) { return {facts.pointsWidth, facts.pointsHeight}; }

bool isDrawable(const Opened& opened) {
  const Facts& facts = opened.file->facts();
  if (!opened.isVector()) {
    return facts.width > 0 && facts.height > 0 && qint64(facts.width) * facts.height <= mostPixels;
  }
  return std::isfinite(facts.pointsWidth) && std::isfinite(facts.pointsHeight) &&
         facts.pointsWidth > 0 && facts.pointsHeight > 0;
}

// Of that shape, the longer side as told.
QSize fitted(QSizeF size, double longerSide) {
  const double scale = longerSide / std::max(size.width(), size.height());
  const auto side = [&](double native) {
    return int(std::clamp(std::round(native * scale), 1.0, double(limits::side)));
  };
  return {side(size.width()), side(size.height())};
}

QSize thumbnailSize(const Opened& opened, int maxPixel) {
  const Facts& facts = opened.file->facts();
  if (opened.isVector()) return fitted(pointsOf(facts), maxPixel);
  return fitted(QSizeF(facts.width, facts.height),
                std::min(maxPixel, std::max(facts.width, facts.height)));
}

std::uint64_t bytesOf(QSize size) {
  return std::uint64_t(size.width()) * std::uint64_t(size.height()) * 4;
}

// What making a bitmap smaller takes, measured: so many rows for each that is left.
std::uint64_t shrinkingNeeds(const Facts& facts, QSize size) {
  constexpr std::uint64_t rows = 64;
  const int shrink = std::max(1, facts.width / size.width());
  return std::min(facts.rowBytes, limits::mostMemory) * std::uint64_t(shrink) * rows;
}

// What decoding a picture takes, and making one of that size of it. Shrinking may do with less.
std::uint64_t needsOf(const Opened& opened, QSize size) {
  constexpr std::uint64_t layers = 4;  // of a drawing; a bitmap is turned and converted
  const Facts& facts = opened.file->facts();
  const std::uint64_t all = facts.needs + layers * bytesOf(size) + limits::basicMemory / 2;
  return std::max(all, std::min(all + shrinkingNeeds(facts, size), limits::mostMemory));
}

// What a writer keeps of each pixel, at most.
std::uint64_t encodingNeeds(ExportFormat format, QSize size) {
  return bytesOf(size) * (format == ExportFormat::heic ? 12 : 3);
}

std::optional<QByteArray> encode(OpenedFile& file, ExportFormat format, QSize size, double quality,
                                 std::uint64_t needs) {
  constexpr qint64 others = 1 << 20;  // tables and profiles
  if (file.facts().needs > limits::mostMemory) return std::nullopt;
  const auto target = SharedMemory::ofSize(qint64(bytesOf(size)) * 2 + others);
  if (!target) return std::nullopt;
  const Request request{.action = Action::encode,
                        .width = size.width(),
                        .height = size.height(),
                        .format = std::int32_t(format),
                        .quality = quality};
  const std::uint64_t all = std::min(needs + encodingNeeds(format, size), limits::exportMemory);
  const auto product = file.make(request, *target, all, limits::exportMemory);
  return product ? target->read(qint64(product->bytes)) : std::nullopt;
}

}  // namespace

std::optional<ImageProperties> CagedImages::properties(const QString& path) {
  const auto opened = openPicture(*decoders_, path, forPictures);
  if (!opened || opened->kind == ImageKind::svg || !isDrawable(*opened)) return std::nullopt;
  const Facts& facts = opened->file->facts();
  if (opened->isVector()) return ImageProperties{pointsOf(facts).toSize(), false, {}};
  return ImageProperties{{facts.width, facts.height},
                         facts.hasAlpha != 0,
                         facts.dpi > 0 ? std::optional(facts.dpi) : std::nullopt};
}

std::optional<QSizeF> CagedImages::vectorSize(const QString& path) {
  const auto opened = openPicture(*decoders_, path, forPictures);
  const bool isVector = opened && opened->isVector() && isDrawable(*opened);
  return isVector ? std::optional(pointsOf(opened->file->facts())) : std::nullopt;
}

std::optional<QImage> CagedImages::thumbnail(const QString& path, int maxPixel) {
  const auto opened = openPicture(*decoders_, path, forPictures);
  if (!opened || maxPixel < 1 || !isDrawable(*opened)) return std::nullopt;
  const QSize size = thumbnailSize(*opened, maxPixel);
  return drawn(*opened->file,
               {.action = Action::draw, .width = size.width(), .height = size.height()},
               bytesOf(size), needsOf(*opened, size));
}

std::optional<QByteArray> CagedImages::convert(const QString& path, ExportFormat format, QSize size,
                                               double quality) {
  if (size.isEmpty() || qint64(size.width()) * size.height() > mostTargetPixels) {
    return std::nullopt;
  }
  auto opened = openPicture(*decoders_, path, forExports);
  if (!opened || !isDrawable(*opened)) return std::nullopt;
  const std::uint64_t needs = needsOf(*opened, size);
  if (!opened->isVector()) return encode(*opened->file, format, size, quality, needs);
  const auto pixels = SharedMemory::ofSize(qint64(bytesOf(size)));
  const Request draw{.action = Action::draw, .width = size.width(), .height = size.height()};
  if (!pixels || !opened->file->make(draw, *pixels, needs)) return std::nullopt;
  opened->file = nullptr;  // as it holds memory that the other one may wait for
  const auto drawing = decoders_->open(
      Role::bitmaps, pixels->descriptor(),
      {.kind = std::int32_t(ImageKind::pixels), .width = size.width(), .height = size.height()},
      forExports);
  return drawing ? encode(*drawing, format, size, quality, needs) : std::nullopt;
}

}  // namespace tarnloft
