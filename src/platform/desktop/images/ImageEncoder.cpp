#include "platform/desktop/images/ImageEncoder.h"

#include <QColorSpace>

#include <cmath>
#include <thread>

namespace tarnloft {
namespace {

using vips::VImage;
using vips::VOption;

constexpr double pixelsPerMillimetre = 72 / 25.4;  // the resolution that says nothing

// Only the pixels and what any picture has.
VImage withoutMetadata(const VImage& image) {
  VImage bare = image.copy(
      VImage::option()->set("xres", pixelsPerMillimetre)->set("yres", pixelsPerMillimetre));
  gchar** fields = vips_image_get_fields(bare.get_image());
  for (gchar** field = fields; *field; ++field) vips_image_remove(bare.get_image(), *field);
  g_strfreev(fields);
  return bare;
}

void tagAsSrgb(VImage& image) {
  static const QByteArray profile = QColorSpace(QColorSpace::SRgb).iccProfile();
  vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, profile.constData(),
                           size_t(profile.size()));
}

// A PNG says it in one small chunk, right behind its header.
QByteArray pngTaggedAsSrgb(QByteArray png) {
  constexpr qsizetype behindHeader = 8 + 25;
  const char chunk[] = "\0\0\0\x01sRGB\0\xAE\xCE\x1C\xE9";
  return png.insert(behindHeader, chunk, sizeof chunk - 1);
}

int percent(double quality) { return int(std::lround(std::clamp(quality, 0.01, 1.0) * 100)); }

QByteArray save(const VImage& image, const char* saver, VOption* options) {
  VipsBlob* blob = nullptr;
  options->set("in", image)->set("buffer", &blob);
  VImage::call(saver, options);
  size_t size = 0;
  const void* bytes = vips_blob_get(blob, &size);
  QByteArray copy(static_cast<const char*>(bytes), qsizetype(size));
  vips_area_unref(VIPS_AREA(blob));
  return copy;
}

VImage onWhite(const VImage& image) {
  if (!image.has_alpha()) return image;
  return image.flatten(VImage::option()->set("background", std::vector<double>{255, 255, 255}));
}

}  // namespace

QByteArray encodeImage(const VImage& image, ExportFormat format, double quality) {
  VImage bare = withoutMetadata(format == ExportFormat::jpeg ? onWhite(image) : image);
  bare.set(VIPS_META_CONCURRENCY, int(std::thread::hardware_concurrency()));
  if (format != ExportFormat::png) tagAsSrgb(bare);
  VOption* options = VImage::option();
  switch (format) {
    case ExportFormat::png:
      options->set("filter", VIPS_FOREIGN_PNG_FILTER_ALL);  // halves the size of photographs
      return pngTaggedAsSrgb(save(bare, "pngsave_buffer", options));
    case ExportFormat::jpeg:
      return save(bare, "jpegsave_buffer", options->set("Q", percent(quality)));
    case ExportFormat::heic:
      options->set("Q", percent(quality))->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_HEVC);
      return save(bare, "heifsave_buffer", options);
    case ExportFormat::tiff:
      options->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_LZW)
          ->set("predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL);
      return save(bare, "tiffsave_buffer", options);
  }
  Q_UNREACHABLE();
}

}  // namespace tarnloft
