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
  m_before.clear();
  QQuickItem* focused =
      m_within && m_within->window() ? m_within->window()->activeFocusItem() : nullptr;
  if (!focused) return;
  m_before << focused;
  for (const FocusReturn* other : std::as_const(all()))
    if (other != this && other->m_content && other->m_content->isAncestorOf(focused))
      m_before << other->m_before;
}

void FocusReturn::giveBack() {
  const auto target = std::find_if(m_before.cbegin(), m_before.cend(), [](const auto& item) {
    return item && item->isVisible() && item->isEnabled() && item->window();
  });
  if (target == m_before.cend()) return;
  if (isFree((*target)->window()->activeFocusItem(), *target))
    (*target)->forceActiveFocus(Qt::PopupFocusReason);
}

bool FocusReturn::isFree(const QQuickItem* focused, const QQuickItem* target) const {
  return !focused || !focused->isVisible() || focused == m_content ||
         focused->isAncestorOf(target) || (m_content && m_content->isAncestorOf(focused));
}

}  // namespace tarnloft
