#pragma once

#include "quickgrab/hotkey/HotKeySettings.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace tarnloft {

// An item that hands its keys to the settings while they record one, as QML isn't told the window
// system's numbers of a key. A press elsewhere in the window ends the recording, also where nothing
// takes the focus.
class KeyCatcher : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::HotKeySettings* settings MEMBER settings_ NOTIFY settingsChanged REQUIRED)

 public:
  using QQuickItem::QQuickItem;

 signals:
  void settingsChanged();

 protected:
  // Before any shortcut of the window's takes it.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ShortcutOverride && isRecording()) {
      event->accept();
      return true;
    }
    return QQuickItem::event(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    event->setAccepted(isRecording());
    if (!isRecording() || isModifier(event->key())) return;
    settings_->take(event->nativeVirtualKey(), event->nativeScanCode(), event->modifiers());
  }
  void itemChange(ItemChange change, const ItemChangeData& value) override {
    if (change == ItemSceneChange) {
      if (window_) window_->removeEventFilter(this);
      window_ = value.window;
      if (window_) window_->installEventFilter(this);
    }
    QQuickItem::itemChange(change, value);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress && isRecording()) {
      const QPointF at = static_cast<QMouseEvent*>(event)->scenePosition();
      if (!contains(mapFromScene(at))) settings_->setRecording(false);
    }
    return QQuickItem::eventFilter(watched, event);
  }

 private:
  bool isRecording() const { return settings_ && settings_->isRecording(); }
  static bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           (key >= Qt::Key_Super_L && key <= Qt::Key_Direction_R);
  }

  HotKeySettings* settings_ = nullptr;
  QPointer<QQuickWindow> window_;
};

}  // namespace tarnloft
