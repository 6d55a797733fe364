#include "platform/desktop/images/ImageKind.h"

#include <algorithm>
#include <array>

namespace tarnloft {
namespace {

using namespace std::string_view_literals;

struct Signature {
  std::string_view bytes;
  size_t offset;
  ImageKind kind;
};

constexpr std::array signatures{
    Signature{"\x89PNG\r\n\x1A\n"sv, 0, ImageKind::png},
    Signature{"\xFF\xD8\xFF"sv, 0, ImageKind::jpeg},
    Signature{"GIF87a"sv, 0, ImageKind::gif},
    Signature{"GIF89a"sv, 0, ImageKind::gif},
    Signature{"WEBP"sv, 8, ImageKind::webp},
    Signature{"II*\0"sv, 0, ImageKind::tiff},
    Signature{"MM\0*"sv, 0, ImageKind::tiff},
    Signature{"II+\0"sv, 0, ImageKind::tiff},
    Signature{"MM\0+"sv, 0, ImageKind::tiff},
    Signature{"BM"sv, 0, ImageKind::bmp},
    Signature{"\0\0\1\0"sv, 0, ImageKind::ico},
    Signature{"\x1F\x8B"sv, 0, ImageKind::svg},  // packed
};

// Still pictures and sequences of both codecs, among the brands that a file names.
bool isHeif(std::string_view head) {
  if (head.size() < 16 || head.substr(4, 4) != "ftyp") return false;
  const auto byte = [&](size_t i) { return size_t(static_cast<unsigned char>(head[i])); };
  const size_t boxSize = byte(0) << 24 | byte(1) << 16 | byte(2) << 8 | byte(3);
  constexpr std::array brands{"heic", "heix", "hevc", "hevx", "heim",
                              "heis", "mif1", "msf1", "avif", "avis"};
  for (size_t i = 8; i + 4 <= std::min(boxSize, head.size()); i += 4) {
    if (std::find(brands.begin(), brands.end(), head.substr(i, 4)) != brands.end()) return true;
  }
  return false;
}

// A mark-up file in any of its encodings. What else begins so, the drawing program refuses.
bool isMarkup(std::string_view head) {
  const size_t first = head.find_first_not_of("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n"sv);
  return first != std::string_view::npos && head[first] == '<';
}

}  // namespace

std::optional<ImageKind> imageKindOf(std::string_view head) {
  for (const Signature& signature : signatures) {
    if (head.size() > signature.offset &&
        head.substr(signature.offset).starts_with(signature.bytes)) {
      return signature.kind;
    }
  }
  if (isHeif(head)) return ImageKind::heif;
  if (head.find("%PDF-") != std::string_view::npos) return ImageKind::pdf;
  if (isMarkup(head)) return ImageKind::svg;
  return std::nullopt;
}

}  // namespace tarnloft
