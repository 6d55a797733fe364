#pragma once

#include <QString>

namespace tarnloft {

enum class ContentClass { image, movie, video, font, data };

// Tells what kind of thing a file holds, by the desktop's own table of types. Any thread.
class ContentTypes {
 public:
  virtual ~ContentTypes() = default;

  // The MIME type of a file that exists, such as "image/png"; empty for anything else than a file.
  // Its extension decides, right or wrong; the file is looked into only where that tells nothing or
  // stands for several types.
  virtual QString typeOfFile(const QString& path) const = 0;

  // The type that a path extension stands for, without looking at any file; empty for none. Of
  // several, the one of a picture, movie or font.
  virtual QString typeOfExtension(const QString& extension) const = 0;

  // False for an empty type. PostScript and Illustrator's files are images, PDF isn't; a font's
  // metrics are no font; `movie` and `video` hold the same types.
  virtual bool conforms(const QString& mimeType, ContentClass contentClass) const = 0;
};

}  // namespace tarnloft
