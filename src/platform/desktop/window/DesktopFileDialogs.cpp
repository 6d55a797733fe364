#include "platform/desktop/window/DesktopFileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeDatabase>

#include <utility>

namespace tarnloft {
namespace {

std::optional<QString> chosenIn(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return QDir::cleanPath(dialog.selectedFiles().constFirst());
}

// No desktop's dialog chooses a file or a folder, so this one is the toolkit's own. Opening a
// folder of the wanted kind chooses it; any other one is entered.
class FileOrFolderDialog : public QFileDialog {
 public:
  FileOrFolderDialog(const QStringList& mimeTypes, QStringList folderExtensions)
      : folderExtensions_(std::move(folderExtensions)) {
    setOption(DontUseNativeDialog);
    setFileMode(ExistingFile);
    setMimeTypeFilters(mimeTypes + QStringList(QStringLiteral("application/octet-stream")));
  }

 protected:
  void accept() override {
    if (const QStringList files = selectedFiles(); files.size() == 1 && isWanted(files.first())) {
      QDialog::accept();
    } else {
      QFileDialog::accept();
    }
  }

 private:
  bool isWanted(const QString& path) const {
    return QFileInfo(path).isDir() && folderExtensions_.contains(QFileInfo(path).suffix());
  }

  const QStringList folderExtensions_;
};

}  // namespace

std::optional<QString> DesktopFileDialogs::savePath(const QString& suggestedName,
                                                    const QString& mimeType) {
  QFileDialog dialog;
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setMimeTypeFilters({mimeType});
  dialog.setDefaultSuffix(QMimeDatabase().mimeTypeForName(mimeType).preferredSuffix());
  dialog.selectFile(QString(suggestedName).replace(QLatin1Char('/'), QLatin1Char('-')));
  return chosenIn(dialog);
}

std::optional<QString> DesktopFileDialogs::openFileOrFolder(const QStringList& mimeTypes,
                                                            const QStringList& folderExtensions) {
  FileOrFolderDialog dialog(mimeTypes, folderExtensions);
  return chosenIn(dialog);
}

}  // namespace tarnloft
