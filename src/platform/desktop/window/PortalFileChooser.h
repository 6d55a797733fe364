#pragma once

#include <QDBusMessage>
#include <QEventLoop>
#include <QObject>
#include <QStringList>

#include <optional>

class QWindow;

namespace tarnloft {

// What a file dialog asks for.
struct FileQuestion {
  enum class Kind { save, file, files, folder };

  Kind kind = Kind::files;
  QString title;
  QString folder;         // to begin in; the dialog's own choice if empty
  QString acceptText;     // the desktop's word if empty
  QString suggestedName;  // of a file to save
  QStringList mimeTypes;  // that the user may choose
};

// The desktop's own file dialogs, by its portal. Needs a QGuiApplication. Main thread.
class PortalFileChooser : public QObject {
  Q_OBJECT

 public:
  // Shows the dialog, which belongs to the window, and waits for the user; this process's windows
  // take no input meanwhile. None where the desktop has no such portal; empty if the user cancels.
  std::optional<QStringList> ask(const FileQuestion& question, QWindow* window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private slots:
  void answered(const QDBusMessage& message);

 private:
  void finish(std::optional<QStringList> paths);

  QEventLoop loop_;
  std::optional<QStringList> paths_;
};

}  // namespace tarnloft
