#pragma once

#include "platform/FileDialogs.h"
#include "platform/Preferences.h"
#include "platform/desktop/window/PortalFileChooser.h"

namespace tarnloft {

// The desktop's own dialogs by its portal, the toolkit's where there is none. Each belongs to the
// window in front, and opens in the folder where the last one of its kind ended. Needs a
// QApplication.
class DesktopFileDialogs : public FileDialogs {
 public:
  // `state` keeps the folders, and outlives this.
  explicit DesktopFileDialogs(Preferences& state) : state_(state) {}

  std::optional<QString> savePath(const QString& suggestedName, const QString& mimeType) override;
  QStringList openFiles(const QStringList& mimeTypes) override;
  std::optional<QString> openFile(const QStringList& mimeTypes) override;
  std::optional<QString> openFileOrFolder(const QStringList& mimeTypes,
                                          const QStringList& folderExtensions) override;
  std::optional<QString> chooseFolder(const QString& from, const QString& acceptText) override;

 private:
  QStringList ask(FileQuestion question, const QString& key);
  QString folderOf(const QString& key) const;
  QStringList remembered(const QString& key, const QStringList& paths);

  Preferences& state_;
};

}  // namespace tarnloft
