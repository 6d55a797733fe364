#pragma once

#include <QString>

namespace tarnloft {

enum class ContentClass { image, movie, video, font, data };

// Tells what kind of thing a file holds, by the desktop's own table of types. Any thread.
class ContentTypes {
 public:
  virtual ~ContentTypes() = default;

  // The MIME type of a file that exists, such as "image/png"; empty if it can't be told.
  virtual QString typeOfFile(const QString& path) const = 0;
  // The type that a path extension stands for, without looking at any file; empty for none.
  virtual QString typeOfExtension(const QString& extension) const = 0;
  // False for an empty type.
  virtual bool conforms(const QString& mimeType, ContentClass contentClass) const = 0;
};

}  // namespace tarnloft
