#include "quickgrab/panel/GrabViews.h"

#include "controls/loading/ItemMaking.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

// It may be in the middle of a call. Out of the window, it hears of no release.
void end(QQuickItem& view) {
  view.setParentItem(nullptr);
  view.deleteLater();
}

}  // namespace

void GrabViews::componentComplete() {
  QQuickItem::componentComplete();
  connect(grab_, &QuickGrab::thingsChanged, this, &GrabViews::follow);
  follow();
}

// A view that comes may take the keyboard and be scrolled into sight, so that others are in it.
void GrabViews::follow() {
  isStale_ = true;
  if (isFollowing_) return;
  const QScopedValueRollback following(isFollowing_, true);
  while (std::exchange(isStale_, false)) show(QList(grab_->things()));
}

void GrabViews::show(const QList<GrabThing>& things) {
  QHash<QUuid, int> kinds;
  for (const GrabThing& thing : things) kinds[thing.id] = thing.kind;
  for (auto entry = views_.begin(); entry != views_.end();) {
    const bool stays = kinds.value(entry.key(), -1) == entry->thing.kind;
    if (!stays) release(*entry);
    entry = stays ? std::next(entry) : views_.erase(entry);
  }
  QQuickItem* before = nullptr;
  for (const GrabThing& thing : things) show(thing, before);
  constexpr size_t mostWaiting = 80;
  for (; waiting_.size() > mostWaiting; waiting_.erase(waiting_.begin()))
    end(*waiting_.front().item);
}

// Children stand in the order in which assistive technology goes through them.
void GrabViews::show(const GrabThing& thing, QQuickItem*& before) {
  View& view = views_[thing.id];
  if (!view.item) view = obtain(thing);
  if (!view.item) return;
  if (std::exchange(view.thing, thing) != thing)
    view.item->setProperty("thing", QVariant::fromValue(thing));
  view.item->setVisible(true);
  const QList<QQuickItem*> children = childItems();
  const auto at = before ? children.indexOf(before) + 1 : 0;
  if (children.value(at) != view.item) {
    before ? view.item->stackAfter(before) : view.item->stackBefore(children.first());
  }
  before = view.item;
}

GrabViews::View GrabViews::obtain(const GrabThing& thing) {
  const auto found = std::find_if(waiting_.rbegin(), waiting_.rend(),
                                  [&](const View& view) { return view.thing.kind == thing.kind; });
  View view{thing, nullptr};
  if (found == waiting_.rend()) {
    view.item = make(thing);
  } else {
    view = *found;
    waiting_.erase(std::next(found).base());
  }
  return view;
}

QQuickItem* GrabViews::make(const GrabThing& thing) {
  return makeItem(*view_, *this, [&](QQuickItem&) {
    return QVariantMap{{QStringLiteral("thing"), QVariant::fromValue(thing)}};
  });
}

void GrabViews::release(const View& view) {
  if (!view.item) return;
  if (view.item->property("held").toBool()) return end(*view.item);
  view.item->setVisible(false);
  waiting_.push_back(view);
}

}  // namespace tarnloft
