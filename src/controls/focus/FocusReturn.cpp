#include "controls/focus/FocusReturn.h"

#include <QQuickWindow>

#include <algorithm>

namespace tarnloft {

namespace {

// All there are, so that one popup can ask where another came from. A handful; main thread only.
QList<FocusReturn*>& all() {
  static QList<FocusReturn*> list;
  return list;
}

}  // namespace

FocusReturn::FocusReturn(QObject* parent) : QObject(parent) { all() << this; }

FocusReturn::~FocusReturn() { all().removeOne(this); }

void FocusReturn::remember() {
  before_.clear();
  QQuickItem* focused =
      within_ && within_->window() ? within_->window()->activeFocusItem() : nullptr;
  if (!focused) return;
  before_ << focused;
  for (const FocusReturn* other : std::as_const(all()))
    if (other != this && other->content_ && other->content_->isAncestorOf(focused))
      before_ << other->before_;
}

void FocusReturn::giveBack() {
  const auto target = std::find_if(before_.cbegin(), before_.cend(), [](const auto& item) {
    return item && item->isVisible() && item->isEnabled() && item->window();
  });
  if (target == before_.cend()) return;
  if (isFree((*target)->window()->activeFocusItem(), *target))
    (*target)->forceActiveFocus(Qt::PopupFocusReason);
}

bool FocusReturn::isFree(const QQuickItem* focused, const QQuickItem* target) const {
  return !focused || !focused->isVisible() || focused == content_ ||
         focused->isAncestorOf(target) || (content_ && content_->isAncestorOf(focused));
}

}  // namespace tarnloft
