#include "platform/desktop/decoding/DecodedPicture.h"

namespace tarnloft::decoding {
namespace {

// Small ones are many, and a mapping takes whole pages and one of the system's entries.
constexpr qint64 copiedBytes = 1 << 20;

void release(void* mapped) { delete static_cast<std::shared_ptr<uchar>*>(mapped); }

}  // namespace

std::optional<QImage> drawn(OpenedFile& file, const Request& request, std::uint64_t bytes,
                            std::uint64_t needs) {
  if (bytes > std::uint64_t(limits::pixels) * 4) return std::nullopt;
  const auto target = SharedMemory::ofSize(qint64(bytes));
  const auto product = target ? file.make(request, *target, needs) : std::nullopt;
  if (!product || product->width < 1) return std::nullopt;
  const auto format =
      product->hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
  const auto size = qint64(product->bytes);
  auto pixels = target->map(size);
  if (!pixels) return std::nullopt;
  const uchar* const first = pixels.get();
  const auto view = [&](auto&&... owner) {
    return QImage(first, product->width, product->height, qsizetype(product->width) * 4, format,
                  owner...);
  };
  if (size <= copiedBytes) return view().copy();
  return view(release, new std::shared_ptr<uchar>(std::move(pixels)));
}

}  // namespace tarnloft::decoding
