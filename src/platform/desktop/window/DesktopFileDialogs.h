#pragma once

#include "platform/FileDialogs.h"
#include "platform/Preferences.h"

class QFileDialog;

namespace tarnloft {

// The toolkit's dialogs, or the desktop's where the toolkit knows some. Each belongs to the window
// in front, and opens in the folder where the last one of its kind ended. Needs a QApplication.
class DesktopFileDialogs : public FileDialogs {
 public:
  // `state` keeps the folders, and outlives this.
  explicit DesktopFileDialogs(Preferences& state) : state_(state) {}

  std::optional<QString> savePath(const QString& suggestedName, const QString& mimeType) override;
  QStringList openFiles(const QStringList& mimeTypes) override;
  std::optional<QString> openFileOrFolder(const QStringList& mimeTypes,
                                          const QStringList& folderExtensions) override;
  std::optional<QString> chooseFolder() override;

 private:
  QStringList chosenIn(QFileDialog& dialog, const QString& kind);

  Preferences& state_;
};

}  // namespace tarnloft
