#pragma once

#include "quickgrab/panel/QuickGrab.h"

#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQuickWindow>

#include <memory>

class QQmlEngine;

namespace tarnloft {

// The quick grab panel: a small window without a frame that has the keyboard while it shows, and
// goes when it loses it, but not while something is dragged out of it. Made at its first showing
// and kept. Main thread.
class QuickGrabPanel : public QObject {
  Q_OBJECT

 public:
  static constexpr QSize size{340, 480};

  // Borrowed: all outlive this. The engine is asked for when its views are wanted.
  // `isScreenComposed` tells whether what lies behind a translucent window shows through it.
  QuickGrabPanel(std::function<QQmlEngine&()> engine, const QuickGrabServices& services,
                 std::function<bool()> isScreenComposed);
  ~QuickGrabPanel() override;
  Q_DISABLE_COPY_MOVE(QuickGrabPanel)

  // Loads its views on the engine's own thread and makes them, so that the first showing is
  // quicker.
  void prepare();

  bool isShown() const { return window_ && window_->isVisible(); }
  // Beside the anchor, a rectangle of the desktop such as the tray's icon; at the pointer without
  // one. On a desktop that places windows itself, where it puts it.
  void show(const QRect& anchor = {});
  void close();
  // Closes or shows it. A click on the tray's icon that has itself taken the keyboard, and so
  // closed the panel, leaves it closed. Nothing during a drag.
  enum class By { key, click };
  void toggle(By by, const QRect& anchor = {});

  QuickGrab& grab() { return grab_; }
  QQuickWindow* window() const { return window_.get(); }

 private:
  void makeAhead();
  bool make();
  void place(const QRect& anchor);
  void followFocus();
  void checkFocus();

  const std::function<QQmlEngine&()> engine_;
  const std::function<bool()> isScreenComposed_;
  QuickGrab grab_;
  std::unique_ptr<QQmlComponent> component_;  // while it loads
  std::unique_ptr<QQuickWindow> window_;
  bool hadFocus_ = false;    // since it shows
  QTimer focusLoss_;         // a moment after it
  QElapsedTimer lostFocus_;  // since it was closed by that
};

}  // namespace tarnloft
