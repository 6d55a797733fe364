#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace tarnloft {

// The moment and the size of the picture that stands for a clip.
inline constexpr double posterSeconds = 0.1;
inline constexpr int posterPixels = 512;

struct VideoProperties {
  std::optional<double> duration;  // seconds
  std::optional<QSize> size;       // of the first video track, as stored; none without a track
};

// Reads clips. Files are foreign: a broken or hostile one is an absent result, takes bounded memory
// and time, and nothing outside of the file is read. Any thread, several at a time.
class Videos {
 public:
  virtual ~Videos() = default;

  // None if the file is no clip at all.
  virtual std::optional<VideoProperties> properties(const QString& path) = 0;

  // The picture shown `seconds` after the beginning (the last one of a shorter clip), in sRGB, with
  // square pixels, turned as the track tells, and no longer than `maxPixel` on a side; never
  // enlarged but to make pixels square. For the first seconds: all that comes before is decoded
  // too.
  virtual std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) = 0;
};

}  // namespace tarnloft
