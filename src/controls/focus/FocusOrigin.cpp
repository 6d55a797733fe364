#include "controls/focus/FocusOrigin.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace tarnloft {

namespace {

// The keys by which the focus or a choice moves.
bool navigates(int key) {
  return key == Qt::Key_Tab || key == Qt::Key_Backtab ||
         (key >= Qt::Key_Left && key <= Qt::Key_Down);
}

}  // namespace

FocusOrigin::FocusOrigin(QObject* parent) : QObject(parent) { qGuiApp->installEventFilter(this); }

bool FocusOrigin::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress)
    set(keyboard_ || navigates(static_cast<QKeyEvent*>(event)->key()));
  else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
    set(false);
  return QObject::eventFilter(watched, event);
}

void FocusOrigin::set(bool keyboard) {
  if (keyboard_ == keyboard) return;
  keyboard_ = keyboard;
  emit keyboardChanged();
}

}  // namespace tarnloft
