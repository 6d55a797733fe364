#pragma once

#include <QString>
#include <QStringList>

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

  // Asks for files that exist, of one of the types; "image/*" means all types of images. Empty if
  // the user cancels.
  virtual QStringList openFiles(const QStringList& mimeTypes) = 0;

  // Asks for one such file. None if the user cancels.
  virtual std::optional<QString> openFile(const QStringList& mimeTypes) = 0;

  // Asks for one thing that exists: a file of one of the types, or a folder whose name has one of
  // the extensions. None if the user cancels.
  virtual std::optional<QString> openFileOrFolder(const QStringList& mimeTypes,
                                                  const QStringList& folderExtensions) = 0;

  // Asks for a folder that exists. `from` is where the dialog begins, its own choice if empty;
  // `acceptText` stands on its button, the desktop's word if empty. None if the user cancels.
  virtual std::optional<QString> chooseFolder(const QString& from, const QString& acceptText) = 0;
};

}  // namespace tarnloft
