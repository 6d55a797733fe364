#pragma once

#include "platform/FileDialogs.h"

namespace tarnloft {

// The desktop's own dialogs where it has some, the toolkit's elsewhere. Needs a QApplication.
class DesktopFileDialogs : public FileDialogs {
 public:
  std::optional<QString> savePath(const QString& suggestedName, const QString& mimeType) override;
  QStringList openFiles(const QStringList& mimeTypes) override;
  std::optional<QString> openFileOrFolder(const QStringList& mimeTypes,
                                          const QStringList& folderExtensions) override;
  std::optional<QString> chooseFolder() override;
};

}  // namespace tarnloft
