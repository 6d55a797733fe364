#include "platform/desktop/images/Pipeline.h"

#include <lcms2.h>
#include <optional>

namespace tarnloft::Pipeline {
namespace {

using vips::VImage;

// How the profile is read that tells what the colours are: the file's own if it fits them, or, for
// printing inks, the usual one. None if no profile tells.
std::optional<VipsIntent> profileIntent(const VImage& image) {
  if (image.format() != VIPS_FORMAT_UCHAR) return std::nullopt;
  if (image.get_typeof(VIPS_META_ICC_NAME) != 0) {
    size_t size = 0;
    const void* bytes = image.get_blob(VIPS_META_ICC_NAME, &size);
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> profile(
        cmsOpenProfileFromMem(bytes, cmsUInt32Number(size)), cmsCloseProfile);
    const bool fits = profile && vips_icc_is_compatible_profile(image.get_image(), bytes, size);
    for (const VipsIntent intent : {VIPS_INTENT_RELATIVE, VIPS_INTENT_PERCEPTUAL}) {
      if (fits && cmsIsIntentSupported(profile.get(), intent, LCMS_USED_AS_INPUT)) return intent;
    }
  }
  const bool inks = image.interpretation() == VIPS_INTERPRETATION_CMYK;
  return inks ? std::optional(VIPS_INTENT_RELATIVE) : std::nullopt;
}

VImage withoutProfile(const VImage& image) {
  VImage copy = image.copy();
  vips_image_remove(copy.get_image(), VIPS_META_ICC_NAME);
  return copy;
}

// A space that the library can't tell counts as what its number of components says.
VImage toSpace(const VImage& image, VipsInterpretation space) {
  try {
    return image.colourspace(space);
  } catch (const vips::VError&) {
    const auto guess = image.bands() < 3 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB;
    return image.cast(VIPS_FORMAT_UCHAR)
        .copy(VImage::option()->set("interpretation", guess))
        .colourspace(space);
  }
}

// Values of 8 bits, of whatever device, so that colours need be converted only for the few pixels
// of the result. 16 bits go first: the colour engine is coarse with them, off by 20 of 255.
VImage toScalable(const VImage& image) {
  const VipsInterpretation space = image.interpretation();
  if (image.coding() == VIPS_CODING_NONE && image.format() == VIPS_FORMAT_UCHAR) return image;
  if (space == VIPS_INTERPRETATION_CMYK && image.format() == VIPS_FORMAT_USHORT) {
    return image.cast(VIPS_FORMAT_UCHAR, VImage::option()->set("shift", true));
  }
  VImage bytes =
      toSpace(image, image.bands() < 3 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB);
  const bool stillDevice =
      space == VIPS_INTERPRETATION_RGB16 || space == VIPS_INTERPRETATION_GREY16;
  if (!stillDevice) bytes = withoutProfile(bytes);
  return bytes;
}

VImage resized(const VImage& image, QSize size) {
  if (image.width() == size.width() && image.height() == size.height()) return image;
  const double horizontal = double(size.width()) / image.width();
  const double vertical = double(size.height()) / image.height();
  const auto resize = [&](const VImage& source) {
    return source.resize(horizontal, VImage::option()->set("vscale", vertical));
  };
  if (!image.has_alpha()) return resize(image);
  // What is transparent has no colour to give to its neighbours.
  return resize(image.premultiply().cast(image.format())).unpremultiply().cast(image.format());
}

VImage toSrgb(const VImage& image) {
  const bool inks = image.interpretation() == VIPS_INTERPRETATION_CMYK;
  if (const auto intent = profileIntent(image)) {
    try {
      return image.icc_transform("srgb", VImage::option()
                                             ->set("embedded", true)
                                             ->set("input_profile", inks ? "cmyk" : "srgb")
                                             ->set("intent", *intent)
                                             ->set("depth", 8));
    } catch (const vips::VError&) {  // a profile that can't be used is as none
    }
  }
  return toSpace(image, VIPS_INTERPRETATION_sRGB);
}

VImage withFourBandsAtMost(const VImage& image) {
  return image.bands() > 4 ? image.extract_band(0, VImage::option()->set("n", 4)) : image;
}

}  // namespace

VImage render(const VImage& image, QSize size) {
  return withFourBandsAtMost(toSrgb(resized(toScalable(image), size)).cast(VIPS_FORMAT_UCHAR));
}

}  // namespace tarnloft::Pipeline
