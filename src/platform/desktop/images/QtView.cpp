#include "platform/desktop/images/QtView.h"

#include <cstring>

namespace tarnloft::QtView {

using vips::VImage;

std::optional<decoding::Product> write(const VImage& image, std::span<std::byte> target) {
  VImage upright = image.copy_memory();
  if (vips_image_get_orientation(upright.get_image()) != 1) {
    upright = upright.autorot().copy_memory();
  }
  const QSize size(upright.width(), upright.height());
  const auto bytes = std::uint64_t(size.width()) * std::uint64_t(size.height()) * 4;
  if (bytes > target.size()) return std::nullopt;
  const bool hasAlpha = upright.bands() == 4;
  const size_t rowBytes = size_t(size.width()) * size_t(upright.bands());
  const auto from = hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
  const auto to = hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
  const auto* source = static_cast<const uchar*>(upright.data());
  std::byte* place = target.data();
  for (int y = 0; y < size.height(); ++y) {
    const QImage row =
        QImage(source, size.width(), 1, qsizetype(rowBytes), from).convertToFormat(to);
    std::memcpy(place, row.constBits(), size_t(size.width()) * 4);
    source += rowBytes;
    place += size_t(size.width()) * 4;
  }
  return decoding::Product{size.width(), size.height(), hasAlpha, bytes};
}

VImage of(const QImage& image) {
  const VImage all =
      VImage::new_from_memory(const_cast<uchar*>(image.constBits()), size_t(image.sizeInBytes()),
                              image.width(), image.height(), 4, VIPS_FORMAT_UCHAR)
          .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
  return image.hasAlphaChannel() ? all : all.extract_band(0, VImage::option()->set("n", 3));
}

}  // namespace tarnloft::QtView
