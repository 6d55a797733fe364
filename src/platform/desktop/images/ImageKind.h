#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnloft {

// What a file holds, told by its content and never by its name.
enum class ImageKind : std::int32_t {
  png,
  jpeg,
  gif,
  webp,
  tiff,
  heif,
  bmp,
  ico,
  svg,
  pdf,
  pixels,  // no file: native-endian premultiplied ARGB, row by row
};

// How much of its beginning tells.
constexpr std::size_t imageHeadBytes = 1024;

// None for what no decoder here reads.
std::optional<ImageKind> imageKindOf(std::string_view head);

}  // namespace tarnloft
