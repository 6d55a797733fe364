#pragma once

#include "settings/SettingsModel.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <memory>

class QQuickWindow;
class QWindow;

namespace tarnloft {

// The one settings window of the program, as often as it is opened and closed. Main thread.
class SettingsWindow : public QObject {
  Q_OBJECT

 public:
  // Borrowed: all outlive this.
  SettingsWindow(QQmlEngine& engine, const SettingsServices& services);
  ~SettingsWindow() override;
  Q_DISABLE_COPY_MOVE(SettingsWindow)

  // Loads its views beside other work and makes them, so that an opening needn't. To be called when
  // there is time.
  void prepare();

  // Brings it to the front, or opens it in the middle of the other window, where the desktop leaves
  // that to programs; null for none.
  void open(const QWindow* over);
  // The same, at what it says of updates.
  void openAtUpdates(const QWindow* over);
  // Null while it is closed.
  QQuickWindow* window() const { return shown_ ? shown_->window.get() : nullptr; }

 signals:
  void closed();

 private:
  struct View {
    std::unique_ptr<SettingsModel> model;
    std::unique_ptr<QQuickWindow> window;
  };

  void makeAhead();
  std::unique_ptr<View> make();  // null where it can't be
  void place(const QWindow& over);
  void close();

  const SettingsServices services_;
  QQmlComponent component_;
  std::unique_ptr<View> ahead_;  // hidden, for the next opening
  std::unique_ptr<View> shown_;
};

}  // namespace tarnloft
