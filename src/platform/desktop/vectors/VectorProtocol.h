#pragma once

#include <cstdint>

// What passes between this program and the one that draws vector files, over a local socket: a
// request and the file's bytes one way, a reply and pixels the other. Both are of one build, on one
// machine, so that plain structures will do.
namespace tarnloft {

enum class VectorKind : std::int32_t { svg, pdf };

enum class VectorAction : std::int32_t {
  measure,  // no pixels
  fit,      // the longer side becomes `width`, the aspect is kept
  stretch,  // to `width` by `height`
};

struct VectorRequest {
  VectorKind kind = VectorKind::svg;
  VectorAction action = VectorAction::measure;
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::uint64_t fileBytes = 0;
};

struct VectorReply {
  double pointsWidth = 0;  // the file's own size; not above 0 if it can't be read
  double pointsHeight = 0;
  std::int32_t width =
      0;  // of the pixels that follow, 4 bytes each: native-endian premultiplied ARGB
  std::int32_t height = 0;
};

// What a drawing may cost before it counts as hostile.
namespace vectorLimits {
constexpr std::uint64_t fileBytes = 256u << 20;
constexpr std::int64_t pixels = 64 << 20;
constexpr std::int32_t side = 32767;
constexpr std::uint64_t memoryBytes = 2048u << 20;  // the drawing program's whole address space
constexpr int processorSeconds = 5;                 // for one request
constexpr int wallSeconds = 20;                     // for one request, on a busy machine
constexpr int idleSeconds = 30;                     // before a program without work ends
}  // namespace vectorLimits

}  // namespace tarnloft
