#include "platform/desktop/images/QtView.h"

namespace tarnloft::QtView {

using vips::VImage;

QImage toQImage(const VImage& image) {
  VImage upright = image.copy_memory();
  if (vips_image_get_orientation(upright.get_image()) != 1) {
    upright = upright.autorot().copy_memory();
  }
  const bool hasAlpha = upright.bands() == 4;
  const QImage view(static_cast<const uchar*>(upright.data()), upright.width(), upright.height(),
                    qsizetype(upright.width()) * upright.bands(),
                    hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
  return view.convertToFormat(hasAlpha ? QImage::Format_ARGB32_Premultiplied
                                       : QImage::Format_RGB32);
}

VImage of(const QImage& image) {
  const VImage all =
      VImage::new_from_memory(const_cast<uchar*>(image.constBits()), size_t(image.sizeInBytes()),
                              image.width(), image.height(), 4, VIPS_FORMAT_UCHAR)
          .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
  return image.hasAlphaChannel() ? all : all.extract_band(0, VImage::option()->set("n", 3));
}

}  // namespace tarnloft::QtView
