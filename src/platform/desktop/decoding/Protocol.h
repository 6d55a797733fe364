#pragma once

#include <cstdint>

// What passes between this program and its decoders, over a local socket: requests one way, replies
// the other, files and memory for what is made as descriptors. Both are of one build, on one
// machine, so that plain structures will do; an update under a running program is seen by `Hello`.
// A reply is a foreign file's word: nothing in it is trusted.
namespace tarnloft::decoding {

// What one running decoder can read. Each has its libraries alone.
enum class Role : std::int32_t { bitmaps, vectors, clips, fonts };

// The names by which the program is started in a role, in their order.
inline constexpr const char* roleNames[] = {"bitmaps", "vectors", "clips", "fonts"};

// And that by which it becomes the font sanitizer instead: the font is its standard input, and the
// new one goes to that descriptor, which is memory.
inline constexpr const char* sanitizerName = "sanitizer";
inline constexpr int outputNumber = 3;

enum class Action : std::int32_t {
  open,    // with a file: its facts. It stays open for the others.
  draw,    // a picture of `width` by `height`; of a clip the one at `seconds`, `width` at most
  encode,  // the same as a file of `format`
  names,   // a font's family and style, in UTF-8, each with a NUL behind it
  faces,   // a font's faces as plain files, each behind its size in 8 bytes, little-endian
  tryOut,  // a font drawn; nothing of use is made
  close,   // without a reply
};

struct Request {
  Action action = Action::open;
  std::int32_t kind = 0;   // an `ImageKind`, if it is a picture
  std::int32_t width = 0;  // for `open`: of plain pixels, `ImageKind::pixels`
  std::int32_t height = 0;
  std::int32_t format = 0;  // an `ExportFormat`
  double quality = 0;
  double seconds = 0;
};

// Of an open file.
struct Facts {
  std::int32_t width = 0;  // pixels as stored; 0 for none
  std::int32_t height = 0;
  std::int32_t hasAlpha = 0;
  double dpi = 0;          // not above 0 for none
  double pointsWidth = 0;  // of a drawing, at 72 to the inch
  double pointsHeight = 0;
  double duration = -1;        // seconds; below 0 for none
  std::uint64_t needs = 0;     // bytes that making something of it takes, beyond what a decoder has
  std::uint64_t rowBytes = 0;  // of a picture that is read row by row, and made smaller
};

// What was made, in the memory that came with the request.
struct Product {
  std::int32_t width = 0;  // of pixels: 4 bytes each, native-endian premultiplied ARGB
  std::int32_t height = 0;
  std::int32_t hasAlpha = 0;
  std::uint64_t bytes = 0;
};

struct Reply {
  std::int32_t isSound = 0;  // else the file can't be read
  Facts facts;
  Product product;
};

// Comes unasked, from a decoder that is ready. One of another version may tell another layout.
struct Hello {
  static constexpr std::uint32_t revision = 1;  // grows with a change that the sizes don't tell
  std::uint32_t layout = (revision << 20) + (sizeof(Request) << 10) + sizeof(Reply);

  bool operator==(const Hello&) const = default;
};

// What a file may cost before it counts as hostile.
namespace limits {
constexpr std::uint64_t megabyte = 1u << 20;
constexpr std::uint64_t basicMemory = 64 * megabyte;     // of a decoder, for an ordinary file
constexpr std::uint64_t mostMemory = 336 * megabyte;     // of one, for what foreign bytes ask for
constexpr std::uint64_t exportMemory = 1280 * megabyte;  // of one, for what the user asks for
constexpr std::uint64_t allMemory = 400 * megabyte;      // of all together, exports aside
constexpr std::uint64_t documentBytes = 256 * megabyte;  // a vector file, a font
constexpr std::int64_t pixels = 64 << 20;                // of what is made
constexpr std::int32_t side = 32767;
constexpr int idleSeconds = 45;  // before a decoder without work ends
}  // namespace limits

}  // namespace tarnloft::decoding
