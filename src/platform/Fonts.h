#pragma once

#include <QString>

#include <optional>

namespace tarnloft {

struct FontNames {
  QString family;
  std::optional<QString> style;

  bool operator==(const FontNames&) const = default;
};

// Reads font files and makes them drawable in this process. Files are foreign.
class Fonts {
 public:
  virtual ~Fonts() = default;

  // Of the file's first face; none without a family. The typographic names, where a font has them
  // ("Acme" and "Light" instead of "Acme Light" and "Regular"), in English if it can be. Any
  // thread.
  virtual std::optional<FontNames> names(const QString& path) = 0;

  // Makes the file's faces drawable by their family for as long as the process lives, even if the
  // file goes, without installing them: once they are found sound, and the event loop has come by.
  // Repeats and failures are ignored. Any thread; waits for nothing but the opening of the file.
  virtual void registerForProcess(const QString& path) = 0;
};

}  // namespace tarnloft
