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

QString suffixOf(const QStringList& mimeTypes) {
  return QMimeDatabase().mimeTypeForName(mimeTypes.first()).preferredSuffix();
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

// The toolkit's, or the desktop's where the toolkit knows it.
QStringList askToolkit(QFileDialog& dialog, const QString& folder, QWindow* window) {
  if (QFileInfo(folder).isDir()) dialog.setDirectory(folder);
  dialog.winId();  // makes the window
  dialog.windowHandle()->setTransientParent(window);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.selectedFiles();
}

QStringList askToolkit(const FileQuestion& question, QWindow* window) {
  using Kind = FileQuestion::Kind;
  QFileDialog dialog(nullptr, question.title);
  switch (question.kind) {
    case Kind::save:
      dialog.setAcceptMode(QFileDialog::AcceptSave);
      dialog.setMimeTypeFilters(question.mimeTypes);
      dialog.setDefaultSuffix(suffixOf(question.mimeTypes));
      dialog.selectFile(question.suggestedName);
      break;
    case Kind::file:
    case Kind::files:
      dialog.setFileMode(question.kind == Kind::file ? QFileDialog::ExistingFile
                                                     : QFileDialog::ExistingFiles);
      dialog.setNameFilter(nameFilter(question.mimeTypes));
      break;
    case Kind::folder:
      dialog.setFileMode(QFileDialog::Directory);
      dialog.setOption(QFileDialog::ShowDirsOnly);
      if (!question.acceptText.isEmpty()) {
        dialog.setLabelText(QFileDialog::Accept, question.acceptText);
      }
      break;
  }
  return askToolkit(dialog, question.folder, window);
}

}  // namespace

QString DesktopFileDialogs::folderOf(const QString& key) const {
  return state_.text(key).value_or(QString());
}

QStringList DesktopFileDialogs::remembered(const QString& key, const QStringList& paths) {
  QStringList clean;
  for (const QString& path : paths) clean << QDir::cleanPath(path);
  if (!clean.isEmpty()) state_.setText(key, QFileInfo(clean.first()).absolutePath());
  return clean;
}

QStringList DesktopFileDialogs::ask(FileQuestion question, const QString& key) {
  if (question.folder.isEmpty()) question.folder = folderOf(key);
  QWindow* const window = windowInFront();
  const auto chosen = PortalFileChooser().ask(question, window);
  return remembered(key, chosen ? *chosen : askToolkit(question, window));
}

// A desktop's dialog gives the name as it was typed. With its extension it may be another file's,
// of which the user must be asked.
std::optional<QString> DesktopFileDialogs::savePath(const QString& suggestedName,
                                                    const QString& mimeType) {
  FileQuestion question{FileQuestion::Kind::save,
                        QStringLiteral("Save"),
                        {},
                        {},
                        QString(suggestedName).replace(QLatin1Char('/'), QLatin1Char('-')),
                        {mimeType}};
  for (;;) {
    auto path = onlyOne(ask(question, QStringLiteral("saveDialogFolder")));
    const QString suffix = suffixOf({mimeType});
    if (!path || suffix.isEmpty() || !QFileInfo(*path).suffix().isEmpty()) return path;
    const QString whole = *path + QLatin1Char('.') + suffix;
    if (!QFileInfo::exists(whole)) return whole;
    question.suggestedName = QFileInfo(whole).fileName();
  }
}

QStringList DesktopFileDialogs::openFiles(const QStringList& mimeTypes) {
  return ask({FileQuestion::Kind::files, QStringLiteral("Add Files"), {}, {}, {}, mimeTypes},
             QStringLiteral("addDialogFolder"));
}

std::optional<QString> DesktopFileDialogs::openFile(const QStringList& mimeTypes) {
  return onlyOne(
      ask({FileQuestion::Kind::file, QStringLiteral("Choose File"), {}, {}, {}, mimeTypes},
          QStringLiteral("addDialogFolder")));
}

std::optional<QString> DesktopFileDialogs::openFileOrFolder(const QStringList& mimeTypes,
                                                            const QStringList& folderExtensions) {
  const QString key = QStringLiteral("importDialogFolder");
  FileOrFolderDialog dialog(mimeTypes, folderExtensions);
  dialog.setWindowTitle(QStringLiteral("Import"));
  return onlyOne(remembered(key, askToolkit(dialog, folderOf(key), windowInFront())));
}

std::optional<QString> DesktopFileDialogs::chooseFolder(const QString& from,
                                                        const QString& acceptText) {
  return onlyOne(
      ask({FileQuestion::Kind::folder, QStringLiteral("Choose a Folder"), from, acceptText, {}, {}},
          QStringLiteral("folderDialogFolder")));
}

}  // namespace tarnloft
