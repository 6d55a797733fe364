#pragma once

#include <QString>

#include <optional>

namespace tarnloft {

// The desktop's own file dialogs. Main thread; each call waits for the user.
class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  // Asks where to save a file. `mimeType` limits the choice, such as "text/html". None if the user
  // cancels.
  virtual std::optional<QString> savePath(const QString& suggestedName,
                                          const QString& mimeType) = 0;
};

}  // namespace tarnloft
