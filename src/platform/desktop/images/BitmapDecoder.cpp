#include "platform/desktop/images/BitmapDecoder.h"

#include <cmath>

namespace tarnloft::BitmapDecoder {
namespace {

using vips::VImage;

const char* loaderOf(ImageKind kind) {
  switch (kind) {
    case ImageKind::png: return "pngload_source";
    case ImageKind::jpeg: return "jpegload_source";
    case ImageKind::gif: return "gifload_source";
    case ImageKind::webp: return "webpload_source";
    case ImageKind::tiff: return "tiffload_source";
    case ImageKind::heif: return "heifload_source";
    case ImageKind::bmp:
    case ImageKind::ico:
    case ImageKind::svg:
    case ImageKind::pdf:
    case ImageKind::pixels: break;
  }
  throw vips::VError("not a kind that libvips reads here");
}

VImage open(const ImageFile& file, vips::VOption* options = VImage::option()) {
  VImage image;
  options->set("out", &image)
      ->set("source", vips::VSource::new_from_descriptor(file.descriptor()))
      ->set("access", VIPS_ACCESS_SEQUENTIAL)
      ->set("fail_on", VIPS_FAIL_ON_TRUNCATED);
  VImage::call(loaderOf(file.kind()), options);
  return image;
}

bool isSet(const VImage& image, const char* field) {
  return image.get_typeof(field) != 0 && image.get_int(field) != 0;
}

bool streams(ImageKind kind, const VImage& header) {
  switch (kind) {
    case ImageKind::png: return !isSet(header, "interlaced");
    case ImageKind::jpeg: return !isSet(header, "jpeg-multiscan");
    case ImageKind::tiff: return true;
    default: return false;
  }
}

// By how much the picture is larger than its target, in the direction where that is less.
double surplus(const VImage& image, QSize target) {
  return std::min(double(image.width()) / target.width(), double(image.height()) / target.height());
}

// The decoder's own scaling is coarse: it leaves at least a factor of two to the careful one.
int jpegShrink(double surplus) {
  for (const int shrink : {8, 4, 2}) {
    if (surplus >= shrink * 2) return shrink;
  }
  return 1;
}

// The small picture that a camera puts into the file, if it is large enough and shows the same.
std::optional<VImage> embeddedThumbnail(const ImageFile& file, const VImage& header, QSize target) {
  VImage small = open(file, VImage::option()->set("thumbnail", true));
  const double factor = double(header.width()) / small.width();
  const bool sameShape = std::abs(small.height() * factor - header.height()) <= 2 * factor;
  const bool same = sameShape && small.has_alpha() == header.has_alpha();
  return same && small.width() < header.width() && surplus(small, target) > 1 ? std::optional(small)
                                                                              : std::nullopt;
}

}  // namespace

VImage header(const ImageFile& file) { return open(file); }

std::uint64_t footprint(ImageKind kind, const VImage& header) {
  if (streams(kind, header)) return 0;
  const auto pixels = std::uint64_t(header.width()) * std::uint64_t(header.height());
  const auto bytesEach = std::max<std::uint64_t>(4, VIPS_IMAGE_SIZEOF_PEL(header.get_image()));
  return pixels * bytesEach;
}

int copiesOf(ImageKind kind) { return kind == ImageKind::heif ? 3 : 2; }

VImage load(const ImageFile& file, const VImage& header, QSize target) {
  const double factor = surplus(header, target);
  if (factor <= 1) return header;
  if (file.kind() == ImageKind::jpeg) {
    return open(file, VImage::option()->set("shrink", jpegShrink(factor)));
  }
  if (file.kind() == ImageKind::webp) return open(file, VImage::option()->set("scale", 1 / factor));
  if (file.kind() == ImageKind::heif) {
    return embeddedThumbnail(file, header, target).value_or(header);
  }
  return header;
}

}  // namespace tarnloft::BitmapDecoder
