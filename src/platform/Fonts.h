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

  // Of the file's first face; none without a family. Any thread.
  virtual std::optional<FontNames> names(const QString& path) = 0;

  // Makes the file's faces drawable by their family for as long as the process lives, without
  // installing them. Repeats and failures are ignored. Main thread, with a Gui application.
  virtual void registerForProcess(const QString& path) = 0;
};

}  // namespace tarnloft
