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
      done(Accepted);
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

// The types that the desktop knows, for one that ends in "/*" all of that class.
QStringList knownTypes(const QStringList& mimeTypes) {
  QStringList known;
  const auto all = QMimeDatabase().allMimeTypes();
  for (const QString& wanted : mimeTypes) {
    const QString prefix = wanted.endsWith(QLatin1Char('*')) ? wanted.chopped(1) : QString();
    if (prefix.isEmpty()) known << wanted;
    for (const QMimeType& type : all) {
      if (!prefix.isEmpty() && type.name().startsWith(prefix)) known << type.name();
    }
  }
  return known;
}

// One filter of all their names: a list of types would let the user see one of them at a time.
QString nameFilter(const QStringList& mimeTypes) {
  QStringList patterns;
  for (const QString& type : knownTypes(mimeTypes)) {
    patterns << QMimeDatabase().mimeTypeForName(type).globPatterns();
  }
  patterns.removeDuplicates();
  return QStringLiteral("(%1)").arg(patterns.join(QLatin1Char(' ')));
}

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

QStringList DesktopFileDialogs::openFiles(const QStringList& mimeTypes) {
  QFileDialog dialog;
  dialog.setFileMode(QFileDialog::ExistingFiles);
  dialog.setNameFilter(nameFilter(mimeTypes));
  if (dialog.exec() != QDialog::Accepted) return {};
  QStringList paths;
  for (const QString& path : dialog.selectedFiles()) paths << QDir::cleanPath(path);
  return paths;
}

std::optional<QString> DesktopFileDialogs::openFileOrFolder(const QStringList& mimeTypes,
                                                            const QStringList& folderExtensions) {
  FileOrFolderDialog dialog(mimeTypes, folderExtensions);
  return chosenIn(dialog);
}

std::optional<QString> DesktopFileDialogs::chooseFolder() {
  QFileDialog dialog;
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return chosenIn(dialog);
}

}  // namespace tarnloft
