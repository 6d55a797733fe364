#include "platform/desktop/window/DesktopFileDialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWindow>

#include <utility>

namespace tarnloft {
namespace {

// The one that the user works in.
QWindow* windowInFront() {
  if (QWindow* const focused = QGuiApplication::focusWindow()) return focused;
  for (QWindow* const window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible() && window->type() == Qt::Window) return window;
  }
  return nullptr;
}

std::optional<QString> onlyOne(const QStringList& paths) {
  return paths.isEmpty() ? std::nullopt : std::optional(paths.first());
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

QStringList DesktopFileDialogs::chosenIn(QFileDialog& dialog, const QString& kind) {
  const QString key = kind + QStringLiteral("DialogFolder");
  if (const auto folder = state_.text(key); folder && QFileInfo(*folder).isDir()) {
    dialog.setDirectory(*folder);
  }
  dialog.winId();  // makes the window
  dialog.windowHandle()->setTransientParent(windowInFront());
  if (dialog.exec() != QDialog::Accepted) return {};
  state_.setText(key, dialog.directory().absolutePath());
  QStringList paths;
  for (const QString& path : dialog.selectedFiles()) paths << QDir::cleanPath(path);
  return paths;
}

std::optional<QString> DesktopFileDialogs::savePath(const QString& suggestedName,
                                                    const QString& mimeType) {
  QFileDialog dialog(nullptr, QStringLiteral("Save"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setMimeTypeFilters({mimeType});
  dialog.setDefaultSuffix(QMimeDatabase().mimeTypeForName(mimeType).preferredSuffix());
  dialog.selectFile(QString(suggestedName).replace(QLatin1Char('/'), QLatin1Char('-')));
  return onlyOne(chosenIn(dialog, QStringLiteral("save")));
}

QStringList DesktopFileDialogs::openFiles(const QStringList& mimeTypes) {
  QFileDialog dialog(nullptr, QStringLiteral("Add Files"));
  dialog.setFileMode(QFileDialog::ExistingFiles);
  dialog.setNameFilter(nameFilter(mimeTypes));
  return chosenIn(dialog, QStringLiteral("add"));
}

std::optional<QString> DesktopFileDialogs::openFileOrFolder(const QStringList& mimeTypes,
                                                            const QStringList& folderExtensions) {
  FileOrFolderDialog dialog(mimeTypes, folderExtensions);
  dialog.setWindowTitle(QStringLiteral("Import"));
  return onlyOne(chosenIn(dialog, QStringLiteral("import")));
}

std::optional<QString> DesktopFileDialogs::chooseFolder() {
  QFileDialog dialog(nullptr, QStringLiteral("Choose a Folder"));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return onlyOne(chosenIn(dialog, QStringLiteral("folder")));
}

}  // namespace tarnloft
