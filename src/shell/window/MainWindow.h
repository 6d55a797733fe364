#pragma once

#include "sheets/SheetViews.h"
#include "shell/window/ContentModel.h"
#include "shell/window/WindowState.h"

#include <QQmlComponent>
#include <QTimer>

class QQmlEngine;
class QQuickWindow;

namespace tarnloft {

// The one main window of the program, as often as it is opened and closed. Keeps its place, its
// size and the sidebar's width. Main thread.
class MainWindow : public QObject {
  Q_OBJECT

 public:
  // Borrowed: all outlive this. `state` holds what the window keeps; `updater` may be null.
  MainWindow(QQmlEngine& engine, const WorkspaceServices& services, Preferences& state,
             UpdaterViewModel* updater = nullptr);
  ~MainWindow() override;
  Q_DISABLE_COPY_MOVE(MainWindow)

  // The window's QML. `open` is faster if loading it has begun.
  static QUrl url();

  // Opens the window where it stood last; nothing if it is open. What its first frame does without
  // follows. False if its views can't be made, which a broken installation alone explains.
  bool open();
  // Loads the views of its sheets beside other work. To be called when there is time.
  void prepareSheets() { sheetViews_.load(engine_); }
  // Null while it is closed.
  QQuickWindow* window() const { return window_.get(); }
  // Null while it is closed.
  Alerts* alerts() const { return content_ ? content_->alerts() : nullptr; }
  // Asked when the window is about to close; it stays if the answer is false.
  void setMayClose(std::function<bool()> mayClose) { mayClose_ = std::move(mayClose); }

 signals:
  void settingsRequested();
  void updateCheckRequested();
  void closed();

 private:
  bool make();
  void makeLateViews();
  bool eventFilter(QObject* watched, QEvent* event) override;
  void place(const WindowState& state);
  void remember();
  void followAppearance();
  void close();

  QQmlEngine& engine_;
  const WorkspaceServices services_;
  Preferences& state_;
  UpdaterViewModel* const updater_;
  std::function<bool()> mayClose_ = [] { return true; };
  std::unique_ptr<ContentModel> content_;
  std::unique_ptr<QQuickWindow> window_;
  QQmlComponent lateViews_;
  SheetViews sheetViews_;
  bool isShown_ = false;  // the window has shown a frame
  QTimer settled_;        // a moment after the last change of the window's place
};

}  // namespace tarnloft
